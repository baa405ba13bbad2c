// SPDX-License-Identifier: MIT
#include <OlvWidgets/buttons.h>
#include <OlvWidgets/foundation.h>

#include "buttons/buttonmetrics_p.h"
#include "buttons/togglesheet_p.h"
#include "painting/colors_p.h"
#include "support/accessibility_p.h"

#include <QPointer>

namespace {

constexpr char uncheckedProperty[] = "deable";
constexpr char checkedProperty[] = "enable";

/**
 * Shared by all buttons. Never destroyed: a program may make buttons while it destroys its statics.
 */
const QString &styleSheetAtFirst()
{
    static const auto *const sheet =
        new QString(QStringLiteral("QPushButton{border:none;color:rgb(%1);}"
                                   "QPushButton:hover{color:rgb(%2)}"
                                   "QPushButton:disabled{color:rgb(%2)}")
                        .arg(OlvColorToString(QColor(Colors::restingGlyph)),
                             OlvColorToString(QColor(Colors::emphasized))));
    return *sheet;
}

} // namespace

OlvSimpleIconButton::OlvSimpleIconButton(const QString &text, const QFont &font, QWidget *parent)
    : QPushButton(parent)
{
    Accessibility::prepare(this);
    setText(text); // updates accessibility, so after the right interface is set up
    setFont(font);
    setCheckable(true);
    resize(ButtonMetrics::glyphSideLength, ButtonMetrics::glyphSideLength);
    setStyleSheet(styleSheetAtFirst());
}

OlvSimpleIconButton::OlvSimpleIconButton(QWidget *parent)
    : OlvSimpleIconButton(QString(), QFont(QStringLiteral("FontAwesome")), parent)
{ }

void OlvSimpleIconButton::setToggle(const QString &checkedText)
{
    setStyleSheet(toggleSheet(Colors::restingToggle));
    // an event filter may delete the button when either property changes
    const QPointer<OlvSimpleIconButton> self(this);
    setProperty(uncheckedProperty, text());
    if (self) {
        setProperty(checkedProperty, checkedText);
    }
    if (!self) {
        return;
    }
    connect(this, &QPushButton::clicked, this, [this](bool checked) {
        setText(property(checked ? checkedProperty : uncheckedProperty).toString());
    });
}

void OlvSimpleIconButton::setTextIcon(const QString &uncheckedText, const QString &checkedText)
{
    const QPointer<OlvSimpleIconButton> self(this);
    setProperty(uncheckedProperty, uncheckedText);
    if (self) {
        setProperty(checkedProperty, checkedText);
    }
    if (self) {
        setText(isChecked() ? checkedText : uncheckedText);
    }
}
