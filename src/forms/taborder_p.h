// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QVector>
#include <QWidget>

/** The order of the tabs, in which the text of a line edit is to follow its frame. */
class TabOrder
{
public:
    /** Moves @p text behind @p frame, unless it is there. Sends no event. */
    void bring(QWidget *text, QWidget *frame);
    /**
     * Moves the texts back whose frames no longer have them as their focus proxy, the one that was
     * moved last first. One that the application has moved since stays. Sends no event.
     */
    void restore();

private:
    struct Move
    {
        QPointer<QWidget> text;
        QPointer<QWidget> frame;
        QPointer<QWidget> before; ///< what the text came after
    };

    QVector<Move> m_moves;
};
