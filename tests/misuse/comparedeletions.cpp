// SPDX-License-Identifier: MIT
// Tries every deletion of the tables, those that Qt's own widgets do not stand as well, each in a
// child process under valgrind, which notices what Qt reads of a deleted widget. Prints what the
// library does not stand although no widget of Qt's is known to fall there, and what Qt's widgets
// do not stand although the tables say so. The first argument is a regular expression: those of the
// library's widgets that it does not match are left out.
#include "subjects.h"

#include <OlvSwitch>

#include <QRegularExpression>
#include <QSet>
#include <QTextStream>

#include <sys/wait.h>
#include <unistd.h>
#include <valgrind/memcheck.h>

using namespace DeletionTable;

namespace {

constexpr int progressStep = 200;

/** In a process of its own, which may crash. */
bool isClean(Listener listener, const Deletion &deletion)
{
    const pid_t child = fork();
    if (child == 0) {
        const auto before = VALGRIND_COUNT_ERRORS;
        const bool survived = survives(everySubject(), listener, deletion);
        _exit(survived && VALGRIND_COUNT_ERRORS == before ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    int status = 0;
    return waitpid(child, &status, 0) == child && status == 0;
}

/** Prints a stack with functions of the library, by which a reader of valgrind's log can tell that
 * it would know one. */
void printOwnStack()
{
    OlvSwitch toggle;
    QObject::connect(&toggle, &OlvSwitch::changed, &toggle,
                     [] { VALGRIND_PRINTF_BACKTRACE("a stack of the library\n"); });
    toggle.setChecked(true);
}

struct Figures
{
    int plain = 0; // of Qt's widgets
    int plainFell = 0;
    QStringList plainFaults; // where the tables say that Qt's widgets stand it
    int stood = 0;           // these are of the library's
    int fellAsQt = 0;
    QStringList faults;
};

QTextStream &operator<<(QTextStream &out, const Figures &figures)
{
    out << "Qt's widgets fell at " << figures.plainFell << " of " << figures.plain
        << "; the library's stood " << figures.stood << ", fell at " << figures.fellAsQt
        << " where Qt's fall as well, and at " << figures.faults.size() << " others\n";
    for (const QString &fault : figures.faults) {
        out << "  " << fault << '\n';
    }
    if (!figures.plainFaults.isEmpty()) {
        out << "Qt's widgets fell where the tables say that they do not\n";
    }
    for (const QString &fault : figures.plainFaults) {
        out << "  " << fault << '\n';
    }
    return out;
}

/** Tries deletions, and knows which types of events and updates Qt's own widgets have fallen after.
 */
class Comparison
{
public:
    /** Tries those of the library's widgets whose names @p pattern matches. */
    explicit Comparison(const QString &pattern)
        : m_pattern(pattern)
    { }

    /** Prints the figures; returns whether the library stands all that Qt does, and Qt all that the
     * tables say. */
    bool compare(const char *heading, Listener listener)
    {
        Figures figures;
        const QVector<Deletion> all = deletions(everySubject(), listener);
        int tried = 0;
        for (const Deletion &deletion : all) { // those of Qt's own widgets come first
            if (tried++ % progressStep == 0) {
                QTextStream(stderr) << heading << ": " << tried << " of " << all.size() << '\n';
            }
            tryOne(listener, deletion, &figures);
        }
        QTextStream(stdout) << heading << ": " << figures;
        return figures.faults.isEmpty() && figures.plainFaults.isEmpty();
    }

private:
    void tryOne(Listener listener, const Deletion &deletion, Figures *figures)
    {
        const bool isPlain = deletion.subject < plainSubjects().size();
        const QString name =
            everySubject().at(deletion.subject).name + QStringLiteral(", ") + deletion.name;
        if (!isPlain && !m_pattern.match(name).hasMatch()) {
            return;
        }
        VALGRIND_PRINTF("%s\n", qPrintable(name)); // above what valgrind reports of it
        const bool isClean = ::isClean(listener, deletion);
        if (isPlain) {
            countPlain(isClean, deletion, name, figures);
        } else if (isClean) {
            ++figures->stood;
        } else if (m_fatalToQt.contains(deletion.followed)) {
            ++figures->fellAsQt;
        } else {
            figures->faults << name;
        }
    }
    void countPlain(bool isClean, const Deletion &deletion, const QString &name, Figures *figures)
    {
        ++figures->plain;
        if (isClean) {
            return;
        }
        ++figures->plainFell;
        if (deletion.followed == 0) {
            figures->plainFaults << name;
        } else {
            m_fatalToQt.insert(deletion.followed);
        }
    }

    QRegularExpression m_pattern;
    QSet<int> m_fatalToQt;
};

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Application application(argc, argv);
    if (!RUNNING_ON_VALGRIND) {
        QTextStream(stderr) << "run this under valgrind\n";
        return EXIT_FAILURE;
    }
    printOwnStack();
    Comparison comparison(QCoreApplication::arguments().value(1));
    const bool filters = comparison.compare("event filters", Listener::EventFilter);
    const bool updates = comparison.compare("listeners to updates", Listener::UpdateHandler);
    return filters && updates ? EXIT_SUCCESS : EXIT_FAILURE;
}
