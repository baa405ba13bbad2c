// SPDX-License-Identifier: MIT
// What Space and Enter do to buttons and tiles.
#include "notingform.h"
#include "paintwatch.h"
#include "testprogram.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTest>

namespace {

QString stateOf(const QWidget *widget)
{
    return widget->property("state").toString();
}

} // namespace

class TestFormPresses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clickAButton_data();
    void clickAButton();
    void doNotRepeat_data();
    void doNotRepeat();
    void clickOnceEvenIfHeldTogether();
    void areTakenBack_data();
    void areTakenBack();
    void areTakenBackFromADisabledButton();
    void areLeftByWhatIsNotTheirEnd();
    void leaveThePointerWhereItIs();
    void toggleACheckableButton();
    void standADeletion_data();
    void standADeletion();
};

void TestFormPresses::clickAButton_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("clicksOnRelease");
    QTest::newRow("Space") << Qt::Key_Space << true;
    QTest::newRow("Select") << Qt::Key_Select << true;
    QTest::newRow("Return") << Qt::Key_Return << false;
    QTest::newRow("Enter") << Qt::Key_Enter << false;
}

void TestFormPresses::clickAButton()
{
    QFETCH(Qt::Key, key);
    QFETCH(bool, clicksOnRelease);
    WidgetForm form;
    new OlvFormSupport(&form);
    const QSignalSpy clicked(form.save, &OlvButton::clicked);
    QVERIFY(sendKey(form.save, QEvent::KeyPress, key));
    QCOMPARE(stateOf(form.save),
             clicksOnRelease ? QStringLiteral("click") : QStringLiteral("init"));
    QCOMPARE(clicked.count(), clicksOnRelease ? 0 : 1);
    sendKey(form.save, QEvent::KeyRelease, key);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(stateOf(form.save), QStringLiteral("init"));
    QCOMPARE(form.save->property("hovered"), QVariant(false));

    QSignalSpy tileClicked(form.mail, &OlvIconButton::clicked);
    QVERIFY(sendKey(form.mail, QEvent::KeyPress, key));
    sendKey(form.mail, QEvent::KeyRelease, key);
    QCOMPARE(form.mail->getValue(), QVariant(true));
    QVERIFY(tileClicked.wait());
    QCOMPARE(tileClicked.count(), 1);
}

void TestFormPresses::doNotRepeat_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Space") << Qt::Key_Space;
    QTest::newRow("Return") << Qt::Key_Return;
}

void TestFormPresses::doNotRepeat()
{
    QFETCH(Qt::Key, key);
    NotingForm form;
    new OlvFormSupport(&form);
    const QSignalSpy clicked(form.save, &OlvButton::clicked);
    sendKey(form.save, QEvent::KeyPress, key);
    for (int i = 0; i < 3; ++i) {
        QVERIFY(sendKey(form.save, QEvent::KeyRelease, key, true) || key != Qt::Key_Space);
        QVERIFY(sendKey(form.save, QEvent::KeyPress, key, true));
    }
    sendKey(form.save, QEvent::KeyRelease, key);
    QCOMPARE(clicked.count(), 1);
    QVERIFY(form.keys.isEmpty());

    // a key that was held down before it came to the button
    sendKey(form.save, QEvent::KeyPress, key, true);
    sendKey(form.save, QEvent::KeyRelease, key);
    QCOMPARE(clicked.count(), 1);
}

void TestFormPresses::clickOnceEvenIfHeldTogether()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    const QSignalSpy clicked(form.save, &OlvButton::clicked);
    sendKey(form.save, QEvent::KeyPress, Qt::Key_Space);
    sendKey(form.save, QEvent::KeyPress, Qt::Key_Return);
    QCOMPARE(clicked.count(), 0);
    sendKey(form.save, QEvent::KeyRelease, Qt::Key_Return);
    QCOMPARE(clicked.count(), 0);
    sendKey(form.save, QEvent::KeyRelease, Qt::Key_Space);
    QCOMPARE(clicked.count(), 1);
}

void TestFormPresses::areTakenBack_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : { "Escape", "focus", "support", "feature", "leaving" }) {
        QTest::newRow(way) << QString::fromLatin1(way);
    }
}

