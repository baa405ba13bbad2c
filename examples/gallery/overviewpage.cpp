// SPDX-License-Identifier: MIT
#include "colors.h"
#include "page.h"
#include "pages.h"

#include <OlvWidgets/OlvWidgets>

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr QSize buttonSize(84, 32);
constexpr int tileSide = 76;
constexpr QSize lineSize(340, 30);
constexpr QSize switchSize(50, 24);
constexpr QSize gridSize(366, 126);
constexpr QSize panelSize(176, 118);
constexpr int fontPollInterval = 20; // milliseconds
const QColor blue(64, 158, 255);
const QColor orange(230, 162, 60);
const QColor red(245, 108, 108);

/** Widgets in a row under the names of their classes. */
QVBoxLayout *makeCell(const QString &classes, const QList<QWidget *> &widgets)
{
    auto *caption = new QLabel(classes);
    caption->setStyleSheet(QStringLiteral("font-size: 11px; color: rgb(144,147,153);"));
    auto *row = new QHBoxLayout;
    row->setSpacing(10);
    for (QWidget *widget : widgets) {
        row->addWidget(widget);
    }
    row->addStretch();
    auto *cell = new QVBoxLayout;
    cell->setSpacing(6);
    cell->addWidget(caption);
    cell->addLayout(row);
    cell->addStretch();
    return cell;
}

QWidget *makeButton(Page *page, const QString &color, const QString &type)
{
    auto *button = new OlvButton(type.isEmpty() ? color : type);
    button->setFixedSize(buttonSize);
    button->setOlvStyle(color, type);
    QObject::connect(button, &OlvButton::clicked, page,
                     [=] { page->log(QStringLiteral("OlvButton: clicked()")); });
    return button;
}

QWidget *makeTile(Page *page, ushort glyph, const QString &text, const QColor &color, bool checked)
{
    auto *tile = new OlvIconButton(QChar(glyph), text, iconFamily(), nullptr, tileSide, tileSide);
    tile->setFixedSize(tileSide, tileSide);
    tile->setColor(color);
    tile->setCheckable(true);
    tile->setProperty("isChecked", checked);
    QObject::connect(tile, &OlvIconButton::clicked, page,
                     [=] { page->log(QStringLiteral("OlvIconButton: clicked()")); });
    QObject::connect(tile, &OlvIconButton::dClicked, page,
                     [=] { page->log(QStringLiteral("OlvIconButton: dClicked()")); });
    return tile;
}

/** A toggle of two glyphs, or of one. */
QWidget *makeGlyph(Page *page, ushort glyph, ushort checkedGlyph, const QString &name, bool checked)
{
    auto *button = new OlvSimpleIconButton(QChar(glyph), QFont(iconFamily(), 14));
    button->setFixedSize(button->size());
    button->setToggle(QChar(checkedGlyph));
    lightenGlyph(button);
    button->setToolTip(name);
    if (checked) {
        button->click(); // setChecked() would leave the glyph
    }
    QObject::connect(button, &QPushButton::clicked, page, [=](bool on) {
        page->log(QStringLiteral("OlvSimpleIconButton: clicked(%1)").arg(QVariant(on).toString()));
    });
    return button;
}

QWidget *makeLine(ushort glyph, const QString &text, bool isPassword)
{
    auto *line = new OlvLineEdit;
    line->setFixedSize(lineSize);
    // the text has the colour of the application's palette, but the line is always white
    line->lineEdit()->setPalette(lightColors());
    line->setIcon(QChar(glyph));
    line->setPassWord(isPassword);
    line->setPwdIcon(QChar(0xf06e), QChar(0xf070));
    line->setText(text);
    return line;
}

QWidget *makeShortcut(Page *page)
{
    auto *edit = new OlvShortcutEdit(new OlvShortcut(Qt::Key_F8, true, true, false, false));
    edit->setFixedSize(lineSize);
    QObject::connect(edit, &OlvWidget::valueChanged, page, [=](const QVariant &value) {
        page->log(QStringLiteral("OlvShortcutEdit: valueChanged(\"%1\")").arg(value.toString()));
    });
    return edit;
}

