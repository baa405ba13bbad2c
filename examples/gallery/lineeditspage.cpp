// SPDX-License-Identifier: MIT
#include "colors.h"
#include "page.h"
#include "pages.h"

#include <OlvButton>
#include <OlvLineEdit>

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {

constexpr ushort userGlyph = 0xf007;
constexpr ushort lockGlyph = 0xf023;
constexpr ushort eyeGlyph = 0xf06e;
constexpr ushort struckEyeGlyph = 0xf070;
constexpr ushort envelopeGlyph = 0xf0e0;

OlvLineEdit *addLine(Page *page, const QString &heading, const QString &name, QSize size)
{
    page->addHeading(heading);
    auto *line = new OlvLineEdit;
    line->setObjectName(name);
    line->setFixedSize(size);
    // the text has the colour of the application's palette, but the line is always white
    line->lineEdit()->setPalette(lightColors());
    page->content()->addWidget(line);
    return line;
}

} // namespace

Page *createLineEditsPage(QWidget *parent)
{
    auto *page = new Page(
        QStringLiteral("Line edits"),
        QStringLiteral("OlvLineEdit: sized by its height. The glyph turns blue with the focus; the "
                       "eye shows the password."),
        parent);

    OlvLineEdit *plain =
        addLine(page, QStringLiteral("Plain"), QStringLiteral("plainLine"), { 300, 30 });
    plain->setPlaceholderText(QStringLiteral("Type here, 或者输入中文"));

    OlvLineEdit *user =
        addLine(page, QStringLiteral("With a glyph"), QStringLiteral("iconLine"), { 300, 30 });
    user->setIcon(QChar(userGlyph));
    user->setText(QStringLiteral("Li Wei"));

    OlvLineEdit *password =
        addLine(page, QStringLiteral("Password"), QStringLiteral("passwordLine"), { 300, 30 });
    password->setIcon(QChar(lockGlyph));
    password->setPassWord(true);
    password->setPwdIcon(QChar(eyeGlyph), QChar(struckEyeGlyph));
    password->setText(QStringLiteral("correct horse"));

    OlvLineEdit *large =
        addLine(page, QStringLiteral("44 pixels high, and its glyph as with the focus"),
                QStringLiteral("largeLine"), { 400, 44 });
    large->setIcon(QChar(envelopeGlyph));
    large->setPlaceholderText(QStringLiteral("Mail address"));
    large->setProperty("state", QStringLiteral("edit"));

    // line edits emit no signal when their text changes, so a button reads it
    auto *ask = new OlvButton(QStringLiteral("getText()"));
    ask->setFixedSize(100, 30);
    QObject::connect(ask, &OlvButton::clicked, page, [=] {
        for (OlvLineEdit *line : { plain, user, password, large }) {
            page->log(line->objectName() + QLatin1String(": ") + line->getText());
        }
    });
    page->content()->addWidget(ask);
    page->content()->addStretch();
    return page;
}
