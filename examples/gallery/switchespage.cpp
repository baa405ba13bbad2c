// SPDX-License-Identifier: MIT
#include "page.h"
#include "pages.h"

#include <OlvSwitch>

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

struct Example
{
    QString name;
    QString text;
    QSize size;
    bool on;
    QColor off;
    QColor whenOn;
    QColor knob;
};

OlvSwitch *makeSwitch(Page *page, const Example &example)
{
    auto *toggle = new OlvSwitch(page);
    toggle->setObjectName(example.name);
    toggle->setFixedSize(example.size);
    toggle->setColorOpen(example.off);
    toggle->setColorClose(example.whenOn);
    toggle->setColorRound(example.knob);
    QObject::connect(toggle, &OlvWidget::valueChanged, page, [=](const QVariant &value) {
        page->log(QStringLiteral("%1: valueChanged(%2)").arg(example.name, value.toString()));
    });
    QObject::connect(toggle, &OlvSwitch::changed, page, [=](bool on) {
        page->log(QStringLiteral("%1: changed(%2)")
                      .arg(example.name, on ? QStringLiteral("true") : QStringLiteral("false")));
    });
    if (example.on) {
        toggle->setValue(true);
    }
    return toggle;
}

} // namespace

Page *createSwitchesPage(QWidget *parent)
{
    auto *page = new Page(
        QStringLiteral("Switches"),
        QStringLiteral("OlvSwitch: click one. It slides for a quarter of a second, and then tells "
                       "valueChanged() and changed()."),
        parent);
    const QColor grey(220, 223, 230);
    const QColor green(19, 206, 102);
    const QVector<Example> examples{
        { QStringLiteral("switch"),
          QStringLiteral("Off at first"),
          { 50, 24 },
          false,
          grey,
          green,
          Qt::white },
        { QStringLiteral("switchOn"),
          QStringLiteral("Switched on from code"),
          { 50, 24 },
          true,
          grey,
          green,
          Qt::white },
        { QStringLiteral("blueSwitch"),
          QStringLiteral("Colours of its own"),
          { 50, 24 },
          true,
          QColor(245, 108, 108),
          QColor(64, 158, 255),
          Qt::white },
        { QStringLiteral("darkSwitch"),
          QStringLiteral("A dark knob"),
          { 50, 24 },
          false,
          grey,
          QColor(230, 162, 60),
          QColor(48, 49, 51) },
        { QStringLiteral("smallSwitch"),
          QStringLiteral("28 by 14 pixels"),
          { 28, 14 },
          false,
          grey,
          green,
          Qt::white },
        { QStringLiteral("largeSwitch"),
          QStringLiteral("100 by 40 pixels"),
          { 100, 40 },
          true,
          grey,
          green,
          Qt::white },
        { QStringLiteral("squareSwitch"),
          QStringLiteral("As wide as high: only its colour changes"),
          { 30, 30 },
          false,
          grey,
          green,
          Qt::white },
    };
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(16);
    for (int row = 0; row < examples.size(); ++row) {
        grid->addWidget(new QLabel(examples.at(row).text), row, 0);
        grid->addWidget(makeSwitch(page, examples.at(row)), row, 1);
    }
    grid->setColumnStretch(2, 1);
    page->content()->addLayout(grid);
    page->content()->addStretch();
    return page;
}
