// SPDX-License-Identifier: MIT
// Has widgets at times when the program is ending: the case is the first argument. Ends with 0.
// With a second argument it has widgets of Qt's own instead, which show what Qt stands.
#include "assistant.h"
#include "everywidget.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSlider>
#include <QTimer>
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QInputDevice>
#endif

#include <cstdlib>
#include <memory>
#include <vector>

namespace {

bool arePlain = false;

/** One of each of Qt's own widgets that the library's are made of or stand in for. */
const QVector<WidgetKind> &plainWidgets()
{
    static const QVector<WidgetKind> all{
        { "QPushButton",
          [](QWidget *parent) -> QWidget * {
              return new QPushButton(QStringLiteral("text"), parent);
          } },
        { "QLineEdit",
          [](QWidget *parent) -> QWidget * {
              return new QLineEdit(parent);
          } },
        { "QSlider",
          [](QWidget *parent) -> QWidget * {
              return new QSlider(parent);
          } },
        { "QScrollArea",
          [](QWidget *parent) -> QWidget * {
              return new QScrollArea(parent);
          } },
    };
    return all;
}

using Widgets = std::vector<std::unique_ptr<QWidget>>;

/** Paints a widget often enough that its pixels are cached. */
void paint(QWidget *widget)
{
    for (int round = 0; round < 4; ++round) {
        widget->grab();
    }
}

/** One of each kind, painted, and not shown: Qt's own do not stand that here. */
Widgets makeAll(const QVector<WidgetKind> &kinds = arePlain ? plainWidgets() : everyWidget())
{
    Widgets widgets;
    for (const WidgetKind &kind : kinds) {
        widgets.emplace_back(kind.make(nullptr));
        paint(widgets.back().get());
    }
    return widgets;
}

/** One of each kind in a window, painted. */
void fill(QWidget *window)
{
    for (const WidgetKind &kind : arePlain ? plainWidgets() : everyWidget()) {
        kind.make(window);
    }
    paint(window);
}

/** Does something when it is destroyed. */
struct AtEnd
{
    void (*run)();
    ~AtEnd()
    {
        run();
    }
};

/** Has Qt make its statics: it does not stand that a widget is painted after their end. */
void makeStaticsOfQt()
{
    everyWidget();                // which has one of the test's
    OlvDragWidget ofUnknownClass; // for which Qt looks for a plugin
    QAccessible::queryAccessibleInterface(&ofUnknownClass);
    const Assistant assistant;
    const Widgets widgets = makeAll(plainWidgets());
    QCoreApplication::processEvents();
}

void makeAndDestroy()
{
    const Widgets widgets = makeAll();
    QCoreApplication::processEvents();
}

void look()
{
    const Assistant assistant;
    makeAndDestroy();
}

/** What programs call that needs no widget. */
void callTheRest()
{
    OlvButton button;
    const QString shade = QStringLiteral("1,2,3");
    button.setColor({ shade, shade, shade, shade, shade });
    OlvGlobal::init();
    OlvGlobal::getFont(QStringLiteral("key"), 9);
    OlvGlobal::isReady();
    OlvAutoDestroy::addDestroy([] {});
    OlvGlobal::autoSize(QStringLiteral("text"), QFont());
    OlvFormSupport::naturalSize(&button);
}

// The statics of these functions are made before everything that the library makes, and therefore
// destroyed after it.

int leaveToStaticPointers(int argc, char **argv)
{
    static Widgets widgets;
    const QApplication application(argc, argv);
    widgets = makeAll();
    return 0;
}

int leaveToAStaticParent(int argc, char **argv)
{
    static std::unique_ptr<QWidget> window;
    const QApplication application(argc, argv);
    window = std::make_unique<QWidget>();
    fill(window.get());
    return 0;
}

int leaveToAStaticApplication(int argc, char **argv)
{
    static const QApplication application(argc, argv);
    static Widgets widgets;
    static QWidget window;
    widgets = makeAll();
    fill(&window);
    return 0;
}

/** The button of a form's line edit that shows the password. */
const OlvSimpleIconButton *passwordButton(const QWidget &form)
{
    return form.findChild<OlvLineEdit *>()->findChild<OlvSimpleIconButton *>();
}

int leaveASupportedForm(int argc, char **argv)
{
    static const QApplication application(argc, argv);
    QApplication::setPalette(QPalette(Qt::white, Qt::black)); // texts are white
    static QWidget form;
    static QString sheet;
    static const AtEnd end{ [] {
        const bool isRestored = passwordButton(form)->styleSheet() == sheet;
        const OlvFormSupport again(&form); // what the library has made since has ended, if it does
        if (!isRestored || passwordButton(form)->styleSheet() == sheet) {
            std::_Exit(EXIT_FAILURE);
        }
    } };
    static std::unique_ptr<OlvFormSupport> support;
    fill(&form);
    form.show(); // texts are given colours once their style sheets have been applied
    sheet = passwordButton(form)->styleSheet();
    support = std::make_unique<OlvFormSupport>(&form);
    return passwordButton(form)->styleSheet() == sheet ? EXIT_FAILURE : 0;
}

int leaveThemUndestroyed(int argc, char **argv)
{
    static const QApplication application(argc, argv);
    for (std::unique_ptr<QWidget> &widget : makeAll()) {
        static std::vector<QWidget *> kept;
        kept.push_back(widget.release());
    }
    return 0;
}

int exitInASlot(int argc, char **argv)
{
    QApplication application(argc, argv);
    const Widgets widgets = makeAll();
    QWidget window;
    fill(&window);
    window.show();
    for (const std::unique_ptr<QWidget> &widget : widgets) {
        widget->show();
    }
    QPushButton button;
    QObject::connect(&button, &QPushButton::clicked, &application, [] { std::exit(0); });
    QTimer::singleShot(0, &button, &QPushButton::click);
    return QCoreApplication::exec();
}

int exitInASlotOfTheirs(int argc, char **argv)
{
    static std::unique_ptr<OlvButton> button;
    static QApplication application(argc, argv);
    const Widgets widgets = makeAll();
    button = std::make_unique<OlvButton>(QStringLiteral("text"));
    paint(button.get());
    QObject::connect(button.get(), &OlvButton::clicked, button.get(), [] { std::exit(0); });
    QTimer::singleShot(0, button.get(), [] { button->click(true); });
    return QCoreApplication::exec();
}

/** Uses the library once, so that all its statics are there, and once more when they have gone. */
template <void (*use)()> int useLater(int argc, char **argv)
{
    static const QApplication application(argc, argv);
    makeStaticsOfQt();
    static const AtEnd end{ use };
    use();
    return 0;
}

int repaintLater(int argc, char **argv)
{
    static const QApplication application(argc, argv);
    makeStaticsOfQt();
    static Widgets widgets;
    static const AtEnd end{ [] {
        for (const std::unique_ptr<QWidget> &widget : widgets) {
            paint(widget.get());
            widget->resize(widget->width() + 5, widget->height() + 5);
            paint(widget.get());
        }
    } };
    widgets = makeAll();
    return 0;
}

int lookLaterAtThoseThatAreThere(int argc, char **argv)
{
    static const QApplication application(argc, argv);
    makeStaticsOfQt();
    static Widgets widgets;
    static const AtEnd end{ [] {
        const Assistant assistant;
        for (const std::unique_ptr<QWidget> &widget : widgets) {
            nameOf(widget.get());
            act(widget.get(), press());
        }
    } };
    widgets = makeAll();
    return 0;
}

int useThemInOneApplicationAfterTheOther(int argc, char **argv)
{
    static Widgets widgets;
    for (int round = 0; round < 3; ++round) {
        const QApplication application(argc, argv);
        for (const std::unique_ptr<QWidget> &widget : widgets) {
            paint(widget.get());
        }
        widgets = makeAll();
        look();
    }
    return 0;
}

/**
 * Has Qt 6 make its list of input devices before the application. A mouse event that a program
 * makes itself has Qt add one that is a child of the application and looks into the list when it is
 * destroyed: programs of plain Qt with a static application crash there without this.
 */
void makeListOfDevices()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    QInputDevice::devices();
#endif
}

struct Case
{
    const char *name;
    int (*run)(int argc, char **argv);
};

constexpr Case cases[] = {
    { "leaveToStaticPointers", leaveToStaticPointers },
    { "leaveToAStaticParent", leaveToAStaticParent },
    { "leaveToAStaticApplication", leaveToAStaticApplication },
    { "leaveASupportedForm", leaveASupportedForm },
    { "leaveThemUndestroyed", leaveThemUndestroyed },
    { "exitInASlot", exitInASlot },
    { "exitInASlotOfTheirs", exitInASlotOfTheirs },
    { "makeThemLater", useLater<makeAndDestroy> },
    { "lookLater", useLater<look> },
    { "callTheRestLater", useLater<callTheRest> },
    { "repaintLater", repaintLater },
    { "lookLaterAtThoseThatAreThere", lookLaterAtThoseThatAreThere },
    { "useThemInOneApplicationAfterTheOther", useThemInOneApplicationAfterTheOther },
};

} // namespace

int main(int argc, char **argv)
{
    arePlain = argc > 2;
    makeListOfDevices();
    for (const Case &known : cases) {
        if (argc > 1 && qstrcmp(argv[1], known.name) == 0) {
            return known.run(argc, argv);
        }
    }
    return 2;
}
