// SPDX-License-Identifier: MIT
#include "compositor.h"
#include "testprogram.h"

#include <OlvMoveWidget>
#include <OlvPluginEventFilter>

#include <QApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

#include <memory>

namespace {

constexpr QRgb windowColor = qRgb(30, 144, 255);
constexpr QRgb panelColor = qRgb(255, 140, 0);
constexpr QRgb popUpColor = qRgb(60, 179, 113);
constexpr QSize windowSize(400, 300);
constexpr QPoint inTitle(100, 20);
/** So far from it that two presses in a row are no double click, which starts no move. */
constexpr QPoint elsewhereInTitle(300, 20);

void paint(QWidget *widget, QRgb color)
{
    QPalette palette = widget->palette();
    palette.setColor(QPalette::Window, QColor(color));
    widget->setPalette(palette);
    widget->setAutoFillBackground(true);
}

} // namespace

/** A frameless window with a title of 40 pixels, which the helper moves. */
class TestMoveOnWayland : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void followsThePointer_data();
    void followsThePointer();
    void knowsAfterwardsThatNoButtonIsDown();
    void clickAfterAMoveCounts();
    void clickOnTheTitleMovesNothing();
    void doubleClickOnTheTitleIsTold();
    void popUpOpensBesideAMovedWindow();
    void panelInTheWindowFollowsThePointer();
    void maximisedWindowStays();
    void listenerMayDeleteTheWindow();

private:
    bool canMove() const
    {
        return m_mover->property("CanMove").toBool();
    }
    /** Moves the pointer to a place in the window. */
    void point(QPoint place)
    {
        m_compositor.point(*m_window, m_area.topLeft() + place);
    }
    /** Drags from a place in the window, and waits until the screen shows it where it should be. */
    void drag(QPoint from, QPoint distance, RealInput::Button button = RealInput::Left)
    {
        m_compositor.drag(*m_window, m_area.topLeft() + from, distance, button);
        m_area.translate(distance);
        QTRY_COMPARE(m_compositor.areaOf(windowColor), m_area);
        if (Compositor::isSway()) {
            QCOMPARE(Compositor::toldArea(), m_area);
        }
    }

    std::unique_ptr<QWidget> m_window;
    OlvMoveWidget *m_mover = nullptr;
    Compositor m_compositor;
    /** Where the screen shows the window. */
    QRect m_area;
};

void TestMoveOnWayland::init()
{
    QVERIFY(m_compositor.input.isValid());
    QVERIFY(QGuiApplication::platformName().startsWith(QLatin1String("wayland")));
    m_window = std::make_unique<QWidget>(nullptr, Qt::FramelessWindowHint);
    m_window->resize(windowSize);
    paint(m_window.get(), windowColor);
    m_mover = new OlvMoveWidget(m_window.get());
    m_mover->setMoveArea(QRect(0, 0, windowSize.width(), 40));
    m_window->show();
    m_area = m_compositor.waitFor(*m_window, windowColor);
    QCOMPARE(m_area.size(), windowSize);
    // Wherever the compositor put it, it has room to be moved.
    if (m_area.topLeft() != QPoint(100, 100)) {
        drag(elsewhereInTitle, QPoint(100, 100) - m_area.topLeft());
    }
}

void TestMoveOnWayland::cleanup()
{
    m_compositor.input.release();
    m_window.reset();
    QTRY_VERIFY(m_compositor.areaOf(windowColor).isNull());
}

void TestMoveOnWayland::followsThePointer_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("left") << int(RealInput::Left);
    QTest::newRow("middle") << int(RealInput::Middle);
    QTest::newRow("right") << int(RealInput::Right);
}

void TestMoveOnWayland::followsThePointer()
{
    QFETCH(int, button);
    drag(inTitle, { 500, 200 }, RealInput::Button(button));
    drag(elsewhereInTitle, { -400, -250 }, RealInput::Button(button));
    QCOMPARE(m_area.topLeft(), QPoint(200, 50));
}

void TestMoveOnWayland::knowsAfterwardsThatNoButtonIsDown()
{
    drag(inTitle, { 50, 30 });
    QVERIFY(!canMove());
    point(inTitle + QPoint(10, 0));
    QVERIFY(m_window->underMouse());
    QCOMPARE(QGuiApplication::mouseButtons(), Qt::NoButton);
    // Moves without a button move nothing.
    m_window->setMouseTracking(true);
    point(inTitle + QPoint(40, 10));
    QTest::qWait(50);
    QCOMPARE(m_compositor.areaOf(windowColor), m_area);
}

void TestMoveOnWayland::clickAfterAMoveCounts()
{
    QPushButton button(QStringLiteral("Press"), m_window.get());
    button.setGeometry(150, 150, 100, 40);
    button.show();
    const QSignalSpy clicks(&button, &QPushButton::clicked);
    drag(inTitle, { 60, 40 });
    EventCount enters(&button, { QEvent::Enter });
    m_compositor.input.moveTo(m_area.topLeft() + button.geometry().center());
    QTRY_COMPARE(enters.count, 1);
    QVERIFY(button.underMouse());
    m_compositor.input.click();
    QTRY_COMPARE(clicks.count(), 1);
    QVERIFY(!button.isDown());
    m_compositor.input.click();
    QTRY_COMPARE(clicks.count(), 2);
}

