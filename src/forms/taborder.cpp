// SPDX-License-Identifier: MIT
#include "forms/taborder_p.h"

#include <algorithm>

namespace {

/** Moves a widget behind another one, which QWidget::setTabOrder() refuses if that has no focus. */
void moveBehind(QWidget *before, QWidget *widget)
{
    const Qt::FocusPolicy policy = before->focusPolicy();
    const bool isSkipped = policy == Qt::NoFocus && !before->focusProxy();
    if (isSkipped) {
        before->setFocusPolicy(Qt::TabFocus);
    }
    QWidget::setTabOrder(before, widget);
    if (isSkipped) {
        before->setFocusPolicy(policy);
    }
}

} // namespace

void TabOrder::bring(QWidget *text, QWidget *frame)
{
    if (frame->nextInFocusChain() == text) {
        return;
    }
    const auto hasGone = [](const Move &move) {
        return !move.text;
    };
    m_moves.erase(std::remove_if(m_moves.begin(), m_moves.end(), hasGone), m_moves.end());
    m_moves.append({ text, frame, text->previousInFocusChain() });
    QWidget::setTabOrder(frame, text);
}

void TabOrder::restore()
{
    for (int i = int(m_moves.size()) - 1; i >= 0; --i) {
        const Move move = m_moves.at(i);
        if (move.text && move.frame && move.frame->focusProxy() == move.text) {
            continue;
        }
        m_moves.remove(i);
        const bool isWhereItWasMoved =
            move.text && move.frame && move.frame->nextInFocusChain() == move.text;
        if (isWhereItWasMoved && move.before && move.before->window() == move.text->window()) {
            moveBehind(move.before, move.text);
        }
    }
}
