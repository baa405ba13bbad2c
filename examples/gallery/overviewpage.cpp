// SPDX-License-Identifier: MIT
#include "colors.h"
#include "page.h"
#include "pages.h"

#include <OlvWidgets/OlvWidgets>

#include <QAccessible>
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
constexpr int barWidth = 250;
constexpr QSize switchSize(50, 24);
constexpr QSize gridSize(366, 126);
constexpr QSize panelSize(176, 118);
constexpr int pollInterval = 20; // milliseconds
const QColor blue(64, 158, 255);
const QColor orange(230, 162, 60);
const QColor red(245, 108, 108);

QString iconFamily()
{
    return QStringLiteral("FontAwesome");
}

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

QWidget *makeStar(Page *page)
{
    auto *star = new OlvSimpleIconButton(QChar(0xf006), QFont(iconFamily(), 14));
    star->setFixedSize(star->size());
    star->setToggle(QChar(0xf005));
    star->setToolTip(QStringLiteral("Starred"));
    QObject::connect(star, &QPushButton::clicked, page,
                     [=] { page->log(QStringLiteral("OlvSimpleIconButton: clicked()")); });
    return star;
}

QWidget *makeLine(ushort glyph, const QString &text, bool isPassword)
{
    auto *line = new OlvLineEdit;
    line->setFixedSize(lineSize);
    // the text is the application's colour, the line white whatever that is
    line->findChild<QLineEdit *>()->setPalette(lightColors());
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

QWidget *makeSwitch(Page *page, const QColor &whenOn, bool on)
{
    auto *toggle = new OlvSwitch;
    toggle->setFixedSize(switchSize);
    toggle->setColorClose(whenOn);
    toggle->setValue(on);
    QObject::connect(toggle, &OlvSwitch::changed, page, [=](bool value) {
        page->log(QStringLiteral("OlvSwitch: changed(%1)")
                      .arg(value ? QStringLiteral("true") : QStringLiteral("false")));
    });
    return toggle;
}

/** A slider at that percentage; setValue() alone would leave its knob at the left. */
QWidget *makeSlider(int percentage)
{
    auto *slider = new OlvSlider;
    slider->setFixedSize(slider->size());
    QAccessible::queryAccessibleInterface(slider)->valueInterface()->setCurrentValue(percentage);
    return slider;
}

QWidget *makeBar(Page *page)
{
    // the six window buttons, "restore", and the application's: a cog and a question mark
    auto *bar = new OlvControlBar(
        { 0xf08e, 0xf103, 0xf102, 0xf2d1, 0xf2d0, 0xf00d, 0xf2d2, 0xf013, 0xf128 }, nullptr,
        { QStringLiteral("Settings"), QStringLiteral("Help") });
    bar->setFixedWidth(barWidth);
    QObject::connect(bar, &OlvControlBar::changed, page,
                     [=] { page->log(QStringLiteral("OlvControlBar: changed()")); });
    QObject::connect(bar, &OlvControlBar::custom, page,
                     [=] { page->log(QStringLiteral("OlvControlBar: custom()")); });
    return bar;
}

QWidget *makeFlowGrid(Page *page)
{
    auto *viewport = new QWidget(page); // without a parent it would be a window to the grid
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

/** Shows the glyphs once the icon font, which is registered in the background, is there. */
void repaintWithFonts(Page *page)
{
    auto *poll = new QTimer(page);
    QObject::connect(poll, &QTimer::timeout, page, [=] {
        if (OlvGlobal::isReady()) {
            poll->stop();
            const QList<QWidget *> widgets = page->findChildren<QWidget *>();
            for (QWidget *widget : widgets) {
                widget->update();
            }
        }
    });
    poll->start(pollInterval);
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
    grid->addLayout(
        makeCell(QStringLiteral("OlvIconButton, OlvSimpleIconButton"),
                 { makeTile(page, 0xf0e0, QStringLiteral("Mail"), blue, false),
                   makeTile(page, 0xf1eb, QStringLiteral("网络"), blue, true),
                   makeTile(page, 0xf004, QStringLiteral("Likes"), red, true), makeStar(page) }),
        1, 0);
    grid->addLayout(makeCell(QStringLiteral("OlvSwitch"),
                             { makeSwitch(page, green, false), makeSwitch(page, green, true),
                               makeSwitch(page, blue, true), makeSwitch(page, orange, true) }),
                    1, 1);
    grid->addLayout(makeCell(QStringLiteral("OlvLineEdit"),
                             { makeLine(0xf007, QStringLiteral("Li Wei"), false) }),
                    2, 0);
    grid->addLayout(makeCell(QStringLiteral("OlvLineEdit, with a password"),
                             { makeLine(0xf023, QStringLiteral("correct horse"), true) }),
                    2, 1);
    grid->addLayout(makeCell(QStringLiteral("OlvShortcutEdit"), { makeShortcut(page) }), 3, 0);
    grid->addLayout(makeCell(QStringLiteral("OlvSlider"), { makeSlider(60) }), 3, 1);
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
