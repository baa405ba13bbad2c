// SPDX-License-Identifier: MIT
#pragma once

#include "widgetkind.h"

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

class QDesignerFormWindowInterface;

/** One class of widgets, offered to Designer and to QUiLoader. */
class WidgetPlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    WidgetPlugin(const WidgetKind &kind, QObject *parent);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    QString domXml() const override;
    bool isContainer() const override;
    QWidget *createWidget(QWidget *parent) override;

    /** Only Designer calls it; a program that loads forms does not. */
    void initialize(QDesignerFormEditorInterface *core) override;
    bool isInitialized() const override;

    /**
     * In Designer: repaints a widget when one of the properties that it reads is edited, and keeps
     * a widget that needs a viewport at the viewport's size.
     */
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fillViewport(QWidget *viewport) const;
    bool isOffered(const QString &property) const;
    bool asksForValues() const;
    void watch(QDesignerFormWindowInterface *form);
    void hideInternalProperties(QDesignerFormWindowInterface *form, QWidget *widget) const;

    const WidgetKind m_kind;
    bool m_isInDesigner = false;
};
