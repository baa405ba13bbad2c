// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QKeySequence>
#include <QMouseEvent>
#include <QPalette>
#include <QVariant>

/** What Qt 6 has under other names, or with other types, than Qt 5. */
namespace QtVersion {

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)

/** What qHash() takes and returns. */
using Hash = std::size_t;

inline QPointF localPosition(const QMouseEvent *event)
{
    return event->position();
}

inline QPointF windowPosition(const QMouseEvent *event)
{
    return event->scenePosition();
}

inline QPointF globalPosition(const QMouseEvent *event)
{
    return event->globalPosition();
}

/** The key of a combination, and the modifiers that are pressed with it, as one number. */
inline int combined(QKeyCombination combination)
{
    return combination.toCombined();
}

/** Whether a value can become one of a meta-type, which is given by its number. */
inline bool canConvert(const QVariant &value, int type)
{
    return value.canConvert(QMetaType(type));
}

inline bool convert(QVariant *value, int type)
{
    return value->convert(QMetaType(type));
}

/** Which roles a palette has set: each in each of its groups, in Qt 5 each in all of them. */
inline quint64 resolveMask(const QPalette &palette)
{
    return palette.resolveMask();
}

inline void setResolveMask(QPalette *palette, quint64 mask)
{
    palette->setResolveMask(mask);
}

/** What resolveMask() is for a palette with one role in one group. */
inline quint64 maskOf(QPalette::ColorGroup group, QPalette::ColorRole role)
{
    QPalette palette;
    palette.setResolveMask(0);
    palette.setBrush(group, role, QBrush());
    return palette.resolveMask();
}

#else

using Hash = uint;

inline QPointF localPosition(const QMouseEvent *event)
{
    return event->localPos();
}

inline QPointF windowPosition(const QMouseEvent *event)
{
    return event->windowPos();
}

inline QPointF globalPosition(const QMouseEvent *event)
{
    return event->screenPos();
}

inline int combined(int combination)
{
    return combination;
}

inline bool canConvert(const QVariant &value, int type)
{
    return value.canConvert(type);
}

inline bool convert(QVariant *value, int type)
{
    return value->convert(type);
}

inline quint64 resolveMask(const QPalette &palette)
{
    return palette.resolve();
}

inline void setResolveMask(QPalette *palette, quint64 mask)
{
    palette->resolve(uint(mask));
}

inline quint64 maskOf(QPalette::ColorGroup /*group*/, QPalette::ColorRole role)
{
    return quint64(1) << role;
}

#endif

} // namespace QtVersion
