// SPDX-License-Identifier: MIT
// What a form support costs each widget: bytes of heap, and timers.
#include "deferred.h"
#include "makewidget.h"
#include "testprogram.h"

#include <OlvWidgets/OlvWidgets>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QTest>
#include <QVBoxLayout>

#include <limits>
#include <memory>
#include <vector>

// the heaps of sanitizers are their own
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define OLV_HAS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define OLV_HAS_SANITIZER
#endif
#endif
#if defined(__GLIBC__) && !defined(OLV_HAS_SANITIZER)
#if __GLIBC_PREREQ(2, 33)
#include <malloc.h>
#define OLV_HAS_HEAP_FIGURES
#endif
#endif

namespace {

constexpr int widgetCount = 100;

/** A shown window full of widgets of one kind, at their natural sizes in either case. */
class Window : public QWidget
{
public:
    Window(MakeWidget make, OlvFormSupport::Features features)
    {
        setLayoutDirection(Qt::RightToLeft);
        auto *column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(0);
        // the offscreen platform complains about windows with a minimum size
        column->setSizeConstraint(QLayout::SetNoConstraint);
        for (int i = 0; i < widgetCount; ++i) {
            column->addWidget(make());
        }
        const QSize natural = OlvFormSupport::naturalSize(column->itemAt(0)->widget());
        resize(natural.width(), natural.height() * widgetCount);
        if (features) {
            new OlvFormSupport(this, features);
        }
        show();
        settle();
        if (QWidget *focused = focusWidget()) {
            focused->clearFocus(); // the caret of a text blinks by a timer of its own
        }
    }

    void settle()
    {
        for (int i = 0; i < 3; ++i) {
            runDeferred();
        }
        repaint();
    }
};

#ifdef OLV_HAS_HEAP_FIGURES
constexpr int rounds = 5;
constexpr int maxBytes = 400;
/** What lists that have grown may keep of each widget that has gone. */
constexpr int maxBytesLeft = 60;

/**
 * The heap in use, in bytes. Its figure counts the freed blocks that the C library keeps for its
 * thread, a few of each small size: while blocks of all those sizes are in use, it keeps none.
 */
double heapInUse()
{
    constexpr std::size_t largestKept = 1032;
    constexpr std::size_t sizeStep = 16;
    constexpr int keptOfSize = 7;
    std::vector<std::unique_ptr<char[]>> blocks;
    blocks.reserve(keptOfSize * (largestKept / sizeStep + 1));
    for (std::size_t size = sizeStep / 2; size <= largestKept; size += sizeStep) {
        for (int i = 0; i < keptOfSize; ++i) {
            blocks.push_back(std::make_unique<char[]>(size));
        }
    }
    return double(mallinfo2().uordblks);
}

/** What is left of the heap of many widgets that were in a form for a while, in bytes. */
double heapLeftBehind()
{
    QWidget form;
    form.resize(100, 100);
    new OlvFormSupport(&form);
    form.show();
    runDeferred();
    const double before = heapInUse();
    QVector<QWidget *> buttons;
    for (int i = 0; i < widgetCount; ++i) {
        buttons.append(new OlvButton(&form));
        buttons.last()->show();
    }
    runDeferred();
    qDeleteAll(buttons);
    buttons = {};
    runDeferred();
    return heapInUse() - before;
}

/** The heap in use while a window is shown, in bytes. */
double heapOfShown(MakeWidget make, OlvFormSupport::Features features)
{
    const Window window(make, features);
    return heapInUse();
}
#endif

int timerCount(const QWidget &window)
{
    const auto *dispatcher = QAbstractEventDispatcher::instance();
    int count = 0;
    const auto all = window.findChildren<QObject *>();
    for (QObject *object : all) {
        count += int(dispatcher->registeredTimers(object).size());
    }
    return count;
}

} // namespace

class TestFormCosts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // so that every feature has something to do
        QPalette palette;
        palette.setColor(QPalette::Text, Qt::white);
        QApplication::setPalette(palette);
    }
    void isLittleHeap_data()
    {
        addKinds();
    }
    void isLittleHeap();
    void isNoTimer_data()
    {
        addKinds();
    }
    void isNoTimer();
    void goesWithTheWidgets();

private:
    static void addKinds();
};

void TestFormCosts::addKinds()
{
    QTest::addColumn<MakeWidget>("make");
    const QVector<QPair<const char *, MakeWidget>> kinds{
        { "line edit",
          []() -> QWidget * {
              return new OlvLineEdit;
          } },
        { "password",
          []() -> QWidget * {
              auto *edit = new OlvLineEdit;
              edit->setPassWord(true);
              return edit;
          } },
        { "shortcut edit",
          []() -> QWidget * {
              return new OlvShortcutEdit(nullptr);
          } },
        { "switch",
          []() -> QWidget * {
              return new OlvSwitch;
          } },
        { "slider",
          []() -> QWidget * {
              return new OlvSlider;
          } },
        { "button",
          []() -> QWidget * {
              return new OlvButton(QStringLiteral("Save"));
          } },
        { "tile",
          []() -> QWidget * {
              return new OlvIconButton(QLatin1Char('M'), QStringLiteral("Mail"),
                                       QStringLiteral("Sans"), nullptr, 80, 80);
          } },
        { "simple icon button",
          []() -> QWidget * {
              return new OlvSimpleIconButton;
          } },
    };
    for (const auto &kind : kinds) {
        QTest::newRow(kind.first) << kind.second;
    }
}

void TestFormCosts::isLittleHeap()
{
#ifdef OLV_HAS_HEAP_FIGURES
    QFETCH(MakeWidget, make);
    double bytes = std::numeric_limits<double>::max();
    for (int i = 0; i < rounds; ++i) { // the first ones fill caches of Qt's
        const double without = heapOfShown(make, {});
        bytes =
            qMin(bytes, (heapOfShown(make, OlvFormSupport::AllFeatures) - without) / widgetCount);
    }
    // a password button may even save some, whose style sheet shares its text with all others
    QVERIFY2(!qFuzzyIsNull(bytes), qPrintable(QString::number(bytes)));
    qInfo("%.0f bytes a widget", bytes);
    QVERIFY2(bytes <= maxBytes, qPrintable(QString::number(bytes)));
#else
    QSKIP("this C library does not say how much heap is in use", "");
#endif
}

void TestFormCosts::isNoTimer()
{
    QFETCH(MakeWidget, make);
    const Window without(make, {});
    const Window with(make, OlvFormSupport::AllFeatures);
    QCOMPARE(timerCount(with), timerCount(without));
}

/** A form that lives long may have had any number of widgets. */
void TestFormCosts::goesWithTheWidgets()
{
#ifdef OLV_HAS_HEAP_FIGURES
    double bytes = std::numeric_limits<double>::max();
    for (int i = 0; i < rounds; ++i) { // the first ones fill caches of Qt's
        bytes = qMin(bytes, heapLeftBehind());
    }
    QVERIFY2(bytes <= maxBytesLeft * widgetCount, qPrintable(QString::number(bytes)));
#else
    QSKIP("this C library does not say how much heap is in use", "");
#endif
}

ADD_TEST(TestFormCosts, QApplication)
#include "tst_formcosts.moc"
