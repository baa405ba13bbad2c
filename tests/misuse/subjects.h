// SPDX-License-Identifier: MIT
#pragma once

#include "deletiontable.h"

namespace DeletionTable {

/** Qt's own widgets. */
QVector<Subject> plainSubjects();
QVector<Subject> buttonSubjects();
QVector<Subject> inputSubjects();
QVector<Subject> valueSubjects();
QVector<Subject> frameSubjects();
QVector<Subject> containerSubjects();
/** The widgets of a form that has a support, and of one that is itself the form. */
QVector<Subject> formSubjects();

/** All of them. */
const QVector<Subject> &everySubject();

} // namespace DeletionTable
