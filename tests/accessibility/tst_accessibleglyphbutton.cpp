// SPDX-License-Identifier: MIT
#include "assistant.h"
#include "testprogram.h"

#include <OlvControlBar>
#include <OlvLineEdit>
#include <OlvSimpleIconButton>

#include <QButtonGroup>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

namespace {

/** A bar with two buttons of the application's, and its buttons in their order. */
class Bar : public OlvControlBar
{
public:
    explicit Bar(QWidget *parent = nullptr)
        : OlvControlBar({ u'\uf2d2', u'\uf103', u'\uf102', u'\uf068', u'\uf065', u'\uf00d',
                          u'\uf066', u'\uf013', u'\uf0c9' },
                        parent, { QStringLiteral("Settings"), QStringLiteral("Menu") })
        , changes(this, &OlvControlBar::changed)
        , customs(this, &OlvControlBar::custom)
    { }
    QPushButton *button(int place) const
    {
        return findChildren<QPushButton *>().at(place);
    }
    QPushButton *windowButton(WindowState state) const
    {
        return button(2 + state);
    }

    QSignalSpy changes;
    QSignalSpy customs;
};

} // namespace

Q_DECLARE_METATYPE(OlvControlBar::WindowState)

class TestAccessibleGlyphButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void buttonsOfABarAreCalledByTheirToolTips();
    void buttonsOfABarAreCalledAsTheApplicationSays();
    void buttonsOfABarAreKnownWithoutTheirIndex();
    void buttonsOfABarAreKnownInADisabledWindow();
    void buttonsOfABarArePressed();
    void buttonsOfABarAreToggled();
    void maximiseTellsItsNewName();
    void exclusionIsTold();
    void survivesDeletionByAListenerToItsGlyph();
    void otherPushButtonsAreAsQtHasThem();
    void glyphsAreNoNames_data();
    void glyphsAreNoNames();
    void readableCaptionsAreNames();
    void toolTipsAreReadWithoutTheirMarkUp();
    void tellsItsKey();
    void isOneOfSeveral();
    void opensItsMenu();
    void isPressedWhileItIsDown();
    void togglesItsGlyph();
    void showsThePassword();
};

void TestAccessibleGlyphButton::initTestCase()
{
    qRegisterMetaType<OlvControlBar::WindowState>("OlvControlBar::WindowState");
}

void TestAccessibleGlyphButton::buttonsOfABarAreCalledByTheirToolTips()
{
    const Bar bar;
    QStringList names;
    QAccessibleInterface *interface = accessible(const_cast<Bar *>(&bar));
    for (int i = 0; i < interface->childCount(); ++i) {
        QCOMPARE(interface->child(i)->text(QAccessible::Description), QString());
        names << interface->child(i)->text(QAccessible::Name);
    }
    QCOMPARE(
        names,
        (QStringList{ QStringLiteral("Settings"), QStringLiteral("Menu"), QStringLiteral("悬浮"),
                      QStringLiteral("置底"), QStringLiteral("置顶"), QStringLiteral("最小化"),
                      QStringLiteral("最大化"), QStringLiteral("关闭") }));
}

void TestAccessibleGlyphButton::buttonsOfABarAreCalledAsTheApplicationSays()
{
    const Bar bar;
    QPushButton *button = bar.windowButton(OlvControlBar::Max);
    button->setAccessibleName(QStringLiteral("Maximise"));
    QCOMPARE(nameOf(button), QStringLiteral("Maximise"));
    QVERIFY(act(button, toggle()));
    QCOMPARE(nameOf(button), QStringLiteral("Maximise"));
    QCOMPARE(accessible(button)->text(QAccessible::Description), QStringLiteral("还原"));
    button->setAccessibleName(QString());
    QCOMPARE(nameOf(button), QStringLiteral("还原"));
}

void TestAccessibleGlyphButton::buttonsOfABarAreKnownWithoutTheirIndex()
{
    const Bar bar;
    QPushButton *button = bar.windowButton(OlvControlBar::Close);
    button->setProperty("index", QVariant());
    QCOMPARE(nameOf(button), QStringLiteral("关闭"));
}

void TestAccessibleGlyphButton::buttonsOfABarAreKnownInADisabledWindow()
{
    // there Qt's constructors already tell of a change, of a widget that is no button yet
    const Assistant assistant;
    QWidget window;
    window.setEnabled(false);
    const Bar bar(&window);
    QCOMPARE(nameOf(bar.windowButton(OlvControlBar::Close)), QStringLiteral("关闭"));
}

void TestAccessibleGlyphButton::buttonsOfABarArePressed()
{
    Bar bar;
    QVERIFY(act(bar.windowButton(OlvControlBar::Close), press()));
    QVERIFY(!act(bar.windowButton(OlvControlBar::Close), toggle()));
    QCOMPARE(bar.changes.count(), 1);
    QCOMPARE(bar.changes.at(0).at(0).value<OlvControlBar::WindowState>(), OlvControlBar::Close);
    QVERIFY(act(bar.button(1), press()));
    QCOMPARE(bar.customs.count(), 1);
    QCOMPARE(bar.customs.at(0).at(0).toInt(), 1);

    bar.setEnabled(false);
    QVERIFY(!act(bar.button(1), press()));
}

