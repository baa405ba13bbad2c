// SPDX-License-Identifier: MIT
// What mirrored widgets draw: their pixels from the right to the left, and texts as they are.
#include "deferred.h"
#include "makewidget.h"
#include "pixels.h"
#include "sizedlineedit.h"
#include "sizedswitch.h"
#include "sliderknob.h"
#include "testprogram.h"

#include <OlvWidgets/OlvWidgets>

#include <QPainter>
#include <QTest>

namespace {

/** A widget with its parts on a ground, as the window shows it. */
QImage shownAt(QWidget &widget, qreal ratio)
{
    QImage image((QSizeF(widget.size()) * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(qRgb(200, 220, 240));
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

QImage mirrorImage(const QImage &image)
{
    return image.mirrored(true, false);
}

/** Qt rounds curves to one side, and blends them with the ground in one step or in two. */
constexpr int roundingError = 3;

OlvSlider *slider(QWidget *parent, int percent)
{
    auto *one = new OlvSlider(parent);
    one->setSliderPosition(percent);
    return one;
}

template <bool on, int steps> QWidget *sliding(QWidget *parent)
{
    auto *one = new OlvSwitch(parent);
    one->setChecked(!on);
    QResizeEvent event({ 80, 30 }, one->size());
    one->resize(80, 30);
    QCoreApplication::sendEvent(one, &event);
    one->setValue(on);
    for (int step = 0; step < steps; ++step) {
        tick(*one);
    }
    return one;
}

} // namespace

class TestMirroringPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        runDeferred();
    }
    void isTheOtherDirectionInAMirror_data();
    void isTheOtherDirectionInAMirror();
    void leavesGlyphsReadable_data();
    void leavesGlyphsReadable();
    void leavesShortcutsReadable();
    void isDrawnInRotatedPictures();
};

void TestMirroringPainting::isTheOtherDirectionInAMirror_data()
{
    QTest::addColumn<MakeIn>("make");
    QTest::addColumn<qreal>("ratio");
    const QVector<QPair<const char *, MakeIn>> kinds{
        { "slider at 0",
          [](QWidget *parent) -> QWidget * {
              return slider(parent, 0);
          } },
        { "slider at 33",
          [](QWidget *parent) -> QWidget * {
              return slider(parent, 33);
          } },
        { "slider at 100",
          [](QWidget *parent) -> QWidget * {
              return slider(parent, 100);
          } },
        { "dragged slider",
          [](QWidget *parent) -> QWidget * {
              auto *one = slider(parent, 40);
              QTest::mousePress(knobOf(*one), Qt::LeftButton);
              return one;
          } },
        { "switch off", sliding<false, 5> },
        { "switch on", sliding<true, 5> },
        { "switch on its way", sliding<true, 2> },
        { "switch on its way back", sliding<false, 3> },
        { "line edit",
          [](QWidget *parent) -> QWidget * {
              return new OlvLineEdit(parent);
          } },
        { "shortcut edit",
          [](QWidget *parent) -> QWidget * {
              return new OlvShortcutEdit(parent);
          } },
    };
    for (const qreal ratio : { 1.0, 2.0 }) {
        for (const auto &kind : kinds) {
            QTest::addRow("%s at %g", kind.first, ratio) << kind.second << ratio;
        }
    }
}

void TestMirroringPainting::isTheOtherDirectionInAMirror()
{
    QFETCH(MakeIn, make);
    QFETCH(qreal, ratio);
    QWidget window;
    window.resize(300, 100);
    window.show();
    QWidget *widget = make(&window);
    widget->show();
    QWidget *first = widget;
    const QImage ltr = shownAt(*first, ratio);
    new OlvFormSupport(&window, OlvFormSupport::Mirroring);
    COMPARE_PICTURES(shownAt(*widget, ratio), ltr); // this direction is untouched
    window.setLayoutDirection(Qt::RightToLeft);
    const int deviation = largestDifference(shownAt(*widget, ratio), mirrorImage(ltr));
    QVERIFY2(deviation <= roundingError, qPrintable(QString::number(deviation)));
    window.setLayoutDirection(Qt::LeftToRight);
    COMPARE_PICTURES(shownAt(*widget, ratio), ltr);
}

void TestMirroringPainting::leavesGlyphsReadable_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<bool>("focused");
    for (const qreal ratio : { 1.0, 2.0 }) {
        QTest::addRow("at %g", ratio) << ratio << false;
        QTest::addRow("focused at %g", ratio) << ratio << true;
    }
}

