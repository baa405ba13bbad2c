// SPDX-License-Identifier: MIT
#include "colors.h"
#include "page.h"
#include "pages.h"

#include <OlvIconButton>
#include <OlvSimpleIconButton>

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <memory>

namespace {

constexpr int simpleGlyphSize = 14; // points
constexpr ushort emptyStar = 0xf006;
constexpr ushort fullStar = 0xf005;
constexpr ushort gear = 0xf013;
constexpr ushort trash = 0xf014;

struct Tile
{
    QString name;
    ushort glyph;
    QString text;
    QColor color;
    int side;
    bool checkable;
};

QWidget *makeTile(Page *page, const Tile &tile)
{
    auto *button = new OlvIconButton(QChar(tile.glyph), tile.text, iconFamily(), nullptr, tile.side,
                                     tile.side);
    button->setObjectName(tile.name);
    button->setFixedSize(tile.side, tile.side);
    button->setColor(tile.color);
    button->setCheckable(tile.checkable);

    auto *count = new QLabel(QStringLiteral("0 / 0"));
    count->setAlignment(Qt::AlignCenter);
    auto *column = new QWidget;
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(button, 0, Qt::AlignHCenter);
    layout->addWidget(count);

    struct Counts
    {
        int single = 0;
        int twice = 0;
    };
    const auto counts = std::make_shared<Counts>();
    const auto tell = [=](const char *signal) {
        count->setText(QStringLiteral("%1 / %2").arg(counts->single).arg(counts->twice));
        page->log(QStringLiteral("%1: %2, value %3")
                      .arg(tile.name, QLatin1String(signal), button->getValue().toString()));
    };
    QObject::connect(button, &OlvIconButton::clicked, page, [=] {
        ++counts->single;
        tell("clicked()");
    });
    QObject::connect(button, &OlvIconButton::dClicked, page, [=] {
        ++counts->twice;
        tell("dClicked()");
    });
    return column;
}

OlvSimpleIconButton *makeSimple(Page *page, const QString &name, ushort glyph)
{
    auto *button = new OlvSimpleIconButton(QChar(glyph), QFont(iconFamily(), simpleGlyphSize));
    button->setObjectName(name);
    button->setFixedSize(button->size());
    lightenGlyph(button);
    QObject::connect(button, &QPushButton::clicked, page, [=](bool checked) {
        page->log(QStringLiteral("%1: clicked(%2)")
                      .arg(name, checked ? QStringLiteral("true") : QStringLiteral("false")));
    });
    return button;
}

} // namespace

Page *createIconButtonsPage(QWidget *parent)
{
    auto *page =
        new Page(QStringLiteral("Icon buttons"),
                 QStringLiteral(
                     "OlvIconButton tells a click from a double click, 400 milliseconds after the "
                     "last release; under each tile, its clicks and its double clicks."),
                 parent);
    const QColor cyan(0, 255, 255);
    const QVector<Tile> tiles{
        { QStringLiteral("mail"), 0xf0e0, QStringLiteral("Mail"), cyan, 100, false },
        { QStringLiteral("music"), 0xf001, QStringLiteral("音乐"), cyan, 100, false },
        { QStringLiteral("wifi"), 0xf1eb, QStringLiteral("Checkable"), QColor(64, 158, 255), 100,
          true },
        { QStringLiteral("heart"), 0xf004, QStringLiteral("Checkable"), QColor(245, 108, 108), 80,
          true },
        { QStringLiteral("folder"), 0xf07b, QStringLiteral("文件"), QColor(230, 162, 60), 56,
          false },
    };
    auto *row = new QHBoxLayout;
    row->setSpacing(20);
    for (const Tile &tile : tiles) {
        row->addWidget(makeTile(page, tile), 0, Qt::AlignBottom);
    }
    row->addStretch();
    page->content()->addLayout(row);
    page->content()->addSpacing(16);

    page->addHeading(QStringLiteral("OlvSimpleIconButton: a toggle, a plain one, a disabled one"));
    auto *star = makeSimple(page, QStringLiteral("star"), emptyStar);
    star->setToggle(QChar(fullStar)); // sets a style sheet as well
    lightenGlyph(star);
    auto *disabled = makeSimple(page, QStringLiteral("disabled"), trash);
    disabled->setEnabled(false);
    auto *simple = new QHBoxLayout;
    simple->addWidget(star);
    simple->addWidget(makeSimple(page, QStringLiteral("gear"), gear));
    simple->addWidget(disabled);
    simple->addStretch();
    page->content()->addLayout(simple);
    page->content()->addStretch();
    return page;
}
