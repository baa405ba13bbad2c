// SPDX-License-Identifier: MIT
#pragma once

#include "support/mirror_p.h"

class OlvLineEdit;
class OlvShortcutEdit;
class QColor;

/** What a form may ask of the look of a field. */
struct InputLook
{
    /** How well what a field writes on its white ground has to be seen. */
    enum Contrast {
        Unchanged, ///< as it is without a form
        Readable,
        Strong, ///< readable through what fades it
    };

    Mirror mirror;
    Contrast contrast = Unchanged;

    /** The colour that the field writes in, where it writes in @p color without a form. */
    QColor textColor(const QColor &color) const;

    /** Exchanges left and right in a field, but for its texts. */
    static void setMirrored(OlvLineEdit *edit, bool isOn);
    static void setMirrored(OlvShortcutEdit *edit, bool isOn);
    /** Sets how well the glyph of a line edit is to be seen, whose text has a palette. */
    static void setContrast(OlvLineEdit *edit, Contrast contrast);
    /** Sets how well the text is to be seen. */
    static void setContrast(OlvShortcutEdit *edit, Contrast contrast);
};
