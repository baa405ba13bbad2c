// SPDX-License-Identifier: MIT
#include "framelesswindow.h"

#include <OlvMoveWidget>
#include <OlvResizeWidget>

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int headerMargin = 6;
/** The control bar's height, and the margins above and below it. */
constexpr int headerHeight = 25 + 2 * headerMargin;
constexpr int handleWidth = 5;
constexpr QSize smallestSize(480, 360);

/** The glyphs of the six window buttons, that of "restore", and one of the application's own. */
QList<QChar> windowGlyphs()
{
    return {
        u'\uf08e', u'\uf103', u'\uf102', u'\uf2d1', u'\uf2d0', u'\uf00d', u'\uf2d2', u'\uf129'
    };
}

} // namespace

FramelessWindow::FramelessWindow(const QString &title, QWidget *content)
    : m_bar(new OlvControlBar(windowGlyphs(), nullptr, { QStringLiteral("About") }))
{
    setWindowTitle(title);
    setWindowFlags(Qt::FramelessWindowHint);
    setMinimumSize(smallestSize);

    auto *header = new QHBoxLayout;
    header->setContentsMargins(16, headerMargin, 8, headerMargin);
    // the title ignores the mouse, so that presses reach the window and drag it
    auto *label = new QLabel(title);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    header->addWidget(label);
    header->addWidget(m_bar, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 0, 1, 1);
    layout->setSpacing(0);
    layout->addLayout(header);
    layout->addWidget(content, 1);
    resize(content->size() + QSize(2, headerHeight));

    m_mover = new OlvMoveWidget(this);
    m_mover->setMoveArea(QRect(0, 0, width(), headerHeight));
    m_resizer = new OlvResizeWidget(this, handleWidth);

    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) {
        // where a program cannot stack its windows
        for (const auto state :
             { OlvControlBar::Float, OlvControlBar::Bottom, OlvControlBar::Top }) {
            m_bar->button(state)->hide();
        }
    }
    connect(m_bar, &OlvControlBar::changed, this, &FramelessWindow::change);
    connect(m_bar, &OlvControlBar::custom, this, [=] {
        QMessageBox::information(this, title,
                                 QStringLiteral("A window without a frame, of widgets only."));
    });
}

void FramelessWindow::resizeEvent(QResizeEvent * /*event*/)
{
    m_mover->setMoveArea(QRect(0, 0, width(), headerHeight));
    m_resizer->reset();
}

void FramelessWindow::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setPen(QColor(207, 207, 207));
    painter.setBrush(palette().alternateBase());
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void FramelessWindow::change(OlvControlBar::WindowState state, bool checked)
{
    switch (state) {
    case OlvControlBar::Float:
        setFlag(Qt::Tool, checked);
        break;
    case OlvControlBar::Bottom:
        // the bar unchecks the other button itself, and emits a signal for this one only
        setWindowFlag(Qt::WindowStaysOnTopHint, false);
        setFlag(Qt::WindowStaysOnBottomHint, checked);
        break;
    case OlvControlBar::Top:
        setWindowFlag(Qt::WindowStaysOnBottomHint, false);
        setFlag(Qt::WindowStaysOnTopHint, checked);
        break;
    case OlvControlBar::Min:
        showMinimized();
        break;
    case OlvControlBar::Max:
        checked ? showMaximized() : showNormal();
        break;
    case OlvControlBar::Close:
        close();
        break;
    }
}

void FramelessWindow::setFlag(Qt::WindowType flag, bool on)
{
    const QPoint place = pos();
    setWindowFlags(on ? windowFlags() | flag : (windowFlags() & ~flag) | Qt::Window);
    setAttribute(Qt::WA_QuitOnClose); // which Qt clears for a tool window
    // changing the flags of a window hides it
    move(place);
    show();
}
