// SPDX-License-Identifier: MIT
#include "forms/formkeys_p.h"

#include <OlvWidgets/buttons.h>
#include <OlvWidgets/input.h>
#include <OlvWidgets/value.h>

#include "buttons/buttonsproperties_p.h"
#include "buttons/buttonstate_p.h"
#include "buttons/mouseclick_p.h"
#include "forms/formgrid_p.h"
#include "value/knobmirror_p.h"
#include "value/slidermetrics_p.h"
#include "value/switchflip_p.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QStyle>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr int singleStep = 1;
constexpr int pageStep = 10;

bool isPressKey(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Space || key.key() == Qt::Key_Select;
}

bool isEnterKey(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Enter || key.key() == Qt::Key_Return;
}

/** As Qt's own buttons and sliders have it. */
Qt::FocusPolicy naturalPolicy(const QWidget *widget)
{
    return Qt::FocusPolicy(widget->style()->styleHint(QStyle::SH_Button_FocusPolicy));
}

void takeText(OlvLineEdit *edit)
{
    if (edit->focusProxy() && edit->focusProxy() == edit->lineEdit()) {
        edit->setFocusProxy(nullptr);
    }
    OlvSimpleIconButton *button = passwordButton(edit);
    if (button && button->focusPolicy() == Qt::NoFocus) {
        button->setFocusPolicy(naturalPolicy(button));
    }
}

/** The value that a key moves a slider to; its own for a key that does not move it. */
int movedValue(OlvSlider *slider, int key)
{
    const int value = SliderMetrics::inRange(slider->getValue().toInt());
    const int stepToTheRight = KnobMirror::isOn(slider) ? -singleStep : singleStep;
    switch (key) {
    case Qt::Key_Right:
        return value + stepToTheRight;
    case Qt::Key_Left:
        return value - stepToTheRight;
    case Qt::Key_Up:
        return value + singleStep;
    case Qt::Key_Down:
        return value - singleStep;
    case Qt::Key_PageUp:
        return value + pageStep;
    case Qt::Key_PageDown:
        return value - pageStep;
    case Qt::Key_Home:
        return SliderMetrics::noProgress;
    case Qt::Key_End:
        return SliderMetrics::fullProgress;
    default:
        return value;
    }
}

bool pressKeyOfSlider(OlvSlider *slider, const QKeyEvent &key)
{
    static constexpr int keys[] = { Qt::Key_Right,  Qt::Key_Left,     Qt::Key_Up,   Qt::Key_Down,
                                    Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End };
    if (std::find(std::begin(keys), std::end(keys), key.key()) == std::end(keys)) {
        return false;
    }
    const int wanted = SliderMetrics::inRange(movedValue(slider, key.key()));
    if (wanted != slider->getValue().toInt()) {
        slider->setSliderPosition(wanted);
    }
    return true;
}

/** Qt's push buttons take Enter in dialogs alone. */
bool pressKeyOfGlyph(QPushButton *button, const QKeyEvent &key)
{
    if (!isEnterKey(key) || button->autoDefault() || button->isDefault()) {
        return false;
    }
    if (!key.isAutoRepeat()) {
        button->click();
    }
    return true;
}

} // namespace

void FormKeys::give(FormMember &member)
{
    QWidget *widget = member.widget;
    switch (member.kind) {
    case FormKind::LineEdit:
        giveText(member, static_cast<OlvLineEdit *>(widget));
        break;
    case FormKind::Button:
    case FormKind::Tile:
    case FormKind::Switch:
    case FormKind::Slider:
        if (widget->focusPolicy() == Qt::NoFocus) {
            member.hasFocusPolicy = true;
            widget->setFocusPolicy(naturalPolicy(widget));
        }
        break;
    default: // take the focus by themselves, or have no use for it
        break;
    }
}

void FormKeys::take(FormMember &member)
{
    QWidget *widget = member.widget;
    if (std::exchange(member.hasFocusPolicy, false)
        && widget->focusPolicy() == naturalPolicy(widget)) {
        widget->setFocusPolicy(Qt::NoFocus);
    }
    if (std::exchange(member.hasFocusProxy, false)) {
        takeText(static_cast<OlvLineEdit *>(widget));
    }
    if (m_pressed == widget) {
        cancelPress();
    }
}

void FormKeys::restoreTabOrder()
{
    m_tabOrder.restore();
}

