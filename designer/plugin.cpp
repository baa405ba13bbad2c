// SPDX-License-Identifier: MIT
#include "plugin.h"

#include "widgetkind.h"
#include "widgetplugin.h"

Plugin::Plugin(QObject *parent)
    : QObject(parent)
{
    const QVector<WidgetKind> kinds = widgetKinds();
    for (const WidgetKind &kind : kinds) {
        m_widgets.append(new WidgetPlugin(kind, this));
    }
}

QList<QDesignerCustomWidgetInterface *> Plugin::customWidgets() const
{
    return m_widgets;
}
