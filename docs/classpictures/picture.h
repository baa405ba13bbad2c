// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QPoint>
#include <QSize>
#include <QString>
#include <QVector>

#include <functional>

class QWidget;

/** The picture of a class: the widgets that a function puts onto a stage. */
struct Picture
{
    QString className;
    QSize size;
    /** Makes the widgets as children of the stage; what it returns is done once they are shown. */
    std::function<std::function<void()>(QWidget *stage)> fill;
};

QVector<Picture> foundationPictures();
QVector<Picture> utilityPictures();
QVector<Picture> buttonPictures();
QVector<Picture> inputPictures();
QVector<Picture> valuePictures();
QVector<Picture> framePictures();
QVector<Picture> containerPictures();
QVector<Picture> formPictures();

/** Lets the event loop run until the time, in milliseconds, is over. */
void settle(int milliseconds = 50);
/** Sends a mouse event of the left button to the widget. */
void sendMouse(QWidget *widget, QEvent::Type type, QPoint position);
/** Presses at one place of the widget, moves by the distance, and releases. */
void drag(QWidget *widget, QPoint from, QPoint distance);
