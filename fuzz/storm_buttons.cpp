// SPDX-License-Identifier: MIT
#include "world.h"

#include <OlvWidgets/buttons.h>

namespace {

class ButtonsFamily : public Family
{
public:
    QWidget *make(World &world, QWidget *parent) override
    {
        Dice &dice = world.dice();
        switch (dice.below(8)) {
        case 0:
            return new OlvButton(parent);
        case 1:
        case 2:
            return new OlvButton(dice.text(), parent);
        case 3:
            return new OlvSimpleIconButton(dice.text(), dice.font(), parent);
        case 4:
            return new OlvIconButton(parent);
        default: {
            const QChar icon = dice.character();
            const QString text = dice.text();
            const QString family = dice.text();
            const int width = dice.side();
            return new OlvIconButton(icon, text, family, parent, width, dice.side());
        }
        }
    }

    void call(World &world, QWidget *widget) override
    {
        Dice &dice = world.dice();
        if (auto *button = qobject_cast<OlvButton *>(widget)) {
            callButton(dice, button);
        } else if (auto *tile = qobject_cast<OlvIconButton *>(widget)) {
            callTile(dice, tile);
        } else if (auto *glyph = qobject_cast<OlvSimpleIconButton *>(widget)) {
            callGlyph(dice, glyph);
        }
    }

    QVector<QByteArray> properties() const override
    {
        return { "isChecked", "isCheckable", "value",    "type",   "color",       "state",
                 "hovered",   "content",     "icon",     "text",   "clickNumber", "clickTimer",
                 "partSize",  "iconSize",    "textSize", "family", "deable",      "enable" };
    }

    void check(World & /*world*/, QWidget *widget) override
    {
        if (auto *button = qobject_cast<OlvButton *>(widget)) {
            Storm::check(button->getValue().userType() == QMetaType::Bool,
                         "the value of a button is a bool");
            Storm::check(button->isChecked() == button->property("isChecked").toBool(),
                         "a button is checked as its property says");
        } else if (auto *tile = qobject_cast<OlvIconButton *>(widget)) {
            Storm::check(tile->icon() == tile->property("icon").toChar(),
                         "a tile has the glyph that its property says");
            Storm::check(!isChecked(tile) || tile->property("isCheckable").toBool(),
                         "only a checkable tile looks checked");
        }
        Storm::check(!isChecked(nullptr), "no tile is not checked");
    }

    void setText(QWidget *widget, const QString &text) override
    {
        if (auto *button = qobject_cast<OlvButton *>(widget)) {
            button->setText(text);
        } else if (auto *tile = qobject_cast<OlvIconButton *>(widget)) {
            tile->setText(text);
        } else if (auto *glyph = qobject_cast<OlvSimpleIconButton *>(widget)) {
            glyph->setTextIcon(text, text);
        }
    }

private:
    static void callButton(Dice &dice, OlvButton *button)
    {
        static const std::array<QString, 5> types{ QStringLiteral("plain"), QStringLiteral("round"),
                                                   QStringLiteral("success"), QString(),
                                                   QStringLiteral("Round") };
        switch (dice.below(8)) {
        case 0: {
            const QString color = dice.pick(types);
            const QPointer<OlvButton> alive(button);
            button->setOlvStyle(color, dice.pick(types));
            if (alive) {
                button->setOlvStyle(dice.text(), color);
            }
            break;
        }
        case 1:
            button->setColor(dice.texts());
            break;
        case 2:
            button->setText(dice.text());
            break;
        case 3:
            button->setChecked(dice.coin());
            break;
        case 4:
            button->setCheckable(dice.coin());
            break;
        case 5:
            button->setValue(dice.variant());
            break;
        case 6:
            button->openInputMethod();
            break;
        default:
            button->click(dice.coin());
        }
    }

    static void callTile(Dice &dice, OlvIconButton *tile)
    {
        switch (dice.below(7)) {
        case 0:
            tile->setFontFamily(dice.text());
            break;
        case 1:
            tile->setIcon(dice.character());
            break;
        case 2:
            tile->setText(dice.text());
            break;
        case 3:
            tile->setColor(dice.color());
            break;
        case 4:
            tile->setCheckable(dice.coin());
            break;
        case 5:
            tile->getValue();
            break;
        default:
            tile->setValue(dice.variant());
        }
    }

    static void callGlyph(Dice &dice, OlvSimpleIconButton *glyph)
    {
        const QString one = dice.text();
        switch (dice.below(20)) {
        case 0:
            glyph->setToggle(one);
            break;
        case 1:
        case 2:
            glyph->click();
            break;
        default:
            glyph->setTextIcon(one, dice.text());
        }
    }
};

} // namespace

int main(int argc, char **argv)
{
    return runWorlds<ButtonsFamily>(argc, argv, "buttons");
}