QWidget *makeSwitch(Page *page, const QString &name, const QColor &whenOn, bool on)
{
    auto *toggle = new OlvSwitch;
    toggle->setFixedSize(switchSize);
    toggle->setColorClose(whenOn);
    toggle->setValue(on);
    QObject::connect(toggle, &OlvWidget::valueChanged, page, [=](const QVariant &value) {
        page->log(QStringLiteral("%1 OlvSwitch: valueChanged(%2)").arg(name, value.toString()));
    });
    QObject::connect(toggle, &OlvSwitch::changed, page, [=](bool value) {
        page->log(
            QStringLiteral("%1 OlvSwitch: changed(%2)").arg(name, QVariant(value).toString()));
    });
    return toggle;
}

QWidget *makeSlider(int percentage)
{
    auto *slider = new OlvSlider;
    slider->setFixedSize(lineSize.width(), slider->height());
    slider->setSliderPosition(percentage);
    return slider;
}

/** A bar at the right of a strip, as at the top of a window. */
QWidget *makeBar(Page *page)
{
    // the six window buttons, "restore", and the application's: a cog and a question mark
    auto *bar = new OlvControlBar({ u'\uf08e', u'\uf103', u'\uf102', u'\uf2d1', u'\uf2d0',
                                    u'\uf00d', u'\uf2d2', u'\uf013', u'\uf128' },
                                  nullptr, { QStringLiteral("Settings"), QStringLiteral("Help") });
    QObject::connect(bar, &OlvControlBar::changed, page,
                     [=] { page->log(QStringLiteral("OlvControlBar: changed()")); });
    QObject::connect(bar, &OlvControlBar::custom, page,
                     [=] { page->log(QStringLiteral("OlvControlBar: custom()")); });
    auto *strip = new QFrame;
    strip->setFixedSize(lineSize.width(), buttonSize.height());
    strip->setStyleSheet(
        QStringLiteral("QFrame { background: rgba(128,134,148,14%); border-radius: 4px; }"
                       "QLabel { background: none; }"));
    auto *row = new QHBoxLayout(strip);
    row->setContentsMargins(12, 0, 4, 0);
    row->addWidget(new QLabel(QStringLiteral("Untitled")));
    row->addWidget(bar, 1);
    return strip;
}

QWidget *makeFlowGrid(Page *page)
{
    auto *viewport = new QWidget(page); // the grid would treat one without a parent as a window
    viewport->setFixedSize(gridSize);
    auto *grid = new OlvGridLayout(viewport);
    grid->resize(viewport->size()); // until it follows the viewport's first resize
    QList<QWidget *> tiles;
    for (int number = 1; number <= 40; ++number) {
        auto *tile = new QLabel(QString::number(number), grid);
        tile->resize(30 + number * 7 % 24, 24);
        tile->setAlignment(Qt::AlignCenter);
        tile->setStyleSheet(QStringLiteral("background: %1; color: white; border-radius: 4px;")
                                .arg((number % 3 ? blue : orange).name()));
        tile->show();
        tiles.append(tile);
    }
    grid->addWidget(tiles);
    return viewport;
}

/** A panel, and a box that has its two helpers; both stay where the user drags them. */
QWidget *makeStage()
{
    auto *stage = new QWidget;
    stage->setFixedSize(368, gridSize.height());
    auto *panel = new OlvFlexWidget(panelSize.width(), panelSize.height(), stage);
    panel->setHeaderWay(OlvFlexWidget::HeaderTop, blue);
    auto *text = new QLabel(QStringLiteral("Drag me, or drag\nmy edges"), panel);
    text->setPalette(lightColors()); // the panel is light on every background
    text->setAttribute(Qt::WA_TransparentForMouseEvents);
    text->move(24, 30);

    auto *box = new QLabel(QStringLiteral("Any widget can be\nmoved and resized"), stage);
    box->setAlignment(Qt::AlignCenter);
    box->setStyleSheet(QStringLiteral("background: rgb(236,245,255); color: rgb(64,158,255);"));
    box->setGeometry(QRect({ 192, 0 }, panelSize));
    auto *mover = new OlvMoveWidget(box);
    mover->setMoveArea(QRect());
    new OlvResizeWidget(box, 6);
    return stage;
}

