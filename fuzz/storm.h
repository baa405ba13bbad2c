// SPDX-License-Identifier: MIT
#pragma once

#include "dice.h"

#include <QEvent>
#include <QSet>

#include <functional>
#include <memory>

/**
 * @file storm.h
 * What the storm programs share: each sends thousands of random events in an episode, derived from
 * a seed, and fails when one crashes the program, stalls it, or breaks a documented rule.
 */

namespace Storm {

/** The world of one seed. */
class Episode
{
public:
    virtual ~Episode();
    /** One event: an action, a call, an event of Qt's. */
    virtual void step() = 0;

protected:
    Episode() = default;

private:
    Q_DISABLE_COPY(Episode)
};

using Maker = std::function<std::unique_ptr<Episode>(Dice &dice)>;

/**
 * Runs episodes of @p family as the command line says, and returns the program's exit status: first
 * those of the file of regressions, then one seed after the other until the time or the number of
 * events is up.
 */
int run(int argc, char **argv, const char *family, const Maker &make);

/** Unless @p holds, ends the program with the seed and the number of the event. */
void check(bool holds, const char *rule);

/** Whether an event whose type is one of @p types is being delivered. */
bool isDelivering(const QSet<QEvent::Type> &types);

/** Advances the clock by @p milliseconds, and delivers timer events and posted events. */
void processEvents(int milliseconds);

} // namespace Storm
