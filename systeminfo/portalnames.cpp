// SPDX-License-Identifier: MIT
#include "portalnames_p.h"

#include "keysymbols_p.h"

#include <QGuiApplication>

#include <utility>

namespace {

/** The key's symbol, in lower case; none for what cannot be a shortcut. */
xkb_keysym_t lowerSymbolOf(Qt::Key key)
{
    if (!isTextKey(key)) {
        return symbolOf(key);
    }
    // Symbols of Latin-1 have the numbers of their characters, and the others an offset.
    constexpr uint endOfLatin1 = 0x100;
    constexpr xkb_keysym_t offset = 0x01000000;
    const uint character = QChar::toLower(uint(key));
    return character < endOfLatin1 ? character : offset + character;
}

} // namespace

QString portalTrigger(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    const std::pair<Qt::KeyboardModifier, const char *> names[] = {
        { Qt::ControlModifier, "CTRL+" },
        { Qt::AltModifier, "ALT+" },
        { Qt::ShiftModifier, "SHIFT+" },
        { Qt::MetaModifier, "LOGO+" },
    };
    const xkb_keysym_t symbol = lowerSymbolOf(key);
    QByteArray name(64, '\0');
    if (symbol == XKB_KEY_NoSymbol
        || xkb_keysym_get_name(symbol, name.data(), size_t(name.size())) <= 0) {
        return QString();
    }
    QString trigger;
    for (const auto &modifier : names) {
        if (modifiers.testFlag(modifier.first)) {
            trigger += QLatin1String(modifier.second);
        }
    }
    return trigger + QLatin1String(name.constData());
}

QString portalName(const QString &text)
{
    // Desktops know programs by the names of their desktop files.
    const QString desktopFile = QGuiApplication::desktopFileName();
    QString name = desktopFile.isEmpty() ? QCoreApplication::applicationName() : desktopFile;
    name += QLatin1Char('_') + text;
    for (QChar &character : name) {
        if (character.unicode() >= 0x80 || !character.isLetterOrNumber()) {
            character = QLatin1Char('_');
        }
    }
    return name;
}
