// SPDX-License-Identifier: MIT
#include "colors.h"

#include <QApplication>
#include <QPushButton>

namespace {

QPalette makeColors(const QColor &background, const QColor &field, const QColor &list,
                    const QColor &button, const QColor &text, const QColor &hint)
{
    QPalette colors;
    colors.setColor(QPalette::Window, background);
    colors.setColor(QPalette::WindowText, text);
    colors.setColor(QPalette::Base, field);
    colors.setColor(QPalette::AlternateBase, list);
    colors.setColor(QPalette::Button, button);
    colors.setColor(QPalette::ButtonText, text);
    colors.setColor(QPalette::Text, text);
#if QT_VERSION >= QT_VERSION_CHECK(5, 12, 0)
    colors.setColor(QPalette::PlaceholderText, hint);
#else
    Q_UNUSED(hint)
#endif
    return colors;
}

} // namespace

QPalette lightColors()
{
    return makeColors(Qt::white, QColor(250, 250, 252), QColor(245, 247, 250),
                      QColor(239, 240, 242), QColor(48, 49, 51), QColor(144, 147, 153));
}

QPalette darkColors()
{
    return makeColors(QColor(32, 33, 36), QColor(41, 42, 46), QColor(25, 26, 29),
                      QColor(56, 58, 63), QColor(229, 231, 235), QColor(144, 147, 153));
}

void lightenGlyph(QPushButton *button)
{
    if (QApplication::palette() == darkColors()) {
        button->setStyleSheet(button->styleSheet()
                              + QStringLiteral("QPushButton:hover{color:white}"
                                               "QPushButton:checked{color:white}"
                                               "QPushButton:disabled{color:rgb(110,112,118)}"));
    }
}
