// SPDX-License-Identifier: MIT
#include "groups.h"
#include "heldexpose.h"
#include "support.h"

#include <OlvWidgets/buttons.h>
#include <OlvWidgets/input.h>
#include <OlvWidgets/value.h>

#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QToolButton>

#include <memory>

namespace {

constexpr QSize windowSize(640, 480);
constexpr int buttonCount = 1000;
constexpr int columnCount = 20;

QString styleSheet()
{
    return QStringLiteral(
               "QPushButton { background-color: #409eff; color: white; border: none;"
               "              border-radius: 7px; font: 9pt; }"
               "QToolButton { border: 1px solid #c8c8c8; border-radius: 7px; color: #c8c8c8; }"
               "QLineEdit { border: 1px solid #dcdfe6; border-radius: 3px; }"
               "QCheckBox::indicator { width: 50px; height: 24px; border-radius: 12px;"
               "                       background: #dcdfe6; }")
        + sliderStyleSheet();
}

void makeLibraryWidgets(QWidget *window)
{
    const QVector<QWidget *> widgets{ new OlvButton(QStringLiteral("Save"), window),
                                      new OlvIconButton(QLatin1Char('M'), QStringLiteral("Mail"),
                                                        QStringLiteral("FontAwesome"), window, 80,
                                                        80),
                                      new OlvLineEdit(window), new OlvSwitch(window),
                                      new OlvSlider(window) };
    for (int i = 0; i < widgets.size(); ++i) {
        widgets.at(i)->setGeometry(10, 10 + i * 90, 120, 36);
    }
}

void makeStyledWidgets(QWidget *window)
{
    auto *tool = new QToolButton(window);
    tool->setText(QStringLiteral("Mail"));
    const QVector<QWidget *> widgets{ new QPushButton(QStringLiteral("Save"), window), tool,
                                      new QLineEdit(window), new QCheckBox(window),
                                      new QSlider(Qt::Horizontal, window) };
    for (int i = 0; i < widgets.size(); ++i) {
        widgets.at(i)->setGeometry(10, 10 + i * 90, 120, 36);
    }
    window->setStyleSheet(styleSheet());
}

/** From nothing to the first paint, but for the wait for the window system. */
void measureStart(benchmark::State &state, void (*makeWidgets)(QWidget *))
{
    settle();
    while (state.KeepRunning()) {
        auto window = std::make_unique<QWidget>();
        window->resize(windowSize);
        makeWidgets(window.get());
        window->show();
        state.PauseTiming();
        HeldExpose expose(*window, *static_cast<QWidget *>(window->children().last()));
        const bool waited = expose.waitFor();
        state.ResumeTiming();
        const bool painted = expose.handOver();
        state.PauseTiming();
        if (!waited || !painted) {
            state.SkipWithError("the first paint did not come with the expose");
            return;
        }
        window.reset();
        settle();
        state.ResumeTiming();
    }
}

/** A window of many buttons whose edge the user drags: each step is laid out and painted. */
template <typename Button> void measureWidening(benchmark::State &state, const QString &sheet)
{
    QWidget window;
    window.setStyleSheet(sheet);
    auto *layout = new QGridLayout(&window);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    QWidget *last = nullptr;
    for (int i = 0; i < buttonCount; ++i) {
        auto *button = new Button(QString::number(i), &window);
        button->setMinimumSize(40, 18);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        layout->addWidget(button, i / columnCount, i % columnCount);
        last = button;
    }
    window.resize(1200, 1400);
    showAndWait(window);
    const int before = last->width();
    int width = window.width();
    while (state.KeepRunning()) {
        width = width == 1200 ? 1240 : 1200;
        window.resize(width, window.height());
        QCoreApplication::sendPostedEvents();
    }
    window.resize(1240, window.height());
    settle();
    if (last->width() == before) {
        state.SkipWithError("the buttons did not follow the window");
    }
}

} // namespace

void addWindows()
{
    addBenchmark("window-start/library",
                 [](benchmark::State &state) { measureStart(state, makeLibraryWidgets); });
    addBenchmark("window-start/sheet",
                 [](benchmark::State &state) { measureStart(state, makeStyledWidgets); });
    addBenchmark("window-widen/library",
                 [](benchmark::State &state) { measureWidening<OlvButton>(state, QString()); });
    addBenchmark("window-widen/fusion",
                 [](benchmark::State &state) { measureWidening<QPushButton>(state, QString()); });
    addBenchmark("window-widen/sheet", [](benchmark::State &state) {
        measureWidening<QPushButton>(state, styleSheet());
    });
}
