// SPDX-License-Identifier: MIT
#include "forms/readabletext_p.h"

#include <OlvWidgets/buttons.h>
#include <OlvWidgets/input.h>

#include "buttons/togglesheet_p.h"
#include "forms/disabledlook_p.h"
#include "forms/formmember_p.h"
#include "input/inputlook_p.h"
#include "input/inputproperties_p.h"
#include "painting/colors_p.h"
#include "painting/contrast_p.h"
#include "support/qtversion_p.h"

#include <QApplication>
#include <QCache>
#include <QDynamicPropertyChangeEvent>
#include <QLineEdit>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr QRgb ground = qRgb(255, 255, 255);
constexpr QPalette::ColorGroup groups[] = { QPalette::Active, QPalette::Inactive,
                                            QPalette::Disabled };
/** What disabled texts have before they are faded; still 2.2 and 1.9 after that, on white. */
constexpr double strongText = 12.0;
constexpr double strongPlaceholder = 7.0;

constexpr int maxBrushes = 64;

/** What the style sheet of the text sets in its palette. */
constexpr QPalette::ColorRole sheetRoles[] = { QPalette::Base, QPalette::Window, QPalette::Button };

/** Whether a palette has a role of its own in some group; in Qt 5 it has it in all of them then. */
bool hasOwn(const QPalette &palette, QPalette::ColorRole role)
{
    return std::any_of(std::begin(groups), std::end(groups),
                       [&](QPalette::ColorGroup group) { return palette.isBrushSet(group, role); });
}

void unset(QPalette *palette, QPalette::ColorGroup group, QPalette::ColorRole role)
{
    const quint64 mask = QtVersion::resolveMask(*palette) & ~QtVersion::maskOf(group, role);
    QtVersion::setResolveMask(palette, mask);
}

std::array<QRgb, 3> colorsOf(const QPalette &palette, QPalette::ColorRole role)
{
    return { palette.color(QPalette::Active, role).rgba(),
             palette.color(QPalette::Inactive, role).rgba(),
             palette.color(QPalette::Disabled, role).rgba() };
}

TextColors::Colors colorsOf(const QPalette &palette)
{
    TextColors::Colors colors;
    std::transform(std::begin(TextColors::roles), std::end(TextColors::roles), colors.begin(),
                   [&](QPalette::ColorRole role) { return colorsOf(palette, role); });
    return colors;
}

/** The brushes of a role, in all groups, of another palette; none where that has none of its own.
 */
void copyRole(QPalette *to, const QPalette &from, QPalette::ColorRole role)
{
    for (const QPalette::ColorGroup group : groups) {
        if (from.isBrushSet(group, role)) {
            to->setBrush(group, role, from.brush(group, role));
        } else if (to->isBrushSet(group, role)) {
            unset(to, group, role);
        }
    }
}

/** The roles of a palette that are not those that have been given. */
QPalette ownOf(const QPalette &palette, const TextColors *colors)
{
    QPalette own = colors ? colors->own : QPalette();
    for (std::size_t i = 0; i < TextColors::roleCount; ++i) {
        const QPalette::ColorRole role = TextColors::roles[i];
        const bool isGiven =
            colors && hasOwn(palette, role) && colorsOf(palette, role) == colors->given.at(i);
        if (!isGiven && (hasOwn(palette, role) || hasOwn(own, role))) {
            copyRole(&own, palette, role);
        }
    }
    return own;
}

/**
 * The colours that were given last, when they are the same: a form has many texts alike. What this
 * file keeps in statics is never destroyed: a program may use a form while it destroys its own.
 */
std::shared_ptr<const TextColors> shared(const TextColors &colors)
{
    static auto &latest = *new std::weak_ptr<const TextColors>;
    std::shared_ptr<const TextColors> same = latest.lock();
    if (same && same->given == colors.given && same->own == colors.own
        && QtVersion::resolveMask(same->own) == QtVersion::resolveMask(colors.own)) {
        return same;
    }
    same = std::make_shared<const TextColors>(colors);
    latest = same;
    return same;
}

