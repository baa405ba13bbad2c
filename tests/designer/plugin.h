// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPluginLoader>
#include <QStringList>
#include <QXmlStreamReader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

/** The widgets of the Designer plugin in the build tree, loaded as Designer does it. */
inline QList<QDesignerCustomWidgetInterface *> pluginWidgets()
{
    QPluginLoader loader(QStringLiteral(OLV_PLUGINS "/designer/libolvwidgets.so"));
    auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    if (!collection) {
        qWarning("%s", qPrintable(loader.errorString()));
    }
    return collection ? collection->customWidgets() : QList<QDesignerCustomWidgetInterface *>();
}

/** The one for the class @p name; null when there is none. */
inline QDesignerCustomWidgetInterface *pluginWidget(const QString &name)
{
    const QList<QDesignerCustomWidgetInterface *> widgets = pluginWidgets();
    for (QDesignerCustomWidgetInterface *widget : widgets) {
        if (widget->name() == name) {
            return widget;
        }
    }
    return nullptr;
}

/** The dynamic properties that a form sets when a widget is dropped into it. */
inline QStringList dynamicProperties(const QString &domXml)
{
    QStringList names;
    QXmlStreamReader xml(domXml);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement
            && xml.name() == QLatin1String("property")
            && xml.attributes().value(QLatin1String("stdset")) == QLatin1String("0")) {
            names.append(xml.attributes().value(QLatin1String("name")).toString());
        }
    }
    return xml.hasError() ? QStringList{ xml.errorString() } : names;
}
