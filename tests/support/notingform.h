// SPDX-License-Identifier: MIT
#pragma once

#include "widgetform.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QVector>

/** An event of a key; QTest sends none that repeats. Returns whether it was accepted. */
inline bool sendKey(QWidget *widget, QEvent::Type type, Qt::Key key, bool repeats = false)
{
    QKeyEvent event(type, key, Qt::NoModifier, QString(), repeats);
    event.ignore();
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

/** A form that notes the keys which its widgets leave to it. */
class NotingForm : public WidgetForm
{
public:
    using WidgetForm::WidgetForm;

    QVector<int> keys;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        keys.append(event->key());
    }
};
