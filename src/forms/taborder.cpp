// SPDX-License-Identifier: MIT
#include "forms/taborder_p.h"

#include <algorithm>

namespace {

/** A widget that takes the focus for as long as this exists. */
class FocusTaker
{
public:
    explicit FocusTaker(QWidget *widget)
        : m_widget(widget)
        , m_policy(widget->focusPolicy())
        , m_isChanged(m_policy == Qt::NoFocus && !widget->focusProxy())
    {
        if (m_isChanged) {
            m_widget->setFocusPolicy(Qt::TabFocus);
        }
    }
    ~FocusTaker()
    {
        if (m_isChanged) {
            m_widget->setFocusPolicy(m_policy);
        }
    }
    Q_DISABLE_COPY(FocusTaker)

private:
    QWidget *m_widget;
    Qt::FocusPolicy m_policy;
    bool m_isChanged;
};

/**
 * Moves a widget behind another one. QWidget::setTabOrder() does not, if that one takes no focus,
 * or if none does that lies between them.
 */
void moveBehind(QWidget *before, QWidget *widget)
{
    const FocusTaker first(before);
    const FocusTaker next(before->nextInFocusChain());
    QWidget::setTabOrder(before, widget);
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
    moveBehind(frame, text);
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
