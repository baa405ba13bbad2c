// SPDX-License-Identifier: MIT
#include "painting/pixelcache_p.h"
#include "testprogram.h"

#include <QRandomGenerator>
#include <QTest>
#include <QWidget>

namespace {

constexpr int maxBytes = 3200;

/** Counts the bytes of all that exist. */
class Pixels
{
public:
    explicit Pixels(int bytes)
        : m_bytes(bytes)
    {
        existing += bytes;
    }
    ~Pixels()
    {
        existing -= m_bytes;
    }
    Q_DISABLE_COPY(Pixels)

    int bytes() const
    {
        return m_bytes;
    }

    static inline int existing = 0;

private:
    int m_bytes;
};

using Cache = PixelCache<int, Pixels>;

} // namespace

class TestPixelCache : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void acceptsAnEighthOfItsSize();
    void admitsAKeyAtItsSecondMiss();
    void evictsTheLeastRecentlyUsed();
    void staysWithinItsSize();
    void isEmptyAfterClear();
};

void TestPixelCache::acceptsAnEighthOfItsSize()
{
    const Cache cache(maxBytes); // an eighth of it is 100 pixels
    QVERIFY(cache.accepts(QSize(10, 10)));
    QVERIFY(cache.accepts(QSize(100, 1)));
    QVERIFY(!cache.accepts(QSize(101, 1)));
    QVERIFY(!cache.accepts(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX)));
}

void TestPixelCache::admitsAKeyAtItsSecondMiss()
{
    Cache cache(maxBytes);
    for (const bool isAdmitted : { false, true, false, true }) {
        QCOMPARE(cache.admits(7), isAdmitted);
    }
    QVERIFY(!cache.admits(8));
    QVERIFY(!cache.admits(9));
    QVERIFY(cache.admits(8));
}

void TestPixelCache::evictsTheLeastRecentlyUsed()
{
    Cache cache(maxBytes);
    for (const int key : { 1, 2, 3 }) {
        QVERIFY(!cache.find(key));
        cache.insert(key, std::make_unique<Pixels>(1000 + key));
    }
    QCOMPARE(cache.find(1)->bytes(), 1001);
    cache.insert(4, std::make_unique<Pixels>(1000));
    QVERIFY(!cache.find(2));
    for (const int key : { 1, 3, 4 }) {
        QVERIFY(cache.find(key));
    }
}

void TestPixelCache::staysWithinItsSize()
{
    Cache cache(maxBytes);
    QRandomGenerator random(5);
    for (int i = 0; i < 10000; ++i) {
        cache.insert(random.bounded(50), std::make_unique<Pixels>(random.bounded(maxBytes / 4)));
        QVERIFY(Pixels::existing <= maxBytes);
    }
    QVERIFY(Pixels::existing > maxBytes / 2);
    cache.insert(50, std::make_unique<Pixels>(maxBytes + 1));
    QVERIFY(!cache.find(50));
    QVERIFY(Pixels::existing <= maxBytes);
}

void TestPixelCache::isEmptyAfterClear()
{
    Cache cache(maxBytes);
    cache.insert(1, std::make_unique<Pixels>(10));
    cache.clear();
    QVERIFY(!cache.find(1));
    QCOMPARE(Pixels::existing, 0);
}

ADD_TEST(TestPixelCache, NoApplication)
#include "tst_pixelcache.moc"
