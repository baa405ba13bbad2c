// SPDX-License-Identifier: MIT
#include "forms/formgrid_p.h"

#include <OlvWidgets/containers.h>

#include "containers/gridmirror_p.h"

#include <QFocusEvent>
#include <QKeyEvent>

namespace {

OlvGridLayout *gridAround(const QWidget *widget)
{
    for (QWidget *around = widget->parentWidget(); around; around = around->parentWidget()) {
        if (auto *grid = qobject_cast<OlvGridLayout *>(around)) {
            return grid;
        }
    }
    return nullptr;
}

bool takesFocus(const QWidget *tile)
{
    return tile->isVisible() && tile->isEnabled()
        && (tile->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
}

/** The next tile from @p index on, in steps of 1 or -1; null at the end. */
QWidget *nextFrom(const OlvGridLayout *grid, int index, int step)
{
    for (; index >= 0 && index < grid->count(); index += step) {
        if (takesFocus(grid->widgetAt(index))) {
            return grid->widgetAt(index);
        }
    }
    return nullptr;
}

/** The tile of the next row in that direction which is nearest to the middle of @p tile. */
QWidget *inNextRow(const OlvGridLayout *grid, QWidget *tile, int step)
{
    QWidget *found = nullptr;
    int distance = 0;
    for (int i = grid->indexOf(tile); i >= 0 && i < grid->count(); i += step) {
        QWidget *other = grid->widgetAt(i);
        if (other->y() == tile->y() || !takesFocus(other)) {
            continue;
        }
        if (found && other->y() != found->y()) {
            break;
        }
        const int away = qAbs(other->geometry().center().x() - tile->geometry().center().x());
        if (!found || away < distance) {
            found = other;
            distance = away;
        }
    }
    return found;
}

QWidget *target(const OlvGridLayout *grid, QWidget *tile, int key)
{
    const int index = grid->indexOf(tile);
    const int toTheRight = GridMirror::isOn(grid) ? -1 : 1;
    switch (key) {
    case Qt::Key_Left:
        return nextFrom(grid, index - toTheRight, -toTheRight);
    case Qt::Key_Right:
        return nextFrom(grid, index + toTheRight, toTheRight);
    case Qt::Key_Up:
        return inNextRow(grid, tile, -1);
    case Qt::Key_Down:
        return inNextRow(grid, tile, 1);
    case Qt::Key_Home:
        return nextFrom(grid, 0, 1);
    case Qt::Key_End:
        return nextFrom(grid, grid->count() - 1, -1);
    default:
        return nullptr;
    }
}

} // namespace

bool FormGrid::moveFocus(QWidget *tile, const QKeyEvent &key)
{
    const auto *grid = qobject_cast<OlvGridLayout *>(tile->parentWidget());
    if (!grid || grid->indexOf(tile) < 0
        || (key.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) {
        return false;
    }
    QWidget *next = target(grid, tile, key.key());
    if (!next || next == tile) {
        return false;
    }
    const bool isAhead = grid->indexOf(next) > grid->indexOf(tile);
    next->setFocus(isAhead ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void FormGrid::follow(QWidget *widget, const QEvent *event)
{
    if (event->type() != QEvent::FocusIn) {
        return;
    }
    const Qt::FocusReason reason = static_cast<const QFocusEvent *>(event)->reason();
    const bool isByKeyboard = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason
        || reason == Qt::ShortcutFocusReason;
    if (OlvGridLayout *grid = isByKeyboard ? gridAround(widget) : nullptr) {
        grid->ensureVisible(widget);
    }
}
