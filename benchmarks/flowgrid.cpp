// SPDX-License-Identifier: MIT
#include "gridcontestants.h"
#include "groups.h"
#include "support.h"

#include <OlvWidgets/buttons.h>

#include <QScrollBar>

namespace {

constexpr int tileCounts[] = { 1000, 3000, 10000 };
constexpr int firstGap = 15;
constexpr int secondGap = 16;
constexpr int scrollStep = 25; // pixels

/** Where @p tiles are now. */
QVector<QPoint> positionsOf(const Tiles &tiles)
{
    QVector<QPoint> positions;
    for (const QWidget *tile : tiles) {
        positions.append(tile->pos());
    }
    return positions;
}

bool allMoved(const Tiles &tiles, const QVector<QPoint> &before)
{
    for (int i = 0; i < tiles.size(); ++i) {
        if (tiles[i]->pos() == before[i]) {
            return false;
        }
    }
    return true;
}

/**
 * Alternates between two gaps, which moves every tile each time. Pending updates are painted
 * between the steps, so that each step finds the window in its usual state.
 */
template <typename SetGap>
void measureAllMoving(benchmark::State &state, QWidget &window, const Tiles &tiles, SetGap setGap)
{
    setGap(firstGap);
    settle();
    const QVector<QPoint> before = positionsOf(tiles);
    bool first = false;
    while (state.KeepRunning()) {
        setGap(first ? firstGap : secondGap);
        first = !first;
        state.PauseTiming();
        paintUpdates(window);
        state.ResumeTiming();
    }
    setGap(secondGap);
    if (!allMoved(tiles, before)) {
        state.SkipWithError("not every tile moved");
    }
}

template <typename Contestant> void moveAll(benchmark::State &state, int count)
{
    Contestant contestant;
    const Tiles tiles = makeTiles(count, contestant.content);
    showAndWait(contestant.window);
    contestant.add(tiles);
    measureAllMoving(state, contestant.window, tiles,
                     [&contestant](int gap) { contestant.setGap(gap); });
}

void moveAllBare(benchmark::State &state, int count)
{
    BareTiles bare;
    const Tiles tiles = makeTiles(count, bare.content);
    const int width = bare.content->width();
    const QVector<QPoint> first = flowPositions(tiles, width, firstGap);
    const QVector<QPoint> second = flowPositions(tiles, width, secondGap);
    bare.content->resize(width, first.last().y());
    showAndWait(bare.window);
    measureAllMoving(state, bare.window, tiles, [&](int gap) {
        const QVector<QPoint> &positions = gap == firstGap ? first : second;
        for (int i = 0; i < tiles.size(); ++i) {
            tiles[i]->move(positions[i]);
        }
    });
}

template <typename Contestant> void moveNone(benchmark::State &state, int count)
{
    Contestant contestant;
    contestant.add(makeTiles(count, contestant.content));
    showAndWait(contestant.window);
    contestant.reflow();
    settle();
    while (state.KeepRunning()) {
        contestant.reflow();
    }
}

template <typename Contestant> void addList(benchmark::State &state, int count)
{
    while (state.KeepRunning()) {
        state.PauseTiming();
        {
            Contestant contestant;
            const Tiles tiles = makeTiles(count, contestant.content);
            showAndWait(contestant.window);
            state.ResumeTiming();
            contestant.add(tiles);
            state.PauseTiming();
            if (positionsOf(tiles)
                != flowPositions(tiles, contestant.content->width(), defaultGap)) {
                state.SkipWithError("not every tile is in its place");
                return;
            }
        }
        settle();
        state.ResumeTiming();
    }
}

template <typename Contestant, typename Add>
void addEach(benchmark::State &state, int count, Add add)
{
    while (state.KeepRunning()) {
        state.PauseTiming();
        {
            Contestant contestant;
            const Tiles tiles = makeTiles(count, contestant.content);
            showAndWait(contestant.window);
            state.ResumeTiming();
            for (QWidget *tile : tiles) {
                add(contestant, tile);
            }
            state.PauseTiming();
        }
        settle();
        state.ResumeTiming();
    }
}

/** Scrolls one step down and one up, and paints after each. */
void measureScrolling(benchmark::State &state, QWidget &window, const QWidget &content,
                      QScrollBar &bar, int step)
{
    const int before = content.y();
    bar.setValue(step);
    settle();
    if (content.y() != before - scrollStep) {
        state.SkipWithError("the content did not scroll by one step");
        return;
    }
    bool down = false;
    while (state.KeepRunning()) {
        bar.setValue(down ? step : 0);
        down = !down;
        paintUpdates(window);
    }
}

using MakeTile = QWidget *(*)(QWidget *parent);

QWidget *makeDrawnTile(QWidget *parent)
{
    return new OlvButton(QStringLiteral("Tile"), parent);
}

void scrollLibrary(benchmark::State &state, int count, MakeTile makeTile, bool isOpaque)
{
    LibraryGrid grid;
    grid.content->setAutoFillBackground(isOpaque);
    grid.add(makeTiles(count, grid.content, makeTile));
    showAndWait(grid.window);
    measureScrolling(state, grid.window, *grid.content, *grid.viewport.findChild<QScrollBar *>(),
                     1);
}

void scrollArea(benchmark::State &state, int count, MakeTile makeTile)
{
    ScrolledFlowLayout flow;
    flow.add(makeTiles(count, flow.content, makeTile));
    showAndWait(flow.window);
    measureScrolling(state, flow.window, *flow.content, *flow.area.verticalScrollBar(), scrollStep);
}

/** A scroll area whose bar lies over its content and looks as the grid's does. */
void scrollBelowBar(benchmark::State &state, int count, MakeTile makeTile)
{
    ScrolledFlowLayout flow;
    flow.area.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    flow.add(makeTiles(count, flow.content, makeTile));
    LibraryGrid grid;
    const auto *model = grid.viewport.findChild<QScrollBar *>();
    auto *bar = new QScrollBar(Qt::Vertical, &flow.window);
    bar->setStyleSheet(model->styleSheet());
    bar->setGeometry(model->geometry());
    QScrollBar *own = flow.area.verticalScrollBar();
    QObject::connect(bar, &QScrollBar::valueChanged, own,
                     [own](int value) { own->setValue(value * scrollStep); });
    showAndWait(flow.window);
    bar->setRange(0, own->maximum() / scrollStep);
    settle();
    measureScrolling(state, flow.window, *flow.content, *bar, 1);
}

template <typename Function> void addSized(const std::string &name, int count, Function function)
{
    addBenchmark(name + '/' + std::to_string(count),
                 [count, function](benchmark::State &state) { function(state, count); });
}

void addScrolling(const std::string &name, int count, MakeTile makeTile)
{
    addSized(name + "/library", count, [makeTile](benchmark::State &state, int tiles) {
        scrollLibrary(state, tiles, makeTile, false);
    });
    addSized(name + "/opaque", count, [makeTile](benchmark::State &state, int tiles) {
        scrollLibrary(state, tiles, makeTile, true);
    });
    addSized(name + "/scroll-area", count, [makeTile](benchmark::State &state, int tiles) {
        scrollArea(state, tiles, makeTile);
    });
    addSized(name + "/laid-over", count, [makeTile](benchmark::State &state, int tiles) {
        scrollBelowBar(state, tiles, makeTile);
    });
}

} // namespace

