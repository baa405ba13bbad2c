// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

class OlvShortcut;

/**
 * What registers shortcuts with a desktop of one kind. A kind of desktop is one class behind this
 * interface, made in ShortcutBackend::instance().
 */
class ShortcutBackend
{
public:
    /**
     * The backend for the platform that the application runs on, made by the first call and deleted
     * with the application object; null where there is none.
     */
    static ShortcutBackend *instance();
    /** The same, but null as well before the first call of instance(). */
    static ShortcutBackend *existingInstance();

    virtual ~ShortcutBackend();

    /** Registers a combination, and emits the shortcut's activated() for it from then on. */
    virtual bool grab(OlvShortcut *shortcut, Qt::Key key, Qt::KeyboardModifiers modifiers) = 0;
    /** Lets go of what the shortcut has registered, if anything. */
    virtual void release(OlvShortcut *shortcut) = 0;
};