void TestMirroringPainting::leavesGlyphsReadable()
{
    QFETCH(qreal, ratio);
    QFETCH(bool, focused);
    QWidget window;
    window.resize(300, 100);
    auto *edit = new OlvLineEdit(&window);
    edit->setGeometry(0, 0, 201, 30);
    edit->setIcon(QStringLiteral("R"));
    window.show();
    sendFocus(editorOf(*edit), focused ? QEvent::FocusIn : QEvent::FocusOut);
    const int column = edit->property("IconWidth").toInt();
    // without the lines of the frame around it
    const QRect inner(3, 3, column - 6, 24);
    const auto part = [&](const QImage &image, int x) {
        const QRect rect = inner.translated(x, 0);
        return image.copy(QRect((QPointF(rect.topLeft()) * ratio).toPoint(),
                                (QSizeF(rect.size()) * ratio).toSize()));
    };
    const QImage ltr = pictureOf(*edit, ratio);
    new OlvFormSupport(&window, OlvFormSupport::Mirroring);
    window.setLayoutDirection(Qt::RightToLeft);
    const QImage rtl = pictureOf(*edit, ratio);
    QVERIFY(colorCount(part(ltr, 0)) > 1);
    COMPARE_PICTURES(part(rtl, 201 - column), part(ltr, 0));
    QCOMPARE(colorCount(part(rtl, 0)), 1); // nothing is left of it at the other side
    QVERIFY(part(rtl, 201 - column) != mirrorImage(part(ltr, 0)));
}

void TestMirroringPainting::leavesShortcutsReadable()
{
    /** One that registers without a server. */
    class Shortcut : public OlvShortcut
    {
    public:
        Shortcut()
            : OlvShortcut(Qt::Key_F, true, false, false, false)
        { }
        bool active() override
        {
            return true;
        }
        void destroy() override { }
    };
    QWidget window;
    window.resize(300, 100);
    auto *edit = new OlvShortcutEdit(&window);
    edit->setGeometry(0, 0, 200, 30);
    window.show();
    QVERIFY(edit->setShortcut(new Shortcut));
    const QRect inner(4, 4, 192, 22); // without the frame
    for (const qreal ratio : { 1.0, 2.0 }) {
        window.setLayoutDirection(Qt::LeftToRight);
        const QImage ltr = pictureOf(*edit, ratio);
        const OlvFormSupport support(&window, OlvFormSupport::Mirroring);
        window.setLayoutDirection(Qt::RightToLeft);
        const QImage rtl = pictureOf(*edit, ratio);
        const QRect part((QPointF(inner.topLeft()) * ratio).toPoint(),
                         (QSizeF(inner.size()) * ratio).toSize());
        QVERIFY(colorCount(ltr.copy(part)) > 1);
        COMPARE_PICTURES(rtl.copy(part), ltr.copy(part));
        const QRect frame(0, int(4 * ratio), int(2 * ratio), int(20 * ratio));
        const QRect other(rtl.width() - frame.width(), frame.y(), frame.width(), frame.height());
        COMPARE_PICTURES(rtl.copy(other), mirrorImage(ltr.copy(frame)));
        COMPARE_PICTURES(rtl.copy(frame), mirrorImage(ltr.copy(other)));
    }
}

/** Where a mirror image of the device's own pixels is not to be had. */
void TestMirroringPainting::isDrawnInRotatedPictures()
{
    QWidget window;
    window.setLayoutDirection(Qt::RightToLeft);
    SizedLineEdit edit({ 100, 30 });
    edit.setParent(&window);
    new OlvFormSupport(&window, OlvFormSupport::Mirroring);
    const QImage upright = pictureOf(edit);
    QImage image(30, 100, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(30, 0);
    painter.rotate(90);
    edit.render(&painter, QPoint(), QRegion(), {});
    painter.end();
    QCOMPARE(image.pixel(15, 50), qRgb(255, 255, 255));
    COMPARE_PICTURES(image.transformed(QTransform().rotate(-90)), upright);
}

ADD_TEST(TestMirroringPainting, QApplication)
#include "tst_mirroringpainting.moc"
