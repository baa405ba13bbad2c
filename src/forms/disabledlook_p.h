// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

struct FormMember;

/** The look of disabled members, which draw themselves as enabled ones do. */
namespace DisabledLook {

/** The opacity of a disabled member. */
constexpr qreal opacity = 0.4;

/**
 * Fades a disabled member, with its parts, by a graphics effect; takes the effect from one that is
 * enabled. One that has an effect of the application's keeps that.
 */
void fit(const FormMember &member);
/** Whether a member is faded, or will be once it is disabled. */
bool fades(const FormMember &member);
/** Takes the effect away. */
void take(const FormMember &member);

} // namespace DisabledLook
