// SPDX-License-Identifier: MIT
#pragma once

#include <OlvWidgets/olvwidgets_export.h>
#include <OlvWidgets/support.h>
#include <OlvWidgets/widget.h>

#include <QChar>
#include <QColor>
#include <QFont>
#include <QPushButton>
#include <QString>
#include <QStringList>

/**
 * @file buttons.h
 * Buttons.
 */

/**
 * A flat text button in one of four colour schemes and three shapes.
 *
 * @image html OlvButton.png
 *
 * It keeps all of its state in dynamic properties, which style sheets and applications may read and
 * write by these names:
 *
 * | property      | type   | at first  | meaning                                                  |
 * |---------------|--------|-----------|----------------------------------------------------------|
 * | "isChecked"   | bool   | false     | checked state of a checkable button                      |
 * | "isCheckable" | bool   | false     | whether a click toggles "isChecked"                      |
 * | "value"       | bool   | false     | what getValue() returns; the button never changes it     |
 * | "type"        | string | ""        | shape: "plain", "round", any other is the default        |
 * | "color"       | string | "primary" | scheme: "primary", "success", "warning", else red        |
 * | "state"       | string | "init"    | "init" at rest, "hover", "click" while pressed           |
 * | "hovered"     | bool   | false     | whether the pointer is inside                            |
 * | "content"     | string | not set   | the caption                                              |
 *
 * Writing one directly repaints nothing: call update(). Any mouse button clicks it. A press that is
 * dragged out keeps the pressed look; once the button has been told that the pointer left,
 * releasing it cancels the click, unless the pointer came in again. (On X11, Qt 5.15 tells a widget
 * so only after the release: there a press that is released outside counts.) The caption is drawn
 * at 9 points, or at the largest size below at which it would fit into the button if it were
 * wrapped (OlvGlobal::adaptDocumentToPointSize()); it is not wrapped, and what does not fit is cut
 * off on both sides.
 *
 * Accessibility: a button, or a check box while it is checkable, called by its accessible name,
 * else by its caption, else (a glyph of an icon font says nothing) by its tool tip. The actions
 * "Press" and, while it is checkable, "Toggle" are both a click of the mouse. The keyboard does not
 * press it without a form support (OlvFormSupport::Keyboard).
 *
 * @code
 * auto *save = new OlvButton(tr("Save"), this);
 * save->setOlvStyle("success", "round"); // the colour comes first, then the shape
 * save->setCheckable(true);
 * connect(save, &OlvButton::clicked, this, &Editor::save);
 * connect(save, &OlvButton::toggled, this, [](bool checked) { qDebug() << checked; });
 * @endcode
 */
class OLVWIDGETS_EXPORT OlvButton : public OlvWidget
{
    Q_OBJECT

public:
    /** A primary button of the default shape without a caption in @p parent, which owns it. */
    explicit OlvButton(QWidget *parent = nullptr);
    /** The same with the caption @p text. */
    explicit OlvButton(QString text, QWidget *parent = nullptr);

    /**
     * Sets the scheme ("color") and the shape ("type"), repaints, and returns this button, so that
     * calls can be chained. Neither is checked: an unknown scheme is red, an unknown shape the
     * default; upper and lower case differ.
     */
    OlvButton *setOlvStyle(QString color, QString type);
    /**
     * Replaces the custom shades of the process, five colour strings from the lightest to the
     * darkest, which no scheme draws with. Entries after the fifth are kept; a shorter list is
     * ignored.
     */
    void setColor(QStringList shades);
    /** Sets the caption and repaints. */
    void setText(QString text);
    /** Checks or unchecks the button, checkable or not, and repaints; emits nothing. */
    void setChecked(bool checked);
    /** Whether the button is checked. */
    bool isChecked();
    /** Sets whether a click toggles the button; a checked one stays checked. Repaints nothing. */
    void setCheckable(bool checkable);
    /** Whether a click toggles the button. */
    bool isCheckable();

