// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/** What libFuzzer, and the program that replays the corpora, call. */
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

/** Takes an input apart; what is missing at its end is 0. */
class FuzzInput
{
public:
    FuzzInput(const uint8_t *data, size_t size)
        : m_data(reinterpret_cast<const char *>(data), int(size))
    { }

    bool isEmpty() const
    {
        return m_position >= m_data.size();
    }
    int byte()
    {
        return isEmpty() ? 0 : uchar(m_data.at(m_position++));
    }
    int word()
    {
        const int low = byte();
        return low | byte() << 8;
    }
    int number()
    {
        const uint low = uint(word());
        return int(low | uint(word()) << 16);
    }
    /** The rest, as UTF-16, so that every character can come, halves of surrogates too. */
    QString text(int most)
    {
        QString made;
        while (!isEmpty() && made.size() < most) {
            made.append(QChar(ushort(word())));
        }
        return made;
    }

private:
    QByteArray m_data;
    int m_position = 0;
};

/** Ends the program unless @p holds. */
inline void require(bool holds, const char *rule)
{
    if (!holds) {
        std::fprintf(stderr, "broken: %s\n", rule);
        std::abort();
    }
}
