// SPDX-License-Identifier: MIT
#pragma once

#include <OlvWidgets/olvwidgets_export.h>
#include <OlvWidgets/widget.h>

#include <QString>
#include <QStringList>

/**
 * @file buttons.h
 * Buttons.
 */

/**
 * A flat text button in one of four colour schemes and three shapes.
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
 * | "color"       | string | "primary" | scheme: "primary", "success", "warning", any other is red
 * | | "state"       | string | "init"    | "init" at rest, "hover", "click" while pressed | |
 * "hovered"     | bool   | false     | whether the pointer is inside                            |
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
    void enterEvent(QEvent *event) override;
    /** Goes back to rest unless a mouse button is held. */
    void leaveEvent(QEvent *event) override;
    /** Draws the button from its properties. */
    void paintEvent(QPaintEvent *event) override;

private:
    void setState(const QString &state);
    void setCheckedByClick(bool checked);
};
