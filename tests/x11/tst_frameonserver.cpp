// SPDX-License-Identifier: MIT
#include "realinput.h"
#include "testprogram.h"

#include <OlvMoveWidget>
#include <OlvResizeWidget>

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

#include <memory>

/** A frameless window that is moved by the helper and resized by its handles, 8 pixels thick. */
class TestFrameOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void followsThePointerExactly();
    void resizesExactly_data();
    void resizesExactly();
    void maximisedItIsNeitherMovedNorResized();
    void isMinimisedAndBroughtBack();
    void clickAfterAMoveCounts();
    void popUpOpensBesideAMovedWindow();

private:
    QRect onServer() const
    {
        return m_input.geometryOf(m_window->windowHandle()->winId());
    }
    bool isAt(const QRect &geometry) const
    {
        return onServer() == geometry && m_window->geometry() == geometry;
    }
    /** Drags from a place on the screen in ten steps, and waits for each to have its effect. */
    void drag(QPoint from, QPoint distance, QPoint moves, QSize grows)
    {
        constexpr int steps = 10;
        const QRect start = m_window->geometry();
        m_input.moveTo(from);
        m_input.press();
        QTest::qWait(30);
        for (int i = 1; i <= steps; ++i) {
            m_input.moveTo(from + distance * i / steps);
            const QRect expected(start.topLeft() + moves * i / steps,
                                 start.size() + grows * i / steps);
            QTRY_VERIFY2(isAt(expected),
                         qPrintable(QStringLiteral("step %1: %2,%3 %4x%5")
                                        .arg(i)
                                        .arg(onServer().x())
                                        .arg(onServer().y())
                                        .arg(onServer().width())
                                        .arg(onServer().height())));
        }
        m_input.release();
    }

    std::unique_ptr<QWidget> m_window;
    OlvResizeWidget *m_resizer = nullptr;
    RealInput m_input;
};

void TestFrameOnServer::init()
{
    QVERIFY(m_input.isValid());
    m_window = std::make_unique<QWidget>(nullptr, Qt::FramelessWindowHint);
    m_window->setGeometry(100, 100, 400, 300);
    auto *mover = new OlvMoveWidget(m_window.get());
    mover->setMoveArea(QRect(0, 0, 390, 40));
    m_resizer = new OlvResizeWidget(m_window.get(), 8);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get(), patience));
    m_window->move(100, 100);
    QTRY_VERIFY(isAt(QRect(100, 100, 400, 300)));
}

void TestFrameOnServer::cleanup()
{
    m_input.release();
    m_window.reset();
}

void TestFrameOnServer::followsThePointerExactly()
{
    drag({ 150, 110 }, { 500, 200 }, { 500, 200 }, { 0, 0 });
    QCOMPARE(onServer(), QRect(600, 300, 400, 300));
    drag({ 700, 320 }, { -400, -250 }, { -400, -250 }, { 0, 0 });
    QCOMPARE(onServer(), QRect(200, 50, 400, 300));
}

void TestFrameOnServer::resizesExactly_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QSize>("grows");
    QTest::newRow("right edge") << QPoint(496, 200) << QSize(150, 0);
    QTest::newRow("bottom edge") << QPoint(200, 396) << QSize(0, 90);
    QTest::newRow("corner") << QPoint(492, 392) << QSize(150, 90);
}

void TestFrameOnServer::resizesExactly()
{
    QFETCH(QPoint, from);
    QFETCH(QSize, grows);
    drag(from, { 150, 90 }, { 0, 0 }, grows);
    QCOMPARE(onServer(), QRect(QPoint(100, 100), QSize(400, 300) + grows));
}

void TestFrameOnServer::maximisedItIsNeitherMovedNorResized()
{
    m_window->showMaximized();
    QTRY_VERIFY(m_window->isMaximized() && onServer().width() > 1000);
    m_resizer->reset();
    QTest::qWait(50);
    const QRect maximised = onServer();
    for (const QPoint &from :
         { maximised.topLeft() + QPoint(50, 10), maximised.bottomRight() - QPoint(5, 5) }) {
        m_input.moveTo(from);
        m_input.press();
        m_input.moveTo(from + QPoint(-40, 30));
        QTest::qWait(80);
        m_input.release();
        QTest::qWait(50);
        QCOMPARE(onServer(), maximised);
    }
    m_window->showNormal();
    QTRY_VERIFY(!m_window->isMaximized());
    QTRY_VERIFY(isAt(QRect(100, 100, 400, 300)));
    m_resizer->reset();
    drag({ 150, 110 }, { 100, 50 }, { 100, 50 }, { 0, 0 });
    drag({ 592, 442 }, { 50, 50 }, { 0, 0 }, { 50, 50 });
}

void TestFrameOnServer::isMinimisedAndBroughtBack()
{
    m_window->showMinimized();
    QTRY_VERIFY(m_window->isMinimized() && !m_window->windowHandle()->isExposed());
    m_window->showNormal();
    QTRY_VERIFY(!m_window->isMinimized() && m_window->windowHandle()->isExposed());
    QTRY_VERIFY(isAt(QRect(100, 100, 400, 300)));
}

void TestFrameOnServer::clickAfterAMoveCounts()
{
    QPushButton button(QStringLiteral("Press"), m_window.get());
    button.setGeometry(150, 150, 100, 40);
    button.show();
    const QSignalSpy clicks(&button, &QPushButton::clicked);
    drag({ 150, 110 }, { 60, 40 }, { 60, 40 }, { 0, 0 });
    m_input.moveTo(button, button.rect().center());
    QTRY_VERIFY(button.underMouse());
    m_input.click();
    QTRY_COMPARE(clicks.count(), 1);
    m_input.click();
    QTRY_COMPARE(clicks.count(), 2);
}

void TestFrameOnServer::popUpOpensBesideAMovedWindow()
{
    drag({ 150, 110 }, { 250, 150 }, { 250, 150 }, { 0, 0 });
    QWidget popUp(m_window.get(), Qt::Popup);
    popUp.resize(120, 60);
    popUp.move(m_window->mapToGlobal(QPoint(200, 150)));
    popUp.show();
    QTRY_COMPARE(m_input.geometryOf(popUp.windowHandle()->winId()), QRect(550, 400, 120, 60));
    m_input.moveTo(popUp, popUp.rect().center());
    QTRY_VERIFY(popUp.underMouse());
    m_input.click();
    QTest::qWait(50);
    QVERIFY(popUp.isVisible());
    // A click beside it closes it.
    m_input.moveTo(*m_window, { 50, 100 });
    m_input.click();
    QTRY_VERIFY(!popUp.isVisible());
}

ADD_TEST(TestFrameOnServer, QApplication)
#include "tst_frameonserver.moc"
