// SPDX-License-Identifier: MIT
#include "storm.h"

#include "virtualclock.h"

#include <QApplication>
#include <QClipboard>
#include <QCommandLineParser>
#include <QEvent>
#include <QFile>
#include <QTextStream>
#include <QVector>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/personality.h>
#include <unistd.h>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

namespace {

constexpr quint64 eventsOfEpisode = 20'000;
constexpr unsigned stallSeconds = 300;
/** Longer than the longest timer of the library. */
constexpr int settlingTime = 2500;

// plain variables, since the signal handler that reports a crash reads them
const char *currentFamily = "";
volatile quint64 currentSeed = 0;
volatile quint64 currentEvent = 0;
quint64 warnings = 0;

/** The types of the events that are being delivered, the outermost first. */
QVector<QEvent::Type> &deliveredTypes()
{
    static QVector<QEvent::Type> types;
    return types;
}

/** Takes down which events are being delivered. */
class StormApplication : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        deliveredTypes().append(event->type());
        const bool isHandled = QApplication::notify(receiver, event);
        deliveredTypes().removeLast();
        return isHandled;
    }
};

void reportPlace()
{
    // only functions that are safe in a signal handler may be called here
    static char line[256];
    const int size =
        std::snprintf(line, sizeof line, "storm %s: failed; to replay: --seed %llu --events %llu\n",
                      currentFamily, static_cast<unsigned long long>(currentSeed),
                      static_cast<unsigned long long>(currentEvent));
    if (write(STDERR_FILENO, line, size_t(size)) < 0) {
        _exit(EXIT_FAILURE);
    }
}

void handleSignal(int number)
{
    if (number == SIGALRM) {
        static const char text[] = "storm: stalled\n";
        if (write(STDERR_FILENO, text, sizeof text - 1) < 0) {
            _exit(EXIT_FAILURE);
        }
        std::abort();
    }
    reportPlace();
    std::signal(number, SIG_DFL);
    std::raise(number);
}

void watchForCrashes()
{
    std::signal(SIGABRT, handleSignal);
    std::signal(SIGALRM, handleSignal);
#ifdef __SANITIZE_ADDRESS__
    // the sanitizer handles the other signals itself
    __sanitizer_set_death_callback(reportPlace);
#else
    for (const int number : { SIGSEGV, SIGBUS, SIGFPE, SIGILL }) {
        std::signal(number, handleSignal);
    }
#endif
}

/**
 * Starts the program once more at fixed addresses, where the system allows that, since the widgets
 * keep some addresses as numbers.
 */
void fixAddresses(char **argv)
{
    constexpr unsigned long query = 0xffffffff;
    const int present = personality(query);
    if (present >= 0 && !(present & ADDR_NO_RANDOMIZE)
        && personality(unsigned(present) | ADDR_NO_RANDOMIZE) >= 0) {
        execv("/proc/self/exe", argv);
    }
}

void handleMessage(QtMsgType type, const QMessageLogContext & /*context*/, const QString &message)
{
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(message));
        std::abort();
    }
    ++warnings;
    if (qEnvironmentVariableIsSet("STORM_VERBOSE")) {
        std::fprintf(stderr, "%s\n", qPrintable(message));
    }
}

quint64 runEpisode(quint64 seed, quint64 events, const Storm::Maker &make)
{
    currentSeed = seed;
    currentEvent = 0;
    alarm(stallSeconds);
    // the episode before must not influence this one
    VirtualClock::advanceToHour();
    QGuiApplication::clipboard()->clear();
    QCoreApplication::processEvents();
    Dice dice(seed);
    {
        const std::unique_ptr<Storm::Episode> episode = make(dice);
        while (currentEvent < events) {
            currentEvent = currentEvent + 1;
            episode->step();
        }
        if (qEnvironmentVariableIsSet("STORM_VERBOSE")) {
            // a seed that leaves another number than before depends on something besides the dice
            std::fprintf(stderr, "seed %llu: %016llx\n", static_cast<unsigned long long>(seed),
                         static_cast<unsigned long long>(dice.bits()));
        }
    }
    Storm::processEvents(settlingTime);
    alarm(0);
    return events;
}

