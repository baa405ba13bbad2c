// SPDX-License-Identifier: MIT
#include "pointer.h"

#include <OlvButton>

#include <QMetaMethod>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

namespace {

/** Writes down the signals of a button as they come. */
QStringList *recordSignals(OlvButton &button, QObject *context)
{
    auto *record = new QStringList;
    QObject::connect(context, &QObject::destroyed, context, [=] { delete record; });
    QObject::connect(&button, &OlvButton::clicked, context,
                     [=] { record->append(QStringLiteral("clicked")); });
    QObject::connect(&button, &OlvButton::toggled, context, [=](bool checked) {
        record->append(checked ? QStringLiteral("toggled on") : QStringLiteral("toggled off"));
    });
    QObject::connect(&button, &OlvWidget::valueChanged, context,
                     [=] { record->append(QStringLiteral("valueChanged")); });
    return record;
}

QString stateOf(const OlvButton &button)
{
    return button.property("state").toString();
}

/** Counts the repaints that are asked for. */
class PaintedButton : public OlvButton
{
public:
    using OlvButton::OlvButton;
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        OlvButton::paintEvent(event);
    }
};

} // namespace

class TestButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsAtRestWithItsDefaults();
    void takesACaptionAndAParent();
    void hasTwoSignalsAndASlotInOrder();
    void setsStyleWithTheColourFirst();
    void settersStoreTheirProperties();
    void repaintsOnlyWhereItSaysSo_data();
    void repaintsOnlyWhereItSaysSo();
    void checkingFromCodeEmitsNothing();
    void staysCheckedWhenNoLongerCheckable();
    void valueIsStoredAsItIsAndReadAsBool_data();
    void valueIsStoredAsItIsAndReadAsBool();
    void followsTheMouse_data();
    void followsTheMouse();
    void everyMouseButtonClicks_data();
    void everyMouseButtonClicks();
    void doubleClickClicksTwice();
    void togglesAfterClickedWithTheStateStored();
    void readsCheckableAndCheckedAfterClicked();
    void clickSlot_data();
    void clickSlot();
    void clickSlotLeavesTheLookAlone();
    void handlersLeaveTheEventAccepted();
    void survivesDeletionFromItsSignals_data();
    void survivesDeletionFromItsSignals();
    void survivesPropertiesOfOtherTypes();
};

void TestButton::startsAtRestWithItsDefaults()
{
    OlvButton button;
    QCOMPARE(button.dynamicPropertyNames(),
             QList<QByteArray>(
                 { "isChecked", "isCheckable", "value", "type", "color", "state", "hovered" }));
    for (const char *name : { "isChecked", "isCheckable", "value", "hovered" }) {
        QCOMPARE(button.property(name).userType(), int(QMetaType::Bool));
        QCOMPARE(button.property(name).toBool(), false);
    }
    for (const char *name : { "type", "color", "state" }) {
        QCOMPARE(button.property(name).userType(), int(QMetaType::QString));
    }
    QCOMPARE(button.property("type").toString(), QString());
    QCOMPARE(button.property("color").toString(), QStringLiteral("primary"));
    QCOMPARE(stateOf(button), QStringLiteral("init"));
    QVERIFY(!button.property("content").isValid());
    QCOMPARE(button.sizeHint(), QWidget().sizeHint());
    QVERIFY(!button.isChecked());
    QVERIFY(!button.isCheckable());
}

void TestButton::takesACaptionAndAParent()
{
    QWidget parent;
    auto *plain = new OlvButton(&parent);
    QCOMPARE(plain->parentWidget(), &parent);
    auto *captioned = new OlvButton(QStringLiteral("确定"), &parent);
    QCOMPARE(captioned->parentWidget(), &parent);
    QCOMPARE(captioned->property("content"), QVariant(QStringLiteral("确定")));
    QCOMPARE(captioned->property("color").toString(), QStringLiteral("primary"));
}

