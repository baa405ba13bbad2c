// SPDX-License-Identifier: MIT
#include <OlvWidgets/value.h>

#include "painting/canvas_p.h"
#include "painting/shape_p.h"
#include "support/mouseposition_p.h"
#include "value/slidermetrics_p.h"

#include <QPainter>
#include <QPointer>

namespace {

constexpr int discInset = 2;
constexpr int ringWidth = 2;
constexpr int noProgress = -1;

void tell(QWidget *parent, int progress)
{
    // asked each time: what is left of a slider that is being destroyed is no slider any more
    if (auto *slider = dynamic_cast<OlvSlider *>(parent)) {
        slider->setValue(progress);
    }
}

} // namespace

class SliderRound::Private
{
public:
    QPointer<QWidget> slider;
    int maxX = 0;
    bool pressed = false;
    bool follows = false;      // keeps to its percentage when the slider is resized
    int pressX = 0;            // in the knob as it was before the press
    int progress = noProgress; // handed over last
};

SliderRound::SliderRound(QWidget *slider)
    : QWidget(slider)
    , d(std::make_unique<Private>())
{
    d->slider = slider;
    if (slider) {
        d->maxX = slider->width() - SliderMetrics::pressedKnobSize;
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
    if (d->follows && !d->pressed) {
        placeAt(d->progress);
    }
}

void SliderRound::dragTo(int progress)
{
    progress = qBound(0, progress, SliderMetrics::fullProgress);
    const QPointer<QWidget> slider(d->slider);
    d->progress = progress;
    placeAt(progress); // after which the knob may be gone
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
        (qBound<qint64>(0, d->maxX, QWIDGETSIZE_MAX) * progress + SliderMetrics::fullProgress - 1)
        / SliderMetrics::fullProgress;
    move(int(x) + (d->pressed ? 0 : SliderMetrics::knobInset), y());
}

void SliderRound::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Canvas canvas(painter);
    const Shape disc =
        Shape::ellipse(rect().adjusted(discInset, discInset, -discInset, -discInset));
    disc.fill(canvas, Qt::white);
    disc.stroke(canvas, QColor(SliderMetrics::blue), ringWidth);
}

void SliderRound::mousePressEvent(QMouseEvent *event)
{
    setGeometry(x() - SliderMetrics::knobInset, 0, SliderMetrics::pressedKnobSize,
                SliderMetrics::pressedKnobSize);
    d->pressed = true;
    d->pressX = mousePosition(event).x();
}

void SliderRound::mouseMoveEvent(QMouseEvent *event)
{
    if (!d->pressed) {
        return;
    }
    const qint64 newX = qint64(mousePosition(event).x()) - d->pressX + x();
    // setMaxX() takes any number
    const int maxX = qBound(-QWIDGETSIZE_MAX, d->maxX, QWIDGETSIZE_MAX);
    int progress = 0;
    if (newX > maxX) {
        // a slider narrower than the knob ends left of its start: every drag ends here then
        move(maxX, 0);
        progress = SliderMetrics::fullProgress;
    } else if (newX < 0) {
        move(0, 0);
    } else {
        move(int(newX), 0);
        // a slider as wide as the knob has room for 0 alone
        progress = maxX > 0 ? int(newX * SliderMetrics::fullProgress / maxX) : 0;
    }
    if (progress == d->progress) {
        return;
    }
    d->progress = progress;
    tell(d->slider, progress);
}

void SliderRound::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    setGeometry(x() + SliderMetrics::knobInset, SliderMetrics::knobInset,
                SliderMetrics::restingKnobSize, SliderMetrics::restingKnobSize);
    d->pressed = false;
}
