// SPDX-License-Identifier: MIT
// How well the texts of a form are seen: contrasts of the pixels that are drawn.
#include "contrast.h"
#include "deferred.h"
#include "fakeshortcut.h"
#include "pixels.h"
#include "sizedlineedit.h"
#include "testprogram.h"

#include <OlvWidgets/OlvWidgets>

#include <QApplication>
#include <QRandomGenerator>
#include <QTest>

namespace {

constexpr double readable = 4.5;
constexpr int randomPalettes = 20;

/** Plain areas, so that pixels have the colour of the text and not one on its way to the ground. */
QString blocks()
{
    return QStringLiteral("█ █ █ █ █ █");
}

QPalette paletteOf(const QColor &text, const QColor &base)
{
    QPalette palette(base);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, text);
    return palette;
}

QPalette darkPalette()
{
    QPalette palette = paletteOf(Qt::white, QColor(30, 30, 32));
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(110, 110, 110));
    return palette;
}

QPalette randomPalette(uint seed)
{
    QRandomGenerator random(seed);
    QPalette palette;
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        for (const auto group : { QPalette::Active, QPalette::Inactive, QPalette::Disabled }) {
            QColor color(QRgb(random.generate()));
            color.setAlpha(random.bounded(3) == 0 ? random.bounded(256) : 255);
            palette.setColor(group, QPalette::ColorRole(role), color);
        }
    }
    return palette;
}

/** Fields with each kind of text, under a support. */
class Fields : public QWidget
{
public:
    explicit Fields(OlvFormSupport::Features features = OlvFormSupport::AllFeatures)
    {
        resize(300, 260);
        int y = 10;
        const QVector<QWidget *> all = fields();
        for (QWidget *field : all) {
            field->setGeometry(10, y, 260, 32);
            y += 40;
        }
        text->setText(blocks());
        selected->setText(blocks());
        hint->setPlaceholderText(blocks());
        glyph->setIcon(QStringLiteral("█"));
        glyph->setPassWord(true);
        glyph->setPwdIcon(QStringLiteral("█"), QStringLiteral("▓"));
        shortcut->setShortcut(new FakeShortcut(blocks()));
        new OlvFormSupport(this, features);
    }

    QVector<QWidget *> fields() const
    {
        return { text, selected, hint, glyph, shortcut };
    }

    bool showActive()
    {
        show();
        const bool isActive = QTest::qWaitForWindowActive(this);
        text->lineEdit()->setFocus();
        selected->lineEdit()->selectAll();
        return isActive;
    }

    /** The contrast of what is in a part of a field. */
    double contrastIn(const QWidget *field, const QRect &part)
    {
        return Measured::contrastIn(
            grab(QRect(field->mapTo(this, part.topLeft()), part.size())).toImage());
    }
    double contrastOfText(const OlvLineEdit *field)
    {
        return contrastIn(field, QRect(36, 4, 40, 24)); // within the text
    }
    double contrastOfGlyph()
    {
        return contrastIn(glyph, QRect(3, 3, 26, 26));
    }
    double contrastOfPasswordButton()
    {
        return contrastIn(glyph, QRect(glyph->width() - 28, 4, 24, 24));
    }
    double contrastOfShortcut()
    {
        return contrastIn(shortcut, QRect(80, 4, 100, 24));
    }

    OlvLineEdit *const text = new OlvLineEdit(this);
    OlvLineEdit *const selected = new OlvLineEdit(this);
    OlvLineEdit *const hint = new OlvLineEdit(this);
    OlvLineEdit *const glyph = new OlvLineEdit(this);
    OlvShortcutEdit *const shortcut = new OlvShortcutEdit(this);
};

} // namespace

Q_DECLARE_METATYPE(QPalette)

class TestReadableText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_before = QApplication::palette();
    }
    void cleanup()
    {
        QApplication::setPalette(m_before);
        runDeferred();
    }
    void isReadUnderAPaletteOfTheApplication_data()
    {
        addPalettes();
    }
    void isReadUnderAPaletteOfTheApplication();
    void isReadUnderAPaletteOfTheText_data()
    {
        addPalettes();
    }
    void isReadUnderAPaletteOfTheText();
    void isSeenWhenDisabled_data()
    {
        addPalettes();
    }
    void isSeenWhenDisabled();
    void isAsStrongAsItHasToBeWhenDisabled();
    void isFadedOnce_data();
    void isFadedOnce();
    void isMissingWithoutTheFeature();
    void keepsWhatIsReadable();
    void keepsTheHue();

private:
    static void addPalettes();

    QPalette m_before;
};

