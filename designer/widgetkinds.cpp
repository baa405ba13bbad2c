// SPDX-License-Identifier: MIT
#include "widgetkind.h"

#include <OlvWidgets/OlvWidgets>

#include <QFont>
#include <QLabel>
#include <QLayout>
#include <QPushButton>

namespace {

constexpr ushort mailGlyph = 0xf0e0;
constexpr ushort starGlyph = 0xf005;
constexpr uint cyan = 0xff00ffff;
constexpr uint blue = 0xff409eff;
constexpr QRgb tileColor = qRgb(64, 158, 255);

QString iconFamily()
{
    return QStringLiteral("FontAwesome");
}

template <class Widget> QWidget *make(QWidget *parent)
{
    return new Widget(parent);
}

void lightUp(QWidget *button)
{
    button->setProperty("color", blue);
    button->setProperty("isCheckable", true);
    button->setProperty("isChecked", true);
}

void typeText(QWidget *widget)
{
    static_cast<OlvLineEdit *>(widget)->setText(QStringLiteral("Ab"));
}

void nameKey(QWidget *widget)
{
    auto *label = new QLabel(QStringLiteral("Ctrl"), widget);
    label->setAlignment(Qt::AlignCenter);
    label->resize(widget->size());
}

void switchOn(QWidget *widget)
{
    widget->setProperty("switch", true);
    for (QObject *child : widget->children()) {
        if (auto *knob = dynamic_cast<SwitchRound *>(child)) {
            knob->move(widget->width() - widget->height(), 0);
        }
    }
}

/** Three of the buttons, large and dark enough for an icon. */
void showWindowButtons(QWidget *bar)
{
    const QList<QPushButton *> buttons = bar->findChildren<QPushButton *>();
    for (int i = 0; i < buttons.size(); ++i) {
        QPushButton *button = buttons.at(i);
        button->setVisible(i >= OlvControlBar::Min);
        button->setStyleSheet(QStringLiteral("border: none; color: rgb(64,158,255)"));
        button->setFont(QFont(iconFamily(), 14));
    }
    delete bar->layout()->takeAt(0);
}

void slideHalfWay(QWidget *slider)
{
    for (QObject *child : slider->children()) {
        if (auto *knob = dynamic_cast<SliderRound *>(child)) {
            knob->move(knob->x() + (slider->width() - slider->height()) / 2, knob->y());
        }
    }
}

void fillWithTiles(QWidget *widget)
{
    auto *grid = static_cast<OlvGridLayout *>(widget);
    QList<QWidget *> tiles;
    for (const int width : { 12, 18, 22, 14, 14, 20 }) {
        auto *tile = new QWidget(grid);
        tile->resize(width, 12);
        tile->setAutoFillBackground(true);
        tile->setPalette(QPalette(QColor(tileColor)));
        tiles.append(tile);
    }
    grid->setMargin(4);
    grid->addWidget(tiles);
}

/** The placeholder draws nothing, so that it is shown by an outline. */
void outline(QWidget *widget)
{
    widget->setAttribute(Qt::WA_StyledBackground);
    widget->setStyleSheet(QStringLiteral("border: 3px dashed rgb(64,158,255)"));
}

WidgetKind buttonKind()
{
    return { QStringLiteral("OlvButton"),
             QStringLiteral("QWidget"),
             QStringLiteral("Button"),
             QStringLiteral("A text button in four colours and three shapes"),
             QStringLiteral("A flat text button in one of four colour schemes and three shapes. "
                            "It emits clicked(), and toggled() when it is checkable."),
             { 90, 32 },
             QSizePolicy::Minimum,
             QSizePolicy::Fixed,
             false,
             { { QStringLiteral("content"), QStringLiteral("Button"), QStringLiteral("The caption"),
                 true },
               { QStringLiteral("color"), QStringLiteral("primary"),
                 QStringLiteral("primary, success, warning, or anything else for red") },
               { QStringLiteral("type"), QString(),
                 QStringLiteral("plain, round, or anything else for the default shape") },
               { QStringLiteral("isCheckable"), false, QStringLiteral("Whether clicks toggle it") },
               { QStringLiteral("isChecked"), false, QStringLiteral("Whether it is checked") },
               { QStringLiteral("value"), false, QStringLiteral("What getValue() returns") } },
             make<OlvButton>,
             { 40, 30 },
             nullptr };
}

WidgetKind iconButtonKind()
{
    return { QStringLiteral("OlvIconButton"),
             QStringLiteral("QWidget"),
             QStringLiteral("Icon Button"),
             QStringLiteral("A tile of a glyph and a caption that tells a click from a double one"),
             QStringLiteral("A tile with one glyph of an icon font above a short caption. It emits "
                            "clicked() or dClicked() 400 milliseconds after the last release."),
             { 80, 80 },
             QSizePolicy::Fixed,
             QSizePolicy::Fixed,
             false,
             { { QStringLiteral("icon"), QChar(mailGlyph), QStringLiteral("The glyph") },
               { QStringLiteral("text"), QStringLiteral("Mail"), QStringLiteral("The caption"),
                 true },
               { QStringLiteral("family"), iconFamily(), QStringLiteral("The icon font's family") },
               { QStringLiteral("color"), cyan,
                 QStringLiteral("The accent colour, as the number 0xAARRGGBB") },
               { QStringLiteral("partSize"), 20,
                 QStringLiteral("Pixels: three for the glyph, one for the caption") },
               { QStringLiteral("iconSize"), 31.2, QStringLiteral("The glyph's size in points") },
               { QStringLiteral("textSize"), 10.4, QStringLiteral("The caption's size in points") },
               { QStringLiteral("isCheckable"), false,
                 QStringLiteral("Whether the checked look is shown") },
               { QStringLiteral("isChecked"), false, QStringLiteral("Whether it is checked") },
               { QStringLiteral("value"), false, QStringLiteral("What getValue() returns") } },
             make<OlvIconButton>,
             { 80, 80 },
             lightUp };
}

WidgetKind simpleIconButtonKind()
{
    return { QStringLiteral("OlvSimpleIconButton"),
             QStringLiteral("QPushButton"),
             QStringLiteral("Simple Icon Button"),
             QStringLiteral("A small borderless button of one glyph"),
             QStringLiteral("A small checkable push button whose caption is one glyph of an icon "
                            "font. setToggle() gives it a second glyph for its checked state."),
             { 30, 30 },
             QSizePolicy::Fixed,
             QSizePolicy::Fixed,
             false,
             { { QStringLiteral("text"), QString(QChar(starGlyph)), QString(), false,
                 KindProperty::Declared },
               { QStringLiteral("font"), QFont(iconFamily(), 14), QString(), false,
                 KindProperty::Declared } },
             make<OlvSimpleIconButton>,
             { 26, 26 },
             nullptr };
}

WidgetKind lineEditKind()
{
    return { QStringLiteral("OlvLineEdit"),
             QStringLiteral("QWidget"),
             QStringLiteral("Line Edit"),
             QStringLiteral("A framed line of text with a glyph"),
             QStringLiteral("A framed line of text with an optional glyph at its left and an "
                            "optional password button, which setPassWord() shows. Its font follows "
                            "its height."),
             { 200, 32 },
             QSizePolicy::Expanding,
             QSizePolicy::Fixed,
             false,
             { { QStringLiteral("Icon"), QString(),
                 QStringLiteral("The glyph at the left, in the widget's font; empty for none") } },
             make<OlvLineEdit>,
             { 64, 32 },
             typeText };
}

WidgetKind shortcutEditKind()
{
    return { QStringLiteral("OlvShortcutEdit"),
             QStringLiteral("QWidget"),
             QStringLiteral("Shortcut Edit"),
             QStringLiteral("A field that takes a shortcut for the whole desktop"),
             QStringLiteral("A field in which the user presses a key combination, which becomes a "
                            "shortcut on the whole desktop. It emits shortcutChanged()."),
             { 200, 32 },
             QSizePolicy::Expanding,
             QSizePolicy::Fixed,
             false,
             {},
             make<OlvShortcutEdit>,
             { 40, 26 },
             nameKey };
}

WidgetKind switchKind()
{
    return { QStringLiteral("OlvSwitch"),
             QStringLiteral("QWidget"),
             QStringLiteral("Switch"),
             QStringLiteral("An animated on/off switch"),
             QStringLiteral("An on/off switch whose knob slides to the other end. It emits "
                            "valueChanged() and changed(); setValue() switches it on."),
             { 50, 24 },
             QSizePolicy::Fixed,
             QSizePolicy::Fixed,
             false,
             { { QStringLiteral("openColor"), QStringLiteral("220,223,230"),
                 QStringLiteral("The track while it is off: red,green,blue") },
               { QStringLiteral("closeColor"), QStringLiteral("19,206,102"),
                 QStringLiteral("The track while it is on: red,green,blue") } },
             make<OlvSwitch>,
             { 48, 26 },
             switchOn };
}

WidgetKind sliderKind()
{
    return { QStringLiteral("OlvSlider"),
             QStringLiteral("QWidget"),
             QStringLiteral("Slider"),
             QStringLiteral("A slider from 0 to 100"),
             QStringLiteral("A horizontal slider. Its value is a percentage, read with getValue(); "
                            "dragging it is silent."),
             { 200, 30 },
             QSizePolicy::Expanding,
             QSizePolicy::Fixed,
             false,
             { { QStringLiteral("progress"), 0,
                 QStringLiteral("The value, 0 to 100; the knob stays where it is") } },
             make<OlvSlider>,
             { 60, 30 },
             slideHalfWay };
}

WidgetKind controlBarKind()
{
    return { QStringLiteral("OlvControlBar"),
             QStringLiteral("QWidget"),
             QStringLiteral("Control Bar"),
             QStringLiteral("The buttons of a window without a frame"),
             QStringLiteral("Float, keep at the bottom, keep on top, minimise, maximise and close. "
                            "It emits changed(), and the window acts."),
             { 200, 25 },
             QSizePolicy::Expanding,
             QSizePolicy::Fixed,
             false,
             {},
             make<OlvControlBar>,
             { 78, 25 },
             showWindowButtons };
}

WidgetKind dragWidgetKind()
{
    return { QStringLiteral("OlvDragWidget"),
             QStringLiteral("QWidget"),
             QStringLiteral("Drag Widget"),
             QStringLiteral("A placeholder for a widget that is dragged"),
             QStringLiteral("A placeholder for a widget that is dragged from one container to "
                            "another: a plain widget."),
             { 80, 80 },
             QSizePolicy::Preferred,
             QSizePolicy::Preferred,
             false,
             {},
             make<OlvDragWidget>,
             { 40, 40 },
             outline };
}

WidgetKind gridKind()
{
    // no container: the widgets in it are made by the program, which adds each to the grid
    return { QStringLiteral("OlvGridLayout"),
             QStringLiteral("QWidget"),
             QStringLiteral("Flow Grid"),
             QStringLiteral("Rows of widgets that scroll"),
             QStringLiteral("Puts the widgets that the program adds into rows, as wide as its "
                            "parent, and scrolls them: give it a plain widget as a viewport."),
             { 240, 160 },
             QSizePolicy::Preferred,
             QSizePolicy::Preferred,
             false,
             {},
             make<OlvGridLayout>,
             { 64, 60 },
             fillWithTiles };
}

WidgetKind flexPanelKind()
{
    return { QStringLiteral("OlvFlexWidget"),
             QStringLiteral("QWidget"),
             QStringLiteral("Flex Panel"),
             QStringLiteral("A panel that the user moves and resizes"),
             QStringLiteral("A rounded panel that the user moves by dragging it anywhere, and "
                            "resizes by its right edge, its bottom edge and its corner."),
             { 240, 180 },
             QSizePolicy::Preferred,
             QSizePolicy::Preferred,
             true,
             { { QStringLiteral("headerWay"), int(OlvFlexWidget::HeaderTop),
                 QStringLiteral("The band: 0 none, 1 top, 2 left, 3 top and shifted, 4 right") },
               { QStringLiteral("headerWayColor"), blue,
                 QStringLiteral("The band's colour, as the number 0xAARRGGBB") } },
             make<OlvFlexWidget>,
             { 56, 50 },
             nullptr };
}

} // namespace

QVector<WidgetKind> widgetKinds()
{
    return { buttonKind(),       iconButtonKind(), simpleIconButtonKind(), lineEditKind(),
             shortcutEditKind(), switchKind(),     sliderKind(),           controlBarKind(),
             dragWidgetKind(),   gridKind(),       flexPanelKind() };
}
