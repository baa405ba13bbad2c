// SPDX-License-Identifier: MIT
#include "onewindow.h"

#include <OlvWidgets/buttons.h>
#include <OlvWidgets/input.h>
#include <OlvWidgets/value.h>

void makeLibraryWidgets(QWidget *window)
{
    const QVector<QWidget *> widgets{ new OlvButton(QStringLiteral("Save"), window),
                                      new OlvIconButton(QLatin1Char('M'), QStringLiteral("Mail"),
                                                        QStringLiteral("FontAwesome"), window, 80,
                                                        80),
                                      new OlvLineEdit(window), new OlvSwitch(window),
                                      new OlvSlider(window) };
    arrange(window, widgets);
}