void TestReadableText::addPalettes()
{
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("light") << paletteOf(Qt::black, QColor(239, 239, 239));
    QTest::newRow("dark") << darkPalette();
    QTest::newRow("white") << paletteOf(Qt::white, Qt::white);
    QTest::newRow("grey") << paletteOf(QColor(128, 128, 128), Qt::gray);
    QTest::newRow("yellow") << paletteOf(Qt::yellow, Qt::blue);
    QTest::newRow("translucent") << paletteOf(QColor(0, 0, 0, 60), Qt::white);
    QTest::newRow("invisible") << paletteOf(QColor(0, 0, 0, 0), Qt::white);
    for (uint seed = 1; seed <= randomPalettes; ++seed) {
        QTest::addRow("random %u", seed) << randomPalette(seed);
    }
}

#define VERIFY_READABLE(contrast)                                                                  \
    do {                                                                                           \
        const double olvContrast = contrast;                                                       \
        QVERIFY2(olvContrast >= readable, qPrintable(QString::number(olvContrast)));               \
    } while (false)

void TestReadableText::isReadUnderAPaletteOfTheApplication()
{
    QFETCH(QPalette, palette);
    QApplication::setPalette(palette);
    Fields fields;
    QVERIFY(fields.showActive());
    for (const bool isActive : { true, false }) {
        VERIFY_READABLE(fields.contrastOfText(fields.text));
        VERIFY_READABLE(fields.contrastOfText(fields.hint));
        VERIFY_READABLE(fields.contrastOfText(fields.selected));
        VERIFY_READABLE(fields.contrastOfGlyph());
        VERIFY_READABLE(fields.contrastOfPasswordButton());
        VERIFY_READABLE(fields.contrastOfShortcut());
        if (isActive) {
            sendFocus(fields.glyph->lineEdit(), QEvent::FocusIn);
            VERIFY_READABLE(fields.contrastOfGlyph());
            fields.shortcut->setFocus();
            VERIFY_READABLE(fields.contrastOfShortcut());
            QWidget other;
            other.show();
            QVERIFY(QTest::qWaitForWindowActive(&other));
            QVERIFY(!fields.isActiveWindow());
        }
    }
}

void TestReadableText::isReadUnderAPaletteOfTheText()
{
    QFETCH(QPalette, palette);
    Fields fields;
    for (const bool isShown : { false, true }) {
        for (OlvLineEdit *field : { fields.text, fields.hint, fields.selected }) {
            field->lineEdit()->setPalette(QPalette());
            field->lineEdit()->setPalette(palette);
        }
        QVERIFY(isShown || fields.showActive());
        VERIFY_READABLE(fields.contrastOfText(fields.text));
        VERIFY_READABLE(fields.contrastOfText(fields.hint));
        VERIFY_READABLE(fields.contrastOfText(fields.selected));
    }
}

void TestReadableText::isSeenWhenDisabled()
{
    QFETCH(QPalette, palette);
    QApplication::setPalette(palette);
    for (const auto features : { OlvFormSupport::Features(OlvFormSupport::ReadableText),
                                 OlvFormSupport::ReadableText | OlvFormSupport::DisabledLook }) {
        Fields fields(features);
        QPalette ground;
        ground.setColor(QPalette::Window, QColor(239, 239, 239));
        fields.setPalette(ground);
        QVERIFY(fields.showActive());
        const double enabled = fields.contrastOfText(fields.text);
        const double enabledShortcut = fields.contrastOfShortcut();
        const QVector<QWidget *> all = fields.fields();
        for (QWidget *field : all) {
            field->setEnabled(false);
        }
        const double text = fields.contrastOfText(fields.text);
        QVERIFY2(text >= 2.1 && text < enabled, qPrintable(QString::number(text)));
        const double hint = fields.contrastOfText(fields.hint);
        QVERIFY2(hint >= 1.7, qPrintable(QString::number(hint)));
        const double shortcut = fields.contrastOfShortcut();
        QVERIFY2(shortcut >= 1.7 && shortcut < enabledShortcut,
                 qPrintable(QString::number(shortcut)));
        const double glyph = fields.contrastOfGlyph();
        QVERIFY2(glyph >= 1.7 && glyph < readable, qPrintable(QString::number(glyph)));
        for (QWidget *field : all) {
            field->setEnabled(true);
        }
        QCOMPARE(fields.contrastOfText(fields.text), enabled);
    }
}

