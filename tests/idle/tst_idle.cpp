// SPDX-License-Identifier: MIT
#include <OlvWidgets/OlvWidgets>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEventLoop>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

constexpr int watchedTime = 600; // milliseconds
/** By then what is deferred by a millisecond, and has no parent, has been done. */
constexpr int deferredTime = 100;
/** Longer than any widget takes to settle, the flex panel's two seconds included. */
constexpr int settlingTime = 10000;

using Make = std::function<QWidget *(QWidget *)>;

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

/** Shows @p window with a widget in it, which it returns; null when the window does not come. */
QWidget *showWithin(QWidget &window, const Make &make)
{
    window.resize(300, 200);
    QWidget *widget = make(&window);
    widget->setGeometry(10, 10, 150, 120);
    window.show();
    widget->show();
    return QTest::qWaitForWindowExposed(&window) ? widget : nullptr;
}

} // namespace

Q_DECLARE_METATYPE(Make)

class TestIdle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void restsOnceItIsShown_data();
    void restsOnceItIsShown();
    void restsAgainAfterUse_data();
    void restsAgainAfterUse();
    void doesNothingWhileHidden_data();
    void doesNothingWhileHidden();

private:
    void addWidgets();
};

void TestIdle::addWidgets()
{
    QTest::addColumn<Make>("make");
    const auto add = [](const char *name, const Make &make) {
        QTest::newRow(name) << make;
    };
    add("button", [](QWidget *parent) { return new OlvButton(QStringLiteral("Save"), parent); });
    add("icon button", [](QWidget *parent) {
        return new OlvIconButton(QLatin1Char('M'), QStringLiteral("Mail"), QStringLiteral("Sans"),
                                 parent, 80, 80);
    });
    add("simple icon button", [](QWidget *parent) {
        return new OlvSimpleIconButton(QStringLiteral("*"), QFont(), parent);
    });
    add("line edit", [](QWidget *parent) {
        auto *edit = new OlvLineEdit(parent);
        edit->setPassWord(true);
        return edit;
    });
    add("shortcut editor", [](QWidget *parent) { return new OlvShortcutEdit(parent); });
    add("switch", [](QWidget *parent) { return new OlvSwitch(parent); });
    add("slider", [](QWidget *parent) { return new OlvSlider(parent); });
    add("control bar", [](QWidget *parent) { return new OlvControlBar({}, parent); });
    add("window that is moved and resized", [](QWidget *parent) {
        auto *window = new QWidget(parent);
        (new OlvMoveWidget(window))->setMoveArea(QRect());
        new OlvResizeWidget(window, 5);
        return window;
    });
    add("flow grid", [](QWidget *parent) {
        auto *viewport = new QWidget(parent);
        auto *grid = new OlvGridLayout(viewport);
        for (int i = 0; i < 30; ++i) {
            grid->addWidget(new OlvButton(QString::number(i), grid));
        }
        grid->resized();
        return viewport;
    });
    add("flex panel", [](QWidget *parent) {
        auto *panel = new OlvFlexWidget(150, 120, parent);
        panel->setHeaderWay(OlvFlexWidget::HeaderTop, Qt::red);
        return panel;
    });
}

void TestIdle::restsOnceItIsShown_data()
{
    addWidgets();
}

void TestIdle::restsOnceItIsShown()
{
    QFETCH(Make, make);
    QWidget window;
    QVERIFY(showWithin(window, make));
    letTimePass(deferredTime);
    QTRY_COMPARE_WITH_TIMEOUT(runningTimers(&window), QStringList(), settlingTime);
    QCoreApplication::processEvents();

    const Watcher watcher(&window);
    letTimePass(watchedTime);
    QCOMPARE(watcher.seen(), QStringList());
    QCOMPARE(runningTimers(&window), QStringList());
}

void TestIdle::restsAgainAfterUse_data()
{
    addWidgets();
}

void TestIdle::restsAgainAfterUse()
{
    QFETCH(Make, make);
    QWidget window;
    QWidget *widget = showWithin(window, make);
    QVERIFY(widget);

    const QPoint centre = widget->rect().center();
    QWidget *hit = widget->childAt(centre) ? widget->childAt(centre) : widget;
    const QPoint place = hit->mapFrom(widget, centre);
    QTest::mouseMove(hit, place);
    QTest::mouseClick(hit, Qt::LeftButton, Qt::NoModifier, place);
    QTest::keyClick(widget, Qt::Key_A);
    widget->resize(140, 110);
    QTest::mouseMove(&window, QPoint(290, 190));
    window.setFocus();
    letTimePass(deferredTime);
    QTRY_COMPARE_WITH_TIMEOUT(runningTimers(&window), QStringList(), settlingTime);
    QCoreApplication::processEvents();

    const Watcher watcher(&window);
    letTimePass(watchedTime);
    QCOMPARE(watcher.seen(), QStringList());
}

void TestIdle::doesNothingWhileHidden_data()
{
    addWidgets();
}

void TestIdle::doesNothingWhileHidden()
{
    QFETCH(Make, make);
    QWidget window;
    QWidget *widget = make(&window);
    widget->resize(150, 120);
    letTimePass(deferredTime);
    QTRY_COMPARE_WITH_TIMEOUT(runningTimers(&window), QStringList(), settlingTime);
    QCoreApplication::processEvents();

    const Watcher watcher(&window);
    widget->update();
    letTimePass(watchedTime);
    QCOMPARE(watcher.seen(), QStringList());
    QCOMPARE(runningTimers(&window), QStringList());
}

QTEST_MAIN(TestIdle)
#include "tst_idle.moc"
