// SPDX-License-Identifier: MIT
#include "groups.h"
#include "support.h"

#include <OlvWidgets/OlvWidgets>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include <memory>

namespace {

constexpr int heapWidgetCount = 600;
constexpr int visitedWidgetCount = 100;
constexpr QSize windowSize(800, 600);

/** A form without anything, one whose application sets minimum sizes, and one with a support. */
enum class Form { Plain, Sized, Supported };

/** The widgets of a form in turn, as many of each. */
QWidget *makeWidget(int index)
{
    switch (index % 6) {
    case 0:
        return new OlvButton(QStringLiteral("Button"));
    case 1:
        return new OlvIconButton(QLatin1Char('M'), QStringLiteral("Mail"), QStringLiteral("Sans"),
                                 nullptr, 80, 80);
    case 2:
        return new OlvLineEdit;
    case 3:
        return new OlvShortcutEdit;
    case 4:
        return new OlvSwitch;
    default:
        return new OlvSlider;
    }
}

std::unique_ptr<QWidget> makeForm(Form form, int count)
{
    auto window = std::make_unique<QWidget>();
    auto *rows = new QVBoxLayout(window.get());
    rows->setSizeConstraint(QLayout::SetNoConstraint);
    for (int i = 0; i < count; ++i) {
        QWidget *widget = makeWidget(i);
        rows->addWidget(widget);
        if (form == Form::Sized) {
            widget->setMinimumSize(OlvFormSupport::naturalSize(widget));
        }
    }
    if (form == Form::Supported) {
        new OlvFormSupport(window.get());
    }
    window->resize(windowSize);
    return window;
}

struct Use
{
    double bytes = 0;
    int timers = 0;
};

int timersOf(QObject *object)
{
    int count = int(QAbstractEventDispatcher::instance()->registeredTimers(object).size());
    for (QObject *child : object->children()) {
        count += timersOf(child);
    }
    return count;
}

/** What is in use while a form of @p count widgets is shown. */
Use useOfShown(Form form, int count)
{
    const auto window = makeForm(form, count);
    showAndWait(*window);
    return { heapInUse(), timersOf(window.get()) };
}

/** What the support adds for each widget of a form, compared with @p other. */
void measureUse(benchmark::State &state, Form other)
{
    // what is allocated once, with the first form, is not counted
    useOfShown(Form::Supported, heapWidgetCount);
    settle();
    Use added;
    while (state.KeepRunning()) {
        const Use before = useOfShown(other, heapWidgetCount);
        settle();
        const Use supported = useOfShown(Form::Supported, heapWidgetCount);
        settle();
        added.bytes = (supported.bytes - before.bytes) / heapWidgetCount;
        added.timers = supported.timers - before.timers;
    }
    state.counters["bytes"] = added.bytes;
    state.counters["timers"] = added.timers;
}

/** The pointer goes over every widget of a form, and presses and releases there. */
void measureVisits(benchmark::State &state, Form form)
{
    const auto window = makeForm(form, visitedWidgetCount);
    showAndWait(*window);
    window->setUpdatesEnabled(false);
    QVector<QWidget *> buttons;
    for (QObject *child : window->children()) {
        if (auto *button = qobject_cast<OlvButton *>(child)) {
            buttons.append(button);
        }
    }
    while (state.KeepRunning()) {
        for (QWidget *button : qAsConst(buttons)) {
            const QPointF place(button->rect().center());
            enter(*button, place);
            sendMouse(*button, QEvent::MouseButtonPress, place);
            sendMouse(*button, QEvent::MouseButtonRelease, place);
            QEvent left(QEvent::Leave);
            QCoreApplication::sendEvent(button, &left);
        }
    }
}

/** Space is pressed on a button and released. */
void measureKeys(benchmark::State &state, QWidget &window, QWidget &button)
{
    button.resize(120, 36);
    showAndWait(window);
    window.setUpdatesEnabled(false);
    while (state.KeepRunning()) {
        for (const QEvent::Type type : { QEvent::KeyPress, QEvent::KeyRelease }) {
            QKeyEvent event(type, Qt::Key_Space, Qt::NoModifier);
            QCoreApplication::sendEvent(&button, &event);
        }
    }
}

} // namespace

void addForms()
{
    addBenchmark("form-use/library", [](benchmark::State &state) {
        measureUse(state, Form::Sized);
    })->Iterations(1);
    addBenchmark("form-use/unsized", [](benchmark::State &state) {
        measureUse(state, Form::Plain);
    })->Iterations(1);
    addBenchmark("form-visits/library",
                 [](benchmark::State &state) { measureVisits(state, Form::Supported); });
    addBenchmark("form-visits/unsupported",
                 [](benchmark::State &state) { measureVisits(state, Form::Sized); });
    addBenchmark("form-keys/library", [](benchmark::State &state) {
        QWidget window;
        auto *button = new OlvButton(QStringLiteral("Button"), &window);
        new OlvFormSupport(&window);
        measureKeys(state, window, *button);
    });
    addBenchmark("form-keys/fusion", [](benchmark::State &state) {
        QWidget window;
        auto *button = new QPushButton(QStringLiteral("Button"), &window);
        measureKeys(state, window, *button);
    });
}
