// SPDX-License-Identifier: MIT
#include "pixels.h"

#include <OlvPluginEventFilter>
#include <OlvSwitch>

#include <QElapsedTimer>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <limits>

namespace {

SwitchRound *knobOf(const OlvSwitch &toggle)
{
    return reinterpret_cast<SwitchRound *>(toggle.property("round").toULongLong());
}

void resizeAndTell(QWidget &widget, QSize size)
{
    widget.resize(size);
    QResizeEvent event(size, size);
    QCoreApplication::sendEvent(&widget, &event);
}

void tick(QObject &receiver)
{
    QTimerEvent event(1);
    QCoreApplication::sendEvent(&receiver, &event);
}

void releaseMouse(QWidget &widget, Qt::MouseButton button = Qt::LeftButton)
{
    QMouseEvent event(QEvent::MouseButtonRelease, QPointF(1, 1), button, Qt::NoButton, {});
    QCoreApplication::sendEvent(&widget, &event);
}

/** Runs a whole animation in five timer events, without waiting. */
void runAnimation(OlvSwitch &toggle)
{
    for (int i = 0; i < 5; ++i) {
        tick(toggle);
    }
}

/** A switch 100 by 20 pixels large, so that a step is 16. */
class SizedSwitch : public OlvSwitch
{
public:
    explicit SizedSwitch(QSize size = { 100, 20 })
    {
        resizeAndTell(*this, size);
    }
};

} // namespace

class TestSwitch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsOffWithItsDefaults();
    void namesItsChildrenAndListeners();
    void hasOneSignalWithAnUnnamedParameter();
    void stepsAreAFifthOfTheTravel_data();
    void stepsAreAFifthOfTheTravel();
    void stepsStartFromTheKnobsOwnPlace();
    void flipsAtTheFifthStepAndTellsInOrder();
    void takesAQuarterOfASecond();
    void settingTheSameValueDoesNothing_data();
    void settingTheSameValueDoesNothing();
    void everyMouseButtonOnSwitchOrKnobClicks_data();
    void everyMouseButtonOnSwitchOrKnobClicks();
    void clickCallsTheVirtualSetValue();
    void ignoresClicksWhileTheKnobMoves();
    void secondStartBeforeTheFirstStepLeavesATimerBehind();
    void resizingFitsTheKnobWhereItStands();
    void knobDoesNotTravelInASquareSwitch();
    void consumesItsEvents();
    void colourSettersStoreStringsWithoutRepainting();
    void knobColourRepaintsTheKnobAlone();
    void getValueReturnsThePropertyAsItStands();
    void survivesDeletionFromItsSignals_data();
    void survivesDeletionFromItsSignals();
    void survivesHostileProperties_data();
    void survivesHostileProperties();
    void survivesTheLossOfItsKnob();
    void drawsTheTrack_data();
    void drawsTheTrack();
    void drawsTheKnob_data();
    void drawsTheKnob();
    void restsWithoutATimer();
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

void TestSwitch::hasOneSignalWithAnUnnamedParameter()
{
    const QMetaObject &meta = OlvSwitch::staticMetaObject;
    QCOMPARE(meta.className(), "OlvSwitch");
    QCOMPARE(meta.superClass(), &OlvWidget::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    const QMetaMethod changed = meta.method(meta.methodOffset());
    QCOMPARE(changed.methodType(), QMetaMethod::Signal);
    QCOMPARE(changed.methodSignature(), QByteArray("changed(bool)"));
    QCOMPARE(SwitchRound::staticMetaObject.className(), "QWidget");
}

void TestSwitch::stepsAreAFifthOfTheTravel_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QList<int>>("places");
    QTest::newRow("whole steps") << QSize(100, 20) << QList<int>({ 16, 32, 48, 64, 80 });
    // 6.4: each step is cut off from where the knob then stands
    QTest::newRow("broken steps") << QSize(52, 20) << QList<int>({ 6, 12, 18, 24, 32 });
    QTest::newRow("steps below a pixel") << QSize(24, 20) << QList<int>({ 0, 0, 0, 0, 4 });
    QTest::newRow("square") << QSize(20, 20) << QList<int>({ 0, 0, 0, 0, 0 });
    QTest::newRow("higher than wide") << QSize(10, 23) << QList<int>({ -2, -4, -6, -8, -13 });
    QTest::newRow("no size") << QSize(0, 0) << QList<int>({ 0, 0, 0, 0, 0 });
}

