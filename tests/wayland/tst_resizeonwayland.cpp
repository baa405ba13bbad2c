// SPDX-License-Identifier: MIT
#include "compositor.h"
#include "testprogram.h"

#include <OlvMoveWidget>
#include <OlvResizeWidget>

#include <QApplication>
#include <QTest>

#include <memory>

namespace {

constexpr QRgb frameColor = qRgb(30, 144, 255);
constexpr QSize startSize(400, 300);

} // namespace

/** A frameless window that is resized by its handles, 8 pixels thick, and by the compositor. */
class TestResizeOnWayland : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void resizesExactly_data();
    void resizesExactly();
    void isMaximisedAndRestored();
    void isMinimisedForGood();
    void isClosed();

private:
    QRect area() const
    {
        return m_compositor.areaOf(frameColor);
    }
    /** The handle that the screen shows at a place. */
    QWidget *handleAt(QPoint place) const
    {
        return m_window->childAt(place - m_area.topLeft());
    }
    void staysWhereItIs() const
    {
        QTest::qWait(200);
        QCOMPARE(area(), m_area);
        compareWithTold();
    }
    /** Compares where the screen shows the window with where the compositor says that it is. */
    void compareWithTold() const
    {
        if (Compositor::isSway()) {
            QTRY_COMPARE(Compositor::toldArea(), area());
        }
    }

    std::unique_ptr<QWidget> m_window;
    OlvResizeWidget *m_resizer = nullptr;
    Compositor m_compositor;
    /** Where the screen shows the window at first. */
    QRect m_area;
};

void TestResizeOnWayland::init()
{
    m_window = std::make_unique<QWidget>(nullptr, Qt::FramelessWindowHint);
    m_window->resize(startSize);
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(frameColor));
    m_window->setPalette(palette);
    auto *mover = new OlvMoveWidget(m_window.get());
    mover->setMoveArea(QRect(0, 0, 390, 40));
    m_resizer = new OlvResizeWidget(m_window.get(), 8);
    m_window->show();
    m_area = m_compositor.waitFor(*m_window, frameColor);
    QCOMPARE(m_area.size(), startSize);
    // where it has room to grow
    m_compositor.drag(*m_window, m_area.topLeft() + QPoint(100, 20),
                      QPoint(101, 102) - m_area.topLeft());
    m_area.moveTo(101, 102);
    QTRY_COMPARE(area(), m_area);
    compareWithTold();
}

void TestResizeOnWayland::cleanup()
{
    m_compositor.input.release();
    m_window.reset();
    QTRY_VERIFY(area().isNull());
}

void TestResizeOnWayland::resizesExactly_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QSize>("grows");
    QTest::newRow("right edge") << QPoint(396, 100) << QSize(150, 0);
    QTest::newRow("bottom edge") << QPoint(100, 296) << QSize(0, 90);
    QTest::newRow("corner") << QPoint(392, 292) << QSize(150, 90);
}

void TestResizeOnWayland::resizesExactly()
{
    QFETCH(QPoint, from);
    QFETCH(QSize, grows);
    const QPoint start = m_area.topLeft() + from;
    for (const int direction : { 1, -1 }) {
        const QSize before = m_window->size();
        const QPoint origin = start + (direction > 0 ? QPoint() : QPoint(150, 90));
        m_compositor.input.moveTo(origin);
        QTRY_VERIFY(handleAt(origin) && handleAt(origin)->underMouse());
        m_compositor.input.press();
        for (int i = 1; i <= 10; ++i) {
            m_compositor.input.moveTo(origin + QPoint(150, 90) * i / 10 * direction);
            const QSize expected = before + grows * i / 10 * direction;
            QTRY_COMPARE(m_window->size(), expected);
            QTRY_COMPARE(area(), QRect(m_area.topLeft(), expected));
        }
        m_compositor.input.release();
        compareWithTold();
        QTest::qWait(30);
    }
    // a burst, which the compositor answers only after its end
    m_compositor.input.moveTo(start);
    QTRY_VERIFY(handleAt(start) && handleAt(start)->underMouse());
    m_compositor.input.press();
    for (int i = 1; i <= 50; ++i) {
        m_compositor.input.moveTo(start + QPoint(150, 90) * i / 50);
    }
    m_compositor.input.release();
    QTRY_COMPARE(area(), QRect(m_area.topLeft(), startSize + grows));
    QCOMPARE(m_window->size(), startSize + grows);
    compareWithTold();
}

void TestResizeOnWayland::isMaximisedAndRestored()
{
    if (Compositor::isSway()) {
        m_window->showMaximized();
        staysWhereItIs(); // sway maximises no windows that float
        return;
    }
    m_window->showMaximized();
    QTRY_COMPARE(area(), QRect(0, 0, 1280, 800));
    QVERIFY(m_window->isMaximized());
    // its handles do nothing then
    m_resizer->reset();
    m_compositor.point(*m_window, QPoint(1276, 400));
    m_compositor.input.press();
    m_compositor.input.moveTo(QPoint(1176, 400));
    QTest::qWait(50);
    m_compositor.input.release();
    QTest::qWait(50);
    QCOMPARE(area(), QRect(0, 0, 1280, 800));
    m_window->showNormal();
    QTRY_COMPARE(area(), m_area);
    QVERIFY(!m_window->isMaximized());
    QCOMPARE(m_window->size(), startSize);
}

void TestResizeOnWayland::isMinimisedForGood()
{
    if (Compositor::isSway()) {
        m_window->showMinimized();
        staysWhereItIs(); // sway minimises no windows
        return;
    }
    m_window->showMinimized();
    QTRY_VERIFY(area().isNull());
    // No program is told that its window is minimised, and none can bring it back.
    QVERIFY(!m_window->isMinimized());
    m_window->showNormal();
    QTest::qWait(200);
    QVERIFY(area().isNull());
}

void TestResizeOnWayland::isClosed()
{
    QVERIFY(m_window->close());
    QTRY_VERIFY(area().isNull());
    m_window->show();
    QTRY_COMPARE(area().size(), startSize);
}

ADD_TEST(TestResizeOnWayland, QApplication)
#include "tst_resizeonwayland.moc"
