// SPDX-License-Identifier: MIT
#pragma once

struct FormMember;

/** Exchanges left and right in the members that are laid out from the right to the left. */
namespace Mirroring {

/** Mirrors a member, or stops it, as its layout direction has it. */
void fit(const FormMember &member);
/** Stops mirroring a member. */
void take(const FormMember &member);

} // namespace Mirroring
