// SPDX-License-Identifier: MIT
#include "widgeticon.h"

#include "widgetkind.h"

#include <QPainter>
#include <QPixmap>
#include <QWidget>

namespace {

/** The side of the icons, of which the widget box shows a quarter; the drawing is scaled down. */
constexpr int side = 96;

} // namespace

QIcon widgetIcon(const WidgetKind &kind)
{
    const std::unique_ptr<QWidget> widget = newWidget(kind);
    widget->setMinimumSize(0, 0);
    widget->resize(kind.sampleSize);
    if (kind.pose) {
        kind.pose(widget.get());
    }

    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const QSize size = widget->size();
    const qreal scale = qreal(side) / qMax(size.width(), size.height());
    painter.translate(side / 2.0, side / 2.0);
    painter.scale(scale, scale);
    painter.translate(-size.width() / 2.0, -size.height() / 2.0);
    // without the background of a window
    widget->render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
    painter.end();
    return QIcon(pixmap);
}
