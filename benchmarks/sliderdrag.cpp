// SPDX-License-Identifier: MIT
#include "groups.h"
#include "onewindow.h"
#include "prepared.h"
#include "support.h"

#include <OlvWidgets/value.h>

#include <QMouseEvent>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>

namespace {

constexpr QRect sliderGeometry(10, 10, 200, 30);
constexpr int dragSteps = 10;
// the steps lead beyond the end of the track, so that every drag begins at one of its ends
constexpr int dragStep = 20; // pixels

/** Whether a drag is painted after each event, or its painting is left to the event loop. */
enum class Painting { Left, Done };

struct Drag
{
    QWidget *window;
    QWidget *target; ///< of the events
    QPointF from;
    bool isFollowed; ///< whether the target follows the mouse, so that places in it stay the same
    Painting painting;
};

/** Presses the mouse, moves it in several steps of @p step pixels, and releases it. */
void perform(const Drag &drag, int step)
{
    const auto send = [&](QEvent::Type type, int steps) {
        sendMouse(*drag.target, type, drag.from + QPointF(steps * step, 0));
        if (drag.painting == Painting::Done) {
            paintUpdates(*drag.window);
        }
    };
    send(QEvent::MouseButtonPress, 0);
    for (int i = 1; i <= dragSteps; ++i) {
        send(QEvent::MouseMove, drag.isFollowed ? 1 : i);
    }
    send(QEvent::MouseButtonRelease, drag.isFollowed ? 0 : dragSteps);
}

/** Drags to one end and to the other. @p begin gives the drag that begins where the last ended. */
template <typename Begin, typename Value>
void measureDrags(benchmark::State &state, const Begin &begin, const Value &value)
{
    bool isForward = true;
    const auto next = [&] {
        perform(begin(isForward), isForward ? dragStep : -dragStep);
        isForward = !isForward;
    };
    while (state.KeepRunning()) {
        next();
    }
    next();
    const int first = value();
    next();
    if (qAbs(value() - first) != 100) {
        state.SkipWithError("the drag does not move the slider");
    }
}

void dragKnob(benchmark::State &state, Painting painting, QWidget &window, QWidget &slider,
              QWidget &knob)
{
    slider.setGeometry(sliderGeometry);
    showAndWait(window);
    const Drag drag{ &window, &knob, QPointF(knob.rect().center()), true, painting };
    measureDrags(
        state, [&](bool) { return drag; }, [&] { return slider.property("progress").toInt(); });
}

void dragLibrary(benchmark::State &state, Painting painting)
{
    QWidget window;
    auto *slider = new OlvSlider(&window);
    dragKnob(state, painting, window, *slider, *slider->childAt(QPoint(15, 15)));
}

int xOf(const QMouseEvent &mouse)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return int(mouse.position().x());
#else
    return int(mouse.localPos().x());
#endif
}

/** Has a knob follow the mouse, and its track know how far it is, as the library's slider does. */
class KnobDragger : public QObject
{
public:
    explicit KnobDragger(PreparedPair slider)
        : m_slider(slider)
    {
        m_slider.knob->installEventFilter(this);
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        QWidget &knob = *m_slider.knob;
        switch (event->type()) {
        case QEvent::MouseButtonPress:
            knob.setGeometry(knob.x() - 5, 0, 30, 30);
            m_pressX = xOf(*static_cast<QMouseEvent *>(event));
            return true;
        case QEvent::MouseMove: {
            const int end = m_slider.track->width() - knob.width();
            const int x =
                qBound(0, knob.x() + xOf(*static_cast<QMouseEvent *>(event)) - m_pressX, end);
            knob.move(x, 0);
            m_slider.track->setProperty("progress", x * 100 / end);
            return true;
        }
        case QEvent::MouseButtonRelease:
            knob.setGeometry(knob.x() + 5, 5, 20, 20);
            return true;
        default:
            return QObject::eventFilter(object, event);
        }
    }

private:
    PreparedPair m_slider;
    int m_pressX = 0;
};

void dragTwoWidgets(benchmark::State &state, Painting painting)
{
    QWidget window;
    const PreparedPair slider = prepareSlider(&window);
    KnobDragger dragger(slider);
    dragKnob(state, painting, window, *slider.track, *slider.knob);
}

QRect handleOf(const QSlider &slider)
{
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.orientation = Qt::Horizontal;
    option.maximum = slider.maximum();
    option.sliderPosition = slider.sliderPosition();
    option.sliderValue = slider.value();
    option.subControls = QStyle::SC_All;
    option.state |= QStyle::State_Horizontal;
    return slider.style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle,
                                          &slider);
}

void dragQtSlider(benchmark::State &state, Painting painting, const QString &styleSheet)
{
    QWidget window;
    auto *slider = new QSlider(Qt::Horizontal, &window);
    slider->setStyleSheet(styleSheet);
    slider->setRange(0, 100);
    slider->setGeometry(sliderGeometry);
    showAndWait(window);
    slider->setValue(slider->maximum());
    const QPointF end(handleOf(*slider).center());
    slider->setValue(slider->minimum());
    const QPointF start(handleOf(*slider).center());
    settle();
    measureDrags(
        state,
        [&](bool isForward) {
            return Drag{ &window, slider, isForward ? start : end, false, painting };
        },
        [&] { return slider->value(); });
}

void addDrags(const std::string &name, Painting painting)
{
    addBenchmark(name + "/library", [=](benchmark::State &state) { dragLibrary(state, painting); });
    addBenchmark(name + "/two-widgets",
                 [=](benchmark::State &state) { dragTwoWidgets(state, painting); });
    addBenchmark(name + "/fusion",
                 [=](benchmark::State &state) { dragQtSlider(state, painting, {}); });
    addBenchmark(name + "/sheet", [=](benchmark::State &state) {
        dragQtSlider(state, painting, sliderStyleSheet());
    });
}

} // namespace

void addSliderDrag()
{
    addDrags("slider-drag", Painting::Left);
    addDrags("slider-drag-painted", Painting::Done);
}
