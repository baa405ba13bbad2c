// SPDX-License-Identifier: MIT
#pragma once

#include "mouse.h"

#include <OlvResizeItem>

/** The handles of a widget that can be resized; null for those that it has not. */
struct Handles
{
    OlvResizeItem *right = nullptr;
    OlvResizeItem *bottom = nullptr;
    OlvResizeItem *corner = nullptr;
};

inline Handles handlesOf(const QWidget &target)
{
    Handles handles;
    for (QObject *child : target.children()) {
        auto *handle = dynamic_cast<OlvResizeItem *>(child);
        if (!handle) {
            continue;
        }
        switch (handle->type()) {
        case OlvResizeItem::RightEdge:
            handles.right = handle;
            break;
        case OlvResizeItem::BottomEdge:
            handles.bottom = handle;
            break;
        case OlvResizeItem::Corner:
            handles.corner = handle;
            break;
        }
    }
    return handles;
}

inline OlvResizeItem *handleOf(const QWidget &target, OlvResizeItem::ResizeType type)
{
    const Handles handles = handlesOf(target);
    switch (type) {
    case OlvResizeItem::RightEdge:
        return handles.right;
    case OlvResizeItem::BottomEdge:
        return handles.bottom;
    case OlvResizeItem::Corner:
        break;
    }
    return handles.corner;
}

inline void drag(OlvResizeItem *handle, QPointF from, QPointF to)
{
    Mouse::press(handle, from);
    Mouse::move(handle, to);
}
