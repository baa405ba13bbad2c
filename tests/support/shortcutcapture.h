// SPDX-License-Identifier: MIT
#pragma once

#include <OlvShortcutEdit>

#include <QString>

/** The fields of the capture record, in their order, as the property's address shows them. */
struct Capture
{
    bool ctrl;
    bool shift;
    bool alt;
    bool meta;
    int key;
    bool recording;
};

inline Capture captureOf(const OlvShortcutEdit &edit)
{
    return *reinterpret_cast<const Capture *>(edit.property("Temp").toULongLong());
}

inline QString textOf(const Capture &capture)
{
    return QStringLiteral("%1%2%3%4 %5 %6")
        .arg(capture.ctrl ? QStringLiteral("c") : QString(),
             capture.shift ? QStringLiteral("s") : QString(),
             capture.alt ? QStringLiteral("a") : QString(),
             capture.meta ? QStringLiteral("m") : QString())
        .arg(capture.key == Qt::Key_unknown ? -1 : capture.key)
        .arg(capture.recording ? QStringLiteral("recording") : QStringLiteral("idle"));
}
