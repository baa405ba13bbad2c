// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/** Texts as a screen reader reads them out. */
namespace SpokenText {

/** Whether a text says anything: blanks do not, nor do the private characters of icon fonts. */
bool isReadable(const QString &text);

/** A tool tip, which may be written in HTML, as plain text. */
QString plain(const QString &toolTip);

} // namespace SpokenText
