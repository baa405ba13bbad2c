// SPDX-License-Identifier: MIT
#pragma once

struct FormMember;

/** The look of disabled members, which draw themselves as enabled ones do. */
namespace DisabledLook {

/**
 * Fades a disabled member, with its parts, by a graphics effect; takes the effect from one that is
 * enabled. One that has an effect of the application's keeps that.
 */
void fit(FormMember &member);
/** Takes the effect away. */
void take(FormMember &member);

} // namespace DisabledLook
