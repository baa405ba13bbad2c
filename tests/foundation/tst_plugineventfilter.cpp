// SPDX-License-Identifier: MIT
#include "testprogram.h"

#include <OlvPluginEventFilter>

#include <QPointer>
#include <QTest>

#include <functional>
#include <memory>

namespace {

/** Remembers the events that reach it. */
class Receiver : public QObject
{
public:
    using QObject::QObject;

    bool event(QEvent *event) override
    {
        received.append(event->type());
        return QObject::event(event);
    }

    QList<QEvent::Type> received;
};

constexpr QEvent::Type first = QEvent::Type(QEvent::User + 1);
constexpr QEvent::Type second = QEvent::Type(QEvent::User + 2);

bool send(QObject *receiver, QEvent::Type type)
{
    QEvent event(type);
    return QCoreApplication::sendEvent(receiver, &event);
}

/** Something to be held by a listener that does @p last when it is let go of. */
std::shared_ptr<void> withLastWord(const std::function<void()> &last)
{
    return std::shared_ptr<void>(nullptr, [last](void *) { last(); });
}

} // namespace

class TestPluginEventFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasNoMetaObjectOfItsOwn();
    void watchesItsParentAndIsOwnedByIt();
    void consumesOnlyEventsThatHaveAListener();
    void listenerGetsTheEvent();
    void keepsOneListenerForEachType();
    void emptyListenerLetsTheEventPass();
    void servesEveryWatchedObjectAlike();
    void answersFalseWithoutAListenerWhicheverTheObject();
    void standsAloneWithoutAParent();
    void ignoresANullObject();
    void stopsWatchingWhenDestroyed();
    void keepsACopyOfTheListenerUntilItIsReplaced();
    void listenerMayReplaceItself();
    void listenerMayGrowTheTable();
    void listenerMayDestroyTheFilter();
    void listenerMayDestroyTheWatchedObject();
    void listenerMaySendTheSameEventAgain();
    void whatAListenerHoldsMaySendEventsWhenTheFilterGoes();
    void whatAListenerHoldsMayAddOneWhenTheFilterGoes();
    void whatAListenerHoldsMayChangeTheTableWhenItIsReplaced();
    void whatAListenerHoldsMayDestroyTheFilterWhenItIsReplaced();
};

void TestPluginEventFilter::hasNoMetaObjectOfItsOwn()
{
    QCOMPARE(OlvPluginEventFilter::staticMetaObject.className(), "QObject");
}

void TestPluginEventFilter::watchesItsParentAndIsOwnedByIt()
{
    auto *receiver = new Receiver;
    const QPointer<QObject> filter(new OlvPluginEventFilter(receiver));
    QCOMPARE(filter->parent(), receiver);
    delete receiver;
    QVERIFY(filter.isNull());
}

void TestPluginEventFilter::consumesOnlyEventsThatHaveAListener()
{
    Receiver receiver;
    auto *filter = new OlvPluginEventFilter(&receiver);
    int calls = 0;
    filter->addEventListener(first, [&](QEvent *) { ++calls; });
    receiver.received.clear();
    QVERIFY(send(&receiver, first));
    send(&receiver, second);
    QCOMPARE(calls, 1);
    QCOMPARE(receiver.received, QList<QEvent::Type>({ second }));
}

void TestPluginEventFilter::listenerGetsTheEvent()
{
    Receiver receiver;
    auto *filter = new OlvPluginEventFilter(&receiver);
    QEvent *got = nullptr;
    filter->addEventListener(first, [&](QEvent *event) { got = event; });
    QEvent event(first);
    QCoreApplication::sendEvent(&receiver, &event);
    QCOMPARE(got, &event);
}

void TestPluginEventFilter::keepsOneListenerForEachType()
{
    Receiver receiver;
    auto *filter = new OlvPluginEventFilter(&receiver);
    QStringList calls;
    filter->addEventListener(first, [&](QEvent *) { calls.append(QStringLiteral("old")); });
    filter->addEventListener(second, [&](QEvent *) { calls.append(QStringLiteral("other")); });
    filter->addEventListener(first, [&](QEvent *) { calls.append(QStringLiteral("new")); });
    send(&receiver, first);
    send(&receiver, second);
    QCOMPARE(calls, QStringList({ QStringLiteral("new"), QStringLiteral("other") }));
}

