// SPDX-License-Identifier: MIT
#pragma once

#include <OlvWidgets/olvwidgets_export.h>

#include <QChar>
#include <QColor>
#include <QEvent>
#include <QFont>
#include <QHash>
#include <QObject>
#include <QRgb>
#include <QSize>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

/**
 * @file foundation.h
 * Start-up and fonts, text fitting, colour strings, the listener filter, and the small utilities
 * that widgets and applications share.
 */

/**
 * The colour string of @p color: its red, green and blue channels (0 to 255) in decimal, joined by
 * commas without spaces, as in "236,245,255". The alpha channel is not carried.
 */
OLVWIDGETS_EXPORT QString OlvColorToString(QColor color);

/** The channels of @p color in one number, as qRgba() packs them: 0xAARRGGBB. */
OLVWIDGETS_EXPORT QRgb OlvColorToRgb(QColor color);

/**
 * The opaque colour that a colour string names, as OlvColorToString() writes it.
 *
 * A part that is no decimal integer, and a part that is missing, is 0; white space around a number
 * (with Qt 6 only that of ASCII) is ignored, and so is everything after the third part. A number
 * outside 0 to 255 gives an invalid colour, with a warning of QColor's.
 */
OLVWIDGETS_EXPORT QColor OlvColorFromString(QString text);

/**
 * An integer that wraps round within a range when it is incremented.
 *
 * @image html OlvInt.png
 *
 * A plain value type: the current value, the minimum taken after passing the maximum (0 at first)
 * and the maximum reached by incrementing (10 at first). Nothing is checked against the range but
 * the increment itself.
 *
 * @code
 * OlvInt page(0);
 * page.setRange(3, 0); // the maximum comes first
 * ++page;              // 1, then 2, 3, 0, 1 ...
 * @endcode
 */
class OLVWIDGETS_EXPORT OlvInt
{
public:
    /** Starts at @p value with the range 0 to 10; a value outside that range is kept as it is. */
    OlvInt(int &&value);

    /**
     * Sets the maximum to @p max and, unless it is 0, the minimum to @p min.
     * A @p min of 0 leaves the minimum as it was: use setMin() to set it to 0 again.
     */
    OlvInt &setRange(int max, int min);
    /** Sets the value taken after an increment passes the maximum. */
    OlvInt &setMin(int min);
    /** Sets the largest value reached by incrementing. */
    OlvInt &setMax(int max);

    /** Sets the value, in or out of the range; the range stays. */
    OlvInt &operator=(int value);
    /** Adds 1; a result above the maximum becomes the minimum. Never overflows. */
    OlvInt &operator++();
    /** As the prefix form; returns value and range as they were before. */
    OlvInt operator++(int);
    /** The current value. */
    operator int() const;

private:
    int m_value;
    int m_min = 0;
    int m_max = 10;
};

/**
 * A guard that runs the application's clean-up callables when it goes out of scope.
 *
 * @image html OlvAutoDestroy.png
 *
 * Loading the library creates one process-wide instance, #SINGLEGLOBAL; addDestroy() appends to its
 * list from anywhere. A guard of this class on the stack of main() destroys that instance when it
 * goes, and with it runs the list:
 *
 * @code
 * int main(int argc, char **argv)
 * {
 *     QApplication application(argc, argv);
 *     OlvAutoDestroy guard;
 *     OlvAutoDestroy::addDestroy([] { saveWindowPlaces(); });
 *     return application.exec();
 * } // saveWindowPlaces() runs here
 * @endcode
 *
 * For use on the GUI thread; nothing is locked.
 */
class OLVWIDGETS_EXPORT OlvAutoDestroy
{
public:
    /** An empty list. */
    OlvAutoDestroy();
    /**
     * Runs this object's own callables, first added first, then destroys the process-wide instance,
     * if it still exists, which runs its callables in the same way. #SINGLEGLOBAL is null before
     * the first callable of the process-wide instance runs, so each callable runs exactly once.
     *
     * An exception that a callable throws leaves the destructor, and the callables behind it do not
     * run; an empty callable throws std::bad_function_call.
     */
    ~OlvAutoDestroy() noexcept(false);

