// SPDX-License-Identifier: MIT
#include "assistant.h"
#include "pointer.h"
#include "testprogram.h"

#include <OlvButton>

#include <QPointer>
#include <QSignalSpy>
#include <QTest>

namespace {

QStringList actionsOf(OlvButton &button)
{
    return accessible(&button)->actionInterface()->actionNames();
}

} // namespace

class TestAccessibleButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isCalledByItsCaption();
    void tellsWhetherItIsCheckableAndChecked();
    void hasTheActionsOfItsKind();
    void isPressed_data();
    void isPressed();
    void isPressedAsByTheMouse();
    void disabledIsNotPressed();
    void tellsOfClicks();
    void tellsOfPropertiesThatAreOverwritten_data();
    void tellsOfPropertiesThatAreOverwritten();
    void survivesItsDeletionByAListenerToAChange();
};

void TestAccessibleButton::isCalledByItsCaption()
{
    OlvButton button(QStringLiteral("Save & close"));
    QCOMPARE(nameOf(&button), QStringLiteral("Save & close"));
    button.setToolTip(QStringLiteral("Writes the file"));
    button.setText(QStringLiteral("Store"));
    QCOMPARE(nameOf(&button), QStringLiteral("Store"));
    QCOMPARE(accessible(&button)->text(QAccessible::Description),
             QStringLiteral("Writes the file"));
}

void TestAccessibleButton::tellsWhetherItIsCheckableAndChecked()
{
    OlvButton button(QStringLiteral("Bold"));
    QCOMPARE(accessible(&button)->role(), QAccessible::Button);
    QCOMPARE(accessible(&button)->role(), QAccessible::Button);
    QVERIFY(!accessible(&button)->state().checkable);
    QVERIFY(!accessible(&button)->state().checked);
    button.setCheckable(true);
    QCOMPARE(accessible(&button)->role(), QAccessible::CheckBox);
    QCOMPARE(accessible(&button)->role(), QAccessible::CheckBox);
    QVERIFY(accessible(&button)->state().checkable);
    button.setChecked(true);
    QVERIFY(accessible(&button)->state().checked);
    Pointer::enter(button);
    Pointer::press(button);
    QVERIFY(accessible(&button)->state().pressed);
    Pointer::release(button);
    QVERIFY(!accessible(&button)->state().pressed);
    QVERIFY(!accessible(&button)->state().checked);
}

void TestAccessibleButton::hasTheActionsOfItsKind()
{
    OlvButton button(QStringLiteral("Bold"));
    QCOMPARE(actionsOf(button), QStringList{ press() });
    button.setCheckable(true);
    QCOMPARE(actionsOf(button), (QStringList{ toggle(), press() }));
    button.setFocusPolicy(Qt::StrongFocus);
    QCOMPARE(actionsOf(button),
             (QStringList{ toggle(), press(), QAccessibleActionInterface::setFocusAction() }));
    button.setEnabled(false);
    QCOMPARE(actionsOf(button), QStringList());
}

void TestAccessibleButton::isPressed_data()
{
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<QString>("action");
    QTest::addColumn<QStringList>("signalled");
    QTest::newRow("plain") << false << false << press() << QStringList{ QStringLiteral("clicked") };
    QTest::newRow("checked for good")
        << false << true << press() << QStringList{ QStringLiteral("clicked") };
    for (const QString &action : { press(), toggle() }) {
        QTest::addRow("%s checks", qPrintable(action))
            << true << false << action
            << QStringList{ QStringLiteral("clicked"), QStringLiteral("toggled 1") };
        QTest::addRow("%s unchecks", qPrintable(action))
            << true << true << action
            << QStringList{ QStringLiteral("clicked"), QStringLiteral("toggled 0") };
    }
}

void TestAccessibleButton::isPressed()
{
    QFETCH(const bool, checkable);
    QFETCH(const bool, checked);
    QFETCH(const QString, action);
    QFETCH(const QStringList, signalled);
    OlvButton button(QStringLiteral("Bold"));
    button.setCheckable(checkable);
    button.setChecked(checked);
    QStringList record;
    connect(&button, &OlvButton::clicked, this, [&] { record << QStringLiteral("clicked"); });
    connect(&button, &OlvButton::toggled, this,
            [&](bool on) { record << QStringLiteral("toggled %1").arg(on); });

    QVERIFY(act(&button, action));
    QCOMPARE(record, signalled);
    QCOMPARE(button.isChecked(), checkable ? !checked : checked);
    QCOMPARE(button.property("state").toString(), QStringLiteral("init"));
}

