// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaType>

class QWidget;

/** Makes a widget of some kind, in the rows of a test. */
using MakeWidget = QWidget *(*)();

/** Makes one in another widget. */
using MakeIn = QWidget *(*)(QWidget *parent);

Q_DECLARE_METATYPE(MakeWidget)
Q_DECLARE_METATYPE(MakeIn)
