// SPDX-License-Identifier: MIT
#pragma once

#include "input/shortcutcapture_p.h"

#include <OlvShortcutEdit>

#include <QString>

inline ShortcutCapture captureOf(const OlvShortcutEdit &edit)
{
    return *reinterpret_cast<const ShortcutCapture *>(edit.property("Temp").toULongLong());
}

inline QString textOf(const ShortcutCapture &capture)
{
    return QStringLiteral("%1%2%3%4 %5 %6")
        .arg(capture.ctrl ? QStringLiteral("c") : QString(),
             capture.shift ? QStringLiteral("s") : QString(),
             capture.alt ? QStringLiteral("a") : QString(),
             capture.meta ? QStringLiteral("m") : QString())
        .arg(capture.key == Qt::Key_unknown ? -1 : capture.key)
        .arg(capture.recording ? QStringLiteral("recording") : QStringLiteral("idle"));
}
