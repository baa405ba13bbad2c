// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QString>
#include <QVector>
#include <QWidget>

#include <functional>

/**
 * Deletes a widget while something is done to it, from a listener: first all that the listener
 * hears is taken down, then the same is done again for each of it, and there the listener deletes
 * the widget.
 *
 * Nothing is tried that Qt's own widgets do not stand, such as a deletion within QWidget::resize().
 * They stand in the table like the library's, so that a run with them shows what Qt stands.
 */
namespace DeletionTable {

/** Something that is done to a widget. */
struct Deed
{
    QString name;
    std::function<void(QWidget *widget)> act;
    /** What has to be done before; the listener does not hear of it. */
    std::function<void(QWidget *widget)> prepare = nullptr;
    /** Whether it does no more than to send an event, so that nothing touches the widget after it.
     */
    bool isSending = false;
    /** Whether QWidget hands what it sets on to the children, in a loop that ends with them. */
    bool isHandedOn = false;
    /** Types of events or updates that Qt touches a widget after when it does this, though it does
     * not otherwise. */
    QVector<int> followed = {};
};

/** A deed that is a call of a member function, or several. */
template <typename Widget, typename Act> Deed call(const char *name, Act act)
{
    return { QString::fromLatin1(name), [=](QWidget *widget) {
                act(static_cast<Widget *>(widget));
            } };
}

struct Subject
{
    QString name;
    /** Makes the widget in its parent. */
    std::function<QWidget *(QWidget *parent)> make;
    /** What is done to it, beside what is done to every widget. */
    QVector<Deed> deeds;
    /** Whether the library puts something off that it does to a new one. */
    bool isUnfinished = false;
};

enum class Listener {
    EventFilter,   ///< of the widget and the widgets in it; consumes the event
    UpdateHandler, ///< of updates of accessibility, which is active then
};

/** Knows which events are being delivered, one within the other. A test runs in one of these. */
class Application : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override;
};

/** A row for each thing that the listener hears of each deed. */
void addRows(const QVector<Subject> &subjects, Listener listener);
/** Does what a row says; fails unless the widget is deleted, and all else lives on. */
void check(const QVector<Subject> &subjects, Listener listener);

} // namespace DeletionTable
