// SPDX-License-Identifier: MIT
#include <OlvWidgets/foundation.h>

#include <QDir>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
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

// released by the job and acquired by readers, who then see the fonts and the screen's size as well
std::atomic<bool> bIsReady{ false };

QString fontKey(const QString &fileName)
{
    // QString::left() would take the whole of a name that is shorter than the suffix
    return fileName.size() > suffixLength ? fileName.left(fileName.size() - suffixLength)
                                          : QString();
}

/**
 * The font jobs under way. A job uses what the application's end takes down, so that a program
 * which leaves while one is running has to wait for it; the results themselves are plain stores.
 */
class FontJobs
{
public:
    ~FontJobs()
    {
        endAll();
    }

    static FontJobs &instance()
    {
        static FontJobs jobs;
        return jobs;
    }

    void begin()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        ++m_running;
    }

    void end()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        --m_running;
        m_ended.notify_all();
    }

    bool mustStop()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_stopping;
    }

    /** Has every job stop at its next file, and waits for that. */
    void endAll()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_stopping = true;
        // a file that cannot be read to its end must not keep the program from ending
        m_ended.wait_for(lock, std::chrono::seconds(5), [this] { return m_running == 0; });
        m_stopping = false;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_ended;
    int m_running = 0;
    bool m_stopping = false;
};

// What the job leaves behind: plain stores that applications read without a lock. Each has a
// function of its own, so that tests/support/threads.supp can name these three and no other.

void storeFontId(const QString &fileName, int id)
{
    OlvGlobal::OlvPluginFonts.insert(fontKey(fileName), id);
}

void storeDesktopSize(const QSize &size)
{
    OlvGlobal::desktopSize = size;
}

void storeScale(double scale)
{
    OlvGlobal::DPI = scale;
}

void registerFonts()
{
    const QStringList names = OlvGlobal::getFiles(QStringLiteral("Font"));
    for (const QString &name : names) {
        if (FontJobs::instance().mustStop()) {
            return;
        }
        const int id = QFontDatabase::addApplicationFont(QLatin1String("fonts/") + name);
        storeFontId(name, id);
    }
}

void measureScreen()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen) {
        return;
    }
    storeDesktopSize(screen->size());
    const double dotsPerInch = screen->logicalDotsPerInch();
    // the flag comes before the last measure: applications poll the flag for the fonts' sake
    bIsReady.store(true, std::memory_order_release);
    storeScale(dotsPerInch / referenceDotsPerInch);
}

void runFontJob()
{
    registerFonts();
    if (!FontJobs::instance().mustStop()) {
        measureScreen();
    }
    FontJobs::instance().end();
}

} // namespace

void OlvGlobal::init()
{
    // Qt has no fonts to add to before, and registering some would end the program
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        return;
    }
    // has Qt make its font database's statics now: what is made before the jobs outlives them. Only
    // once: a job that waits for a file holds the database.
    static std::once_flag made;
    std::call_once(made, [] { QFontDatabase::applicationFontFamilies(firstFontId); });
    FontJobs::instance().begin();
    qAddPostRoutine([] { FontJobs::instance().endAll(); });
    std::thread(runFontJob).detach();
}

bool OlvGlobal::isReady()
{
    return bIsReady.load(std::memory_order_acquire);
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