void TestSwitch::stepsAreAFifthOfTheTravel()
{
    QFETCH(QSize, size);
    QFETCH(QList<int>, places);
    SizedSwitch toggle(size);
    QCOMPARE(toggle.property("moveWidth"), QVariant((size.width() - size.height()) / 5.0));
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(toggle.property("switch"), QVariant(false));
        QCOMPARE(toggle.property("moveCount"), QVariant(i));
        tick(toggle);
        QCOMPARE(knobOf(toggle)->pos(), QPoint(places.at(i), 0));
    }
    QCOMPARE(toggle.property("switch"), QVariant(true));
    QCOMPARE(toggle.property("moveCount"), QVariant(0));

    // back again, down from the end and cut off towards zero
    int x = places.last();
    const double step = toggle.property("moveWidth").toDouble();
    for (int i = 0; i < 4; ++i) {
        tick(toggle);
        x = int(x - step);
        QCOMPARE(knobOf(toggle)->pos(), QPoint(x, 0));
    }
    tick(toggle);
    QCOMPARE(knobOf(toggle)->pos(), QPoint(0, 0));
    QCOMPARE(toggle.property("switch"), QVariant(false));
}

void TestSwitch::stepsStartFromTheKnobsOwnPlace()
{
    SizedSwitch toggle({ 52, 20 });
    knobOf(toggle)->move(-10, 7);
    tick(toggle);
    QCOMPARE(knobOf(toggle)->pos(), QPoint(-3, 0)); // -3.6 towards zero
    knobOf(toggle)->move(40, 7);
    tick(toggle);
    QCOMPARE(knobOf(toggle)->pos(), QPoint(46, 0));
}

void TestSwitch::flipsAtTheFifthStepAndTellsInOrder()
{
    SizedSwitch toggle;
    QStringList record;
    const auto note = [&](const char *signal, bool on) {
        record.append(QStringLiteral("%1 %2, %3 at %4")
                          .arg(QLatin1String(signal))
                          .arg(on)
                          .arg(toggle.getValue().toBool())
                          .arg(knobOf(toggle)->x()));
    };
    connect(&toggle, &OlvWidget::valueChanged, this, [&](const QVariant &value) {
        QCOMPARE(value.userType(), int(QMetaType::Bool));
        note("valueChanged", value.toBool());
    });
    connect(&toggle, &OlvSwitch::changed, this, [&](bool on) { note("changed", on); });
    for (int i = 0; i < 4; ++i) {
        tick(toggle);
    }
    QCOMPARE(record, QStringList());
    tick(toggle);
    QCOMPARE(record,
             QStringList({ QStringLiteral("valueChanged 1, 1 at 80"),
                           QStringLiteral("changed 1, 1 at 80") }));
    record.clear();
    runAnimation(toggle);
    QCOMPARE(record,
             QStringList({ QStringLiteral("valueChanged 0, 0 at 0"),
                           QStringLiteral("changed 0, 0 at 0") }));
}

void TestSwitch::takesAQuarterOfASecond()
{
    SizedSwitch toggle;
    QSignalSpy changed(&toggle, &OlvSwitch::changed);
    QElapsedTimer clock;
    clock.start();
    toggle.setValue(true);
    QCOMPARE(toggle.property("timerId").userType(), int(QMetaType::Int));
    QVERIFY(toggle.property("timerId").toInt() > 0);
    QCOMPARE(toggle.getValue(), QVariant(false));
    QVERIFY(changed.wait());
    // coarse timers may be five in a hundred early
    QVERIFY2(clock.elapsed() >= 230, QByteArray::number(clock.elapsed()).constData());
    QCOMPARE(toggle.getValue(), QVariant(true));
    QTest::qWait(300);
    QCOMPARE(changed.count(), 1);
}

void TestSwitch::settingTheSameValueDoesNothing_data()
{
    QTest::addColumn<bool>("on");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("off, false") << false << QVariant(false);
    QTest::newRow("off, invalid") << false << QVariant();
    QTest::newRow("off, 0") << false << QVariant(0);
    QTest::newRow("off, \"false\"") << false << QVariant(QStringLiteral("false"));
    QTest::newRow("on, true") << true << QVariant(true);
    QTest::newRow("on, 7") << true << QVariant(7);
}

void TestSwitch::settingTheSameValueDoesNothing()
{
    QFETCH(bool, on);
    QFETCH(QVariant, value);
    SizedSwitch toggle;
    toggle.setProperty("switch", on);
    QSignalSpy valueChanged(&toggle, &OlvWidget::valueChanged);
    toggle.setValue(value);
    QVERIFY(!toggle.property("timerId").isValid());
    QCOMPARE(valueChanged.count(), 0);
}

