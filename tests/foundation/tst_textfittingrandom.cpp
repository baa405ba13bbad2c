// SPDX-License-Identifier: MIT
#include "testprogram.h"
#include "wrappedslowly.h"

#include <OlvGlobal>

#include <QFontMetrics>
#include <QRandomGenerator>
#include <QTest>

namespace {

QString randomText(QRandomGenerator &random)
{
    static const QString alphabet = QStringLiteral("abcXYZ019 .-,_\n\tßé中文字Ω𝄞i̇WM");
    QString text;
    const int length = random.bounded(60);
    for (int i = 0; i < length; ++i) {
        text.append(random.bounded(50) == 0 ? QChar(0xd800 + random.bounded(0x800))
                                            : alphabet.at(random.bounded(alphabet.size())));
    }
    return text;
}

QFont randomFont(QRandomGenerator &random)
{
    static const QStringList families{ QStringLiteral("DejaVu Sans"),
                                       QStringLiteral("DejaVu Sans Mono"), QStringLiteral("宋体") };
    QFont font(families.at(random.bounded(families.size())), 1 + random.bounded(30));
    font.setBold(random.bounded(4) == 0);
    return font;
}

#ifdef __SANITIZE_ADDRESS__
constexpr int randomRounds = 200; // each takes many times as long
#else
constexpr int randomRounds = 3000;
#endif

} // namespace

/** Compares the library with a slow implementation of the documented rules, on random texts. */
class TestTextFittingRandom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithTheSlowWayOnRandomTexts();
    void findsTheSizeThatTryingEachFinds();
    void findsTheSizeThatTryingEachFindsFromLargeSizes();
};

void TestTextFittingRandom::agreesWithTheSlowWayOnRandomTexts()
{
    QRandomGenerator random(20240501);
    for (int round = 0; round < randomRounds; ++round) {
        const QString text = randomText(random);
        const QFont font = randomFont(random);
        const int width = random.bounded(200) - 5;
        const QByteArray what =
            QStringLiteral("\"%1\" at %2 in %3").arg(text).arg(width).arg(font.toString()).toUtf8();
        const QFontMetrics metrics(font);
        const int lines = OlvGlobal::adaptDocumentOfLine(text, width, font);
        QVERIFY2(lines == Slowly::lines(text, width, metrics), what.constData());
        QVERIFY2(lines <= text.size(), what.constData());
        QVERIFY2(OlvGlobal::accommodate(text, width, font) == Slowly::fitting(text, width, metrics),
                 what.constData());
        QVERIFY2(OlvGlobal::autoSize(text, font) == Slowly::size(text, metrics), what.constData());
    }
}

void TestTextFittingRandom::findsTheSizeThatTryingEachFinds()
{
    QRandomGenerator random(7);
    for (int round = 0; round < randomRounds / 4; ++round) {
        const QString text = randomText(random);
        const QFont font = randomFont(random);
        const QSize box(random.bounded(300), random.bounded(120));
        QCOMPARE(OlvGlobal::adaptDocumentToPointSize(text, box, font),
                 Slowly::pointSize(text, box, font));
    }
}

void TestTextFittingRandom::findsTheSizeThatTryingEachFindsFromLargeSizes()
{
    QRandomGenerator random(11);
    for (int round = 0; round < randomRounds / 40; ++round) {
        // Qt would look through all fonts for the characters that this one has not, at every size
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setStyleStrategy(QFont::NoFontMerging);
        const int size = random.bounded(49, 300);
        random.bounded(4) == 0 ? font.setPixelSize(size) : font.setPointSize(size);
        const QString text = randomText(random);
        const QSize box(random.bounded(2 * size), random.bounded(2 * size));
        QCOMPARE(OlvGlobal::adaptDocumentToPointSize(text, box, font),
                 Slowly::pointSize(text, box, font));
    }
}

ADD_TEST(TestTextFittingRandom, QApplication)
#include "tst_textfittingrandom.moc"
