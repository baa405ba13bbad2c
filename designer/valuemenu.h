// SPDX-License-Identifier: MIT
#pragma once

#include "widgetkind.h"

#include <QObject>
#include <QPointer>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionFactory>

class QWidget;

/**
 * The entries of a widget's context menu in Designer for properties that are hard to enter in the
 * property editor: glyphs, which are not on the keyboard, and colours stored as numbers.
 */
class ValueMenu : public QObject, public QDesignerTaskMenuExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerTaskMenuExtension)

public:
    /** The menu of @p widget, in @p parent, which owns it. */
    ValueMenu(const WidgetKind &kind, QWidget *widget, QObject *parent);

    /** What F2 and a double click do: the first of the entries. */
    QAction *preferredEditAction() const override;
    QList<QAction *> taskActions() const override;

private:
    void ask(const KindProperty &property);
    void set(const KindProperty &property, const QVariant &value);

    const QPointer<QWidget> m_widget;
    QList<QAction *> m_actions;
};

/** Makes the menus of the widgets of one kind. */
class ValueMenuFactory : public QExtensionFactory
{
    Q_OBJECT

public:
    ValueMenuFactory(const WidgetKind &kind, QExtensionManager *manager);

protected:
    QObject *createExtension(QObject *object, const QString &iid, QObject *parent) const override;

private:
    const WidgetKind m_kind;
};
