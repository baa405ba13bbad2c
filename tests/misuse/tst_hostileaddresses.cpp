// SPDX-License-Identifier: MIT
#include "deferred.h"
#include "gridscene.h"
#include "pointer.h"
#include "sizedswitch.h"
#include "testprogram.h"

#include <OlvWidgets>

#include <QTest>

#include <functional>
#include <limits>

namespace {

template <typename Object> Object *childOf(const QObject &parent)
{
    for (QObject *child : parent.children()) {
        if (auto *found = dynamic_cast<Object *>(child)) {
            return found;
        }
    }
    return nullptr;
}

qulonglong numberOf(const QObject *object)
{
    return reinterpret_cast<qulonglong>(object);
}

/** A property that holds the address of a helper, and what the widget does by it. */
struct Holder
{
    const char *property;
    std::function<QWidget *(QWidget *parent)> make;
    /** The object that has the property. */
    std::function<QObject *(QWidget *widget)> owner;
    /** The helper, as it is found without the property. */
    std::function<QObject *(QWidget *widget)> helper;
    /** Has the widget use its helper. */
    std::function<void(QWidget *widget)> use;
    /** What the helper looks like: it shows whether it was used. */
    std::function<QString(QObject *helper)> look;
};

QString textOf(const QRect &rect)
{
    return QStringLiteral("%1,%2 %3x%4")
        .arg(rect.x())
        .arg(rect.y())
        .arg(rect.width())
        .arg(rect.height());
}

QString activityOf(QObject *timer)
{
    return static_cast<QTimer *>(timer)->isActive() ? QStringLiteral("active")
                                                    : QStringLiteral("idle");
}

template <typename Helper> std::function<QObject *(QWidget *)> childHelper()
{
    return [](QWidget *widget) -> QObject * {
        return childOf<Helper>(*widget);
    };
}

QObject *itself(QWidget *widget)
{
    return widget;
}

void resizeWidget(QWidget *widget)
{
    resizeAndTell(*widget, widget->size() + QSize(20, 0));
}

Holder knobOfSwitch()
{
    return { "round",
             [](QWidget *parent) -> QWidget * { return new OlvSwitch(parent); },
             itself,
             childHelper<SwitchRound>(),
             [](QWidget *widget) {
                 auto *toggle = static_cast<OlvSwitch *>(widget);
                 toggle->setColorRound(Qt::red);
                 resizeAndTell(*toggle, toggle->size() + QSize(50, 5));
                 tick(*toggle);
             },
             [](QObject *helper) {
                 auto *knob = static_cast<SwitchRound *>(helper);
                 return textOf(knob->geometry()) + knob->color().name();
             } };
}

Holder knobOfSlider()
{
    return { "SliderRound",
             [](QWidget *parent) -> QWidget * { return new OlvSlider(parent); },
             itself,
             childHelper<SliderRound>(),
             resizeWidget,
             [](QObject *helper) {
                 return QString::number(static_cast<SliderRound *>(helper)->maxX());
             } };
}

QWidget *makeGrid(QWidget *parent)
{
    auto *viewport = new QWidget(parent);
    viewport->resize(300, 200);
    return new OlvGridLayout(viewport);
}

Holder barOfGrid()
{
    return { "ScrollBar",
             makeGrid,
             itself,
             [](QWidget *widget) -> QObject * { return childOf<QScrollBar>(*widget->parent()); },
             [](QWidget *widget) {
                 auto *grid = static_cast<OlvGridLayout *>(widget);
                 grid->addWidget(makeTile(grid, 50, 1170));
                 wheel(*grid, QPoint(0, -120));
             },
             [](QObject *helper) {
                 auto *bar = static_cast<QScrollBar *>(helper);
                 return QStringLiteral("%1 %2 %3")
                     .arg(bar->isHidden())
                     .arg(bar->maximum())
                     .arg(bar->value());
             } };
}

Holder timerOfGrid()
{
    return { "ResizeTimer",
             makeGrid,
             itself,
             childHelper<QTimer>(),
             [](QWidget *widget) { static_cast<OlvGridLayout *>(widget)->resized(); },
             activityOf };
}

Holder timerOfTile()
{
    return { "clickTimer",
             [](QWidget *parent) -> QWidget * { return new OlvIconButton(parent); },
             itself,
             childHelper<QTimer>(),
             [](QWidget *widget) { Pointer::click(*widget); },
             activityOf };
}

Holder timerOfPanel()
{
    return { "resizeTimer",
             [](QWidget *parent) -> QWidget * { return new OlvFlexWidget(100, 100, parent); },
             itself,
             childHelper<QTimer>(),
             resizeWidget,
             activityOf };
}

Holder cornerOfResizer()
{
    return { "LeftBottom",
             [](QWidget *parent) -> QWidget * {
                 auto *target = new QWidget(parent);
                 new OlvResizeWidget(target, 5);
                 return target;
             },
             childHelper<OlvResizeWidget>(),
             [](QWidget *widget) -> QObject * {
                 for (QObject *child : widget->children()) {
                     auto *handle = dynamic_cast<OlvResizeItem *>(child);
                     if (handle && handle->type() == OlvResizeItem::Corner) {
                         return handle;
                     }
                 }
                 return nullptr;
             },
             [](QWidget *widget) {
                 widget->resize(widget->size() + QSize(20, 20));
                 childOf<OlvResizeWidget>(*widget)->reset();
             },
             [](QObject *helper) {
                 return textOf(static_cast<QWidget *>(helper)->geometry());
             } };
}

} // namespace

