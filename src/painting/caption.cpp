// SPDX-License-Identifier: MIT
#include "painting/caption_p.h"

#include "painting/canvas_p.h"
#include "painting/pixelcache_p.h"

#include <OlvWidgets/foundation.h>

#include <QGuiApplication>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QScreen>

#include <array>
#include <atomic>
#include <memory>
#include <utility>

namespace {

constexpr int maxCaptionBytes = 1024 * 1024;
constexpr int maxLength = 256;
/** What a cached caption takes besides its image: the key, and in it the text. */
constexpr int bytesPerKey = 1024;
/** Qt draws larger glyphs as paths, whose pixels may depend on their position. */
constexpr int maxPixelSize = 48;
constexpr int pointsPerInch = 72;

/** The scale in which texts are measured, whatever they are drawn on. */
int measuringDotsPerInch()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? qRound(screen->logicalDotsPerInchY()) : 0;
}

/** What Qt looks for in place of @p family, and of the families that @p font names besides. */
QStringList substitutes(const QString &family, const QFont &font)
{
    QStringList substitutes = QFont::substitutes(family);
#if QT_VERSION >= QT_VERSION_CHECK(5, 13, 0)
    const QStringList others = font.families();
    for (const QString &other : others) {
        substitutes += QFont::substitutes(other);
    }
#else
    Q_UNUSED(font)
#endif
    return substitutes;
}

/** Where @p rect lies on the copy target: a painter that copies moves by whole pixels. */
QRect onTarget(const Canvas &canvas, const QRect &rect)
{
    const QTransform &transform = canvas.painter().deviceTransform();
    return rect.translated(int(transform.dx()), int(transform.dy()));
}

/** Whether all of @p rect is drawn at this paint. */
bool isExposed(const Canvas &canvas, const QRect &rect)
{
    const QRect area = onTarget(canvas, rect);
    const QRegion clip = canvas.painter().paintEngine()->systemClip();
    return canvas.copyTarget()->rect().contains(area)
        && (clip.isEmpty() || (QRegion(area) - clip).isEmpty());
}

/** The rectangle around all pixels in which two images differ. */
QRect changedRect(const QImage &before, const QImage &after)
{
    QRect changed;
    for (int y = 0; y < after.height(); ++y) {
        const auto *old = reinterpret_cast<const QRgb *>(before.constScanLine(y));
        const auto *pixels = reinterpret_cast<const QRgb *>(after.constScanLine(y));
        for (int x = 0; x < after.width(); ++x) {
            if (pixels[x] != old[x]) {
                changed |= QRect(x, y, 1, 1);
            }
        }
    }
    return changed;
}

/** What the pixels of a caption depend on. */
struct Key
{
    QString text;
    QString family;
    QStringList substitutes;
    QFont widgetFont;
    Shape ground;
    std::array<quint64, 2> colors; ///< of the text and of the ground, as QRgba64
    std::array<int, 10> numbers;   ///< sizes, scales and the painter's state

    friend bool operator==(const Key &a, const Key &b)
    {
        return a.text == b.text && a.numbers == b.numbers && a.colors == b.colors
            && a.ground == b.ground && a.family == b.family && a.substitutes == b.substitutes
            && a.widgetFont == b.widgetFont;
    }
    friend QtVersion::Hash qHash(const Key &key, QtVersion::Hash seed)
    {
        const QtVersion::Hash hash =
            qHashRange(key.colors.cbegin(), key.colors.cend(), ::qHash(key.text, seed));
        return qHashRange(key.numbers.cbegin(), key.numbers.cend(), hash);
    }
};

/** The pixels that a caption has changed. */
struct Pixels
{
    QPoint topLeft;
    QImage image; ///< null for a caption that is written at each paint

    int bytes() const
    {
        return bytesPerKey + int(image.sizeInBytes());
    }
};

