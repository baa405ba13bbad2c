// SPDX-License-Identifier: MIT
#include <OlvButton>

#include <QImage>

/** Paints a button with a caption often enough that all of it is kept; returns how many colours it
 * has. */
extern "C" Q_DECL_EXPORT int paintButton()
{
    OlvButton button(QStringLiteral("Plugin"));
    button.resize(120, 36);
    QImage image(button.size(), QImage::Format_RGB32);
    for (int round = 0; round < 4; ++round) {
        image.fill(Qt::white);
        button.render(&image);
    }
    return image.convertToFormat(QImage::Format_Indexed8).colorCount();
}
