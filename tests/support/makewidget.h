// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaType>

class QWidget;

/** Makes a widget of some kind, in the rows of a test. */
using MakeWidget = QWidget *(*)();

Q_DECLARE_METATYPE(MakeWidget)
