// SPDX-License-Identifier: MIT
#include <OlvWidgets/containers.h>
#include <OlvWidgets/frame.h>

#include "containers/containermetrics_p.h"
#include "painting/canvas_p.h"
#include "painting/shape_p.h"
#include "support/accessibility_p.h"
#include "support/childaddress_p.h"
#include "support/platform_p.h"

#include <QPainter>
#include <QPointer>
#include <QTimer>

namespace {

constexpr char stayProperty[] = "stay";
constexpr char headerWayProperty[] = "headerWay";
constexpr char headerColorProperty[] = "headerWayColor";
constexpr char panelTimerProperty[] = "resizeTimer";

constexpr int noHeader = 0;
constexpr int smallestPanel = 50;
constexpr int handleWidth = 3;
constexpr int panelSettlingTime = 2000; // milliseconds
constexpr int panelRadius = 5;
constexpr int panelFrameWidth = 1;
constexpr int headerThickness = 10;
constexpr QRgb frameColor = qRgb(207, 207, 207);
constexpr QRgb panelColor = qRgb(245, 245, 245);

Qt::WindowFlags hintOf(int stayType)
{
    switch (stayType) {
    case OlvFlexWidget::StayTop:
        return Qt::WindowStaysOnTopHint;
    case OlvFlexWidget::StayBottom:
        return Qt::WindowStaysOnBottomHint;
    default:
        return {};
    }
}

QRect headerRect(int way, QSize size)
{
    const int width = size.width();
    const int height = size.height();
    switch (way) {
    case OlvFlexWidget::HeaderTop:
        return QRect(0, 0, width, headerThickness);
    case OlvFlexWidget::HeaderLeft:
        return QRect(0, 0, headerThickness, height);
    case OlvFlexWidget::HeaderBottom:
        return QRect(height - headerThickness, 0, width, headerThickness);
    case OlvFlexWidget::HeaderRight:
        return QRect(width - headerThickness, 0, headerThickness, height);
    default:
        return QRect();
    }
}

} // namespace

OlvFlexWidget::OlvFlexWidget(int width, int height, QWidget *parent)
    : QWidget(parent)
{
    Accessibility::prepare(this);
    setProperty(stayProperty, int(StayNormal));
    setProperty(headerWayProperty, noHeader);
    setMinimumSize(smallestPanel, smallestPanel);
    resize(width, height);
    setWindowFlags(Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);

    auto *resizer = new OlvResizeWidget(this, handleWidth);
    auto *mover = new OlvMoveWidget(this);
    mover->setMoveArea(rect());
    auto *timer = new QTimer(this);
    timer->setInterval(panelSettlingTime);
    setProperty(panelTimerProperty, reinterpret_cast<qulonglong>(timer));
    const QPointer<OlvResizeWidget> resizing(resizer);
    const QPointer<OlvMoveWidget> moving(mover);
    connect(timer, &QTimer::timeout, this, [=, self = static_cast<QObject *>(this)] {
        timer->stop();
        // the timer is destroyed after the panel's destructor has run, and may fire in between
        const auto *panel = qobject_cast<OlvFlexWidget *>(self);
        if (panel && moving) {
            moving->setMoveArea(panel->rect());
        }
        if (panel && resizing) {
            resizing->reset();
        }
    });
}

OlvFlexWidget::OlvFlexWidget(QWidget *parent)
    : OlvFlexWidget(ContainerMetrics::panelSize.width(), ContainerMetrics::panelSize.height(),
                    parent)
{ }

void OlvFlexWidget::stay(OlvStayType type)
{
    const int before = property(stayProperty).toInt();
    if (before == type) {
        return;
    }
    const Qt::WindowFlags flags = (windowFlags() ^ hintOf(before)) | hintOf(type);
    // event filters and listeners of assistive programs may delete the panel at each of these
    const QPointer<OlvFlexWidget> self(this);
    setProperty(stayProperty, int(type));
    if (self && isOnWayland() && isWindow() && isVisible()) {
        // Nothing stacks windows there, and showing it again would put it elsewhere.
        overrideWindowFlags(flags);
        return;
    }
    if (self) {
        setWindowFlags(flags);
    }
    if (self) {
        show();
    }
}

void OlvFlexWidget::toggleTool()
{
    const Qt::WindowFlags flags = windowFlags() ^ Qt::Tool;
    if (isOnWayland() && !parentWidget() && isVisible()) {
        // Tool windows are as any others there, and showing it again would put it elsewhere.
        overrideWindowFlags(flags | Qt::Window);
        if (windowType() == Qt::Tool) {
            setAttribute(Qt::WA_QuitOnClose, false); // as setWindowFlags() does
        }
        return;
    }
    const QPointer<OlvFlexWidget> self(this);
    setWindowFlags(flags);
    if (self) {
        show();
    }
}

void OlvFlexWidget::setHeaderWay(HeaderWay way, QColor color)
{
    if (way < HeaderTop || way > HeaderRight) {
        return;
    }
    const QPointer<OlvFlexWidget> self(this);
    setProperty(headerWayProperty, int(way));
    if (self) {
        setProperty(headerColorProperty, color.rgba());
    }
}

void OlvFlexWidget::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Canvas canvas(painter);
    const int radius = isMaximized() ? 0 : panelRadius;
    const Shape panel = Shape::roundedRect(rect(), radius);
    panel.fill(canvas, QColor(panelColor));
    panel.stroke(canvas, QColor(frameColor), panelFrameWidth);

    const int way = property(headerWayProperty).toInt();
    if (way != noHeader) {
        const QColor color(property(headerColorProperty).toUInt());
        Shape::roundedRect(headerRect(way, size()), radius).fill(canvas, color);
    }
}

void OlvFlexWidget::resizeEvent(QResizeEvent * /*event*/)
{
    if (auto *timer = childAtAddress<QTimer>(this, property(panelTimerProperty))) {
        timer->start(); // restarts a running timer
    }
}
