// SPDX-License-Identifier: MIT
#include "subjects.h"

#include "gridscene.h"
#include "mouse.h"
#include "resizehandles.h"

#include <OlvFlexWidget>

#include <QAccessible>
#include <QPointer>

#include <algorithm>

namespace {

using namespace DeletionTable;

OlvGridLayout *asGrid(QWidget *widget)
{
    return static_cast<OlvGridLayout *>(widget);
}

OlvGridLayout *gridIn(QWidget *viewport)
{
    return viewport->findChild<OlvGridLayout *>();
}

void fill(OlvGridLayout *grid)
{
    grid->addWidget({ makeTile(grid, 50), makeTile(grid, 60, 300) });
}

/** The tiles that are left, also of a grid that has taken one out. */
QWidgetList tilesOf(const OlvGridLayout *grid)
{
    QWidgetList tiles = grid->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    tiles.erase(std::remove_if(tiles.begin(), tiles.end(),
                               [](QWidget *child) { return qobject_cast<QLabel *>(child); }),
                tiles.end());
    return tiles;
}

QWidget *firstTile(const OlvGridLayout *grid)
{
    return tilesOf(grid).value(0);
}

QWidget *lastTile(const OlvGridLayout *grid)
{
    return grid->widgetAt(grid->count() - 1);
}

void hideFirstTile(OlvGridLayout *grid)
{
    if (QWidget *tile = firstTile(grid)) {
        tile->hide();
    }
}

void hideTiles(OlvGridLayout *grid)
{
    const QWidgetList tiles = tilesOf(grid);
    for (QWidget *tile : tiles) {
        tile->hide();
    }
}

void fire(QTimer *timer)
{
    QTimerEvent event(timer->timerId());
    QCoreApplication::sendEvent(timer, &event);
}

/** QAbstractSlider goes on after it has told of its value. */
QVector<int> followedByScrollBar()
{
    return { QAccessible::ValueChanged };
}

using Find = OlvGridLayout *(*)(QWidget *widget);
using Act = void (*)(OlvGridLayout *grid);

Deed toGrid(const char *name, Find find, Act act, Act prepare = nullptr)
{
    const auto on = [find](Act each) {
        return [=](QWidget *widget) {
            each(find(widget));
        };
    };
    Deed deed{ QString::fromLatin1(name), on(act) };
    if (prepare) {
        deed.prepare = on(prepare);
    }
    return deed;
}

/** Several tiles at once, and those that the application takes back. */
QVector<Deed> deedsToTiles(Find find)
{
    Deed taking = toGrid("takeWidget", find,
                         [](OlvGridLayout *grid) { delete grid->takeWidget(firstTile(grid)); });
    taking.followed = { QEvent::ParentAboutToChange };
    return {
        toGrid("addWidget with a list", find,
               [](OlvGridLayout *grid) {
                   grid->addWidget({ makeTile(grid, 40), nullptr, makeTile(grid, 90) });
               }),
        toGrid("insWidget with a list", find,
               [](OlvGridLayout *grid) {
                   grid->insWidget({ makeTile(grid, 40), nullptr, makeTile(grid, 90) },
                                   firstTile(grid));
               }),
        toGrid("delWidget with a list", find,
               [](OlvGridLayout *grid) {
                   grid->delWidget({ lastTile(grid), nullptr, firstTile(grid) });
               }),
        taking,
        toGrid("clear", find, [](OlvGridLayout *grid) { grid->clear(); }),
    };
}

/** Tiles that are hidden or out of sight. */
QVector<Deed> deedsToHiddenTiles(Find find)
{
    const auto closeGaps = [](OlvGridLayout *grid) {
        grid->setRetainSizeWhenHidden(false);
    };
    QVector<Deed> deeds{
        toGrid(
            "setRetainSizeWhenHidden", find,
            [](OlvGridLayout *grid) { grid->setRetainSizeWhenHidden(false); }, hideFirstTile),
        toGrid(
            "setRetainSizeWhenHidden while all are hidden", find,
            [](OlvGridLayout *grid) { grid->setRetainSizeWhenHidden(false); }, hideTiles),
        toGrid(
            "reflow after a tile is hidden", find,
            [](OlvGridLayout *grid) {
                const QPointer<OlvGridLayout> alive(grid);
                hideFirstTile(grid);
                if (alive) {
                    QCoreApplication::sendPostedEvents(alive, QEvent::LayoutRequest);
                }
            },
            closeGaps),
        toGrid("ensureVisible", find,
               [](OlvGridLayout *grid) { grid->ensureVisible(lastTile(grid)); }),
        toGrid(
            "ensureVisible after a tile is hidden", find,
            [](OlvGridLayout *grid) {
                const QPointer<OlvGridLayout> alive(grid);
                hideFirstTile(grid);
                if (alive) {
                    alive->ensureVisible(lastTile(alive));
                }
            },
            closeGaps),
    };
    for (Deed &deed : deeds) {
        deed.followed = followedByScrollBar();
    }
    return deeds;
}

/** What is done to a grid, which is the widget that is deleted, or lies in it. */
QVector<Deed> gridDeeds(Find find)
{
    const auto to = [=](const char *name, Act act) {
        return toGrid(name, find, act);
    };
    const QVector<Deed> deeds{
        to("addWidget", [](OlvGridLayout *grid) { grid->addWidget(makeTile(grid, 40)); }),
        to("insWidget",
           [](OlvGridLayout *grid) { grid->insWidget(makeTile(grid, 40), firstTile(grid)); }),
        to("delWidget", [](OlvGridLayout *grid) { grid->delWidget(firstTile(grid)); }),
        to("deletion of a tile", [](OlvGridLayout *grid) { delete firstTile(grid); }),
        to("setMargin", [](OlvGridLayout *grid) { grid->setMargin(30); }),
        to("setSpacing", [](OlvGridLayout *grid) { grid->setSpacing(30); }),
        to("reUi", [](OlvGridLayout *grid) { grid->reUi(); }),
        to("resized", [](OlvGridLayout *grid) { grid->resized(); }),
        { QStringLiteral("wheel"),
          [=](QWidget *widget) {
              ::wheel(*find(widget), { 0, -120 });
          },
          nullptr, true, false, followedByScrollBar() },
        { QStringLiteral("another language"),
          [=](QWidget *widget) {
              QEvent event(QEvent::LanguageChange);
              QCoreApplication::sendEvent(find(widget), &event);
          },
          nullptr, true, true },
        { QStringLiteral("reflow after a while"),
          [=](QWidget *widget) { fire(timerOf(*find(widget))); },
          [=](QWidget *widget) {
              find(widget)->parentWidget()->resize(200, 150);
              find(widget)->resized();
          } },
    };
    return deeds + deedsToTiles(find) + deedsToHiddenTiles(find);
}

QVector<Deed> gridAlone()
{
    return gridDeeds(asGrid);
}

Subject gridInWindow(bool isFilled)
{
    return { isFilled ? QStringLiteral("OlvGridLayout in a window")
                      : QStringLiteral("OlvGridLayout in a window, empty"),
             [=](QWidget *parent) -> QWidget * {
                 auto *grid = new OlvGridLayout(parent);
                 if (isFilled) {
                     fill(grid);
                 }
                 return grid;
             },
             gridAlone() };
}

OlvGridLayout *makeScrollingGrid(QWidget *parent)
{
    auto *viewport = new QWidget(parent);
    viewport->resize(300, 100);
    auto *grid = new OlvGridLayout(viewport);
    fill(grid);
    return grid;
}

Subject gridInViewport(bool isFilled)
{
    return { isFilled ? QStringLiteral("OlvGridLayout in a viewport")
                      : QStringLiteral("OlvGridLayout in a viewport, empty"),
             [=](QWidget *parent) -> QWidget * {
                 if (isFilled) {
                     return makeScrollingGrid(parent);
                 }
                 auto *viewport = new QWidget(parent);
                 viewport->resize(300, 100);
                 return new OlvGridLayout(viewport);
             },
             gridAlone() };
}

/** The viewport is deleted, with the grid and its scroll bar in it. */
Subject viewport()
{
    const auto make = [](QWidget *parent) {
        return makeScrollingGrid(parent)->parentWidget();
    };
    QVector<Deed> deeds = gridDeeds(gridIn);
    deeds.append({ QStringLiteral("value of the scroll bar"),
                   [](QWidget *widget) { barOf(*gridIn(widget))->setValue(3); }, nullptr, false,
                   false, followedByScrollBar() });
    return { QStringLiteral("viewport of an OlvGridLayout"), make, deeds };
}

Deed dragPanelHandle(const char *name, OlvResizeItem *Handles::*handle)
{
    return { QString::fromLatin1(name),
             [=](QWidget *panel) {
                 Mouse::move(handlesOf(*panel).*handle, { 9, 9 });
             },
             [=](QWidget *panel) {
                 Mouse::press(handlesOf(*panel).*handle, { 1, 1 });
             },
             true };
}

Subject panel()
{
    const auto settle = [](QWidget *panel) {
        fire(reinterpret_cast<QTimer *>(panel->property("resizeTimer").toULongLong()));
    };
    const auto press = [](QWidget *panel) {
        Mouse::press(panel, { 30, 20 });
    };
    return {
        QStringLiteral("OlvFlexWidget"),
        [](QWidget *parent) -> QWidget * { return new OlvFlexWidget(100, 60, parent); },
        {
            call<OlvFlexWidget>("stay on top",
                                [](OlvFlexWidget *panel) { panel->stay(OlvFlexWidget::StayTop); }),
            { QStringLiteral("stay no longer"),
              [](QWidget *panel) {
                  static_cast<OlvFlexWidget *>(panel)->stay(OlvFlexWidget::StayNormal);
              },
              [](QWidget *panel) {
                  static_cast<OlvFlexWidget *>(panel)->stay(OlvFlexWidget::StayBottom);
              } },
            { QStringLiteral("toggleTool"),
              [](QWidget *panel) { static_cast<OlvFlexWidget *>(panel)->toggleTool(); },
              nullptr,
              false,
              false,
              { QEvent::ZOrderChange, QEvent::CursorChange } },
            call<OlvFlexWidget>("setHeaderWay",
                                [](OlvFlexWidget *panel) {
                                    panel->setHeaderWay(OlvFlexWidget::HeaderLeft, Qt::red);
                                }),
            { QStringLiteral("settling"), settle,
              [](QWidget *panel) {
                  panel->resize(140, 80);
              } },
            { QStringLiteral("drag"),
              [](QWidget *panel) {
                  Mouse::move(panel, { 35, 25 });
              },
              press, true },
            dragPanelHandle("drag the right edge", &Handles::right),
            dragPanelHandle("drag the corner", &Handles::corner),
        },
        true,
    };
}

} // namespace

QVector<Subject> DeletionTable::containerSubjects()
{
    return { gridInWindow(true),    gridInWindow(false), gridInViewport(true),
             gridInViewport(false), viewport(),          panel() };
}
