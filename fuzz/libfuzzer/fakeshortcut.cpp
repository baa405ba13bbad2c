// SPDX-License-Identifier: MIT
#include "fakeshortcut.h"

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

int FakeShortcut::living()
{
    return all().size();
}

void FakeShortcut::refuse(int key)
{
    refusedKey = key;
}

QString FakeShortcut::textOf(int key, bool ctrl, bool shift, bool alt, bool meta)
{
    return QStringLiteral("%1 %2%3%4%5").arg(key).arg(ctrl).arg(shift).arg(alt).arg(meta);
}

OlvShortcut::OlvShortcut(Qt::Key key, bool ctrl, bool shift, bool alt, bool meta, QObject *parent)
    : QObject(parent)
    , m_key(key)
{
    m_modifiers.setFlag(Qt::ControlModifier, ctrl);
    m_modifiers.setFlag(Qt::ShiftModifier, shift);
    m_modifiers.setFlag(Qt::AltModifier, alt);
    m_modifiers.setFlag(Qt::MetaModifier, meta);
    all().insert(this);
}

OlvShortcut::~OlvShortcut()
{
    all().remove(this);
}

bool OlvShortcut::active()
{
    return int(m_key) != refusedKey;
}

void OlvShortcut::destroy() { }

QString OlvShortcut::toString()
{
    return FakeShortcut::textOf(int(m_key), m_modifiers & Qt::ControlModifier,
                                m_modifiers & Qt::ShiftModifier, m_modifiers & Qt::AltModifier,
                                m_modifiers & Qt::MetaModifier);
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