void TestFormPresses::areTakenBack()
{
    QFETCH(QString, way);
    NotingForm form;
    auto *support = new OlvFormSupport(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    const QSignalSpy clicked(form.save, &OlvButton::clicked);
    form.save->setFocus();
    sendKey(form.save, QEvent::KeyPress, Qt::Key_Space);
    QCOMPARE(stateOf(form.save), QStringLiteral("click"));
    if (way == QLatin1String("Escape")) {
        QVERIFY(sendKey(form.save, QEvent::KeyPress, Qt::Key_Escape));
        QVERIFY(form.keys.isEmpty());
    } else if (way == QLatin1String("focus")) {
        form.name->setFocus();
    } else if (way == QLatin1String("support")) {
        delete support;
    } else if (way == QLatin1String("feature")) {
        support->setFeatures(OlvFormSupport::NaturalSizes);
    } else {
        form.save->setParent(nullptr);
    }
    QCOMPARE(stateOf(form.save), QStringLiteral("init"));
    sendKey(form.save, QEvent::KeyRelease, Qt::Key_Space);
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(form.save->property("hovered"), QVariant(false));
    if (way == QLatin1String("leaving")) {
        delete form.save;
    }
}

void TestFormPresses::areTakenBackFromADisabledButton()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    const QSignalSpy clicked(form.save, &OlvButton::clicked);
    sendKey(form.save, QEvent::KeyPress, Qt::Key_Space);
    PaintWatch watch(*form.save);
    QVERIFY(watch.showWindow());
    form.save->setEnabled(false);
    QVERIFY(watch.takeWhole() > 0);
    QCOMPARE(stateOf(form.save), QStringLiteral("init"));
    QCOMPARE(form.save->property("hovered"), QVariant(false));
    form.save->setEnabled(true);
    sendKey(form.save, QEvent::KeyRelease, Qt::Key_Space);
    QCOMPARE(clicked.count(), 0);
}

void TestFormPresses::areLeftByWhatIsNotTheirEnd()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    const QSignalSpy clicked(form.save, &OlvButton::clicked);
    sendKey(form.save, QEvent::KeyPress, Qt::Key_Space);
    QFocusEvent toMenu(QEvent::FocusOut, Qt::PopupFocusReason);
    QCoreApplication::sendEvent(form.save, &toMenu);
    QFocusEvent ofAnother(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(form.mail, &ofAnother);
    form.mail->setEnabled(false);
    QCOMPARE(stateOf(form.save), QStringLiteral("click"));
    sendKey(form.save, QEvent::KeyRelease, Qt::Key_Space);
    QCOMPARE(clicked.count(), 1);
}

void TestFormPresses::leaveThePointerWhereItIs()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(form.save, &enter);
    QTest::keyClick(form.save, Qt::Key_Space);
    QCOMPARE(stateOf(form.save), QStringLiteral("hover"));
    sendKey(form.save, QEvent::KeyPress, Qt::Key_Space);
    sendKey(form.save, QEvent::KeyPress, Qt::Key_Escape);
    QCOMPARE(stateOf(form.save), QStringLiteral("hover"));
    QCOMPARE(form.save->property("hovered"), QVariant(true));
}

void TestFormPresses::toggleACheckableButton()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    form.save->setCheckable(true);
    const QSignalSpy toggled(form.save, &OlvButton::toggled);
    QTest::keyClick(form.save, Qt::Key_Space);
    QTest::keyClick(form.save, Qt::Key_Return);
    QCOMPARE(toggled.count(), 2);
    QVERIFY(!form.save->isChecked());
}

void TestFormPresses::standADeletion_data()
{
    QTest::addColumn<QString>("victim");
    QTest::addColumn<Qt::Key>("key");
    for (const Qt::Key key : { Qt::Key_Space, Qt::Key_Return }) {
        for (const char *victim : { "button", "support", "form" }) {
            QTest::addRow("%s, %d", victim, key) << QString::fromLatin1(victim) << key;
        }
    }
}

void TestFormPresses::standADeletion()
{
    QFETCH(QString, victim);
    QFETCH(Qt::Key, key);
    const QPointer<WidgetForm> form(new WidgetForm);
    const QPointer<OlvFormSupport> support(new OlvFormSupport(form));
    const QPointer<OlvButton> button(form->save);
    connect(button, &OlvButton::clicked, this, [&] {
        if (victim == QLatin1String("button")) {
            delete button;
        } else if (victim == QLatin1String("support")) {
            delete support;
        } else {
            delete form;
        }
    });
    sendKey(button, QEvent::KeyPress, key);
    if (button) {
        sendKey(button, QEvent::KeyRelease, key);
    }
    QCOMPARE(!form, victim == QLatin1String("form"));
    if (form) {
        QVERIFY(!form->grab().isNull());
    }
    delete form;
}

ADD_TEST(TestFormPresses, QApplication)
#include "tst_formpresses.moc"
