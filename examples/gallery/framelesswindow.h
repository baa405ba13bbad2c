// SPDX-License-Identifier: MIT
#pragma once

#include <OlvControlBar>

#include <QWidget>

class OlvMoveWidget;
class OlvResizeWidget;

/**
 * A window that draws its own frame: a header with a title and the control bar, by which the user
 * moves it, handles at its edges, by which the user resizes it, and the content below the header.
 */
class FramelessWindow : public QWidget
{
public:
    FramelessWindow(const QString &title, QWidget *content);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void change(OlvControlBar::WindowState state, bool checked);
    void setFlag(Qt::WindowType flag, bool on);

    OlvControlBar *m_bar;
    OlvMoveWidget *m_mover;
    OlvResizeWidget *m_resizer;
};
