// SPDX-License-Identifier: MIT
#include "picture.h"

#include <OlvWidgets/foundation.h>

#include <QLabel>

namespace {

std::function<void()> fillGlobal(QWidget *stage)
{
    const QString text = QStringLiteral("Every caption finds the size at which it fits");
    int x = 16;
    for (const QSize &size : { QSize(180, 90), QSize(120, 60), QSize(70, 90) }) {
        auto *box = new QLabel(text, stage);
        box->setGeometry(QRect(QPoint(x, 16), size));
        box->setWordWrap(true);
        QFont font(QStringLiteral("DejaVu Sans"), 20);
        font.setPointSize(OlvGlobal::adaptDocumentToPointSize(text, size, font));
        box->setStyleSheet(QStringLiteral("background: rgb(236,245,255); font: %1pt \"%2\";")
                               .arg(font.pointSize())
                               .arg(font.family()));
        x += size.width() + 16;
    }
    return {};
}

QLabel *addLink(QWidget *stage, int x)
{
    auto *link = new QLabel(QStringLiteral("not visited yet"), stage);
    link->setGeometry(x, 16, 130, 32);
    link->setAlignment(Qt::AlignCenter);
    link->setStyleSheet(QStringLiteral("color: rgb(64,158,255); background: rgb(236,245,255);"));
    auto *filter = new OlvPluginEventFilter(link);
    filter->addEventListener(QEvent::MouseButtonRelease,
                             [=](QEvent *) { link->setText(QStringLiteral("visited")); });
    return link;
}

std::function<void()> fillPluginEventFilter(QWidget *stage)
{
    addLink(stage, 16);
    QLabel *clicked = addLink(stage, 162);
    return [=] {
        drag(clicked, { 10, 10 }, { 0, 0 });
    };
}

} // namespace

QVector<Picture> foundationPictures()
{
    return {
        { QStringLiteral("OlvGlobal"), { 434, 122 }, fillGlobal },
        { QStringLiteral("OlvPluginEventFilter"), { 308, 64 }, fillPluginEventFilter },
    };
}