    /**
     * Appends a copy of @p callable to the list of the process-wide instance, never to that of a
     * local one. Once that instance is being destroyed, or is gone, there is no list to append to:
     * the callable is then dropped.
     */
    static void addDestroy(std::function<void()> callable);

    /** The process-wide instance: set by loading the library, null once a guard has destroyed it.
     */
    static OlvAutoDestroy *SINGLEGLOBAL;

private:
    Q_DISABLE_COPY(OlvAutoDestroy)

    class Private;
    const std::unique_ptr<Private> d;
};

/**
 * Defers a callable to the event loop; constructing an object is all that there is to do.
 *
 * @image html OlvLastOnceFunction.png
 *
 * @code
 * OlvLastOnceFunction([panel = QPointer<QWidget>(panel)] {
 *     if (panel) {
 *         panel->raise();
 *     }
 * });
 * @endcode
 */
class OLVWIDGETS_EXPORT OlvLastOnceFunction
{
public:
    /**
     * Runs @p callable once, on the calling thread, on the first pass of its event loop after at
     * least 1 millisecond, whether or not this object still exists. Several run in the order of
     * their creation; nothing is merged and nothing can be cancelled, so a callable must hold
     * weakly what may be destroyed before. An empty callable throws std::bad_function_call out of
     * the event loop. The calling thread must have an event loop.
     */
    explicit OlvLastOnceFunction(std::function<void()> callable);
};

/**
 * Lets an object react to the events of others with callables, in place of a subclass.
 *
 * @image html OlvPluginEventFilter.png
 *
 * One filter watches one or more objects and holds at most one listener for each type of event, for
 * all of them alike: a listener is not told which object the event was meant for. An event that has
 * a listener is consumed by it and never reaches the object; every other event is delivered.
 *
 * @code
 * auto *filter = new OlvPluginEventFilter(label);
 * filter->addEventListener(QEvent::MouseButtonRelease, [=](QEvent *) { openLink(); });
 * @endcode
 *
 * There is no way to remove a listener or to stop watching an object but to destroy the filter.
 */
class OLVWIDGETS_EXPORT OlvPluginEventFilter : public QObject
{
public:
    /**
     * A filter without listeners that watches @p parent, which owns it. Without a parent it watches
     * nothing until addObject() is called, and belongs to the caller.
     */
    explicit OlvPluginEventFilter(QObject *parent = nullptr);
    /** Stops watching, and destroys the listeners. */
    ~OlvPluginEventFilter() override;

    /**
     * Watches @p object as well, without owning it. A null object is ignored, and so is one that
     * lives on another thread, with a warning of Qt's.
     */
    void addObject(QObject *object);
    /**
     * Has @p listener called with each event of @p type that comes to a watched object, in place of
     * the listener that this type had before. An empty one leaves the type without a listener. A
     * listener may replace itself, and may destroy the filter or the object.
     */
    void addEventListener(QEvent::Type type, std::function<void(QEvent *)> listener);

    /** Calls the listener for the event's type and returns true; false where there is none. */
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

/**
 * Start-up services, the fonts that an application ships and the primary screen's measures, and the
 * fitting of text into boxes.
 *
 * @image html OlvGlobal.png
 *
 * Call init() once, early, after the QGuiApplication exists; it registers the font files on a
 * thread of its own. Code that needs those fonts or measures waits for isReady():
 *
 * @code
 * QApplication application(argc, argv);
 * OlvGlobal::init();
 * while (!OlvGlobal::isReady()) {
 *     QThread::msleep(1);
 * }
 * label.setFont(OlvGlobal::getFont(QStringLiteral("FontAwesome"), 12));
 * @endcode
 *
 * Nothing in the library waits for the fonts, and readers lock nothing: before isReady() has
 * returned true, #OlvPluginFonts, #desktopSize, #DPI and getFont() race with the font job.
 */
class OLVWIDGETS_EXPORT OlvGlobal
{
public:
    OlvGlobal() = delete;

