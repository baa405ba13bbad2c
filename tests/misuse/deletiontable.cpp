// SPDX-License-Identifier: MIT
#include "deletiontable.h"

#include "assistant.h"
#include "deferred.h"
#include "everydeed.h"
#include "unheard.h"

#include <QDynamicPropertyChangeEvent>
#include <QMetaEnum>
#include <QPointer>
#include <QTest>

#include <algorithm>
#include <memory>

namespace {

using namespace DeletionTable;

constexpr char receiverProperty[] = "receiver";

/** The events that are being delivered, the outermost first. */
QVector<QEvent::Type> &deliveredEvents()
{
    static QVector<QEvent::Type> types;
    return types;
}

/** Whether Qt itself touches a widget after it has sent it an event of this type. */
bool isFollowedByQt(QEvent::Type type)
{
    switch (type) {
    case QEvent::ChildAdded:
    case QEvent::ChildPolished:
    case QEvent::Destroy:
    case QEvent::FocusAboutToChange:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::HideToParent:
    case QEvent::HoverMove:
    case QEvent::InputMethodQuery:
    case QEvent::Move:
    case QEvent::Paint:
    case QEvent::PaletteChange:
    case QEvent::PlatformSurface:
    case QEvent::Resize:
    case QEvent::ShortcutOverride:
    case QEvent::Show:
    case QEvent::StyleChange:
    case QEvent::WinIdChange:
    case QEvent::WindowIconChange:
    case QEvent::WindowTitleChange:
        return true;
    default:
        return false;
    }
}

/** Whether Qt itself touches a widget after it has told of such an update of it. */
bool isFollowedByQt(QAccessible::Event update)
{
    switch (update) {
    case QAccessible::Focus:
    case QAccessible::ObjectHide:
    case QAccessible::ObjectShow:
    case QAccessible::TextCaretMoved:
    case QAccessible::TextInserted:
    case QAccessible::TextSelectionChanged:
        return true;
    default:
        return false;
    }
}

/** Something that a listener heard: the how manieth of its type that is about a receiver. */
struct Hit
{
    QString receiver;
    int type = 0;
    int number = 0;
    int followed = 0; // see Deletion

    bool operator==(const Hit &other) const
    {
        return receiver == other.receiver && type == other.type && number == other.number;
    }
};

/** Takes down what it hears of a widget and the widgets in it, and at one of it deletes the widget.
 */
class Ear : public QObject
{
public:
    Ear(QWidget *widget, const Deed &deed)
        : m_widget(widget)
        , m_isSending(deed.isSending)
        , m_isHandedOn(deed.isHandedOn)
        , m_followed(deed.followed)
        , m_outside(int(deliveredEvents().size()))
    {
        widget->setProperty(receiverProperty, QStringLiteral("itself"));
        int number = 0;
        const QWidgetList parts = widget->findChildren<QWidget *>();
        for (QWidget *part : parts) {
            const QString name = QString::fromLatin1(part->metaObject()->className());
            part->setProperty(receiverProperty,
                              QStringLiteral("its %1. part, %2").arg(++number).arg(name));
        }
    }
    ~Ear() override
    {
        if (s_hearing == this) {
            QAccessible::installUpdateHandler(m_before);
        }
    }
    Q_DISABLE_COPY(Ear)

    void listenToEvents()
    {
        QWidgetList widgets = m_widget->findChildren<QWidget *>();
        widgets.prepend(m_widget);
        for (QWidget *each : qAsConst(widgets)) {
            each->installEventFilter(this);
        }
    }
    void listenToUpdates()
    {
        s_hearing = this;
        m_before = QAccessible::installUpdateHandler(hearUpdate);
    }

    void deleteAt(const Hit &hit)
    {
        m_target = hit;
    }
    QVector<Hit> hits() const
    {
        return m_heard;
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // Qt sends some within others without QCoreApplication::notify()
        const bool isWithin = deliveredEvents().value(m_outside) != event->type();
        const bool isFollowed =
            isOfStyleSheet(*event) || ((isWithin || !m_isSending) && isFollowedByQt(event->type()));
        return hear(watched, event->type(), isFollowed) || QObject::eventFilter(watched, event);
    }

private:
    static void hearUpdate(QAccessibleEvent *event)
    {
        if (event->object()) {
            s_hearing->hear(event->object(), event->type(), isFollowedByQt(event->type()));
        }
    }
    /** Returns whether it deleted the widget. */
    bool hear(const QObject *object, int type, bool isFollowed)
    {
        Hit hit{ object->property(receiverProperty).toString(), type };
        if (hit.receiver.isEmpty()) {
            return false;
        }
        while (m_heard.contains(hit)) {
            ++hit.number;
        }
        const bool isHandedOn = m_isHandedOn && object != m_widget;
        hit.followed =
            isFollowed || isHandedOn || m_followed.contains(type) ? type : followedAround();
        m_heard.append(hit);
        if (!(hit == m_target)) {
            return false;
        }
        delete m_widget;
        return true;
    }
    /** The type of an event that is being delivered and that Qt touches the widget after, or 0. */
    int followedAround() const
    {
        const QVector<QEvent::Type> types =
            deliveredEvents().mid(m_outside + (m_isSending ? 1 : 0));
        const auto found = std::find_if(types.cbegin(), types.cend(),
                                        [](QEvent::Type type) { return isFollowedByQt(type); });
        return found == types.cend() ? 0 : *found;
    }
    /** Whether it is of a property of Qt's own, which QWidget goes on after. */
    static bool isOfStyleSheet(const QEvent &event)
    {
        return event.type() == QEvent::DynamicPropertyChange
            && static_cast<const QDynamicPropertyChangeEvent &>(event).propertyName().startsWith(
                "_q_");
    }

