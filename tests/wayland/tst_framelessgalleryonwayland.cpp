// SPDX-License-Identifier: MIT
#include "compositor.h"
#include "deferred.h"
#include "fakeportal.h"
#include "framelesswindow.h"
#include "gallerywindow.h"
#include "testprogram.h"

#include <QPushButton>
#include <QTest>

namespace {

constexpr QRgb headerColor = qRgb(12, 200, 180);

} // namespace

/** The gallery in a window of the library's own. */
class TestFramelessGalleryOnWayland : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void isMovedMaximisedAndClosed();
};

void TestFramelessGalleryOnWayland::cleanup()
{
    runDeferred();
}

void TestFramelessGalleryOnWayland::isMovedMaximisedAndClosed()
{
    const FakePortal portal; // grants the shortcuts of the gallery's pages
    auto *gallery = new GalleryWindow;
    FramelessWindow window(QStringLiteral("Gallery"), gallery);
    QPalette palette = window.palette();
    palette.setColor(QPalette::AlternateBase, QColor(headerColor));
    window.setPalette(palette);
    window.resize(700, 500);
    window.show();
    Compositor compositor;
    const auto area = [&] {
        return compositor.areaOf(headerColor);
    };
    QTRY_COMPARE(area().width(), 698); // within the frame
    const QPoint frame(1, 1);
    const QRect before = compositor.waitFor(window, headerColor, frame);
    QVERIFY(!before.isNull());
    const QPoint distance = QPoint(300, 200) - before.topLeft();
    compositor.drag(window, before.topLeft() + QPoint(200, 10), distance);
    QTRY_COMPARE(area(), before.translated(distance));
    const QRect moved = area();

    // The bar has no buttons that could do nothing.
    const auto *bar = window.findChild<OlvControlBar *>();
    const QList<QPushButton *> buttons =
        bar->findChildren<QPushButton *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(buttons.count(), 7);
    for (int i = 0; i < buttons.count(); ++i) {
        const int state = i - 1;
        QCOMPARE(buttons.at(i)->isVisible(), state < 0 || state > OlvControlBar::Top);
    }
    if (Compositor::isSway()) {
        QSKIP("sway maximises no windows that float");
    }
    const auto click = [&](OlvControlBar::WindowState state, QPoint corner) {
        QPushButton *button = buttons.at(1 + state);
        compositor.input.moveTo(corner + button->mapTo(&window, button->rect().center()));
        QTRY_VERIFY(button->underMouse());
        compositor.input.click();
    };
    click(OlvControlBar::Max, moved.topLeft() - frame);
    QTRY_VERIFY(window.isMaximized());
    QTRY_COMPARE(area().width(), 1278);
    QTest::qWait(100);
    click(OlvControlBar::Max, { 0, 0 });
    QTRY_COMPARE(area(), moved);
    click(OlvControlBar::Close, moved.topLeft() - frame);
    QTRY_VERIFY(!window.isVisible());
}

ADD_TEST(TestFramelessGalleryOnWayland, QApplication)
#include "tst_framelessgalleryonwayland.moc"
