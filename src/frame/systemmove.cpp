// SPDX-License-Identifier: MIT
#include "frame/systemmove_p.h"

#include "support/platform_p.h"
#include "support/qtversion_p.h"

#include <QMouseEvent>
#include <QPointer>
#include <QWidget>
#include <QWindow>

#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)

namespace {

/** Tells @p window that the buttons that are held during @p move are released. */
void releaseButtons(const QPointer<QWindow> &window, const QMouseEvent *move)
{
    const QPointF place = QtVersion::windowPosition(move);
    Qt::MouseButtons held = move->buttons();
    for (uint bit = Qt::LeftButton; held != Qt::NoButton && window; bit <<= 1) {
        const auto button = Qt::MouseButton(bit);
        if (held.testFlag(button)) {
            held.setFlag(button, false);
            QMouseEvent release(QEvent::MouseButtonRelease, place, place,
                                QtVersion::globalPosition(move), button, held, move->modifiers());
            QCoreApplication::sendEvent(window, &release);
        }
    }
}

} // namespace

bool startSystemMove(const QWidget *target, const QMouseEvent *move)
{
    if (!isOnWayland() || !target->isWindow() || move->buttons() == Qt::NoButton) {
        return false;
    }
    QWindow *window = target->windowHandle();
    if (!window || !window->startSystemMove()) {
        return false;
    }
    // The compositor keeps the release to itself. An event that is posted would come after the next
    // mouse move, which would ask a second time.
    releaseButtons(window, move);
    return true;
}

#else

bool startSystemMove(const QWidget * /*target*/, const QMouseEvent * /*move*/)
{
    return false;
}

#endif
