// SPDX-License-Identifier: MIT
#include <OlvSystemInfo/shortcut.h>

#include "shortcutbackend_p.h"

#include <QHash>
#include <QKeySequence>
#include <QMetaEnum>

#include <mutex>

namespace {

/** The living shortcuts of all threads. */
class LivingShortcuts
{
public:
    void insert(OlvShortcut *shortcut)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_shortcuts.insert(addressOf(shortcut), shortcut);
    }
    void remove(OlvShortcut *shortcut)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_shortcuts.remove(addressOf(shortcut));
    }
    OlvShortcut *find(qulonglong address)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_shortcuts.value(address);
    }

private:
    static qulonglong addressOf(OlvShortcut *shortcut)
    {
        return reinterpret_cast<qulonglong>(shortcut);
    }

    std::mutex m_mutex;
    QHash<qulonglong, OlvShortcut *> m_shortcuts;
};

/** Never destroyed: a program may destroy a shortcut after the statics of this library. */
LivingShortcuts &livingShortcuts()
{
    static auto *const shortcuts = new LivingShortcuts;
    return *shortcuts;
}

/** Whether QKeySequence has no text for the key, and would make unprintable characters of it. */
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

/** The key's name in Qt's header, without its prefix; empty for what is no key. */
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
    QString description;
};

OlvShortcut::OlvShortcut(Qt::Key key, bool ctrl, bool shift, bool alt, bool meta, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    qRegisterMetaType<OlvShortcut::State>(); // for queued connections
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
    return ShortcutBackend::registerShortcut(this, { d->key, d->modifiers, d->description });
}

void OlvShortcut::destroy()
{
    ShortcutBackend::unregisterShortcut(this);
}

QString OlvShortcut::toString()
{
    if (!isWithoutText(d->key)) {
        return QKeySequence(int(d->modifiers) | d->key).toString(QKeySequence::NativeText);
    }
    // QKeySequence has no text for modifiers alone, so that of a space behind them is removed.
    const QString space = QKeySequence(Qt::Key_Space).toString(QKeySequence::NativeText);
    QString text =
        QKeySequence(int(d->modifiers) | Qt::Key_Space).toString(QKeySequence::NativeText);
    text.chop(space.size());
    return text + nameOf(d->key);
}

OlvShortcut::State OlvShortcut::state() const
{
    return ShortcutBackend::stateOf(this);
}

QString OlvShortcut::description() const
{
    return d->description;
}

void OlvShortcut::setDescription(const QString &description)
{
    d->description = description;
}

OlvShortcut *OlvShortcut::fromAddress(qulonglong address)
{
    return livingShortcuts().find(address);
}