/** A colour of text that may be meant for a dark ground: there, a light one takes its place. */
QColor darkened(const QColor &color)
{
    if (Contrast::ratio(Contrast::seen(color, ground), ground) >= Contrast::readable) {
        return color;
    }
    const QColor opposite = QColor::fromHslF(color.hslHueF(), color.hslSaturationF(),
                                             1 - color.lightnessF(), color.alphaF());
    return Contrast::ratio(Contrast::seen(opposite, ground), ground)
            > Contrast::ratio(Contrast::seen(color, ground), ground)
        ? opposite
        : color;
}

/** A colour of text as it is once its widget is disabled, which fades the widget or does not. */
QColor disabled(const QColor &color, double strong, bool fades)
{
    QColor result = Contrast::atLeast(strong, color, ground);
    if (!fades) {
        result.setAlphaF(float(DisabledLook::opacity));
        result = Contrast::seen(result, ground);
    }
    return result;
}

/**
 * A brush of one colour, which others of that colour share: a form has many texts of few colours,
 * and a brush takes more memory than all else that a text is given.
 */
QBrush sharedBrush(const QColor &color)
{
    static auto &brushes = *new QCache<QRgb, QBrush>(maxBrushes);
    if (const QBrush *brush = brushes.object(color.rgba())) {
        return *brush;
    }
    const QBrush brush(color);
    brushes.insert(color.rgba(), new QBrush(brush));
    return brush;
}

void setColor(QPalette *palette, QPalette::ColorGroup group, QPalette::ColorRole role,
              const QColor &color)
{
    if (palette->color(group, role) != color) {
        palette->setBrush(group, role, sharedBrush(color));
    }
}

void setReadable(QPalette *palette, QPalette::ColorRole role, double strong, bool fades)
{
    const auto readable = [&](QPalette::ColorGroup group) {
        const QColor color = darkened(palette->color(group, role));
        return Contrast::atLeast(Contrast::readable, color, ground);
    };
    const QColor active = readable(QPalette::Active);
    setColor(palette, QPalette::Active, role, active);
    setColor(palette, QPalette::Inactive, role, readable(QPalette::Inactive));
    setColor(palette, QPalette::Disabled, role, disabled(active, strong, fades));
}

QPalette readable(QPalette palette, bool fades)
{
    setReadable(&palette, QPalette::Text, strongText, fades);
#if QT_VERSION >= QT_VERSION_CHECK(5, 12, 0)
    setReadable(&palette, QPalette::PlaceholderText, strongPlaceholder, fades);
#endif
    for (const QPalette::ColorGroup group : groups) {
        const QColor selected = Contrast::seen(palette.color(group, QPalette::Highlight), ground);
        const QColor text = palette.color(group, QPalette::HighlightedText);
        setColor(&palette, group, QPalette::HighlightedText,
                 Contrast::atLeast(Contrast::readable, text, selected));
    }
    return palette;
}

/** A palette of a text without the colours that it has been given. */
QPalette withoutGiven(QPalette palette, const QPalette &own)
{
    for (const QPalette::ColorRole role : TextColors::roles) {
        copyRole(&palette, own, role);
    }
    return palette;
}

bool hasSheet(const QPalette &palette)
{
    return std::all_of(std::begin(sheetRoles), std::end(sheetRoles),
                       [&](QPalette::ColorRole role) { return hasOwn(palette, role); });
}

void fitText(FormMember &member, QLineEdit *text, bool fades)
{
    const QPalette before = text->palette();
    if (!hasSheet(before) && !text->testAttribute(Qt::WA_WState_Polished)) {
        return; // Qt has not applied the style sheet yet
    }
    const QPalette own = ownOf(before, member.colors.get());
    // a widget with a style sheet inherits the application's palette, not its parent's
    QPalette ofApplication = QApplication::palette(text);
    QtVersion::setResolveMask(&ofApplication, 0);
    const QPalette natural = withoutGiven(before, own).resolve(ofApplication);
    const QPalette after = readable(natural, fades);
    if (after != before) {
        member.colors = shared({ colorsOf(after), own });
        text->setPalette(after); // a receiver of its events may delete the member
    }
}

