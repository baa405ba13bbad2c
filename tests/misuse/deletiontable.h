// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QMetaType>
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

/** Something that the listener hears of a deed, and deletes the widget at. */
struct Deletion
{
    int subject = 0;
    int deed = 0;
    QString receiver;
    int type = 0;
    int number = 0; ///< of those of its type that are about the receiver
    /** The type of the event or update that Qt touches the widget after; 0 if Qt's own widgets are
     * known to stand the deletion. */
    int followed = 0;
    QString name; ///< without that of the subject
};

/** All of them, in the order in which they are heard. */
QVector<Deletion> deletions(const QVector<Subject> &subjects, Listener listener);
/** Whether the widget is deleted, and all else lives on. */
bool survives(const QVector<Subject> &subjects, Listener listener, const Deletion &deletion);

/** A row for each deletion that Qt's own widgets stand. */
void addRows(const QVector<Subject> &subjects, Listener listener);
/** Fails unless the deletion of the row is survived. */
void check(const QVector<Subject> &subjects, Listener listener);

} // namespace DeletionTable

Q_DECLARE_METATYPE(DeletionTable::Deletion)
