// SPDX-License-Identifier: MIT
#include "page.h"
#include "pages.h"

#include <OlvButton>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr QSize cellSize(84, 28);
constexpr QSize liveSize(130, 36);

struct State
{
    QString heading;
    QString state;
    bool checked;
};

QLabel *makeCaption(const QString &text)
{
    auto *label = new QLabel(text);
    label->setStyleSheet(QStringLiteral("font-size: 11px; color: rgb(144,147,153);"));
    return label;
}

/** A button that shows a state without a mouse: its look follows its properties. */
OlvButton *makePicture(const QString &color, const QString &type, const State &state)
{
    auto *button = new OlvButton(color);
    button->setFixedSize(cellSize);
    button->setOlvStyle(color, type)->setChecked(state.checked);
    button->setProperty("state", state.state);
    button->setAttribute(Qt::WA_TransparentForMouseEvents);
    return button;
}

QGridLayout *makePictures()
{
    const QVector<State> states{
        { QStringLiteral("rest"), QStringLiteral("init"), false },
        { QStringLiteral("hover"), QStringLiteral("hover"), false },
        { QStringLiteral("pressed"), QStringLiteral("click"), false },
        { QStringLiteral("checked"), QStringLiteral("init"), true },
    };
    const QStringList colors{ QStringLiteral("primary"), QStringLiteral("success"),
                              QStringLiteral("warning"), QStringLiteral("danger") };
    const QStringList types{ QString(), QStringLiteral("plain"), QStringLiteral("round") };

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(6);
    for (int type = 0; type < types.size(); ++type) {
        const QString name = types.at(type).isEmpty() ? QStringLiteral("default") : types.at(type);
        for (int state = 0; state < states.size(); ++state) {
            const int row = 1 + type * int(states.size()) + state;
            grid->setRowMinimumHeight(row, cellSize.height() - 4);
            grid->addWidget(makeCaption(name + QLatin1String(", ") + states.at(state).heading), row,
                            0);
            for (int color = 0; color < colors.size(); ++color) {
                grid->addWidget(makePicture(colors.at(color), types.at(type), states.at(state)),
                                row, 1 + color);
            }
        }
    }
    grid->setColumnStretch(int(colors.size()) + 1, 1);
    return grid;
}

void addLive(Page *page, QVBoxLayout *column, OlvButton *button, const QString &name)
{
    button->setObjectName(name);
    button->setFixedSize(liveSize);
    column->addWidget(button);
    QObject::connect(button, &OlvButton::clicked, page,
                     [=] { page->log(name + QLatin1String(": clicked()")); });
    QObject::connect(button, &OlvButton::toggled, page, [=](bool checked) {
        page->log(QStringLiteral("%1: toggled(%2)")
                      .arg(name, checked ? QStringLiteral("true") : QStringLiteral("false")));
    });
}

} // namespace

Page *createButtonsPage(QWidget *parent)
{
    auto *page = new Page(QStringLiteral("Buttons"),
                          QStringLiteral("OlvButton: every scheme and shape in its four looks, and "
                                         "live ones to hover, press and click with any button."),
                          parent);
    auto *live = new QVBoxLayout;
    live->setSpacing(10);
    live->addWidget(makeCaption(QStringLiteral("Live")));

    addLive(page, live, new OlvButton(QStringLiteral("Click me")), QStringLiteral("button"));

    auto *plain = new OlvButton(QStringLiteral("Plain"));
    plain->setOlvStyle(QStringLiteral("success"), QStringLiteral("plain"));
    addLive(page, live, plain, QStringLiteral("plainButton"));

    auto *checkable = new OlvButton(QStringLiteral("Checkable"));
    checkable->setOlvStyle(QStringLiteral("warning"), QStringLiteral("round"))->setCheckable(true);
    addLive(page, live, checkable, QStringLiteral("checkableButton"));

    auto *chinese = new OlvButton(QStringLiteral("确定"));
    chinese->setOlvStyle(QStringLiteral("danger"), QString());
    addLive(page, live, chinese, QStringLiteral("chineseButton"));

    auto *shrunk = new OlvButton(QStringLiteral("Three lines\nhave to shrink\nuntil they fit"));
    addLive(page, live, shrunk, QStringLiteral("shrunkButton"));
    live->addStretch();

    auto *row = new QHBoxLayout;
    row->addLayout(makePictures(), 1);
    row->addLayout(live);
    row->addSpacing(20);
    page->content()->addLayout(row);
    page->content()->addStretch();
    return page;
}