void takeText(FormMember &member, QLineEdit *text)
{
    if (const auto colors = std::exchange(member.colors, nullptr)) {
        const QPalette before = text->palette();
        text->setPalette(withoutGiven(before, ownOf(before, colors.get())));
    }
}

/** The style sheets of password buttons, shared by all buttons: a text of its own is 288 bytes. */
const QString &restingSheet()
{
    static const auto *const sheet = new QString(toggleSheet(Colors::restingToggle));
    return *sheet;
}

const QString &readableSheet()
{
    static const auto *const sheet = new QString(
        toggleSheet(Contrast::atLeast(Contrast::readable, QColor(Colors::restingToggle), ground)));
    return *sheet;
}

/** Changes the colour of a password button's glyph, unless the application has restyled it. */
void restyle(OlvLineEdit *edit, const QString &from, const QString &to)
{
    OlvSimpleIconButton *button = passwordButton(edit);
    if (button && button->styleSheet() == from) {
        button->setStyleSheet(to);
    }
}

InputLook::Contrast contrastOf(const QWidget *field, bool fades)
{
    if (field->isEnabled()) {
        return InputLook::Readable;
    }
    // disabled text is paler than enabled text, but stays above this contrast
    return fades ? InputLook::Strong : InputLook::Unchanged;
}

} // namespace

void ReadableText::fit(FormMember &member, bool fades)
{
    if (member.kind == FormKind::ShortcutEdit) {
        auto *edit = static_cast<OlvShortcutEdit *>(member.widget.data());
        InputLook::setContrast(edit, contrastOf(edit, fades));
    } else if (member.kind == FormKind::LineEdit) {
        auto *edit = static_cast<OlvLineEdit *>(member.widget.data());
        InputLook::setContrast(edit, contrastOf(edit, fades));
        const QPointer<OlvLineEdit> alive(edit);
        if (QLineEdit *text = edit->lineEdit()) {
            fitText(member, text, fades);
        }
        // a style sheet takes time to parse, and most line edits never show the button
        if (alive && alive->property(InputProperties::password).toBool()) {
            restyle(alive, restingSheet(), readableSheet());
        }
    }
}

bool ReadableText::mayChange(const QEvent *event)
{
    switch (event->type()) {
    case QEvent::EnabledChange:
    case QEvent::PaletteChange:
        return true;
    case QEvent::DynamicPropertyChange:
        return static_cast<const QDynamicPropertyChangeEvent *>(event)->propertyName()
            == InputProperties::password;
    default:
        return false;
    }
}

void ReadableText::take(FormMember &member)
{
    if (member.kind == FormKind::ShortcutEdit) {
        InputLook::setContrast(static_cast<OlvShortcutEdit *>(member.widget.data()),
                               InputLook::Unchanged);
    } else if (member.kind == FormKind::LineEdit) {
        auto *edit = static_cast<OlvLineEdit *>(member.widget.data());
        InputLook::setContrast(edit, InputLook::Unchanged);
        const QPointer<OlvLineEdit> alive(edit);
        if (QLineEdit *text = edit->lineEdit()) {
            takeText(member, text);
        }
        if (alive) {
            restyle(alive, readableSheet(), restingSheet());
        }
    }
}

bool ReadableText::isRestored(const FormMember &member, const QLineEdit *text)
{
    const QPalette &palette = text->palette();
    // some roles may come from a style sheet that has been removed
    return member.colors && !hasSheet(palette)
        && std::all_of(std::begin(TextColors::roles), std::end(TextColors::roles),
                       [&](QPalette::ColorRole role) {
                           return !hasOwn(palette, role)
                               || palette.brush(role) == member.colors->own.brush(role);
                       });
}
