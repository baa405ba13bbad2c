// SPDX-License-Identifier: MIT
#include <OlvWidgets/foundation.h>

OlvInt::OlvInt(int &&value)
    : m_value(value)
{ }

OlvInt &OlvInt::setRange(int max, int min)
{
    m_max = max;
    if (min != 0) {
        m_min = min;
    }
    return *this;
}

OlvInt &OlvInt::setMin(int min)
{
    m_min = min;
    return *this;
}

OlvInt &OlvInt::setMax(int max)
{
    m_max = max;
    return *this;
}

OlvInt &OlvInt::operator=(int value)
{
    m_value = value;
    return *this;
}

OlvInt &OlvInt::operator++()
{
    // compared before adding: the largest int has no successor
    m_value = m_value >= m_max ? m_min : m_value + 1;
    return *this;
}

OlvInt OlvInt::operator++(int)
{
    const OlvInt before = *this;
    ++*this;
    return before;
}

OlvInt::operator int() const
{
    return m_value;
}
