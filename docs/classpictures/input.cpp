// SPDX-License-Identifier: MIT
#include "picture.h"

#include <OlvSystemInfo/shortcut.h>
#include <OlvWidgets/input.h>

#include <QLabel>

namespace {

/** One that is always to be had: pictures are made where there is nothing to register with. */
class PicturedShortcut : public OlvShortcut
{
public:
    using OlvShortcut::OlvShortcut;
    bool active() override
    {
        return true;
    }
};

OlvShortcutEdit *addShortcutEdit(QWidget *stage, OlvShortcut *shortcut)
{
    auto *edit = new OlvShortcutEdit(stage);
    edit->setGeometry(16, 16, 220, 32);
    edit->setShortcut(shortcut);
    return edit;
}

std::function<void()> fillLineEdit(QWidget *stage)
{
    auto *user = new OlvLineEdit(stage);
    user->setGeometry(16, 16, 280, 32);
    user->setIcon(QChar(0xf007));
    user->setText(QStringLiteral("Li Wei"));
    user->setProperty("state", QStringLiteral("edit"));
    auto *password = new OlvLineEdit(stage);
    password->setGeometry(16, 64, 280, 32);
    password->setIcon(QChar(0xf023));
    password->setPassWord(true);
    password->setPwdIcon(QChar(0xf06e), QChar(0xf070));
    password->setText(QStringLiteral("horse 42"));
    return {};
}

std::function<void()> fillShortcutEdit(QWidget *stage)
{
    addShortcutEdit(stage, new PicturedShortcut(Qt::Key_A, true, true, false, false));
    return {};
}

std::function<void()> fillShortcut(QWidget *stage)
{
    auto *shortcut = new PicturedShortcut(Qt::Key_F5, true, false, false, false);
    OlvShortcutEdit *edit = addShortcutEdit(stage, shortcut);
    auto *said = new QLabel(stage);
    said->setGeometry(edit->geometry().translated(edit->width() + 16, 0));
    QObject::connect(shortcut, &OlvShortcut::activated, said,
                     [=] { said->setText(QStringLiteral("activated(): recording …")); });
    Q_EMIT shortcut->activated();
    return {};
}

} // namespace

QVector<Picture> inputPictures()
{
    return {
        { QStringLiteral("OlvLineEdit"), { 312, 112 }, fillLineEdit },
        { QStringLiteral("OlvShortcutEdit"), { 252, 64 }, fillShortcutEdit },
        { QStringLiteral("OlvShortcut"), { 420, 64 }, fillShortcut },
    };
}