/** Shows the glyphs once the icon font has been registered, which happens in the background. */
void repaintWithFonts(Page *page)
{
    auto *poll = new QTimer(page);
    QObject::connect(poll, &QTimer::timeout, page, [=] {
        if (OlvGlobal::isReady()) {
            poll->stop();
            page->update(); // and with it all that lies on it
        }
    });
    poll->start(fontPollInterval);
}

} // namespace

Page *createOverviewPage(QWidget *parent)
{
    auto *page = new Page(QStringLiteral("Overview"),
                          QStringLiteral("Every widget of the library, live. The other pages show "
                                         "them one by one, with all that they can do."),
                          parent);
    const QColor green(19, 206, 102);
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(40);
    grid->setVerticalSpacing(12);
    grid->addLayout(makeCell(QStringLiteral("OlvButton"),
                             { makeButton(page, QStringLiteral("primary"), QString()),
                               makeButton(page, QStringLiteral("success"), QStringLiteral("plain")),
                               makeButton(page, QStringLiteral("warning"), QStringLiteral("round")),
                               makeButton(page, QStringLiteral("danger"), QString()) }),
                    0, 0);
    grid->addLayout(makeCell(QStringLiteral("OlvControlBar"), { makeBar(page) }), 0, 1);
    grid->addLayout(makeCell(QStringLiteral("OlvIconButton"),
                             { makeTile(page, 0xf0e0, QStringLiteral("Mail"), blue, false),
                               makeTile(page, 0xf1eb, QStringLiteral("网络"), blue, true),
                               makeTile(page, 0xf004, QStringLiteral("Likes"), red, true),
                               makeTile(page, 0xf001, QStringLiteral("Music"), orange, false) }),
                    1, 0);
    auto *values = makeCell(QStringLiteral("OlvSwitch"),
                            { makeSwitch(page, QStringLiteral("grey"), green, false),
                              makeSwitch(page, QStringLiteral("green"), green, true),
                              makeSwitch(page, QStringLiteral("blue"), blue, true),
                              makeSwitch(page, QStringLiteral("orange"), orange, true) });
    values->addSpacing(6);
    values->addLayout(makeCell(QStringLiteral("OlvSlider"), { makeSlider(60) }));
    grid->addLayout(values, 1, 1);
    grid->addLayout(makeCell(QStringLiteral("OlvLineEdit"),
                             { makeLine(0xf007, QStringLiteral("Li Wei"), false) }),
                    2, 0);
    grid->addLayout(makeCell(QStringLiteral("OlvLineEdit, with a password"),
                             { makeLine(0xf023, QStringLiteral("correct horse"), true) }),
                    2, 1);
    grid->addLayout(makeCell(QStringLiteral("OlvShortcutEdit"), { makeShortcut(page) }), 3, 0);
    grid->addLayout(makeCell(QStringLiteral("OlvSimpleIconButton"),
                             { makeGlyph(page, 0xf006, 0xf005, QStringLiteral("Starred"), true),
                               makeGlyph(page, 0xf09c, 0xf023, QStringLiteral("Locked"), false),
                               makeGlyph(page, 0xf0f6, 0xf15c, QStringLiteral("Note"), false),
                               makeGlyph(page, 0xf0a2, 0xf0f3, QStringLiteral("Alarm"), true) }),
                    3, 1);
    grid->addLayout(makeCell(QStringLiteral("OlvGridLayout"), { makeFlowGrid(page) }), 4, 0);
    grid->addLayout(makeCell(QStringLiteral("OlvFlexWidget; OlvMoveWidget and OlvResizeWidget"),
                             { makeStage() }),
                    4, 1);
    grid->setColumnStretch(1, 1);
    page->content()->addLayout(grid);
    page->content()->addStretch();
    repaintWithFonts(page);
    return page;
}
