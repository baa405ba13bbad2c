// SPDX-License-Identifier: MIT
#pragma once

#include <OlvWidgets/olvwidgets_export.h>

#include <QStyledItemDelegate>

#include <memory>

/**
 * @file forms.h
 * Forms and data.
 */

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
 * shortcut whose text is stored, where that can be had.
 *
 * What the user has done is submitted under QDataWidgetMapper::AutoSubmit as it happens: a switch
 * when its slide begins, with the state that it slides to, so that nothing is lost when the next
 * record comes before the slide has ended; a slider when its drag ends, or at each step of the
 * keyboard; a text when editing is finished (Enter, or the focus leaves); a tile at its click; a
 * shortcut when it has been taken; every other OlvWidget at its valueChanged(). A value that the
 * application sets is submitted in the same way. Under ManualSubmit all of them wait for
 * QDataWidgetMapper::submit(). Escape shows the record anew.
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
 * | OlvShortcutEdit | the text of a shortcut that can be had   | no shortcut                      |
 * | others          | what their setValue() takes              | setValue() of an invalid value   |
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
