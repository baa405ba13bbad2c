// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/**
 * The character that @p typed stands for: itself, or its code in hexadecimal digits as fonts' lists
 * of glyphs write them, such as f005 or U+F005. Empty for anything else, and for a code of no
 * character or of one that does not fit into a QChar.
 */
QString glyphFrom(const QString &typed);

/** The code of @p glyph as glyphFrom() takes it; a text of any other length as it is. */
QString glyphCode(const QString &glyph);
