// SPDX-License-Identifier: MIT
#include "page.h"
#include "pages.h"

#include <OlvSlider>
#include <OlvValueDelegate>

#include <QDataWidgetMapper>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace {

OlvSlider *addSlider(Page *page, const QString &name, int width)
{
    auto *slider = new OlvSlider;
    slider->setObjectName(name);
    slider->setFixedWidth(width);
    page->content()->addWidget(slider);
    return slider;
}

} // namespace

Page *createSlidersPage(QWidget *parent)
{
    auto *page = new Page(
        QStringLiteral("Sliders"),
        QStringLiteral("OlvSlider: drag the knob. The value is a percentage, read with getValue(); "
                       "setting it from code leaves the knob where it is."),
        parent);
    // a drag emits no signal: a model that the slider is mapped to tells how it has ended
    auto *values = new QStandardItemModel(1, 0, page);
    auto *mapper = new QDataWidgetMapper(page);
    mapper->setModel(values);
    mapper->setItemDelegate(new OlvValueDelegate(mapper));
    struct Example
    {
        const char *heading;
        const char *name;
        int width;
    };
    for (const Example &example : { Example{ "As it comes, 200 pixels wide", "slider", 200 },
                                    Example{ "480 pixels wide", "wideSlider", 480 },
                                    Example{ "80 pixels wide", "narrowSlider", 80 } }) {
        page->addHeading(QLatin1String(example.heading));
        const QString name = QLatin1String(example.name);
        const int column = values->columnCount();
        values->appendColumn({ new QStandardItem });
        values->setHeaderData(column, Qt::Horizontal, name);
        mapper->addMapping(addSlider(page, name, example.width), column);
    }
    mapper->toFirst();
    QObject::connect(
        values, &QStandardItemModel::itemChanged, page, [=](const QStandardItem *item) {
            const QString name = values->headerData(item->column(), Qt::Horizontal).toString();
            page->log(QStringLiteral("%1: %2").arg(name, item->text()));
        });
    page->addHeading(QStringLiteral("Disabled"));
    addSlider(page, QStringLiteral("disabledSlider"), 200)->setEnabled(false);
    page->content()->addStretch();
    return page;
}