void TestSwitch::everyMouseButtonOnSwitchOrKnobClicks_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("onKnob");
    QTest::newRow("left on the switch") << int(Qt::LeftButton) << false;
    QTest::newRow("right on the switch") << int(Qt::RightButton) << false;
    QTest::newRow("left on the knob") << int(Qt::LeftButton) << true;
    QTest::newRow("middle on the knob") << int(Qt::MiddleButton) << true;
}

void TestSwitch::everyMouseButtonOnSwitchOrKnobClicks()
{
    QFETCH(int, button);
    QFETCH(bool, onKnob);
    SizedSwitch toggle;
    QSignalSpy changed(&toggle, &OlvSwitch::changed);
    QWidget *target = onKnob ? static_cast<QWidget *>(knobOf(toggle)) : &toggle;
    releaseMouse(*target, Qt::MouseButton(button));
    QVERIFY(changed.wait());
    QCOMPARE(changed.first().first().toBool(), true);
}

void TestSwitch::clickCallsTheVirtualSetValue()
{
    class Recording : public SizedSwitch
    {
    public:
        void setValue(const QVariant &value) override
        {
            values.append(value);
        }
        QVariantList values;
    } toggle;
    releaseMouse(toggle);
    toggle.setProperty("switch", true);
    releaseMouse(toggle);
    QCOMPARE(toggle.values, QVariantList({ true, false }));
    QCOMPARE(toggle.values.first().userType(), int(QMetaType::Bool));
}

void TestSwitch::ignoresClicksWhileTheKnobMoves()
{
    SizedSwitch toggle;
    tick(toggle);
    releaseMouse(toggle);
    QVERIFY(!toggle.property("timerId").isValid());
    for (int i = 0; i < 4; ++i) {
        tick(toggle);
    }
    releaseMouse(toggle);
    QVERIFY(toggle.property("timerId").toInt() > 0);
}

