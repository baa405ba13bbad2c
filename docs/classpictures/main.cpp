// SPDX-License-Identifier: MIT
#include "picture.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QPixmap>
#include <QTextStream>
#include <QThread>
#include <QWidget>

void settle(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) {
        QApplication::processEvents();
        QThread::msleep(1);
    }
}

void sendMouse(QWidget *widget, QEvent::Type type, QPoint position)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons held =
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, position, widget->mapToGlobal(position), button, held, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

void drag(QWidget *widget, QPoint from, QPoint distance)
{
    sendMouse(widget, QEvent::MouseButtonPress, from);
    sendMouse(widget, QEvent::MouseMove, from + distance);
    // the widget may have moved with the pointer
    sendMouse(widget, QEvent::MouseButtonRelease, from);
}

namespace {

bool write(const Picture &picture, const QDir &folder)
{
    QWidget stage;
    stage.setFixedSize(picture.size);
    stage.setStyleSheet(QStringLiteral("QLabel { color: rgb(96,98,102); font-size: 12px; }"));
    QPalette white;
    white.setColor(QPalette::Window, Qt::white);
    stage.setPalette(white);
    const std::function<void()> act = picture.fill(&stage);
    stage.show();
    settle();
    if (act) {
        act();
    }
    return stage.grab().save(folder.filePath(picture.className + QLatin1String(".png")));
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QTextStream errors(stderr);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 2 || !QDir().mkpath(arguments.last())) {
        errors << "Usage: classpictures FOLDER\n\n"
                  "Writes a picture of each public class to the folder.\n";
        return 2;
    }
    // the utilities come last: theirs ends the process-wide list of clean-up callables
    const QVector<Picture> pictures = buttonPictures() + inputPictures() + valuePictures()
        + framePictures() + containerPictures() + formPictures() + foundationPictures()
        + utilityPictures();
    for (const Picture &picture : pictures) {
        if (!write(picture, QDir(arguments.last()))) {
            errors << "The picture of " << picture.className << " could not be written\n";
            return 1;
        }
    }
    return 0;
}
