// SPDX-License-Identifier: MIT
#include "painting/caption_p.h"

#include "painting/canvas_p.h"
#include "painting/pixelcache_p.h"

#include <OlvWidgets/foundation.h>

#include <QGuiApplication>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPointer>
#include <QScreen>

#include <array>
#include <atomic>
#include <memory>
#include <utility>

namespace {

constexpr int bytesOfAll = 1024 * 1024;
/** Above it Qt draws glyphs as outlines, whose pixels may depend on where they are. */
constexpr int largestPixelSize = 48;
constexpr int pointsPerInch = 72;
/** Longer ones do not fit between the edges of a button, and would take room for nothing. */
constexpr int longestText = 256;
constexpr int bytesOfCharacter = 2;
constexpr int bytesOfFont = 256;

/** The formats that a window's pixels have. */
bool isWindowFormat(QImage::Format format)
{
    return format == QImage::Format_RGB32 || format == QImage::Format_ARGB32_Premultiplied;
}

/** The scale that a text is measured by, wherever it is drawn. */
int measuringDotsPerInch()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? qRound(screen->logicalDotsPerInchY()) : 0;
}

/** Whether all of @p area, which is in pixels of the device, is being drawn. */
bool isExposed(const QPainter &painter, const QRect &area, const QImage &target)
{
    const QRegion clip = painter.paintEngine()->systemClip();
    return target.rect().contains(area) && (clip.isEmpty() || (QRegion(area) - clip).isEmpty());
}

/** What Qt looks for in place of @p family, and of those that a widget's font names besides. */
QVector<QStringList> substitutesFor(const QString &family, const QFont &widgetFont)
{
    QVector<QStringList> substitutes{ QFont::substitutes(family) };
#if QT_VERSION >= QT_VERSION_CHECK(5, 13, 0)
    const QStringList others = widgetFont.families();
    for (const QString &other : others) {
        substitutes.append(QFont::substitutes(other));
    }
#else
    Q_UNUSED(widgetFont)
#endif
    return substitutes;
}

/** The rectangle around all in which two pictures differ. */
QRect changeBetween(const QImage &before, const QImage &after)
{
    QRect change;
    for (int y = 0; y < after.height(); ++y) {
        const auto *old = reinterpret_cast<const QRgb *>(before.constScanLine(y));
        const auto *pixels = reinterpret_cast<const QRgb *>(after.constScanLine(y));
        for (int x = 0; x < after.width(); ++x) {
            if (pixels[x] != old[x]) {
                change |= QRect(x, y, 1, 1);
            }
        }
    }
    return change;
}

} // namespace

/** All that the pixels depend on. */
struct Caption::Key
{
    QString text;
    QString family;
    QVector<QStringList> substitutes;
    QFont widgetFont;
    Shape ground;
    int lineWidth;
    quint64 groundColor; ///< as a QRgba64, like the text's
    quint64 color;
    int pointSize;
    int measuringDotsPerInch;
    int dotsPerInchX;
    int dotsPerInchY;
    QImage::Format format;
    QPainter::RenderHints hints;
    Qt::LayoutDirection direction;

    friend bool operator==(const Key &a, const Key &b)
    {
        return a.text == b.text && a.ground == b.ground && a.lineWidth == b.lineWidth
            && a.groundColor == b.groundColor && a.color == b.color && a.pointSize == b.pointSize
            && a.measuringDotsPerInch == b.measuringDotsPerInch && a.dotsPerInchX == b.dotsPerInchX
            && a.dotsPerInchY == b.dotsPerInchY && a.format == b.format && a.hints == b.hints
            && a.direction == b.direction && a.family == b.family && a.substitutes == b.substitutes
            && a.widgetFont == b.widgetFont;
    }

    friend uint qHash(const Key &key, uint seed)
    {
        const QRect box = key.ground.rect();
        const std::array<quint64, 4> numbers{ quint64(box.width()), quint64(box.height()),
                                              key.color, key.groundColor };
        return qHashRange(numbers.cbegin(), numbers.cend(), ::qHash(key.text, seed));
    }
};

/** What a text has changed of its ground; nothing of it where the ground is not plain there. */
class Caption::Pixels
{
public:
    /** @p before and @p after are those of the box of @p key; @p fonts were asked for in between.
     */
    Pixels(const QImage &before, const QImage &after, const Key &key, const QVector<QFont> &fonts)
        : m_rect(changeBetween(before, after))
        , m_fonts(fonts)
        , m_bytes(int(sizeof(Key)) + bytesOfCharacter * key.text.size()
                  + bytesOfFont * fonts.size())
    {
        const QRect inBox = m_rect;
        m_rect.translate(key.ground.rect().topLeft());
        m_isUsable = m_rect.isEmpty() || key.ground.isPlain(m_rect, key.lineWidth);
        if (m_isUsable && !m_rect.isEmpty()) {
            m_image = after.copy(inBox);
            // opaque: told so, Qt copies and blends nothing
            m_image.reinterpretAsFormat(QImage::Format_RGB32);
        }
    }
    Q_DISABLE_COPY(Pixels)