    static Ear *s_hearing;

    QPointer<QWidget> m_widget;
    bool m_isSending;
    bool m_isHandedOn;
    QVector<int> m_followed;
    int m_outside; // how many events are delivered around the deed
    Hit m_target;
    QVector<Hit> m_heard;
    QAccessible::UpdateHandler m_before = nullptr;
};

Ear *Ear::s_hearing = nullptr;

/** A widget in a shown window, and who listens to it. */
class DeletionScene
{
public:
    DeletionScene(const Subject &subject, const Deed &deed, Listener listener)
        : m_assistant(listener == Listener::UpdateHandler ? new Assistant : nullptr)
    {
        m_window.resize(400, 300);
        widget = subject.make(&m_window);
        widget->setGeometry(10, 10, 120, 40);
        m_window.show();
        QCoreApplication::processEvents();
        if (subject.isUnfinished) {
            runDeferred();
        }
        if (deed.prepare) {
            deed.prepare(widget);
        }
        QCoreApplication::processEvents();
        ear = std::make_unique<Ear>(widget, deed);
        if (listener == Listener::EventFilter) {
            ear->listenToEvents();
        } else {
            ear->listenToUpdates();
        }
    }
    bool worksOn()
    {
        QCoreApplication::processEvents();
        return !m_window.grab().isNull();
    }

private:
    // which Qt does with a tool window
    Unheard m_unheard{ { QStringLiteral("This plugin does not support raise()") } };
    std::unique_ptr<Assistant> m_assistant;
    QWidget m_window;

public:
    QPointer<QWidget> widget;
    std::unique_ptr<Ear> ear;
};

QString nameOf(int type, Listener listener)
{
    const QMetaEnum updates = QAccessible::staticMetaObject.enumerator(
        QAccessible::staticMetaObject.indexOfEnumerator("Event"));
    const char *name = listener == Listener::EventFilter
        ? QMetaEnum::fromType<QEvent::Type>().valueToKey(type)
        : updates.valueToKey(type);
    return name ? QString::fromLatin1(name) : QString::number(type);
}

QVector<Deed> deedsOf(const Subject &subject, Listener listener)
{
    QVector<Deed> deeds = subject.deeds + everyDeed();
    if (listener == Listener::UpdateHandler) {
        deeds += everyAction();
    }
    return deeds;
}

} // namespace

bool DeletionTable::Application::notify(QObject *receiver, QEvent *event)
{
    deliveredEvents().append(event->type());
    const bool isHandled = QApplication::notify(receiver, event);
    deliveredEvents().removeLast();
    return isHandled;
}

QVector<Deletion> DeletionTable::deletions(const QVector<Subject> &subjects, Listener listener)
{
    QVector<Deletion> all;
    for (int i = 0; i < subjects.size(); ++i) {
        const QVector<Deed> deeds = deedsOf(subjects.at(i), listener);
        for (int j = 0; j < deeds.size(); ++j) {
            const DeletionScene scene(subjects.at(i), deeds.at(j), listener);
            deeds.at(j).act(scene.widget);
            const QVector<Hit> hits = scene.ear->hits();
            for (const Hit &hit : hits) {
                all.append({ i, j, hit.receiver, hit.type, hit.number, hit.followed,
                             QStringLiteral("%1: %2 %3, %4")
                                 .arg(deeds.at(j).name, nameOf(hit.type, listener))
                                 .arg(hit.number + 1)
                                 .arg(hit.receiver) });
            }
        }
    }
    return all;
}

bool DeletionTable::survives(const QVector<Subject> &subjects, Listener listener,
                             const Deletion &deletion)
{
    const Subject &subject = subjects.at(deletion.subject);
    const Deed deed = deedsOf(subject, listener).at(deletion.deed);
    DeletionScene scene(subject, deed, listener);
    scene.ear->deleteAt({ deletion.receiver, deletion.type, deletion.number });
    deed.act(scene.widget);
    return scene.widget.isNull() && scene.worksOn();
}

void DeletionTable::addRows(const QVector<Subject> &subjects, Listener listener)
{
    QTest::addColumn<Deletion>("deletion");
    const QVector<Deletion> all = deletions(subjects, listener);
    for (const Deletion &deletion : all) {
        if (deletion.followed == 0) {
            QTest::addRow("%s, %s", qPrintable(subjects.at(deletion.subject).name),
                          qPrintable(deletion.name))
                << deletion;
        }
    }
}

void DeletionTable::check(const QVector<Subject> &subjects, Listener listener)
{
    QFETCH(DeletionTable::Deletion, deletion);
    QVERIFY(survives(subjects, listener, deletion));
}
