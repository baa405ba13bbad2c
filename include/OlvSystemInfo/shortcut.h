// SPDX-License-Identifier: MIT
#pragma once

#include <OlvSystemInfo/olvsysteminfo_export.h>

#include <QObject>
#include <QString>

#include <memory>

/**
 * @file shortcut.h
 * Keyboard shortcuts that work on the whole desktop.
 */

/**
 * A keyboard shortcut that works on the whole desktop, whichever window has the focus.
 *
 * @image html OlvShortcut.png
 *
 * The object describes a combination of keys; active() registers it with the desktop, destroy() and
 * the destructor release it. An application may derive from this class and reimplement the virtual
 * functions, so that widgets that hold shortcuts take those of its own kind.
 *
 * @code
 * auto *shortcut = new OlvShortcut(Qt::Key_F5, true, false, false, false, this); // Ctrl+F5
 * if (!shortcut->active()) {
 *     qInfo() << shortcut->toString() << "is taken";
 * }
 * connect(shortcut, &OlvShortcut::activated, this, &Recorder::start);
 * @endcode
 *
 * On X11, Qt's platform "xcb", active() has the answer at once. The combination is activated
 * whatever the state of the lock keys (Caps Lock, Num Lock, Scroll Lock), follows the keyboard
 * layout when that changes, and is activated once for a key that is held. Where the user has
 * several layouts, it is on the key of the layout in effect, or, if that layout has no such key, of
 * the first other layout that has one.
 *
 * On Wayland, and for X11 programs on a Wayland desktop, the desktop's portal decides
 * (org.freedesktop.portal.GlobalShortcuts), usually by asking the user, who may also choose other
 * keys than these. So active() asks, returns false, and returns true once it is granted, which
 * stateChanged() tells. It never blocks, and asks once: what has been refused is asked for again
 * only after a destroy(). Combinations that are asked for within 50 milliseconds share a dialog.
 * The portal knows the program by QGuiApplication::desktopFileName(), which newer ones require.
 * What it does not grant is told in one warning, of the category "olv.shortcuts".
 *
 * On other platforms active() returns false.
 *
 * Threads: use it in the thread of the application object. A shortcut may be made in any thread,
 * but in any other thread active() returns false and registers nothing. destroy(), toString() and
 * fromAddress() work in every thread. As every QObject it is deleted in the thread that it lives
 * in, and its slots are called by the rules for connections between threads.
 *
 * Lifetime: a shortcut may be made before the application object and outlive it. While there is no
 * application object, active() returns false; what was registered ends with that object, and
 * active() registers it again with the next one.
 */
class OLVSYSTEMINFO_EXPORT OlvShortcut : public QObject
{
    Q_OBJECT

public:
    /** What has become of the combination. */
    enum State {
        Inactive, ///< not registered: active() has not been called, or has been refused
        Pending,  ///< asked for, and the desktop has not answered yet
        Active,   ///< registered
    };
    Q_ENUM(State)

    /**
     * Describes the combination of @p key with the given modifiers; @p parent, if any, owns it.
     * Nothing is registered yet. @p key is what the key gives with the modifiers, as Qt's key
     * events tell it: Qt::Key_Exclam where Shift makes a 1 an exclamation mark.
     */
    OlvShortcut(Qt::Key key, bool ctrl, bool shift, bool alt, bool meta, QObject *parent = nullptr);
    /** Releases the combination. */
    ~OlvShortcut() override;

    /**
     * Registers the combination with the desktop and returns whether it is registered: true when it
     * was already, false when another program, or another object of this one, holds it, when no
     * layout of the keyboard has such a key, for keys that cannot be one (0, Qt::Key_unknown,
     * modifiers and lock keys alone), where there is neither an X server nor a portal, while a
     * portal has not answered yet, and in another thread than the application object's.
     */
    virtual bool active();
    /** Releases the combination; does nothing when it is not registered. Works in every thread. */
    virtual void destroy();
    /** The combination as a user reads it, in native text, for example "Ctrl+Shift+A". */
    virtual QString toString();

    /** What has become of the combination, without asking for it. Works in every thread. */
    State state() const;

    /** What the shortcut is for, as setDescription() has it; empty at first. */
    QString description() const;
    /**
     * Sets what the shortcut is for, in words for the user, such as "Start recording". Desktops
     * that ask their user show it from the next active() on; without one they show toString().
     */
    void setDescription(const QString &description);

    /**
     * The living shortcut whose address is @p address; null when there is none. Any number
     * may be given. For addresses that are stored in a QVariant. A shortcut of another thread may
     * be deleted there at any time.
     */
    static OlvShortcut *fromAddress(qulonglong address);

Q_SIGNALS:
    /**
     * The user pressed the combination. It is emitted in the thread that this object lives in. The
     * focus does not change, and the window that has it gets every other key. A slot may delete
     * this object.
     */
    void activated();
    /**
     * The desktop has answered after active() has returned: @p state is Active or Inactive. Or it
     * has taken back what it had granted: Inactive. Not emitted for what active() and destroy() do
     * themselves, so that it is never emitted on X11. It is emitted in the thread that this object
     * lives in. A slot may delete this object.
     */
    void stateChanged(OlvShortcut::State state);

private:
    Q_DISABLE_COPY(OlvShortcut)

    class Private;
    const std::unique_ptr<Private> d;
};
