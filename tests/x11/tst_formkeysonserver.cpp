// SPDX-License-Identifier: MIT
#include "keyboard.h"
#include "serverform.h"
#include "sliderknob.h"
#include "testprogram.h"

#include <QApplication>
#include <QHash>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QSignalSpy>

#include <algorithm>
#include <functional>
#include <memory>

using Find = std::function<QWidget *(const ServerForm &dialog)>;
Q_DECLARE_METATYPE(Find)

namespace {

/** Counts the repetitions of held keys that come to a widget, and what Qt takes for releases. */
class RepetitionWatch : public QObject
{
public:
    int repetitions = 0;
    int releases = 0;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isRelease = event->type() == QEvent::KeyRelease;
        if (isRelease || event->type() == QEvent::KeyPress) {
            const bool isRepetition = static_cast<QKeyEvent *>(event)->isAutoRepeat();
            repetitions += isRepetition ? 1 : 0;
            releases += isRelease && !isRepetition ? 1 : 0;
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

/** A form that is worked through with the keyboard of the server alone, in either direction. */
class TestFormKeysOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();
    void cleanup();
    void tabGoesRound();
    void shiftAndTabGoBack();
    void lettersReachALineEditAtOnce();
    void mnemonicsLeadToTheirWidgets_data();
    void mnemonicsLeadToTheirWidgets();
    void keysClickButtons_data();
    void keysClickButtons();
    void repetitionsDoNotClick();
    void escapeTakesAPressBack();
    void escapeClosesTheDialog();
    void spaceFlipsTheSwitch();
    void keysMoveTheSlider_data();
    void keysMoveTheSlider();
    void arrowsMoveThroughAGrid();
    void combinationsReachTheShortcutEdit();

private:
    void focus(QWidget *widget)
    {
        widget->setFocus();
        QTRY_COMPARE(QApplication::focusWidget(), widget);
    }

    std::unique_ptr<Keyboard> m_keys;
    std::unique_ptr<ServerForm> m_dialog;
};

void TestFormKeysOnServer::initTestCase_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void TestFormKeysOnServer::init()
{
    QFETCH_GLOBAL(Qt::LayoutDirection, direction);
    QGuiApplication::setLayoutDirection(direction);
    m_keys = std::make_unique<Keyboard>();
    QVERIFY(m_keys->isValid());
    m_dialog = std::make_unique<ServerForm>();
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get(), patience));
    // the labels are at the side that a line begins at
    const QWidget *label = m_dialog->form->rows()->labelForField(m_dialog->form->name);
    QCOMPARE(label->x() < m_dialog->form->name->x(), direction == Qt::LeftToRight);
}

void TestFormKeysOnServer::cleanup()
{
    m_dialog.reset();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void TestFormKeysOnServer::tabGoesRound()
{
    const QWidgetList stops = m_dialog->stops();
    focus(stops.last());
    for (QWidget *stop : stops) {
        m_keys->click(Symbol::tab);
        QTRY_COMPARE(QApplication::focusWidget(), stop);
    }
}

void TestFormKeysOnServer::shiftAndTabGoBack()
{
    QWidgetList stops = m_dialog->stops();
    focus(stops.first());
    std::reverse(stops.begin(), stops.end());
    for (QWidget *stop : qAsConst(stops)) {
        m_keys->clickWith(Symbol::shift, Symbol::tab);
        QTRY_COMPARE(QApplication::focusWidget(), stop);
    }
}

void TestFormKeysOnServer::lettersReachALineEditAtOnce()
{
    focus(m_dialog->stops().constLast());
    m_keys->click(Symbol::tab);
    m_keys->type(QStringLiteral("anna"));
    m_keys->click(Symbol::tab);
    m_keys->type(QStringLiteral("secret"));
    QTRY_COMPARE(m_dialog->form->password->getText(), QStringLiteral("secret"));
    QCOMPARE(m_dialog->form->name->getText(), QStringLiteral("anna"));
    m_keys->clickWith(Symbol::alt, 'n');
    m_keys->type(QStringLiteral("otto")); // the text is selected, as Qt has it
    QTRY_COMPARE(m_dialog->form->name->getText(), QStringLiteral("otto"));
}

void TestFormKeysOnServer::mnemonicsLeadToTheirWidgets_data()
{
    QTest::addColumn<int>("letter");
    QTest::addColumn<Find>("find");
    const auto row = [](char letter, const Find &find) {
        QTest::addRow("Alt+%c", letter) << int(letter) << find;
    };
    row('n', [](const ServerForm &dialog) { return dialog.form->name->lineEdit(); });
    row('p', [](const ServerForm &dialog) { return dialog.form->password->lineEdit(); });
    row('h', [](const ServerForm &dialog) { return dialog.form->shortcut; });
    row('w', [](const ServerForm &dialog) { return dialog.form->wifi; });
    row('v', [](const ServerForm &dialog) { return dialog.form->volume; });
    row('r', [](const ServerForm &dialog) { return dialog.form->star; });
    row('m', [](const ServerForm &dialog) { return dialog.form->mail; });
    row('s', [](const ServerForm &dialog) { return dialog.form->save; });
    row('t', [](const ServerForm &dialog) { return dialog.news; });
}

void TestFormKeysOnServer::mnemonicsLeadToTheirWidgets()
{
    QFETCH(int, letter);
    QFETCH(Find, find);
    focus(m_dialog->chat);
    m_keys->clickWith(Symbol::alt, quint32(letter));
    QTRY_COMPARE(QApplication::focusWidget(), find(*m_dialog));
}

void TestFormKeysOnServer::keysClickButtons_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<quint32>("key");
    for (const char *button : { "button", "tile", "tile in a grid", "glyph" }) {
        QTest::addRow("Space on a %s", button) << QString::fromLatin1(button) << Symbol::space;
        QTest::addRow("Enter on a %s", button) << QString::fromLatin1(button) << Symbol::enter;
    }
}

