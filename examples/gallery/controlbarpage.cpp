// SPDX-License-Identifier: MIT
#include "page.h"
#include "pages.h"

#include <OlvControlBar>
#include <OlvMoveWidget>
#include <OlvResizeWidget>

#include <QLabel>
#include <QVBoxLayout>

namespace {

QString nameOf(OlvControlBar::WindowState state)
{
    switch (state) {
    case OlvControlBar::Float:
        return QStringLiteral("Float");
    case OlvControlBar::Bottom:
        return QStringLiteral("Bottom");
    case OlvControlBar::Top:
        return QStringLiteral("Top");
    case OlvControlBar::Min:
        return QStringLiteral("Min");
    case OlvControlBar::Max:
        return QStringLiteral("Max");
    case OlvControlBar::Close:
        return QStringLiteral("Close");
    }
    return QString();
}

/** A box to move by its upper part and to resize by its edges. */
QWidget *makeMovableBox(QWidget *stage)
{
    auto *box = new QLabel(QStringLiteral("OlvMoveWidget and OlvResizeWidget:\n"
                                          "drag me, or my edges at the right and the bottom"),
                           stage);
    box->setAlignment(Qt::AlignCenter);
    box->setStyleSheet(
        QStringLiteral("QLabel { background: rgb(236,245,255); color: rgb(64,158,255);"
                       "border: 1px solid rgb(179,216,255); }"));
    box->setGeometry(20, 20, 360, 130);
    box->setMinimumSize(120, 50);
    auto *mover = new OlvMoveWidget(box);
    mover->setMoveArea(QRect());
    new OlvResizeWidget(box, 6);
    return box;
}

} // namespace

Page *createControlBarPage(QWidget *parent)
{
    auto *page =
        new Page(QStringLiteral("Control bar"),
                 QStringLiteral(
                     "OlvControlBar: three buttons of the application's, then the six of a window. "
                     "It only tells; start the gallery with --frameless to see one that acts."),
                 parent);
    // the six window buttons, "restore", and the application's: a cog, a bell, a question mark
    const QList<QChar> glyphs{ u'\uf08e', u'\uf103', u'\uf102', u'\uf2d1', u'\uf2d0',
                               u'\uf00d', u'\uf2d2', u'\uf013', u'\uf0f3', u'\uf128' };
    auto *bar = new OlvControlBar(
        glyphs, page,
        { QStringLiteral("Settings"), QStringLiteral("Messages"), QStringLiteral("Help") });
    bar->setObjectName(QStringLiteral("bar"));
    QObject::connect(
        bar, &OlvControlBar::changed, page, [=](OlvControlBar::WindowState state, bool checked) {
            page->log(QStringLiteral("changed(%1, %2)")
                          .arg(nameOf(state),
                               checked ? QStringLiteral("true") : QStringLiteral("false")));
        });
    QObject::connect(bar, &OlvControlBar::custom, page,
                     [=](int index) { page->log(QStringLiteral("custom(%1)").arg(index)); });
    page->content()->addWidget(bar);
    page->content()->addSpacing(16);

    auto *stage = new QWidget;
    stage->setMinimumHeight(240);
    makeMovableBox(stage);
    page->content()->addWidget(stage, 1);
    return page;
}
