// SPDX-License-Identifier: MIT
#include "assistant.h"
#include "testprogram.h"

#include <OlvButton>
#include <OlvIconButton>
#include <OlvSwitch>

#include <QDynamicPropertyChangeEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QTest>

class TestAccessibleNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isCalledByItsLabelOrItsToolTip();
    void saysTheToolTipOnce();
    void isNotCalledByAGlyph();
    void hasTheKeyOfItsLabelOnlyIfItTakesTheKeyboard();
    void tellsTheNameOnce();
    void tellsTheNameThatALabelGaveBeforeTheWidgetWasShown();
    void tellsTheNameThatAnotherParentGives();
    void tellsNothingWhileItIsPolished();
};

void TestAccessibleNames::isCalledByItsLabelOrItsToolTip()
{
    QWidget form;
    auto *row = new QHBoxLayout(&form);
    auto *label = new QLabel(QStringLiteral("&Wi-Fi"));
    auto *wifi = new OlvSwitch;
    row->addWidget(label);
    row->addWidget(wifi);
    QCOMPARE(nameOf(wifi), QString());
    wifi->setToolTip(QStringLiteral("the network without wires"));
    QCOMPARE(nameOf(wifi), QStringLiteral("the network without wires"));
    label->setBuddy(wifi);
    QCOMPARE(nameOf(wifi), QStringLiteral("Wi-Fi"));
    QCOMPARE(accessible(wifi)->relations().size(), 1);
}

void TestAccessibleNames::saysTheToolTipOnce()
{
    OlvSwitch wifi;
    wifi.setToolTip(QStringLiteral("the network without wires"));
    QCOMPARE(accessible(&wifi)->text(QAccessible::Description), QString());
    wifi.setAccessibleName(QStringLiteral("Wi-Fi"));
    QCOMPARE(accessible(&wifi)->text(QAccessible::Description),
             QStringLiteral("the network without wires"));
    wifi.setWhatsThis(QStringLiteral("turns it on and off"));
    QCOMPARE(accessible(&wifi)->text(QAccessible::Help), QStringLiteral("turns it on and off"));
}

void TestAccessibleNames::isNotCalledByAGlyph()
{
    OlvButton button(QString(QChar(0xf013)));
    OlvIconButton tile(QChar(0xf0e0), QString(QChar(0xf0e0)), QStringLiteral("FontAwesome"),
                       nullptr, 60, 60);
    for (QWidget *widget : { static_cast<QWidget *>(&button), static_cast<QWidget *>(&tile) }) {
        QCOMPARE(nameOf(widget), QString());
        widget->setToolTip(QStringLiteral("Settings"));
        QCOMPARE(nameOf(widget), QStringLiteral("Settings"));
    }
}

void TestAccessibleNames::hasTheKeyOfItsLabelOnlyIfItTakesTheKeyboard()
{
    QWidget form;
    QLabel label(QStringLiteral("&Wi-Fi"), &form);
    OlvSwitch wifi(&form);
    label.setBuddy(&wifi);
    QCOMPARE(accessible(&wifi)->text(QAccessible::Accelerator), QString());
    wifi.setFocusPolicy(Qt::StrongFocus);
    QCOMPARE(accessible(&wifi)->text(QAccessible::Accelerator), QStringLiteral("Alt+W"));
}

void TestAccessibleNames::tellsTheNameOnce()
{
    Assistant assistant;
    OlvButton button(QStringLiteral("Save"));
    button.show();
    assistant.heardOf(&button);
    button.setAccessibleName(QStringLiteral("Save the document"));
    button.setText(QStringLiteral("Store"));
    button.setAccessibleName(QString()); // Qt tells of both
    button.setChecked(true);
    QCOMPARE(assistant.heardOf(&button),
             (QStringList{ QStringLiteral("name Save the document"), QStringLiteral("name Store"),
                           QStringLiteral("state checked") }));
    button.setText(QStringLiteral("Keep"));
    QCOMPARE(assistant.heardOf(&button), QStringList{ QStringLiteral("name Keep") });

    OlvSwitch wifi;
    wifi.setToolTip(QStringLiteral("Wi-Fi"));
    wifi.show();
    assistant.heardOf(&wifi);
    wifi.setAccessibleName(QStringLiteral("The network"));
    wifi.setProperty("switch", true);
    wifi.setAccessibleName(QString());
    wifi.setProperty("switch", false);
    QCOMPARE(assistant.heardOf(&wifi),
             (QStringList{ QStringLiteral("name The network"), QStringLiteral("state checked"),
                           QStringLiteral("name Wi-Fi"), QStringLiteral("state checked") }));
}

void TestAccessibleNames::tellsTheNameThatALabelGaveBeforeTheWidgetWasShown()
{
    Assistant assistant;
    QWidget form;
    QLabel label(QStringLiteral("Wi-Fi"), &form);
    OlvSwitch wifi(&form);
    QVERIFY(accessible(&wifi));
    label.setBuddy(&wifi);
    assistant.heardOf(&wifi);
    form.show();
    QCOMPARE(assistant.heardOf(&wifi), QStringList{ QStringLiteral("name Wi-Fi") });
}

void TestAccessibleNames::tellsTheNameThatAnotherParentGives()
{
    Assistant assistant;
    QGroupBox box(QStringLiteral("Network"));
    OlvSwitch wifi;
    wifi.show();
    QCOMPARE(nameOf(&wifi), QString());
    assistant.heardOf(&wifi);
    wifi.setParent(&box);
    QCOMPARE(assistant.heardOf(&wifi), QStringList{ QStringLiteral("name Network") });
}

void TestAccessibleNames::tellsNothingWhileItIsPolished()
{
    QWidget form;
    OlvSwitch wifi(&form);
    Assistant assistant;
    accessible(&wifi);
    QLabel label(QStringLiteral("Wi-Fi"), &form);
    label.setBuddy(&wifi);
    assistant.heardOf(&wifi);
    // Qt's own property, which it sets while it polishes a widget for a style sheet
    QDynamicPropertyChangeEvent polished("_q_styleSheetWidgetFont");
    QCoreApplication::sendEvent(&wifi, &polished);
    QCOMPARE(assistant.heardOf(&wifi), QStringList());
    wifi.setProperty("property", 1);
    QCOMPARE(assistant.heardOf(&wifi), QStringList({ QStringLiteral("name Wi-Fi") }));
}

ADD_TEST(TestAccessibleNames, QApplication)
#include "tst_accessiblenames.moc"