void TestFormKeysOnServer::keysClickButtons()
{
    QFETCH(QString, button);
    QFETCH(quint32, key);
    const QHash<QString, QWidget *> widgets{
        { QStringLiteral("button"), m_dialog->form->save },
        { QStringLiteral("tile"), m_dialog->form->mail },
        { QStringLiteral("tile in a grid"), m_dialog->chat },
        { QStringLiteral("glyph"), m_dialog->form->star },
    };
    const QHash<QString, QMetaMethod> signalsOf{
        { QStringLiteral("button"), QMetaMethod::fromSignal(&OlvButton::clicked) },
        { QStringLiteral("tile"), QMetaMethod::fromSignal(&OlvIconButton::clicked) },
        { QStringLiteral("tile in a grid"), QMetaMethod::fromSignal(&OlvIconButton::clicked) },
        { QStringLiteral("glyph"), QMetaMethod::fromSignal(&QPushButton::clicked) },
    };
    QWidget *widget = widgets.value(button);
    QSignalSpy clicked(widget, signalsOf.value(button));
    QVERIFY(clicked.isValid());
    focus(widget);
    m_keys->click(key);
    QTRY_COMPARE(clicked.count(), 1);
    QCOMPARE(QApplication::focusWidget(), widget);
    QVERIFY(m_dialog->isVisible()); // Enter has not gone to the dialog
}

/**
 * The server repeats a key that is held. On a busy machine Qt may take a repetition for a release,
 * which then clicks in its own right.
 */
void TestFormKeysOnServer::repetitionsDoNotClick()
{
    OlvButton *save = m_dialog->form->save;
    const QSignalSpy clicked(save, &OlvButton::clicked);
    focus(save);
    RepetitionWatch watch;
    save->installEventFilter(&watch);
    m_keys->press(Symbol::space);
    QTRY_VERIFY(watch.repetitions > 6);
    QCOMPARE(clicked.count(), watch.releases);
    const int before = watch.releases;
    m_keys->release(Symbol::space);
    QTRY_VERIFY(watch.releases > before);
    QCOMPARE(clicked.count(), watch.releases);
}

void TestFormKeysOnServer::escapeTakesAPressBack()
{
    OlvButton *save = m_dialog->form->save;
    const QSignalSpy clicked(save, &OlvButton::clicked);
    focus(save);
    m_keys->press(Symbol::space);
    QTRY_COMPARE(save->property("state").toString(), QStringLiteral("click"));
    m_keys->click(Symbol::escape);
    QTRY_VERIFY(save->property("state").toString() != QLatin1String("click"));
    m_keys->release(Symbol::space);
    m_keys->click(Symbol::tab); // the events come in order, this one last
    QTRY_COMPARE(QApplication::focusWidget(), m_dialog->news);
    QCOMPARE(clicked.count(), 0);
    QVERIFY(m_dialog->isVisible());
}

void TestFormKeysOnServer::escapeClosesTheDialog()
{
    focus(m_dialog->form->volume);
    m_keys->click(Symbol::escape);
    QTRY_VERIFY(!m_dialog->isVisible());
}

