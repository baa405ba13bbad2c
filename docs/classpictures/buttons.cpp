// SPDX-License-Identifier: MIT
#include "picture.h"

#include <OlvWidgets/buttons.h>

namespace {

const QString iconFamily = QStringLiteral("FontAwesome");

std::function<void()> fillButton(QWidget *stage)
{
    const QStringList schemes{ QStringLiteral("primary"), QStringLiteral("success"),
                               QStringLiteral("warning"), QStringLiteral("danger") };
    const QStringList shapes{ QString(), QStringLiteral("round"), QStringLiteral("plain") };
    for (int column = 0; column < schemes.size(); ++column) {
        for (int row = 0; row < shapes.size(); ++row) {
            auto *button = new OlvButton(schemes.at(column), stage);
            button->setOlvStyle(schemes.at(column), shapes.at(row));
            button->setGeometry(16 + column * 104, 16 + row * 44, 92, 32);
        }
    }
    return {};
}

std::function<void()> fillIconButton(QWidget *stage)
{
    const struct
    {
        ushort glyph;
        const char *text;
        const char *state;
        bool isChecked;
    } tiles[] = {
        { 0xf0e0, "Mail", "init", false },
        { 0xf073, "Calendar", "hover", false },
        { 0xf001, "Music", "init", true },
    };
    int x = 16;
    for (const auto &tile : tiles) {
        auto *button = new OlvIconButton(QChar(tile.glyph), QLatin1String(tile.text), iconFamily,
                                         stage, 80, 80);
        button->setColor(QColor(64, 158, 255));
        button->setCheckable(true);
        button->setProperty("state", QLatin1String(tile.state));
        button->setProperty("isChecked", tile.isChecked);
        button->move(x, 16);
        x += 96;
    }
    return {};
}

std::function<void()> fillSimpleIconButton(QWidget *stage)
{
    for (int i = 0; i < 2; ++i) {
        auto *star = new OlvSimpleIconButton(QChar(0xf006), QFont(iconFamily, 18), stage);
        star->setToggle(QChar(0xf005));
        star->setGeometry(16 + i * 56, 16, 40, 40);
        if (i == 1) {
            star->click();
        }
    }
    return {};
}

} // namespace

QVector<Picture> buttonPictures()
{
    return {
        { QStringLiteral("OlvButton"), { 436, 152 }, fillButton },
        { QStringLiteral("OlvIconButton"), { 304, 112 }, fillIconButton },
        { QStringLiteral("OlvSimpleIconButton"), { 128, 72 }, fillSimpleIconButton },
    };
}