    /**
     * Starts the font job on a thread of its own and returns at once.
     *
     * The job lists the directory "Font" as getFiles() does and registers each name in it from
     * "fonts/", both relative to the current working directory: a deployment provides both names,
     * for example one as a link to the other. A file is known from then on by its key, its name
     * less the last four characters ("kai.ttf" gives "kai"; a name of fewer than five characters
     * gives the empty key); of two files with one key the later one in the listing wins. The job
     * then records the size of the primary screen and its dots per inch.
     *
     * A missing directory registers nothing. A file that Qt cannot load is recorded with the id -1,
     * and so is what is no regular file, a pipe for example. Without a primary screen the measures
     * are not recorded and isReady() stays false; without a QGuiApplication nothing is done at all.
     * Where the system has no thread to give, a warning is printed, nothing is registered and
     * isReady() stays as it is.
     *
     * Call it once: a second call registers every file a second time, after the job of the first
     * call. A program that ends while a job is running waits for the file in hand: the library for
     * at most 5 seconds, Qt for as long as it reads it. A child that was forked does not wait.
     */
    static void init();
    /**
     * Whether the font job has done its work; never goes back to false. A thread that gets true
     * from it may read #OlvPluginFonts and #desktopSize. It is set just before #DPI is: read that
     * one after a later call has returned true again, for example from a timer.
     */
    static bool isReady();

    /**
     * The names, not paths, of the regular files in @p directory, hidden ones included, symbolic
     * links left out, in the order in which the file system gives them. Empty when there is no such
     * directory.
     */
    static QStringList getFiles(QString directory);

    /**
     * The font of the first family in the file registered under @p key, @p pointSize points high,
     * in the default weight and upright. An unknown key gives a family of the font file that was
     * registered first. Where that file, or the one under @p key, could not be loaded, the
     * application's default font in that size is returned. A size of 0 or less gives the default
     * size.
     */
    static QFont getFont(QString key, int pointSize);

    /**
     * How many characters at the end of @p text belong with @p next, the character that follows it:
     * the length of the run of letters (A to Z and a to z, of either case) where @p next is one, of
     * digits (0 to 9) where it is one, and 0 for every other character. Letters and digits are the
     * ASCII ones alone.
     */
    static int rightDocumentLine(const QString &text, const QChar &next);
    /**
     * How many characters at the start of @p text fit into @p width pixels: as many as have a sum
     * of advances below it. The advances are those of the single characters, without kerning. A
     * width of 0 or less fits none.
     */
    static int accommodate(const QString &text, int width, const QFont &font);
    /**
     * The size of @p text in pixels: the widths of its lines, which newlines separate, added up, by
     * one line spacing for each line, empty ones included.
     */
    static QSize autoSize(const QString &text, const QFont &font);
    /**
     * How many lines @p text takes when it is wrapped at @p width pixels.
     *
     * A line takes the characters that accommodate() says; a run of letters or of digits that would
     * be split is carried over whole to the next line, and a space that does not fit starts the
     * next line. A run that is wider than a line is split after all, and a line always takes at
     * least one character. A newline starts a new line, but an empty line counts as none.
     */
    static int adaptDocumentOfLine(QString text, int width, const QFont &font);
    /** The height in pixels of @p text wrapped at @p width pixels: its lines by the line spacing.
     */
    static int adaptDocumentHeight(const QString &text, int width, const QFont &font);
    /**
     * The largest point size, not above that of @p font, at which @p text wrapped at the width of
     * @p box is no higher than it: at least 1, whether that fits or not. A text that fits as it is
     * gives QFont::pointSize(), which is -1 for a font sized in pixels; one that does not fit is
     * then tried from the point size that comes nearest to those pixels downwards.
     */
    static int adaptDocumentToPointSize(const QString &text, const QSize &box, QFont font);

    /** Font key to the id that QFontDatabase::addApplicationFont() returned, -1 for a bad file. */
    static QHash<QString, int> OlvPluginFonts;
    /** The primary screen's size in logical pixels; invalid until the font job has recorded it. */
    static QSize desktopSize;
    /** The primary screen's logical dots per inch divided by 96; 0 until the font job is done. */
    static double DPI;
};
