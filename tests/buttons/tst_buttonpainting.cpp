// SPDX-License-Identifier: MIT
#include "pixels.h"
#include "testprogram.h"

#include <OlvButton>
#include <OlvGlobal>

#include <QPainter>
#include <QTest>

#include <array>

namespace {

/** The shades as designers write them, from the lightest to the darkest. */
std::array<QColor, 5> shadesOf(const QString &color)
{
    const auto named = [](const char *a, const char *b, const char *c, const char *d,
                          const char *e) {
        return std::array<QColor, 5>{ QColor(QLatin1String(a)), QColor(QLatin1String(b)),
                                      QColor(QLatin1String(c)), QColor(QLatin1String(d)),
                                      QColor(QLatin1String(e)) };
    };
    if (color == QLatin1String("primary")) {
        return named("#ecf5ff", "#b3d8ff", "#66b1ff", "#409eff", "#3a8ee6");
    }
    if (color == QLatin1String("success")) {
        return named("#f0f9eb", "#c2e7b0", "#85ce61", "#67c23a", "#5daf34");
    }
    if (color == QLatin1String("warning")) {
        return named("#fdf6ec", "#f5dab1", "#ebb563", "#e6a23c", "#cf9236");
    }
    return named("#fef0f0", "#fbc4c4", "#f78989", "#f56c6c", "#dd6161");
}

struct Look
{
    QString color;
    QString type;
    QString state;
    bool checked = false;
    QString content;
};

/** The same button drawn from the table of looks: rest, hover, and all else. */
void drawExpected(QPainter &painter, QSize size, const Look &look)
{
    const auto shades = shadesOf(look.color);
    const bool plain = look.type == QLatin1String("plain");
    QPen pen(Qt::NoPen);
    QColor fill = shades[4];
    QColor text = Qt::white;
    if (look.state == QLatin1String("init") && !look.checked) {
        fill = plain ? shades[0] : shades[3];
        if (plain) {
            pen = QPen(shades[1], 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
            text = shades[3];
        }
    } else if (look.state == QLatin1String("hover")) {
        fill = plain ? shades[3] : shades[2];
    }
    const int radius = look.type == QLatin1String("round") ? size.height() / 2 : size.height() / 5;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    painter.setBrush(QBrush(fill, Qt::SolidPattern));
    painter.drawRoundedRect(QRectF(0, 0, size.width(), size.height()), radius, radius,
                            Qt::AbsoluteSize);
    if (look.content.isEmpty()) {
        return;
    }
    QFont font(QStringLiteral("宋体"), 9);
    font.setPointSize(OlvGlobal::adaptDocumentToPointSize(look.content, size, font));
    painter.setPen(text);
    painter.setFont(font);
    painter.drawText(QRect(QPoint(), size), Qt::AlignCenter, look.content);
}

void compare(QSize size, const Look &look, qreal ratio)
{
    OlvButton button;
    button.resize(size);
    button.setOlvStyle(look.color, look.type)->setChecked(look.checked);
    button.setProperty("state", look.state);
    if (!look.content.isNull()) {
        button.setText(look.content);
    }
    DrawnWidget expected(size, [=](QPainter &painter) { drawExpected(painter, size, look); });
    COMPARE_PICTURES(pictureOf(button, ratio), pictureOf(expected, ratio));
}

const char *const longCaption =
    "A caption of many words that has to shrink a lot before it fits in";

} // namespace

class TestButtonPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawsEveryLook_data();
    void drawsEveryLook();
    void drawsUnknownNamesAsRedInTheDefaultShape_data();
    void drawsUnknownNamesAsRedInTheDefaultShape();
    void radiusIsCutOffToWholePixels_data();
    void radiusIsCutOffToWholePixels();
    void customShadesChangeNothing();
    void captionFollowsTheWidgetsFontWhereItSetsNothing();
    void freshButtonIsFilledPrimaryWithoutText();
};