void TestButton::hasTwoSignalsAndASlotInOrder()
{
    const QMetaObject &meta = OlvButton::staticMetaObject;
    QCOMPARE(meta.className(), "OlvButton");
    QCOMPARE(meta.superClass(), &OlvWidget::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
    struct Method
    {
        QMetaMethod::MethodType type;
        QByteArray signature;
        QList<QByteArray> parameters;
    };
    const QVector<Method> methods{
        { QMetaMethod::Signal, "clicked()", {} },
        { QMetaMethod::Signal, "toggled(bool)", { "checked" } },
        { QMetaMethod::Slot, "click(bool)", { "checked" } },
        { QMetaMethod::Slot, "click()", {} },
    };
    QCOMPARE(meta.methodCount() - meta.methodOffset(), methods.count());
    for (int i = 0; i < methods.count(); ++i) {
        const QMetaMethod method = meta.method(meta.methodOffset() + i);
        QCOMPARE(method.methodType(), methods.at(i).type);
        QCOMPARE(method.methodSignature(), methods.at(i).signature);
        QCOMPARE(method.parameterNames(), methods.at(i).parameters);
        QCOMPARE(method.access(), QMetaMethod::Public);
    }
    QVERIFY(meta.method(meta.methodOffset() + 3).attributes() & QMetaMethod::Cloned);
}

void TestButton::setsStyleWithTheColourFirst()
{
    OlvButton button;
    QList<QByteArray> order;
    class Watcher : public QObject
    {
    public:
        explicit Watcher(QList<QByteArray> *names)
            : m_names(names)
        { }
        bool eventFilter(QObject *watched, QEvent *event) override
        {
            if (event->type() == QEvent::DynamicPropertyChange) {
                m_names->append(static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName());
            }
            return QObject::eventFilter(watched, event);
        }

    private:
        QList<QByteArray> *m_names;
    } watcher(&order);
    button.installEventFilter(&watcher);
    QCOMPARE(button.setOlvStyle(QStringLiteral("success"), QStringLiteral("plain")), &button);
    QCOMPARE(button.property("color").toString(), QStringLiteral("success"));
    QCOMPARE(button.property("type").toString(), QStringLiteral("plain"));
    QCOMPARE(order, QList<QByteArray>({ "type", "color" }));
}

void TestButton::settersStoreTheirProperties()
{
    OlvButton button;
    button.setText(QStringLiteral("text"));
    QCOMPARE(button.property("content"), QVariant(QStringLiteral("text")));
    button.setChecked(true);
    QCOMPARE(button.property("isChecked"), QVariant(true));
    QVERIFY(button.isChecked());
    button.setCheckable(true);
    QCOMPARE(button.property("isCheckable"), QVariant(true));
    QVERIFY(button.isCheckable());
    button.setProperty("isChecked", 0);
    QVERIFY(!button.isChecked());
    button.setProperty("isCheckable", QStringLiteral("false"));
    QVERIFY(!button.isCheckable());
}

void TestButton::repaintsOnlyWhereItSaysSo_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<bool>("repaints");
    QTest::newRow("setOlvStyle") << QStringLiteral("setOlvStyle") << true;
    QTest::newRow("setText") << QStringLiteral("setText") << true;
    QTest::newRow("setChecked") << QStringLiteral("setChecked") << true;
    QTest::newRow("setCheckable") << QStringLiteral("setCheckable") << false;
    QTest::newRow("setColor") << QStringLiteral("setColor") << false;
    QTest::newRow("setValue") << QStringLiteral("setValue") << false;
    QTest::newRow("enter") << QStringLiteral("enter") << true;
    QTest::newRow("leave") << QStringLiteral("leave") << true;
    QTest::newRow("press") << QStringLiteral("press") << true;
    QTest::newRow("release") << QStringLiteral("release") << true;
}

