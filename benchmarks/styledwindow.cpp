// SPDX-License-Identifier: MIT
#include "onewindow.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QToolButton>

QString sliderStyleSheet()
{
    return QStringLiteral(
        "QSlider::groove { height: 10px; margin: 0 15px; border-radius: 5px; background: #409eff; }"
        "QSlider::handle { width: 16px; height: 16px; margin: -5px -10px; background: white;"
        "                  border: 2px solid #409eff; border-radius: 10px; }");
}

QString styleSheet()
{
    return QStringLiteral(
               "QPushButton { background-color: #409eff; color: white; border: none;"
               "              border-radius: 7px; font: 9pt; }"
               "QToolButton { border: 1px solid #c8c8c8; border-radius: 7px; color: #c8c8c8; }"
               "QLineEdit { border: 1px solid #dcdfe6; border-radius: 3px; }"
               "QCheckBox::indicator { width: 50px; height: 24px; border-radius: 12px;"
               "                       background: #dcdfe6; }")
        + sliderStyleSheet();
}

void makeStyledWidgets(QWidget *window)
{
    auto *tool = new QToolButton(window);
    tool->setText(QStringLiteral("Mail"));
    const QVector<QWidget *> widgets{ new QPushButton(QStringLiteral("Save"), window), tool,
                                      new QLineEdit(window), new QCheckBox(window),
                                      new QSlider(Qt::Horizontal, window) };
    arrange(window, widgets);
    window->setStyleSheet(styleSheet());
}
