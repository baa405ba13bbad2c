// SPDX-License-Identifier: MIT
#include "accessiblekinds.h"

#include <OlvWidgets/OlvWidgets>

#include <QPushButton>
#include <QTest>

namespace {

QList<QChar> glyphs()
{
    return {
        u'\uf2d2', u'\uf103', u'\uf102', u'\uf068', u'\uf065', u'\uf00d', u'\uf066', u'\uf013'
    };
}

} // namespace

const QVector<AccessibleKind> &accessibleKinds()
{
    static const QVector<AccessibleKind> all{
        { "button", QAccessible::Button,
          [](QWidget *parent) {
              return new OlvButton(parent);
          } },
        { "icon button", QAccessible::Button,
          [](QWidget *parent) {
              return new OlvIconButton(parent);
          } },
        { "simple icon button", QAccessible::CheckBox,
          [](QWidget *parent) {
              return new OlvSimpleIconButton(QStringLiteral("A"), {}, parent);
          } },
        { "line edit", QAccessible::Grouping,
          [](QWidget *parent) {
              return new OlvLineEdit(parent);
          } },
        { "shortcut edit", QAccessible::HotkeyField,
          [](QWidget *parent) {
              return new OlvShortcutEdit(parent);
          } },
        { "switch", QAccessible::CheckBox,
          [](QWidget *parent) {
              return new OlvSwitch(parent);
          } },
        { "slider", QAccessible::Slider,
          [](QWidget *parent) {
              return new OlvSlider(parent);
          } },
        { "control bar", QAccessible::ToolBar,
          [](QWidget *parent) {
              return new OlvControlBar(glyphs(), parent);
          } },
        { "button of a bar", QAccessible::CheckBox,
          [](QWidget *parent) {
              return (new OlvControlBar(glyphs(), parent))->findChild<QPushButton *>();
          } },
        { "panel", QAccessible::Pane,
          [](QWidget *parent) {
              auto *panel = new OlvFlexWidget(100, 100, parent);
              panel->setWindowFlags(Qt::Widget);
              return panel;
          } },
    };
    return all;
}

bool waitForDeferred()
{
    bool isDone = false;
    OlvLastOnceFunction([&] { isDone = true; }); // calls come in the order they were put off
    return QTest::qWaitFor([&] { return isDone; }, 60000);
}

void callAll(QAccessibleInterface *interface)
{
    interface->window();
    interface->relations();
    interface->focusChild();
    interface->childAt(1, 1);
    interface->parent();
    interface->child(0);
    interface->childCount();
    interface->indexOfChild(interface);
    for (int kind = QAccessible::Name; kind <= QAccessible::DebugDescription; ++kind) {
        interface->text(QAccessible::Text(kind));
        interface->setText(QAccessible::Text(kind), QStringLiteral("x"));
    }
    interface->rect();
    interface->role();
    interface->state();
    interface->foregroundColor();
    interface->backgroundColor();
    QAccessibleActionInterface *actions = interface->actionInterface();
    QStringList names = actions->actionNames();
    names << QAccessibleActionInterface::pressAction() << QAccessibleActionInterface::toggleAction()
          << QAccessibleActionInterface::setFocusAction() << QStringLiteral("doubleClick");
    for (const QString &name : qAsConst(names)) {
        actions->localizedActionName(name);
        actions->localizedActionDescription(name);
        actions->keyBindingsForAction(name);
        actions->doAction(name);
    }
    if (QAccessibleValueInterface *value = interface->valueInterface()) {
        value->currentValue();
        value->setCurrentValue(50);
        value->minimumValue();
        value->maximumValue();
        value->minimumStepSize();
    }
    if (QAccessibleTextInterface *text = interface->textInterface()) {
        int start = -1;
        int end = -1;
        text->selection(0, &start, &end);
        text->selectionCount();
        text->addSelection(0, 1);
        text->removeSelection(0);
        text->setSelection(0, 0, 1);
        text->cursorPosition();
        text->setCursorPosition(1);
        text->text(0, 1);
        text->textAtOffset(0, QAccessible::WordBoundary, &start, &end);
        text->textBeforeOffset(0, QAccessible::WordBoundary, &start, &end);
        text->textAfterOffset(0, QAccessible::WordBoundary, &start, &end);
        text->characterCount();
        text->characterRect(0);
        text->offsetAtPoint(QPoint(1, 1));
        text->scrollToSubstring(0, 1);
        text->attributes(0, &start, &end);
    }
}