    /** Stores @p value as it stands in the property "value"; emits nothing, repaints nothing. */
    void setValue(const QVariant &value) override;
    /** The property "value" as a bool. */
    QVariant getValue() override;

Q_SIGNALS:
    /** A click, by the mouse or by click(); emitted before toggled(). */
    void clicked();
    /** The click has checked or unchecked the button, which stands so already. */
    void toggled(bool checked);

public Q_SLOTS:
    /**
     * Clicks the button from code: emits clicked(), then, when the button is checkable and not yet
     * @p checked, checks or unchecks it and emits toggled(). The look of hover and press stays.
     */
    void click(bool checked = false);

protected:
    /** Any mouse button: shows the pressed look. */
    void mousePressEvent(QMouseEvent *event) override;
    /** Any mouse button: inside, emits clicked(), then toggles a checkable button. */
    void mouseReleaseEvent(QMouseEvent *event) override;
    /** Shows the hover look, also while a mouse button is held. */
    void enterEvent(OlvEnterEvent *event) override;
    /** Goes back to rest unless a mouse button is held. */
    void leaveEvent(QEvent *event) override;
    /** Draws the button from its properties. */
    void paintEvent(QPaintEvent *event) override;

private:
    void setCheckedByClick(bool checked);
};

/**
 * A tile with one glyph of an icon font above a short caption, which tells a click from a double
 * click.
 *
 * @image html OlvIconButton.png
 *
 * Each mouse release inside counts, of any mouse button; 400 milliseconds after the last of a burst
 * clicked() is emitted for a burst of one, dClicked() for a longer one. Each such release also
 * flips the value, a bool, and the checked flag, which shows only in a checkable button. Neither
 * emits valueChanged().
 *
 * Its state lies in dynamic properties, which applications may read and write by these names; one
 * that is not set reads as false, 0 or empty:
 *
 * | property      | type       | at first           | meaning                                     |
 * |---------------|------------|--------------------|---------------------------------------------|
 * | "value"       | bool       | false              | the value                                   |
 * | "state"       | string     | "init"             | "init" at rest, "hover", "click"            |
 * | "hovered"     | bool       | false              | whether the pointer is inside               |
 * | "clickNumber" | int        | 0                  | releases since the last report              |
 * | "clickTimer"  | qulonglong |                    | the address of the timer; the library's own |
 * | "partSize"    | int        | width / 4          | pixels: glyph three times, caption once     |
 * | "iconSize"    | double     | 1.56 * partSize    | point size of the glyph                     |
 * | "textSize"    | double     | 0.52 * partSize    | point size of the caption                   |
 * | "family"      | string     |                    | family of the icon font                     |
 * | "icon"        | QChar      |                    | the glyph                                   |
 * | "text"        | string     |                    | the caption                                 |
 * | "color"       | uint       | opaque 0,255,255   | accent colour, as QColor::rgba() gives it   |
 * | "isCheckable" | bool       | not set            | whether the checked look is shown           |
 * | "isChecked"   | bool       | not set            | the checked flag                            |
 *
 * The constructor with a glyph sets those from "partSize" to "color"; the sizes stay as they are
 * when the tile is resized. The accent colour shows, opaque, while the tile is pressed or checked;
 * under the pointer it shows with its red inverted (0 for one above 127, else 127); at rest all is
 * grey.
 *
 * Accessibility: a button, or a check box while it is checkable, called by its accessible name,
 * else by its caption, else by its tool tip. The actions "Press" and, while it is checkable,
 * "Toggle" are both a click of the mouse, which counts like any other; "doubleClick" is two of them
 * at once. The keyboard does not press it without a form support (OlvFormSupport::Keyboard).
 *
 * @code
 * auto *mail = new OlvIconButton(QChar(0xf0e0), tr("Mail"), "FontAwesome", this, 80, 80);
 * connect(mail, &OlvIconButton::clicked, this, &Desktop::select);
 * connect(mail, &OlvIconButton::dClicked, this, &Desktop::openMail);
 * @endcode
 */
class OLVWIDGETS_EXPORT OlvIconButton : public OlvWidget
{
    Q_OBJECT

public:
    /** A tile without glyph, caption or sizes in @p parent, which owns it: only its frame shows. */
    explicit OlvIconButton(QWidget *parent = nullptr);
    /** A tile of @p width by @p height pixels with @p icon of the font @p family above @p text. */
    OlvIconButton(const QChar &icon, const QString &text, const QString &family, QWidget *parent,
                  int width, int height);

