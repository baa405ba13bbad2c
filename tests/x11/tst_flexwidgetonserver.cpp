// SPDX-License-Identifier: MIT
#include "realinput.h"

#include <OlvFlexWidget>

#include <QElapsedTimer>
#include <QProcess>
#include <QTest>
#include <QWindow>

class TestFlexWidgetOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void windowManagerSeesHowItStays();
    void windowManagerSeesATool();
    void movesByAllOfIt();
    void movesByItsNewAreaAfterTwoSeconds();
    void resizesByItsCorner();
};

namespace {

/** What the server has as a property of the panel's window, in xprop's words. */
QString propertyOf(const QWidget &panel, const char *name)
{
    QProcess xprop;
    xprop.start(QStringLiteral("xprop"),
                { QStringLiteral("-id"), QString::number(panel.windowHandle()->winId()),
                  QLatin1String(name) });
    xprop.waitForFinished();
    return QString::fromUtf8(xprop.readAllStandardOutput());
}

bool isAt(const RealInput &input, const QWidget &panel, const QRect &geometry)
{
    return input.geometryOf(panel.windowHandle()->winId()) == geometry
        && panel.geometry() == geometry;
}

void showAt(OlvFlexWidget &panel, const RealInput &input, const QRect &geometry)
{
    panel.setGeometry(geometry);
    panel.show();
    QVERIFY(QTest::qWaitForWindowActive(&panel));
    panel.move(geometry.topLeft());
    QTRY_VERIFY(isAt(input, panel, geometry));
}

} // namespace

void TestFlexWidgetOnServer::windowManagerSeesHowItStays()
{
    OlvFlexWidget panel(200, 150);
    const auto state = [&] {
        return propertyOf(panel, "_NET_WM_STATE");
    };
    panel.stay(OlvFlexWidget::StayTop);
    QTRY_VERIFY(state().contains(QStringLiteral("_NET_WM_STATE_ABOVE")));
    QVERIFY(!state().contains(QStringLiteral("_NET_WM_STATE_BELOW")));
    panel.stay(OlvFlexWidget::StayBottom);
    QTRY_VERIFY(state().contains(QStringLiteral("_NET_WM_STATE_BELOW")));
    QVERIFY(!state().contains(QStringLiteral("_NET_WM_STATE_ABOVE")));
    panel.stay(OlvFlexWidget::StayNormal);
    QTRY_VERIFY(!state().contains(QStringLiteral("_NET_WM_STATE_BELOW")));
    QVERIFY(!state().contains(QStringLiteral("_NET_WM_STATE_ABOVE")));
}

void TestFlexWidgetOnServer::windowManagerSeesATool()
{
    OlvFlexWidget panel(200, 150);
    panel.show();
    QVERIFY(QTest::qWaitForWindowActive(&panel));
    const auto type = [&] {
        return propertyOf(panel, "_NET_WM_WINDOW_TYPE");
    };
    for (int i = 0; i < 2; ++i) {
        panel.toggleTool();
        QTRY_VERIFY(type().contains(QStringLiteral("_NET_WM_WINDOW_TYPE_UTILITY")));
        panel.toggleTool();
        QTRY_VERIFY(type().contains(QStringLiteral("_NET_WM_WINDOW_TYPE_NORMAL")));
        QVERIFY(!type().contains(QStringLiteral("_NET_WM_WINDOW_TYPE_UTILITY")));
    }
}

void TestFlexWidgetOnServer::movesByAllOfIt()
{
    OlvFlexWidget panel(300, 200);
    RealInput input;
    showAt(panel, input, QRect(100, 100, 300, 200));
    input.moveTo({ 350, 250 });
    input.press();
    QTest::qWait(30);
    for (int i = 1; i <= 10; ++i) {
        input.moveTo(QPoint(350, 250) + QPoint(40, 20) * i);
        QTRY_VERIFY(
            isAt(input, panel, QRect(QPoint(100, 100) + QPoint(40, 20) * i, QSize(300, 200))));
    }
    input.release();
}

void TestFlexWidgetOnServer::movesByItsNewAreaAfterTwoSeconds()
{
    OlvFlexWidget panel(300, 200);
    RealInput input;
    showAt(panel, input, QRect(100, 100, 300, 200));
    QTest::qWait(2200); // showing it was a resize too
    const auto dragAtTheRight = [&] {
        const QPoint from = panel.pos() + QPoint(350, 50);
        input.moveTo(from);
        input.press();
        QTest::qWait(30);
        input.moveTo(from + QPoint(30, 30));
        QTest::qWait(100);
        input.release();
    };
    QElapsedTimer clock;
    clock.start();
    panel.resize(400, 300);
    QTRY_VERIFY(isAt(input, panel, QRect(100, 100, 400, 300)));
    dragAtTheRight();
    QVERIFY(isAt(input, panel, QRect(100, 100, 400, 300)));
    QVERIFY2(clock.elapsed() < 1900, "too slow a machine to see it before the two seconds");
    QTest::qWait(int(2300 - clock.elapsed()));
    dragAtTheRight();
    QTRY_VERIFY(isAt(input, panel, QRect(130, 130, 400, 300)));
}

void TestFlexWidgetOnServer::resizesByItsCorner()
{
    OlvFlexWidget panel(300, 200);
    RealInput input;
    showAt(panel, input, QRect(100, 100, 300, 200));
    input.moveTo({ 397, 297 });
    input.press();
    for (int i = 1; i <= 5; ++i) {
        input.moveTo(QPoint(397, 297) + QPoint(20, 10) * i);
        QTRY_VERIFY(
            isAt(input, panel, QRect(QPoint(100, 100), QSize(300, 200) + QSize(20, 10) * i)));
    }
    input.release();
}

QTEST_MAIN(TestFlexWidgetOnServer)
#include "tst_flexwidgetonserver.moc"
