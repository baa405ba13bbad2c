// SPDX-License-Identifier: MIT
#include "testprogram.h"

#include <OlvWidgets/OlvWidgets>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEventLoop>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

namespace {

constexpr int watchedTime = 600; // milliseconds
/** By then what is deferred by a millisecond, and has no parent, has been done. */
constexpr int deferredTime = 100;
/** Longer than any widget takes to settle, the flex panel's two seconds included. */
constexpr int settlingTime = 10000;

/** Notes everything that @p root and what lies in it are woken for. */
class Watcher : public QObject
{
public:
    explicit Watcher(QWidget *root)
        : m_root(root)
    {
        qApp->installEventFilter(this);
    }

    QStringList seen() const
    {
        return m_seen;
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (isWithin(watched)) {
            m_seen << QStringLiteral("%1 of %2")
                          .arg(event->type())
                          .arg(QString::fromLatin1(watched->metaObject()->className()));
        }
        return false;
    }

private:
    bool isWithin(QObject *object) const
    {
        while (object && object != m_root) {
            object = object->parent();
        }
        return object;
    }

    QWidget *m_root;
    QStringList m_seen;
};

QStringList runningTimers(QObject *object)
{
    QStringList result;
    const auto *dispatcher = QAbstractEventDispatcher::instance();
    const auto timers = dispatcher->registeredTimers(object);
    for (const auto &timer : timers) {
        result << QStringLiteral("%1 ms of %2")
                      .arg(timer.interval)
                      .arg(QString::fromLatin1(object->metaObject()->className()));
    }
    for (QObject *child : object->children()) {
        result += runningTimers(child);
    }
    return result;
}

/** Lets @p time milliseconds go by with the event loop running. */
void letTimePass(int time)
{
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

/** Waits until @p window settles, calls @p act, and tells what the window is woken for then. */
QStringList unrestOf(
    QWidget &window, const std::function<void()> &act = [] {})
{
    letTimePass(deferredTime);
    if (!QTest::qWaitFor([&] { return runningTimers(&window).isEmpty(); }, settlingTime)) {
        return runningTimers(&window);
    }
    QCoreApplication::processEvents();
    const Watcher watcher(&window);
    act();
    letTimePass(watchedTime);
    return watcher.seen() + runningTimers(&window);
}

/** Has the pointer click in a widget, and types a letter. */
void use(QWidget *widget)
{
    const QPoint centre = widget->rect().center();
    QWidget *hit = widget->childAt(centre) ? widget->childAt(centre) : widget;
    const QPoint place = hit->mapFrom(widget, centre);
    QTest::mouseMove(hit, place);
    QTest::mouseClick(hit, Qt::LeftButton, Qt::NoModifier, place);
    QTest::keyClick(widget, Qt::Key_A);
    widget->resize(140, 110);
}

} // namespace

/** A window with one of each widget, which wakes up for nothing. */
class TestIdle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void restsOnceItIsShown();
    void restsAgainAfterUse();
    void doesNothingWhileHidden();

private:
    void add(QWidget *widget);

    std::unique_ptr<QWidget> m_window;
    QWidgetList m_widgets;
};

void TestIdle::add(QWidget *widget)
{
    widget->setGeometry(10 + 160 * int(m_widgets.size()), 10, 150, 120);
    m_widgets << widget;
}

void TestIdle::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->resize(1800, 200);
    QWidget *window = m_window.get();
    add(new OlvButton(QStringLiteral("Save"), window));
    add(new OlvIconButton(QLatin1Char('M'), QStringLiteral("Mail"), QStringLiteral("Sans"), window,
                          80, 80));
    add(new OlvSimpleIconButton(QStringLiteral("*"), QFont(), window));
    auto *edit = new OlvLineEdit(window);
    edit->setPassWord(true);
    add(edit);
    add(new OlvShortcutEdit(window));
    add(new OlvSwitch(window));
    add(new OlvSlider(window));
    add(new OlvControlBar({}, window));
    auto *movable = new QWidget(window);
    (new OlvMoveWidget(movable))->setMoveArea(QRect());
    new OlvResizeWidget(movable, 5);
    add(movable);
    auto *viewport = new QWidget(window);
    auto *grid = new OlvGridLayout(viewport);
    for (int i = 0; i < 30; ++i) {
        grid->addWidget(new OlvButton(QString::number(i), grid));
    }
    grid->resized();
    add(viewport);
    auto *panel = new OlvFlexWidget(150, 120, window);
    panel->setHeaderWay(OlvFlexWidget::HeaderTop, Qt::red);
    add(panel);
}

void TestIdle::cleanup()
{
    m_window.reset();
    m_widgets.clear();
}

void TestIdle::restsOnceItIsShown()
{
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    for (const QWidget *widget : qAsConst(m_widgets)) {
        QVERIFY(widget->isVisible());
    }
    QCOMPARE(unrestOf(*m_window), QStringList());
}

void TestIdle::restsAgainAfterUse()
{
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    for (QWidget *widget : qAsConst(m_widgets)) {
        use(widget);
    }
    QTest::mouseMove(m_window.get(), m_window->rect().bottomRight());
    m_window->setFocus();
    QCOMPARE(unrestOf(*m_window), QStringList());
}

void TestIdle::doesNothingWhileHidden()
{
    const auto updateAll = [&] {
        for (QWidget *widget : qAsConst(m_widgets)) {
            widget->update();
        }
    };
    QCOMPARE(unrestOf(*m_window, updateAll), QStringList());
}

ADD_TEST(TestIdle, QApplication)
#include "tst_idle.moc"
