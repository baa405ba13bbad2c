// SPDX-License-Identifier: MIT
#pragma once

#include "deletiontable.h"

namespace DeletionTable {

/** What is done to every widget: input, and the setters of QWidget. */
QVector<Deed> everyDeed();
/** What assistive programs do to every widget. */
QVector<Deed> everyAction();

} // namespace DeletionTable
