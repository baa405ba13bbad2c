// SPDX-License-Identifier: MIT
#include "freeshortcut.h"
#include "testprogram.h"

#include <OlvWidgets/OlvWidgets>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int patience = 60000; // milliseconds

/** A window with one widget of each kind. */
class Window : public QWidget
{
public:
    Window()
        : save(new OlvButton(QStringLiteral("Save"), this))
        , bold(new OlvButton(QStringLiteral("Bold"), this))
        , mail(new OlvIconButton(QChar(0xf0e0), QStringLiteral("Mail"),
                                 QStringLiteral("FontAwesome"), this, 60, 60))
        , wifi(new OlvSwitch(this))
        , volume(new OlvSlider(this))
        , record(new OlvShortcutEdit(new FreeShortcut(Qt::Key_F5, true, false, false, false), this))
        , bar(new OlvControlBar({ u'\uf2d2', u'\uf103', u'\uf102', u'\uf068', u'\uf065', u'\uf00d',
                                  u'\uf066', u'\uf013' },
                                this, { QStringLiteral("Settings") }))
        , star(new OlvSimpleIconButton(QChar(0xf006), QFont(), this))
        , name(new OlvLineEdit(this))
        , panel(new OlvFlexWidget(120, 60, this))
    {
        star->setToolTip(QStringLiteral("Favourite"));
        auto *label = new QLabel(QStringLiteral("User"));
        label->setBuddy(name);
        name->setText(QStringLiteral("Li Wei"));
        bold->setCheckable(true);
        wifi->setAccessibleName(QStringLiteral("Wi-Fi"));
        volume->setAccessibleName(QStringLiteral("Volume"));
        record->setAccessibleName(QStringLiteral("Record"));
        panel->setWindowFlags(Qt::Widget);
        panel->setAccessibleName(QStringLiteral("Note"));
        auto *column = new QVBoxLayout(this);
        for (QWidget *widget : { static_cast<QWidget *>(bar), static_cast<QWidget *>(save),
                                 static_cast<QWidget *>(bold), static_cast<QWidget *>(mail),
                                 static_cast<QWidget *>(wifi), static_cast<QWidget *>(volume),
                                 static_cast<QWidget *>(record), static_cast<QWidget *>(star),
                                 static_cast<QWidget *>(label), static_cast<QWidget *>(name),
                                 static_cast<QWidget *>(panel) }) {
            widget->setMinimumSize(widget->minimumSize().expandedTo(QSize(60, 24)));
            column->addWidget(widget);
        }
    }

    OlvButton *save;
    OlvButton *bold;
    OlvIconButton *mail;
    OlvSwitch *wifi;
    OlvSlider *volume;
    OlvShortcutEdit *record;
    OlvControlBar *bar;
    OlvSimpleIconButton *star;
    OlvLineEdit *name;
    OlvFlexWidget *panel;
};

/** A program of its own that looks at this one over the bus. */
class AssistantProgram : public QProcess
{
public:
    explicit AssistantProgram(const QStringList &arguments)
    {
        setProcessChannelMode(QProcess::ForwardedErrorChannel);
        QStringList all{ QStringLiteral("-Wignore::DeprecationWarning"),
                         QStringLiteral(OLV_ASSISTANT),
                         QString::number(QCoreApplication::applicationPid()) };
        start(QStringLiteral("/usr/bin/python3"), all + arguments);
    }
    ~AssistantProgram() override
    {
        kill();
        waitForFinished();
    }
    Q_DISABLE_COPY(AssistantProgram)

    /** Waits, answering its questions meanwhile, until it has come to a good end. */
    bool succeeds()
    {
        return QTest::qWaitFor([this] { return state() == NotRunning; }, patience)
            && exitStatus() == NormalExit && exitCode() == 0;
    }
    QStringList lines()
    {
        m_output += QString::fromUtf8(readAllStandardOutput());
        return m_output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

private:
    QString m_output;
};

} // namespace

