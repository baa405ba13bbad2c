// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>
#include <QWidget>

/** A look like that of the library's widgets, for Qt's own. */
QString styleSheet();
/** The part of it that makes a QSlider look like the library's. */
QString sliderStyleSheet();

/** Puts one of each of the library's widgets for a dialog into @p window, and gives it its size. */
void makeLibraryWidgets(QWidget *window);
/** The same with Qt's own widgets under that style sheet. */
void makeStyledWidgets(QWidget *window);

/** One below the other in @p window, which gets its size. */
inline void arrange(QWidget *window, const QVector<QWidget *> &widgets)
{
    window->resize(640, 480);
    for (int i = 0; i < widgets.size(); ++i) {
        widgets.at(i)->setGeometry(10, 10 + i * 90, 120, 36);
    }
}
