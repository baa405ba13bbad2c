// SPDX-License-Identifier: MIT
#pragma once

#include <QVariant>

class OlvWidget;

/** The values that OlvValueDelegate reads from its editors, shows in them and writes. */
namespace EditorValue {

/** As a switch shows @p value: a text that says neither yes nor no is false. */
bool toBool(const QVariant &value);
/** What the user has chosen; invalid where there is nothing to store. */
QVariant chosenValue(OlvWidget *editor);
/** Shows @p value at once, what is null or of another kind as off, 0 or empty. */
void show(OlvWidget *editor, const QVariant &value);
/**
 * Lets the validator of a line correct a text that it refuses, and tells whether the text is
 * acceptable then; true for every other editor. QStyledItemDelegate does so only with an editor
 * that is a QLineEdit itself. The editor may be deleted by what it calls.
 */
bool fixUp(OlvWidget *editor);
/**
 * Whether @p value, which @p editor has come to, is what @p stored says in other words: a shortcut
 * of the record may be granted long after the record was shown.
 */
bool isOtherSpelling(const OlvWidget *editor, const QVariant &value, const QVariant &stored);
/** @p value in the type of what it replaces, so that a column keeps its type. */
QVariant converted(const QVariant &value, const QVariant &replaced);

} // namespace EditorValue
