// SPDX-License-Identifier: MIT
#include "colors.h"
#include "page.h"
#include "pages.h"

#include <OlvButton>
#include <OlvFlexWidget>

#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>

#include <functional>

namespace {

OlvFlexWidget *makePanel(QWidget *parent, const QString &text, QSize size)
{
    auto *panel = new OlvFlexWidget(size.width(), size.height(), parent);
    auto *label = new QLabel(text, panel);
    label->setPalette(lightColors()); // the panel is light on every background
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    label->move(24, 24);
    return panel;
}

} // namespace

Page *createFlexPanelPage(QWidget *parent)
{
    auto *page = new Page(
        QStringLiteral("Flex panel"),
        QStringLiteral(
            "OlvFlexWidget: drag a panel anywhere, or its edges at the right and the "
            "bottom. The buttons act on a panel on the desktop, and on the first one here."),
        parent);
    auto *stage = new QWidget;
    stage->setMinimumHeight(270);
    auto *panel = makePanel(stage, QStringLiteral("No header yet"), { 200, 140 });
    panel->setObjectName(QStringLiteral("panel"));
    panel->move(10, 10);
    const struct
    {
        const char *text;
        OlvFlexWidget::HeaderWay way;
        QColor color;
        QPoint place;
    } examples[] = {
        { "HeaderTop", OlvFlexWidget::HeaderTop, QColor(64, 158, 255), { 230, 10 } },
        { "HeaderLeft", OlvFlexWidget::HeaderLeft, QColor(103, 194, 58), { 420, 10 } },
        { "HeaderBottom", OlvFlexWidget::HeaderBottom, QColor(230, 162, 60), { 230, 140 } },
        { "HeaderRight", OlvFlexWidget::HeaderRight, QColor(245, 108, 108), { 420, 140 } },
    };
    for (const auto &example : examples) {
        auto *shown = makePanel(stage, QLatin1String(example.text), { 160, 110 });
        shown->setHeaderWay(example.way, example.color);
        shown->move(example.place);
    }

    const QPointer<OlvFlexWidget> floating(
        makePanel(page, QStringLiteral("On the desktop"), { 240, 160 }));
    floating->setWindowFlags(floating->windowFlags() | Qt::Window);
    const auto show = [=] {
        floating->show();
        page->log(QStringLiteral("stay %1, headerWay %2")
                      .arg(floating->property("stay").toInt())
                      .arg(floating->property("headerWay").toInt()));
    };
    auto *buttons = new QGridLayout;
    buttons->setHorizontalSpacing(10);
    const auto addAction = [=](int row, int column, const char *text,
                               const std::function<void()> &action) {
        auto *button = new OlvButton(QLatin1String(text));
        button->setFixedSize(110, 30);
        buttons->addWidget(button, row, column);
        QObject::connect(button, &OlvButton::clicked, page, [=] {
            action();
            show();
        });
    };
    addAction(0, 0, "StayNormal", [=] { floating->stay(OlvFlexWidget::StayNormal); });
    addAction(0, 1, "StayTop", [=] { floating->stay(OlvFlexWidget::StayTop); });
    addAction(0, 2, "StayBottom", [=] { floating->stay(OlvFlexWidget::StayBottom); });
    addAction(0, 3, "toggleTool()", [=] { floating->toggleTool(); });
    for (int i = 0; i < 4; ++i) {
        const auto &example = examples[i];
        addAction(1, i, example.text, [=] {
            for (OlvFlexWidget *target : { floating.data(), panel }) {
                target->setHeaderWay(example.way, example.color);
                target->update(); // setHeaderWay() repaints nothing
            }
        });
    }
    buttons->setColumnStretch(4, 1);
    page->content()->addLayout(buttons);
    page->content()->addWidget(stage, 1);
    return page;
}
