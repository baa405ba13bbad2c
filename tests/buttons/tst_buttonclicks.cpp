// SPDX-License-Identifier: MIT
#include "buttonstate.h"
#include "paintwatch.h"
#include "pointer.h"
#include "testprogram.h"

#include <OlvButton>

#include <QCursor>
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

} // namespace

class TestButtonClicks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsTheMouse_data();
    void followsTheMouse();
    void everyMouseButtonClicks();
    void doubleClickClicksTwice();
    void togglesAfterClickedWithTheStateStored();
    void repaintsBeforeEachOfItsSignals();
    void readsCheckableAndCheckedAfterClicked();
    void clickSlot_data();
    void clickSlot();
    void clickSlotLeavesTheLookAlone();
    void handlersLeaveTheEventAccepted();
};

void TestButtonClicks::followsTheMouse_data()
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

void TestButtonClicks::followsTheMouse()
{
    QFETCH(QString, events);
    QFETCH(QString, state);
    QFETCH(bool, hovered);
    QFETCH(QString, record);
    OlvButton button;
    const QStringList *recorded = recordSignals(button, this);
    Pointer::play(button, events);
    QCOMPARE(stateOf(button), state);
    QCOMPARE(button.property("hovered"), QVariant(hovered));
    QCOMPARE(recorded->join(QLatin1Char(' ')), record);
}

void TestButtonClicks::everyMouseButtonClicks()
{
    OlvButton button;
    QSignalSpy clicked(&button, &OlvButton::clicked);
    for (const Qt::MouseButton mouseButton :
         { Qt::LeftButton, Qt::RightButton, Qt::MiddleButton, Qt::BackButton }) {
        Pointer::click(button, mouseButton);
    }
    QCOMPARE(clicked.count(), 4);
}

void TestButtonClicks::doubleClickClicksTwice()
{
    OlvButton button;
    QSignalSpy clicked(&button, &OlvButton::clicked);
    Pointer::enter(button);
    QTest::mousePress(&button, Qt::LeftButton);
    QTest::mouseRelease(&button, Qt::LeftButton);
    QMouseEvent second(QEvent::MouseButtonDblClick, QPointF(5, 5), QCursor::pos(), Qt::LeftButton,
                       Qt::LeftButton, {});
    QCoreApplication::sendEvent(&button, &second);
    QCOMPARE(stateOf(button), QStringLiteral("click"));
    QTest::mouseRelease(&button, Qt::LeftButton);
    QCOMPARE(clicked.count(), 2);
}

void TestButtonClicks::togglesAfterClickedWithTheStateStored()
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

void TestButtonClicks::repaintsBeforeEachOfItsSignals()
{
    OlvButton button;
    button.setCheckable(true);
    PaintWatch watch(button);
    QVERIFY(watch.showWindow());
    Pointer::enter(button);
    Pointer::press(button);
    watch.take();
    QVector<int> repaints;
    connect(&button, &OlvButton::clicked, this, [&] { repaints.append(watch.takeWhole()); });
    connect(&button, &OlvButton::toggled, this, [&] { repaints.append(watch.takeWhole()); });
    Pointer::release(button);
    QCOMPARE(repaints, QVector<int>({ 1, 1 }));
    QCOMPARE(watch.take(), {});
    // from code the look stays as it is until the button is checked
    button.click();
    QCOMPARE(repaints, QVector<int>({ 1, 1, 0, 1 }));
}

void TestButtonClicks::readsCheckableAndCheckedAfterClicked()
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

void TestButtonClicks::clickSlot_data()
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

void TestButtonClicks::clickSlot()
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

void TestButtonClicks::clickSlotLeavesTheLookAlone()
{
    OlvButton button;
    Pointer::enter(button);
    Pointer::press(button);
    button.click();
    QCOMPARE(stateOf(button), QStringLiteral("click"));
    QCOMPARE(button.property("hovered"), QVariant(true));
}

void TestButtonClicks::handlersLeaveTheEventAccepted()
{
    QWidget parent;
    auto *button = new OlvButton(&parent);
    for (const QEvent::Type type : { QEvent::MouseButtonPress, QEvent::MouseButtonRelease }) {
        QMouseEvent event(type, QPointF(1, 1), QCursor::pos(), Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(button, &event);
        QVERIFY(event.isAccepted());
    }
}

ADD_TEST(TestButtonClicks, QApplication)
#include "tst_buttonclicks.moc"
