// SPDX-License-Identifier: MIT
#include "picture.h"

#include <OlvWidgets/frame.h>

#include <QLabel>

namespace {

QLabel *addBox(QWidget *stage, QRect place, const char *style)
{
    auto *box = new QLabel(stage);
    box->setGeometry(place);
    box->setStyleSheet(QLatin1String(style));
    return box;
}

/** Where something was before. */
void addTrace(QWidget *stage, QRect place)
{
    addBox(stage, place, "QLabel { border: 1px dashed rgb(144,147,153); }");
}

QLabel *addWindow(QWidget *stage, QRect place)
{
    return addBox(stage, place,
                  "QLabel { background: rgb(236,245,255); border: 1px solid rgb(64,158,255); }");
}

std::function<void()> fillMoveWidget(QWidget *stage)
{
    const QRect before(16, 16, 200, 110);
    addTrace(stage, before);
    QLabel *window = addWindow(stage, before);
    auto *title = new QLabel(QStringLiteral("the area that moves it"), window);
    title->setAlignment(Qt::AlignCenter);
    title->setAttribute(Qt::WA_TransparentForMouseEvents);
    title->setGeometry(0, 0, before.width(), 32);
    title->setStyleSheet(QStringLiteral("QLabel { background: rgb(64,158,255); color: white; }"));
    auto *mover = new OlvMoveWidget(window);
    mover->setMoveArea(title->geometry());
    return [=] {
        drag(window, { 40, 16 }, { 72, 44 });
    };
}

OlvResizeItem *handleOf(QWidget *window, OlvResizeItem::ResizeType type)
{
    for (QObject *child : window->children()) {
        auto *handle = dynamic_cast<OlvResizeItem *>(child);
        if (handle && handle->type() == type) {
            return handle;
        }
    }
    return nullptr;
}

std::function<void()> fillResizeWidget(QWidget *stage)
{
    const QRect before(16, 16, 170, 90);
    QLabel *window = addWindow(stage, before);
    addTrace(stage, before);
    new OlvResizeWidget(window, 6);
    return [=] {
        drag(handleOf(window, OlvResizeItem::Corner), { 6, 6 }, { 100, 46 });
    };
}

std::function<void()> fillResizeItem(QWidget *stage)
{
    QLabel *window = addWindow(stage, { 16, 16, 260, 120 });
    new OlvResizeWidget(window, 8);
    const QPair<OlvResizeItem::ResizeType, const char *> colors[] = {
        { OlvResizeItem::RightEdge, "background: rgb(103,194,58);" },
        { OlvResizeItem::BottomEdge, "background: rgb(230,162,60);" },
        { OlvResizeItem::Corner, "background: rgb(245,108,108);" },
    };
    for (const auto &color : colors) {
        auto *shown = new QWidget(handleOf(window, color.first));
        shown->setStyleSheet(QLatin1String(color.second));
        shown->resize(window->size());
    }
    return {};
}

std::function<void()> fillControlBar(QWidget *stage)
{
    const QList<QChar> glyphs{ u'\uf08e', u'\uf103', u'\uf102', u'\uf2d1',
                               u'\uf2d0', u'\uf00d', u'\uf2d2', u'\uf013' };
    auto *bar = new OlvControlBar(glyphs, stage, { QStringLiteral("Settings") });
    bar->setGeometry(16, 16, 240, 25);
    return {};
}

std::function<void()> fillDragWidget(QWidget *stage)
{
    for (int i = 0; i < 3; ++i) {
        const QRect place(16 + i * 92, 16, 80, 48);
        if (i == 1) {
            addTrace(stage, place);
            auto *placeholder = new OlvDragWidget(stage);
            placeholder->setGeometry(place);
        } else {
            addWindow(stage, place);
        }
    }
    return {};
}

} // namespace

QVector<Picture> framePictures()
{
    return {
        { QStringLiteral("OlvMoveWidget"), { 304, 186 }, fillMoveWidget },
        { QStringLiteral("OlvResizeWidget"), { 304, 168 }, fillResizeWidget },
        { QStringLiteral("OlvResizeItem"), { 292, 152 }, fillResizeItem },
        { QStringLiteral("OlvControlBar"), { 272, 57 }, fillControlBar },
        { QStringLiteral("OlvDragWidget"), { 296, 80 }, fillDragWidget },
    };
}
