// SPDX-License-Identifier: MIT
#include "world.h"

#include <OlvWidgets/input.h>

#include <QEvent>
#include <QLineEdit>

namespace {

/** A shortcut whose operations delete objects and run the event loop. */
class OwnShortcut : public OlvShortcut
{
public:
    OwnShortcut(World &world, QObject *parent)
        : OlvShortcut(Qt::Key(world.dice().number() & 0x1ffffff), world.dice().coin(),
                      world.dice().coin(), world.dice().coin(), world.dice().coin(), parent)
        , m_world(world)
    {
        m_world.remember(this);
    }

    bool active() override
    {
        World &world = m_world;
        makeTrouble(); // may delete it
        return !world.dice().oneIn(3);
    }
    void destroy() override
    {
        makeTrouble();
    }
    QString toString() override
    {
        return m_world.dice().text();
    }

private:
    void makeTrouble()
    {
        World &world = m_world;
        switch (world.dice().below(24)) {
        case 0:
            world.deleteAny(nullptr);
            break;
        case 1:
            world.pass(1);
            break;
        case 2:
            delete this;
            break;
        default:
            break;
        }
    }

    World &m_world;
};

class InputFamily : public Family
{
public:
    QWidget *make(World &world, QWidget *parent) override
    {
        switch (world.dice().below(5)) {
        case 0:
            return new OlvShortcutEdit(parent);
        case 1:
            return new OlvShortcutEdit(new OwnShortcut(world, nullptr), parent);
        default: {
            auto *line = new OlvLineEdit(parent);
            // a drag of text would block until a real mouse button is released
            line->findChild<QLineEdit *>()->setDragEnabled(false);
            return line;
        }
        }
    }

    void call(World &world, QWidget *widget) override
    {
        if (auto *line = qobject_cast<OlvLineEdit *>(widget)) {
            callLine(world.dice(), line);
        } else if (auto *edit = qobject_cast<OlvShortcutEdit *>(widget)) {
            callShortcutEdit(world, edit);
        }
    }

    QVector<QByteArray> properties() const override
    {
        return { "Icon",           "IconWidth",   "Pwd",  "Visible", "Invisible", "state",
                 "HasOlvShortcut", "OlvShortcut", "Temp", "deable",  "enable" };
    }

    void check(World &world, QWidget *widget) override
    {
        if (auto *line = qobject_cast<OlvLineEdit *>(widget)) {
            Storm::check(line->getValue() == QVariant(line->getText()),
                         "the value of a line is its text");
        } else if (auto *edit = qobject_cast<OlvShortcutEdit *>(widget)) {
            const OlvShortcut *held = edit->shortcut();
            Storm::check(edit->getValue().userType() == QMetaType::QString,
                         "the value of a shortcut edit is a string");
            Storm::check(
                !held || held == OlvShortcut::fromAddress(reinterpret_cast<qulonglong>(held)),
                "a shortcut that is held lives");
            const qulonglong address = world.anyAddress();
            const OlvShortcut *found = OlvShortcut::fromAddress(address);
            Storm::check(!found || reinterpret_cast<qulonglong>(found) == address,
                         "an address finds itself");
        }
    }

    void setText(QWidget *widget, const QString &text) override
    {
        const QPointer<OlvLineEdit> line(qobject_cast<OlvLineEdit *>(widget));
        if (line) {
            line->setIcon(text);
        }
        if (line) {
            line->setPlaceholderText(text);
        }
        if (line) {
            line->setText(text);
        }
    }

private:
    static void callLine(Dice &dice, OlvLineEdit *line)
    {
        switch (dice.below(8)) {
        case 0:
            line->setValue(dice.variant());
            break;
        case 1:
            line->setText(dice.text());
            break;
        case 2:
            line->setPlaceholderText(dice.text());
            break;
        case 3:
            line->setIcon(dice.text());
            break;
        case 4:
            line->setPassWord(dice.coin());
            break;
        case 5: {
            const QString hidden = dice.text();
            line->setPwdIcon(hidden, dice.text());
            break;
        }
        case 6: {
            QEvent event(dice.coin() ? QEvent::FocusIn : QEvent::FocusOut);
            const QPointer<OlvLineEdit> alive(line);
            const bool isConsumed = line->eventFilter(nullptr, &event);
            Storm::check(!isConsumed || !alive, "a line consumes nothing");
            break;
        }
        default:
            line->openInputMethod();
        }
    }

    static void callShortcutEdit(World &world, OlvShortcutEdit *edit)
    {
        Dice &dice = world.dice();
        switch (dice.below(7)) {
        case 0:
            edit->clear();
            break;
        case 1:
            edit->setValue(dice.variant());
            break;
        case 2:
            edit->setValue(world.anyAddress());
            break;
        case 3:
            edit->setShortcut(edit->shortcut());
            break;
        case 4:
            delete edit->shortcut();
            break;
        default:
            callSetShortcut(world, edit);
        }
    }

    static void callSetShortcut(World &world, OlvShortcutEdit *edit)
    {
        Dice &dice = world.dice();
        QObject *parent = dice.oneIn(4) ? world.anyHost() : nullptr;
        const QPointer<OlvShortcutEdit> alive(edit);
        const QPointer<OlvShortcut> shortcut(
            dice.oneIn(3) ? new OlvShortcut(Qt::Key(dice.number() & 0x1ffffff), dice.coin(),
                                            dice.coin(), dice.coin(), dice.coin(), parent)
                          : new OwnShortcut(world, parent));
        const bool isTaken = edit->setShortcut(shortcut);
        // a slot may have handed the same shortcut over meanwhile, and then it is kept
        Storm::check(isTaken || shortcut.isNull() || (alive && alive->shortcut() == shortcut),
                     "a shortcut that is refused is deleted");
        Storm::check(alive || shortcut.isNull(), "a shortcut goes with its field");
        if (!dice.oneIn(8)) {
            return;
        }
        // a shortcut that two fields hold is a mistake of the program
        if (auto *other = qobject_cast<OlvShortcutEdit *>(world.anyWidget())) {
            other->setShortcut(shortcut);
        }
    }
};

} // namespace

int main(int argc, char **argv)
{
    return runWorlds<InputFamily>(argc, argv, "input");
}
