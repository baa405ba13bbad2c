// SPDX-License-Identifier: MIT
#include "compositor.h"
#include "testprogram.h"

#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QVector>

#include <algorithm>
#include <cstring>

#include <sys/syscall.h>

/** The examples with windows of the library's own, driven from outside. */
class TestExamplesOnWayland : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void noteIsMovedAndPinned();
    void editorIsMovedAndClosed();

private:
    /** Starts a program and waits until the screen shows a colour; returns where. */
    QRect start(const char *program, QColor color)
    {
        m_program.start(QLatin1String(program), QStringList());
        constexpr int smallestWidth = 100; // the pointer may have a few pixels of the colour
        if (!QTest::qWaitFor([&] { return m_compositor.areaOf(color).width() >= smallestWidth; },
                             patience)) {
            return QRect();
        }
        for (const QPoint corner : { QPoint(1279, 799), QPoint(0, 0) }) {
            m_compositor.input.moveTo(corner);
            QTest::qWait(50);
        }
        m_compositor.input.moveTo(QPoint(1279, 799)); // where it shows nothing of the pointer
        pause();
        return m_compositor.areaOf(color);
    }
    void pause()
    {
        QTest::qWait(150); // nothing tells how far the other program is
    }
    void click(QPoint place)
    {
        m_compositor.input.moveTo(place);
        pause();
        m_compositor.input.click();
        pause();
    }
    /** Clicks a place that ends the program, again if that has been too slow to see the pointer. */
    void clickToEnd(QPoint place)
    {
        for (int tries = 0; tries < 5 && !hasEnded() && !hangsInQt(); ++tries) {
            m_compositor.input.moveTo(place - QPoint(0, 1));
            m_compositor.input.moveTo(place);
            pause();
            m_compositor.input.click();
            // no more input, which a program that ends is not made for
            (void)QTest::qWaitFor([&] { return hasEnded(); }, 2500);
        }
        if (hasEnded()) {
            QCOMPARE(m_program.exitCode(), 0);
        } else {
            QVERIFY(hangsInQt());
            qInfo("Qt waits for its own thread");
        }
    }
    bool hasEnded() const
    {
        return m_program.state() == QProcess::NotRunning;
    }
    /** Opens a file of /proc that tells of the program. */
    bool open(QFile &file, const char *name) const
    {
        file.setFileName(
            QStringLiteral("/proc/%1/%2").arg(m_program.processId()).arg(QLatin1String(name)));
        return file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    /** The libraries whose code the words on the program's stack point to, innermost first. */
    QByteArrayList librariesOnStack(quint64 stackPointer) const
    {
        struct Code
        {
            quint64 begin;
            quint64 end;
            QByteArray file;
        };
        QFile maps;
        QFile memory;
        if (!open(maps, "maps") || !open(memory, "mem") || !memory.seek(qint64(stackPointer))) {
            return {};
        }
        QVector<Code> codes;
        const QByteArrayList lines = maps.readAll().split('\n');
        for (const QByteArray &line : lines) {
            // begin-end rights offset device inode file
            const QByteArrayList parts = line.simplified().split(' ');
            if (parts.size() == 6 && parts.at(1).contains('x')) {
                const QByteArrayList ends = parts.first().split('-');
                codes.append({ ends.first().toULongLong(nullptr, 16),
                               ends.last().toULongLong(nullptr, 16),
                               parts.last().mid(parts.last().lastIndexOf('/') + 1) });
            }
        }
        QByteArrayList libraries;
        constexpr int depth = 4096; // bytes
        const QByteArray stack = memory.read(depth);
        for (int at = 0; at + int(sizeof(quint64)) <= stack.size(); at += int(sizeof(quint64))) {
            quint64 word = 0;
            std::memcpy(&word, stack.constData() + at, sizeof(word));
            const auto code = std::find_if(codes.cbegin(), codes.cend(), [=](const Code &each) {
                return word >= each.begin && word < each.end;
            });
            if (code != codes.cend()) {
                libraries.append(code->file);
            }
        }
        return libraries;
    }
    /**
     * Whether Qt's plugin for Wayland waits for a thread. The destructor of the application object
     * waits for the threads of the plugin, which now and then deadlock in Qt 5.15.8, in programs
     * without this library, too, and in Qt 6.4.2. Other deadlocks have other callers than the
     * plugin.
     */
    bool hangsInQt() const
    {
        QFile file;
        if (!open(file, "syscall")) {
            return false;
        }
        // the number, six arguments, the stack pointer and the program counter
        const QByteArrayList call = file.readAll().simplified().split(' ');
        if (call.size() != 9 || call.first().toInt() != SYS_futex) {
            return false;
        }
        const auto isPlugin = [](const QByteArray &library) {
            return library.startsWith("libQt" QT_STRINGIFY(QT_VERSION_MAJOR) "WaylandClient.");
        };
        const QByteArrayList libraries = librariesOnStack(call.at(7).toULongLong(nullptr, 16));
        for (const QByteArray &library : libraries) {
            if (isPlugin(library) || library.startsWith("libOlv")) {
                return isPlugin(library);
            }
        }
        return false;
    }
    /** Drags until a colour begins at a place, and is so wide; the pointer may hang out below. */
    void dragTo(QPoint from, QPoint to, QColor color, const QRect &expected)
    {
        m_compositor.input.moveTo(from);
        pause();
        m_compositor.input.press();
        pause();
        m_compositor.input.moveTo(from + Compositor::firstStep);
        pause();
        const auto isThere = [&] {
            // The compositor may have taken over only after the last motion.
            m_compositor.input.moveTo(to - QPoint(1, 0));
            m_compositor.input.moveTo(to);
            pause();
            const QRect area = m_compositor.areaOf(color);
            return area.topLeft() == expected.topLeft() && area.width() == expected.width();
        };
        QTRY_VERIFY(isThere());
        m_compositor.input.release();
        pause();
    }

    QProcess m_program;
    QTemporaryDir m_home;
    Compositor m_compositor;
};

