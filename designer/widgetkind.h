// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QSizePolicy>
#include <QString>
#include <QVariant>
#include <QVector>

class QWidget;

/** A property that a new widget of a form is given. */
struct KindProperty
{
    enum Way {
        Declared, ///< one of the class's own, with a setter
        Dynamic,  ///< one that the widget reads by its name
    };

    /** What the widget's context menu in Designer asks for, beside the property editor. */
    enum Dialog {
        NoDialog,
        Glyph, ///< a character of an icon font: a QChar, or a string of one
        Color, ///< an unsigned number 0xAARRGGBB
    };

    QString name;
    QVariant value;
    /** What Designer's property editor says about it. */
    QString tip;
    /** Whether it is a text for the program's user, to be translated. */
    bool isText = false;
    Way way = Dynamic;
    Dialog dialog = NoDialog;
};

/** What Designer is told about one class of widgets. */
struct WidgetKind
{
    QString className;
    /** The nearest class that Designer knows by itself. */
    QString baseName;
    QString toolTip;
    QString whatsThis;
    /** The size of a new one. */
    QSize size;
    QSizePolicy::Policy horizontal;
    QSizePolicy::Policy vertical;
    bool isContainer;
    QVector<KindProperty> properties;
    QWidget *(*create)(QWidget *parent);
    /** The size of the widget in its icon, and what else makes a good picture of it, or null. */
    QSize sampleSize;
    void (*pose)(QWidget *widget);
    /** Whether it belongs into a plain widget, which it fills. */
    bool needsViewport = false;
};

/** Every widget that a form may have, in the order of the widget box. */
QVector<WidgetKind> widgetKinds();
