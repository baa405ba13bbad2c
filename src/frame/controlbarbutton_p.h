// SPDX-License-Identifier: MIT
#pragma once

#include "support/accessibility_p.h"
#include "support/owntooltip_p.h"

#include <QEvent>
#include <QPushButton>

/**
 * A button of an OlvControlBar, which accessibility tells from other buttons by this class. It has
 * no meta-object of its own: style sheets and programs go on to find a QPushButton.
 */
class ControlBarButton : public QPushButton
{
public:
    explicit ControlBarButton(QWidget *bar)
        : QPushButton(bar)
    {
        Accessibility::prepare(this);
    }

    /** Sets the tool tip to one of the bar's own texts, which follows the language. */
    void setOwnToolTip(const char *text)
    {
        m_tip.set(this, "OlvControlBar", text);
    }

protected:
    void changeEvent(QEvent *event) override
    {
        QPushButton::changeEvent(event);
        if (event->type() == QEvent::LanguageChange) {
            m_tip.retranslate(this);
        }
    }

private:
    OwnToolTip m_tip;
};
