// SPDX-License-Identifier: MIT
#include "groups.h"
#include "support.h"

#include <OlvWidgets/foundation.h>

#include <QCoreApplication>
#include <QCursor>
#include <QMouseEvent>

namespace {

/** The subclass that one writes instead of installing a listener. */
class Overriding : public QWidget
{
public:
    int releases = 0;

protected:
    void mouseReleaseEvent(QMouseEvent * /*event*/) override
    {
        ++releases;
    }
};

/** Sends @p type repeatedly, and counts the heap allocations of sending. */
void measureSending(benchmark::State &state, QWidget &receiver, QEvent::Type type)
{
    QMouseEvent event(type, QPointF(1, 1), QCursor::pos(), Qt::LeftButton, Qt::NoButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&receiver, &event);
    const quint64 before = heapAllocations();
    while (state.KeepRunning()) {
        QCoreApplication::sendEvent(&receiver, &event);
    }
    state.counters["allocations"] = double(heapAllocations() - before) / double(state.iterations());
}

void sendToListener(benchmark::State &state, QEvent::Type type)
{
    QWidget receiver;
    int releases = 0;
    OlvPluginEventFilter filter(&receiver);
    filter.setParent(nullptr);
    filter.addEventListener(QEvent::MouseButtonRelease, [&releases](QEvent *) { ++releases; });
    measureSending(state, receiver, type);
    if ((releases > 0) != (type == QEvent::MouseButtonRelease)) {
        state.SkipWithError("the listener was not asked for the events that it listens to");
    }
}

void sendToOverride(benchmark::State &state, QEvent::Type type)
{
    Overriding receiver;
    measureSending(state, receiver, type);
    if ((receiver.releases > 0) != (type == QEvent::MouseButtonRelease)) {
        state.SkipWithError("the override was not called for its events");
    }
}

void addFilter(const std::string &name, QEvent::Type type)
{
    addBenchmark(name + "/library",
                 [type](benchmark::State &state) { sendToListener(state, type); });
    addBenchmark(name + "/override",
                 [type](benchmark::State &state) { sendToOverride(state, type); });
}

} // namespace

void addEventFilter()
{
    addFilter("filter-listener", QEvent::MouseButtonRelease);
    addFilter("filter-none", QEvent::MouseMove);
}
