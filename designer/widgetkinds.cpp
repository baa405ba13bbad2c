// SPDX-License-Identifier: MIT
#include "poses.h"
#include "widgetkind.h"

#include <OlvWidgets/OlvWidgets>

#include <QFont>

namespace {

constexpr ushort mailGlyph = 0xf0e0;
constexpr ushort starGlyph = 0xf005;
constexpr uint cyan = 0xff00ffff;
constexpr uint blue = 0xff409eff;

QString iconFamily()
{
    return QStringLiteral("FontAwesome");
}

template <class Widget> QWidget *make(QWidget *parent)
{
    return new Widget(parent);
}

WidgetKind buttonKind()
{
    return { QStringLiteral("OlvButton"),
             QStringLiteral("QWidget"),
             QStringLiteral("A text button in four colours and three shapes"),
             QStringLiteral("A flat text button in one of four colour schemes and three shapes. "
                            "It emits clicked(), and toggled() when it is checkable."),
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
    return {
        QStringLiteral("OlvIconButton"),
        QStringLiteral("QWidget"),
        QStringLiteral("A tile of a glyph and a caption that tells a click from a double one"),
        QStringLiteral("A tile with one glyph of an icon font above a short caption. It emits "
                       "clicked() or dClicked() 400 milliseconds after the last release. "
                       "Right-click it to change the glyph and the colour."),
        QSizePolicy::Fixed,
        QSizePolicy::Fixed,
        false,
        { { QStringLiteral("icon"), QChar(mailGlyph),
            QStringLiteral("The glyph: right-click the widget, Change glyph..."), false,
            KindProperty::Dynamic, KindProperty::Glyph },
          { QStringLiteral("text"), QStringLiteral("Mail"), QStringLiteral("The caption"), true },
          { QStringLiteral("family"), iconFamily(), QStringLiteral("The icon font's family") },
          { QStringLiteral("color"), cyan,
            QStringLiteral("The accent colour, 0xAARRGGBB as a decimal number: right-click the "
                           "widget, Change colour..."),
            false, KindProperty::Dynamic, KindProperty::Color },
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
        Pose::lightUp
    };
}

WidgetKind simpleIconButtonKind()
{
    return { QStringLiteral("OlvSimpleIconButton"),
             QStringLiteral("QPushButton"),
             QStringLiteral("A small borderless button of one glyph"),
             QStringLiteral("A small checkable push button whose caption is one glyph of an icon "
                            "font: right-click it, Change glyph... setToggle() gives it a second "
                            "glyph for its checked state."),
             QSizePolicy::Fixed,
             QSizePolicy::Fixed,
             false,
             { { QStringLiteral("text"), QString(QChar(starGlyph)), QString(), false,
                 KindProperty::Declared, KindProperty::Glyph },
               { QStringLiteral("font"), QFont(iconFamily(), 14), QString(), false,
                 KindProperty::Declared } },
             make<OlvSimpleIconButton>,
             { 26, 26 },
             nullptr };
}

WidgetKind lineEditKind()
{
    return {
        QStringLiteral("OlvLineEdit"),
        QStringLiteral("QWidget"),
        QStringLiteral("A framed line of text with a glyph"),
        QStringLiteral("A framed line of text with an optional glyph at its left and an "
                       "optional password button, which setPassWord() shows. Its font follows "
                       "its height."),
        QSizePolicy::Expanding,
        QSizePolicy::Fixed,
        false,
        { { QStringLiteral("Icon"), QString(),
            QStringLiteral("The glyph at the left, in the widget's font; empty for none. To type "
                           "its code: right-click the widget, Change glyph..."),
            false, KindProperty::Dynamic, KindProperty::Glyph } },
        make<OlvLineEdit>,
        { 64, 32 },
        Pose::typeText
    };
}

WidgetKind shortcutEditKind()
{
    return { QStringLiteral("OlvShortcutEdit"),
             QStringLiteral("QWidget"),
             QStringLiteral("A field that takes a shortcut for the whole desktop"),
             QStringLiteral("A field in which the user presses a key combination, which becomes a "
                            "shortcut on the whole desktop. It emits shortcutChanged()."),
             QSizePolicy::Expanding,
             QSizePolicy::Fixed,
             false,
             {},
             make<OlvShortcutEdit>,
             { 40, 26 },
             Pose::nameKey };
}

WidgetKind switchKind()
{
    return { QStringLiteral("OlvSwitch"),
             QStringLiteral("QWidget"),
             QStringLiteral("An animated on/off switch, which is off in a form"),
             QStringLiteral("An on/off switch whose knob slides to the other end. It emits "
                            "valueChanged() and changed(). A form cannot have it on, since its "
                            "property \"switch\" moves no knob: call setChecked(true) once the "
                            "form is loaded, which turns it on at once and emits both."),
             QSizePolicy::Fixed,
             QSizePolicy::Fixed,
             false,
             { { QStringLiteral("openColor"), QStringLiteral("220,223,230"),
                 QStringLiteral("The track while it is off: red,green,blue") },
               { QStringLiteral("closeColor"), QStringLiteral("19,206,102"),
                 QStringLiteral("The track while it is on: red,green,blue") } },
             make<OlvSwitch>,
             { 48, 26 },
             Pose::switchOn };
}

WidgetKind sliderKind()
{
    return { QStringLiteral("OlvSlider"),
             QStringLiteral("QWidget"),
             QStringLiteral("A slider from 0 to 100, whose knob is at 0 in a form"),
             QStringLiteral(
                 "A horizontal slider. Its value is a percentage, read with getValue(); "
                 "dragging it is silent. The property \"progress\" and setValue() set "
                 "the value and leave the knob at 0. Call setSliderPosition(40) once the "
                 "form is loaded to set both."),
             QSizePolicy::Expanding,
             QSizePolicy::Fixed,
             false,
             { { QStringLiteral("progress"), 0,
                 QStringLiteral("What getValue() returns, 0 to 100. The knob stays at 0; in code, "
                                "setSliderPosition() moves it") } },
             make<OlvSlider>,
             { 60, 30 },
             Pose::slideHalfWay };
}

WidgetKind controlBarKind()
{
    return { QStringLiteral("OlvControlBar"),
             QStringLiteral("QWidget"),
             QStringLiteral("The buttons of a window without a frame"),
             QStringLiteral("Float, keep at the bottom, keep on top, minimise, maximise and close. "
                            "It emits changed(), and the window acts."),
             QSizePolicy::Expanding,
             QSizePolicy::Fixed,
             false,
             {},
             make<OlvControlBar>,
             { 78, 25 },
             Pose::showWindowButtons };
}

WidgetKind dragWidgetKind()
{
    return { QStringLiteral("OlvDragWidget"),
             QStringLiteral("QWidget"),
             QStringLiteral("A placeholder for a widget that is dragged"),
             QStringLiteral("A placeholder for a widget that is dragged from one container to "
                            "another: a plain widget."),
             QSizePolicy::Preferred,
             QSizePolicy::Preferred,
             false,
             {},
             make<OlvDragWidget>,
             { 40, 40 },
             Pose::outline };
}

WidgetKind gridKind()
{
    // no container: only widgets that the program passes to addWidget() are arranged
    return { QStringLiteral("OlvGridLayout"),
             QStringLiteral("QWidget"),
             QStringLiteral("Rows of widgets that scroll in a plain widget, the viewport"),
             QStringLiteral("Puts the widgets that the program adds into rows and scrolls them. It "
                            "needs a plain widget as its viewport, which it comes with and fills "
                            "whenever that is resized: move, resize and lay out the viewport. "
                            "Directly on a form or a page it would act as a window, without "
                            "scrolling, and resize that form or page to its own height."),
             QSizePolicy::Preferred,
             QSizePolicy::Preferred,
             false,
             {},
             make<OlvGridLayout>,
             { 64, 60 },
             Pose::fillWithTiles,
             true };
}

WidgetKind flexPanelKind()
{
    return {
        QStringLiteral("OlvFlexWidget"),
        QStringLiteral("QWidget"),
        QStringLiteral("A panel that the user moves and resizes"),
        QStringLiteral("A rounded panel that the user moves by dragging it anywhere, and "
                       "resizes by its right edge, its bottom edge and its corner."),
        QSizePolicy::Preferred,
        QSizePolicy::Preferred,
        true,
        { { QStringLiteral("headerWay"), int(OlvFlexWidget::HeaderTop),
            QStringLiteral("The band: 0 none, 1 top, 2 left, 3 top and shifted, 4 right") },
          { QStringLiteral("headerWayColor"), blue,
            QStringLiteral("The band's colour, 0xAARRGGBB as a decimal number: right-click the "
                           "widget, Change colour..."),
            false, KindProperty::Dynamic, KindProperty::Color } },
        make<OlvFlexWidget>,
        { 56, 50 },
        nullptr
    };
}

} // namespace

QVector<WidgetKind> widgetKinds()
{
    return { buttonKind(),       iconButtonKind(), simpleIconButtonKind(), lineEditKind(),
             shortcutEditKind(), switchKind(),     sliderKind(),           controlBarKind(),
             dragWidgetKind(),   gridKind(),       flexPanelKind() };
}

std::unique_ptr<QWidget> newWidget(const WidgetKind &kind)
{
    std::unique_ptr<QWidget> widget(kind.create(nullptr));
    for (const KindProperty &property : kind.properties) {
        widget->setProperty(property.name.toUtf8().constData(), property.value);
    }
    return widget;
}
