// SPDX-License-Identifier: MIT
#include "widgetplugin.h"

#include "domxml.h"
#include "valuemenu.h"
#include "viewport.h"
#include "widgeticon.h"

#include <QCoreApplication>
#include <QDynamicPropertyChangeEvent>
#include <QIcon>
#include <QResizeEvent>
#include <QWidget>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

#include <algorithm>

WidgetPlugin::WidgetPlugin(const WidgetKind &kind, QObject *parent)
    : QObject(parent)
    , m_kind(kind)
{ }

QString WidgetPlugin::name() const
{
    return m_kind.className;
}

QString WidgetPlugin::group() const
{
    return QStringLiteral("OlvWidgets");
}

QString WidgetPlugin::toolTip() const
{
    return m_kind.toolTip;
}

QString WidgetPlugin::whatsThis() const
{
    return m_kind.whatsThis;
}

QString WidgetPlugin::includeFile() const
{
    // the brackets make it "#include <OlvButton>" in what uic writes
    return QLatin1Char('<') + m_kind.className + QLatin1Char('>');
}

QIcon WidgetPlugin::icon() const
{
    return widgetIcon(m_kind);
}

QString WidgetPlugin::domXml() const
{
    return ::domXml(m_kind);
}

bool WidgetPlugin::isContainer() const
{
    return m_kind.isContainer;
}

QWidget *WidgetPlugin::createWidget(QWidget *parent)
{
    QWidget *widget = m_kind.create(parent);
    if (m_isInDesigner) {
        if (parent && m_kind.needsViewport) {
            // The grid's own event filter would also fit it to the form, and only from the event
            // loop; uic's code sets the viewport's size before the grid exists.
            parent->removeEventFilter(widget);
            parent->installEventFilter(this);
        }
        widget->installEventFilter(this);
    }
    return widget;
}

void WidgetPlugin::initialize(QDesignerFormEditorInterface *core)
{
    m_isInDesigner = true;
    if (asksForValues()) {
        QExtensionManager *manager = core->extensionManager();
        manager->registerExtensions(new ValueMenuFactory(m_kind, manager),
                                    Q_TYPEID(QDesignerTaskMenuExtension));
    }
    connect(core->formWindowManager(), &QDesignerFormWindowManagerInterface::formWindowAdded, this,
            &WidgetPlugin::watch);
}

bool WidgetPlugin::isInitialized() const
{
    return m_isInDesigner;
}

bool WidgetPlugin::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        fillViewport(qobject_cast<QWidget *>(watched));
    } else if (event->type() == QEvent::DynamicPropertyChange) {
        const QByteArray name = static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName();
        auto *widget = qobject_cast<QWidget *>(watched);
        if (widget && isOffered(QString::fromUtf8(name))) {
            // some widgets read their properties only in a resize event
            QResizeEvent resize(widget->size(), widget->size());
            QCoreApplication::sendEvent(widget, &resize);
            widget->update();
        }
    }
    return QObject::eventFilter(watched, event);
}

void WidgetPlugin::fillViewport(QWidget *viewport) const
{
    const auto *form = QDesignerFormWindowInterface::findFormWindow(viewport);
    // a preview belongs to no form window
    if (viewport->isWindow() || (form && viewport == form->mainContainer())) {
        return;
    }
    for (QObject *child : viewport->children()) {
        if (QLatin1String(child->metaObject()->className()) == m_kind.className) {
            static_cast<QWidget *>(child)->resize(viewport->size());
        }
    }
}

bool WidgetPlugin::isOffered(const QString &property) const
{
    return std::any_of(m_kind.properties.begin(), m_kind.properties.end(),
                       [&](const KindProperty &offered) { return offered.name == property; });
}

bool WidgetPlugin::asksForValues() const
{
    return std::any_of(
        m_kind.properties.begin(), m_kind.properties.end(),
        [](const KindProperty &offered) { return offered.dialog != KindProperty::NoDialog; });
}

void WidgetPlugin::watch(QDesignerFormWindowInterface *form)
{
    if (m_kind.needsViewport) {
        // the widget box is filled only now, after the plugins were loaded
        dropInViewport(form->core()->widgetBox(), group(), m_kind);
    }
    connect(form, &QDesignerFormWindowInterface::widgetManaged, this,
            [=](QWidget *widget) { hideInternalProperties(form, widget); });
}

/** Designer lists every dynamic property, also those that widgets keep for internal use. */
void WidgetPlugin::hideInternalProperties(QDesignerFormWindowInterface *form, QWidget *widget) const
{
    if (QLatin1String(widget->metaObject()->className()) != m_kind.className) {
        return;
    }
    auto *sheet =
        qt_extension<QDesignerPropertySheetExtension *>(form->core()->extensionManager(), widget);
    const QList<QByteArray> names = widget->dynamicPropertyNames();
    for (const QByteArray &name : names) {
        const QString property = QString::fromUtf8(name);
        const int index = sheet->indexOf(property);
        if (index >= 0 && !isOffered(property)) {
            sheet->setVisible(index, false);
        }
    }
}
