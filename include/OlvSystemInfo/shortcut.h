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
 * It describes a combination; active() registers it, destroy() and the destructor let go of it. An
 * application may derive from it to bring shortcuts of its own making to the widgets that take
 * them.
 *
 * @code
 * auto *shortcut = new OlvShortcut(Qt::Key_F5, true, false, false, false, this); // Ctrl+F5
 * if (!shortcut->active()) {
 *     qInfo() << shortcut->toString() << "is taken";
 * }
 * connect(shortcut, &OlvShortcut::activated, this, &Recorder::start);
 * @endcode
 *
 * So far it works on X11, where the application runs on Qt's platform "xcb": the combination fires
 * whatever the lock keys (Caps Lock, Num Lock, Scroll Lock) say, follows the keyboard layout when
 * that changes, and fires once for a key that is held. Where the user has several layouts, it is on
 * the key of the layout that is in effect, or, if that has no such key, of the first other layout
 * that has one. Elsewhere active() answers false. It belongs to the GUI thread.
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
    /** Lets go of the combination. */
    ~OlvShortcut() override;

    /**
     * Registers the combination with the desktop and returns whether it is registered: true when it
     * was already, false when another program, or another object of this one, holds it, when no
     * layout of the keyboard has such a key, for keys that cannot be one (0, Qt::Key_unknown,
     * modifiers and lock keys alone), and where there is no X server.
     */
    virtual bool active();
    /** Lets go of the combination; harmless when it is not registered. */
    virtual void destroy();
    /** The combination as a user reads it, in native text, for example "Ctrl+Shift+A". */
    virtual QString toString();

    /**
     * The living shortcut whose address is @p address; null when there is none, whatever number it
     * is. For addresses that travel through a QVariant.
     */
    static OlvShortcut *fromAddress(qulonglong address);

Q_SIGNALS:
    /**
     * The user pressed the combination. The focus stays where it is, and every other key goes on to
     * the window that has it. A slot may delete this object.
     */
    void activated();

private:
    Q_DISABLE_COPY(OlvShortcut)

    class Private;
    const std::unique_ptr<Private> d;
};