    /** Sets the family of the icon font; repaints nothing. */
    void setFontFamily(const QString &family);
    /** Sets the glyph; repaints nothing. */
    void setIcon(const QChar &icon);
    /** The glyph; a null character when there is none. */
    QChar icon();
    /** Sets the caption; repaints nothing. */
    void setText(const QString &text);
    /** Sets the accent colour, alpha included; repaints nothing. */
    void setColor(const QColor &color);
    /** Sets whether the checked look is shown, and unchecks the tile either way; repaints nothing.
     */
    void setCheckable(bool checkable);

    /** Stores @p value as it stands in the property "value"; emits nothing. */
    void setValue(const QVariant &value) override;
    /** The property "value" as it stands. */
    QVariant getValue() override;

Q_SIGNALS:
    /** A burst of one release ended 400 milliseconds ago. */
    void clicked();
    /** A burst of two or more releases ended 400 milliseconds ago. */
    void dClicked();

protected:
    /** Any mouse button: shows the pressed look. */
    void mousePressEvent(QMouseEvent *event) override;
    /** Any mouse button: inside, counts the release and flips value and checked flag. */
    void mouseReleaseEvent(QMouseEvent *event) override;
    /** Shows the hover look. */
    void enterEvent(OlvEnterEvent *event) override;
    /** Goes back to rest unless a mouse button is held. */
    void leaveEvent(QEvent *event) override;
    /** Draws the glyph, the caption and the frame over them. */
    void paintEvent(QPaintEvent *event) override;

private:
    void report();
    QColor penColor();
};

/**
 * Whether @p button shows the checked look: it is checkable and its checked flag is set. False for
 * a null button.
 */
OLVWIDGETS_EXPORT bool isChecked(OlvIconButton *button);

/**
 * A small borderless push button whose caption is one glyph of an icon font, grey at rest and dark
 * under the pointer.
 *
 * @image html OlvSimpleIconButton.png
 *
 * It is checkable: every click flips its checked state. setToggle() makes the glyph follow that
 * state; the two glyphs are kept in the dynamic properties "deable" (unchecked) and "enable"
 * (checked), both strings, which are read at each click. Its look comes from its style sheet alone.
 *
 * Accessibility: a check box called by its accessible name, else by its tool tip: give it one of
 * the two, since a glyph of an icon font says nothing when it is read out; a caption that does is
 * the name otherwise. The actions "Toggle" and "Press" both click it. One of several exclusive ones
 * is a radio button, and one with a menu has the action "ShowMenu" instead, as with any
 * QPushButton.
 *
 * @code
 * auto *star = new OlvSimpleIconButton(QChar(0xf006), QFont("FontAwesome", 12), this);
 * star->setToggle(QChar(0xf005));
 * connect(star, &QPushButton::clicked, this, &Page::setStarred);
 * @endcode
 */
class OLVWIDGETS_EXPORT OlvSimpleIconButton : public QPushButton
{
    Q_OBJECT

public:
    /** A checkable button of 30 by 30 pixels with @p text in @p font in @p parent, its owner. */
    OlvSimpleIconButton(const QString &text, const QFont &font, QWidget *parent = nullptr);
    /**
     * For forms made with Qt Designer, which set text and font as properties: the same without a
     * text, in the font "FontAwesome".
     */
    explicit OlvSimpleIconButton(QWidget *parent = nullptr);

    /**
     * Makes the button a toggle: the present caption is shown while it is unchecked, @p checkedText
     * while it is checked. The caption changes at each click, before the slots that are connected
     * later; a state set by setChecked() shows at the next click or setTextIcon(). Call it once.
     */
    void setToggle(const QString &checkedText);
    /**
     * Sets both captions, and shows the one for the present state at once. Without setToggle()
     * clicks do not change the caption.
     */
    void setTextIcon(const QString &uncheckedText, const QString &checkedText);
};
