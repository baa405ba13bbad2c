// SPDX-License-Identifier: MIT
#include "picture.h"

#include <OlvWidgets/buttons.h>
#include <OlvWidgets/containers.h>

namespace {

std::function<void()> fillGridLayout(QWidget *stage)
{
    const struct
    {
        ushort glyph;
        const char *text;
    } items[] = {
        { 0xf0ac, "Browser" }, { 0xf0e0, "Mail" },       { 0xf120, "Terminal" },
        { 0xf07b, "Files" },   { 0xf1ec, "Calculator" }, { 0xf001, "Music" },
        { 0xf03d, "Videos" },  { 0xf03e, "Pictures" },   { 0xf073, "Calendar" },
        { 0xf0ad, "Tools" },   { 0xf023, "Lock" },       { 0xf013, "Settings" },
        { 0xf128, "Help" },
    };
    auto *viewport = new QWidget(stage);
    viewport->setGeometry(0, 0, stage->width(), stage->height());
    auto *grid = new OlvGridLayout(viewport);
    grid->resize(viewport->size());
    QList<QWidget *> tiles;
    for (const auto &item : items) {
        tiles.append(new OlvIconButton(QChar(item.glyph), QLatin1String(item.text),
                                       QStringLiteral("FontAwesome"), grid, 80, 80));
    }
    grid->addWidget(tiles);
    return [=] {
        settle(500);
    }; // the grid's size follows its parent's
}

std::function<void()> fillFlexWidget(QWidget *stage)
{
    auto *note = new OlvFlexWidget(170, 120, stage);
    note->setHeaderWay(OlvFlexWidget::HeaderTop, QColor(64, 158, 255));
    note->move(20, 20);
    auto *other = new OlvFlexWidget(120, 120, stage);
    other->setHeaderWay(OlvFlexWidget::HeaderLeft, QColor(255, 193, 7));
    other->move(220, 20);
    return {};
}

} // namespace

QVector<Picture> containerPictures()
{
    return {
        { QStringLiteral("OlvGridLayout"), { 480, 220 }, fillGridLayout },
        { QStringLiteral("OlvFlexWidget"), { 360, 160 }, fillFlexWidget },
    };
}
