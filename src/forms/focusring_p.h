// SPDX-License-Identifier: MIT
#pragma once

#include <QFocusFrame>
#include <QPointer>
#include <QVector>

/**
 * A ring around the widget that has the focus, in the palette's highlight colour.
 *
 * It lies above the widget in the window, or in the viewport that the widget is scrolled in, and
 * follows it. It is a QFocusFrame, which assistive programs leave out, which takes neither the
 * focus nor the mouse, and which comes into its parent without an event: a splitter would take any
 * other child for one of its own.
 */
class FocusRing : public QFocusFrame
{
public:
    FocusRing();

    /** Shows the ring around @p widget, with corners of @p radius pixels. */
    void surround(QWidget *widget, int radius);
    /** Takes the ring away; nothing where it is around another than @p widget. */
    void leave(const QWidget *widget);
    /** The widget that it is around; null while there is none. */
    QWidget *surrounded() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void watch();
    void unwatch();
    void place();
    QRect visibleArea() const;

    QPointer<QWidget> m_widget;
    int m_radius = 0;
    /** The widget, and those around it up to the one that the ring lies in. */
    QVector<QPointer<QWidget>> m_watched;
    QRect m_outline; ///< the outer edge of the ring, in coordinates of its parent
};