/** The cache; it is emptied when the fonts of the program have changed. */
PixelCache<Key, Pixels> &captionCache()
{
    // never destroyed: a widget may be painted while the program destroys its statics
    static auto *const cache = new PixelCache<Key, Pixels>(maxCaptionBytes);
    static auto *const connection = new QMetaObject::Connection;
    static std::atomic<bool> isOutdated{ false };
    if (!*connection) { // at the first paint, and when there is another application
        isOutdated = true;
        // a font may be registered in any thread
        *connection = QObject::connect(
            qGuiApp, &QGuiApplication::fontDatabaseChanged, qGuiApp, [] { isOutdated = true; },
            Qt::DirectConnection);
    }
    if (isOutdated.exchange(false)) {
        cache->clear();
    }
    return *cache;
}

bool isCacheable(const Canvas &canvas, const Caption &caption, const CaptionGround &ground)
{
    return canvas.copyTarget() && ground.color.rgba64().isOpaque()
        && caption.text.size() <= maxLength
        && caption.pointSize * canvas.painter().device()->logicalDpiY()
        <= maxPixelSize * pointsPerInch;
}

Key keyOf(const Canvas &canvas, const Caption &caption, const CaptionGround &ground)
{
    const QPainter &painter = canvas.painter();
    const QPaintDevice *device = painter.device();
    return { caption.text,
             caption.family,
             substitutes(caption.family, painter.font()),
             painter.font(),
             ground.shape,
             { caption.color.rgba64(), ground.color.rgba64() },
             { ground.shape.rect().width(), ground.shape.rect().height(), ground.lineWidth,
               caption.pointSize, measuringDotsPerInch(), device->logicalDpiX(),
               device->logicalDpiY(), canvas.copyTarget()->format(), int(painter.renderHints()),
               painter.layoutDirection() } };
}

void write(QPainter &painter, const Caption &caption, const CaptionGround &ground)
{
    const QRect box = ground.shape.rect();
    QFont font(caption.family, caption.pointSize);
    font.setPointSize(OlvGlobal::adaptDocumentToPointSize(caption.text, box.size(), font));
    painter.setPen(caption.color);
    painter.setFont(font);
    painter.drawText(box, Qt::AlignCenter, caption.text);
}

/** Writes the caption, and returns the pixels that it has changed. */
std::unique_ptr<Pixels> writeAndCapture(const Canvas &canvas, const Caption &caption,
                                        const CaptionGround &ground)
{
    const QRect box = ground.shape.rect();
    const QRect area = onTarget(canvas, box);
    // from the target itself, since Qt smooths glyphs otherwise in an image apart
    const QImage before = canvas.copyTarget()->copy(area);
    write(canvas.painter(), caption, ground);
    const QImage after = canvas.copyTarget()->copy(area);
    const QRect changed = changedRect(before, after);
    auto pixels = std::make_unique<Pixels>();
    pixels->topLeft = box.topLeft() + changed.topLeft();
    if (ground.shape.isPlain(QRect(pixels->topLeft, changed.size()), ground.lineWidth)) {
        pixels->image = after.copy(changed);
        // opaque, so that Qt copies it without blending
        pixels->image.reinterpretAsFormat(QImage::Format_RGB32);
    }
    return pixels;
}

} // namespace

void Caption::draw(const Canvas &canvas, const CaptionGround &ground) const
{
    QPainter &painter = canvas.painter();
    PixelCache<Key, Pixels> &cache = captionCache();
    if (!isCacheable(canvas, *this, ground) || !cache.accepts(ground.shape.rect().size())) {
        write(painter, *this, ground);
        return;
    }
    Key key = keyOf(canvas, *this, ground);
    const Pixels *cached = cache.find(key);
    if (cached && !cached->image.isNull()) {
        painter.drawImage(cached->topLeft, cached->image);
    } else if (!cached && isExposed(canvas, ground.shape.rect()) && cache.admits(key)) {
        auto pixels = writeAndCapture(canvas, *this, ground);
        // its characters may be a constant of a plugin, which may be unloaded
        key.text.detach();
        cache.insert(key, std::move(pixels));
    } else {
        write(painter, *this, ground);
    }
}