void FormKeys::giveText(FormMember &member, OlvLineEdit *edit)
{
    const QPointer<QLineEdit> text(edit->lineEdit()); // a slot of the focus may delete it
    if (!text || edit->focusProxy() || edit->focusPolicy() == Qt::NoFocus) {
        return;
    }
    // An order of tabs that was set while the frame was a tab stop has put the widgets that follow
    // between the frame and its text.
    m_tabOrder.bring(text, edit);
    if (OlvSimpleIconButton *button = passwordButton(edit)) {
        button->setFocusPolicy(Qt::NoFocus);
    }
    const QWidget *window = edit->window();
    const bool hadFocus = window->focusWidget() == edit;
    member.hasFocusProxy = true;
    edit->setFocusProxy(text);
    if (hadFocus && text) {
        text->setFocus(Qt::OtherFocusReason);
    }
}

bool FormKeys::handle(QWidget *widget, FormKind kind, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        // a filter is asked before Qt looks whether the widget is enabled
        return widget->isEnabled() && pressKey(widget, kind, static_cast<QKeyEvent &>(*event));
    case QEvent::KeyRelease:
        return widget->isEnabled() && releaseKey(widget, kind, static_cast<QKeyEvent &>(*event));
    case QEvent::FocusIn:
        m_capturesKeys = false;
        return false;
    case QEvent::FocusOut:
        if (widget == m_pressed
            && static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason) {
            cancelPress();
        }
        return false;
    case QEvent::EnabledChange:
        if (widget == m_pressed && !widget->isEnabled()) {
            cancelPress();
        }
        return false;
    default:
        return false;
    }
}

bool FormKeys::pressKey(QWidget *widget, FormKind kind, const QKeyEvent &key)
{
    switch (kind) {
    case FormKind::Button:
    case FormKind::Tile:
        return FormGrid::moveFocus(widget, key) || pressKeyOfButton(widget, key);
    case FormKind::Glyph:
    case FormKind::BarButton:
        return FormGrid::moveFocus(widget, key)
            || pressKeyOfGlyph(static_cast<QPushButton *>(widget), key);
    case FormKind::Switch:
        return FormGrid::moveFocus(widget, key) || pressKeyOfSwitch(widget, key);
    case FormKind::Slider:
        return pressKeyOfSlider(static_cast<OlvSlider *>(widget), key);
    case FormKind::ShortcutEdit:
        m_capturesKeys = true;
        return false;
    default:
        return false;
    }
}

bool FormKeys::pressKeyOfButton(QWidget *button, const QKeyEvent &key)
{
    if (key.key() == Qt::Key_Escape && m_pressed == button) {
        cancelPress();
        return true;
    }
    if (!isPressKey(key) && !isEnterKey(key)) {
        return false;
    }
    if (key.isAutoRepeat() || m_pressed == button) {
        return true;
    }
    const QPointer<QWidget> pressed(button);
    if (isPressKey(key)) {
        m_pressed = button;
        m_hasComeIn = !button->property(ButtonsProperties::hovered).toBool();
        MouseClick::press(pressed);
    } else {
        const bool hasComeIn = MouseClick::press(pressed);
        MouseClick::release(pressed, hasComeIn);
    }
    return true;
}

bool FormKeys::pressKeyOfSwitch(QWidget *widget, const QKeyEvent &key)
{
    if (key.key() == Qt::Key_Escape && m_pressed == widget) {
        cancelPress();
        return true;
    }
    if (!isPressKey(key)) {
        return false;
    }
    if (!key.isAutoRepeat()) {
        m_pressed = widget;
    }
    return true;
}

bool FormKeys::releaseKey(QWidget *widget, FormKind kind, const QKeyEvent &key)
{
    if (kind == FormKind::ShortcutEdit) {
        // the release of the key that led here, which the edit would take for one of a shortcut
        return !m_capturesKeys;
    }
    if (!isPressKey(key) || m_pressed != widget) {
        return false;
    }
    if (key.isAutoRepeat()) {
        return true;
    }
    m_pressed.clear();
    if (auto *toggle = qobject_cast<OlvSwitch *>(widget)) {
        flipUnlessSliding(*toggle);
    } else {
        MouseClick::release(QPointer<QWidget>(widget), m_hasComeIn);
    }
    return true;
}

void FormKeys::cancelPress()
{
    const QPointer<QWidget> pressed(std::exchange(m_pressed, nullptr));
    const bool hasComeIn = m_hasComeIn; // a receiver of the events may delete this
    if (qobject_cast<OlvSwitch *>(pressed)) {
        return; // has no pressed look
    }
    if (pressed && !pressed->isEnabled()) {
        // mouse events do not reach a disabled widget
        pressed->setProperty(ButtonsProperties::state, ButtonState::resting());
        if (pressed && hasComeIn) {
            pressed->setProperty(ButtonsProperties::hovered, false);
        }
        return; // Qt repaints a widget that is disabled
    }
    MouseClick::cancel(pressed, hasComeIn);
}