void TestMoveOnWayland::clickOnTheTitleMovesNothing()
{
    EventCount leaves(m_window.get(), { QEvent::Leave });
    // far from one another, so that none is a double click, which starts no move
    for (const QPoint place : { inTitle, elsewhereInTitle, inTitle }) {
        point(place);
        m_compositor.input.press();
        QTRY_VERIFY(canMove());
        m_compositor.input.release();
        QTRY_VERIFY(!canMove());
    }
    QCOMPARE(leaves.count, 0);
    QCOMPARE(m_compositor.areaOf(windowColor), m_area);
}

void TestMoveOnWayland::doubleClickOnTheTitleIsTold()
{
    drag(inTitle, { 50, 30 });
    point(elsewhereInTitle);
    const EventCount doubleClicks(m_window.get(), { QEvent::MouseButtonDblClick });
    m_compositor.input.click();
    m_compositor.input.click();
    QTRY_COMPARE(doubleClicks.count, 1);
    drag(inTitle, { 50, 30 });
    QCOMPARE(doubleClicks.count, 1);
}

void TestMoveOnWayland::popUpOpensBesideAMovedWindow()
{
    drag(inTitle, { 250, 150 });
    QWidget popUp(m_window.get(), Qt::Popup);
    popUp.resize(120, 60);
    paint(&popUp, popUpColor);
    point({ 200, 150 });
    const EventCount releases(m_window.get(), { QEvent::MouseButtonRelease });
    m_compositor.input.click(); // a compositor opens a pop-up only on account of some input
    QTRY_COMPARE(releases.count, 1);
    popUp.move(m_window->mapToGlobal(QPoint(200, 150)));
    popUp.show();
    const QRect expected(m_area.topLeft() + QPoint(200, 150), popUp.size());
    QTRY_COMPARE(m_compositor.areaOf(QColor(popUpColor)), expected);
    EventCount presses(&popUp, { QEvent::MouseButtonPress });
    m_compositor.input.moveTo(expected.center());
    QTRY_VERIFY(popUp.underMouse());
    m_compositor.input.click();
    QTRY_COMPARE(presses.count, 1);
    QVERIFY(popUp.isVisible());
    // A click beside it closes it.
    m_compositor.input.moveTo(m_area.topLeft() + QPoint(50, 100));
    QTest::qWait(50);
    m_compositor.input.click();
    QTRY_VERIFY(!popUp.isVisible());
}

void TestMoveOnWayland::panelInTheWindowFollowsThePointer()
{
    QWidget panel(m_window.get());
    panel.setGeometry(50, 100, 120, 80);
    paint(&panel, panelColor);
    OlvMoveWidget mover(&panel);
    mover.setMoveArea(panel.rect());
    panel.show();
    point({ 60, 110 });
    m_compositor.input.press();
    QTRY_VERIFY(mover.property("CanMove").toBool());
    for (int i = 1; i <= 10; ++i) {
        m_compositor.input.moveTo(m_area.topLeft() + QPoint(60, 110) + QPoint(15, 7) * i);
        QTRY_COMPARE(panel.pos(), QPoint(50, 100) + QPoint(15, 7) * i);
    }
    m_compositor.input.release();
    QTRY_VERIFY(!mover.property("CanMove").toBool());
    QTRY_COMPARE(m_compositor.areaOf(QColor(panelColor)),
                 QRect(m_area.topLeft() + QPoint(200, 170), QSize(120, 80)));
    QCOMPARE(m_compositor.areaOf(QColor(windowColor)), m_area);
}

void TestMoveOnWayland::maximisedWindowStays()
{
    if (Compositor::isSway()) {
        QSKIP("sway maximises no windows that float");
    }
    m_window->showMaximized();
    QTRY_COMPARE(m_compositor.areaOf(QColor(windowColor)), QRect(0, 0, 1280, 800));
    m_compositor.point(*m_window, QPoint(600, 20));
    EventCount leaves(m_window.get(), { QEvent::Leave });
    m_compositor.input.press();
    QTest::qWait(50);
    QVERIFY(!canMove());
    m_compositor.input.moveTo(QPoint(700, 120));
    QTest::qWait(50);
    m_compositor.input.release();
    QCOMPARE(leaves.count, 0);
    QCOMPARE(m_compositor.areaOf(QColor(windowColor)), QRect(0, 0, 1280, 800));
    m_window->showNormal();
    QTRY_COMPARE(m_compositor.areaOf(QColor(windowColor)).size(), windowSize);
    m_area = m_compositor.areaOf(QColor(windowColor));
    drag(inTitle, { 50, 30 });
}

void TestMoveOnWayland::listenerMayDeleteTheWindow()
{
    point(inTitle);
    m_compositor.input.press();
    QTRY_VERIFY(canMove());
    auto *filter = new OlvPluginEventFilter(m_window.get());
    filter->addEventListener(QEvent::MouseButtonRelease, [this](QEvent *) { m_window.reset(); });
    m_compositor.input.moveTo(m_area.topLeft() + inTitle + QPoint(5, 5));
    QTRY_VERIFY(!m_window);
}

ADD_TEST(TestMoveOnWayland, QApplication)
#include "tst_moveonwayland.moc"
