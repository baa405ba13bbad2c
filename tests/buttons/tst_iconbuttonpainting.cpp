// SPDX-License-Identifier: MIT
#include "paintwatch.h"
#include "pixels.h"
#include "pointer.h"
#include "testprogram.h"
#include "tile.h"

#include <QPainter>
#include <QTest>

class TestIconButtonPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settersStoreAndRepaintNothing();
    void repaintsAtEveryEventOfThePointer();
    void draws_data();
    void draws();
    void hoverInvertsTheRedOfTheAccent_data();
    void hoverInvertsTheRedOfTheAccent();
    void drawsOnlyTheFrameWithoutAGlyph();
};

void TestIconButtonPainting::settersStoreAndRepaintNothing()
{
    Tile tile;
    PaintWatch watch(tile);
    QVERIFY(watch.showWindow());
    tile.setFontFamily(QStringLiteral("other"));
    tile.setIcon(QLatin1Char('y'));
    tile.setText(QStringLiteral("else"));
    tile.setColor(QColor(1, 2, 3, 4));
    tile.setCheckable(true);
    tile.setValue(12);
    QCOMPARE(watch.take(), {});
    QCOMPARE(tile.property("family"), QVariant(QStringLiteral("other")));
    QCOMPARE(tile.icon(), QChar(QLatin1Char('y')));
    QCOMPARE(tile.property("text"), QVariant(QStringLiteral("else")));
    QCOMPARE(tile.property("color").toUInt(), 0x04010203U);
    QCOMPARE(tile.property("isCheckable"), QVariant(true));
}

void TestIconButtonPainting::repaintsAtEveryEventOfThePointer()
{
    Tile tile;
    PaintWatch watch(tile);
    QVERIFY(watch.showWindow());
    for (const char *event : { "enter", "leave", "press", "release", "enter", "press", "release",
                               "press", "leave", "release" }) {
        Pointer::play(tile, QLatin1String(event));
        QCOMPARE(watch.takeWhole(), 1);
    }
}

void TestIconButtonPainting::draws_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("state");
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<bool>("checked");
    for (const QSize size : { QSize(100, 100), QSize(50, 50), QSize(81, 120), QSize(3, 3) }) {
        for (const char *state : { "init", "hover", "click", "other" }) {
            for (int flags = 0; flags < 4; ++flags) {
                QTest::addRow("%d x %d %s %d", size.width(), size.height(), state, flags)
                    << size << QString::fromLatin1(state) << bool(flags & 1) << bool(flags & 2);
            }
        }
    }
}

void TestIconButtonPainting::draws()
{
    QFETCH(QSize, size);
    QFETCH(QString, state);
    QFETCH(bool, checkable);
    QFETCH(bool, checked);
    Tile tile(size);
    tile.setColor(QColor(200, 50, 100, 130));
    tile.setProperty("state", state);
    tile.setProperty("isCheckable", checkable);
    tile.setProperty("isChecked", checked);

    QColor pen(198, 198, 198);
    if (state == QLatin1String("click") || (checkable && checked)) {
        pen = QColor(200, 50, 100, 255);
    } else if (state == QLatin1String("hover")) {
        pen = QColor(0, 50, 100, 130);
    }
    const int part = size.width() / 4;
    DrawnWidget expected(size, [=](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(pen);
        painter.setFont(QFont(QStringLiteral("FontAwesome"), qRound(part * 1.56)));
        painter.drawText(QRect(0, 0, size.width(), 3 * part), Qt::AlignCenter,
                         QString(QChar(0xf0e0)));
        painter.setFont(QFont(QStringLiteral("新宋体"), qRound(part * 0.52)));
        painter.drawText(QRect(0, 3 * part, size.width(), part), Qt::AlignCenter,
                         QStringLiteral("邮件"));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(0, 0, size.width(), size.height()), 10, 10,
                                Qt::AbsoluteSize);
    });
    for (const qreal ratio : { 1.0, 2.0 }) {
        COMPARE_PICTURES(pictureOf(tile, ratio), pictureOf(expected, ratio));
    }
}

void TestIconButtonPainting::hoverInvertsTheRedOfTheAccent_data()
{
    QTest::addColumn<QColor>("accent");
    QTest::addColumn<QColor>("pen");
    QTest::newRow("white") << QColor(255, 255, 255) << QColor(0, 255, 255);
    QTest::newRow("the default") << QColor(0, 255, 255) << QColor(127, 255, 255);
    QTest::newRow("127 stays") << QColor(127, 1, 2) << QColor(127, 1, 2);
    QTest::newRow("128") << QColor(128, 1, 2) << QColor(0, 1, 2);
    QTest::newRow("126") << QColor(126, 1, 2) << QColor(127, 1, 2);
}

void TestIconButtonPainting::hoverInvertsTheRedOfTheAccent()
{
    QFETCH(QColor, accent);
    QFETCH(QColor, pen);
    Tile tile;
    tile.setColor(accent);
    tile.setProperty("state", QStringLiteral("hover"));
    // the middle of the frame's top edge, where nothing else is drawn
    const QImage hovered = pictureOf(tile);
    DrawnWidget expected({ 100, 100 }, [=](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(pen);
        painter.drawRoundedRect(QRectF(0, 0, 100, 100), 10, 10);
    });
    QCOMPARE(QColor::fromRgba(hovered.pixel(50, 0)),
             QColor::fromRgba(pictureOf(expected).pixel(50, 0)));
}

void TestIconButtonPainting::drawsOnlyTheFrameWithoutAGlyph()
{
    OlvIconButton button;
    button.resize(60, 60);
    DrawnWidget expected({ 60, 60 }, [](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QColor(198, 198, 198));
        painter.drawRoundedRect(QRectF(0, 0, 60, 60), 10, 10);
    });
    COMPARE_PICTURES(pictureOf(button), pictureOf(expected));
}

ADD_TEST(TestIconButtonPainting, QApplication)
#include "tst_iconbuttonpainting.moc"