void TestAccessibleButton::isPressedAsByTheMouse()
{
    class OwnButton : public OlvButton
    {
    public:
        int releases = 0;

    protected:
        void mouseReleaseEvent(QMouseEvent *event) override
        {
            ++releases;
            OlvButton::mouseReleaseEvent(event);
        }
    };
    OwnButton button;
    button.setCheckable(true);
    connect(&button, &OlvButton::clicked, this, [&] { button.setChecked(true); });
    QSignalSpy toggled(&button, &OlvButton::toggled);
    const auto pressed = [&](int releases) {
        return button.releases == releases && toggled.count() == releases
            && !toggled.last().at(0).toBool() && !button.isChecked();
    };
    Pointer::enter(button);
    Pointer::click(button);
    Pointer::leave(button);
    QVERIFY(pressed(1));
    QVERIFY(act(&button, press()));
    QVERIFY(pressed(2));
    QVERIFY(act(&button, toggle()));
    QVERIFY(pressed(3));
    QCOMPARE(button.property("hovered"), QVariant(false));
}

void TestAccessibleButton::disabledIsNotPressed()
{
    OlvButton button(QStringLiteral("Save"));
    QSignalSpy clicked(&button, &OlvButton::clicked);
    button.setEnabled(false);
    accessible(&button)->actionInterface()->doAction(press());
    QCOMPARE(clicked.count(), 0);
    button.setEnabled(true);
    // not checkable, so that there is nothing to toggle
    accessible(&button)->actionInterface()->doAction(toggle());
    accessible(&button)->actionInterface()->doAction(QStringLiteral("none"));
    QCOMPARE(clicked.count(), 0);
}

void TestAccessibleButton::tellsOfClicks()
{
    Assistant assistant;
    OlvButton button(QStringLiteral("Bold"));
    button.show();
    button.setCheckable(true);
    QCOMPARE(assistant.heardOf(&button), QStringList{ QStringLiteral("state checkable") });
    Pointer::click(button);
    QCOMPARE(assistant.heardOf(&button),
             (QStringList{ QStringLiteral("state pressed"), QStringLiteral("state pressed"),
                           QStringLiteral("state checked") }));
    Pointer::leave(button);
    QCOMPARE(assistant.heardOf(&button), QStringList());
    QVERIFY(act(&button, toggle()));
    QCOMPARE(assistant.heardOf(&button),
             (QStringList{ QStringLiteral("state pressed"), QStringLiteral("state pressed"),
                           QStringLiteral("state checked") }));
}

void TestAccessibleButton::tellsOfPropertiesThatAreOverwritten_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("told");
    QTest::newRow("caption") << QByteArray("content") << QVariant(QStringLiteral("Store"))
                             << QStringLiteral("name Store");
    QTest::newRow("checked") << QByteArray("isChecked") << QVariant(true)
                             << QStringLiteral("state checked");
    QTest::newRow("checked by a number")
        << QByteArray("isChecked") << QVariant(1) << QStringLiteral("state checked");
    QTest::newRow("checkable") << QByteArray("isCheckable") << QVariant(true)
                               << QStringLiteral("state checkable");
    QTest::newRow("pressed") << QByteArray("state") << QVariant(QStringLiteral("click"))
                             << QStringLiteral("state pressed");
}

void TestAccessibleButton::tellsOfPropertiesThatAreOverwritten()
{
    QFETCH(const QByteArray, property);
    QFETCH(const QVariant, value);
    QFETCH(const QString, told);
    Assistant assistant;
    OlvButton button(QStringLiteral("Save"));
    button.show();
    button.setProperty(property.constData(), value);
    QCOMPARE(assistant.heardOf(&button), QStringList{ told });
}

void TestAccessibleButton::survivesItsDeletionByAListenerToAChange()
{
    const Assistant assistant;
    static QPointer<OlvButton> button;
    button = new OlvButton(QStringLiteral("Save"));
    QVERIFY(accessible(button));
    const auto before = QAccessible::installUpdateHandler([](QAccessibleEvent *event) {
        if (event->type() == QAccessible::NameChanged) {
            delete button;
        }
    });
    button->setProperty("content", QStringLiteral("Keep"));
    QAccessible::installUpdateHandler(before);
    QVERIFY(button.isNull());
}

ADD_TEST(TestAccessibleButton, QApplication)
#include "tst_accessiblebutton.moc"
