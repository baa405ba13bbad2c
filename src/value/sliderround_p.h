// SPDX-License-Identifier: MIT
#pragma once

#include <OlvWidgets/value.h>

#include "support/mirror_p.h"

#include <QPointer>

/** What a knob knows of its drag and of its slider. */
class SliderRound::Private
{
public:
    static Private *of(const SliderRound *knob)
    {
        return knob->d.get();
    }

    static constexpr int unknownProgress = -1;

    QPointer<QWidget> slider;
    Mirror mirror;
    int maxX = 0;
    bool pressed = false;
    bool follows = false;           // keeps to its percentage when the slider is resized
    int pressX = 0;                 // in the knob as it was before the press
    int progress = unknownProgress; // handed over last
};
