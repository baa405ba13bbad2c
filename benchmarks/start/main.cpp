// SPDX-License-Identifier: MIT
// Ends as soon as its window is painted for the first time.
#include "../onewindow.h"

#include <QApplication>
#include <QEvent>

#include <cstdlib>

namespace {

/** Ends the program when it sees a paint event, once this has been handled. */
class EndAfterPaint : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            watched->event(event);
            std::_Exit(EXIT_SUCCESS); // taking a program down is not a part of its start
        }
        return false;
    }
};

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QWidget window;
    OLV_MAKE_WIDGETS(&window);
    EndAfterPaint end;
    window.children().last()->installEventFilter(&end); // is painted last
    window.show();
    QApplication::exec();
    return EXIT_FAILURE;
}
