// SPDX-License-Identifier: MIT
#include "groups.h"
#include "prepared.h"
#include "support.h"

#include <OlvWidgets/buttons.h>
#include <OlvWidgets/foundation.h>

#include <QPushButton>

namespace {

constexpr QSize buttonSize(120, 36);
constexpr int captionPointSize = 9;
constexpr int newCaptions = 20000;

enum class State { Resting, Hovered, Pressed };

struct ButtonCase
{
    const char *name;
    QString caption;
    QString type;
    State state;
};

QFont captionFont()
{
    return QFont(QStringLiteral("宋体"), captionPointSize);
}

QColor fillOf(const ButtonCase &look)
{
    switch (look.state) {
    case State::Hovered:
        return QColor(102, 177, 255);
    case State::Pressed:
        return QColor(58, 142, 230);
    case State::Resting:
        break;
    }
    return look.type == QLatin1String("plain") ? QColor(236, 245, 255) : QColor(64, 158, 255);
}

/** The button's drawing with everything computed in advance. */
PreparedDrawing preparedDrawing(const ButtonCase &look)
{
    const bool plain = look.type == QLatin1String("plain");
    const int radius = buttonSize.height() / (look.type == QLatin1String("round") ? 2 : 5);
    PreparedDrawing drawing;
    drawing.pen = plain ? QPen(QColor(179, 216, 255), 2.0) : QPen(Qt::NoPen);
    drawing.brush = fillOf(look);
    drawing.rect = QRect(QPoint(), buttonSize);
    drawing.radius = radius;
    drawing.caption = look.caption;
    drawing.captionPen = QPen(plain ? QColor(64, 158, 255) : QColor(Qt::white));
    drawing.captionRect = QRect(QPoint(), buttonSize);
    drawing.font = captionFont();
    drawing.font.setPointSize(
        OlvGlobal::adaptDocumentToPointSize(look.caption, buttonSize, drawing.font));
    return drawing;
}

/** The same look as a style sheet. */
QString styleSheetOf(const ButtonCase &look)
{
    const QString shape = look.type == QLatin1String("round")
        ? QStringLiteral("border: none; border-radius: 18px;")
        : look.type == QLatin1String("plain")
        ? QStringLiteral("border: 1px solid #b3d8ff; border-radius: 7px;")
        : QStringLiteral("border: none; border-radius: 7px;");
    const QString colors = look.type == QLatin1String("plain")
        ? QStringLiteral("background-color: #ecf5ff; color: #409eff;")
        : QStringLiteral("background-color: #409eff; color: white;");
    return QStringLiteral("QPushButton { %1 %2 font: 9pt \"宋体\"; }"
                          "QPushButton:hover { background-color: #66b1ff; }"
                          "QPushButton:pressed { background-color: #3a8ee6; }")
        .arg(colors, shape);
}

void bringInto(State state, QWidget &button)
{
    const QPointF centre(button.rect().center());
    if (state != State::Resting) {
        enter(button, centre);
    }
    if (state == State::Pressed) {
        sendMouse(button, QEvent::MouseButtonPress, centre);
    }
    settle();
}

/** Times the painting of @p button in @p window, shown and in its state. */
void measureButton(benchmark::State &state, QWidget &window, QWidget &button,
                   const ButtonCase &look)
{
    button.setGeometry(QRect(QPoint(10, 10), buttonSize));
    showAndWait(window);
    const QImage resting = pictureOf(button);
    bringInto(look.state, button);
    if (look.state != State::Resting && pictureOf(button) == resting) {
        state.SkipWithError("the button does not show its state");
        return;
    }
    measurePainting(state, button);
}

void paintLibrary(benchmark::State &state, const ButtonCase &look)
{
    QWidget window;
    auto *button = new OlvButton(look.caption, &window);
    button->setOlvStyle(QStringLiteral("primary"), look.type);
    measureButton(state, window, *button, look);
}

void paintPrepared(benchmark::State &state, const ButtonCase &look)
{
    QWidget window;
    auto *same = new OlvButton(look.caption, &window);
    same->setOlvStyle(QStringLiteral("primary"), look.type);
    // away from the corner, where the mouse is, which Qt 6 tells a widget when it is shown
    const QRect geometry(QPoint(10, 10), buttonSize);
    same->setGeometry(geometry);
    bringInto(look.state, *same);
    auto *floor = new PreparedWidget(preparedDrawing(look), &window);
    floor->setGeometry(geometry);
    showAndWait(window);
    if (pictureOf(*floor) != pictureOf(*same)) {
        state.SkipWithError("the floor draws something else than the library");
        return;
    }
    measurePainting(state, *floor);
}

/** Each caption is drawn so rarely that no cache still has it. */
template <typename Button> void paintNewCaptions(benchmark::State &state, const QString &styleSheet)
{
    QWidget window;
    auto *button = new Button(&window);
    button->setStyleSheet(styleSheet);
    button->setGeometry(QRect(QPoint(10, 10), buttonSize));
    showAndWait(window);
    QStringList captions;
    for (int i = 0; i < newCaptions; ++i) {
        captions << QStringLiteral("Page %1").arg(i, 6, 10, QLatin1Char('0'));
    }
    int next = 0;
    measurePainting(state, *button, [&] {
        button->setText(captions[next]);
        next = (next + 1) % newCaptions;
    });
}

void paintNothing(benchmark::State &state)
{
    QWidget window;
    const OlvButton button;
    auto *undrawn =
        new UndrawnWidget(button, { "color", "state", "type", "isChecked", "content" }, &window);
    undrawn->setGeometry(QRect(QPoint(10, 10), buttonSize));
    showAndWait(window);
    measurePainting(state, *undrawn);
}

void paintStyleSheet(benchmark::State &state, const ButtonCase &look)
{
    QWidget window;
    auto *button = new QPushButton(look.caption, &window);
    button->setStyleSheet(styleSheetOf(look));
    measureButton(state, window, *button, look);
}

void paintFusion(benchmark::State &state, const ButtonCase &look)
{
    QWidget window;
    auto *button = new QPushButton(look.caption, &window);
    button->setFont(captionFont());
    measureButton(state, window, *button, look);
}

void addButton(const ButtonCase &look)
{
    const auto add = [&look](const char *contestant, auto function) {
        addBenchmark(std::string(look.name) + contestant,
                     [look, function](benchmark::State &state) { function(state, look); });
    };
    add("/library", paintLibrary);
    add("/floor", paintPrepared);
    add("/sheet", paintStyleSheet);
    add("/fusion", paintFusion);
}

} // namespace

void addButtons()
{
    const QString eleven = QStringLiteral("Save as PDF");
    const QString fiftyNine =
        QStringLiteral("Save the document and every picture in it as one PDF file, ");
    const QString plain = QStringLiteral("plain");
    const QString round = QStringLiteral("round");
    addButton({ "button-empty", {}, {}, State::Resting });
    addBenchmark("button-empty/undrawn", paintNothing);
    addBenchmark("button-new-caption/library",
                 [](benchmark::State &state) { paintNewCaptions<OlvButton>(state, QString()); });
    addBenchmark("button-new-caption/sheet", [](benchmark::State &state) {
        paintNewCaptions<QPushButton>(state, styleSheetOf({ "", {}, {}, State::Resting }));
    });
    addButton({ "button-rest", eleven, {}, State::Resting });
    addButton({ "button-hover", eleven, {}, State::Hovered });
    addButton({ "button-pressed", eleven, {}, State::Pressed });
    addButton({ "button-round", eleven, round, State::Resting });
    addButton({ "button-plain", {}, plain, State::Resting });
    addButton({ "button-shrunk", fiftyNine, {}, State::Resting });
}