class TestAccessibilityOnBus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theTreeIsRead();
    void aButtonIsPressed();
    void aCheckableButtonIsToggled();
    void aTileIsPressedAndDoubleClicked();
    void aSwitchIsSwitched();
    void aSliderIsSet();
    void theBarIsPressed();
    void aLineEditIsFocused();
    void updatesAreHeard();

private:
    QPointer<Window> m_window;
};

void TestAccessibilityOnBus::init()
{
    m_window = new Window;
    m_window->setWindowTitle(QStringLiteral("Accessibility"));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
}

void TestAccessibilityOnBus::cleanup()
{
    delete m_window;
}

void TestAccessibilityOnBus::theTreeIsRead()
{
    m_window->wifi->setProperty("switch", true);
    m_window->volume->setValue(42);
    m_window->mail->setEnabled(false);
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    m_window->record->setFocus();
    AssistantProgram reader({ QStringLiteral("tree") });
    QVERIFY(reader.succeeds());
    // Qt's bridge steps through a value by itself
    QCOMPARE(reader.lines(),
             (QStringList{ QStringLiteral("filler|Accessibility|||"),
                           QStringLiteral("push button|Save|||Press"),
                           QStringLiteral("check box|Bold|||Toggle Press"),
                           QStringLiteral("push button|Mail|disabled||"),
                           QStringLiteral("check box|Wi-Fi|checked||Toggle Press"),
                           QStringLiteral("slider|Volume||42 of 0 to 100|Increase Decrease"),
                           QStringLiteral("text|Record|focusable focused|Ctrl+F5|SetFocus"),
                           QStringLiteral("push button|Settings|focusable||Press SetFocus"),
                           QStringLiteral("check box|悬浮|focusable||Toggle Press SetFocus"),
                           QStringLiteral("check box|置底|focusable||Toggle Press SetFocus"),
                           QStringLiteral("check box|置顶|focusable||Toggle Press SetFocus"),
                           QStringLiteral("push button|最小化|focusable||Press SetFocus"),
                           QStringLiteral("check box|最大化|focusable||Toggle Press SetFocus"),
                           QStringLiteral("push button|关闭|focusable||Press SetFocus"),
                           QStringLiteral("check box|Favourite|focusable||Toggle Press SetFocus"),
                           QStringLiteral("panel|User|focusable||SetFocus"),
                           QStringLiteral("text|User|focusable|Li Wei|SetFocus"),
                           QStringLiteral("check box|显示密码|focusable||Toggle Press SetFocus"),
                           QStringLiteral("panel|Note|||"),
                           QStringLiteral("label|User|||") }));
}

void TestAccessibilityOnBus::aButtonIsPressed()
{
    QSignalSpy clicked(m_window->save, &OlvButton::clicked);
    AssistantProgram presser(
        { QStringLiteral("act"), QStringLiteral("Save"), QStringLiteral("Press") });
    QVERIFY(presser.succeeds());
    QCOMPARE(clicked.count(), 1);
}

void TestAccessibilityOnBus::aCheckableButtonIsToggled()
{
    QSignalSpy toggled(m_window->bold, &OlvButton::toggled);
    AssistantProgram toggler(
        { QStringLiteral("act"), QStringLiteral("Bold"), QStringLiteral("Toggle") });
    QVERIFY(toggler.succeeds());
    QCOMPARE(toggled.count(), 1);
    QVERIFY(m_window->bold->isChecked());
}

void TestAccessibilityOnBus::aTileIsPressedAndDoubleClicked()
{
    QSignalSpy clicked(m_window->mail, &OlvIconButton::clicked);
    QSignalSpy doubleClicked(m_window->mail, &OlvIconButton::dClicked);
    AssistantProgram presser(
        { QStringLiteral("act"), QStringLiteral("Mail"), QStringLiteral("Press") });
    QVERIFY(presser.succeeds());
    QTRY_COMPARE_WITH_TIMEOUT(clicked.count(), 1, patience);
    AssistantProgram clicker(
        { QStringLiteral("act"), QStringLiteral("Mail"), QStringLiteral("doubleClick") });
    QVERIFY(clicker.succeeds());
    QTRY_COMPARE_WITH_TIMEOUT(doubleClicked.count(), 1, patience);
    QCOMPARE(clicked.count(), 1);
}

