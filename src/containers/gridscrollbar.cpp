// SPDX-License-Identifier: MIT
#include "containers/gridscrollbar_p.h"

#include "support/pixels_p.h"

#include <QWheelEvent>

namespace {

constexpr int unitsPerNotch = 20;

/** What QWheelEvent::delta() said: the turn about the axis that was turned further. */
int deltaOf(const QWheelEvent *event)
{
    const QPoint angle = event->angleDelta();
    // in 64 bits, since the smallest int has no positive counterpart
    return qAbs<qint64>(angle.x()) > qAbs<qint64>(angle.y()) ? angle.x() : angle.y();
}

} // namespace

void GridScrollBar::setUp(QScrollBar *bar)
{
    bar->setStyleSheet(
        QStringLiteral("QScrollBar{width:10px;background:rgba(0,0,0,10%);border-radius:5px}"
                       "QScrollBar::handle{background:rgba(0,0,0,25%);border-radius:5px}"
                       "QScrollBar::handle:hover{background:rgba(0,0,0,50%)}"
                       "QScrollBar::add-line,QScrollBar::sub-line{border:none}"
                       "QScrollBar::sub-page,QScrollBar::add-page{background:rgba(0,0,0,0)}"));
    bar->hide();
}

void GridScrollBar::reset(const QPointer<QScrollBar> &bar)
{
    bar->setMaximum(0);
    if (bar) {
        bar->hide();
    }
}

int GridScrollBar::valueAfter(const QWheelEvent *event, const QScrollBar *bar)
{
    const int units = deltaOf(event) < 0 ? unitsPerNotch : -unitsPerNotch;
    // an application may have set any range
    return int(qBound(qint64(0), bar->value() + qint64(units), qint64(bar->maximum())));
}

int GridScrollBar::maximum(int hiddenHeight, bool isRoundedUp)
{
    return (hiddenHeight + (isRoundedUp ? pixelsPerUnit - 1 : 0)) / pixelsPerUnit;
}

int GridScrollBar::valueShowing(qint64 top, qint64 bottom, int height, int value)
{
    const auto unitsUpTo = [](qint64 pixels) {
        return (pixels + pixelsPerUnit - 1) / pixelsPerUnit;
    };
    const qint64 last = top / pixelsPerUnit;
    const qint64 first = qMin(unitsUpTo(bottom - height), last);
    return toPixels(qBound(qMax<qint64>(first, 0), qint64(value), qMax<qint64>(last, 0)));
}
