// SPDX-License-Identifier: MIT
#include "page.h"
#include "pages.h"

#include <OlvSlider>

#include <QLabel>
#include <QVBoxLayout>

namespace {

/** Dragging emits no signal, so this slider overrides setValue() to follow it. */
class LoggedSlider : public OlvSlider
{
public:
    LoggedSlider(Page *page, const QString &name, int width)
        : OlvSlider(page)
        , m_page(page)
        , m_name(name)
    {
        setObjectName(name);
        setFixedWidth(width);
    }

    void setValue(const QVariant &value) override
    {
        OlvSlider::setValue(value);
        m_page->log(QStringLiteral("%1: setValue(%2)").arg(m_name).arg(value.toInt()));
    }

private:
    Page *m_page;
    QString m_name;
};

} // namespace

Page *createSlidersPage(QWidget *parent)
{
    auto *page = new Page(
        QStringLiteral("Sliders"),
        QStringLiteral("OlvSlider: drag the knob. The value is a percentage, read with getValue(); "
                       "setting it from code leaves the knob where it is."),
        parent);
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
        page->content()->addWidget(
            new LoggedSlider(page, QLatin1String(example.name), example.width));
    }
    page->addHeading(QStringLiteral("Disabled"));
    auto *disabled = new LoggedSlider(page, QStringLiteral("disabledSlider"), 200);
    disabled->setEnabled(false);
    page->content()->addWidget(disabled);
    page->content()->addStretch();
    return page;
}