void TestSwitch::secondStartBeforeTheFirstStepLeavesATimerBehind()
{
    SizedSwitch toggle;
    QSignalSpy changed(&toggle, &OlvSwitch::changed);
    releaseMouse(toggle);
    const int first = toggle.property("timerId").toInt();
    releaseMouse(toggle);
    const int second = toggle.property("timerId").toInt();
    QVERIFY(first != second);

    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^QObject::killTimer")));
    QTRY_COMPARE(changed.count(), 1);
    QCOMPARE(toggle.property("timerId").toInt(), second);
    // the first timer goes on to flip it back
    QTRY_COMPARE(changed.count(), 2);
    QCOMPARE(toggle.getValue(), QVariant(false));
    toggle.killTimer(first);
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

void TestSwitch::knobDoesNotTravelInASquareSwitch()
{
    SizedSwitch toggle({ 30, 30 });
    QSignalSpy valueChanged(&toggle, &OlvWidget::valueChanged);
    QSignalSpy changed(&toggle, &OlvSwitch::changed);
    toggle.setValue(true);
    QVERIFY(changed.wait());
    QCOMPARE(valueChanged.count(), 1);
    QCOMPARE(knobOf(toggle)->pos(), QPoint(0, 0));
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

void TestSwitch::colourSettersStoreStringsWithoutRepainting()
{
    class Painted : public SizedSwitch
    {
    public:
        int paints = 0;

    protected:
        void paintEvent(QPaintEvent *event) override
        {
            ++paints;
            SizedSwitch::paintEvent(event);
        }
    } toggle;
    toggle.show();
    QVERIFY(QTest::qWaitForWindowExposed(&toggle));
    QTest::qWait(20);
    const int before = toggle.paints;
    toggle.setColorOpen(QColor(1, 2, 3, 4));
    toggle.setColorClose(QColor(5, 6, 7));
    QCOMPARE(toggle.property("openColor"), QVariant(QStringLiteral("1,2,3")));
    QCOMPARE(toggle.property("closeColor"), QVariant(QStringLiteral("5,6,7")));
    QTest::qWait(20);
    QCOMPARE(toggle.paints, before);
}

void TestSwitch::knobColourRepaintsTheKnobAlone()
{
    SizedSwitch toggle;
    toggle.setColorRound(QColor(9, 8, 7, 100));
    QCOMPARE(knobOf(toggle)->color(), QColor(9, 8, 7, 100));
    toggle.show();
    QVERIFY(QTest::qWaitForWindowExposed(&toggle));

    class PaintCounter : public QObject
    {
    public:
        int paints = 0;
        bool eventFilter(QObject *watched, QEvent *event) override
        {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return QObject::eventFilter(watched, event);
        }
    } counter;
    knobOf(toggle)->installEventFilter(&counter);
    toggle.setColorRound(Qt::red);
    QTRY_COMPARE(counter.paints, 1);
}

void TestSwitch::getValueReturnsThePropertyAsItStands()
{
    OlvSwitch toggle;
    toggle.setProperty("switch", QStringLiteral("on"));
    QCOMPARE(toggle.getValue(), QVariant(QStringLiteral("on")));
    toggle.setProperty("switch", QVariant());
    QVERIFY(!toggle.getValue().isValid());
}

void TestSwitch::survivesDeletionFromItsSignals_data()
{
    QTest::addColumn<bool>("fromChanged");
    QTest::addColumn<bool>("realTimer");
    QTest::newRow("valueChanged") << false << false;
    QTest::newRow("changed") << true << false;
    QTest::newRow("valueChanged, real timer") << false << true;
    QTest::newRow("changed, real timer") << true << true;
}

void TestSwitch::survivesDeletionFromItsSignals()
{
    QFETCH(bool, fromChanged);
    QFETCH(bool, realTimer);
    auto *parent = new QWidget;
    const QPointer<OlvSwitch> toggle(new OlvSwitch(parent));
    QSignalSpy changed(toggle, &OlvSwitch::changed);
    if (fromChanged) {
        connect(toggle, &OlvSwitch::changed, this, [=] { delete parent; });
    } else {
        connect(toggle, &OlvWidget::valueChanged, this, [=] { delete parent; });
    }
    if (realTimer) {
        toggle->setValue(true);
        QTRY_VERIFY(toggle.isNull());
    } else {
        for (int i = 0; i < 5; ++i) {
            QVERIFY(toggle);
            tick(*toggle);
        }
        QVERIFY(toggle.isNull());
    }
    QCOMPARE(changed.count(), fromChanged ? 1 : 0);
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

void TestSwitch::drawsTheTrack_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("on");
    QTest::addColumn<qreal>("ratio");
    for (const QSize size : { QSize(50, 24), QSize(51, 25), QSize(20, 20), QSize(7, 30) }) {
        for (const bool on : { false, true }) {
            for (const qreal ratio : { 1.0, 2.0 }) {
                QTest::addRow("%d x %d %s at %g", size.width(), size.height(), on ? "on" : "off",
                              ratio)
                    << size << on << ratio;
            }
        }
    }
}

void TestSwitch::drawsTheTrack()
{
    QFETCH(QSize, size);
    QFETCH(bool, on);
    QFETCH(qreal, ratio);
    SizedSwitch toggle(size);
    toggle.setProperty("switch", on);
    DrawnWidget expected(size, [=](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(on ? QColor(19, 206, 102) : QColor(220, 223, 230));
        const int radius = size.height() / 2;
        painter.drawRoundedRect(QRectF(0, 0, size.width(), size.height()), radius, radius);
    });
    COMPARE_PICTURES(pictureOf(toggle, ratio), pictureOf(expected, ratio));

    toggle.setColorOpen(QColor(10, 20, 30));
    toggle.setColorClose(QColor(10, 20, 30));
    QVERIFY(!difference(pictureOf(toggle, ratio), pictureOf(expected, ratio)).isEmpty());
}

void TestSwitch::drawsTheKnob_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<QColor>("color");
    for (const int height : { 9, 10, 24, 25, 60 }) {
        for (const QColor &color : { QColor(Qt::white), QColor(200, 10, 20, 90) }) {
            QTest::addRow("%d high, %s", height, qPrintable(color.name(QColor::HexArgb)))
                << height << color;
        }
    }
}

void TestSwitch::drawsTheKnob()
{
    QFETCH(int, height);
    QFETCH(QColor, color);
    SizedSwitch toggle({ 3 * height, height });
    toggle.setColorRound(color);
    const int inset = height / 10;
    const int diameter = height - 2 * inset;
    DrawnWidget expected({ height, height }, [=](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawEllipse(inset, inset, diameter, diameter);
    });
    for (const qreal ratio : { 1.0, 2.0 }) {
        COMPARE_PICTURES(pictureOf(*knobOf(toggle), ratio), pictureOf(expected, ratio));
    }
}

void TestSwitch::restsWithoutATimer()
{
    SizedSwitch toggle;
    QSignalSpy changed(&toggle, &OlvSwitch::changed);
    toggle.setValue(true);
    const int timer = toggle.property("timerId").toInt();
    QVERIFY(changed.wait());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^QObject::killTimer")));
    toggle.killTimer(timer); // Qt warns because it has been killed already
}

QTEST_MAIN(TestSwitch)
#include "tst_switch.moc"