void TestPluginEventFilter::emptyListenerLetsTheEventPass()
{
    Receiver receiver;
    auto *filter = new OlvPluginEventFilter(&receiver);
    filter->addEventListener(first, [](QEvent *) {});
    filter->addEventListener(first, {});
    receiver.received.clear();
    send(&receiver, first);
    QCOMPARE(receiver.received, QList<QEvent::Type>({ first }));
}

void TestPluginEventFilter::servesEveryWatchedObjectAlike()
{
    Receiver one;
    Receiver other;
    auto *filter = new OlvPluginEventFilter(&one);
    filter->addObject(&other);
    int calls = 0;
    filter->addEventListener(first, [&](QEvent *) { ++calls; });
    other.received.clear();
    send(&one, first);
    send(&other, first);
    QCOMPARE(calls, 2);
    QCOMPARE(other.received, QList<QEvent::Type>());
    QCOMPARE(other.children(), QObjectList());
}

void TestPluginEventFilter::answersFalseWithoutAListenerWhicheverTheObject()
{
    Receiver receiver;
    OlvPluginEventFilter filter(&receiver);
    QEvent event(first);
    QVERIFY(!filter.eventFilter(&receiver, &event));
    QVERIFY(!filter.eventFilter(this, &event));
    QVERIFY(!filter.eventFilter(nullptr, &event));
    filter.addEventListener(first, [](QEvent *) {});
    QVERIFY(filter.eventFilter(this, &event));
}

void TestPluginEventFilter::standsAloneWithoutAParent()
{
    Receiver receiver;
    OlvPluginEventFilter filter(nullptr);
    QVERIFY(!filter.parent());
    int calls = 0;
    filter.addEventListener(first, [&](QEvent *) { ++calls; });
    filter.addObject(&receiver);
    send(&receiver, first);
    QCOMPARE(calls, 1);
}

void TestPluginEventFilter::ignoresANullObject()
{
    Receiver receiver;
    OlvPluginEventFilter filter(&receiver);
    filter.addObject(nullptr);
    filter.addEventListener(first, [](QEvent *) {});
    QVERIFY(send(&receiver, first));
}

void TestPluginEventFilter::stopsWatchingWhenDestroyed()
{
    Receiver one;
    Receiver other;
    auto *filter = new OlvPluginEventFilter(&one);
    filter->addObject(&other);
    filter->addEventListener(first, [](QEvent *) {});
    delete filter;
    one.received.clear();
    other.received.clear();
    send(&one, first);
    send(&other, first);
    QCOMPARE(one.received, QList<QEvent::Type>({ first }));
    QCOMPARE(other.received, QList<QEvent::Type>({ first }));
}

void TestPluginEventFilter::keepsACopyOfTheListenerUntilItIsReplaced()
{
    Receiver receiver;
    auto *filter = new OlvPluginEventFilter(&receiver);
    auto held = std::make_shared<int>(0);
    filter->addEventListener(first, [held](QEvent *) { ++*held; });
    QCOMPARE(held.use_count(), 2L);
    send(&receiver, first);
    QCOMPARE(*held, 1);
    QCOMPARE(held.use_count(), 2L);
    filter->addEventListener(first, [](QEvent *) {});
    QCOMPARE(held.use_count(), 1L);

    filter->addEventListener(second, [held](QEvent *) {});
    delete filter;
    QCOMPARE(held.use_count(), 1L);
}

void TestPluginEventFilter::listenerMayReplaceItself()
{
    Receiver receiver;
    auto *filter = new OlvPluginEventFilter(&receiver);
    QStringList calls;
    const QString captured = QStringLiteral("still there after the replacement");
    filter->addEventListener(first, [&calls, filter, captured](QEvent *) {
        filter->addEventListener(first,
                                 [&calls](QEvent *) { calls.append(QStringLiteral("replaced")); });
        calls.append(captured);
    });
    send(&receiver, first);
    send(&receiver, first);
    QCOMPARE(calls, QStringList({ captured, QStringLiteral("replaced") }));
}

void TestPluginEventFilter::listenerMayGrowTheTable()
{
    Receiver receiver;
    auto *filter = new OlvPluginEventFilter(&receiver);
    QString seen;
    const QString captured = QStringLiteral("still there after the table has moved");
    filter->addEventListener(first, [&seen, filter, captured](QEvent *) {
        for (int type = QEvent::User + 10; type < QEvent::User + 2000; ++type) {
            filter->addEventListener(QEvent::Type(type), [](QEvent *) {});
        }
        seen = captured;
    });
    send(&receiver, first);
    QCOMPARE(seen, captured);
}

