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
