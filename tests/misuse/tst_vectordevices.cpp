// SPDX-License-Identifier: MIT
#include "deferred.h"
#include "everywidget.h"
#include "mouse.h"
#include "pointer.h"
#include "testprogram.h"
#include "unheard.h"

#include <QBuffer>
#include <QPainter>
#include <QPicture>
#include <QPrinter>
#include <QRegularExpression>
#include <QSvgGenerator>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <memory>

namespace {

void renderOn(QPaintDevice &device, QWidget &widget)
{
    QPainter painter;
    QVERIFY(painter.begin(&device));
    widget.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
    QVERIFY(painter.end());
}

QByteArray print(QWidget &widget)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("page.pdf"));
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    renderOn(printer, widget);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return QByteArray();
    }
    // all but the time at which it was written
    const QByteArray all = file.readAll();
    QString text = QString::fromLatin1(all.constData(), all.size());
    return text.remove(QRegularExpression(QStringLiteral("/CreationDate[^\n]*\n"))).toLatin1();
}

QByteArray record(QWidget &widget)
{
    QPicture picture;
    renderOn(picture, widget);
    return QByteArray(picture.data(), int(picture.size()));
}

QByteArray drawSvg(QWidget &widget)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(widget.logicalDpiX());
    generator.setSize(widget.size());
    generator.setViewBox(QRect(QPoint(0, 0), widget.size()));
    renderOn(generator, widget);
    return buffer.data();
}

/** White, as large as a widget, and of as many dots per inch. */
QImage paperFor(const QWidget &widget)
{
    constexpr double metresPerInch = 0.0254;
    QImage image(widget.size(), QImage::Format_RGB32);
    image.setDotsPerMeterX(qRound(widget.logicalDpiX() / metresPerInch));
    image.setDotsPerMeterY(qRound(widget.logicalDpiY() / metresPerInch));
    image.fill(Qt::white);
    return image;
}

QImage shown(const QByteArray &svg, const QWidget &widget)
{
    QImage image = paperFor(widget);
    QPainter painter(&image);
    QSvgRenderer renderer(svg);
    renderer.render(&painter, QRectF(widget.rect()));
    return image;
}

QImage played(const QByteArray &commands, const QWidget &widget)
{
    QPicture picture;
    picture.setData(commands.constData(), uint(commands.size()));
    QImage image = paperFor(widget);
    QPainter painter(&image);
    picture.play(&painter);
    return image;
}

/** How far apart two images are, seen from afar, since the edges of glyphs are smoothed otherwise.
 */
qint64 distance(const QImage &one, const QImage &other)
{
    constexpr int shrunk = 4;
    const QSize size(qMax(1, one.width() / shrunk), qMax(1, one.height() / shrunk));
    const QImage a = one.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QImage b = other.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    qint64 sum = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            sum += qAbs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
        }
    }
    return sum;
}

QImage moved(const QImage &image, int down)
{
    QImage paper(image.size(), image.format());
    paper.fill(Qt::white);
    QPainter(&paper).drawImage(0, down, image);
    return paper;
}

/** Whether an image shows what the screen does; texts may be a pixel higher or lower. */
bool looksLike(const QImage &image, const QImage &screen)
{
    QImage blank(screen.size(), screen.format());
    blank.fill(Qt::white);
    const qint64 ink = distance(screen, blank);
    const qint64 off = std::min({ distance(image, screen), distance(moved(image, -1), screen),
                                  distance(moved(image, 1), screen) });
    constexpr int part = 2;
    return ink == 0 ? off == 0 : off * part < ink;
}

QImage onScreen(QWidget &widget)
{
    QImage image = paperFor(widget);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

/** What the user does to a widget before it is rendered. */
using Prepare = void (*)(QWidget &widget);

void rest(QWidget & /*widget*/) { }

void hover(QWidget &widget)
{
    Pointer::enter(widget);
}

void press(QWidget &widget)
{
    Pointer::enter(widget);
    Mouse::press(&widget, { 5, 5 });
}

void disable(QWidget &widget)
{
    widget.setEnabled(false);
}

} // namespace

Q_DECLARE_METATYPE(Prepare)

/** Devices that are no images get what the screen shows. */
class TestVectorDevices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();
    void cleanup();
    void pagesHaveWhatIsShown();
    void picturesShowTheSame();
    void svgShowsTheSame();

private:
    // which Qt does when it shows a widget of a fixed size
    std::unique_ptr<Unheard> m_unheard;
    std::unique_ptr<QWidget> m_widget;
    std::unique_ptr<QWidget> m_empty; // as large, and with nothing to draw
};

void TestVectorDevices::initTestCase_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<Prepare>("prepare");
    const QVector<QPair<const char *, Prepare>> states{
        { "at rest", rest }, { "hovered", hover }, { "pressed", press }, { "disabled", disable }
    };
    for (int i = 0; i < everyWidget().size(); ++i) {
        for (const auto &state : states) {
            QTest::addRow("%s, %s", everyWidget().at(i).name, state.first) << i << state.second;
        }
    }
}

void TestVectorDevices::init()
{
    QFETCH_GLOBAL(int, kind);
    QFETCH_GLOBAL(Prepare, prepare);
    m_unheard = std::make_unique<Unheard>(
        QStringList{ QStringLiteral("This plugin does not support propagateSizeHints()") });
    m_widget.reset(everyWidget().at(kind).make(nullptr));
    m_widget->show();
    prepare(*m_widget);
    constexpr int untilCached = 3;
    for (int i = 0; i < untilCached; ++i) {
        onScreen(*m_widget);
    }
    m_empty = std::make_unique<QWidget>();
    m_empty->resize(m_widget->size());
}

void TestVectorDevices::cleanup()
{
    m_widget.reset();
    m_empty.reset();
    m_unheard.reset();
    runDeferred();
}

void TestVectorDevices::pagesHaveWhatIsShown()
{
    const bool isBlank = onScreen(*m_widget) == onScreen(*m_empty);
    const QByteArray page = print(*m_widget);
    QVERIFY(page.startsWith("%PDF"));
    QCOMPARE(page == print(*m_empty), isBlank);
    QCOMPARE(print(*m_widget), page);
}

void TestVectorDevices::picturesShowTheSame()
{
    QVERIFY(looksLike(played(record(*m_widget), *m_widget), onScreen(*m_widget)));
}

void TestVectorDevices::svgShowsTheSame()
{
    const QByteArray svg = drawSvg(*m_widget);
    QVERIFY(QSvgRenderer(svg).isValid());
    QVERIFY(looksLike(shown(svg, *m_widget), onScreen(*m_widget)));
}

ADD_TEST(TestVectorDevices, QApplication)
#include "tst_vectordevices.moc"
