// SPDX-License-Identifier: MIT
#pragma once

#include <QBuffer>
#include <QRegularExpression>
#include <QUiLoader>
#include <QWidget>

#include <memory>

/** What QUiLoader makes of @p form with the plugin of the build tree; null when it fails. */
inline std::unique_ptr<QWidget> loadForm(const QString &form, QWidget *parent)
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QStringLiteral(OLV_PLUGINS "/designer"));
    QBuffer buffer;
    buffer.setData(form.toUtf8());
    if (!buffer.open(QIODevice::ReadOnly)) {
        return nullptr;
    }
    return std::unique_ptr<QWidget>(loader.load(&buffer, parent));
}

/** The widget element of a form or of what a plugin drops. */
inline QString elementOf(const QString &domXml)
{
    static const QRegularExpression element(QStringLiteral("<widget.*</widget>"));
    return element.match(domXml).captured();
}

/** A form around @p content. */
inline QString inForm(const QString &content)
{
    return QStringLiteral(
               "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"Form\">%1</widget></ui>")
        .arg(content);
}
