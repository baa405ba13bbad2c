// SPDX-License-Identifier: MIT
#include "accessibility/accessibleglyphbutton_p.h"

#include <OlvWidgets/input.h>

#include "accessibility/spokentext_p.h"

#include <QButtonGroup>
#include <QPushButton>

namespace {

bool isOneOfSeveral(const QAbstractButton &button)
{
    return button.isCheckable()
        && (button.group() ? button.group()->exclusive() : button.autoExclusive());
}

/** A caption without the ampersand in front of its mnemonic. */
QString withoutMnemonic(QString caption)
{
    const QString mark = QStringLiteral("&");
    const QString kept(QChar::Null); // stands for a doubled ampersand, which is shown as one
    return caption.replace(mark + mark, kept).remove(mark).replace(kept, mark);
}

} // namespace

AccessibleGlyphButton::AccessibleGlyphButton(QWidget *widget)
    : AccessibleClickable(widget)
{ }

QAccessible::Role AccessibleGlyphButton::role() const
{
    if (hasMenu()) {
        return QAccessible::ButtonMenu;
    }
    return button() && isOneOfSeveral(*button()) ? QAccessible::RadioButton
                                                 : AccessibleClickable::role();
}

QAccessible::State AccessibleGlyphButton::state() const
{
    QAccessible::State state = AccessibleClickable::state();
    if (button()) {
        state.checkable = button()->isCheckable();
        state.checked = button()->isChecked();
        state.pressed = button()->isDown();
        state.hasPopup = hasMenu();
    }
    return state;
}

QString AccessibleGlyphButton::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Accelerator && button()
        ? button()->shortcut().toString(QKeySequence::NativeText)
        : AccessibleClickable::text(kind);
}

QStringList AccessibleGlyphButton::actionNames() const
{
    QStringList names = AccessibleClickable::actionNames();
    if (hasMenu() && names.removeAll(pressAction()) > 0) {
        names.removeAll(toggleAction());
        names.prepend(showMenuAction());
    }
    return names;
}

void AccessibleGlyphButton::doAction(const QString &name)
{
    if (name == showMenuAction() && actionNames().contains(name)) {
        button()->showMenu();
    } else {
        AccessibleClickable::doAction(name);
    }
}

QStringList AccessibleGlyphButton::keyBindingsForAction(const QString &name) const
{
    return name == pressAction() && button() && !button()->shortcut().isEmpty()
        ? QStringList{ button()->shortcut().toString() }
        : QStringList();
}

QString AccessibleGlyphButton::ownName() const
{
    const QPushButton *own = button();
    if (!own || !own->toolTip().isEmpty()) {
        return own ? SpokenText::plain(own->toolTip()) : QString();
    }
    return qobject_cast<OlvLineEdit *>(own->parentWidget())
        ? QCoreApplication::translate("OlvLineEdit", "显示密码")
        : withoutMnemonic(own->text());
}

void AccessibleGlyphButton::click()
{
    if (button()) {
        button()->click();
    }
}

/** Null while the button's base classes are being destroyed. */
QPushButton *AccessibleGlyphButton::button() const
{
    return isValid() ? qobject_cast<QPushButton *>(object()) : nullptr;
}

bool AccessibleGlyphButton::hasMenu() const
{
    return button() && button()->menu();
}