void TestFormKeysOnServer::spaceFlipsTheSwitch()
{
    OlvSwitch *wifi = m_dialog->form->wifi;
    const QSignalSpy changed(wifi, &OlvSwitch::changed);
    focus(wifi);
    m_keys->click(Symbol::space);
    QTRY_COMPARE(changed.count(), 1);
    QCOMPARE(wifi->getValue(), QVariant(true));
    m_keys->click(Symbol::space);
    QTRY_COMPARE(changed.count(), 2);
    QCOMPARE(wifi->getValue(), QVariant(false));
}

void TestFormKeysOnServer::keysMoveTheSlider_data()
{
    QTest::addColumn<quint32>("key");
    QTest::addColumn<int>("toTheRight");
    QTest::addColumn<int>("toTheLeft");
    QTest::newRow("Right") << Symbol::right << 41 << 39;
    QTest::newRow("Left") << Symbol::left << 39 << 41;
    QTest::newRow("Up") << Symbol::up << 41 << 41;
    QTest::newRow("Down") << Symbol::down << 39 << 39;
    QTest::newRow("Page Up") << Symbol::pageUp << 50 << 50;
    QTest::newRow("Page Down") << Symbol::pageDown << 30 << 30;
    QTest::newRow("Home") << Symbol::home << 0 << 0;
    QTest::newRow("End") << Symbol::end << 100 << 100;
}

/** From the right to the left the value grows to the left. */
void TestFormKeysOnServer::keysMoveTheSlider()
{
    QFETCH_GLOBAL(Qt::LayoutDirection, direction);
    QFETCH(quint32, key);
    QFETCH(int, toTheRight);
    QFETCH(int, toTheLeft);
    const bool isMirrored = direction == Qt::RightToLeft;
    const int to = isMirrored ? toTheLeft : toTheRight;
    OlvSlider *volume = m_dialog->form->volume;
    volume->setSliderPosition(40);
    focus(volume);
    m_keys->click(key);
    QTRY_COMPARE(volume->getValue(), QVariant(to));

    QWidget window;
    window.setLayoutDirection(Qt::LeftToRight);
    OlvSlider other(&window);
    other.resize(volume->size());
    window.show(); // which tells the slider of its size
    other.setSliderPosition(to);
    QRect place = knobOf(other)->geometry();
    if (isMirrored) {
        place.moveRight(volume->width() - 1 - place.left());
    }
    QCOMPARE(knobOf(*volume)->geometry(), place);
}

/** The rows of the grid begin at the right where the form does. */
void TestFormKeysOnServer::arrowsMoveThroughAGrid()
{
    QFETCH_GLOBAL(Qt::LayoutDirection, direction);
    const bool isMirrored = direction == Qt::RightToLeft;
    focus(m_dialog->news);
    QCOMPARE(m_dialog->chat->x() < m_dialog->news->x(), isMirrored);
    m_keys->click(isMirrored ? Symbol::left : Symbol::right);
    QTRY_COMPARE(QApplication::focusWidget(), m_dialog->chat);
    m_keys->click(isMirrored ? Symbol::right : Symbol::left);
    QTRY_COMPARE(QApplication::focusWidget(), m_dialog->news);
    m_keys->click(Symbol::end);
    QTRY_COMPARE(QApplication::focusWidget(), m_dialog->chat);
    m_keys->click(Symbol::home);
    QTRY_COMPARE(QApplication::focusWidget(), m_dialog->news);
}

void TestFormKeysOnServer::combinationsReachTheShortcutEdit()
{
    OlvShortcutEdit *shortcut = m_dialog->form->shortcut;
    focus(m_dialog->form->password->lineEdit());
    m_keys->click(Symbol::tab);
    QTRY_COMPARE(QApplication::focusWidget(), shortcut);
    QCOMPARE(shortcut->shortcut(), nullptr); // Tab is none
    m_keys->clickWith(Symbol::control, Symbol::f5);
    QTRY_COMPARE(shortcut->getValue().toString(), QStringLiteral("Ctrl+F5"));
    m_keys->click(Symbol::tab);
    QTRY_COMPARE(QApplication::focusWidget(), m_dialog->form->wifi);
    QCOMPARE(shortcut->getValue().toString(), QStringLiteral("Ctrl+F5"));
}

ADD_TEST(TestFormKeysOnServer, QApplication)
#include "tst_formkeysonserver.moc"
