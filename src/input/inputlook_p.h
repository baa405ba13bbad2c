// SPDX-License-Identifier: MIT
#pragma once

#include "support/mirror_p.h"

class OlvLineEdit;
class OlvShortcutEdit;

/** What a form may ask of the look of a field. */
struct InputLook
{
    Mirror mirror;

    /** Exchanges left and right in a field, but for its texts. */
    static void setMirrored(OlvLineEdit *edit, bool isOn);
    static void setMirrored(OlvShortcutEdit *edit, bool isOn);
};
