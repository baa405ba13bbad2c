// SPDX-License-Identifier: MIT
#include "assistant.h"
#include "mouse.h"
#include "testprogram.h"

#include <OlvSwitch>

#include <QAbstractEventDispatcher>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

namespace {

bool isResting(OlvSwitch &widget)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(&widget).isEmpty();
}

} // namespace

class TestAccessibleSwitch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isCheckableAndChecked();
    void isToggled_data();
    void isToggled();
    void ignoresTogglesUntilItHasSwitched();
    void ignoresTogglesBehindAClick();
    void isToggledBesideOtherTimers();
    void disabledIsNotToggled();
    void survivesItsDeletionByAListenerWhenItSwitches();
    void tellsWhenItHasSwitched();
    void tellsOfAnOverwrittenProperty();
};

void TestAccessibleSwitch::isCheckableAndChecked()
{
    OlvSwitch widget;
    QVERIFY(accessible(&widget)->state().checkable);
    QVERIFY(!accessible(&widget)->state().checked);
    widget.setProperty("switch", true);
    QVERIFY(accessible(&widget)->state().checked);
    QCOMPARE(accessible(&widget)->actionInterface()->actionNames(),
             (QStringList{ toggle(), press() }));
}

void TestAccessibleSwitch::isToggled_data()
{
    QTest::addColumn<QString>("action");
    QTest::newRow("toggle") << toggle();
    QTest::newRow("press") << press();
}

void TestAccessibleSwitch::isToggled()
{
    QFETCH(const QString, action);
    OlvSwitch widget;
    QSignalSpy changed(&widget, &OlvSwitch::changed);
    for (const bool on : { true, false }) {
        QVERIFY(act(&widget, action));
        QVERIFY(changed.wait(20000));
        QCOMPARE(changed.takeFirst().at(0).toBool(), on);
        QCOMPARE(accessible(&widget)->state().checked, on);
        QVERIFY(isResting(widget));
    }
}

void TestAccessibleSwitch::ignoresTogglesUntilItHasSwitched()
{
    OlvSwitch widget;
    QSignalSpy changed(&widget, &OlvSwitch::changed);
    QVERIFY(act(&widget, toggle()));
    QVERIFY(act(&widget, toggle()));
    QTRY_VERIFY_WITH_TIMEOUT(widget.property("moveCount").toInt() > 0, 20000);
    QVERIFY(act(&widget, toggle()));
    QVERIFY(changed.wait(20000));
    QVERIFY(isResting(widget));
    QVERIFY(widget.getValue().toBool());
}

void TestAccessibleSwitch::ignoresTogglesBehindAClick()
{
    OlvSwitch widget;
    QSignalSpy changed(&widget, &OlvSwitch::changed);
    Mouse::release(&widget);
    QVERIFY(act(&widget, toggle()));
    QVERIFY(changed.wait(20000));
    QVERIFY(isResting(widget));
    QVERIFY(widget.getValue().toBool());
}

void TestAccessibleSwitch::isToggledBesideOtherTimers()
{
    OlvSwitch widget;
    QVERIFY(widget.startTimer(3600 * 1000));
    QSignalSpy changed(&widget, &OlvSwitch::changed);
    QVERIFY(act(&widget, toggle()));
    QVERIFY(changed.wait(20000));
    QVERIFY(widget.getValue().toBool());
}

void TestAccessibleSwitch::disabledIsNotToggled()
{
    OlvSwitch widget;
    widget.setEnabled(false);
    accessible(&widget)->actionInterface()->doAction(toggle());
    QVERIFY(isResting(widget));
}

void TestAccessibleSwitch::survivesItsDeletionByAListenerWhenItSwitches()
{
    const Assistant assistant;
    static QPointer<OlvSwitch> widget;
    widget = new OlvSwitch;
    widget->show();
    const auto before = QAccessible::installUpdateHandler([](QAccessibleEvent *event) {
        const bool isChecked = event->type() == QAccessible::StateChanged
            && static_cast<QAccessibleStateChangeEvent *>(event)->changedStates().checked;
        if (isChecked && event->object() == widget) {
            delete widget;
        }
    });
    const bool isToggled = act(widget, toggle());
    const bool isGone = QTest::qWaitFor([] { return !widget; }, 20000);
    QAccessible::installUpdateHandler(before);
    QVERIFY(isToggled);
    QVERIFY(isGone);
}

void TestAccessibleSwitch::tellsWhenItHasSwitched()
{
    Assistant assistant;
    OlvSwitch widget;
    widget.show();
    QStringList toldBefore;
    connect(&widget, &OlvSwitch::valueChanged, this,
            [&] { toldBefore = assistant.heardOf(&widget); });
    QSignalSpy changed(&widget, &OlvSwitch::changed);
    QVERIFY(act(&widget, toggle()));
    QCOMPARE(assistant.heardOf(&widget), QStringList());
    QVERIFY(changed.wait(20000));
    QCOMPARE(toldBefore, QStringList{ QStringLiteral("state checked") });
    QCOMPARE(assistant.heardOf(&widget), QStringList());
}

void TestAccessibleSwitch::tellsOfAnOverwrittenProperty()
{
    Assistant assistant;
    OlvSwitch widget;
    widget.show();
    widget.setProperty("switch", true);
    QCOMPARE(assistant.heardOf(&widget), QStringList{ QStringLiteral("state checked") });
}

ADD_TEST(TestAccessibleSwitch, QApplication)
#include "tst_accessibleswitch.moc"
