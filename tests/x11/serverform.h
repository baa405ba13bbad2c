// SPDX-License-Identifier: MIT
#pragma once

#include "widgetform.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

/** A dialog with a form of all the library's widgets, which has a support. */
class ServerForm : public QDialog
{
public:
    ServerForm()
        : form(new WidgetForm)
        , viewport(new QWidget)
        , grid(new OlvGridLayout(viewport))
        , news(addTile(QLatin1Char('N')))
        , chat(addTile(QLatin1Char('C')))
        , bar(new OlvControlBar({}, nullptr))
        , support(new OlvFormSupport(this))
    {
        viewport->setFixedSize(240, 90);
        grid->resize(viewport->size());
        grid->setMargin(4);
        grid->addWidget(QList<QWidget *>{ news, chat });
        auto *label = new QLabel(QStringLiteral("&Tiles"));
        label->setBuddy(news);
        form->rows()->addRow(label, viewport);
        form->rows()->addRow(QStringLiteral("&Bar"), bar);
        (new QVBoxLayout(this))->addWidget(form);
    }

    /** The widgets that Tab leads to, in this order. */
    QWidgetList stops() const
    {
        QWidgetList all{ form->name->lineEdit(),
                         form->password->lineEdit(),
                         form->shortcut,
                         form->wifi,
                         form->volume,
                         form->star,
                         form->mail,
                         form->save,
                         news,
                         chat };
        const QList<QPushButton *> buttons = bar->findChildren<QPushButton *>();
        for (QPushButton *button : buttons) {
            all.append(button);
        }
        return all;
    }

    WidgetForm *const form;
    QWidget *const viewport;
    OlvGridLayout *const grid;
    OlvIconButton *const news;
    OlvIconButton *const chat;
    OlvControlBar *const bar;
    OlvFormSupport *const support;

private:
    OlvIconButton *addTile(QChar glyph)
    {
        return new OlvIconButton(glyph, QStringLiteral("Tile"), QStringLiteral("Sans"), grid, 80,
                                 80);
    }
};
