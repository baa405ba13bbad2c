// SPDX-License-Identifier: MIT
#include "poses.h"

#include <OlvWidgets/OlvWidgets>

#include <QLabel>
#include <QLayout>
#include <QPushButton>

namespace {

constexpr uint accent = 0xff409eff;
constexpr QRgb tileColor = qRgb(64, 158, 255);

} // namespace

void Pose::lightUp(QWidget *button)
{
    button->setProperty("color", accent);
    button->setProperty("isCheckable", true);
    button->setProperty("isChecked", true);
}

void Pose::typeText(QWidget *edit)
{
    static_cast<OlvLineEdit *>(edit)->setText(QStringLiteral("Ab"));
}

void Pose::nameKey(QWidget *edit)
{
    auto *label = new QLabel(QStringLiteral("Ctrl"), edit);
    label->setAlignment(Qt::AlignCenter);
    label->resize(edit->size());
}

void Pose::switchOn(QWidget *widget)
{
    widget->setProperty("switch", true);
    for (QObject *child : widget->children()) {
        if (auto *knob = dynamic_cast<SwitchRound *>(child)) {
            knob->move(widget->width() - widget->height(), 0);
        }
    }
}

void Pose::showWindowButtons(QWidget *bar)
{
    const QList<QPushButton *> buttons = bar->findChildren<QPushButton *>();
    for (int i = 0; i < buttons.size(); ++i) {
        QPushButton *button = buttons.at(i);
        button->setVisible(i >= OlvControlBar::Min);
        button->setStyleSheet(QStringLiteral("border: none; color: rgb(64,158,255)"));
        button->setFont(QFont(QStringLiteral("FontAwesome"), 14));
    }
    delete bar->layout()->takeAt(0);
}

void Pose::slideHalfWay(QWidget *slider)
{
    for (QObject *child : slider->children()) {
        if (auto *knob = dynamic_cast<SliderRound *>(child)) {
            knob->move(knob->x() + (slider->width() - slider->height()) / 2, knob->y());
        }
    }
}

void Pose::fillWithTiles(QWidget *widget)
{
    auto *grid = static_cast<OlvGridLayout *>(widget);
    QList<QWidget *> tiles;
    for (const int width : { 12, 18, 22, 14, 14, 20 }) {
        auto *tile = new QWidget(grid);
        tile->resize(width, 12);
        tile->setAutoFillBackground(true);
        tile->setPalette(QPalette(QColor(tileColor)));
        tiles.append(tile);
    }
    grid->setMargin(4);
    grid->addWidget(tiles);
}

void Pose::outline(QWidget *widget)
{
    widget->setAttribute(Qt::WA_StyledBackground);
    widget->setStyleSheet(QStringLiteral("border: 3px dashed rgb(64,158,255)"));
}
