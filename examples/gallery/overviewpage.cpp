// SPDX-License-Identifier: MIT
#include "page.h"
#include "pages.h"

#include <OlvWidgets/OlvWidgets>

#include <QGridLayout>
#include <QVBoxLayout>

namespace {

constexpr int columnSpacing = 28;
constexpr QSize buttonSize(90, 34);

/** Something at the top of a cell of the page's grid. */
QVBoxLayout *cell(QWidget *widget)
{
    auto *layout = new QVBoxLayout;
    layout->addWidget(widget);
    layout->addStretch();
    return layout;
}

QWidget *makeButtons()
{
    auto *box = new QWidget;
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    int row = 0;
    for (const char *type : { "", "plain", "round" }) {
        int column = 0;
        for (const char *scheme : { "primary", "success", "warning", "danger" }) {
            auto *button = new OlvButton(QLatin1String(scheme));
            button->setOlvStyle(QLatin1String(scheme), QLatin1String(type));
            button->setFixedSize(buttonSize);
            grid->addWidget(button, row, column++);
        }
        ++row;
    }
    grid->setColumnStretch(4, 1);
    return box;
}

QWidget *makeTiles()
{
    auto *viewport = new QWidget;
    viewport->setFixedSize(348, 180);
    auto *grid = new OlvGridLayout(viewport);
    grid->resize(viewport->size());
    QList<QWidget *> tiles;
    const struct
    {
        ushort glyph;
        const char *text;
    } entries[] = { { 0xf0e0, "Mail" },  { 0xf073, "Calendar" }, { 0xf001, "Music" },
                    { 0xf07b, "Files" }, { 0xf120, "Terminal" }, { 0xf03d, "Videos" },
                    { 0xf013, "Setup" }, { 0xf1ec, "Sums" } };
    for (const auto &entry : entries) {
        tiles << new OlvIconButton(QChar(entry.glyph), QLatin1String(entry.text),
                                   QStringLiteral("FontAwesome"), grid, 68, 68);
    }
    grid->addWidget(tiles);
    return viewport;
}

QWidget *makeValues()
{
    auto *box = new QWidget;
    box->setFixedHeight(110);
    for (int i = 0; i < 3; ++i) {
        auto *toggle = new OlvSwitch(box);
        toggle->setGeometry(i * 70, 6, 52, 26);
        toggle->setValue(i > 0);
        if (i == 2) {
            toggle->setColorClose(QColor(64, 158, 255));
        }
    }
    auto *slider = new OlvSlider(box);
    slider->setGeometry(0, 50, 300, 30);
    return box;
}

QWidget *makeInput()
{
    auto *box = new QWidget;
    box->setFixedSize(380, 130);
    auto *name = new OlvLineEdit(box);
    name->setGeometry(0, 0, 330, 32);
    name->setIcon(QString(QChar(0xf007)));
    name->setPlaceholderText(QStringLiteral("Name"));
    auto *password = new OlvLineEdit(box);
    password->setGeometry(0, 44, 330, 32);
    password->setIcon(QString(QChar(0xf023)));
    password->setPwdIcon(QString(QChar(0xf070)), QString(QChar(0xf06e)));
    password->setPassWord(true);
    password->setText(QStringLiteral("secret"));
    auto *shortcut = new OlvShortcutEdit(box);
    shortcut->setGeometry(0, 88, 200, 32);
    auto *star =
        new OlvSimpleIconButton(QChar(0xf006), QFont(QStringLiteral("FontAwesome"), 14), box);
    star->setToggle(QChar(0xf005));
    star->setToolTip(QStringLiteral("Keep"));
    star->move(215, 88);
    return box;
}

QWidget *makeWindow()
{
    auto *box = new QWidget;
    box->setFixedSize(348, 150);
    auto *panel = new OlvFlexWidget(340, 140, box);
    panel->setHeaderWay(OlvFlexWidget::HeaderTop, QColor(64, 158, 255));
    auto *bar =
        new OlvControlBar({ 0xf08e, 0xf103, 0xf102, 0xf2d1, 0xf2d0, 0xf00d, 0xf2d2, 0xf013 }, panel,
                          { QStringLiteral("Settings") });
    bar->setGeometry(8, 14, 324, 25);
    return box;
}

} // namespace

Page *createOverviewPage(QWidget *parent)
{
    auto *page = new Page(
        QStringLiteral("Overview"),
        QStringLiteral("Every widget of the library, as it comes. The other pages have one each."),
        parent);
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(columnSpacing);
    grid->setVerticalSpacing(18);
    grid->addLayout(cell(makeButtons()), 0, 0);
    grid->addLayout(cell(makeTiles()), 0, 1, 2, 1);
    grid->addLayout(cell(makeValues()), 1, 0);
    grid->addLayout(cell(makeInput()), 2, 0);
    grid->addLayout(cell(makeWindow()), 2, 1);
    page->content()->addLayout(grid);
    page->content()->addStretch();
    return page;
}
