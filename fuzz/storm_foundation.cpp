// SPDX-License-Identifier: MIT
#include "storm.h"

#include <OlvWidgets/foundation.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QPointer>
#include <QTemporaryDir>
#include <QVector>

#include <limits>
#include <thread>

namespace {

/** An object to be watched, which counts the events that reach it. */
class Watched : public QObject
{
public:
    bool event(QEvent *event) override
    {
        ++received;
        return QObject::event(event);
    }

    int received = 0;
};

/** Sends an event when it is destroyed with the last callable that holds it. */
class LastWord
{
public:
    explicit LastWord(Watched *watched)
        : m_watched(watched)
    { }
    ~LastWord()
    {
        if (m_watched) {
            QEvent event(QEvent::User);
            QCoreApplication::sendEvent(m_watched, &event);
        }
    }

private:
    Q_DISABLE_COPY(LastWord)
    QPointer<Watched> m_watched;
};

/**
 * The folders of the library's fonts, in a current folder of their own. The files are no fonts:
 * what is measured must not depend on when a thread registers one.
 */
class FontFolders
{
public:
    FontFolders()
    {
        constexpr int fileCount = 20;
        QDir::setCurrent(m_place.path());
        for (const char *name : { "Font", "fonts" }) {
            const QString folder = m_place.filePath(QString::fromLatin1(name));
            QDir().mkpath(folder);
            for (int i = 0; i < fileCount; ++i) {
                QFile file(QStringLiteral("%1/%2.ttf").arg(folder).arg(i));
                file.open(QIODevice::WriteOnly);
            }
        }
    }
    Q_DISABLE_COPY(FontFolders)

private:
    QTemporaryDir m_place;
};

class FoundationEpisode : public Storm::Episode
{
public:
    explicit FoundationEpisode(Dice &dice)
        : m_dice(dice)
    {
        static const FontFolders folders;
        if (!OlvAutoDestroy::SINGLEGLOBAL) {
            OlvAutoDestroy::SINGLEGLOBAL = new OlvAutoDestroy;
        }
    }

    ~FoundationEpisode() override
    {
        m_isDestroying = true;
        for (const QPointer<OlvPluginEventFilter> &filter : qAsConst(m_filters)) {
            delete filter;
        }
        for (const QPointer<Watched> &watched : qAsConst(m_watched)) {
            delete watched;
        }
        {
            const OlvAutoDestroy guard;
        }
        // a callable may defer another, which may defer one more
        for (int i = 0; i < 100 && m_callables > 0; ++i) {
            Storm::processEvents(10);
        }
        Storm::check(m_callables == 0, "every callable runs once");
    }

