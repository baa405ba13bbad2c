// SPDX-License-Identifier: MIT
#pragma once

#include <QCache>
#include <QSize>

#include <array>

/**
 * What has been rasterised, bounded in its bytes; what was not asked for the longest goes first.
 *
 * A @p Key has operator==() and qHash(); @p Pixels tell their bytes().
 */
template <typename Key, typename Pixels> class KeptPixels
{
public:
    explicit KeptPixels(int bytes)
        : m_kept(bytes)
    { }

    /** Whether an image is worth keeping: a few large ones would drive out all others. */
    bool isSmall(QSize size) const
    {
        return qint64(size.width()) * size.height() * bytesOfPixel <= m_kept.maxCost() / 8;
    }

    /**
     * The pixels of @p key, which @p make made, unless it made none; null at the first request:
     * what comes only once, as the many sizes do while a window is resized, is drawn directly and
     * drives out nothing.
     */
    template <typename Make> const Pixels *find(const Key &key, Make make)
    {
        if (const Pixels *kept = m_kept.object(key)) {
            return kept;
        }
        const uint hash = qHash(key, 0);
        uint &requested = m_requested[hash % rememberedRequests];
        if (requested != hash) {
            requested = hash;
            return nullptr;
        }
        requested = 0; // what has been driven out since is to come twice again
        Key kept = key;
        Pixels *pixels = make(kept);
        // one that is larger than all that may be kept is gone at once
        return pixels && m_kept.insert(kept, pixels, pixels->bytes()) ? pixels : nullptr;
    }

    void clear()
    {
        m_kept.clear();
    }

private:
    static constexpr int bytesOfPixel = 4;
    static constexpr size_t rememberedRequests = 256;

    QCache<Key, Pixels> m_kept;
    /** The hashes of requests that came once. */
    std::array<uint, rememberedRequests> m_requested{};
};
