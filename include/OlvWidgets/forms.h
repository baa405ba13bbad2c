// SPDX-License-Identifier: MIT
#pragma once

#include <OlvWidgets/olvwidgets_export.h>

#include <QFlags>
#include <QObject>
#include <QSize>
#include <QStyledItemDelegate>

#include <memory>

class QWidget;

/**
 * @file forms.h
 * Support for the library's widgets in forms and item views.
 */

/**
 * Makes the library's widgets behave in a form as Qt's own widgets do there.
 *
 * @image html OlvFormSupport.png
 *
 * It is a child of the form that it serves: a dialog, a page, a group box, a window, or a single
 * widget of the library. It works on every widget of the library in that form, those that are added
 * or reparented later too. A widget that leaves the form loses what it was given, and so do all
 * when the support is deleted: what the application has not changed meanwhile is restored. A
 * window within the form, such as a dialog, is a form of its own and needs a support of its own.
 *
 * @code
 * auto *form = new QFormLayout(dialog);
 * form->addRow(tr("&Name:"), new OlvLineEdit(dialog));
 * form->addRow(tr("&Shared:"), new OlvSwitch(dialog));
 * form->addRow(new OlvButton(tr("Save"), dialog));
 * new OlvFormSupport(dialog);
 * @endcode
 *
 * A form that was made with Qt Designer takes the same line, after setupUi() or after
 * QUiLoader::load().
 *
 * A support costs each widget less than 400 bytes, and no timer.
 *
 * Each widget is served by one support: the one on itself or on the nearest of its parents, and of
 * several on the same widget the one that was made first. When that goes, the next takes over.
 */
class OLVWIDGETS_EXPORT OlvFormSupport : public QObject
{
public:
    /** What a form is given; an application takes all of it, or what it needs. */
    enum Feature {
        /**
         * Sizes: a widget in a layout or a splitter gets its naturalSize() as its minimum size, and
         * the size policy that goes with it, kept up with its font and its caption. What the
         * application has set, of the minimum in either direction or of the policy, stays.
         */
        NaturalSizes = 0x01,
        /**
         * The keyboard: each widget is one tab stop, and takes the focus by a click and by the
         * mnemonic of a label whose buddy it is; an OlvLineEdit hands it on to its text, and its
         * password button does without it. Space and Enter click a button or a tile; Space alone
         * flips a switch; the arrows move a slider by 1, Page Up and Page Down by 10, Home and End
         * to its ends. A key press shows the pressed look and its release clicks; Escape, or losing
         * the focus in between, takes the press back. In an OlvGridLayout the arrows, Home and End
         * move the focus from a button or tile to another one, and the grid scrolls to what the
         * keyboard has brought the focus to. All other keys go on to the form. A widget that the
         * application has given a focus policy keeps it. The text of an OlvLineEdit comes behind
         * its frame in the order of the tabs. QWidget::setTabOrder() does nothing with buttons,
         * tiles, switches and sliders before they take the focus: call it once the support is made.
         */
        Keyboard = 0x02,
        /**
         * A ring in the palette's highlight colour around the widget that has the focus, when the
         * keyboard brought it there (by Tab or a mnemonic) or has been used on it since; not after
         * a click. It lies in the widget's window, or in the viewport that the widget is scrolled
         * in, and is none of the widget's pixels.
         */
        FocusRing = 0x04,
        /**
         * The look of a disabled widget: it is faded, by a QGraphicsEffect that it has for as long
         * as it is disabled. A widget that has an effect of the application's keeps that, and its
         * look.
         */
        DisabledLook = 0x08,
        /**
         * The layout direction: what stands on one side of a widget stands on the other where that
         * is laid out from the right to the left, at once when QWidget::layoutDirection() changes.
         * The glyph of an OlvLineEdit is at its right then, and the password button at its left; a
         * slider's value grows to the left, in a drag, at a resize, after which the knob stands at
         * the value that it was brought to last, and under the arrow keys, as those of QSlider do;
         * a switch is on with its knob at the left, and keeps it at the end when it is resized; the
         * rows of an OlvGridLayout begin at the right, and its scroll bar is at the left. The
         * frames are drawn as in a mirror, texts and glyphs never are. Values, properties and
         * signals mean what they always mean. Control bars need none of this: Qt lays them out.
         */
        Mirroring = 0x10,
        /**
         * Texts that can be read under every palette. The fields are white whatever the palette is,
         * where the text of a dark one is hard to see. In an OlvLineEdit and an OlvShortcutEdit the
         * text, a placeholder, a selected text and the glyphs get a contrast of at least 4.5 : 1:
         * where a colour has less, a darker one takes its place. The contrast is that of the Web
         * Content Accessibility Guidelines 2.1, success criterion 1.4.3, a ratio of relative
         * luminances (https://www.w3.org/TR/WCAG21/). Disabled texts are paler than that, but not
         * faded twice where DisabledLook fades them. The colours are set in the palette of
         * OlvLineEdit::lineEdit() and follow it; those that the application sets there come back
         * when the support goes. A colour that a style sheet gives the text is painted as the sheet
         * has it, whatever its contrast.
         */
        ReadableText = 0x20,
        /** All of the above. */
        AllFeatures = 0x3f,
    };
    /** Several features. */
    Q_DECLARE_FLAGS(Features, Feature)

