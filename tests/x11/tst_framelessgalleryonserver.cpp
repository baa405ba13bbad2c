// SPDX-License-Identifier: MIT
#include "framelesswindow.h"
#include "gallerywindow.h"
#include "realinput.h"
#include "testprogram.h"

#include <QPushButton>
#include <QTest>
#include <QWindow>

/** The gallery in a window of the library's own. */
class TestFramelessGalleryOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isMovedResizedAndControlled();
};

void TestFramelessGalleryOnServer::isMovedResizedAndControlled()
{
    FramelessWindow window(QStringLiteral("Gallery"), new GalleryWindow);
    window.resize(800, 600);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window, patience));
    window.move(100, 50);
    RealInput input;
    const auto onServer = [&] {
        return input.geometryOf(window.windowHandle()->winId());
    };
    const auto isAt = [&](const QRect &place) {
        return onServer() == place && window.geometry() == place;
    };
    QTRY_VERIFY(isAt(QRect(100, 50, 800, 600)));

    // by its header
    input.moveTo({ 300, 65 });
    input.press();
    QTest::qWait(30);
    for (int i = 1; i <= 5; ++i) {
        input.moveTo(QPoint(300, 65) + QPoint(20, 10) * i);
        QTRY_VERIFY(isAt(QRect(QPoint(100, 50) + QPoint(20, 10) * i, QSize(800, 600))));
    }
    input.release();

    // by its corner
    const QPoint corner(200 + 800 - 4, 100 + 600 - 4);
    input.moveTo(corner);
    input.press();
    for (int i = 1; i <= 5; ++i) {
        input.moveTo(corner + QPoint(10, 10) * i);
        QTRY_VERIFY(isAt(QRect(QPoint(200, 100), QSize(800, 600) + QSize(10, 10) * i)));
    }
    input.release();

    // by the control bar
    const auto *bar = window.findChild<OlvControlBar *>();
    const QList<QPushButton *> buttons =
        bar->findChildren<QPushButton *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(buttons.count(), 7);
    const auto click = [&](OlvControlBar::WindowState state) {
        input.moveTo(*buttons.at(1 + state), { 12, 12 });
        input.click();
    };
    click(OlvControlBar::Max);
    QTRY_VERIFY(window.isMaximized() && onServer().width() == 1280);
    QTest::qWait(50);
    click(OlvControlBar::Max);
    QTRY_VERIFY(!window.isMaximized());
    QTRY_COMPARE(onServer(), QRect(200, 100, 850, 650));
    QTest::qWait(50);
    click(OlvControlBar::Top);
    QTRY_VERIFY(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint) && window.isVisible());
    QVERIFY(QTest::qWaitForWindowActive(&window, patience));
    QTest::qWait(100);
    click(OlvControlBar::Close);
    QTRY_VERIFY(!window.isVisible());
}

ADD_TEST(TestFramelessGalleryOnServer, QApplication)
#include "tst_framelessgalleryonserver.moc"