void TestButton::repaintsOnlyWhereItSaysSo()
{
    QFETCH(QString, call);
    QFETCH(bool, repaints);
    PaintedButton button;
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    const QHash<QString, std::function<void()>> calls{
        { QStringLiteral("setOlvStyle"),
          [&] {
              button.setOlvStyle({}, {});
          } },
        { QStringLiteral("setText"),
          [&] {
              button.setText({});
          } },
        { QStringLiteral("setChecked"),
          [&] {
              button.setChecked(false);
          } },
        { QStringLiteral("setCheckable"),
          [&] {
              button.setCheckable(true);
          } },
        { QStringLiteral("setColor"),
          [&] {
              button.setColor(QStringList());
          } },
        { QStringLiteral("setValue"),
          [&] {
              button.setValue(true);
          } },
        { QStringLiteral("enter"),
          [&] {
              Pointer::enter(button);
          } },
        { QStringLiteral("leave"),
          [&] {
              Pointer::leave(button);
          } },
        { QStringLiteral("press"),
          [&] {
              Pointer::press(button);
          } },
        { QStringLiteral("release"),
          [&] {
              Pointer::release(button);
          } },
    };
    QTest::qWait(20);
    const int before = button.paints;
    // the second call finds every value as it is already, and asks for the repaint all the same
    for (int round = 1; round <= 2; ++round) {
        calls.value(call)();
        QTest::qWait(20);
        QCOMPARE(button.paints, before + (repaints ? round : 0));
    }
}

void TestButton::checkingFromCodeEmitsNothing()
{
    OlvButton button;
    const QStringList *record = recordSignals(button, this);
    button.setCheckable(true);
    button.setChecked(true);
    button.setChecked(false);
    button.setValue(true);
    QCOMPARE(*record, QStringList());
}

void TestButton::staysCheckedWhenNoLongerCheckable()
{
    OlvButton button;
    button.setCheckable(true);
    button.setChecked(true);
    button.setCheckable(false);
    QVERIFY(button.isChecked());
}

void TestButton::valueIsStoredAsItIsAndReadAsBool_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<bool>("value");
    QTest::newRow("true") << QVariant(true) << true;
    QTest::newRow("integer 5") << QVariant(5) << true;
    QTest::newRow("integer 0") << QVariant(0) << false;
    QTest::newRow("text") << QVariant(QStringLiteral("yes")) << true;
    QTest::newRow("invalid") << QVariant() << false;
}

void TestButton::valueIsStoredAsItIsAndReadAsBool()
{
    QFETCH(QVariant, stored);
    QFETCH(bool, value);
    OlvButton button;
    button.setValue(stored);
    QCOMPARE(button.property("value"), stored);
    QCOMPARE(button.getValue(), QVariant(value));
    QCOMPARE(button.getValue().userType(), int(QMetaType::Bool));
}

void TestButton::followsTheMouse_data()
{
    QTest::addColumn<QString>("events");
    QTest::addColumn<QString>("state");
    QTest::addColumn<bool>("hovered");
    QTest::addColumn<QString>("record");
    const auto row = [](const char *events, const char *state, bool hovered, const char *record) {
        QTest::newRow(events) << QString::fromLatin1(events) << QString::fromLatin1(state)
                              << hovered << QString::fromLatin1(record);
    };
    row("enter", "hover", true, "");
    row("enter leave", "init", false, "");
    row("leave", "init", false, "");
    row("press", "click", false, "");
    row("enter press", "click", true, "");
    row("enter press leave", "click", false, "");
    row("enter press release", "hover", true, "clicked");
    row("enter press release leave", "init", false, "clicked");
    row("enter press leave release", "init", false, "");
    row("enter press leave enter", "hover", true, "");
    row("enter press leave enter release", "hover", true, "clicked");
    row("enter press leave enter leave", "init", false, "");
    row("press release", "init", false, "");
    row("enter release", "hover", true, "clicked");
    row("enter press press", "click", true, "");
    row("enter press release press release", "hover", true, "clicked clicked");
    row("enter press leave leave", "click", false, "");
}

