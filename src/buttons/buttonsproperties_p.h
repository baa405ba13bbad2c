// SPDX-License-Identifier: MIT
#pragma once

/** The names of the buttons' dynamic properties that more than one file reads. */
namespace ButtonsProperties {

constexpr char state[] = "state";
constexpr char hovered[] = "hovered";
constexpr char value[] = "value";
constexpr char color[] = "color";
constexpr char checkable[] = "isCheckable";
constexpr char checked[] = "isChecked";
/** The shape of an OlvButton. */
constexpr char type[] = "type";
/** A quarter of the width of an OlvIconButton. */
constexpr char partSize[] = "partSize";
/** The caption of an OlvButton. */
constexpr char content[] = "content";
/** The caption of an OlvIconButton. */
constexpr char text[] = "text";

} // namespace ButtonsProperties
