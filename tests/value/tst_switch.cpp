// SPDX-License-Identifier: MIT
#include "sizedswitch.h"
#include "testprogram.h"

#include <OlvPluginEventFilter>

#include <QDynamicPropertyChangeEvent>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <limits>
#include <utility>

namespace {

/** Deletes the switch that it filters, as soon as that sets a property to a value. */
class Deleter : public QObject
{
public:
    Deleter(QByteArray property, QVariant value)
        : m_property(std::move(property))
        , m_value(std::move(value))
    { }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::DynamicPropertyChange
            || static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName() != m_property
            || watched->property(m_property.constData()) != m_value) {
            return false;
        }
        delete watched;
        return true;
    }

private:
    QByteArray m_property;
    QVariant m_value;
};

} // namespace

class TestSwitch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsOffWithItsDefaults();
    void namesItsChildrenAndListeners();
    void resizingFitsTheKnobWhereItStands();
    void knobKeepsItsFirstInsetUntilTheFirstResize();
    void consumesItsEvents();
    void getValueReturnsThePropertyAsItStands();
    void survivesDeletionByAFilterOfItsProperties_data();
    void survivesDeletionByAFilterOfItsProperties();
    void survivesHostileProperties_data();
    void survivesHostileProperties();
    void survivesTheLossOfItsKnob();
    void ignoresEventsWhileItIsDestroyed();
    void drawsAKnobWithAnyInset();
};

void TestSwitch::startsOffWithItsDefaults()
{
    QWidget parent;
    OlvSwitch toggle(&parent);
    QCOMPARE(toggle.parentWidget(), &parent);
    QCOMPARE(toggle.dynamicPropertyNames(),
             QList<QByteArray>({ "openColor", "closeColor", "switch", "moveCount", "moveWidth",
                                 "interval", "round" }));
    QCOMPARE(toggle.property("switch"), QVariant(false));
    QCOMPARE(toggle.property("switch").userType(), int(QMetaType::Bool));
    QCOMPARE(toggle.property("moveCount"), QVariant(0));
    QCOMPARE(toggle.property("moveCount").userType(), int(QMetaType::Int));
    QCOMPARE(toggle.property("moveWidth"), QVariant((toggle.width() - toggle.height()) / 5.0));
    QCOMPARE(toggle.property("moveWidth").userType(), int(QMetaType::Double));
    QCOMPARE(toggle.property("interval"), QVariant(2));
    QCOMPARE(toggle.property("interval").userType(), int(QMetaType::Int));
    QCOMPARE(toggle.property("openColor"), QVariant(QStringLiteral("220,223,230")));
    QCOMPARE(toggle.property("closeColor"), QVariant(QStringLiteral("19,206,102")));
    QCOMPARE(toggle.property("round").userType(), int(QMetaType::ULongLong));
    QCOMPARE(toggle.getValue(), QVariant(false));

    SwitchRound *knob = knobOf(toggle);
    QCOMPARE(knob->geometry(), QRect(0, 0, toggle.height(), toggle.height()));
    QCOMPARE(knob->color(), QColor(Qt::white));
    QCOMPARE(SwitchRound(&parent).inset(), SwitchRound(&parent).height() / 10);
}

void TestSwitch::namesItsChildrenAndListeners()
{
    OlvSwitch toggle;
    QCOMPARE(toggle.children().count(), 2);
    QCOMPARE(toggle.children().at(0), knobOf(toggle));
    QVERIFY(dynamic_cast<OlvPluginEventFilter *>(toggle.children().at(1)));
}

void TestSwitch::resizingFitsTheKnobWhereItStands()
{
    OlvSwitch toggle;
    toggle.resize(100, 20);
    toggle.show();
    QVERIFY(QTest::qWaitForWindowExposed(&toggle));
    SwitchRound *knob = knobOf(toggle);
    QCOMPARE(knob->geometry(), QRect(0, 0, 20, 20));
    QCOMPARE(knob->inset(), 2);

    runAnimation(toggle);
    QCOMPARE(knob->pos(), QPoint(80, 0));
    toggle.resize(203, 49);
    QCOMPARE(knob->geometry(), QRect(80, 0, 49, 49));
    QCOMPARE(knob->inset(), 4);
    QCOMPARE(toggle.property("moveWidth"), QVariant(30.8));

    // a resized knob is fitted again, by the switch's own size
    knob->resize(7, 300);
    QCOMPARE(knob->size(), QSize(49, 49));
}

void TestSwitch::knobKeepsItsFirstInsetUntilTheFirstResize()
{
    // a widget is 30 pixels high in a parent, and 480 without one
    OlvSwitch toggle;
    QCOMPARE(toggle.height(), 480);
    QCOMPARE(knobOf(toggle)->height(), 480);
    QCOMPARE(knobOf(toggle)->inset(), 3);
    toggle.resize(200, 60);
    QCOMPARE(knobOf(toggle)->inset(), 3);
    toggle.show();
    QVERIFY(QTest::qWaitForWindowExposed(&toggle));
    QCOMPARE(knobOf(toggle)->inset(), 6);
}

