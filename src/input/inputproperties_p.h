// SPDX-License-Identifier: MIT
#pragma once

/** The names of a line edit's dynamic properties that more than one file reads. */
namespace InputProperties {

constexpr char icon[] = "Icon";
constexpr char password[] = "Pwd";

} // namespace InputProperties