void TestAccessibleGlyphButton::buttonsOfABarAreToggled()
{
    Bar bar;
    QPushButton *top = bar.windowButton(OlvControlBar::Top);
    QVERIFY(accessible(top)->state().checkable);
    for (const bool on : { true, false }) {
        QVERIFY(act(top, toggle()));
        QCOMPARE(accessible(top)->state().checked, on);
        QCOMPARE(bar.changes.count(), 1);
        QCOMPARE(bar.changes.takeFirst().at(1).toBool(), on);
    }
}

void TestAccessibleGlyphButton::maximiseTellsItsNewName()
{
    Assistant assistant;
    QWidget window;
    const Bar bar(&window);
    window.show();
    QPushButton *button = bar.windowButton(OlvControlBar::Max);
    assistant.heardOf(button);
    QVERIFY(act(button, press()));
    const QStringList told = assistant.heardOf(button);
    QVERIFY(told.contains(QStringLiteral("state checked")));
    QCOMPARE(told.last(), QStringLiteral("name 还原"));
    QCOMPARE(told.count(QStringLiteral("state checked")), 1);
}

void TestAccessibleGlyphButton::exclusionIsTold()
{
    Assistant assistant;
    QWidget window;
    const Bar bar(&window);
    window.show();
    QVERIFY(act(bar.windowButton(OlvControlBar::Top), toggle()));
    assistant.heardOf(bar.windowButton(OlvControlBar::Top));
    QVERIFY(act(bar.windowButton(OlvControlBar::Bottom), toggle()));
    QCOMPARE(assistant.heardOf(bar.windowButton(OlvControlBar::Top)),
             QStringList{ QStringLiteral("state checked") });
    QVERIFY(!accessible(bar.windowButton(OlvControlBar::Top))->state().checked);
}

void TestAccessibleGlyphButton::survivesDeletionByAListenerToItsGlyph()
{
    const Assistant assistant;
    static QPointer<Bar> bar;
    bar = new Bar;
    QPushButton *button = bar->windowButton(OlvControlBar::Max);
    const auto before = QAccessible::installUpdateHandler([](QAccessibleEvent *event) {
        if (event->type() == QAccessible::NameChanged) {
            delete bar;
        }
    });
    const bool isPressed = act(button, press());
    QAccessible::installUpdateHandler(before);
    QVERIFY(isPressed);
    QVERIFY(!bar);
}

void TestAccessibleGlyphButton::otherPushButtonsAreAsQtHasThem()
{
    Bar bar;
    for (QWidget *parent : { static_cast<QWidget *>(nullptr), static_cast<QWidget *>(&bar) }) {
        QPushButton button(QStringLiteral("Save"), parent);
        button.setProperty("index", 0);
        button.setToolTip(QStringLiteral("Writes the file"));
        QCOMPARE(nameOf(&button), QStringLiteral("Save"));
    }
}

void TestAccessibleGlyphButton::glyphsAreNoNames_data()
{
    QTest::addColumn<QString>("caption");
    QTest::newRow("none") << QString();
    QTest::newRow("glyph") << QString(QChar(0xf006));
    QTest::newRow("glyph and a blank") << QString(QChar(0xf006)) + QLatin1Char(' ');
    const char32_t supplementary[] = { 0xf0001, 0x10fffd };
    QTest::newRow("glyphs beyond 16 bits") << QString::fromUcs4(supplementary, 2);
}

void TestAccessibleGlyphButton::glyphsAreNoNames()
{
    QFETCH(const QString, caption);
    QWidget parent;
    OlvSimpleIconButton button(caption, QFont(), &parent);
    QCOMPARE(nameOf(&button), QString());
    button.setToolTip(QStringLiteral("Favourite"));
    QCOMPARE(nameOf(&button), QStringLiteral("Favourite"));
}

void TestAccessibleGlyphButton::readableCaptionsAreNames()
{
    OlvSimpleIconButton button(QStringLiteral("B"), QFont());
    QCOMPARE(nameOf(&button), QStringLiteral("B"));
    QVERIFY(accessible(&button)->state().checkable);
}

void TestAccessibleGlyphButton::toolTipsAreReadWithoutTheirMarkUp()
{
    OlvSimpleIconButton button(QChar(0xf006), QFont());
    button.setToolTip(QStringLiteral("<b>Find</b> &amp; replace"));
    QCOMPARE(nameOf(&button), QStringLiteral("Find & replace"));
    QCOMPARE(accessible(&button)->text(QAccessible::Description), QString());
    button.setAccessibleName(QStringLiteral("Find"));
    QCOMPARE(accessible(&button)->text(QAccessible::Description), QStringLiteral("Find & replace"));
    button.setToolTip(QStringLiteral("a < b"));
    QCOMPARE(accessible(&button)->text(QAccessible::Description), QStringLiteral("a < b"));
}