void TestButtonPainting::drawsEveryLook_data()
{
    QTest::addColumn<QString>("color");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("state");
    QTest::addColumn<bool>("checked");
    for (const char *color : { "primary", "success", "warning", "danger" }) {
        for (const char *type : { "", "plain", "round" }) {
            for (const char *state : { "init", "hover", "click", "other" }) {
                for (const bool checked : { false, true }) {
                    QTest::addRow("%s %s %s %s", color, type, state, checked ? "checked" : "")
                        << QString::fromLatin1(color) << QString::fromLatin1(type)
                        << QString::fromLatin1(state) << checked;
                }
            }
        }
    }
}

void TestButtonPainting::drawsEveryLook()
{
    QFETCH(QString, color);
    QFETCH(QString, type);
    QFETCH(QString, state);
    QFETCH(bool, checked);
    for (const QSize size : { QSize(120, 40), QSize(121, 37), QSize(33, 4), QSize(1, 1) }) {
        for (const QString &content :
             { QString(), QStringLiteral("确定 OK"), QString::fromLatin1(longCaption) }) {
            for (const qreal ratio : { 1.0, 2.0 }) {
                compare(size, { color, type, state, checked, content }, ratio);
            }
        }
    }
}

void TestButtonPainting::drawsUnknownNamesAsRedInTheDefaultShape_data()
{
    QTest::addColumn<QString>("color");
    QTest::addColumn<QString>("type");
    QTest::newRow("empty colour") << QString() << QString();
    QTest::newRow("upper case colour") << QStringLiteral("Primary") << QString();
    QTest::newRow("unknown colour") << QStringLiteral("mauve") << QStringLiteral("plain");
    QTest::newRow("upper case type") << QStringLiteral("success") << QStringLiteral("Plain");
    QTest::newRow("unknown type") << QStringLiteral("success") << QStringLiteral("oval");
}

void TestButtonPainting::drawsUnknownNamesAsRedInTheDefaultShape()
{
    QFETCH(QString, color);
    QFETCH(QString, type);
    compare({ 100, 40 }, { color, type, QStringLiteral("init"), false, QStringLiteral("x") }, 1.0);
}

void TestButtonPainting::radiusIsCutOffToWholePixels_data()
{
    QTest::addColumn<int>("height");
    for (const int height : { 4, 5, 9, 10, 14, 39, 40, 41 }) {
        QTest::addRow("%d pixels high", height) << height;
    }
}

void TestButtonPainting::radiusIsCutOffToWholePixels()
{
    QFETCH(int, height);
    for (const char *type : { "", "plain", "round" }) {
        compare(
            { 90, height },
            { QStringLiteral("primary"), QLatin1String(type), QStringLiteral("init"), false, {} },
            1.0);
    }
}

void TestButtonPainting::customShadesChangeNothing()
{
    OlvButton button(QStringLiteral("text"));
    button.resize(100, 40);
    button.setOlvStyle(QStringLiteral("custom"), QString());
    const QImage before = pictureOf(button);
    for (int count = 0; count <= 6; ++count) {
        QStringList shades;
        for (int i = 0; i < count; ++i) {
            shades.append(QStringLiteral("0,0,0"));
        }
        button.setColor(shades);
        COMPARE_PICTURES(pictureOf(button), before);
    }
    compare({ 100, 40 },
            { QStringLiteral("primary"), QString(), QStringLiteral("init"), false,
              QStringLiteral("text") },
            1.0);
}

void TestButtonPainting::captionFollowsTheWidgetsFontWhereItSetsNothing()
{
    OlvButton button(QStringLiteral("text"));
    button.resize(100, 40);
    const QImage before = pictureOf(button);
    QFont underlined;
    underlined.setUnderline(true);
    button.setFont(underlined);
    QVERIFY(!difference(pictureOf(button), before).isEmpty());
}

void TestButtonPainting::freshButtonIsFilledPrimaryWithoutText()
{
    OlvButton button;
    button.resize(80, 40);
    DrawnWidget expected({ 80, 40 }, [](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(64, 158, 255));
        painter.drawRoundedRect(0, 0, 80, 40, 8, 8);
    });
    COMPARE_PICTURES(pictureOf(button), pictureOf(expected));
}

ADD_TEST(TestButtonPainting, QApplication)
#include "tst_buttonpainting.moc"
