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
 * So far it works on X11, where the application runs on Qt's platform "xcb"; on other platforms
 * active() returns false. The combination is activated whatever the state of the lock keys (Caps
 * Lock, Num Lock, Scroll Lock), follows the keyboard layout when that changes, and is activated
 * once for a key that is held. Where the user has several layouts, it is on the key of the layout
 * in effect, or, if that layout has no such key, of the first other layout that has one.
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
     * modifiers and lock keys alone), where there is no X server, and in another thread than the
     * application object's.
     */
    virtual bool active();
    /** Releases the combination; does nothing when it is not registered. Works in every thread. */
    virtual void destroy();
    /** The combination as a user reads it, in native text, for example "Ctrl+Shift+A". */
    virtual QString toString();

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

private:
    Q_DISABLE_COPY(OlvShortcut)

    class Private;
    const std::unique_ptr<Private> d;
};
