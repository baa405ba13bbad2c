// SPDX-License-Identifier: MIT
#include "forms/mirroring_p.h"

#include <OlvWidgets/containers.h>
#include <OlvWidgets/input.h>
#include <OlvWidgets/value.h>

#include "containers/gridmirror_p.h"
#include "forms/formmember_p.h"
#include "input/inputlook_p.h"
#include "value/knobmirror_p.h"

namespace {

void mirrorMember(const FormMember &member, bool isOn)
{
    QWidget *widget = member.widget;
    switch (member.kind) {
    case FormKind::LineEdit:
        InputLook::setMirrored(static_cast<OlvLineEdit *>(widget), isOn);
        break;
    case FormKind::ShortcutEdit:
        InputLook::setMirrored(static_cast<OlvShortcutEdit *>(widget), isOn);
        break;
    case FormKind::Switch:
        KnobMirror::set(static_cast<OlvSwitch *>(widget), isOn);
        break;
    case FormKind::Slider:
        KnobMirror::set(static_cast<OlvSlider *>(widget), isOn);
        break;
    case FormKind::Grid:
        GridMirror::set(static_cast<OlvGridLayout *>(widget), isOn);
        break;
    default: // have nothing that stands on one side, or are laid out by Qt
        break;
    }
}

} // namespace

void Mirroring::fit(const FormMember &member)
{
    mirrorMember(member, member.widget->layoutDirection() == Qt::RightToLeft);
}

void Mirroring::take(const FormMember &member)
{
    mirrorMember(member, false);
}
