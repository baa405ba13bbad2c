// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QJsonObject>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

/** Every plugin of Designer's describes a class. */
class ProbeWidget : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};

/**
 * A plugin that offers nothing, and looks at Designer from within: once a form is open, it writes
 * what it sees to the folder that OLV_DESIGNER_REPORT names, edits the form, and quits Designer.
 */
class DesignerProbe : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    QString name() const override
    {
        return QStringLiteral("ProbeWidget");
    }
    QString group() const override
    {
        return QString();
    }
    QString toolTip() const override
    {
        return QString();
    }
    QString whatsThis() const override
    {
        return QString();
    }
    QString includeFile() const override
    {
        return QString();
    }
    QString domXml() const override
    {
        return QString();
    }
    QIcon icon() const override
    {
        return QIcon();
    }
    bool isContainer() const override
    {
        return false;
    }
    QWidget *createWidget(QWidget *parent) override
    {
        return new ProbeWidget(parent);
    }
    bool isInitialized() const override
    {
        return m_core;
    }
    void initialize(QDesignerFormEditorInterface *core) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void look();
    void takePicture();
    void edit();
    void useMenus();
    void report();
    QJsonObject widgetBox() const;
    QJsonObject formProperties() const;
    QJsonObject groupEntries() const;
    QJsonObject groupTips() const;
    QJsonObject menuEntries() const;

    QPointer<QDesignerFormEditorInterface> m_core;
    QTimer m_timer;
    QPointer<QWidget> m_edited;
    int m_paintings = 0;
    QJsonObject m_seen;
};