void TestReadableText::isAsStrongAsItHasToBeWhenDisabled()
{
    const QColor grey(128, 128, 128);
    QPalette palette = paletteOf(grey, Qt::white);
    palette.setColor(QPalette::Window, QColor(239, 239, 239));
#if QT_VERSION >= QT_VERSION_CHECK(5, 12, 0)
    palette.setColor(QPalette::PlaceholderText, grey);
#endif
    QApplication::setPalette(palette);
    Fields fields;
    QVERIFY(fields.showActive());
    const QVector<QWidget *> all = fields.fields();
    for (QWidget *field : all) {
        field->setEnabled(false);
    }
    const auto contrastOf = [&](QPalette::ColorRole role) {
        const QPalette &own = fields.text->lineEdit()->palette();
        return Measured::contrast(own.color(QPalette::Disabled, role).rgb(), qRgb(255, 255, 255));
    };
    const double text = contrastOf(QPalette::Text);
    QVERIFY2(text >= 12.0 && text < 12.5, qPrintable(QString::number(text)));
#if QT_VERSION >= QT_VERSION_CHECK(5, 12, 0)
    const double hint = contrastOf(QPalette::PlaceholderText);
    QVERIFY2(hint >= 7.0 && hint < 7.25, qPrintable(QString::number(hint)));
#endif
    const QRect part(fields.shortcut->mapTo(&fields, QPoint(80, 4)), QSize(100, 24));
    const QVector<QRgb> shown = Measured::colors(fields.grab(part).toImage());
    const int shortcut = qMin(qGray(shown.at(0)), qGray(shown.at(1)));
    // a grey of 89, which has a contrast of 7 on white, at an opacity of 0.4 on one of 239
    QVERIFY2(qAbs(shortcut - 179) <= 1, qPrintable(QString::number(shortcut)));
}

void TestReadableText::isFadedOnce_data()
{
    QTest::addColumn<QColor>("window");
    QTest::newRow("light") << QColor(239, 239, 239);
    QTest::newRow("dark") << QColor(32, 32, 34);
}

/** Seen at two fifths, on the window: black text, and the white of the field. */
void TestReadableText::isFadedOnce()
{
    QFETCH(QColor, window);
    QApplication::setPalette(paletteOf(Qt::black, window));
    Fields fields;
    QVERIFY(fields.showActive());
    fields.text->setEnabled(false);
    const QVector<QRgb> colors =
        Measured::colors(fields.grab(QRect(46, 14, 40, 24)).toImage()).mid(0, 2);
    for (const int drawn : { 0, 255 }) {
        const int expected = qRound(0.4 * drawn + 0.6 * window.green());
        QVERIFY2(std::any_of(colors.cbegin(), colors.cend(),
                             [=](QRgb color) { return qAbs(qGreen(color) - expected) <= 2; }),
                 qPrintable(QString::number(expected)));
    }
}

void TestReadableText::isMissingWithoutTheFeature()
{
    QApplication::setPalette(darkPalette());
    OlvFormSupport::Features features = OlvFormSupport::AllFeatures;
    features.setFlag(OlvFormSupport::ReadableText, false);
    Fields fields(features);
    QVERIFY(fields.showActive());
    QCOMPARE(fields.contrastOfText(fields.text), 1.0);
    QVERIFY(fields.contrastOfGlyph() < 2);
    QVERIFY(fields.contrastOfPasswordButton() < 2);
    QVERIFY(fields.contrastOfShortcut() < 3);
}

void TestReadableText::keepsWhatIsReadable()
{
    for (const QColor &color : { QColor(Qt::black), QColor(120, 0, 0), QColor(0, 0, 160),
                                 QColor(118, 118, 118), QColor(0, 0, 0, 200) }) {
        QApplication::setPalette(paletteOf(color, Qt::white));
        Fields fields;
        QVERIFY(fields.showActive());
        const QRgb opaque =
            qRgb(qRound((255 * (255 - color.alpha()) + color.red() * color.alpha()) / 255.0),
                 qRound((255 * (255 - color.alpha()) + color.green() * color.alpha()) / 255.0),
                 qRound((255 * (255 - color.alpha()) + color.blue() * color.alpha()) / 255.0));
        const auto drawn = Measured::colors(fields.grab(QRect(46, 14, 40, 24)).toImage()).mid(0, 2);
        QVERIFY2(drawn.contains(opaque), qPrintable(color.name(QColor::HexArgb)));
    }
}

void TestReadableText::keepsTheHue()
{
    QApplication::setPalette(paletteOf(QColor(255, 160, 160), Qt::black));
    Fields fields;
    QVERIFY(fields.showActive());
    const QColor color = fields.text->lineEdit()->palette().color(QPalette::Text);
    QCOMPARE(color.hslHue(), 0);
    QVERIFY(color.red() > 2 * color.green());
}

ADD_TEST(TestReadableText, QApplication)
#include "tst_readabletext.moc"
