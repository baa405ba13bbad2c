// SPDX-License-Identifier: MIT
#include "value/sliderround_p.h"

#include "painting/canvas_p.h"
#include "painting/colors_p.h"
#include "painting/shape_p.h"
#include "support/mouseposition_p.h"
#include "support/pixels_p.h"
#include "value/slidermetrics_p.h"

#include <QPainter>

namespace {

constexpr int discInset = 2;
constexpr int ringWidth = 2;

void tell(QWidget *parent, int progress)
{
    // cast at each use: once the slider's destructor has run, the parent is only a QWidget
    if (auto *slider = dynamic_cast<OlvSlider *>(parent)) {
        slider->setValue(progress);
    }
}

/** In more bits than QRect::width(), which overflows where an application has moved the knob far.
 */
int widthOf(const QWidget &knob)
{
    const QRect place = knob.geometry();
    return toPixels(qint64(place.right()) - place.left() + 1);
}

} // namespace

SliderRound::SliderRound(QWidget *slider)
    : QWidget(slider)
    , d(std::make_unique<Private>())
{
    d->slider = slider;
    if (slider) {
        d->maxX = slider->width() - SliderMetrics::pressedKnobSize;
        d->mirror.width = slider->width();
    }
}

SliderRound::~SliderRound() = default;

int SliderRound::maxX() const
{
    return d->maxX;
}

void SliderRound::setMaxX(int maxX)
{
    d->maxX = maxX;
    if (d->slider) {
        d->mirror.width = d->slider->width();
    }
    // a mirrored knob is placed from the right end, which a resize moves
    if (d->mirror.isOn || (d->follows && !d->pressed)) {
        placeAt(qMax(0, d->progress));
    }
}

void SliderRound::dragTo(int progress)
{
    progress = SliderMetrics::inRange(progress);
    const QPointer<QWidget> slider(d->slider);
    d->progress = progress;
    placeAt(progress); // what hears of the move may delete the knob
    tell(slider, progress);
}

void SliderRound::follow(int progress)
{
    d->follows = true;
    dragTo(progress);
}

void SliderRound::placeAt(int progress)
{
    // Rounded up, since a drag rounds down: from there it gives the same percentage, wherever the
    // track has a pixel for it.
    const qint64 x =
        (qMax<qint64>(0, toPixels(d->maxX)) * progress + SliderMetrics::fullProgress - 1)
        / SliderMetrics::fullProgress;
    move(d->mirror.placed(int(x) + (d->pressed ? 0 : SliderMetrics::knobInset), widthOf(*this)),
         y());
}

void SliderRound::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Canvas canvas(painter);
    const Shape disc =
        Shape::ellipse(rect().adjusted(discInset, discInset, -discInset, -discInset));
    disc.fill(canvas, Qt::white);
    disc.stroke(canvas, QColor(Colors::primary), ringWidth);
}

bool SliderRound::event(QEvent *event)
{
    // Qt keeps the mouse from a disabled widget, also from one that was disabled during a drag
    if (event->type() == QEvent::MouseButtonRelease && d->pressed && !isEnabled()) {
        mouseReleaseEvent(static_cast<QMouseEvent *>(event));
        return true;
    }
    return QWidget::event(event);
}

void SliderRound::mousePressEvent(QMouseEvent *event)
{
    const QPointer<SliderRound> self(this);
    const int pressX = d->mirror.within(mousePosition(event).x(), widthOf(*this));
    const int x =
        toPixels(qint64(d->mirror.placed(this->x(), widthOf(*this))) - SliderMetrics::knobInset);
    setGeometry(d->mirror.placed(x, SliderMetrics::pressedKnobSize), 0,
                SliderMetrics::pressedKnobSize, SliderMetrics::pressedKnobSize);
    if (self) { // what hears of the geometry may have deleted the knob
        d->pressed = true;
        d->pressX = pressX;
    }
}

void SliderRound::mouseMoveEvent(QMouseEvent *event)
{
    if (!d->pressed) {
        return;
    }
    const int mouseX = d->mirror.within(mousePosition(event).x(), widthOf(*this));
    const qint64 newX = qint64(mouseX) - d->pressX + d->mirror.placed(x(), widthOf(*this));
    const int maxX = toPixels(d->maxX);
    int place = 0;
    int progress = 0;
    if (newX > maxX) {
        // in a slider narrower than the knob maxX is negative, and every drag ends here
        place = maxX;
        progress = SliderMetrics::fullProgress;
    } else if (newX >= 0) {
        place = int(newX);
        // in a slider as wide as the knob maxX is 0, and no drag moves it
        progress = maxX > 0 ? int(newX * SliderMetrics::fullProgress / maxX) : 0;
    }
    const QPointer<SliderRound> self(this);
    move(d->mirror.placed(place, widthOf(*this)), 0);
    if (!self || progress == d->progress) {
        return;
    }
    d->progress = progress;
    tell(d->slider, progress);
}

void SliderRound::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    const QPointer<SliderRound> self(this);
    const int x =
        toPixels(qint64(d->mirror.placed(this->x(), widthOf(*this))) + SliderMetrics::knobInset);
    setGeometry(d->mirror.placed(x, SliderMetrics::restingKnobSize), SliderMetrics::knobInset,
                SliderMetrics::restingKnobSize, SliderMetrics::restingKnobSize);
    if (self) {
        d->pressed = false;
    }
}
