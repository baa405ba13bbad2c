// SPDX-License-Identifier: MIT
#include "accessibility/spokentext_p.h"

#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QVector>

#include <algorithm>

bool SpokenText::isReadable(const QString &text)
{
    const QVector<uint> characters = text.toUcs4();
    return std::any_of(characters.cbegin(), characters.cend(), [](uint character) {
        return !QChar::isSpace(character) && QChar::category(character) != QChar::Other_PrivateUse;
    });
}

QString SpokenText::plain(const QString &toolTip)
{
    return Qt::mightBeRichText(toolTip) ? QTextDocumentFragment::fromHtml(toolTip).toPlainText()
                                        : toolTip;
}
