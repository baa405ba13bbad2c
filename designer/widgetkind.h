// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QSizePolicy>
#include <QString>
#include <QVariant>
#include <QVector>

#include <memory>

class QWidget;

/** A property that is set on a widget when it is dropped into a form. */
struct KindProperty
{
    enum Way {
        Declared, ///< a Q_PROPERTY of the class
        Dynamic,  ///< a dynamic property, which the widget reads by its name
    };

    /** The dialog that the widget's context menu in Designer offers for the property. */
    enum Dialog {
        NoDialog,
        Glyph, ///< a character of an icon font: a QChar, or a string of one
        Color, ///< an unsigned number 0xAARRGGBB
    };

    QString name;
    QVariant value;
    /** The tool tip in Designer's property editor. */
    QString tip;
    /** Whether it is a text to be translated. */
    bool isText = false;
    Way way = Dynamic;
    Dialog dialog = NoDialog;
};

/** The description of one class of widgets for Designer. */
struct WidgetKind
{
    QString className;
    /** The nearest base class that Designer knows. */
    QString baseName;
    QString toolTip;
    QString whatsThis;
    QSizePolicy::Policy horizontal;
    QSizePolicy::Policy vertical;
    bool isContainer;
    QVector<KindProperty> properties;
    QWidget *(*create)(QWidget *parent);
    /** The size of the widget in its icon, and a function that prepares it for that, or null. */
    QSize sampleSize;
    void (*pose)(QWidget *widget);
    /** Whether it has to be the child of a plain QWidget, which it fills. */
    bool needsViewport = false;
};

/** All widgets that can be put into a form, in the order of the widget box. */
QVector<WidgetKind> widgetKinds();

/** A new widget of that kind, without a parent, with the values that a form gives it. */
std::unique_ptr<QWidget> newWidget(const WidgetKind &kind);
