// SPDX-License-Identifier: MIT
#include <OlvWidgets/frame.h>

OlvDragWidget::OlvDragWidget(QWidget *parent, QWidget * /*source*/, QWidget * /*target*/,
                             const QPoint & /*position*/)
    : QWidget(parent)
{ }

OlvDragWidget::OlvDragWidget(QWidget *parent)
    : QWidget(parent)
{ }
