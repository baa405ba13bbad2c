// SPDX-License-Identifier: MIT
#include <OlvWidgets/foundation.h>

#include <QDir>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>

#include <thread>

// Created first, so that it exists for whatever the library's other statics might do.
OlvAutoDestroy *OlvAutoDestroy::SINGLEGLOBAL = new OlvAutoDestroy;

QHash<QString, int> OlvGlobal::OlvPluginFonts;
QSize OlvGlobal::desktopSize;
double OlvGlobal::DPI = 0.0;

namespace {

constexpr int suffixLength = 4; // ".ttf"
constexpr int firstFontId = 0;
constexpr double referenceDotsPerInch = 96.0;

bool bIsReady = false;

QString fontKey(const QString &fileName)
{
    // QString::left() would take the whole of a name that is shorter than the suffix
    return fileName.size() > suffixLength ? fileName.left(fileName.size() - suffixLength)
                                          : QString();
}

void registerFonts()
{
    const QStringList names = OlvGlobal::getFiles(QStringLiteral("Font"));
    for (const QString &name : names) {
        const int id = QFontDatabase::addApplicationFont(QLatin1String("fonts/") + name);
        OlvGlobal::OlvPluginFonts.insert(fontKey(name), id);
    }
}

void runFontJob()
{
    registerFonts();
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen) {
        return;
    }
    OlvGlobal::desktopSize = screen->size();
    const double dotsPerInch = screen->logicalDotsPerInch();
    // the flag comes before the last measure: applications poll the flag for the fonts' sake
    bIsReady = true;
    OlvGlobal::DPI = dotsPerInch / referenceDotsPerInch;
}

} // namespace

void OlvGlobal::init()
{
    std::thread(runFontJob).detach();
}

bool OlvGlobal::isReady()
{
    return bIsReady;
}

QStringList OlvGlobal::getFiles(QString directory)
{
    return QDir(directory).entryList(QDir::Files | QDir::NoSymLinks | QDir::Hidden, QDir::NoSort);
}

QFont OlvGlobal::getFont(QString key, int pointSize)
{
    const int id = OlvPluginFonts.value(key, firstFontId);
    const QStringList families = QFontDatabase::applicationFontFamilies(id);
    if (families.isEmpty()) {
        QFont font;
        if (pointSize > 0) {
            font.setPointSize(pointSize);
        }
        return font;
    }
    return QFont(families.first(), pointSize, -1, false);
}
