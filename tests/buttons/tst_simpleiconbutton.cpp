// SPDX-License-Identifier: MIT
#include "testprogram.h"

#include <OlvSimpleIconButton>

#include <QSignalSpy>
#include <QTest>

class TestSimpleIconButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsAsACheckableSquare();
    void hasItsStyleSheetWhole();
    void togglingChangesTheStyleSheetWhole();
    void toggleReadsTheGlyphsAtEachClick();
    void eachToggleAddsAConnection();
    void toggleUsesTheArgumentOfTheSignal();
    void settingTheStateFromCodeLeavesTheGlyph();
    void settingGlyphsShowsTheOneForTheState();
    void withoutToggleClicksLeaveTheCaption();
    void looksGreyAndDark();
};

void TestSimpleIconButton::startsAsACheckableSquare()
{
    QWidget parent;
    const QFont font(QStringLiteral("FontAwesome"), 17);
    auto *button = new OlvSimpleIconButton(QStringLiteral("A"), font, &parent);
    QCOMPARE(button->parentWidget(), &parent);
    QCOMPARE(button->text(), QStringLiteral("A"));
    QCOMPARE(button->font().family(), font.family());
    QCOMPARE(button->font().pointSize(), 17);
    QVERIFY(button->isCheckable());
    QVERIFY(!button->isChecked());
    QCOMPARE(button->size(), QSize(30, 30));
    QVERIFY(!button->property("deable").isValid());
    QVERIFY(!button->property("enable").isValid());
}

void TestSimpleIconButton::hasItsStyleSheetWhole()
{
    const OlvSimpleIconButton button(QStringLiteral("A"), QFont());
    QCOMPARE(
        button.styleSheet(),
        QStringLiteral("QPushButton{border:none;color:rgb(198,198,198);}QPushButton:hover{color:"
                       "rgb(32,32,32)}QPushButton:disabled{color:rgb(32,32,32)}"));
}

void TestSimpleIconButton::togglingChangesTheStyleSheetWhole()
{
    OlvSimpleIconButton button(QStringLiteral("A"), QFont());
    button.setToggle(QStringLiteral("B"));
    QCOMPARE(
        button.styleSheet(),
        QStringLiteral("QPushButton{border:none;color:rgb(184,186,188);}QPushButton:hover{color:"
                       "rgb(32,32,32)}QPushButton:checked{color:rgb(32,32,32)}"));
    QCOMPARE(button.property("deable"), QVariant(QStringLiteral("A")));
    QCOMPARE(button.property("enable"), QVariant(QStringLiteral("B")));
    QCOMPARE(button.text(), QStringLiteral("A"));
}

void TestSimpleIconButton::toggleReadsTheGlyphsAtEachClick()
{
    OlvSimpleIconButton button(QStringLiteral("A"), QFont());
    button.setToggle(QStringLiteral("B"));
    button.setTextIcon(QStringLiteral("C"), QStringLiteral("D"));
    QCOMPARE(button.text(), QStringLiteral("C"));
    button.click();
    QCOMPARE(button.text(), QStringLiteral("D"));
    button.setProperty("deable", QStringLiteral("E"));
    button.click();
    QCOMPARE(button.text(), QStringLiteral("E"));
}

void TestSimpleIconButton::eachToggleAddsAConnection()
{
    class Counted : public OlvSimpleIconButton
    {
    public:
        using OlvSimpleIconButton::OlvSimpleIconButton;
        int clickedReceivers() const
        {
            return receivers(SIGNAL(clicked(bool)));
        }
    } button(QStringLiteral("A"), QFont());
    QCOMPARE(button.clickedReceivers(), 0);
    button.setToggle(QStringLiteral("B"));
    QCOMPARE(button.clickedReceivers(), 1);
    button.setToggle(QStringLiteral("B"));
    QCOMPARE(button.clickedReceivers(), 2);
    button.setTextIcon(QStringLiteral("A"), QStringLiteral("B"));
    QCOMPARE(button.clickedReceivers(), 2);
}

void TestSimpleIconButton::toggleUsesTheArgumentOfTheSignal()
{
    OlvSimpleIconButton button(QStringLiteral("A"), QFont());
    // connected first, so that the state is another by the time the glyph is chosen
    connect(&button, &QPushButton::clicked, &button, [&] { button.setChecked(false); });
    button.setToggle(QStringLiteral("B"));
    button.click();
    QVERIFY(!button.isChecked());
    QCOMPARE(button.text(), QStringLiteral("B"));
}

void TestSimpleIconButton::settingTheStateFromCodeLeavesTheGlyph()
{
    OlvSimpleIconButton button(QStringLiteral("A"), QFont());
    button.setToggle(QStringLiteral("B"));
    button.setChecked(true);
    QCOMPARE(button.text(), QStringLiteral("A"));
    button.click();
    QCOMPARE(button.text(), QStringLiteral("A"));
    button.click();
    QCOMPARE(button.text(), QStringLiteral("B"));
}

void TestSimpleIconButton::settingGlyphsShowsTheOneForTheState()
{
    OlvSimpleIconButton button(QStringLiteral("A"), QFont());
    button.setChecked(true);
    button.setTextIcon(QStringLiteral("X"), QStringLiteral("Y"));
    QCOMPARE(button.text(), QStringLiteral("Y"));
    button.setChecked(false);
    button.setTextIcon(QStringLiteral("X"), QStringLiteral("Y"));
    QCOMPARE(button.text(), QStringLiteral("X"));
    QCOMPARE(button.property("deable"), QVariant(QStringLiteral("X")));
    QCOMPARE(button.property("enable"), QVariant(QStringLiteral("Y")));
}

void TestSimpleIconButton::withoutToggleClicksLeaveTheCaption()
{
    OlvSimpleIconButton button(QStringLiteral("A"), QFont());
    button.setTextIcon(QStringLiteral("X"), QStringLiteral("Y"));
    QSignalSpy clicked(&button, &QPushButton::clicked);
    button.click();
    QCOMPARE(clicked.first().first().toBool(), true);
    QCOMPARE(button.text(), QStringLiteral("X"));
}

void TestSimpleIconButton::looksGreyAndDark()
{
    // a full block fills its cell, so that a pixel in the middle has the colour of the text
    const auto colorOf = [](OlvSimpleIconButton &button) {
        const QImage picture = button.grab().toImage();
        return QColor(picture.pixel(picture.rect().center()));
    };
    OlvSimpleIconButton button(QStringLiteral("█"), QFont(QStringLiteral("DejaVu Sans"), 20));
    QCOMPARE(colorOf(button), QColor(198, 198, 198));
    button.setEnabled(false);
    QCOMPARE(colorOf(button), QColor(32, 32, 32));
    button.setEnabled(true);
    button.setToggle(QStringLiteral("█"));
    QCOMPARE(colorOf(button), QColor(184, 186, 188));
    button.setEnabled(false);
    QCOMPARE(colorOf(button), QColor(184, 186, 188));
    button.setEnabled(true);
    button.setChecked(true);
    QCOMPARE(colorOf(button), QColor(32, 32, 32));
}

ADD_TEST(TestSimpleIconButton, QApplication)
#include "tst_simpleiconbutton.moc"
