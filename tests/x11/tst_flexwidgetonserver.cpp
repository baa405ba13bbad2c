// SPDX-License-Identifier: MIT
#include "patience.h"
#include "testprogram.h"

#include <OlvFlexWidget>

#include <QProcess>
#include <QTest>
#include <QWindow>

class TestFlexWidgetOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void windowManagerSeesHowItStays();
    void windowManagerSeesATool();
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
    QVERIFY(QTest::qWaitForWindowActive(&panel, patience));
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

ADD_TEST(TestFlexWidgetOnServer, QApplication)
#include "tst_flexwidgetonserver.moc"
