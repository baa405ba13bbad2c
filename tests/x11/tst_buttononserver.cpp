// SPDX-License-Identifier: MIT
#include "realinput.h"
#include "testprogram.h"

#include <OlvButton>

#include <QSignalSpy>
#include <QTest>

#include <memory>

/** A button in a window that leaves room around it. */
class TestButtonOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void hoversUnderThePointer();
    void draggedOutItStaysPressedAndHearsOfItAfterTheRelease_data();
    void draggedOutItStaysPressedAndHearsOfItAfterTheRelease();
    void draggedOutAndInAgainItClicksOnce();
    void releasedOverItAfterAPressElsewhereDoesNothing();

private:
    QString state() const
    {
        return m_button->property("state").toString();
    }
    bool hovered() const
    {
        return m_button->property("hovered").toBool();
    }

    std::unique_ptr<QWidget> m_window;
    OlvButton *m_button = nullptr;
    std::unique_ptr<QSignalSpy> m_clicked;
    RealInput m_input;
    const QPoint m_inside{ 60, 20 };
    const QPoint m_outside{ 60, 80 };
};

void TestButtonOnServer::init()
{
    QVERIFY(m_input.isValid());
    m_window = std::make_unique<QWidget>();
    m_window->resize(300, 200);
    m_button = new OlvButton(QStringLiteral("Button"), m_window.get());
    m_button->setGeometry(50, 30, 120, 40);
    m_clicked = std::make_unique<QSignalSpy>(m_button, &OlvButton::clicked);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get(), patience));
    m_input.moveTo(*m_button, m_outside);
    QTRY_COMPARE(QCursor::pos(), m_button->mapToGlobal(m_outside));
    QTRY_COMPARE(state(), QStringLiteral("init"));
}

void TestButtonOnServer::cleanup()
{
    // a test that failed half-way must not leave the button held for the next one
    m_input.release();
    m_clicked.reset();
    m_window.reset();
}

void TestButtonOnServer::hoversUnderThePointer()
{
    m_input.moveTo(*m_button, m_inside);
    QTRY_COMPARE(state(), QStringLiteral("hover"));
    QVERIFY(hovered());
    m_input.moveTo(*m_button, m_outside);
    QTRY_COMPARE(state(), QStringLiteral("init"));
    QVERIFY(!hovered());
}

void TestButtonOnServer::draggedOutItStaysPressedAndHearsOfItAfterTheRelease_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::newRow("within the window") << m_outside;
    QTest::newRow("out of the window") << QPoint(450, 300);
}

void TestButtonOnServer::draggedOutItStaysPressedAndHearsOfItAfterTheRelease()
{
    QFETCH(QPoint, place);
    m_input.moveTo(*m_button, m_inside);
    m_input.press();
    QTRY_COMPARE(state(), QStringLiteral("click"));
    m_input.moveTo(*m_button, place);
    QTRY_COMPARE(QCursor::pos(), m_button->mapToGlobal(place));
    QTest::qWait(50);
    QCOMPARE(state(), QStringLiteral("click"));
    // Qt sends Leave only once the mouse button is up: to the button this is a release inside
    QVERIFY(hovered());
    m_input.release();
    QTRY_VERIFY(!hovered());
    QCOMPARE(state(), QStringLiteral("init"));
    QCOMPARE(m_clicked->count(), 1);
}

void TestButtonOnServer::draggedOutAndInAgainItClicksOnce()
{
    m_input.moveTo(*m_button, m_inside);
    m_input.press();
    QTRY_COMPARE(state(), QStringLiteral("click"));
    m_input.moveTo(*m_button, m_outside);
    QTRY_COMPARE(QCursor::pos(), m_button->mapToGlobal(m_outside));
    m_input.moveTo(*m_button, m_inside);
    QTRY_COMPARE(QCursor::pos(), m_button->mapToGlobal(m_inside));
    m_input.release();
    QTRY_COMPARE(m_clicked->count(), 1);
    QCOMPARE(state(), QStringLiteral("hover"));
}

void TestButtonOnServer::releasedOverItAfterAPressElsewhereDoesNothing()
{
    m_input.moveTo(*m_button, m_outside);
    m_input.press();
    m_input.moveTo(*m_button, m_inside);
    m_input.release();
    QTRY_COMPARE(state(), QStringLiteral("hover"));
    QCOMPARE(m_clicked->count(), 0);
}

ADD_TEST(TestButtonOnServer, QApplication)
#include "tst_buttononserver.moc"
