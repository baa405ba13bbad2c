// SPDX-License-Identifier: MIT
#pragma once

#include "storm.h"
#include "stormassistant.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVector>
#include <QWidget>

class World;

/** What a storm knows of one family of widgets; see World. */
class Family
{
public:
    virtual ~Family();

    /** A new widget of the family in @p parent. */
    virtual QWidget *make(World &world, QWidget *parent) = 0;
    /** Calls one public method of @p widget, or of a helper of its, with hostile arguments. */
    virtual void call(World &world, QWidget *widget) = 0;
    /** The dynamic properties that the widgets keep. */
    virtual QVector<QByteArray> properties() const = 0;
    /** Checks what always holds for @p widget. */
    virtual void check(World &world, QWidget *widget);
    /** Whether Qt goes on to use the widgets after what it does now, as if a World::Guard existed.
     */
    virtual bool isQtAtWork() const;
    /** Sets @p text, which may be a megabyte long, wherever @p widget takes a text. */
    virtual void setText(QWidget *widget, const QString &text);

protected:
    Family() = default;

private:
    Q_DISABLE_COPY(Family)
};

/**
 * A few windows full of widgets of one family, to which random things happen. Slots of all their
 * signals, filters of their events and an assistive program that hears of their changes do more
 * while the widget is still at work: they delete it, its parent, its helpers or its neighbours,
 * send further events, or run the event loop.
 */
class World : public QObject, public Storm::Episode
{
    Q_OBJECT

public:
    World(Dice &dice, std::unique_ptr<Family> family);
    ~World() override;

    void step() override;

    Dice &dice();
    /** A window or a widget in one, which may be created by this call. */
    QWidget *anyHost();
    /** One of the widgets; null when there is none. */
    QWidget *anyWidget();
    /** Deletes a widget other than @p except and its ancestors, later if a Guard exists. */
    void deleteAny(const QWidget *except);
    /** Adds @p widget to the world, and listens to its signals and those of its children. */
    void adopt(QWidget *widget);
    /** Keeps an address, which may be dangling by the time it is used. */
    void remember(const QObject *object);
    /** The address of an object that lives or has lived, or any number. */
    qulonglong anyAddress();

    /** While one exists, deletions are deferred and no event loop runs: Qt is using the widgets. */
    class Guard
    {
    public:
        explicit Guard(World &world);
        ~Guard();

    private:
        Q_DISABLE_COPY(Guard)
        World &m_world;
    };

    bool isGuarded() const;
    /** Whether no slot has done anything since this event began, so that what was set is kept. */
    bool isUndisturbed() const;
    /** Advances the clock and runs the event loop, unless a Guard exists. */
    void pass(int milliseconds);
    /** Deletes a child of @p widget, later if a Guard exists, or takes it away. */
    void takeHelper(QWidget *widget);

    /** Deletes and does other things when a widget is told of a property or of input. */
    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /** The slot of every signal. */
    void strike();

private:
    // world.cpp: what there is, and what happens next
    void act(QWidget *widget);
    void actRarely(QWidget *widget);
    void forget(QObject *dying);
    void destroy(QObject *object);
    QWidget *target();
    QWidget *within(QWidget *widget);
    // worldalterations.cpp: what a program does to its widgets
    /** Limits the size of a window, whose pixels the platform allocates. */
    static void bound(QWidget *window);
    void alter(QWidget *widget);
    void place(QWidget *widget);
    int sideOf(const QWidget *widget);
    void move(QWidget *widget);
    void overwriteProperty(QObject *object);
    void setHugeText(QWidget *widget);
    void showTip(QWidget *widget);
    // worldslots.cpp: what its slots do
    void strikeFrom(QObject *from);
    void strikeGently();
    void fireTimer();
    void hear(const QAccessibleEvent &update);

    /** How deeply slots may be nested. */
    static constexpr int deepest = 3;

    Dice &m_dice;
    std::unique_ptr<Family> m_family;
    QVector<QByteArray> m_properties;
    QVector<QPointer<QWidget>> m_hosts;
    QVector<QPointer<QWidget>> m_widgets;
    QVector<qulonglong> m_addresses;
    QVector<QPointer<QTimer>> m_timers;
    QPointer<QWidget> m_target;
    int m_depth = 0;
    int m_guards = 0;
    int m_strikes = 0;
    bool m_isDying = false; // a destructor is running further up the stack
    bool m_isShowingTip = false;
    bool m_isMaking = false; // the constructor of a widget may be at work
    StormAssistant m_assistant;
};

/** Runs the storm of a family of widgets. */
template <typename OneFamily> int runWorlds(int argc, char **argv, const char *name)
{
    return Storm::run(argc, argv, name, [](Dice &dice) {
        return std::make_unique<World>(dice, std::make_unique<OneFamily>());
    });
}