/** Each line of the file has a seed, a number of events, and a remark. */
quint64 replay(const QString &path, const Storm::Maker &make)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "cannot read %s\n", qPrintable(path));
        std::exit(EXIT_FAILURE);
    }
    quint64 events = 0;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (!line.isEmpty() && !line.startsWith(QLatin1Char('#'))) {
            const QStringList parts = line.split(QLatin1Char(' '));
            events += runEpisode(parts.value(0).toULongLong(), parts.value(1).toULongLong(), make);
        }
    }
    return events;
}

} // namespace

Storm::Episode::~Episode() = default;

void Storm::check(bool holds, const char *rule)
{
    if (!holds) {
        std::fprintf(stderr, "storm: broken: %s\n", rule);
        std::abort();
    }
}

bool Storm::isDelivering(const QSet<QEvent::Type> &types)
{
    const QVector<QEvent::Type> &delivered = deliveredTypes();
    return std::any_of(delivered.cbegin(), delivered.cend(),
                       [&](QEvent::Type type) { return types.contains(type); });
}

void Storm::processEvents(int milliseconds)
{
    VirtualClock::advance(std::chrono::milliseconds(milliseconds));
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

int Storm::run(int argc, char **argv, const char *family, const Maker &make)
{
    fixAddresses(argv);
    qSetGlobalQHashSeed(0);
    qputenv("QT_NO_GLIB", "1"); // only Qt's own event loop uses the virtual clock
    currentFamily = family;
    watchForCrashes();
    const StormApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    qInstallMessageHandler(handleMessage);

    const QCommandLineOption seedOption(QStringLiteral("seed"), QStringLiteral("The first seed."),
                                        QStringLiteral("N"), QStringLiteral("1"));
    const QCommandLineOption eventsOption(QStringLiteral("events"),
                                          QStringLiteral("Stop after so many events."),
                                          QStringLiteral("N"));
    const QCommandLineOption secondsOption(
        QStringLiteral("seconds"), QStringLiteral("Stop after so many seconds of a processor."),
        QStringLiteral("N"), QStringLiteral("20"));
    const QCommandLineOption replayOption(QStringLiteral("replay"),
                                          QStringLiteral("First run the seeds in this file."),
                                          QStringLiteral("file"));
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({ seedOption, eventsOption, secondsOption, replayOption });
    parser.process(application);

    const quint64 firstSeed = parser.value(seedOption).toULongLong();
    const quint64 wanted = parser.value(eventsOption).toULongLong();
    const std::chrono::seconds time(parser.value(secondsOption).toInt());
    std::printf("storm %s: from seed %llu\n", family, static_cast<unsigned long long>(firstSeed));
    std::fflush(stdout);

    quint64 events = 0;
    if (parser.isSet(replayOption)) {
        events += replay(parser.value(replayOption), make);
    }
    quint64 seed = firstSeed;
    quint64 left = wanted;
    const auto isOver = [&] {
        return wanted > 0 ? left == 0 : VirtualClock::processorTime() >= time;
    };
    for (; !isOver(); ++seed) {
        const quint64 ran =
            runEpisode(seed, wanted > 0 ? qMin(left, eventsOfEpisode) : eventsOfEpisode, make);
        events += ran;
        left -= qMin(left, ran);
    }
    std::printf(
        "storm %s: passed %llu events, seeds %llu to %llu, in %lld s; %llu warnings of Qt's\n",
        family, static_cast<unsigned long long>(events), static_cast<unsigned long long>(firstSeed),
        static_cast<unsigned long long>(seed - 1),
        static_cast<long long>(VirtualClock::processorTime().count() / 1000),
        static_cast<unsigned long long>(warnings));
    return EXIT_SUCCESS;
}