void TestAccessibleGlyphButton::tellsItsKey()
{
    OlvSimpleIconButton button(QStringLiteral("&Save && &close"), QFont());
    const auto keys = [&] {
        return accessible(&button)->actionInterface()->keyBindingsForAction(press());
    };
    QCOMPARE(nameOf(&button), QStringLiteral("Save & close"));
    QCOMPARE(accessible(&button)->text(QAccessible::Accelerator), QStringLiteral("Alt+S"));
    QCOMPARE(keys(), QStringList{ QStringLiteral("Alt+S") });
    button.setShortcut(QKeySequence(QStringLiteral("Ctrl+S")));
    QCOMPARE(accessible(&button)->text(QAccessible::Accelerator), QStringLiteral("Ctrl+S"));
    QCOMPARE(keys(), QStringList{ QStringLiteral("Ctrl+S") });
    button.setShortcut(QKeySequence());
    QCOMPARE(keys(), QStringList());
}

void TestAccessibleGlyphButton::isOneOfSeveral()
{
    OlvSimpleIconButton left(QStringLiteral("left"), QFont());
    OlvSimpleIconButton right(QStringLiteral("right"), QFont());
    QButtonGroup group;
    group.addButton(&left);
    group.addButton(&right);
    QCOMPARE(accessible(&left)->role(), QAccessible::RadioButton);
    QVERIFY(act(&right, toggle()));
    QVERIFY(accessible(&right)->state().checked);
    group.setExclusive(false);
    QCOMPARE(accessible(&left)->role(), QAccessible::CheckBox);
    group.removeButton(&left);
    left.setAutoExclusive(true);
    QCOMPARE(accessible(&left)->role(), QAccessible::RadioButton);
    left.setCheckable(false);
    QCOMPARE(accessible(&left)->role(), QAccessible::Button);
}

void TestAccessibleGlyphButton::opensItsMenu()
{
    OlvSimpleIconButton button(QStringLiteral("More"), QFont());
    QVERIFY(!accessible(&button)->state().hasPopup);
    QMenu menu;
    menu.addAction(QStringLiteral("Print"));
    button.setMenu(&menu);
    QCOMPARE(accessible(&button)->role(), QAccessible::ButtonMenu);
    QVERIFY(accessible(&button)->state().hasPopup);
    QVERIFY(!act(&button, press()));
    bool isShown = false;
    connect(&menu, &QMenu::aboutToShow, &menu, [&] {
        isShown = true;
        QTimer::singleShot(0, &menu, &QMenu::close); // the menu waits for its user
    });
    button.show();
    // what Qt does for a menu, and its offscreen platform cannot
    QTest::ignoreMessage(QtWarningMsg, "This plugin does not support raise()");
    QTest::ignoreMessage(QtWarningMsg, "This plugin does not support grabbing the keyboard");
    QVERIFY(act(&button, QAccessibleActionInterface::showMenuAction()));
    QVERIFY(isShown);
    button.setEnabled(false);
    QVERIFY(!act(&button, QAccessibleActionInterface::showMenuAction()));
}

void TestAccessibleGlyphButton::isPressedWhileItIsDown()
{
    OlvSimpleIconButton button(QStringLiteral("Save"), QFont());
    QVERIFY(!accessible(&button)->state().pressed);
    button.setDown(true);
    QVERIFY(accessible(&button)->state().pressed);
}

void TestAccessibleGlyphButton::togglesItsGlyph()
{
    OlvSimpleIconButton button(QStringLiteral("off"), QFont());
    button.setToggle(QStringLiteral("on"));
    QVERIFY(act(&button, toggle()));
    QCOMPARE(button.text(), QStringLiteral("on"));
    QVERIFY(accessible(&button)->state().checked);
    QVERIFY(act(&button, press()));
    QCOMPARE(button.text(), QStringLiteral("off"));
}

void TestAccessibleGlyphButton::showsThePassword()
{
    OlvLineEdit edit;
    edit.setPassWord(true);
    auto *button = edit.findChild<OlvSimpleIconButton *>();
    auto *text = edit.findChild<QLineEdit *>();
    QCOMPARE(nameOf(button), QStringLiteral("显示密码"));
    QVERIFY(act(button, toggle()));
    QCOMPARE(text->echoMode(), QLineEdit::Normal);
    QVERIFY(accessible(button)->state().checked);
    button->setToolTip(QStringLiteral("Show the password"));
    QCOMPARE(nameOf(button), QStringLiteral("Show the password"));
}

ADD_TEST(TestAccessibleGlyphButton, QApplication)
#include "tst_accessibleglyphbutton.moc"
