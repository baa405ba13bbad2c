// SPDX-License-Identifier: MIT
#include "dice.h"

#include <QDateTime>
#include <QImage>
#include <QPixmap>
#include <QUrl>
#include <QWidget>

#include <limits>

namespace {

constexpr int megabyteOfCharacters = 1 << 19;

template <typename Number> constexpr Number lowest = std::numeric_limits<Number>::lowest();
template <typename Number> constexpr Number highest = std::numeric_limits<Number>::max();

QString pieceOf(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

Dice::Dice(quint64 seed)
    : m_engine(seed)
{ }

quint64 Dice::bits()
{
    return m_engine();
}

int Dice::below(int end)
{
    return end < 1 ? 0 : int(m_engine() % quint64(end));
}

int Dice::between(int first, int last)
{
    return first + below(last - first + 1);
}

bool Dice::oneIn(int cases)
{
    return below(cases) == 0;
}

bool Dice::coin()
{
    return oneIn(2);
}

int Dice::number()
{
    static constexpr std::array<int, 11> extremes{
        0,   1,     -1,    2, highest<int>, highest<int> - 1, lowest<int>, lowest<int> + 1,
        255, 32768, 65536,
    };
    switch (below(4)) {
    case 0:
        return pick(extremes);
    case 1:
        return int(quint32(bits()));
    default:
        return between(-300, 300);
    }
}

double Dice::real()
{
    static constexpr std::array<double, 13> extremes{
        0.0,
        -0.0,
        0.5,
        1e-300,
        1e300,
        -1e300,
        2147483648.0,
        -2147483649.0,
        1e19,
        std::numeric_limits<double>::infinity(),
        -std::numeric_limits<double>::infinity(),
        std::numeric_limits<double>::quiet_NaN(),
        std::numeric_limits<double>::denorm_min(),
    };
    return oneIn(3) ? pick(extremes) : number() / 7.0;
}

int Dice::side()
{
    // few different sizes, since a font is made for each height
    static constexpr std::array<int, 10> usual{ 1, 2, 7, 16, 24, 30, 31, 50, 80, 120 };
    switch (below(60)) {
    case 0:
        return 0;
    case 1:
        // above this, the sums in Qt's rectangles overflow
        return qBound(-2 * QWIDGETSIZE_MAX, number(), 2 * QWIDGETSIZE_MAX);
    case 2:
        return QWIDGETSIZE_MAX - below(2);
    case 3:
        return between(1, 4000);
    default:
        return pick(usual);
    }
}

qulonglong Dice::address()
{
    static constexpr std::array<qulonglong, 6> wild{
        0, 1, 8, 0xdeadbeef, 0x7fffffffffff, highest<qulonglong>,
    };
    return coin() ? pick(wild) : bits() >> between(0, 40);
}

QChar Dice::character()
{
    static constexpr std::array<ushort, 16> extremes{
        0,      '\n',   '\t',   ' ',    0x7f,   0xad,   0x300,  0x200b,
        0x202e, 0x2028, 0xd800, 0xdbff, 0xdc00, 0xdfff, 0xfeff, 0xffff,
    };
    switch (below(6)) {
    case 0:
        return QChar(pick(extremes));
    case 1:
        return QChar(ushort(bits()));
    case 2:
        return QChar(ushort(between(0x4e00, 0x4eff)));
    default:
        return QChar(ushort(between(' ', '~')));
    }
}

QString Dice::text()
{
    static const std::array<QString, 12> ready{
        QString(),
        pieceOf(""),
        pieceOf("OK"),
        pieceOf("按钮"),
        pieceOf("\n\n"),
        pieceOf("a\nb"),
        pieceOf("<b>&amp;<img src=x>"),
        pieceOf("&&&File"),
        pieceOf("%1%2%n"),
        pieceOf("e\u0301\u0301\u0301\u0301"),
        pieceOf("\u0645\u0631\u062d\u202e abc"),
        pieceOf("primary"),
    };
    if (!oneIn(4)) {
        return pick(ready);
    }
    QString made(oneIn(10) ? below(300) : below(12), QLatin1Char('x'));
    for (QChar &each : made) {
        each = character();
    }
    return made;
}

QString Dice::megabyte()
{
    // one short piece is repeated, since drawing each character takes too long
    QString piece = text() + character();
    return piece.repeated(megabyteOfCharacters / piece.size());
}

QStringList Dice::texts()
{
    QStringList made;
    for (int i = below(9); i > 0; --i) {
        made.append(text());
    }
    return made;
}

QColor Dice::color()
{
    switch (below(6)) {
    case 0:
        return QColor();
    case 1:
        return QColor::fromHsvF(0.5, 1.0, 0.25);
    case 2:
        return QColor::fromCmyk(1, 2, 3, 4, 0);
    case 3:
        return QColor(Qt::GlobalColor(between(Qt::color0, Qt::transparent)));
    default:
        return QColor::fromRgba(QRgb(bits()));
    }
}

QFont Dice::font()
{
    static const std::array<QString, 5> families{
        pieceOf("DejaVu Sans"),
        pieceOf("FontAwesome"),
        pieceOf("新宋体"),
        pieceOf("no such family"),
        QString(),
    };
    QFont made(pick(families));
    if (coin()) {
        made.setPointSize(between(1, 30));
    } else if (coin()) {
        made.setPixelSize(between(1, 40));
    }
    made.setBold(oneIn(4));
    made.setKerning(coin());
    if (oneIn(4)) {
        made.setLetterSpacing(QFont::AbsoluteSpacing, between(-20, 20));
    }
    return made;
}

QPalette Dice::palette()
{
    const QColor button = color();
    const QColor window = color();
    return QPalette(button, window);
}

QString Dice::styleSheet()
{
    static const std::array<QString, 7> sheets{
        QString(),
        pieceOf("*{color:red}"),
        pieceOf("QWidget{background:rgb(1,2,3);border:3px solid blue;border-radius:4px}"),
        pieceOf("OlvButton[isChecked=\"true\"]{min-height:40px;max-width:20px}"),
        pieceOf("QPushButton{border:none} QPushButton:hover{margin:90000px}"),
        pieceOf("{{{ not a style sheet"),
        pieceOf("QLineEdit{font:200px \"no such family\";padding:-50px}"),
    };
    return pick(sheets);
}

QPoint Dice::point()
{
    return QPoint{ number(), number() };
}

QRect Dice::rect()
{
    return QRect{ QPoint{ number(), number() }, QPoint{ number(), number() } };
}

QPointF Dice::place(QSize size)
{
    if (oneIn(24)) {
        return QPointF{ real(), real() };
    }
    return pixel(size);
}

QPoint Dice::pixel(QSize size)
{
    const int right = qBound(1, size.width(), 4000);
    const int bottom = qBound(1, size.height(), 4000);
    return QPoint{ between(-9, right + 9), between(-9, bottom + 9) };
}

QVariant Dice::variant()
{
    switch (below(14)) {
    case 0:
        return QVariant();
    case 1:
        return coin();
    case 2:
    case 3:
        return number();
    case 4:
        return real();
    case 5:
    case 6:
        return text();
    case 7:
        return address();
    case 8:
        return character();
    case 9:
        return uint(bits());
    case 10:
        return qlonglong(bits());
    case 11:
        return float(real());
    case 12:
        return QString::number(number());
    default:
        return container();
    }
}

QVariant Dice::container()
{
    switch (below(12)) {
    case 0:
        return QVariantList{ number(), text() };
    case 1:
        return QVariantMap{ { text(), number() } };
    case 2:
        return texts();
    case 3:
        return color();
    case 4:
        return rect();
    case 5:
        return point();
    case 6:
        return QPointF{ real(), real() };
    case 7:
        return text().toUtf8();
    case 8:
        return QVariant::fromValue<QObject *>(nullptr);
    case 9:
        return QDateTime();
    case 10:
        return QUrl(text());
    default:
        return font();
    }
}
