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
 * The text of a line edit is given colours in its palette. Qt's style sheets note the palette of a
 * widget when they take hold of it and restore that when they take hold anew. Nothing must be set
 * in between, or it is noted and comes back when the form support has gone.
 */
namespace ReadableText {

/** Makes the texts of a member readable, which may be disabled, and is faded then or not. */
void fit(FormMember &member, bool fades);
/** Whether they may have to be made readable anew after @p event, which came to a member. */
bool mayChange(const QEvent *event);
/** Restores the colours. */
void take(FormMember &member);
/**
 * Whether the new palette of @p text is one that a style sheet has restored, perhaps to take hold
 * anew: the colours are to be given later.
 */
bool isRestored(const FormMember &member, const QLineEdit *text);

} // namespace ReadableText
