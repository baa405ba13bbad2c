// SPDX-License-Identifier: MIT
#pragma once

#include <OlvWidgets/olvwidgets_export.h>

#include <QString>
#include <QVariant>
#include <QWidget>

/**
 * @file widget.h
 * The base of every widget that holds one value.
 */

/**
 * The abstract base of every widget that holds one value which its user edits.
 *
 * @image html OlvWidget.png
 *
 * It gives all of them one way to read and write that value, one signal that reports a change, and
 * a bridge from the platform's input method (on-screen keyboards, composition of Chinese text) to a
 * signal. It draws nothing and handles no other event. Each subclass says what type of value it
 * keeps, and which of its actions emit valueChanged().
 *
 * @code
 * void bind(OlvWidget *widget, Settings *settings, const QString &key)
 * {
 *     widget->setValue(settings->value(key));
 *     QObject::connect(widget, &OlvWidget::valueChanged, settings,
 *                      [=](const QVariant &value) { settings->store(key, value); });
 * }
 * @endcode
 */
class OLVWIDGETS_EXPORT OlvWidget : public QWidget
{
    Q_OBJECT

public:
    /** An empty widget in @p parent, which owns it, with the default window flags. */
    explicit OlvWidget(QWidget *parent = nullptr);

    /** Sets the value, in the type that the subclass names. */
    virtual void setValue(const QVariant &value) = 0;
    /** The value, in the type that the subclass names. */
    virtual QVariant getValue() = 0;

    /**
     * Opens the widget to the input method: sets the focus policy Qt::StrongFocus, then the
     * attribute Qt::WA_InputMethodEnabled. No widget of the library calls it: the application does,
     * on each widget that is to take text from an input method. Calling it again changes nothing.
     */
    void openInputMethod();

Q_SIGNALS:
    /** The value changed to the argument; which widget emits it, and when, is said in each. */
    void valueChanged(const QVariant &);
    /**
     * The input method sent text: emitted for every input method event before QWidget handles it,
     * with the event's commit string, which is empty for the updates during a composition.
     */
    void inputMethodCommit(const QString &);

protected:
    /**
     * Emits inputMethodCommit(), then hands the event to QWidget. A slot may delete the widget. An
     * override calls this one, so that the signal goes on being emitted.
     */
    void inputMethodEvent(QInputMethodEvent *event) override;
};