    void step() override
    {
        const int choice = m_dice.below(1000);
        if (choice < 250) {
            count();
        } else if (choice < 400) {
            color();
        } else if (choice < 520) {
            fitText();
        } else if (choice < 530) {
            fitPointSize();
        } else if (choice < 532) {
            OlvGlobal::getFont(m_dice.text(), m_dice.between(-3, 40));
        } else if (choice < 534) {
            OlvGlobal::getFiles(m_dice.text());
        } else if (choice < 560) {
            defer();
        } else if (choice < 563) {
            cleanUp();
        } else if (m_dice.oneIn(4000)) {
            initAtOnce();
        } else if (m_dice.oneIn(200'000)) {
            fitMegabyte();
        } else {
            filter();
        }
    }

private:
    void count()
    {
        const int value = m_dice.number();
        OlvInt counted(int{ value });
        int low = 0;
        int high = 10;
        int expected = value;
        for (int i = m_dice.below(6); i >= 0; --i) {
            switch (m_dice.below(5)) {
            case 0:
                low = m_dice.number();
                counted.setMin(low);
                break;
            case 1:
                high = m_dice.number();
                counted.setMax(high);
                break;
            case 2: {
                high = m_dice.number();
                const int least = m_dice.number();
                low = least == 0 ? low : least;
                counted.setRange(high, least);
                break;
            }
            case 3:
                expected = m_dice.number();
                counted = expected;
                break;
            default:
                Storm::check(m_dice.coin() ? int(counted++) == expected : true, "the one before");
                counted = expected;
                ++counted;
                expected = expected >= high ? low : expected + 1;
            }
            Storm::check(counted == expected, "a number goes on to the next, or to the minimum");
        }
    }

    void color()
    {
        const QColor made = m_dice.color();
        const QColor read = OlvColorFromString(OlvColorToString(made));
        Storm::check(read.isValid() && read.rgb() == (made.rgb() | 0xff000000U),
                     "a colour comes back out of its string");
        Storm::check(OlvColorToRgb(made) == made.rgba(), "a colour's number");
        const QColor wild =
            OlvColorFromString(m_dice.text() + QLatin1Char(',') + QString::number(m_dice.number()));
        Storm::check(!wild.isValid() || wild.alpha() == 255, "a colour that is read is opaque");
    }

    void fitText()
    {
        const QString text = m_dice.text();
        const int width = m_dice.oneIn(4) ? m_dice.number() : m_dice.between(0, 300);
        const QFont &font = fonts()[size_t(m_dice.below(int(fonts().size())))];
        const int fitting = OlvGlobal::accommodate(text, width, font);
        Storm::check(fitting >= 0 && fitting <= text.size(), "no more fits than there is");
        Storm::check(width > 0 || fitting == 0, "nothing fits into nothing");
        const int lines = OlvGlobal::adaptDocumentOfLine(text, width, font);
        Storm::check(lines >= 0 && lines <= text.size(), "a line takes a character or more");
        Storm::check(text.isEmpty() || lines > 0 || text.count(QLatin1Char('\n')) == text.size(),
                     "a text takes a line");
        Storm::check(OlvGlobal::adaptDocumentHeight(text, width, font) >= lines,
                     "a line is as high as a pixel at least");
        Storm::check(OlvGlobal::autoSize(text, font).height() > 0, "a text has a height");
        const int run = OlvGlobal::rightDocumentLine(text, m_dice.character());
        Storm::check(run >= 0 && run <= text.size(), "a run is within its text");
    }

    void fitPointSize()
    {
        const QFont &font = fonts()[size_t(m_dice.below(int(fonts().size())))];
        const QSize box{ m_dice.side(), m_dice.side() };
        const int size = OlvGlobal::adaptDocumentToPointSize(m_dice.text(), box, font);
        Storm::check(size == font.pointSize() || size >= 1, "a point size is 1 at least");
        Storm::check(font.pointSize() < 0 || size <= font.pointSize(), "and no larger than it was");
    }

    void fitMegabyte()
    {
        const QString text = m_dice.megabyte();
        const QFont &font = fonts().front();
        const int width = m_dice.between(-1, 400);
        OlvGlobal::adaptDocumentOfLine(text, width, font);
        OlvGlobal::adaptDocumentToPointSize(text, QSize(width, 100), font);
        OlvColorFromString(text);
    }

    /** A callable that checks that it runs once, and that may defer another. */
    std::function<void()> callable()
    {
        ++m_callables;
        return [this, hasRun = std::make_shared<bool>(false)] {
            Storm::check(!*hasRun, "a callable runs once");
            *hasRun = true;
            --m_callables;
            if (m_dice.oneIn(8)) {
                Storm::processEvents(m_dice.below(3));
            }
            if (m_dice.oneIn(4)) {
                const OlvLastOnceFunction another(callable());
            }
        };
    }

    void defer()
    {
        const OlvLastOnceFunction function(callable());
        if (m_dice.coin()) {
            Storm::processEvents(m_dice.between(0, 3));
        }
    }

    void cleanUp()
    {
        if (m_dice.oneIn(3)) {
            {
                const OlvAutoDestroy guard;
            }
            Storm::check(!OlvAutoDestroy::SINGLEGLOBAL, "a guard destroys the one of the process");
            OlvAutoDestroy::addDestroy([] { Storm::check(false, "nothing runs after the end"); });
            OlvAutoDestroy::SINGLEGLOBAL = new OlvAutoDestroy;
        } else {
            OlvAutoDestroy::addDestroy(callable());
        }
    }

    /** The library's fonts are registered by two threads at the same time. */
    static void initAtOnce()
    {
        std::thread another(OlvGlobal::init);
        OlvGlobal::init();
        OlvGlobal::isReady();
        another.join();
    }

    void filter()
    {
        OlvPluginEventFilter *chosen = anyFilter();
        switch (m_dice.below(16)) {
        case 0:
            chosen->addObject(m_dice.oneIn(8) ? nullptr : anyWatched());
            break;
        case 1:
        case 2:
            listen(chosen);
            break;
        case 3:
            if (m_dice.oneIn(4)) {
                destroy(chosen);
            }
            break;
        case 4:
            if (m_dice.oneIn(4)) {
                destroy(anyWatched());
            }
            break;
        case 5: {
            QEvent event(anyType());
            chosen->eventFilter(m_dice.coin() ? anyWatched() : nullptr, &event);
            break;
        }
        default:
            send(anyWatched());
        }
    }

    void destroy(QObject *object)
    {
        // only one at a time, since an object that is being destroyed may be chosen again
        if (!m_isDestroying) {
            m_isDestroying = true;
            delete object;
            m_isDestroying = false;
        }
    }

    void listen(OlvPluginEventFilter *chosen)
    {
        const QEvent::Type type = anyType();
        if (m_dice.oneIn(6)) {
            chosen->addEventListener(type, {});
            return;
        }
        auto lastWord = std::make_shared<LastWord>(anyWatched());
        chosen->addEventListener(type, [this, lastWord](QEvent * /*event*/) {
            if (m_depth < 3 && m_dice.oneIn(3)) {
                ++m_depth;
                filter();
                --m_depth;
            }
        });
    }

    void send(Watched *watched)
    {
        QEvent event(anyType());
        QCoreApplication::sendEvent(watched, &event);
    }

    QEvent::Type anyType()
    {
        return QEvent::Type(QEvent::User + m_dice.below(6));
    }

    OlvPluginEventFilter *anyFilter()
    {
        QPointer<OlvPluginEventFilter> &chosen = m_filters[m_dice.below(int(m_filters.size()))];
        if (!chosen) {
            chosen = new OlvPluginEventFilter(m_dice.coin() ? anyWatched() : nullptr);
        }
        return chosen;
    }

    Watched *anyWatched()
    {
        QPointer<Watched> &chosen = m_watched[m_dice.below(int(m_watched.size()))];
        if (!chosen) {
            chosen = new Watched;
        }
        return chosen;
    }

    static const std::array<QFont, 5> &fonts()
    {
        static const std::array<QFont, 5> made = [] {
            std::array<QFont, 5> some{ QFont(QStringLiteral("DejaVu Sans"), 9),
                                       QFont(QStringLiteral("FontAwesome"), 12), QFont(),
                                       QFont(QStringLiteral("DejaVu Sans"), 4),
                                       QFont(QStringLiteral("DejaVu Sans")) };
            some.back().setPixelSize(17);
            return some;
        }();
        return made;
    }

    Dice &m_dice;
    QVector<QPointer<OlvPluginEventFilter>> m_filters = QVector<QPointer<OlvPluginEventFilter>>(4);
    QVector<QPointer<Watched>> m_watched = QVector<QPointer<Watched>>(4);
    int m_callables = 0;
    int m_depth = 0;
    bool m_isDestroying = false;
};

} // namespace

int main(int argc, char **argv)
{
    return Storm::run(argc, argv, "foundation",
                      [](Dice &dice) { return std::make_unique<FoundationEpisode>(dice); });
}
