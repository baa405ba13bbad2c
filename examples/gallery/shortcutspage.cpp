// SPDX-License-Identifier: MIT
#include "page.h"
#include "pages.h"

#include <OlvShortcut>
#include <OlvShortcutEdit>

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <memory>

namespace {

constexpr QSize editSize(260, 32);

/** A field, and a count of the presses of its shortcut, whichever window has the focus. */
void addEdit(Page *page, QFormLayout *form, const QString &name, OlvShortcutEdit *edit)
{
    edit->setObjectName(name);
    edit->setFixedSize(editSize);
    form->addRow(name, edit);
    auto *pressed = new QLabel(QStringLiteral("not pressed yet"));
    form->addRow(QString(), pressed);

    const auto count = std::make_shared<int>(0);
    const auto follow = [=](OlvShortcut *shortcut) {
        *count = 0;
        pressed->setText(QStringLiteral("not pressed yet"));
        QObject::connect(shortcut, &OlvShortcut::activated, pressed, [=] {
            pressed->setText(QStringLiteral("pressed %1 times").arg(++*count));
            page->log(name + QLatin1String(": activated()"));
        });
    };
    QObject::connect(edit, &OlvShortcutEdit::shortcutChanged, page, [=](OlvShortcut *shortcut) {
        page->log(QStringLiteral("%1: shortcutChanged(%2)").arg(name, shortcut->toString()));
        follow(shortcut);
    });
    QObject::connect(edit, &OlvWidget::valueChanged, page, [=](const QVariant &value) {
        page->log(QStringLiteral("%1: valueChanged(\"%2\")").arg(name, value.toString()));
    });
    if (OlvShortcut *shortcut = edit->shortcut()) {
        follow(shortcut);
    }
}

} // namespace

Page *createShortcutsPage(QWidget *parent)
{
    auto *page =
        new Page(QStringLiteral("Shortcuts"),
                 QStringLiteral(
                     "OlvShortcutEdit: click a field, press a combination, and press it again in "
                     "any other window of the desktop. One that another program holds is refused."),
                 parent);
    auto *form = new QFormLayout;
    form->setHorizontalSpacing(24);
    form->setVerticalSpacing(10);
    auto *empty = new OlvShortcutEdit;
    addEdit(page, form, QStringLiteral("Type one"), empty);
    addEdit(page, form, QStringLiteral("Set from code"),
            new OlvShortcutEdit(new OlvShortcut(Qt::Key_F9, true, true, false, false)));
    auto *clear = new QPushButton(QStringLiteral("clear() the first"));
    clear->setFixedWidth(editSize.width());
    form->addRow(QString(), clear);
    QObject::connect(clear, &QPushButton::clicked, page, [=] {
        empty->clear();
        empty->update(); // clear() repaints nothing
    });
    page->content()->addLayout(form);
    page->content()->addStretch();
    return page;
}
