// SPDX-License-Identifier: MIT
#pragma once

#include <QDynamicPropertyChangeEvent>
#include <QObject>
#include <QStringList>
#include <QVariant>

/** Writes down what the dynamic properties of an object become, one line for each change. */
class PropertyRecord : public QObject
{
public:
    explicit PropertyRecord(QObject *object)
    {
        object->installEventFilter(this); // clazy:exclude=install-event-filter
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::DynamicPropertyChange) {
            const QByteArray name =
                static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName();
            lines.append(QLatin1String(name) + QLatin1Char(' ')
                         + watched->property(name.constData()).toString());
        }
        return QObject::eventFilter(watched, event);
    }

    QStringList lines;
};
