// SPDX-License-Identifier: MIT
#include "captionscene.h"

#include <OlvWidgets/foundation.h>

#include <QPainter>

#include <utility>

namespace {

/** A widget on a screen of its own scale. */
class ScaledWidget : public DrawnWidget
{
public:
    ScaledWidget(QSize size, Draw draw, int dotsPerInch)
        : DrawnWidget(size, std::move(draw))
        , m_dotsPerInch(dotsPerInch)
    { }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        const bool isScale = metric == PdmDpiX || metric == PdmDpiY;
        return isScale && m_dotsPerInch > 0 ? m_dotsPerInch : DrawnWidget::metric(metric);
    }

private:
    int m_dotsPerInch;
};

void drawGround(const Scene &scene, QPainter &painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    scene.shape().fill(Canvas(painter), scene.fill);
    if (scene.lineWidth > 0) {
        scene.shape().stroke(Canvas(painter), QColor(179, 216, 255), scene.lineWidth);
    }
}

QImage rendered(const Target &target, QSize size, const DrawnWidget::Draw &paint)
{
    ScaledWidget widget(size, paint, target.dotsPerInch);
    if (target.prepare) {
        target.prepare(widget);
    }
    QImage image((size + QSize(60, 60)) * target.devicePixelRatio, target.format);
    image.setDevicePixelRatio(target.devicePixelRatio);
    image.fill(QColor(200, 180, 30));
    const QRegion region = target.region.isEmpty() ? QRegion(widget.rect()) : target.region;
    const QPoint place = QPoint(20, 25) + target.offset + region.boundingRect().topLeft();
    if (target.open) {
        QPainter painter(&image);
        target.open(painter);
        widget.render(&painter, place, region, QWidget::RenderFlags());
    } else {
        widget.render(&image, place, region, QWidget::RenderFlags());
    }
    return image;
}

} // namespace

Shape Scene::shape() const
{
    return Shape::roundedRect(rect, radius);
}

Scene sceneOf(const QString &text, QSize size)
{
    return { { text, Qt::white, QStringLiteral("宋体"), 9 },
             QRect(QPoint(), size),
             size.height() / 5,
             QColor(64, 158, 255),
             0 };
}

QImage pictureOf(const Scene &scene, const Target &target, bool *wasCopied)
{
    // as long as the painter has a pen that no caption is written with, the caption was copied
    const QPen untouched(QColor(1, 2, 3), 7, Qt::DotLine);
    return rendered(target, scene.rect.size(), [&](QPainter &painter) {
        drawGround(scene, painter);
        painter.setPen(untouched);
        scene.caption.draw(Canvas(painter), { scene.shape(), scene.fill, scene.lineWidth });
        if (wasCopied) {
            *wasCopied = painter.pen() == untouched;
        }
    });
}

QImage referenceOf(const Scene &scene, const Target &target)
{
    return rendered(target, scene.rect.size(), [&](QPainter &painter) {
        drawGround(scene, painter);
        const Caption &caption = scene.caption;
        QFont font(caption.family, caption.pointSize);
        font.setPointSize(
            OlvGlobal::adaptDocumentToPointSize(caption.text, scene.rect.size(), font));
        painter.setFont(font);
        painter.setPen(caption.color);
        painter.drawText(scene.rect, Qt::AlignCenter, caption.text);
    });
}

int copiesIn(const Scene &scene, const Target &target, int pictures)
{
    int copies = 0;
    for (int i = 0; i < pictures; ++i) {
        bool wasCopied = false;
        pictureOf(scene, target, &wasCopied);
        copies += wasCopied;
    }
    return copies;
}

void compareThirdPicture(const Scene &scene, const Target &target, bool *wasCopied)
{
    copiesIn(scene, target, 2);
    COMPARE_PICTURES(pictureOf(scene, target, wasCopied), referenceOf(scene, target));
}
