// SPDX-License-Identifier: MIT
#include "gridcontestants.h"
#include "groups.h"
#include "support.h"

#include <OlvWidgets/buttons.h>

#include <QCoreApplication>

#include <ctime>

namespace {

constexpr int tileCount = 2000;
constexpr int hitDistance = 18; // 112 of 2,000 tiles are left

QWidget *makeIconButton(QWidget *parent)
{
    return new OlvIconButton(QLatin1Char('M'), QStringLiteral("Mail"),
                             QStringLiteral("FontAwesome"), parent, 80, 80);
}

bool isHit(int index)
{
    return index % hitDistance == 0;
}

Tiles hitsOf(const Tiles &tiles)
{
    Tiles hits;
    for (int i = 0; i < tiles.size(); i += hitDistance) {
        hits.append(tiles[i]);
    }
    return hits;
}

void setAllVisible(const Tiles &tiles, bool all)
{
    for (int i = 0; i < tiles.size(); ++i) {
        tiles[i]->setVisible(all || isHit(i));
    }
}

bool isIn(const Tiles &tiles, const QVector<QPoint> &places)
{
    for (int i = 0; i < tiles.size(); ++i) {
        if (tiles[i]->pos() != places[i]) {
            return false;
        }
    }
    return true;
}

/** Alternates between the hits and all tiles, and paints after each, which is not timed. */
template <typename Filter>
void measureFiltering(benchmark::State &state, QWidget &window, const Tiles &tiles, int width,
                      Filter filter)
{
    const QVector<QPoint> places = flowPositions(tiles, width, defaultGap);
    const QVector<QPoint> hitPlaces = flowPositions(hitsOf(tiles), width, defaultGap);
    settle();
    bool all = false;
    double milliseconds = 0;
    while (state.KeepRunning()) {
        const std::clock_t begin = std::clock();
        filter(all);
        milliseconds += 1000.0 * double(std::clock() - begin) / CLOCKS_PER_SEC;
        state.PauseTiming();
        const bool isFiltered = all ? isIn(tiles, places) : isIn(hitsOf(tiles), hitPlaces);
        if (!isFiltered) {
            state.SkipWithError("the tiles are not in their places");
            return;
        }
        all = !all;
        paintUpdates(window);
        settle();
        state.ResumeTiming();
    }
    state.counters["milliseconds"] = milliseconds / double(state.iterations());
}

void filterLibrary(benchmark::State &state)
{
    LibraryGrid grid;
    grid.content->setRetainSizeWhenHidden(false);
    const Tiles tiles = makeTiles(tileCount, grid.content, makeIconButton);
    grid.add(tiles);
    showAndWait(grid.window);
    measureFiltering(state, grid.window, tiles, grid.content->width(), [&](bool all) {
        setAllVisible(tiles, all);
        QCoreApplication::sendPostedEvents(grid.content, QEvent::LayoutRequest);
    });
}

void filterBare(benchmark::State &state)
{
    BareTiles bare;
    const Tiles tiles = makeTiles(tileCount, bare.content, makeIconButton);
    const int width = bare.content->width();
    const QVector<QPoint> places = flowPositions(tiles, width, defaultGap);
    const QVector<QPoint> hitPlaces = flowPositions(hitsOf(tiles), width, defaultGap);
    for (int i = 0; i < tiles.size(); ++i) {
        tiles[i]->move(places[i]);
    }
    bare.content->resize(width, places.last().y());
    showAndWait(bare.window);
    measureFiltering(state, bare.window, tiles, width, [&](bool all) {
        setAllVisible(tiles, all);
        for (int i = 0; i < tiles.size(); ++i) {
            if (all) {
                tiles[i]->move(places[i]);
            } else if (isHit(i)) {
                tiles[i]->move(hitPlaces[i / hitDistance]);
            }
        }
        const QVector<QPoint> &last = all ? places : hitPlaces;
        bare.content->resize(width, last.last().y());
    });
}

} // namespace

void addGridFilter()
{
    addBenchmark("grid-filter/library", filterLibrary);
    addBenchmark("grid-filter/bare", filterBare);
}
