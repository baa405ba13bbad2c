// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

#include <memory>

/**
 * What the interfaces of the library's widgets share: names, updates, and being invalid once the
 * widget is destroyed or being destroyed. Knobs and handles are parts of their widget, not
 * children.
 *
 * The name is the widget's accessible name, or the subclass's ownName() where that can be read out,
 * or what any widget is called by (a label whose buddy it is, the title of a window), or the tool
 * tip.
 */
class AccessibleWidget : public QAccessibleWidget
{
public:
    AccessibleWidget(QWidget *widget, QAccessible::Role role);
    ~AccessibleWidget() override;

    /** Starts or stops to send updates. */
    void setWatching(bool watching);
    /** Sends an update for each of name, state and value that has changed since the last time. */
    void tellChanges();

    QWindow *window() const override;
    QVector<QPair<QAccessibleInterface *, QAccessible::Relation>>
    relations(QAccessible::Relation match) const override;
    QAccessibleInterface *focusChild() const override;
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessible::State state() const override;
    QColor foregroundColor() const override;
    QColor backgroundColor() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

protected:
    /** A property of the widget. */
    QVariant property(const char *name) const;

    /** The name that the widget itself gives, a caption for example; empty for none. */
    virtual QString ownName() const;
    /** The states that are added to state(), whose changes Qt does not report. */
    virtual QAccessible::State ownState() const;
    /** The value; invalid for widgets without one. */
    virtual QVariant value() const;
    /** Reports that value() has changed. */
    virtual void tellValue(const QVariant &before);
    /** Connects what else may change something, until @p watcher is destroyed. */
    virtual void watch(QObject *watcher);
    /** Hands the name on to parts that have none; called whenever it may have changed. */
    virtual void nameParts();

private:
    struct Told;

    QString name() const;
    QString readableOwnName() const;
    QString nameToTell() const;
    QWidgetList children() const;

    std::unique_ptr<Told> m_told;
};
