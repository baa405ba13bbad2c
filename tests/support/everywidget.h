// SPDX-License-Identifier: MIT
#pragma once

#include <OlvMoveWidget>
#include <OlvResizeWidget>
#include <OlvWidgets>

#include <QVector>

/** A kind of widget, with something in it to draw. */
struct WidgetKind
{
    const char *name;
    QWidget *(*make)(QWidget *parent);
};

/** Every widget of the library. The flow grid comes within a viewport, filled and empty. */
inline const QVector<WidgetKind> &everyWidget()
{
    static const auto makeGrid = [](QWidget *parent, bool isFilled) -> QWidget * {
        auto *viewport = new QWidget(parent);
        viewport->resize(200, 100);
        auto *grid = new OlvGridLayout(viewport);
        grid->resize(viewport->size());
        if (isFilled) {
            grid->addWidget({ new OlvButton(QStringLiteral("tile"), grid),
                              new OlvIconButton(QLatin1Char('a'), QStringLiteral("tile"),
                                                QStringLiteral("FontAwesome"), grid, 80, 80) });
        }
        return viewport;
    };
    static const QVector<WidgetKind> all{
        { "OlvButton",
          [](QWidget *parent) -> QWidget * {
              return new OlvButton(QStringLiteral("text"), parent);
          } },
        { "OlvIconButton",
          [](QWidget *parent) -> QWidget * {
              return new OlvIconButton(QLatin1Char('a'), QStringLiteral("text"),
                                       QStringLiteral("FontAwesome"), parent, 80, 80);
          } },
        { "OlvSimpleIconButton",
          [](QWidget *parent) -> QWidget * {
              auto *button = new OlvSimpleIconButton(QStringLiteral("a"), QFont(), parent);
              button->setToggle(QStringLiteral("b"));
              return button;
          } },
        { "OlvLineEdit",
          [](QWidget *parent) -> QWidget * {
              auto *line = new OlvLineEdit(parent);
              line->setIcon(QStringLiteral("a"));
              line->setText(QStringLiteral("text"));
              line->setPassWord(true);
              return line;
          } },
        { "OlvShortcutEdit",
          [](QWidget *parent) -> QWidget * {
              return new OlvShortcutEdit(parent);
          } },
        { "OlvSwitch",
          [](QWidget *parent) -> QWidget * {
              return new OlvSwitch(parent);
          } },
        { "OlvSlider",
          [](QWidget *parent) -> QWidget * {
              return new OlvSlider(parent);
          } },
        { "OlvControlBar",
          [](QWidget *parent) -> QWidget * {
              return new OlvControlBar({ u'a', u'b', u'c', u'd', u'e', u'f', u'g', u'h' }, parent,
                                       { QStringLiteral("tip") });
          } },
        { "OlvDragWidget",
          [](QWidget *parent) -> QWidget * {
              return new OlvDragWidget(parent);
          } },
        { "moved and resized widget",
          [](QWidget *parent) {
              auto *target = new QWidget(parent);
              target->resize(200, 100);
              (new OlvMoveWidget(target))->setMoveArea(QRect());
              new OlvResizeWidget(target, 5);
              return target;
          } },
        { "OlvGridLayout",
          [](QWidget *parent) {
              return makeGrid(parent, true);
          } },
        { "OlvGridLayout, empty",
          [](QWidget *parent) {
              return makeGrid(parent, false);
          } },
        { "OlvFlexWidget",
          [](QWidget *parent) -> QWidget * {
              auto *panel = new OlvFlexWidget(200, 100, parent);
              panel->setHeaderWay(OlvFlexWidget::HeaderTop, Qt::red);
              return panel;
          } },
    };
    return all;
}
