// SPDX-License-Identifier: MIT
#include "designerhand.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QCursor>
#include <QDockWidget>
#include <QInputDialog>
#include <QMainWindow>
#include <QRegularExpression>
#include <QTimer>
#include <QTreeWidget>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerObjectInspectorInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QDesignerWidgetBoxInterface>
#include <QtDesigner/QExtensionManager>

namespace {

constexpr int interval = 50; // milliseconds
constexpr int paneWidth = 330;

QList<QAction *> actionsOf(QDesignerFormEditorInterface *core, QWidget *widget)
{
    const auto *menu = qt_extension<QDesignerTaskMenuExtension *>(core->extensionManager(), widget);
    return menu ? menu->taskActions() : QList<QAction *>();
}

void answer(QDialog *dialog, QStringList &answers)
{
    if (answers.isEmpty()) {
        dialog->reject();
        return;
    }
    const QString text = answers.takeFirst();
    if (auto *input = qobject_cast<QInputDialog *>(dialog)) {
        input->setTextValue(text);
    } else if (auto *colors = qobject_cast<QColorDialog *>(dialog)) {
        colors->setCurrentColor(QColor(text));
    }
    dialog->accept();
}

QDockWidget *dockOf(const QWidget *tool)
{
    QWidget *widget = tool ? tool->parentWidget() : nullptr;
    while (widget && !qobject_cast<QDockWidget *>(widget)) {
        widget = widget->parentWidget();
    }
    return qobject_cast<QDockWidget *>(widget);
}

void showOnly(const QString &group, QTreeWidget *tree)
{
    for (int i = 0; tree && i < tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *item = tree->topLevelItem(i);
        const bool isWanted = item->text(0) == group;
        item->setExpanded(isWanted);
        if (isWanted) {
            tree->scrollToItem(item, QAbstractItemView::PositionAtTop);
        }
    }
}

} // namespace

QWidget *DesignerHand::find(QDesignerFormEditorInterface *core, const QString &name)
{
    const QWidget *form = core->formWindowManager()->activeFormWindow()->mainContainer();
    return form->findChild<QWidget *>(name);
}

void DesignerHand::edit(QDesignerFormEditorInterface *core, const QString &name,
                        const QString &property, const QVariant &value)
{
    if (QWidget *widget = find(core, name)) {
        QDesignerFormWindowInterface *form = core->formWindowManager()->activeFormWindow();
        form->cursor()->setWidgetProperty(widget, property, value);
    }
}

QStringList DesignerHand::menuOf(QDesignerFormEditorInterface *core, const QString &name)
{
    QStringList entries;
    const QList<QAction *> actions = actionsOf(core, find(core, name));
    for (const QAction *action : actions) {
        entries.append(action->text());
    }
    return entries;
}

int DesignerHand::choose(QDesignerFormEditorInterface *core, const QString &name,
                         const QString &entry, QStringList answers)
{
    // When a dialog closes, Qt asks what lies under the pointer: no frame of the dialog's own,
    // which the window manager is about to take away.
    QCursor::setPos(0, 0);
    int count = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (dialog && dialog->isActiveWindow()) {
            ++count;
            answer(dialog, answers);
        }
    });
    timer.start(interval);
    const QList<QAction *> actions = actionsOf(core, find(core, name));
    for (QAction *action : actions) {
        if (action->text() == entry) {
            action->trigger();
        }
    }
    return count;
}

void DesignerHand::paste(QDesignerFormEditorInterface *core, const QString &form)
{
    QDesignerFormWindowManagerInterface *manager = core->formWindowManager();
    manager->activeFormWindow()->clearSelection();
    // what is copied in Designer has a parent as well, which is left out
    static const QRegularExpression element(QStringLiteral("<widget.*</widget>"));
    QApplication::clipboard()->setText(
        QStringLiteral(
            "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"top\">%1</widget></ui>")
            .arg(element.match(form).captured()));
    QAction *action = manager->action(QDesignerFormWindowManagerInterface::PasteAction);
    action->setEnabled(true); // it learns of a new clipboard some time later
    action->trigger();
}

void DesignerHand::tidyUp(QDesignerFormEditorInterface *core, const QString &group)
{
    showOnly(group, core->widgetBox()->findChild<QTreeWidget *>());
    auto *window = qobject_cast<QMainWindow *>(core->topLevel());
    QDockWidget *objects = dockOf(core->objectInspector());
    QDockWidget *properties = dockOf(core->propertyEditor());
    if (!window || !objects || !properties) {
        return;
    }
    const QList<QDockWidget *> docks = window->findChildren<QDockWidget *>();
    for (QDockWidget *dock : docks) {
        dock->setVisible(dock == objects || dock == properties
                         || dock == dockOf(core->widgetBox()));
    }
    window->resizeDocks({ objects, properties }, { paneWidth, paneWidth }, Qt::Horizontal);
    window->resizeDocks({ objects, properties }, { 1, 2 }, Qt::Vertical);
}
