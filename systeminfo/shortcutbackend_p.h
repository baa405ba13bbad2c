// SPDX-License-Identifier: MIT
#pragma once

#include <OlvSystemInfo/shortcut.h>

#include <QString>
#include <Qt>

#include <mutex>

/** What a shortcut is registered as. */
struct ShortcutCombination
{
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    /** What it is for, for desktops that ask their users; may be empty. */
    QString description;
};

/**
 * What registers shortcuts with a desktop of one kind. Each kind of desktop has a class behind this
 * interface, of which there is one object, in the thread of the application object. Shortcuts may
 * be destroyed in other threads and are unregistered there, so mutex() guards what a backend knows
 * of them.
 */
class ShortcutBackend
{
public:
    /**
     * Registers a combination with the desktop that the application runs on, and emits the
     * shortcut's activated() for it from then on; returns whether it is registered, which a desktop
     * that asks its user decides later. False in every thread but the application's, and where
     * there is no desktop that takes shortcuts.
     */
    static bool registerShortcut(OlvShortcut *shortcut, const ShortcutCombination &combination);
    /** Releases what the shortcut has registered, if anything. May be called in any thread. */
    static void unregisterShortcut(OlvShortcut *shortcut);
    /** What has become of the registration. May be called in any thread. */
    static OlvShortcut::State stateOf(const OlvShortcut *shortcut);

    virtual ~ShortcutBackend();

protected:
    /** Never destroyed, and not recursive: nothing is emitted while it is locked. */
    static std::mutex &mutex();
    /** Called first by a backend's destructor, so that no other thread uses the backend any more.
     */
    void withdraw();

    /** Registers a combination. The mutex is locked. */
    virtual bool grab(OlvShortcut *shortcut, const ShortcutCombination &combination) = 0;
    /** Releases what the shortcut has registered, if anything. The mutex is locked. */
    virtual void release(OlvShortcut *shortcut) = 0;
    /** What has become of the registration; Inactive without one. The mutex is locked. */
    virtual OlvShortcut::State state(OlvShortcut *shortcut) const = 0;

private:
    static ShortcutBackend *instanceOfThisThread();
};
