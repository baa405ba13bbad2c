// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

class QDesignerFormEditorInterface;
class QWidget;

/** What a user of Designer does with the open form. */
namespace DesignerHand {

/** The widget @p name of the form; null when there is none. */
QWidget *find(QDesignerFormEditorInterface *core, const QString &name);
/** Edits a property as the property editor does it. */
void edit(QDesignerFormEditorInterface *core, const QString &name, const QString &property,
          const QVariant &value);
/** What the plugin adds to the widget's context menu. */
QStringList menuOf(QDesignerFormEditorInterface *core, const QString &name);
/**
 * Chooses @p entry from the widget's context menu, and gives each dialog that it opens the next one
 * of @p answers, or cancels it when there is none left: the text of an input dialog, the colour
 * #AARRGGBB of a colour dialog. Returns how many dialogs it has opened.
 */
int choose(QDesignerFormEditorInterface *core, const QString &name, const QString &entry,
           QStringList answers);
/** Pastes the widgets of a form into the open one. */
void paste(QDesignerFormEditorInterface *core, const QString &form);
/** Leaves what a look at a form needs of Designer's window, and shows the group in the widget box.
 */
void tidyUp(QDesignerFormEditorInterface *core, const QString &group);

} // namespace DesignerHand
