// SPDX-License-Identifier: MIT
#include <OlvWidgets/forms.h>

#include "buttons/buttonmetrics_p.h"
#include "buttons/buttonsproperties_p.h"
#include "containers/containermetrics_p.h"
#include "forms/formmember_p.h"
#include "input/inputmetrics_p.h"
#include "input/inputproperties_p.h"
#include "value/slidermetrics_p.h"

#include <QApplication>
#include <QFontInfo>
#include <QFontMetrics>
#include <QPushButton>

namespace {

/** Longer captions are not measured to their end; they are cut off or get smaller anyway. */
constexpr int longestMeasuredText = 256;
constexpr int buttonPadding = 20;
constexpr int shortestButton = 6; ///< in heights of a line of text
constexpr int longestButton = 20; ///< where captions begin to get smaller
constexpr int glyphPadding = 5;
constexpr int tileSide = 80;
constexpr int largestPart = 250;
constexpr int smallestSide = 20;
constexpr int editPadding = 3;
constexpr int charactersOfEdit = 12;
constexpr int switchPadding = 9;
constexpr int shortestSlider = 100;
constexpr int linesOfSlider = 7;
constexpr QSize gridSize(240, 160);

/** The font of the form around a widget. */
QFont formFont(const QWidget *widget)
{
    return widget->parentWidget() ? widget->parentWidget()->font() : QApplication::font(widget);
}

QString textToMeasure(const QWidget *widget, const char *property)
{
    return widget->property(property).toString().left(longestMeasuredText);
}

QSize sizeOfButton(const QWidget *button)
{
    // the painter's font has nothing but these two, and the rest from the widget's
    const QFont font = QFont(ButtonMetrics::captionFamily(), ButtonMetrics::captionPointSize)
                           .resolve(button->font());
    const QFontMetrics metrics(font);
    const int line = metrics.height();
    const QSize caption = metrics.size(0, textToMeasure(button, ButtonsProperties::content));
    return QSize(
        qBound(shortestButton * line, caption.width() + 2 * buttonPadding, longestButton * line),
        qMax(caption.height(), line) + line + 2);
}

QSize sizeOfTile(const QWidget *tile)
{
    const int part = tile->property(ButtonsProperties::partSize).toInt();
    const int side = part > 0
        ? qMax(smallestSide, ButtonMetrics::tilePartCount * qMin(part, largestPart))
        : tileSide;
    return QSize(side, side);
}

QSize sizeOfGlyph(const QPushButton *button)
{
    const QSize glyph = button->fontMetrics().size(0, button->text().left(longestMeasuredText));
    return QSize(glyph.width() + 2 * glyphPadding, glyph.height() + 2 * glyphPadding)
        .expandedTo(QSize(ButtonMetrics::glyphSideLength, ButtonMetrics::glyphSideLength));
}

/** The width of the column that a line edit of @p height keeps free for its glyph. */
int widthOfColumn(const QWidget *edit, QFont font, int height)
{
    font.setPointSize(height / 2);
    return InputMetrics::columnWidth(textToMeasure(edit, InputProperties::icon), font, height);
}

/**
 * The text of an edit is half as many points large as the edit is pixels high. So that it is not
 * much larger than that of the form, an edit is hardly higher than a line of it.
 */
QSize sizeOfEdit(const QWidget *edit)
{
    const QFont font = formFont(edit);
    const QFontMetrics metrics(font);
    const int height = qMax(qMax(smallestSide, 2 * qRound(QFontInfo(font).pointSizeF())),
                            metrics.height() + 2 * editPadding);
    const int text = charactersOfEdit * metrics.horizontalAdvance(QLatin1Char('x'));
    const int passwordButton = edit->property(InputProperties::password).toBool() ? height : 0;
    return QSize(qMin(widthOfColumn(edit, font, height), text) + text + passwordButton, height);
}

QSize sizeOfSwitch(const QWidget *widget)
{
    const int height = qMax(smallestSide, QFontMetrics(formFont(widget)).height() + switchPadding);
    return QSize(2 * height + 2, height);
}

QSize sizeOfSlider(const QWidget *slider)
{
    const int line = QFontMetrics(formFont(slider)).height();
    return QSize(qMax(shortestSlider, linesOfSlider * line), SliderMetrics::height);
}

} // namespace

QSize OlvFormSupport::naturalSize(const QWidget *widget)
{
    switch (formKindOf(widget)) {
    case FormKind::None:
        break;
    case FormKind::Button:
        return sizeOfButton(widget);
    case FormKind::Tile:
        return sizeOfTile(widget);
    case FormKind::Glyph:
        return sizeOfGlyph(static_cast<const QPushButton *>(widget));
    case FormKind::LineEdit:
    case FormKind::ShortcutEdit:
        return sizeOfEdit(widget);
    case FormKind::Switch:
        return sizeOfSwitch(widget);
    case FormKind::Slider:
        return sizeOfSlider(widget);
    case FormKind::BarButton:
    case FormKind::Bar:
        return widget->sizeHint(); // Qt's own, of its style and of its layout
    case FormKind::Grid:
        return gridSize;
    case FormKind::Panel:
        return ContainerMetrics::panelSize;
    case FormKind::Placeholder:
        return QSize(tileSide, tileSide);
    }
    return QSize();
}
