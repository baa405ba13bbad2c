// SPDX-License-Identifier: MIT
#pragma once

#include "realinput.h"

#include <QColor>
#include <QCursor>
#include <QDeadlineTimer>
#include <QEvent>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>
#include <QVector>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <initializer_list>

/** Counts the events of some types that an object gets. */
class EventCount : public QObject
{
public:
    EventCount(QObject *watched, std::initializer_list<QEvent::Type> types)
        : m_types(types)
    {
        watched->installEventFilter(this);
    }
    int count = 0;

protected:
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        count += m_types.contains(event->type()) ? 1 : 0;
        return false;
    }

private:
    QVector<QEvent::Type> m_types;
};

/**
 * The pointer of the compositor, and where its screen shows a window. A program is not told where
 * its windows are, so a test finds them by a colour that only they have.
 */
class Compositor
{
public:
    /** The smallest rectangle with all of the colour that the screen shows; null for none. */
    QRect areaOf(QColor color) const
    {
        const QImage screen = input.screen();
        const auto isOfColor = [=](QRgb pixel) {
            return (pixel | 0xff000000) == color.rgb();
        };
        QRect area;
        for (int y = 0; y < screen.height(); ++y) {
            const auto *line = reinterpret_cast<const QRgb *>(screen.constScanLine(y));
            const auto *end = line + screen.width();
            const auto *first = std::find_if(line, end, isOfColor);
            if (first != end) {
                const auto *last = end - 1;
                while (!isOfColor(*last)) {
                    --last;
                }
                area |= QRect(QPoint(int(first - line), y), QPoint(int(last - line), y));
            }
        }
        return area;
    }

    /**
     * Waits until the screen shows a window, by its colour, and the window sees the pointer in its
     * middle; returns where it is shown, null for nowhere. The colour begins at @p inset in it.
     */
    QRect waitFor(const QWidget &window, QColor color, QPoint inset = QPoint())
    {
        const QDeadlineTimer deadline(patience);
        while (!deadline.hasExpired()) {
            const QRect area = areaOf(color);
            if (area.isNull()) {
                QTest::qWait(10);
                continue;
            }
            // The compositor adds up the motions of its pointer from an unknown place, which is
            // known once the pointer has been in two corners.
            input.moveTo(QPoint(1279, 799));
            QTest::qWait(20);
            input.moveTo(QPoint(0, 0));
            QTest::qWait(20);
            // A program is told where it is entered, but takes the cursor's place from motions.
            input.moveTo(area.center() - QPoint(1, 0));
            input.moveTo(area.center());
            QTest::qWait(50);
            if (window.underMouse()
                && window.mapFromGlobal(QCursor::pos()) == area.center() - area.topLeft() + inset) {
                return area;
            }
        }
        return QRect();
    }

    /** Moves the pointer to a place on the screen where it is in a window, which notices. */
    void point(const QWidget &window, QPoint place)
    {
        const EventCount moves(window.windowHandle(), { QEvent::Enter, QEvent::MouseMove });
        input.moveTo(place);
        QTRY_VERIFY(moves.count > 0);
    }

    /** Whether it is sway, which tells where windows are. */
    static bool isSway()
    {
        return qEnvironmentVariableIsSet("SWAYSOCK");
    }
    /** The step at the beginning of a drag. */
    static constexpr QPoint firstStep{ 1, 1 };
    /** How much of a drag of a window does not move it, where the first step comes alone. */
    static QPoint leftOut()
    {
        return isSway() ? firstStep : QPoint();
    }
    /** Where sway says that this program's window is. */
    static QRect toldArea()
    {
        QProcess query;
        query.start(QStringLiteral("swaymsg"),
                    { QStringLiteral("-r"), QStringLiteral("-t"), QStringLiteral("get_tree") });
        query.waitForFinished(patience);
        return areaIn(QJsonDocument::fromJson(query.readAllStandardOutput()).object());
    }

    /**
     * Drags a window from a place on the screen, which moves it by @p distance. The compositor
     * takes over at the first step, which sway leaves out.
     */
    void drag(const QWidget &window, QPoint from, QPoint distance,
              RealInput::Button button = RealInput::Left)
    {
        point(window, from);
        const EventCount presses(window.windowHandle(), { QEvent::MouseButtonPress });
        const EventCount leaves(window.windowHandle(), { QEvent::Leave });
        input.press(button);
        QTRY_COMPARE(presses.count, 1);
        input.moveTo(from + firstStep);
        QTRY_COMPARE(leaves.count, 1);
        const QPoint start = from + leftOut();
        constexpr int steps = 10;
        for (int i = 1; i <= steps; ++i) {
            input.moveTo(start + distance * i / steps);
            QTest::qWait(5);
        }
        input.release(button);
    }

    RealInput input;

private:
    static QRect areaIn(const QJsonObject &node)
    {
        if (node.value(QStringLiteral("pid")).toInt() == QCoreApplication::applicationPid()) {
            const QJsonObject rect = node.value(QStringLiteral("rect")).toObject();
            return { rect.value(QStringLiteral("x")).toInt(),
                     rect.value(QStringLiteral("y")).toInt(),
                     rect.value(QStringLiteral("width")).toInt(),
                     rect.value(QStringLiteral("height")).toInt() };
        }
        for (const char *kind : { "nodes", "floating_nodes" }) {
            const QJsonArray children = node.value(QLatin1String(kind)).toArray();
            for (const QJsonValue &child : children) {
                const QRect area = areaIn(child.toObject());
                if (!area.isNull()) {
                    return area;
                }
            }
        }
        return {};
    }
};