void TestPluginEventFilter::listenerMayDestroyTheFilter()
{
    Receiver receiver;
    QPointer<OlvPluginEventFilter> filter(new OlvPluginEventFilter(&receiver));
    QString seen;
    const QString captured = QStringLiteral("still there after the filter is gone");
    filter->addEventListener(first, [&seen, filter, captured](QEvent *) {
        delete filter;
        seen = captured;
    });
    receiver.received.clear();
    QVERIFY(send(&receiver, first));
    QVERIFY(filter.isNull());
    QCOMPARE(seen, captured);
    QVERIFY(!receiver.received.contains(first));
}

void TestPluginEventFilter::listenerMayDestroyTheWatchedObject()
{
    const QPointer<Receiver> receiver(new Receiver);
    auto *filter = new OlvPluginEventFilter(receiver);
    filter->addEventListener(first, [=](QEvent *) { delete receiver; });
    send(receiver, first);
    QVERIFY(receiver.isNull());
}

void TestPluginEventFilter::listenerMaySendTheSameEventAgain()
{
    Receiver receiver;
    auto *filter = new OlvPluginEventFilter(&receiver);
    int calls = 0;
    filter->addEventListener(first, [&](QEvent *) {
        if (++calls < 4) {
            send(&receiver, first);
        }
    });
    send(&receiver, first);
    QCOMPARE(calls, 4);
}

void TestPluginEventFilter::whatAListenerHoldsMaySendEventsWhenTheFilterGoes()
{
    Receiver receiver;
    auto *filter = new OlvPluginEventFilter(&receiver);
    int calls = 0;
    for (int i = 0; i < 100; ++i) {
        // each finds a table that is emptied already, or a filter that is no more
        const auto held = withLastWord([&] { send(&receiver, first); });
        filter->addEventListener(QEvent::Type(QEvent::User + 10 + i), [held](QEvent *) {});
    }
    filter->addEventListener(first, [&](QEvent *) { ++calls; });
    receiver.received.clear();
    delete filter;
    QCOMPARE(calls, 0);
    QCOMPARE(receiver.received.count(first), 100);
}

void TestPluginEventFilter::whatAListenerHoldsMayAddOneWhenTheFilterGoes()
{
    Receiver receiver;
    auto *filter = new OlvPluginEventFilter(&receiver);
    {
        const auto held = withLastWord([&] {
            const auto heldToo = withLastWord([&] { send(&receiver, second); });
            filter->addEventListener(first, [heldToo](QEvent *) {});
        });
        filter->addEventListener(first, [held](QEvent *) {});
    }
    receiver.received.clear();
    delete filter;
    QCOMPARE(receiver.received.count(second), 1);
}

void TestPluginEventFilter::whatAListenerHoldsMayChangeTheTableWhenItIsReplaced()
{
    Receiver receiver;
    auto *filter = new OlvPluginEventFilter(&receiver);
    QStringList calls;
    {
        const auto held = withLastWord([&] {
            for (int type = QEvent::User + 10; type < QEvent::User + 2000; ++type) {
                filter->addEventListener(QEvent::Type(type), [](QEvent *) {});
            }
            send(&receiver, first);
        });
        filter->addEventListener(first, [held](QEvent *) {});
    }
    filter->addEventListener(first, [&](QEvent *) { calls.append(QStringLiteral("new")); });
    QCOMPARE(calls, QStringList({ QStringLiteral("new") }));
    send(&receiver, first);
    QCOMPARE(calls.size(), 2);
}

void TestPluginEventFilter::whatAListenerHoldsMayDestroyTheFilterWhenItIsReplaced()
{
    Receiver receiver;
    const QPointer<OlvPluginEventFilter> filter(new OlvPluginEventFilter(&receiver));
    {
        const auto held = withLastWord([&] { delete filter; });
        filter->addEventListener(first, [held](QEvent *) {});
    }
    filter->addEventListener(first, [](QEvent *) {});
    QVERIFY(filter.isNull());
}

ADD_TEST(TestPluginEventFilter, QCoreApplication)
#include "tst_plugineventfilter.moc"
