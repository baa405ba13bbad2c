// SPDX-License-Identifier: MIT
#pragma once

#include <OlvShortcut>

/** A shortcut that is granted on every platform, without being registered anywhere. */
class FreeShortcut : public OlvShortcut
{
public:
    using OlvShortcut::OlvShortcut;
    bool active() override
    {
        return true;
    }
};