void TestButton::followsTheMouse()
{
    QFETCH(QString, events);
    QFETCH(QString, state);
    QFETCH(bool, hovered);
    QFETCH(QString, record);
    OlvButton button;
    const QStringList *recorded = recordSignals(button, this);
    const QStringList names = events.split(QLatin1Char(' '));
    for (const QString &name : names) {
        if (name == QLatin1String("enter")) {
            Pointer::enter(button);
        } else if (name == QLatin1String("leave")) {
            Pointer::leave(button);
        } else if (name == QLatin1String("press")) {
            Pointer::press(button);
        } else {
            Pointer::release(button);
        }
    }
    QCOMPARE(stateOf(button), state);
    QCOMPARE(button.property("hovered"), QVariant(hovered));
    QCOMPARE(recorded->join(QLatin1Char(' ')), record);
}

void TestButton::everyMouseButtonClicks_data()
{
    QTest::addColumn<int>("mouseButton");
    QTest::newRow("left") << int(Qt::LeftButton);
    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
    QTest::newRow("back") << int(Qt::BackButton);
}

void TestButton::everyMouseButtonClicks()
{
    QFETCH(int, mouseButton);
    OlvButton button;
    QSignalSpy clicked(&button, &OlvButton::clicked);
    Pointer::click(button, Qt::MouseButton(mouseButton));
    QCOMPARE(clicked.count(), 1);
}

void TestButton::doubleClickClicksTwice()
{
    OlvButton button;
    QSignalSpy clicked(&button, &OlvButton::clicked);
    Pointer::enter(button);
    QTest::mousePress(&button, Qt::LeftButton);
    QTest::mouseRelease(&button, Qt::LeftButton);
    QMouseEvent second(QEvent::MouseButtonDblClick, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                       {});
    QCoreApplication::sendEvent(&button, &second);
    QCOMPARE(stateOf(button), QStringLiteral("click"));
    QTest::mouseRelease(&button, Qt::LeftButton);
    QCOMPARE(clicked.count(), 2);
}

void TestButton::togglesAfterClickedWithTheStateStored()
{
    OlvButton button;
    button.setCheckable(true);
    const QStringList *record = recordSignals(button, this);
    bool checkedWhenClicked = true;
    bool checkedWhenToggled = false;
    connect(&button, &OlvButton::clicked, this, [&] { checkedWhenClicked = button.isChecked(); });
    connect(&button, &OlvButton::toggled, this, [&] { checkedWhenToggled = button.isChecked(); });
    Pointer::click(button);
    QCOMPARE(*record, QStringList({ QStringLiteral("clicked"), QStringLiteral("toggled on") }));
    QVERIFY(!checkedWhenClicked);
    QVERIFY(checkedWhenToggled);
    Pointer::click(button);
    QCOMPARE(record->mid(2),
             QStringList({ QStringLiteral("clicked"), QStringLiteral("toggled off") }));
    QVERIFY(!button.isChecked());
}

void TestButton::readsCheckableAndCheckedAfterClicked()
{
    OlvButton button;
    const QStringList *record = recordSignals(button, this);
    connect(&button, &OlvButton::clicked, this, [&] {
        button.setCheckable(true);
        button.setChecked(true);
    });
    Pointer::click(button);
    QCOMPARE(record->last(), QStringLiteral("toggled off"));
    button.click(false);
    QCOMPARE(record->last(), QStringLiteral("toggled off"));
    button.click(true);
    QCOMPARE(record->last(), QStringLiteral("clicked"));
}

void TestButton::clickSlot_data()
{
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<bool>("checkedBefore");
    QTest::addColumn<bool>("argument");
    QTest::addColumn<bool>("checkedAfter");
    QTest::addColumn<QString>("record");
    const QString clicked = QStringLiteral("clicked");
    const QString on = QStringLiteral("clicked,toggled on");
    const QString off = QStringLiteral("clicked,toggled off");
    QTest::newRow("not checkable, false") << false << false << false << false << clicked;
    QTest::newRow("not checkable, true") << false << false << true << false << clicked;
    QTest::newRow("not checkable but checked") << false << true << false << true << clicked;
    QTest::newRow("unchecked, false") << true << false << false << false << clicked;
    QTest::newRow("unchecked, true") << true << false << true << true << on;
    QTest::newRow("checked, false") << true << true << false << false << off;
    QTest::newRow("checked, true") << true << true << true << true << clicked;
}