    int bytes() const
    {
        return m_bytes + int(m_image.sizeInBytes());
    }

    bool draw(QPainter &painter) const
    {
        if (!m_image.isNull()) {
            painter.drawImage(m_rect.topLeft(), m_image);
        }
        return m_isUsable;
    }

private:
    QRect m_rect;
    bool m_isUsable;
    QImage m_image;
    /** As long as there is a font that has it, Qt goes on drawing with what it found for it. */
    QVector<QFont> m_fonts;
    int m_bytes;
};

/** The captions that are kept, as long as the program's fonts stay the same. */
class Caption::Store
{
public:
    static Store &instance()
    {
        static Store store;
        if (store.m_application != qApp) {
            store.follow(qApp);
        }
        if (store.m_isOutdated.exchange(false)) {
            store.pixels.clear();
        }
        return store;
    }
    ~Store()
    {
        QObject::disconnect(m_connection);
    }
    Q_DISABLE_COPY(Store)

    PixelCache<Key, Pixels> pixels{ bytesOfAll };

private:
    Store() = default;

    void follow(QCoreApplication *application)
    {
        pixels.clear();
        m_application = application;
        // a font may be registered in any thread
        m_connection = QObject::connect(
            qGuiApp, &QGuiApplication::fontDatabaseChanged, qGuiApp,
            [this] { m_isOutdated = true; }, Qt::DirectConnection);
    }

    std::atomic<bool> m_isOutdated{ false };
    QPointer<QCoreApplication> m_application;
    QMetaObject::Connection m_connection;
};

void Caption::draw(const Canvas &canvas, const CaptionGround &ground) const
{
    QPainter &painter = canvas.painter();
    const QImage *target = canvas.copyTarget();
    if (!target || !mayBeKept(ground, *target)) {
        write(painter, ground);
        return;
    }
    const Key key = keyOf(painter, ground, target->format());
    PixelCache<Key, Pixels> &cache = Store::instance().pixels;
    const Pixels *cached = cache.find(key);
    if (!cached && cache.admits(key)) {
        writeAndInsert(painter, ground, *target, key);
    } else if (!cached || !cached->draw(painter)) {
        write(painter, ground);
    }
}

bool Caption::mayBeKept(const CaptionGround &ground, const QImage &target) const
{
    return isWindowFormat(target.format()) && ground.color.rgba64().isOpaque()
        && text.size() <= longestText
        && Store::instance().pixels.accepts(ground.shape.rect().size());
}

Caption::Key Caption::keyOf(const QPainter &painter, const CaptionGround &ground,
                            QImage::Format format) const
{
    return { text,
             family,
             substitutesFor(family, painter.font()),
             painter.font(),
             ground.shape,
             ground.lineWidth,
             ground.color.rgba64(),
             color.rgba64(),
             pointSize,
             measuringDotsPerInch(),
             painter.device()->logicalDpiX(),
             painter.device()->logicalDpiY(),
             format,
             painter.renderHints(),
             painter.layoutDirection() };
}

void Caption::writeAndInsert(QPainter &painter, const CaptionGround &ground, const QImage &target,
                             Key key) const
{
    const QTransform &transform = painter.deviceTransform();
    const QRect area = ground.shape.rect().translated(int(transform.dx()), int(transform.dy()));
    if (!isExposed(painter, area, target)
        || pointSize * key.dotsPerInchY > largestPixelSize * pointsPerInch) {
        write(painter, ground);
        return;
    }
    // taken from where Qt has written it: into an image apart it would smooth the glyphs otherwise
    const QImage before = target.copy(area);
    const int fittingSize = write(painter, ground);
    QVector<QFont> fonts{ painter.font() };
    for (int size = fittingSize; size <= pointSize; ++size) {
        const QFont tried(family, size);
        QFontMetrics(tried).height(); // finds it, as measuring did
        fonts.append(tried);
    }
    // its characters may be a constant of a plugin, which may be unloaded
    key.text.detach();
    auto pixels = std::make_unique<Pixels>(before, target.copy(area), key, fonts);
    Store::instance().pixels.insert(key, std::move(pixels));
}

int Caption::write(QPainter &painter, const CaptionGround &ground) const
{
    const QRect box = ground.shape.rect();
    QFont font(family, pointSize);
    font.setPointSize(OlvGlobal::adaptDocumentToPointSize(text, box.size(), font));
    painter.setPen(color);
    painter.setFont(font);
    painter.drawText(box, Qt::AlignCenter, text);
    return font.pointSize();
}
