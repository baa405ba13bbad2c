// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QSize>
#include <QWidget>

#include <memory>

class OlvLineEdit;
class OlvSimpleIconButton;
class QLineEdit;
struct TextColors;

/** What a form support tells apart. */
enum class FormKind : quint8 {
    None,         ///< not of the library, or a part of one of its widgets
    Button,       ///< an OlvButton
    Tile,         ///< an OlvIconButton
    Glyph,        ///< an OlvSimpleIconButton
    BarButton,    ///< a button that a control bar made
    LineEdit,     ///< an OlvLineEdit
    ShortcutEdit, ///< an OlvShortcutEdit
    Switch,       ///< an OlvSwitch
    Slider,       ///< an OlvSlider
    Bar,          ///< an OlvControlBar
    Grid,         ///< an OlvGridLayout
    Panel,        ///< an OlvFlexWidget
    Placeholder,  ///< an OlvDragWidget
};

/** What @p widget is to a form. */
FormKind formKindOf(const QWidget *widget);

/** The text in a line edit, whose events the support filters as well; null for other widgets. */
QLineEdit *textOf(const QWidget *widget, FormKind kind);
/** The password button of a line edit; null when the application has deleted it. */
OlvSimpleIconButton *passwordButton(const OlvLineEdit *edit);

/**
 * Whether @p widget, which was of @p kind, still is: during ~QWidget() events still come to it, and
 * guarded pointers are not null yet, but it is only a QWidget.
 */
bool isStill(const QWidget *widget, FormKind kind);

/** Whether a widget of @p kind may have others of the form in it, and not just its own parts. */
inline bool holdsOthers(FormKind kind)
{
    return kind == FormKind::None || kind >= FormKind::Bar;
}

/**
 * A widget of the library in a form, and what it was given there.
 *
 * What a member is about to be given is noted before it is: the setters send events, whose
 * receivers may delete the member.
 */
struct FormMember
{
    QPointer<QWidget> widget;
    FormKind kind = FormKind::None;

    bool hasPolicy = false;
    bool hasFocusPolicy = false;
    bool hasFocusProxy = false;
    bool hasReadableText = false;
    /** The minimum size that it was given; 0 where it was given none. */
    QSize minimum{ 0, 0 };
    /** The colours that its text was given; null where it was given none. */
    std::shared_ptr<const TextColors> colors;
};