void TestAccessibilityOnBus::aSwitchIsSwitched()
{
    QSignalSpy changed(m_window->wifi, &OlvSwitch::changed);
    AssistantProgram toggler(
        { QStringLiteral("act"), QStringLiteral("Wi-Fi"), QStringLiteral("Toggle") });
    QVERIFY(toggler.succeeds());
    QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 1, patience);
    QCOMPARE(m_window->wifi->getValue(), QVariant(true));
}

void TestAccessibilityOnBus::aSliderIsSet()
{
    const QWidget *knob = m_window->volume->findChild<QWidget *>();
    const int before = knob->x();
    AssistantProgram setter(
        { QStringLiteral("set"), QStringLiteral("Volume"), QStringLiteral("75") });
    QVERIFY(setter.succeeds());
    QCOMPARE(m_window->volume->getValue(), QVariant(75));
    QVERIFY(knob->x() > before);
}

void TestAccessibilityOnBus::theBarIsPressed()
{
    QSignalSpy custom(m_window->bar, &OlvControlBar::custom);
    AssistantProgram presser(
        { QStringLiteral("act"), QStringLiteral("Settings"), QStringLiteral("Press") });
    QVERIFY(presser.succeeds());
    QCOMPARE(custom.count(), 1);
}

void TestAccessibilityOnBus::aLineEditIsFocused()
{
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    auto *text = m_window->name->findChild<QLineEdit *>();
    m_window->record->setFocus();
    AssistantProgram focuser(
        { QStringLiteral("act"), QStringLiteral("User"), QStringLiteral("SetFocus") });
    QVERIFY(focuser.succeeds());
    QVERIFY(text->hasFocus());
    AssistantProgram reader({ QStringLiteral("tree") });
    QVERIFY(reader.succeeds());
    QVERIFY(reader.lines().contains(QStringLiteral("text|User|focusable focused|Li Wei|SetFocus")));
}

void TestAccessibilityOnBus::updatesAreHeard()
{
    AssistantProgram listener({ QStringLiteral("hear") });
    // Updates are sent from when Qt has come to know that somebody listens. States come last.
    QTimer knocking;
    connect(&knocking, &QTimer::timeout, m_window->bold,
            [this] { m_window->bold->setChecked(!m_window->bold->isChecked()); });
    knocking.start(100);
    const auto hears = [&](const char *update) {
        return listener.lines().contains(QString::fromUtf8(update));
    };
    QTRY_VERIFY_WITH_TIMEOUT(hears("state-changed:checked|Bold|1"), patience);
    QTRY_VERIFY_WITH_TIMEOUT(hears("state-changed:checked|Bold|0"), patience);
    knocking.stop();

    m_window->save->setText(QStringLiteral("Store"));
    QTRY_VERIFY_WITH_TIMEOUT(hears("property-change:accessible-name|Store|"), patience);
    m_window->volume->setValue(30);
    QTRY_VERIFY_WITH_TIMEOUT(hears("property-change:accessible-value|Volume|30 of 0 to 100"),
                             patience);
    QVERIFY(m_window->record->setShortcut(new FreeShortcut(Qt::Key_F6, true, false, false, false)));
    QTRY_VERIFY_WITH_TIMEOUT(hears("text-changed:delete|Record|Ctrl+F5"), patience);
    QTRY_VERIFY_WITH_TIMEOUT(hears("text-changed:insert|Record|Ctrl+F6"), patience);
    m_window->wifi->setValue(true);
    QTRY_VERIFY_WITH_TIMEOUT(hears("state-changed:checked|Wi-Fi|1"), patience);
}

ADD_TEST(TestAccessibilityOnBus, QApplication)
#include "tst_accessibilityonbus.moc"
