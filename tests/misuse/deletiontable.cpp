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
    /** What it heard that Qt stands a deletion at. */
    QVector<Hit> hits() const
    {
        return m_hits;
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // Qt sends some within others without QCoreApplication::notify()
        const bool isWithin = deliveredEvents().value(m_outside) != event->type();
        const bool isStood = !isOfStyleSheet(*event)
            && !((isWithin || !m_isSending) && isFollowedByQt(event->type()));
        return hear(watched, event->type(), isStood) || QObject::eventFilter(watched, event);
    }

private:
    static void hearUpdate(QAccessibleEvent *event)
    {
        if (event->object()) {
            s_hearing->hear(event->object(), event->type(), !isFollowedByQt(event->type()));
        }
    }
    /** Returns whether it deleted the widget. */
    bool hear(const QObject *object, int type, bool isStood)
    {
        Hit hit{ object->property(receiverProperty).toString(), type, 0 };
        if (hit.receiver.isEmpty()) {
            return false;
        }
        while (m_heard.contains(hit)) {
            ++hit.number;
        }
        m_heard.append(hit);
        if (isStood && isStoodAround() && !m_followed.contains(type)
            && (object == m_widget || !m_isHandedOn)) {
            m_hits.append(hit);
        }
        if (!(hit == m_target)) {
            return false;
        }
        delete m_widget;
        return true;
    }
    /** Whether Qt stands a deletion within the events that are being delivered. */
    bool isStoodAround() const
    {
        const QVector<QEvent::Type> types =
            deliveredEvents().mid(m_outside + (m_isSending ? 1 : 0));
        return std::none_of(types.cbegin(), types.cend(),
                            [](QEvent::Type type) { return isFollowedByQt(type); });
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
    QVector<Hit> m_hits;
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

void DeletionTable::addRows(const QVector<Subject> &subjects, Listener listener)
{
    QTest::addColumn<int>("subject");
    QTest::addColumn<int>("deed");
    QTest::addColumn<QString>("receiver");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("number");
    for (int i = 0; i < subjects.size(); ++i) {
        const QVector<Deed> deeds = deedsOf(subjects.at(i), listener);
        for (int j = 0; j < deeds.size(); ++j) {
            const DeletionScene scene(subjects.at(i), deeds.at(j), listener);
            deeds.at(j).act(scene.widget);
            const QVector<Hit> hits = scene.ear->hits();
            for (const Hit &hit : hits) {
                QTest::addRow("%s, %s: %s %d, %s", qPrintable(subjects.at(i).name),
                              qPrintable(deeds.at(j).name), qPrintable(nameOf(hit.type, listener)),
                              hit.number + 1, qPrintable(hit.receiver))
                    << i << j << hit.receiver << hit.type << hit.number;
            }
        }
    }
}

void DeletionTable::check(const QVector<Subject> &subjects, Listener listener)
{
    QFETCH(int, subject);
    QFETCH(int, deed);
    QFETCH(QString, receiver);
    QFETCH(int, type);
    QFETCH(int, number);
    const Deed done = deedsOf(subjects.at(subject), listener).at(deed);
    DeletionScene scene(subjects.at(subject), done, listener);
    scene.ear->deleteAt({ receiver, type, number });
    done.act(scene.widget);
    QVERIFY(scene.widget.isNull());
    QVERIFY(scene.worksOn());
}
