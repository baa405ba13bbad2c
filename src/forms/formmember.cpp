// SPDX-License-Identifier: MIT
#include "forms/formmember_p.h"

#include <OlvWidgets/buttons.h>
#include <OlvWidgets/containers.h>
#include <OlvWidgets/frame.h>
#include <OlvWidgets/input.h>
#include <OlvWidgets/value.h>

#include <algorithm>
#include <iterator>

namespace {

template <class Widget> bool isOne(const QWidget *widget)
{
    return qobject_cast<const Widget *>(widget);
}

/** Maps classes to kinds. */
struct KindOfClass
{
    FormKind kind;
    bool (*isOf)(const QWidget *widget);
};

/** A class stands before those that it derives from. */
constexpr KindOfClass kinds[] = {
    { FormKind::Button, &isOne<OlvButton> },
    { FormKind::Tile, &isOne<OlvIconButton> },
    { FormKind::Glyph, &isOne<OlvSimpleIconButton> },
    { FormKind::BarButton, &isOne<QPushButton> },
    { FormKind::LineEdit, &isOne<OlvLineEdit> },
    { FormKind::ShortcutEdit, &isOne<OlvShortcutEdit> },
    { FormKind::Switch, &isOne<OlvSwitch> },
    { FormKind::Slider, &isOne<OlvSlider> },
    { FormKind::Bar, &isOne<OlvControlBar> },
    { FormKind::Grid, &isOne<OlvGridLayout> },
    { FormKind::Panel, &isOne<OlvFlexWidget> },
    { FormKind::Placeholder, &isOne<OlvDragWidget> },
};

/** Whether a button of @p kind belongs to the form by itself, and not as a part. */
bool isOnItsOwn(const QWidget *button, FormKind kind)
{
    const QWidget *parent = button->parentWidget();
    return kind == FormKind::BarButton ? isOne<OlvControlBar>(parent)
                                       : !isOne<OlvLineEdit>(parent); // whose password button it is
}

} // namespace

FormKind formKindOf(const QWidget *widget)
{
    const auto *found = std::find_if(std::begin(kinds), std::end(kinds),
                                     [=](const KindOfClass &one) { return one.isOf(widget); });
    if (found == std::end(kinds)) {
        return FormKind::None;
    }
    const bool isPart = isOne<QPushButton>(widget) && !isOnItsOwn(widget, found->kind);
    return isPart ? FormKind::None : found->kind;
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
    return std::any_of(std::begin(kinds), std::end(kinds), [=](const KindOfClass &one) {
        return one.kind == kind && one.isOf(widget);
    });
}
