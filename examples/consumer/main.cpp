// SPDX-License-Identifier: MIT
// The smallest program that uses the installed package: shows a slider, or with --check prints its
// value and exits.
#include <OlvSlider>
#include <OlvWidgets/OlvGlobal>
#include <OlvWidgets/OlvSlider>
#include <OlvWidgets/OlvWidgets>
#include <OlvWidgets/value.h>

#include <QApplication>
#include <QTextStream>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    OlvGlobal::init();

    OlvSlider slider;
    slider.setValue(42);
    slider.show();
    if (application.arguments().contains(QStringLiteral("--check"))) {
        QTextStream(stdout) << "slider at " << slider.getValue().toInt() << '\n';
        return 0;
    }
    return application.exec();
}