Q_DECLARE_METATYPE(Holder)

class TestHostileAddresses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void cleanup();
    void propertyThatNamesNoHelperUsesNone();
    void propertyThatNamesAnothersHelperUsesNone();
    void propertyThatNamesADeadHelperUsesNone();
};

void TestHostileAddresses::initTestCase_data()
{
    QTest::addColumn<Holder>("holder");
    for (const Holder &holder : { knobOfSwitch(), knobOfSlider(), barOfGrid(), timerOfGrid(),
                                  timerOfTile(), timerOfPanel(), cornerOfResizer() }) {
        QTest::newRow(holder.property) << holder;
    }
}

void TestHostileAddresses::cleanup()
{
    runDeferred();
}

void TestHostileAddresses::propertyThatNamesNoHelperUsesNone()
{
    QFETCH_GLOBAL(Holder, holder);
    QWidget parent;
    QWidget *widget = holder.make(&parent);
    QObject *owner = holder.owner(widget);
    QObject *helper = holder.helper(widget);
    QCOMPARE(owner->property(holder.property), QVariant(numberOf(helper)));
    QCOMPARE(owner->property(holder.property).userType(), int(QMetaType::ULongLong));
    const QString before = holder.look(helper);
    for (const QVariant &value :
         { QVariant(), QVariant(QStringLiteral("x")), QVariant(0), QVariant(-1),
           QVariant(0xdeadbeefULL), QVariant(std::numeric_limits<qulonglong>::max()),
           QVariant(1e300), QVariant(QRect(1, 2, 3, 4)), QVariant(numberOf(helper) + 1),
           QVariant(numberOf(widget)), QVariant(numberOf(&parent)) }) {
        owner->setProperty(holder.property, value);
        holder.use(widget);
        QVERIFY(!widget->grab().isNull());
        QCOMPARE(holder.look(helper), before);
    }
    // put back, in whatever type holds the number
    owner->setProperty(holder.property, QString::number(numberOf(helper)));
    holder.use(widget);
    QVERIFY(holder.look(helper) != before);
}

void TestHostileAddresses::propertyThatNamesAnothersHelperUsesNone()
{
    QFETCH_GLOBAL(Holder, holder);
    QWidget parent;
    QWidget *widget = holder.make(&parent);
    QWidget *other = holder.make(&parent);
    QObject *helper = holder.helper(other);
    const QString before = holder.look(helper);
    holder.owner(widget)->setProperty(holder.property, numberOf(helper));
    holder.use(widget);
    QCOMPARE(holder.look(helper), before);
    holder.use(other);
    QVERIFY(holder.look(helper) != before);
}

void TestHostileAddresses::propertyThatNamesADeadHelperUsesNone()
{
    QFETCH_GLOBAL(Holder, holder);
    QWidget parent;
    QWidget *widget = holder.make(&parent);
    const qulonglong dead = numberOf(holder.helper(widget));
    delete holder.helper(widget);
    holder.use(widget);
    QVERIFY(!widget->grab().isNull());
    // the property is the helper's own: it keeps what it has
    QCOMPARE(holder.owner(widget)->property(holder.property), QVariant(dead));
}

ADD_TEST(TestHostileAddresses, QApplication)
#include "tst_hostileaddresses.moc"