void addFlowGrid()
{
    for (const int count : tileCounts) {
        addSized("grid-all-move/library", count, moveAll<LibraryGrid>);
        addSized("grid-all-move/moves", count, moveAllBare);
        addSized("grid-all-move/flow-layout", count, moveAll<ScrolledFlowLayout>);
        addSized("grid-all-move/remembering", count, moveAll<RememberingFlowLayout>);
        addSized("grid-none-moves/library", count, moveNone<LibraryGrid>);
        addSized("grid-none-moves/flow-layout", count, moveNone<ScrolledFlowLayout>);
        addSized("grid-none-moves/remembering", count, moveNone<RememberingFlowLayout>);
        addSized("grid-add-list/library", count, addList<LibraryGrid>);
        addSized("grid-add-list/moves", count, addList<MovedTiles>);
        addSized("grid-add-list/flow-layout", count, addList<ScrolledFlowLayout>);
        addSized("grid-add-list/remembering", count, addList<RememberingFlowLayout>);
        addScrolling("grid-scroll-step", count, makeEmptyTile);
        addScrolling("grid-scroll-step-drawn", count, makeDrawnTile);
        addSized("grid-add-each/library", count, [](benchmark::State &state, int tiles) {
            addEach<LibraryGrid>(state, tiles, [](LibraryGrid &grid, QWidget *tile) {
                grid.content->addWidget(tile);
            });
        });
        addSized("grid-add-each/naive", count, [](benchmark::State &state, int tiles) {
            addEach<NaiveGrid>(state, tiles,
                               [](NaiveGrid &grid, QWidget *tile) { grid.add(tile); });
        });
    }
}