void TestButton::clickSlot()
{
    QFETCH(bool, checkable);
    QFETCH(bool, checkedBefore);
    QFETCH(bool, argument);
    QFETCH(bool, checkedAfter);
    QFETCH(QString, record);
    OlvButton button;
    button.setCheckable(checkable);
    button.setChecked(checkedBefore);
    const QStringList *recorded = recordSignals(button, this);
    if (argument) {
        button.click(true);
    } else {
        button.click(); // without an argument: unchecks
    }
    QCOMPARE(button.isChecked(), checkedAfter);
    QCOMPARE(recorded->join(QLatin1Char(',')), record);
}

void TestButton::clickSlotLeavesTheLookAlone()
{
    OlvButton button;
    Pointer::enter(button);
    Pointer::press(button);
    button.click();
    QCOMPARE(stateOf(button), QStringLiteral("click"));
    QCOMPARE(button.property("hovered"), QVariant(true));
}

void TestButton::handlersLeaveTheEventAccepted()
{
    QWidget parent;
    auto *button = new OlvButton(&parent);
    for (const QEvent::Type type : { QEvent::MouseButtonPress, QEvent::MouseButtonRelease }) {
        QMouseEvent event(type, QPointF(1, 1), Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(button, &event);
        QVERIFY(event.isAccepted());
    }
}

void TestButton::survivesDeletionFromItsSignals_data()
{
    QTest::addColumn<bool>("fromToggled");
    QTest::addColumn<bool>("withParent");
    QTest::addColumn<bool>("byMouse");
    for (const bool fromToggled : { false, true }) {
        for (const bool withParent : { false, true }) {
            for (const bool byMouse : { false, true }) {
                QTest::addRow("%s, %s, %s", fromToggled ? "toggled" : "clicked",
                              withParent ? "with its parent" : "alone",
                              byMouse ? "by the mouse" : "by the slot")
                    << fromToggled << withParent << byMouse;
            }
        }
    }
}

void TestButton::survivesDeletionFromItsSignals()
{
    QFETCH(bool, fromToggled);
    QFETCH(bool, withParent);
    QFETCH(bool, byMouse);
    auto *parent = new QWidget;
    const QPointer<QWidget> watchedParent(parent);
    const QPointer<OlvButton> button(new OlvButton(parent));
    button->setCheckable(true);
    QSignalSpy toggled(button, &OlvButton::toggled);
    const auto destroy = [=] {
        delete (withParent ? parent : button.data());
    };
    if (fromToggled) {
        connect(button, &OlvButton::toggled, this, destroy);
    } else {
        connect(button, &OlvButton::clicked, this, destroy);
    }
    if (byMouse) {
        // straight to the handlers: QTest itself would touch the dead widget
        Pointer::enter(*button);
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(1, 1), Qt::LeftButton, Qt::LeftButton,
                          {});
        QCoreApplication::sendEvent(button, &press);
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(1, 1), Qt::LeftButton, Qt::NoButton,
                            {});
        QCoreApplication::sendEvent(button, &release);
    } else {
        button->click(true);
    }
    QVERIFY(button.isNull());
    QCOMPARE(toggled.count(), fromToggled ? 1 : 0);
    delete watchedParent;
}

void TestButton::survivesPropertiesOfOtherTypes()
{
    OlvButton button(QStringLiteral("text"));
    for (const char *name :
         { "isChecked", "isCheckable", "value", "type", "color", "state", "hovered", "content" }) {
        for (const QVariant &value : { QVariant(), QVariant(QPoint(1, 2)), QVariant(-1.5),
                                       QVariant(QStringList({ QStringLiteral("x") })) }) {
            button.setProperty(name, value);
            QVERIFY(!button.grab().isNull());
            Pointer::click(button);
            Pointer::leave(button);
        }
    }
    QCOMPARE(stateOf(button), QStringLiteral("init"));
}

QTEST_MAIN(TestButton)
#include "tst_button.moc"
