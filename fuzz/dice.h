// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <random>

/** The random choices of a storm, and hostile values, all derived from its seed. */
class Dice
{
public:
    explicit Dice(quint64 seed);

    quint64 bits();
    /** From 0 to @p end - 1; 0 for an @p end below 1. */
    int below(int end);
    /** From @p first to @p last. */
    int between(int first, int last);
    bool oneIn(int cases);
    bool coin();
    /** One of @p values, which are not empty. */
    template <typename Values> auto pick(const Values &values)
    {
        return *(std::begin(values) + below(int(std::size(values))));
    }

    /** Any int; 0, 1, -1 and the ends of its range more often. */
    int number();
    /** Any double; not a number, infinite, 0 and numbers beyond an int more often. */
    double real();
    /** A side of a widget: mostly small, also 0, negative or the largest there is. */
    int side();
    /** A number that might be taken for an address. */
    qulonglong address();
    QChar character();
    /** At most a few hundred characters: empty, wide, unprintable, halves of surrogates, markup. */
    QString text();
    /** A megabyte of such characters. */
    QString megabyte();
    QStringList texts();
    QColor color();
    QFont font();
    QPalette palette();
    QString styleSheet();
    QPoint point();
    QRect rect();
    /** In and near a widget of @p size; sometimes far off or not a number. */
    QPointF place(QSize size);
    /** In and near a widget of @p size. */
    QPoint pixel(QSize size);
    /** A value of any type. */
    QVariant variant();

private:
    QVariant container();

    std::mt19937_64 m_engine;
};
