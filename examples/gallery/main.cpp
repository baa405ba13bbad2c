// SPDX-License-Identifier: MIT
#include "colors.h"
#include "framelesswindow.h"
#include "gallerywindow.h"

#include <OlvGlobal>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QTextStream>

#include <memory>

int main(int argc, char **argv)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling); // Qt 6 always does
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
    // a scale factor of 1.5 is not rounded
    QApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
#endif
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("OlvWidgets gallery"));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Shows every widget of the library, live, with its signals as they come."));
    parser.addHelpOption();
    const QCommandLineOption page(QStringLiteral("page"), QStringLiteral("Open the page NAME."),
                                  QStringLiteral("NAME"));
    const QCommandLineOption screenshots(
        QStringLiteral("screenshots"),
        QStringLiteral("Write a PNG of every page, or of the one that --page names, to the folder "
                       "DIR, and exit."),
        QStringLiteral("DIR"));
    const QCommandLineOption frameless(
        QStringLiteral("frameless"),
        QStringLiteral("Run in a window without a frame, of the library's own widgets."));
    const QCommandLineOption dark(QStringLiteral("dark"),
                                  QStringLiteral("Put the widgets on a dark background."));
    const QCommandLineOption rightToLeft(
        QStringLiteral("right-to-left"),
        QStringLiteral("Lay everything out from the right to the left."));
    parser.addOptions({ page, screenshots, frameless, dark, rightToLeft });
    parser.process(application);
    if (parser.isSet(rightToLeft)) {
        QApplication::setLayoutDirection(Qt::RightToLeft);
    }

    // The font job looks for "Font" and "fonts", which lie beside the program, in the current
    // folder. A relative path on the command line refers to the folder before the change.
    const QString pictures = QDir().absoluteFilePath(parser.value(screenshots));
    QDir::setCurrent(QApplication::applicationDirPath());
    OlvGlobal::init();

    // set on the application, since widgets with a style sheet ignore the palette of their window
    QApplication::setPalette(parser.isSet(dark) ? darkColors() : lightColors());

    QTextStream errors(stderr);
    auto *gallery = new GalleryWindow;
    std::unique_ptr<QWidget> window;
    if (parser.isSet(frameless)) {
        window = std::make_unique<FramelessWindow>(gallery->windowTitle(), gallery);
    } else {
        window.reset(gallery);
    }
    if (parser.isSet(page) && !gallery->showPage(parser.value(page))) {
        errors << "There is no page \"" << parser.value(page)
               << "\". The pages are: " << gallery->pageNames().join(QStringLiteral(", ")) << '\n';
        return 1;
    }
    window->show();
    if (parser.isSet(screenshots)) {
        const QStringList pages =
            parser.isSet(page) ? QStringList(parser.value(page)) : gallery->pageNames();
        if (!gallery->writePictures(pictures, pages)) {
            errors << "The pictures could not be written to " << pictures << '\n';
            return 1;
        }
        return 0;
    }
    return QApplication::exec();
}
