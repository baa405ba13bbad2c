// SPDX-License-Identifier: MIT
// Has shortcuts at times when there is no application object, or no longer one: the case is the
// first argument. Ends with 0, or with 1 where a shortcut is active that should not be, or the
// other way round.
#include "opensockets.h"

#include <OlvShortcut>
#include <OlvShortcutEdit>

#include <QApplication>
#include <QTimer>

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

/** A shortcut that an editor takes on every platform. */
class GrantedShortcut : public OlvShortcut
{
public:
    explicit GrantedShortcut(QObject *parent = nullptr)
        : OlvShortcut(Qt::Key_F5, true, false, false, false, parent)
    { }

    bool active() override
    {
        OlvShortcut::active();
        return true;
    }
};

OlvShortcut *ctrlF5(QObject *parent = nullptr)
{
    return new OlvShortcut(Qt::Key_F5, true, false, false, false, parent);
}

/** Whether the shortcut is registered exactly where a desktop takes shortcuts. */
bool isRegistered(OlvShortcut *shortcut)
{
    return shortcut->active() == (QGuiApplication::platformName() == QLatin1String("xcb"));
}

/** Ends the program with 1 if a socket is open that was not open before the application was made.
 */
struct SocketCheck
{
    ~SocketCheck()
    {
        if (!(openSockets() - before).isEmpty()) {
            _exit(1);
        }
    }
    QSet<int> before = openSockets();
};

// The statics of these functions are made before everything that the libraries make, and therefore
// destroyed after it.

int leaveToAStaticPointer(int argc, char **argv)
{
    static std::unique_ptr<OlvShortcut> shortcut;
    const QApplication application(argc, argv);
    shortcut.reset(ctrlF5());
    return isRegistered(shortcut.get()) ? 0 : 1;
}

int leaveToAStaticParent(int argc, char **argv)
{
    static QObject parent;
    const QApplication application(argc, argv);
    return isRegistered(ctrlF5(&parent)) ? 0 : 1;
}

int leaveToAStaticApplication(int argc, char **argv)
{
    static const SocketCheck check;
    static QApplication application(argc, argv);
    return isRegistered(ctrlF5(&application)) ? 0 : 1;
}

int exitWithAStaticEditor(int argc, char **argv)
{
    static std::unique_ptr<OlvShortcutEdit> editor;
    const QApplication application(argc, argv);
    editor = std::make_unique<OlvShortcutEdit>(new GrantedShortcut);
    std::exit(editor->shortcut() ? 0 : 1);
}

int exitOutOfTheEventLoop(int argc, char **argv)
{
    static std::unique_ptr<OlvShortcut> shortcut;
    const QApplication application(argc, argv);
    shortcut.reset(ctrlF5());
    QTimer::singleShot(0, &application, [] { std::exit(isRegistered(shortcut.get()) ? 0 : 1); });
    return QCoreApplication::exec();
}

int useItBeforeThereIsAnApplication(int argc, char **argv)
{
    OlvShortcut shortcut(Qt::Key_F5, true, false, false, false);
    const bool tooEarly = shortcut.active();
    shortcut.destroy();
    const QApplication application(argc, argv);
    return !tooEarly && isRegistered(&shortcut) ? 0 : 1;
}

int useItInOneApplicationAfterTheOther(int argc, char **argv)
{
    OlvShortcut shortcut(Qt::Key_F5, true, false, false, false);
    for (int round = 0; round < 3; ++round) {
        const SocketCheck check;
        {
            const QApplication application(argc, argv);
            if (!isRegistered(&shortcut)) {
                return 1;
            }
        }
        if (shortcut.active()) {
            return 1;
        }
    }
    shortcut.destroy();
    return 0;
}

int useItWhileTheApplicationGoes(int argc, char **argv)
{
    static std::unique_ptr<OlvShortcut> shortcut;
    const SocketCheck check;
    QApplication application(argc, argv);
    shortcut.reset(ctrlF5());
    // One child is destroyed before what the library has with the application, the other after it.
    auto *first = new QObject(&application);
    if (!isRegistered(shortcut.get())) {
        return 1;
    }
    qAddPostRoutine([] { shortcut->active(); });
    QObject::connect(first, &QObject::destroyed, first, [] { shortcut->active(); });
    auto *last = new QObject(&application);
    QObject::connect(last, &QObject::destroyed, last, [] {
        shortcut->active();
        shortcut->destroy();
    });
    return 0;
}

/** Says when the server may go. */
int waitForTheEndOfTheServer(int argc, char **argv)
{
    static std::unique_ptr<OlvShortcut> shortcut;
    const QApplication application(argc, argv);
    const std::unique_ptr<OlvShortcut> another(ctrlF5());
    shortcut = std::make_unique<OlvShortcut>(Qt::Key_F6, true, false, false, false);
    if (!isRegistered(shortcut.get()) || !isRegistered(another.get())) {
        return 2;
    }
    std::puts("registered");
    std::fflush(stdout);
    return QCoreApplication::exec();
}

struct Case
{
    const char *name;
    int (*run)(int argc, char **argv);
};

constexpr Case cases[] = {
    { "leaveToAStaticPointer", leaveToAStaticPointer },
    { "leaveToAStaticParent", leaveToAStaticParent },
    { "leaveToAStaticApplication", leaveToAStaticApplication },
    { "exitWithAStaticEditor", exitWithAStaticEditor },
    { "exitOutOfTheEventLoop", exitOutOfTheEventLoop },
    { "useItBeforeThereIsAnApplication", useItBeforeThereIsAnApplication },
    { "useItInOneApplicationAfterTheOther", useItInOneApplicationAfterTheOther },
    { "useItWhileTheApplicationGoes", useItWhileTheApplicationGoes },
    { "waitForTheEndOfTheServer", waitForTheEndOfTheServer },
};

} // namespace

int main(int argc, char **argv)
{
    for (const Case &known : cases) {
        if (argc > 1 && qstrcmp(argv[1], known.name) == 0) {
            return known.run(argc, argv);
        }
    }
    return 2;
}
