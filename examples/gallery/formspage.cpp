// SPDX-License-Identifier: MIT
#include "page.h"
#include "pages.h"

#include <OlvButton>
#include <OlvFormSupport>
#include <OlvIconButton>
#include <OlvLineEdit>
#include <OlvShortcutEdit>
#include <OlvSimpleIconButton>
#include <OlvSlider>
#include <OlvSwitch>

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeySequenceEdit>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr ushort starGlyph = 0xf006;
constexpr ushort fullStarGlyph = 0xf005;
constexpr ushort mailGlyph = 0xf0e0;
constexpr int mailSide = 76;
constexpr int volume = 60;

/** A form whose rows are the same on both sides of the page. */
class Form : public QGroupBox
{
public:
    explicit Form(const QString &title)
        : QGroupBox(title)
        , m_rows(new QFormLayout(this))
    { }

    void addRows(const QList<QWidget *> &widgets)
    {
        const QStringList labels{ QStringLiteral("&Name"),      QStringLiteral("&Password"),
                                  QStringLiteral("Short&cut"),  QStringLiteral("&Wireless"),
                                  QStringLiteral("&Bluetooth"), QStringLiteral("&Volume"),
                                  QStringLiteral("&Favourite"), QStringLiteral("&Mail") };
        for (int i = 0; i < widgets.size(); ++i) {
            m_rows->addRow(labels.value(i), widgets.at(i));
        }
    }

private:
    QFormLayout *m_rows;
};

QWidget *makeLibraryForm(Page *page)
{
    const auto log = [=](const char *line) {
        return [=] {
            page->log(QLatin1String(line));
        };
    };
    auto *name = new OlvLineEdit;
    name->setText(QStringLiteral("Li Wei"));
    auto *password = new OlvLineEdit;
    password->setPassWord(true);
    password->setPwdIcon(QChar(0xf06e), QChar(0xf070));
    password->setText(QStringLiteral("correct horse"));
    auto *wireless = new OlvSwitch;
    wireless->setChecked(true);
    QObject::connect(wireless, &OlvWidget::valueChanged, page, log("OlvSwitch: valueChanged()"));
    auto *bluetooth = new OlvSwitch;
    bluetooth->setEnabled(false);
    auto *slider = new OlvSlider;
    slider->setSliderPosition(volume);
    auto *favourite = new OlvSimpleIconButton(QChar(starGlyph), QFont(iconFamily(), 14));
    favourite->setToggle(QChar(fullStarGlyph));
    QObject::connect(favourite, &QPushButton::clicked, page, log("OlvSimpleIconButton: clicked()"));
    auto *mail = new OlvIconButton(QChar(mailGlyph), QStringLiteral("Mail"), iconFamily(), nullptr,
                                   mailSide, mailSide);
    QObject::connect(mail, &OlvIconButton::clicked, page, log("OlvIconButton: clicked()"));
    auto *save = new OlvButton(QStringLiteral("Save"));
    QObject::connect(save, &OlvButton::clicked, page, log("OlvButton: clicked()"));

    auto *form = new Form(QStringLiteral("The library's widgets, with OlvFormSupport"));
    form->addRows({ name, password, new OlvShortcutEdit, wireless, bluetooth, slider, favourite,
                    mail, save });
    new OlvFormSupport(form);
    return form;
}

QWidget *makeQtForm(Page *page)
{
    const auto log = [=](const char *line) {
        return [=] {
            page->log(QLatin1String(line));
        };
    };
    auto *password = new QLineEdit(QStringLiteral("correct horse"));
    password->setEchoMode(QLineEdit::Password);
    auto *wireless = new QCheckBox;
    wireless->setChecked(true);
    QObject::connect(wireless, &QCheckBox::toggled, page, log("QCheckBox: toggled()"));
    auto *bluetooth = new QCheckBox;
    bluetooth->setEnabled(false);
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setRange(0, 100);
    slider->setValue(volume);
    auto *favourite = new QToolButton;
    favourite->setText(QChar(starGlyph));
    favourite->setFont(QFont(iconFamily(), 14));
    favourite->setCheckable(true);
    favourite->setFocusPolicy(Qt::StrongFocus);
    QObject::connect(favourite, &QToolButton::clicked, page, log("QToolButton: clicked()"));
    auto *mail = new QPushButton(QStringLiteral("Mail"));
    mail->setFixedSize(mailSide, mailSide);
    QObject::connect(mail, &QPushButton::clicked, page, log("QPushButton: clicked()"));
    auto *save = new QPushButton(QStringLiteral("Save"));
    QObject::connect(save, &QPushButton::clicked, page, log("QPushButton: clicked()"));

    auto *form = new Form(QStringLiteral("Qt's own widgets"));
    form->addRows({ new QLineEdit(QStringLiteral("Li Wei")), password, new QKeySequenceEdit,
                    wireless, bluetooth, slider, favourite, mail, save });
    return form;
}

} // namespace

Page *createFormsPage(QWidget *parent)
{
    auto *page = new Page(
        QStringLiteral("Forms"),
        QStringLiteral("OlvFormSupport: one line that gives a form's widgets their sizes, one tab "
                       "stop each, keys, mnemonics, a ring for the focus, a look while they are "
                       "disabled, the layout direction and readable texts, as Qt's own have "
                       "them."),
        parent);
    auto *forms = new QHBoxLayout;
    forms->setSpacing(20);
    forms->addWidget(makeLibraryForm(page), 1);
    forms->addWidget(makeQtForm(page), 1);
    page->content()->addLayout(forms);
    page->content()->addStretch();
    return page;
}
