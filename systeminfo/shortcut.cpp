// SPDX-License-Identifier: MIT
#include <OlvSystemInfo/shortcut.h>

#include "shortcutbackend_p.h"

#include <QKeySequence>
#include <QMetaEnum>
#include <QSet>

namespace {

/** Never destroyed: a program may destroy a shortcut after the statics of this library. */
QSet<OlvShortcut *> &livingShortcuts()
{
    static auto *const shortcuts = new QSet<OlvShortcut *>;
    return *shortcuts;
}

/** Keys that QKeySequence has no text for: it makes unprintable characters of them. */
bool isWithoutText(Qt::Key key)
{
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_Mode_switch:
    case Qt::Key_Multi_key:
        return true;
    default:
        return key <= 0 || key == Qt::Key_unknown;
    }
}

/** The key's name as Qt's header has it; empty for a key that is none. */
QString nameOf(Qt::Key key)
{
    if (key <= 0 || key == Qt::Key_unknown) {
        return QString();
    }
    const QLatin1String prefix("Key_");
    const QString name = QLatin1String(QMetaEnum::fromType<Qt::Key>().valueToKey(key));
    return name.startsWith(prefix) ? name.mid(prefix.size()) : name;
}

} // namespace

class OlvShortcut::Private
{
public:
    Qt::Key key = Qt::Key_unknown;
    Qt::KeyboardModifiers modifiers;
};

OlvShortcut::OlvShortcut(Qt::Key key, bool ctrl, bool shift, bool alt, bool meta, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    d->key = key;
    d->modifiers.setFlag(Qt::ControlModifier, ctrl);
    d->modifiers.setFlag(Qt::ShiftModifier, shift);
    d->modifiers.setFlag(Qt::AltModifier, alt);
    d->modifiers.setFlag(Qt::MetaModifier, meta);
    livingShortcuts().insert(this);
}

OlvShortcut::~OlvShortcut()
{
    OlvShortcut::destroy();
    livingShortcuts().remove(this);
}

bool OlvShortcut::active()
{
    ShortcutBackend *backend = ShortcutBackend::instance();
    return backend && backend->grab(this, d->key, d->modifiers);
}

void OlvShortcut::destroy()
{
    if (ShortcutBackend *backend = ShortcutBackend::existingInstance()) {
        backend->release(this);
    }
}

QString OlvShortcut::toString()
{
    if (!isWithoutText(d->key)) {
        return QKeySequence(int(d->modifiers) | d->key).toString(QKeySequence::NativeText);
    }
    // the text of the modifiers comes with a key behind it: a space takes its place
    const QString space = QKeySequence(Qt::Key_Space).toString(QKeySequence::NativeText);
    QString text =
        QKeySequence(int(d->modifiers) | Qt::Key_Space).toString(QKeySequence::NativeText);
    text.chop(space.size());
    return text + nameOf(d->key);
}

OlvShortcut *OlvShortcut::fromAddress(qulonglong address)
{
    for (OlvShortcut *shortcut : qAsConst(livingShortcuts())) {
        if (reinterpret_cast<qulonglong>(shortcut) == address) {
            return shortcut;
        }
    }
    return nullptr;
}
