// SPDX-License-Identifier: MIT
// Loads a form with a switch, whose class only the Designer plugin knows.
#include <QApplication>
#include <QBuffer>
#include <QTextStream>
#include <QUiLoader>
#include <QWidget>

#include <memory>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QBuffer form;
    form.setData("<ui version=\"4.0\"><class>Form</class>"
                 "<widget class=\"OlvSwitch\" name=\"wifi\"/>"
                 "</ui>");
    form.open(QIODevice::ReadOnly);

    const std::unique_ptr<QWidget> wifi(QUiLoader().load(&form));
    const QString kind =
        wifi ? QString::fromLatin1(wifi->metaObject()->className()) : QStringLiteral("nothing");
    QTextStream(stdout) << "loaded: " << kind << '\n';
    return kind == QLatin1String("OlvSwitch") ? 0 : 1;
}
