// SPDX-License-Identifier: MIT
#pragma once

#include <OlvSystemInfo/shortcut.h>
#include <OlvWidgets/olvwidgets_export.h>
#include <OlvWidgets/widget.h>

#include <QString>

#include <cstddef>
#include <memory>

/**
 * @file input.h
 * Text input.
 */

class OlvSimpleIconButton;
class QLineEdit;

/**
 * A framed line of text with an optional glyph at its left and an optional button at its right that
 * shows and hides a password.
 *
 * @image html OlvLineEdit.png
 *
 * Everything is sized from the widget's height: the font is half as many points as it is pixels
 * high, and the column of the glyph, which the text begins behind even when there is none, at least
 * as wide as it is high. A click anywhere on the frame puts the caret into the text.
 *
 * The value is the text, a QString. Neither valueChanged() nor textChanged() is emitted: read it
 * with getText() or getValue() when it is wanted, or connect the signals of lineEdit().
 *
 * | property    | type   | at first | meaning                                         |
 * |-------------|--------|----------|-------------------------------------------------|
 * | "Icon"      | string | ""       | the glyph at the left                           |
 * | "IconWidth" | int    | 0        | pixels that its column is wide                  |
 * | "Pwd"       | bool   | false    | whether the text is a password                  |
 * | "Visible"   | string | "✍"      | glyph of the password button at first           |
 * | "Invisible" | string | "※"      | its glyph once clicked, while the text is shown |
 * | "state"     | string | "normal" | "edit" while the text has the focus             |
 *
 * "Visible" and "Invisible" are noted once, when the widget is made; writing them changes nothing:
 * setPwdIcon() sets the glyphs.
 *
 * Accessibility: a group, called by its accessible name, else by a label whose buddy it is, else by
 * its tool tip. It has two parts: the text, a QLineEdit, which takes the name of the group each
 * time it gets the focus, unless it has an accessible name; and the password button, a check box
 * called "显示密码" unless it has an accessible name or a tool tip. The action "SetFocus" gives the
 * focus to the text.
 *
 * @code
 * auto *password = new OlvLineEdit(this);
 * password->resize(240, 32);
 * password->setPlaceholderText(tr("Password"));
 * password->setIcon(QChar(0xf023));                            // a padlock of FontAwesome
 * password->setPassWord(true);
 * password->setPwdIcon(QChar(0xf06e), QChar(0xf070));          // an eye, open and struck out
 * connect(login, &OlvButton::clicked, this, [=] { check(password->getText()); });
 * @endcode
 */
class OLVWIDGETS_EXPORT OlvLineEdit : public OlvWidget
{
    Q_OBJECT

public:
    /** What the library alone knows of a line edit; not defined in any installed header. */
    class Private;

    /**
     * An empty line in @p parent, which owns it. The text and the button get their places at the
     * first resize.
     */
    explicit OlvLineEdit(QWidget *parent = nullptr);
    /** Destroys the text and the button as well. */
    ~OlvLineEdit() override;

    /** The text. */
    QVariant getValue() override;
    /** Sets the text to @p value as a string; emits nothing. */
    void setValue(const QVariant &value) override;
    /** Sets the text; emits nothing. */
    void setText(const QString &text);
    /** The text. */
    QString getText();
    /**
     * The text as Qt has it, for its validator, completer and signals, as a focus proxy and the
     * like. This widget owns it; null when the application has deleted it.
     */
    QLineEdit *lineEdit() const;
    /** Sets what is shown in grey while there is no text. */
    void setPlaceholderText(const QString &text);

    /** Sets the glyph at the left, makes room for it, and repaints; empty for none. */
    void setIcon(const QString &icon);
    /**
     * Sets whether the text is a password: hides the text and shows the button, or the other way
     * round. Each click on the button then shows or hides the text, beginning with showing it,
     * unless the button stands clicked from before: it keeps its state.
     */
    void setPassWord(bool on);
    /** Sets the glyphs of the password button: @p hidden while it is unclicked, @p shown after. */
    void setPwdIcon(const QString &hidden, const QString &shown);

    /** Follows the focus of the text; consumes nothing. */
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /** Not emitted. */
    void textChanged(const QString &);

protected:
    /** Draws the frame and the glyph. */
    void paintEvent(QPaintEvent *event) override;
    /** Sizes the font and places the text and the button; @p event may be null. */
    void resizeEvent(QResizeEvent *event) override;
    /** Any mouse button: puts the caret into the text. */
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    int iconWidth(const QString &icon) const;

    const std::unique_ptr<Private> d;
};