void TestSwitch::consumesItsEvents()
{
    class Recording : public SizedSwitch
    {
    public:
        QList<QEvent::Type> received;

    protected:
        bool event(QEvent *event) override
        {
            received.append(event->type());
            return SizedSwitch::event(event);
        }
    } toggle;
    toggle.received.clear();
    tick(toggle);
    releaseMouse(toggle);
    resizeAndTell(toggle, { 80, 20 });
    QVERIFY(!toggle.received.contains(QEvent::Timer));
    QVERIFY(!toggle.received.contains(QEvent::MouseButtonRelease));
    QVERIFY(!toggle.received.contains(QEvent::Resize));
    QTest::mousePress(&toggle, Qt::LeftButton);
    QVERIFY(toggle.received.contains(QEvent::MouseButtonPress));
}

void TestSwitch::getValueReturnsThePropertyAsItStands()
{
    OlvSwitch toggle;
    toggle.setProperty("switch", QStringLiteral("on"));
    QCOMPARE(toggle.getValue(), QVariant(QStringLiteral("on")));
    toggle.setProperty("switch", QVariant());
    QVERIFY(!toggle.getValue().isValid());
}

void TestSwitch::survivesDeletionByAFilterOfItsProperties_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("at a step") << QByteArray("moveCount") << QVariant(2);
    QTest::newRow("at the end of the steps") << QByteArray("moveCount") << QVariant(0);
    QTest::newRow("when it has switched") << QByteArray("switch") << QVariant(true);
}

void TestSwitch::survivesDeletionByAFilterOfItsProperties()
{
    QFETCH(const QByteArray, property);
    QFETCH(const QVariant, value);
    Deleter deleter(property, value);
    const QPointer<OlvSwitch> toggle(new OlvSwitch);
    toggle->installEventFilter(&deleter);
    toggle->setValue(true);
    QTRY_VERIFY_WITH_TIMEOUT(!toggle, 20000);
}

void TestSwitch::survivesHostileProperties_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("value");
    for (const char *name :
         { "switch", "moveCount", "moveWidth", "interval", "openColor", "closeColor", "round" }) {
        QTest::addRow("%s invalid", name) << QByteArray(name) << QVariant();
        QTest::addRow("%s text", name) << QByteArray(name) << QVariant(QStringLiteral("x"));
        QTest::addRow("%s huge", name) << QByteArray(name) << QVariant(1e300);
        QTest::addRow("%s negative", name) << QByteArray(name) << QVariant(-1e300);
        QTest::addRow("%s no number", name)
            << QByteArray(name) << QVariant(std::numeric_limits<double>::quiet_NaN());
        QTest::addRow("%s wild address", name) << QByteArray(name) << QVariant(0xdeadbeefULL);
    }
}

void TestSwitch::survivesHostileProperties()
{
    QFETCH(QByteArray, name);
    QFETCH(QVariant, value);
    SizedSwitch toggle;
    toggle.setProperty(name.constData(), value);
    for (int i = 0; i < 12; ++i) {
        tick(toggle);
    }
    releaseMouse(toggle);
    toggle.setColorRound(Qt::blue);
    QVERIFY(!toggle.grab().isNull());
}

void TestSwitch::survivesTheLossOfItsKnob()
{
    SizedSwitch toggle;
    QSignalSpy changed(&toggle, &OlvSwitch::changed);
    delete knobOf(toggle);
    runAnimation(toggle);
    toggle.setColorRound(Qt::blue);
    resizeAndTell(toggle, { 60, 20 });
    QCOMPARE(changed.count(), 1);
    QCOMPARE(toggle.property("moveWidth"), QVariant(8.0));
}

void TestSwitch::ignoresEventsWhileItIsDestroyed()
{
    const QPointer<SizedSwitch> toggle(new SizedSwitch);
    SwitchRound *knob = knobOf(*toggle);
    int calls = 0;
    connect(toggle, &QObject::destroyed, this, [&] {
        // what is left of it is a plain widget, whose children still live
        for (const QEvent::Type type :
             { QEvent::Resize, QEvent::MouseButtonRelease, QEvent::Timer }) {
            QEvent event(type);
            for (QObject *watcher : knob->parent()->children()) {
                if (watcher->eventFilter(knob, &event)) {
                    ++calls;
                }
            }
        }
    });
    const QSize before = knob->size();
    connect(knob, &QObject::destroyed, this, [=] { QCOMPARE(knob->size(), before); });
    delete toggle;
    QCOMPARE(calls, 3); // consumed as ever, but nothing happens
}

void TestSwitch::drawsAKnobWithAnyInset()
{
    SwitchRound knob;
    knob.resize(20, 20);
    for (const int inset : { std::numeric_limits<int>::min(), std::numeric_limits<int>::max() }) {
        knob.setInset(inset);
        QCOMPARE(knob.inset(), inset);
        QVERIFY(!knob.grab().isNull());
    }
}

ADD_TEST(TestSwitch, QApplication)
#include "tst_switch.moc"
