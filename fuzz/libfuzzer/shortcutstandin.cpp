// SPDX-License-Identifier: MIT
#include "shortcutstandin.h"

#include <OlvSystemInfo/shortcut.h>

#include <QSet>

namespace {

QSet<OlvShortcut *> &all()
{
    static QSet<OlvShortcut *> shortcuts;
    return shortcuts;
}

int refusedKey = -1;

} // namespace

class OlvShortcut::Private
{
public:
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
};

int ShortcutStandIn::living()
{
    return int(all().size());
}

void ShortcutStandIn::refuse(int key)
{
    refusedKey = key;
}

QString ShortcutStandIn::textOf(int key, bool ctrl, bool shift, bool alt, bool meta)
{
    return QStringLiteral("%1 %2%3%4%5").arg(key).arg(ctrl).arg(shift).arg(alt).arg(meta);
}

OlvShortcut::OlvShortcut(Qt::Key key, bool ctrl, bool shift, bool alt, bool meta, QObject *parent)
    : QObject(parent)
    , d(new Private{ key, {} })
{
    d->modifiers.setFlag(Qt::ControlModifier, ctrl);
    d->modifiers.setFlag(Qt::ShiftModifier, shift);
    d->modifiers.setFlag(Qt::AltModifier, alt);
    d->modifiers.setFlag(Qt::MetaModifier, meta);
    all().insert(this);
}

OlvShortcut::~OlvShortcut()
{
    all().remove(this);
}

bool OlvShortcut::active()
{
    return int(d->key) != refusedKey;
}

void OlvShortcut::destroy() { }

QString OlvShortcut::toString()
{
    return ShortcutStandIn::textOf(int(d->key), d->modifiers & Qt::ControlModifier,
                                   d->modifiers & Qt::ShiftModifier, d->modifiers & Qt::AltModifier,
                                   d->modifiers & Qt::MetaModifier);
}

OlvShortcut *OlvShortcut::fromAddress(qulonglong address)
{
    for (OlvShortcut *shortcut : qAsConst(all())) {
        if (reinterpret_cast<qulonglong>(shortcut) == address) {
            return shortcut;
        }
    }
    return nullptr;
}
