// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>
#include <QRgb>

#include <array>

class QEvent;
class QLineEdit;
struct FormMember;

/** The colours that the text in a line edit has been given; many texts share them. */
struct TextColors
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 12, 0)
    static constexpr QPalette::ColorRole roles[] = { QPalette::Text, QPalette::HighlightedText,
                                                     QPalette::PlaceholderText };
#else
    // placeholders are drawn in the colour of the text, half translucent
    static constexpr QPalette::ColorRole roles[] = { QPalette::Text, QPalette::HighlightedText };
#endif
    static constexpr std::size_t roleCount = sizeof roles / sizeof *roles;
    /** The colours of the roles, each in the three groups of a palette. */
    using Colors = std::array<std::array<QRgb, 3>, roleCount>;

    Colors given{};
    /** What the application had set, or the style from a style sheet of the application's. */
    QPalette own;
};

/**
 * Texts that are seen well on the white ground of the fields, whatever the palette is.
 *
 * The text of a line edit is given colours in its palette. When Qt applies a style sheet, it stores
 * the palette that the widget has; when it applies one again, it restores that first. A colour that
 * is set in between would be stored, and would come back after the form support was deleted.
 */
namespace ReadableText {

/** Makes the texts of a member readable, which may be disabled, and is faded then or not. */
void fit(FormMember &member, bool fades);
/** Whether they may have to be made readable again after @p event, which came to a member. */
bool mayChange(const QEvent *event);
/** Restores the colours. */
void take(FormMember &member);
/**
 * Whether the new palette of @p text is the one that Qt restores before it applies a style sheet
 * again: the colours are to be given later.
 */
bool isRestored(const FormMember &member, const QLineEdit *text);

} // namespace ReadableText
