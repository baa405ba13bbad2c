// SPDX-License-Identifier: MIT
#include "forms/formmember_p.h"

#include <OlvWidgets/buttons.h>
#include <OlvWidgets/containers.h>
#include <OlvWidgets/frame.h>
#include <OlvWidgets/input.h>
#include <OlvWidgets/value.h>

namespace {

template <class Widget> bool isOne(const QWidget *widget)
{
    return qobject_cast<const Widget *>(widget);
}

FormKind kindOfPushButton(const QWidget *button)
{
    const QWidget *parent = button->parentWidget();
    if (isOne<OlvLineEdit>(parent)) {
        return FormKind::None; // the password button, which is a part
    }
    if (isOne<OlvSimpleIconButton>(button)) {
        return FormKind::Glyph;
    }
    return isOne<OlvControlBar>(parent) ? FormKind::BarButton : FormKind::None;
}

FormKind kindOfValueWidget(const QWidget *widget)
{
    if (isOne<OlvButton>(widget)) {
        return FormKind::Button;
    }
    if (isOne<OlvIconButton>(widget)) {
        return FormKind::Tile;
    }
    if (isOne<OlvLineEdit>(widget)) {
        return FormKind::LineEdit;
    }
    if (isOne<OlvShortcutEdit>(widget)) {
        return FormKind::ShortcutEdit;
    }
    if (isOne<OlvSwitch>(widget)) {
        return FormKind::Switch;
    }
    return isOne<OlvSlider>(widget) ? FormKind::Slider : FormKind::None;
}

} // namespace

FormKind formKindOf(const QWidget *widget)
{
    if (isOne<OlvWidget>(widget)) {
        return kindOfValueWidget(widget);
    }
    if (isOne<QPushButton>(widget)) {
        return kindOfPushButton(widget);
    }
    if (isOne<OlvControlBar>(widget)) {
        return FormKind::Bar;
    }
    if (isOne<OlvGridLayout>(widget)) {
        return FormKind::Grid;
    }
    if (isOne<OlvFlexWidget>(widget)) {
        return FormKind::Panel;
    }
    return isOne<OlvDragWidget>(widget) ? FormKind::Placeholder : FormKind::None;
}

QLineEdit *textOf(const QWidget *widget, FormKind kind)
{
    return kind == FormKind::LineEdit ? static_cast<const OlvLineEdit *>(widget)->lineEdit()
                                      : nullptr;
}

OlvSimpleIconButton *passwordButton(const OlvLineEdit *edit)
{
    return edit->findChild<OlvSimpleIconButton *>(QString(), Qt::FindDirectChildrenOnly);
}

bool isStill(const QWidget *widget, FormKind kind)
{
    switch (kind) {
    case FormKind::None:
        break;
    case FormKind::Button:
        return isOne<OlvButton>(widget);
    case FormKind::Tile:
        return isOne<OlvIconButton>(widget);
    case FormKind::Glyph:
        return isOne<OlvSimpleIconButton>(widget);
    case FormKind::BarButton:
        return isOne<QPushButton>(widget);
    case FormKind::LineEdit:
        return isOne<OlvLineEdit>(widget);
    case FormKind::ShortcutEdit:
        return isOne<OlvShortcutEdit>(widget);
    case FormKind::Switch:
        return isOne<OlvSwitch>(widget);
    case FormKind::Slider:
        return isOne<OlvSlider>(widget);
    case FormKind::Bar:
        return isOne<OlvControlBar>(widget);
    case FormKind::Grid:
        return isOne<OlvGridLayout>(widget);
    case FormKind::Panel:
        return isOne<OlvFlexWidget>(widget);
    case FormKind::Placeholder:
        return isOne<OlvDragWidget>(widget);
    }
    return false;
}