/**
 * A field in which the user presses a key combination, which becomes a shortcut that works on the
 * whole desktop.
 *
 * @image html OlvShortcutEdit.png
 *
 * While it has the focus it notes the modifiers that are held and the last other key that was
 * pressed, Escape and Backspace included; releasing a key that is no modifier makes an OlvShortcut
 * of what was noted, and setShortcut() takes it. Modifiers alone make none. The shortcut is shown
 * as text; a combination that cannot be registered leaves the one before in place, without a
 * signal. Where the desktop answers later (OlvShortcut::Pending), the one before stays until it
 * does. The tool tip is "请直接在键盘上输入新的快捷键" (press the new shortcut on the keyboard) at
 * first, or what a QTranslator makes of it, and follows another language.
 *
 * The value is read as a string, the text of the shortcut or "nullptr" where there is none, but set
 * as an address: see setValue(). Three dynamic properties are the library's own: "HasOlvShortcut"
 * (bool, whether a shortcut is held), "OlvShortcut" (qulonglong, its address) and "Temp"
 * (qulonglong, the address of the keys that were noted).
 *
 * Accessibility: a text that is read only, the one of the shortcut, called by its accessible name,
 * else by a label whose buddy it is, else by its tool tip. The action "SetFocus" lets the keyboard
 * follow.
 *
 * @code
 * auto *edit = new OlvShortcutEdit(this);
 * connect(edit, &OlvShortcutEdit::shortcutChanged, this, [=](OlvShortcut *shortcut) {
 *     connect(shortcut, &OlvShortcut::activated, this, &Recorder::start);
 * });
 * @endcode
 */
class OLVWIDGETS_EXPORT OlvShortcutEdit : public OlvWidget
{
    Q_OBJECT

public:
    /** What the library alone knows of a shortcut edit; not defined in any installed header. */
    class Private;

    /** An empty field in @p parent, which owns it. */
    explicit OlvShortcutEdit(QWidget *parent = nullptr);
    /** An empty field without a parent, where a bare nullptr could mean either of the others. */
    explicit OlvShortcutEdit(std::nullptr_t)
        : OlvShortcutEdit(static_cast<QWidget *>(nullptr))
    { }
    /** A field that takes @p shortcut, as setShortcut() does it. */
    explicit OlvShortcutEdit(OlvShortcut *shortcut, QWidget *parent = nullptr);
    /** Deletes the shortcut that is held. */
    ~OlvShortcutEdit() override;

    /** The shortcut that is held, which the field owns; null when there is none. */
    OlvShortcut *shortcut();

    /** The text of the shortcut that is held, as a string; "nullptr" when there is none. */
    QVariant getValue() override;
    /**
     * Hands over the shortcut whose address @p value carries as an unsigned 64-bit integer, as
     * setShortcut() does it. A value that is not the address of a living OlvShortcut is ignored.
     */
    void setValue(const QVariant &value) override;

Q_SIGNALS:
    /** A shortcut has been taken over; emitted before valueChanged() with its text. */
    void shortcutChanged(OlvShortcut *);

public Q_SLOTS:
    /**
     * Takes ownership of @p shortcut in every case: registers it, and either holds it, in place
     * of the one before, which is unregistered and deleted, or deletes it when it cannot be
     * registered. Returns whether it is held. Emits shortcutChanged() and then valueChanged() when
     * it is; repaints nothing. A null shortcut is ignored; the one that is held already is
     * registered again, and kept even where that fails.
     *
     * One that the desktop has not answered for yet (OlvShortcut::Pending) is kept, and false
     * returned. It is taken over with the same signals, and shown, once it is granted; it is
     * deleted when it is refused, or when another one is set before.
     */
    bool setShortcut(OlvShortcut *shortcut);
    /**
     * Deletes the shortcut that is held, which releases it, without calling its destroy(), and one
     * that is pending. Emits nothing and repaints nothing: the text stays on the screen until the
     * next repaint.
     */
    void clear();

protected:
    /** Notes a key; the first one after modifiers alone were pressed and released starts a new
     * combination. */
    void keyPressEvent(QKeyEvent *event) override;
    /** Forgets a modifier, or makes a shortcut of the keys that were noted. */
    void keyReleaseEvent(QKeyEvent *event) override;
    /** Follows another language with its tool tip, unless the application has set one. */
    void changeEvent(QEvent *event) override;
    /** Draws the frame, dark while the field has the focus, and the text of the shortcut. */
    void paintEvent(QPaintEvent *event) override;

private:
    const std::unique_ptr<Private> d;
};
