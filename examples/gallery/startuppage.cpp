// SPDX-License-Identifier: MIT
#include "page.h"
#include "pages.h"

#include <OlvGlobal>

#include <QFormLayout>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int pollInterval = 20; // milliseconds
constexpr int glyphSize = 28;    // points
/** A house, a cog, a heart, a star and a bell of the icon font. */
constexpr char16_t glyphs[] = u"\uf015 \uf013 \uf004 \uf005 \uf0f3";

QString registeredFonts()
{
    QStringList fonts;
    for (auto it = OlvGlobal::OlvPluginFonts.cbegin(); it != OlvGlobal::OlvPluginFonts.cend();
         ++it) {
        fonts.append(QStringLiteral("%1 (id %2), family %3")
                         .arg(it.key())
                         .arg(it.value())
                         .arg(OlvGlobal::getFont(it.key(), glyphSize).family()));
    }
    return fonts.isEmpty() ? QStringLiteral("none") : fonts.join(QLatin1Char('\n'));
}

} // namespace

Page *createStartUpPage(QWidget *parent)
{
    auto *page = new Page(
        QStringLiteral("Start-up"),
        QStringLiteral("OlvGlobal::init() registers the fonts that lie beside the program, on a "
                       "thread of its own, and measures the primary screen."),
        parent);

    auto *fonts = new QLabel;
    auto *screen = new QLabel;
    auto *scale = new QLabel;
    auto *icons = new QLabel(QString::fromUtf16(glyphs));
    auto *chinese = new QLabel(QStringLiteral("请直接在键盘上输入新的快捷键"));
    auto *form = new QFormLayout;
    form->setHorizontalSpacing(24);
    form->setVerticalSpacing(14);
    form->addRow(QStringLiteral("Fonts registered"), fonts);
    form->addRow(QStringLiteral("Primary screen"), screen);
    form->addRow(QStringLiteral("DPI divided by 96"), scale);
    form->addRow(QStringLiteral("Icon font"), icons);
    form->addRow(QStringLiteral("Chinese text"), chinese);
    page->content()->addLayout(form);
    page->content()->addStretch();

    auto *poll = new QTimer(page);
    QObject::connect(poll, &QTimer::timeout, page, [=] {
        if (!OlvGlobal::isReady()) {
            return;
        }
        poll->stop();
        fonts->setText(registeredFonts());
        screen->setText(QStringLiteral("%1 × %2 pixels")
                            .arg(OlvGlobal::desktopSize.width())
                            .arg(OlvGlobal::desktopSize.height()));
        icons->setFont(OlvGlobal::getFont(QStringLiteral("FontAwesome"), glyphSize));
        page->log(QStringLiteral("OlvGlobal::isReady() is true"));
        // the thread stores the scale just after the flag, so it is read one poll later
        QTimer::singleShot(pollInterval, page, [=] {
            if (OlvGlobal::isReady()) {
                scale->setText(QString::number(OlvGlobal::DPI));
            }
        });
    });
    poll->start(pollInterval);
    return page;
}
