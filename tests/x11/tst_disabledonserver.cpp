// SPDX-License-Identifier: MIT
#include "realinput.h"
#include "sizedswitch.h"
#include "sliderknob.h"
#include "testprogram.h"

#include <OlvMoveWidget>
#include <OlvResizeWidget>

#include <QSignalSpy>
#include <QTest>

#include <memory>

/** The real pointer on what is disabled, and on what is disabled while it is dragged. */
class TestDisabledOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void switchIgnoresClicks_data();
    void switchIgnoresClicks();
    void sliderDragEnds();
    void moveEnds();
    void panelIsNeitherMovedNorResized();
    void resizeStops();

private:
    /** Moves the pointer away from the marker, and waits until that has been heard of. */
    void aim(const QWidget &widget, QPoint place)
    {
        m_input->moveTo(widget, place);
        QTRY_VERIFY(!m_marker->underMouse());
    }
    /** Waits until the pointer's events have arrived: they come in order, this one last. */
    void settle()
    {
        m_input->moveTo(*m_marker, { 5, 5 });
        QTRY_VERIFY(m_marker->underMouse());
    }

    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<RealInput> m_input;
    QWidget *m_marker = nullptr;
    QWidget *m_panel = nullptr;
};

void TestDisabledOnServer::init()
{
    m_input = std::make_unique<RealInput>();
    QVERIFY(m_input->isValid());
    m_window = std::make_unique<QWidget>();
    m_window->resize(400, 300);
    m_marker = new QWidget(m_window.get());
    m_marker->setGeometry(0, 280, 20, 20);
    m_panel = new QWidget(m_window.get());
    m_panel->setGeometry(40, 40, 200, 100);
}

void TestDisabledOnServer::cleanup()
{
    m_input->release();
    m_window.reset();
}

void TestDisabledOnServer::switchIgnoresClicks_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::newRow("on the track") << QPoint(60, 20);
    QTest::newRow("on the knob") << QPoint(20, 20);
}

void TestDisabledOnServer::switchIgnoresClicks()
{
    QFETCH(QPoint, place);
    auto *toggle = new OlvSwitch(m_panel);
    toggle->resize(100, 40);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get(), patience));
    toggle->setEnabled(false);
    aim(*toggle, place);
    m_input->click();
    settle();
    QVERIFY(!toggle->isChecked());

    toggle->setEnabled(true);
    aim(*toggle, place);
    m_input->click();
    settle();
    QVERIFY(toggle->isChecked());
    QTRY_COMPARE(toggle->getValue(), QVariant(true));
}

void TestDisabledOnServer::sliderDragEnds()
{
    auto *slider = new OlvSlider(m_panel);
    SliderRound *knob = knobOf(*slider);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get(), patience));
    aim(*slider, { 15, 15 });
    m_input->press();
    m_input->moveTo(*slider, { 95, 15 });
    QTRY_COMPARE(slider->getValue(), QVariant(50));
    slider->setEnabled(false);
    m_input->moveTo(*slider, { 40, 15 });
    m_input->release();
    QTRY_COMPARE(knob->geometry(), QRect(90, 5, 20, 20));
    QCOMPARE(slider->getValue(), QVariant(50));
    aim(*slider, { 100, 15 });
    m_input->press();
    m_input->moveTo(*slider, { 40, 15 });
    m_input->release();
    settle();
    QCOMPARE(slider->getValue(), QVariant(50));
    QCOMPARE(knob->geometry(), QRect(90, 5, 20, 20));
}

void TestDisabledOnServer::moveEnds()
{
    OlvMoveWidget mover(m_panel);
    mover.setMoveArea(QRect());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get(), patience));
    aim(*m_window, { 60, 60 });
    m_input->press();
    m_input->moveTo(*m_window, { 80, 90 });
    QTRY_COMPARE(m_panel->pos(), QPoint(60, 70));
    m_panel->setEnabled(false);
    m_input->moveTo(*m_window, { 100, 100 });
    m_input->release();
    QTRY_COMPARE(mover.property("CanMove"), QVariant(false));
    QCOMPARE(m_panel->pos(), QPoint(60, 70));
}

void TestDisabledOnServer::panelIsNeitherMovedNorResized()
{
    OlvMoveWidget mover(m_panel);
    mover.setMoveArea(QRect());
    const OlvResizeWidget resizer(m_panel, 8);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get(), patience));
    m_panel->setEnabled(false);
    for (const QPoint &from :
         { QPoint(60, 60), QPoint(236, 80), QPoint(80, 136), QPoint(234, 134) }) {
        aim(*m_window, from);
        m_input->press();
        m_input->moveTo(*m_window, from + QPoint(20, 30));
        m_input->release();
        settle();
        QCOMPARE(m_panel->geometry(), QRect(40, 40, 200, 100));
        QVERIFY(!mover.property("CanMove").toBool());
    }
}

void TestDisabledOnServer::resizeStops()
{
    const OlvResizeWidget resizer(m_panel, 8);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get(), patience));
    aim(*m_window, { 234, 134 });
    m_input->press();
    m_input->moveTo(*m_window, { 254, 164 });
    QTRY_COMPARE(m_panel->geometry(), QRect(40, 40, 220, 130));
    m_panel->setEnabled(false);
    m_input->moveTo(*m_window, { 274, 184 });
    m_input->release();
    settle();
    QCOMPARE(m_panel->geometry(), QRect(40, 40, 220, 130));
    m_panel->setEnabled(true);
    aim(*m_window, { 270, 180 });
    settle();
    QCOMPARE(m_panel->geometry(), QRect(40, 40, 220, 130));
}

ADD_TEST(TestDisabledOnServer, QApplication)
#include "tst_disabledonserver.moc"
