// SPDX-License-Identifier: MIT
#include "picture.h"

#include <OlvWidgets/buttons.h>
#include <OlvWidgets/foundation.h>

#include <QLabel>

namespace {

std::function<void()> fillInt(QWidget *stage)
{
    OlvInt page(0);
    page.setRange(3, 0);
    for (int i = 0; i < 6; ++i) {
        auto *button = new OlvButton(QString::number(page), stage);
        button->setOlvStyle(page == 0 ? QStringLiteral("success") : QStringLiteral("primary"),
                            QStringLiteral("round"));
        button->setGeometry(16 + i * 56, 16, 44, 32);
        ++page;
    }
    return {};
}

QWidget *addPanels(QWidget *stage, int x)
{
    QWidget *first = nullptr;
    const struct
    {
        const char *text;
        const char *style;
        QPoint place;
    } panels[] = {
        { "panel", "background: rgb(64,158,255); color: white;", { x, 16 } },
        { "another", "background: rgb(220,223,230);", { x + 48, 40 } },
    };
    for (const auto &panel : panels) {
        auto *label = new QLabel(QLatin1String(panel.text), stage);
        label->setAlignment(Qt::AlignCenter);
        label->setStyleSheet(QLatin1String(panel.style));
        label->setGeometry(QRect(panel.place, QSize(100, 52)));
        if (!first) {
            first = label;
        }
    }
    return first;
}

std::function<void()> fillLastOnceFunction(QWidget *stage)
{
    addPanels(stage, 16);
    QWidget *panel = addPanels(stage, 200);
    return [=] {
        OlvLastOnceFunction([=] { panel->raise(); });
        settle();
    };
}

std::function<void()> fillAutoDestroy(QWidget *stage)
{
    auto *log = new QLabel(stage);
    log->setGeometry(16, 16, 260, 64);
    QStringList lines;
    {
        const OlvAutoDestroy guard;
        OlvAutoDestroy::addDestroy([&] { lines.append(QStringLiteral("places saved")); });
        OlvAutoDestroy::addDestroy([&] { lines.append(QStringLiteral("connection closed")); });
        lines.append(QStringLiteral("the application runs"));
    }
    log->setText(lines.join(QLatin1Char('\n')));
    return {};
}

} // namespace

QVector<Picture> utilityPictures()
{
    return {
        { QStringLiteral("OlvInt"), { 356, 64 }, fillInt },
        { QStringLiteral("OlvLastOnceFunction"), { 364, 108 }, fillLastOnceFunction },
        { QStringLiteral("OlvAutoDestroy"), { 292, 96 }, fillAutoDestroy },
    };
}