void TestExamplesOnWayland::init()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_home.path());
    m_program.setProcessEnvironment(environment);
    m_program.setProcessChannelMode(QProcess::ForwardedChannels);
}

void TestExamplesOnWayland::cleanup()
{
    m_program.kill();
    m_program.waitForFinished();
}

void TestExamplesOnWayland::noteIsMovedAndPinned()
{
    const QColor header(255, 193, 7);
    const QRect before = start(OLV_STICKYNOTE, header);
    QVERIFY(!before.isNull());
    const QRect moved(QPoint(300, 200), before.size());
    dragTo(before.center(), moved.center() + Compositor::leftOut(), header, moved);
    QCOMPARE(m_compositor.areaOf(header), moved);
    // the pin, which unpins it, and pins it again
    for (int i = 0; i < 2; ++i) {
        click(moved.topLeft() + QPoint(22, 26));
        QCOMPARE(m_compositor.areaOf(header), moved);
    }
    // the cross at the right
    clickToEnd(QPoint(moved.right() - 23, moved.top() + 26));
}

void TestExamplesOnWayland::editorIsMovedAndClosed()
{
    const QColor header = QApplication::palette().color(QPalette::Window);
    const QRect before = start(OLV_FRAMELESSEDITOR, header);
    QCOMPARE(before.width(), 638); // within the frame
    const QRect moved(QPoint(300, 200), before.size());
    dragTo(before.center(), moved.center() + Compositor::leftOut(), header, moved);
    // by its corner
    const QPoint corner = moved.topLeft() + QPoint(636, 416);
    dragTo(corner, corner + QPoint(50, 40), header, moved.adjusted(0, 0, 50, 0));
    // the last button of its bar
    clickToEnd(QPoint(moved.right() + 50 - 12, moved.top() + 18));
}

ADD_TEST(TestExamplesOnWayland, QApplication)
#include "tst_examplesonwayland.moc"
