// SPDX-License-Identifier: MIT
#include <OlvWidgets/foundation.h>

#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>

#include <unistd.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>

// Created first, so that it exists for the initialisation of the library's other statics.
OlvAutoDestroy *OlvAutoDestroy::SINGLEGLOBAL = new OlvAutoDestroy;

QHash<QString, int> OlvGlobal::OlvPluginFonts;
QSize OlvGlobal::desktopSize;
double OlvGlobal::DPI = 0.0;

namespace {

constexpr int suffixLength = 4; // ".ttf"
constexpr int firstFontId = 0;
constexpr int badFontId = -1;
constexpr double referenceDotsPerInch = 96.0;
constexpr std::chrono::seconds longestWait(5);
constexpr std::chrono::microseconds pauseBetweenFiles(100);

// released by the job and acquired by readers, who then see the fonts and the screen's size as well
std::atomic<bool> bIsReady{ false };

QString fontKey(const QString &fileName)
{
    // QString::left() would take the whole of a name that is shorter than the suffix
    return fileName.size() > suffixLength ? fileName.left(fileName.size() - suffixLength)
                                          : QString();
}

/**
 * The font jobs that one application has started. They use what the application's destructor
 * destroys, so it has to stop them and wait for them. The thread of each job owns a share of this
 * object, because a job that cannot stop in time lasts longer than the application.
 */
class FontJobs
{
public:
    bool isOfThisProcess() const
    {
        return m_process == getpid();
    }

    /** Held by the one job that runs, so that no two write the results at the same time. */
    std::mutex &turn()
    {
        return m_turn;
    }

    bool mustStop() const
    {
        return m_isStopping;
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

    /** Has every job stop at its next file, and waits for that. */
    void stopAll()
    {
        m_isStopping = true;
        std::unique_lock<std::mutex> lock(m_mutex);
        // a file that cannot be read to its end must not keep the program from ending
        m_ended.wait_for(lock, longestWait, [this] { return m_running == 0; });
    }

private:
    const pid_t m_process = getpid();
    std::mutex m_turn;
    std::atomic<bool> m_isStopping{ false };
    std::mutex m_mutex;
    std::condition_variable m_ended;
    int m_running = 0;
};

/** The font jobs of the current application, which the end of the program stops. */
class CurrentFontJobs
{
public:
    CurrentFontJobs()
    {
        // Qt makes the statics of its font database here, so that they outlive the jobs
        QFontDatabase::applicationFontFamilies(firstFontId);
    }

    static CurrentFontJobs &instance()
    {
        // never destroyed: the application object may be a static, whose end comes later
        static auto *const jobs = new CurrentFontJobs;
        static const ProgramEnd end;
        return *jobs;
    }

    /** Null once the program is destroying its statics. */
    std::shared_ptr<FontJobs> get()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_isOver) {
            return nullptr;
        }
        // the jobs that a forked child finds here run in its parent
        if (!m_jobs || !m_jobs->isOfThisProcess()) {
            m_jobs = std::make_shared<FontJobs>();
        }
        return m_jobs;
    }

    void end()
    {
        std::shared_ptr<FontJobs> ending;
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            ending.swap(m_jobs);
        }
        // a forked child has none of its parent's threads: it would wait for a job that cannot end
        if (ending && ending->isOfThisProcess()) {
            ending->stopAll();
        }
    }

private:
    /** A program that leaves by exit() does not destroy its application. */
    struct ProgramEnd
    {
        ~ProgramEnd()
        {
            instance().endForGood();
        }
    };

    void endForGood()
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_isOver = true;
        }
        end();
    }

    std::mutex m_mutex;
    std::shared_ptr<FontJobs> m_jobs;
    bool m_isOver = false;
};

int registerFont(const QString &path)
{
    // Qt locks its font database while it opens the file. Opening a pipe waits until another
    // program writes to it, and every widget that needs a font would wait as well.
    return QFileInfo(path).isFile() ? QFontDatabase::addApplicationFont(path) : badFontId;
}

void registerFonts(const FontJobs &jobs)
{
    const QStringList names = OlvGlobal::getFiles(QStringLiteral("Font"));
    for (const QString &name : names) {
        if (jobs.mustStop()) {
            return;
        }
        const int id = registerFont(QLatin1String("fonts/") + name);
        if (jobs.mustStop()) {
            return; // the program may have waited long enough and be destroying its statics
        }
        OlvGlobal::OlvPluginFonts.insert(fontKey(name), id);
        // Qt's lock does not go to the thread that has waited longest: without a pause this thread
        // would take it again at once, file after file, and the GUI thread would not get it.
        std::this_thread::sleep_for(pauseBetweenFiles);
    }
}

void measureScreen()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen) {
        return;
    }
    OlvGlobal::desktopSize = screen->size();
    const double dotsPerInch = screen->logicalDotsPerInch();
    // the flag is set before the last measurement, because applications wait for the fonts only
    bIsReady.store(true, std::memory_order_release);
    OlvGlobal::DPI = dotsPerInch / referenceDotsPerInch;
    // released once more: a reader that asks again later is sure to see that measure too
    bIsReady.store(true, std::memory_order_release);
}

void runFontJob(const std::shared_ptr<FontJobs> &jobs)
{
    {
        const std::lock_guard<std::mutex> turn(jobs->turn());
        registerFonts(*jobs);
        if (!jobs->mustStop()) {
            measureScreen();
        }
    }
    jobs->end();
}

} // namespace

void OlvGlobal::init()
{
    // Qt has no fonts to add to before, and registering some would end the program
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        return;
    }
    const std::shared_ptr<FontJobs> jobs = CurrentFontJobs::instance().get();
    if (!jobs) {
        return;
    }
    qAddPostRoutine([] { CurrentFontJobs::instance().end(); });
    jobs->begin();
    try {
        std::thread(runFontJob, jobs).detach();
    } catch (const std::system_error &error) {
        jobs->end();
        qWarning("OlvGlobal::init: the fonts are not registered, no thread can be started: %s",
                 error.what());
    }
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
