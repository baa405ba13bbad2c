// SPDX-License-Identifier: MIT
#include "glyph.h"

#include <QChar>
#include <QRegularExpression>

namespace {

bool isGlyph(QChar character)
{
    return !character.isSurrogate() && !character.isNonCharacter()
        && character.category() != QChar::Other_Control;
}

} // namespace

QString glyphFrom(const QString &typed)
{
    const QString text = typed.trimmed();
    QString glyph = text;
    if (text.size() != 1) {
        static const QRegularExpression code(
            QStringLiteral(R"(^(?:U\+|0x|\\u|&#x)?([0-9a-f]{2,4});?$)"),
            QRegularExpression::CaseInsensitiveOption);
        const QString digits = code.match(text).captured(1);
        if (digits.isEmpty()) {
            return QString();
        }
        glyph = QChar(digits.toUShort(nullptr, 16));
    }
    return isGlyph(glyph.at(0)) ? glyph : QString();
}

QString glyphCode(const QString &glyph)
{
    return glyph.size() == 1
        ? QString::number(glyph.at(0).unicode(), 16).rightJustified(4, QLatin1Char('0'))
        : glyph;
}
