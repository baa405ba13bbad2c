// SPDX-License-Identifier: MIT
#include "designerprobe.h"

#include <QApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPixmap>
#include <QScreen>
#include <QTreeWidget>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerWidgetBoxInterface>
#include <QtDesigner/QExtensionManager>

namespace {

constexpr int interval = 100;     // milliseconds
constexpr int settlingTime = 700; // milliseconds, in which what was asked for gets drawn

QString reportPath(const char *name)
{
    return qEnvironmentVariable("OLV_DESIGNER_REPORT") + QLatin1Char('/') + QLatin1String(name);
}

void write(const char *name, const QByteArray &content)
{
    QFile file(reportPath(name));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(content);
    }
}

} // namespace

void DesignerProbe::initialize(QDesignerFormEditorInterface *core)
{
    m_core = core;
    connect(&m_timer, &QTimer::timeout, this, &DesignerProbe::look);
    m_timer.start(interval);
}

void DesignerProbe::look()
{
    const QDesignerFormWindowInterface *form =
        m_core->formWindowManager() ? m_core->formWindowManager()->activeFormWindow() : nullptr;
    if (!form || !form->mainContainer() || !form->mainContainer()->isVisible()
        || !m_core->widgetBox() || !m_core->widgetBox()->isVisible()) {
        return;
    }
    m_timer.stop();
    showGroup();
    QTimer::singleShot(settlingTime, this, &DesignerProbe::edit);
}

/** Edits the colour scheme of the button, and watches whether it is drawn anew. */
void DesignerProbe::edit()
{
    QDesignerFormWindowInterface *form = m_core->formWindowManager()->activeFormWindow();
    m_edited = form->mainContainer()->findChild<QWidget *>(QStringLiteral("olvButton"));
    if (m_edited) {
        m_edited->installEventFilter(this);
        form->cursor()->setWidgetProperty(m_edited, QStringLiteral("color"),
                                          QStringLiteral("warning"));
    }
    QTimer::singleShot(settlingTime, this, &DesignerProbe::report);
}

bool DesignerProbe::eventFilter(QObject *watched, QEvent *event)
{
    m_paintings += event->type() == QEvent::Paint ? 1 : 0;
    return QObject::eventFilter(watched, event);
}

void DesignerProbe::report()
{
    const QDesignerFormWindowInterface *form = m_core->formWindowManager()->activeFormWindow();
    QGuiApplication::primaryScreen()->grabWindow(0).save(reportPath("designer.png"));
    write("form.ui", form->contents().toUtf8());
    QJsonObject seen;
    seen.insert(QStringLiteral("box"), widgetBox());
    seen.insert(QStringLiteral("form"), formProperties());
    if (m_edited) {
        seen.insert(QStringLiteral("editedColor"), m_edited->property("color").toString());
        seen.insert(QStringLiteral("paintings"), m_paintings);
    }
    write("report.json", QJsonDocument(seen).toJson());
    m_core->formWindowManager()->activeFormWindow()->setDirty(false);
    QApplication::closeAllWindows();
}

/** The entries of each group, by the group's name. */
QJsonObject DesignerProbe::widgetBox() const
{
    QJsonObject groups;
    const QDesignerWidgetBoxInterface *box = m_core->widgetBox();
    for (int i = 0; i < box->categoryCount(); ++i) {
        const QDesignerWidgetBoxInterface::Category category = box->category(i);
        QJsonArray names;
        for (int j = 0; j < category.widgetCount(); ++j) {
            names.append(category.widget(j).name());
        }
        groups.insert(category.name(), names);
    }
    return groups;
}

/** The properties that the property editor shows as dynamic, by the widget's class. */
QJsonObject DesignerProbe::formProperties() const
{
    QJsonObject classes;
    const QDesignerFormWindowInterface *form = m_core->formWindowManager()->activeFormWindow();
    const QList<QWidget *> widgets = form->mainContainer()->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const auto *sheet =
            qt_extension<QDesignerPropertySheetExtension *>(m_core->extensionManager(), widget);
        const QString name = QString::fromLatin1(widget->metaObject()->className());
        if (!form->isManaged(widget) || !sheet || !name.startsWith(QLatin1String("Olv"))) {
            continue;
        }
        QJsonArray properties;
        for (int i = 0; i < sheet->count(); ++i) {
            if (sheet->isVisible(i)
                && sheet->propertyGroup(i) == QLatin1String("Dynamic Properties")) {
                properties.append(sheet->propertyName(i));
            }
        }
        classes.insert(name, properties);
    }
    return classes;
}

/** Scrolls the widget box to the group, so that the picture shows it. */
void DesignerProbe::showGroup() const
{
    auto *tree = m_core->widgetBox()->findChild<QTreeWidget *>();
    for (int i = 0; tree && i < tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *item = tree->topLevelItem(i);
        const bool isOurs = item->text(0) == QLatin1String("OlvWidgets");
        item->setExpanded(isOurs);
        if (isOurs) {
            tree->scrollToItem(item, QAbstractItemView::PositionAtTop);
        }
    }
}
