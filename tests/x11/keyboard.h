// SPDX-License-Identifier: MIT
#pragma once

#include "realinput.h"

#include <QString>
#include <QTest>

/** Keys by the names of X's keysymdef.h. */
namespace Symbol {

constexpr quint32 space = 0x20;
constexpr quint32 tab = 0xff09;
constexpr quint32 enter = 0xff0d;
constexpr quint32 escape = 0xff1b;
constexpr quint32 home = 0xff50;
constexpr quint32 left = 0xff51;
constexpr quint32 up = 0xff52;
constexpr quint32 right = 0xff53;
constexpr quint32 down = 0xff54;
constexpr quint32 pageUp = 0xff55;
constexpr quint32 pageDown = 0xff56;
constexpr quint32 end = 0xff57;
constexpr quint32 f5 = 0xffc2;
constexpr quint32 shift = 0xffe1;
constexpr quint32 control = 0xffe3;
constexpr quint32 alt = 0xffe9;

} // namespace Symbol

/** The keyboard of the X server, without the pointer. */
class Keyboard
{
public:
    bool isValid() const
    {
        return m_input.isValid();
    }

    void press(quint32 symbol)
    {
        // A press in the same millisecond as the release before it counts as the repetition of a
        // held key.
        QTest::qWait(5);
        m_input.pressKey(symbol);
    }
    void release(quint32 symbol)
    {
        m_input.releaseKey(symbol);
    }
    void click(quint32 symbol)
    {
        press(symbol);
        release(symbol);
    }
    void clickWith(quint32 modifier, quint32 symbol)
    {
        press(modifier);
        click(symbol);
        release(modifier);
    }
    /** Types lower case letters of ASCII, whose symbols are their codes. */
    void type(const QString &letters)
    {
        for (const QChar letter : letters) {
            click(letter.unicode());
        }
    }

private:
    RealInput m_input;
};
