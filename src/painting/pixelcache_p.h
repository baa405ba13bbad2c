// SPDX-License-Identifier: MIT
#pragma once

#include "support/qtversion_p.h"

#include <QCache>
#include <QSize>

#include <array>
#include <memory>

/**
 * Rasterised pixels, bounded in their bytes: the least recently used are evicted first.
 *
 * A @p Key has operator==() and qHash(); @p Pixels tell their bytes().
 */
template <typename Key, typename Pixels> class PixelCache
{
public:
    explicit PixelCache(int maxBytes)
        : m_entries(maxBytes)
    { }

    /** Whether an image is small enough: a few large ones would evict all others. */
    bool accepts(QSize size) const
    {
        return qint64(size.width()) * size.height() * bytesPerPixel <= m_entries.maxCost() / 8;
    }

    /** The pixels of @p key, which are now the most recently used; null on a miss. */
    const Pixels *find(const Key &key) const
    {
        return m_entries.object(key);
    }

    /**
     * To be asked after each miss: whether @p key is worth inserting. It is at its second miss.
     * What comes only once, as the many sizes do while a window is resized, evicts nothing.
     */
    bool admits(const Key &key)
    {
        const QtVersion::Hash hash = qHash(key, 0);
        QtVersion::Hash &missed = m_missed[hash % m_missed.size()];
        const bool isSecondMiss = missed == hash;
        missed = isSecondMiss ? 0 : hash; // once evicted, it has to miss twice again
        return isSecondMiss;
    }

    /** Inserts @p pixels, or deletes them if they take more bytes than the whole cache may. */
    void insert(const Key &key, std::unique_ptr<Pixels> pixels)
    {
        const int bytes = pixels->bytes();
        m_entries.insert(key, pixels.release(), bytes);
    }

    void clear()
    {
        m_entries.clear();
    }

private:
    static constexpr int bytesPerPixel = 4;

    QCache<Key, Pixels> m_entries;
    /** The hashes of keys that have missed once, at a place of each hash's own. */
    std::array<QtVersion::Hash, 256> m_missed{};
};
