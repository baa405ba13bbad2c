// SPDX-License-Identifier: MIT
#include <OlvWidgets/widget.h>

#include "support/accessibility_p.h"

#include <QInputMethodEvent>
#include <QPointer>

OlvWidget::OlvWidget(QWidget *parent)
    : QWidget(parent)
{
    Accessibility::prepare(this);
}

void OlvWidget::openInputMethod()
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled, true);
}

void OlvWidget::inputMethodEvent(QInputMethodEvent *event)
{
    const QPointer<OlvWidget> self(this);
    Q_EMIT inputMethodCommit(event->commitString());
    if (self) {
        QWidget::inputMethodEvent(event);
    }
}