    /**
     * A support for @p form, which owns it, with @p features. It does its work at once on what is
     * in the form, and on what comes later once that is shown. Without a form it does nothing.
     */
    explicit OlvFormSupport(QWidget *form = nullptr, Features features = AllFeatures);
    /** Undoes what it did, as far as the application has not changed it since. */
    ~OlvFormSupport() override;

    /** What the form is given. */
    Features features() const;
    /** Changes what the form is given: undoes what is left out, and does what is new. */
    void setFeatures(Features features);

    /**
     * The size that @p widget takes up in a form, from its font and its caption, whether or not it
     * has a support: the figures that a new widget has in Qt Designer. It is the least size of
     * those that a layout may make larger. Invalid for a null pointer and for a widget that is none
     * of the library's.
     */
    static QSize naturalSize(const QWidget *widget);

    /** Looks after the form and the widgets in it; consumes the keys that act on a widget. */
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(OlvFormSupport::Features)

/**
 * Lets a QDataWidgetMapper and item views read and write any OlvWidget, through its getValue() and
 * setValue().
 *
 * @image html OlvValueDelegate.png
 *
 * Other widgets are handled as QStyledItemDelegate handles them, so that a form may mix both.
 *
 * @code
 * auto *mapper = new QDataWidgetMapper(this);
 * mapper->setModel(model); // a QSqlTableModel, for example
 * mapper->setItemDelegate(new OlvValueDelegate(mapper));
 * mapper->addMapping(name, model->fieldIndex("name")); // an OlvLineEdit
 * mapper->addMapping(notify, model->fieldIndex("notify")); // an OlvSwitch
 * mapper->addMapping(volume, model->fieldIndex("volume")); // an OlvSlider
 * mapper->toFirst();
 * @endcode
 *
 * A record is shown at once: a switch does not slide (OlvSwitch::setChecked()), and the knob of a
 * slider stands at the percentage (OlvSlider::setSliderPosition()). A shortcut editor shows the
 * shortcut whose text is stored, where that can be registered.
 *
 * What the user has done is submitted under QDataWidgetMapper::AutoSubmit as it happens: a switch
 * when its slide begins, with the state that it slides to, so that nothing is lost when the next
 * record comes before the slide has ended; a slider when its drag ends, or at each step of the
 * keyboard; a text when editing is finished (Enter, or the focus leaves); a tile at its click; a
 * shortcut when it has been taken; every other OlvWidget at its valueChanged(). A value that the
 * application sets is submitted in the same way. Under ManualSubmit all of them wait for
 * QDataWidgetMapper::submit(). Escape shows the record again.
 *
 * A text that the validator or the input mask of OlvLineEdit::lineEdit() refuses is handled as in a
 * QLineEdit: QValidator::fixup() may correct it when editing is finished. When it is refused still,
 * it is not submitted, Tab and Enter stay in the line, and a cell that loses the focus keeps what
 * it had.
 *
 * Only what has changed since it was shown is written, in the type of what it replaces where it
 * converts to that. So data that a widget cannot show is not overwritten by what the widget shows
 * instead, until the user changes that:
 *
 * | widget          | shows                                    | null and other kinds show as     |
 * |-----------------|------------------------------------------|----------------------------------|
 * | OlvSwitch       | a bool, a number, "true", "false"        | off                              |
 * | OlvSlider       | a number, rounded, bounded to 0 to 100   | 0                                |
 * | OlvLineEdit     | what converts to a string                | an empty text                    |
 * | OlvShortcutEdit | the text of a registrable shortcut       | no shortcut                      |
 * | OlvButton       | a bool, as QVariant::toBool() has it     | false, or what toBool() says     |
 * | OlvIconButton   | any value; a click makes it a bool       | themselves                       |
 * | others          | what their setValue() takes              | setValue() of an invalid value   |
 *
 * A click of an OlvButton does not change its value: it stores nothing, unless a slot of the
 * application's calls setValue(), which is submitted then. An OlvShortcutEdit that holds no
 * shortcut has no value, and writes nothing.
 *
 * A model may show the whole record again when one of its values is stored, as QSqlTableModel does
 * under OnFieldChange. The other widgets then keep what has not been stored yet.
 *
 * A widget that does not show its record yet, since it was mapped after the mapper had moved there,
 * writes nothing until its value changes, or in an OlvLineEdit until the user types.
 *
 * In the cell of a view an editor gets the focus, fills its background, and is closed as others
 * are. Which widget edits which type is told to QItemEditorFactory, by QStandardItemEditorCreator.
 */
class OLVWIDGETS_EXPORT OlvValueDelegate : public QStyledItemDelegate
{
public:
    /** A delegate in @p parent, which owns it. */
    explicit OlvValueDelegate(QObject *parent = nullptr);
    ~OlvValueDelegate() override;

    /** As QStyledItemDelegate makes it; an OlvWidget takes the focus and fills its background. */
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    /** Shows the data of @p index in @p editor at once; submits nothing. */
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    /** Writes the value of @p editor unless it is still the one that was shown. */
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;

protected:
    /** Emits commitData() when the user has done something, and handles the keys of an editor. */
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};
