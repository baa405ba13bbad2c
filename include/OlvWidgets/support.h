// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>

/**
 * @file support.h
 * What Qt 5 and Qt 6 declare differently.
 */

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
class QEnterEvent;
/** The type of the event that QWidget::enterEvent() gets: QEvent in Qt 5, QEnterEvent in Qt 6. */
using OlvEnterEvent = QEnterEvent;
#else
using OlvEnterEvent = QEvent;
#endif
