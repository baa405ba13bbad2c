// SPDX-License-Identifier: MIT
#include "page.h"
#include "pages.h"

#include <OlvButton>
#include <OlvGridLayout>

#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>
#include <QVBoxLayout>

#include <functional>
#include <memory>

namespace {

constexpr int tileCount = 240;

/** A tile with its number; the sizes differ, and so do the heights of the rows. */
QWidget *makeTile(QWidget *grid, int number)
{
    static const char *const colors[] = { "64,158,255", "103,194,58", "230,162,60", "245,108,108" };
    auto *tile = new QLabel(QString::number(number), grid);
    tile->setAlignment(Qt::AlignCenter);
    tile->resize(44 + number * 7 % 40, 30 + number * 5 % 20);
    tile->setStyleSheet(QStringLiteral("background: rgb(%1); color: white; border-radius: 4px;")
                            .arg(QLatin1String(colors[number % 4])));
    tile->show();
    return tile;
}

/** A grid in its own window, which becomes as high as its content. */
void openWindow(QWidget *parent)
{
    auto *window = new QWidget(parent, Qt::Window);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(QStringLiteral("Flow grid in a window"));
    window->resize(420, 200);
    auto *grid = new OlvGridLayout(window);
    grid->resize(418, 100);
    QList<QWidget *> tiles;
    for (int i = 0; i < 30; ++i) {
        tiles.append(makeTile(grid, i));
    }
    grid->addWidget(tiles);
    window->show();
}

OlvButton *addAction(QHBoxLayout *row, const QString &text)
{
    auto *button = new OlvButton(text);
    button->setFixedSize(92, 30);
    row->addWidget(button);
    return button;
}

} // namespace

Page *createFlowGridPage(QWidget *parent)
{
    auto *page =
        new Page(QStringLiteral("Flow grid"),
                 QStringLiteral(
                     "OlvGridLayout: resize the window, scroll with the bar or the wheel; the rows "
                     "follow 300 milliseconds after the last resize."),
                 parent);
    auto *viewport = new QWidget(page);
    viewport->resize(760, 300);
    viewport->setMinimumHeight(200);
    auto *grid = new OlvGridLayout(viewport);
    grid->setObjectName(QStringLiteral("grid"));
    grid->resize(viewport->size()); // until it follows the viewport's first resize
    grid->setRetainSizeWhenHidden(false);
    grid->setAutoFillBackground(true); // lets Qt scroll the pixels

    const auto tiles = std::make_shared<QList<QWidget *>>();
    const auto number = std::make_shared<int>(0);
    const auto makeNext = [=] {
        return makeTile(grid, (*number)++);
    };
    for (int i = 0; i < tileCount; ++i) {
        tiles->append(makeNext());
    }
    grid->addWidget(*tiles);

    auto *row = new QHBoxLayout;
    const auto act = [=](const QString &text, const std::function<void()> &action) {
        QObject::connect(addAction(row, text), &OlvButton::clicked, page, [=] {
            action();
            page->log(QStringLiteral("%1: %2 tiles, %3 pixels high")
                          .arg(text)
                          .arg(tiles->size())
                          .arg(grid->height()));
        });
    };
    act(QStringLiteral("Add"), [=] {
        tiles->append(makeNext());
        grid->addWidget(tiles->last());
    });
    act(QStringLiteral("Insert first"), [=] {
        QWidget *tile = makeNext();
        if (tiles->isEmpty() || !grid->insWidget(tile, tiles->first())) {
            grid->addWidget(tile);
        }
        tiles->prepend(tile);
    });
    act(QStringLiteral("Delete first"), [=] {
        if (!tiles->isEmpty()) {
            grid->delWidget(tiles->takeFirst());
        }
    });
    act(QStringLiteral("Delete all"), [=] {
        grid->clear();
        tiles->clear();
    });
    act(QStringLiteral("Every third"), [=] {
        // hides the others, or shows them again
        const bool areHidden = grid->count() > 1 && grid->widgetAt(1)->isHidden();
        for (int i = 0; i < grid->count(); ++i) {
            grid->widgetAt(i)->setVisible(areHidden || i % 3 == 0);
        }
    });
    act(QStringLiteral("In a window"), [=] { openWindow(page); });
    row->addWidget(new QLabel(QStringLiteral("Margin")));
    auto *margin = new QSpinBox;
    margin->setValue(15);
    QObject::connect(margin, QOverload<int>::of(&QSpinBox::valueChanged), grid,
                     &OlvGridLayout::setMargin);
    row->addWidget(margin);
    row->addStretch();
    page->content()->addLayout(row);
    page->content()->addWidget(viewport, 1);
    return page;
}
