// SPDX-License-Identifier: MIT
#include "events.h"

#include "dice.h"

#include <QApplication>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QCursor>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QDynamicPropertyChangeEvent>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QHoverEvent>
#include <QImage>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QMoveEvent>
#include <QPainter>
#include <QPointer>
#include <QResizeEvent>
#include <QScrollBar>
#include <QTimerEvent>
#include <QVector>
#include <QWheelEvent>
#include <QWidget>

namespace {

/** The events that are being sent, the outermost first. */
QVector<const QEvent *> &sentEvents()
{
    static QVector<const QEvent *> events;
    return events;
}

bool send(QObject *receiver, QEvent &event)
{
    sentEvents().append(&event);
    const bool isHandled = QCoreApplication::sendEvent(receiver, &event);
    sentEvents().removeLast();
    return isHandled;
}

Qt::MouseButton button(Dice &dice)
{
    static constexpr std::array<Qt::MouseButton, 6> buttons{
        Qt::LeftButton,   Qt::LeftButton, Qt::RightButton,
        Qt::MiddleButton, Qt::BackButton, Qt::NoButton,
    };
    return dice.pick(buttons);
}

Qt::KeyboardModifiers modifiers(Dice &dice)
{
    return dice.coin() ? Qt::KeyboardModifiers()
                       : Qt::KeyboardModifiers(int(dice.bits()) & int(Qt::KeyboardModifierMask));
}

int key(Dice &dice)
{
    static constexpr std::array<int, 14> keys{
        Qt::Key_Control, Qt::Key_Shift,  Qt::Key_Alt,   Qt::Key_Meta, Qt::Key_Escape,
        Qt::Key_Return,  Qt::Key_Space,  Qt::Key_Tab,   Qt::Key_Left, Qt::Key_Backspace,
        Qt::Key_unknown, Qt::Key_Delete, Qt::Key_AltGr, Qt::Key_F5,
    };
    switch (dice.below(8)) {
    case 0:
        return dice.number();
    case 1:
    case 2:
        return dice.between(Qt::Key_A, Qt::Key_Z);
    default:
        return dice.pick(keys);
    }
}

void sendMouse(Dice &dice, QWidget *receiver, QEvent::Type type)
{
    const QPointF place = dice.place(receiver->size());
    const Qt::MouseButton pressed = button(dice);
    const bool isHeld = type != QEvent::MouseButtonRelease;
    QMouseEvent event(type, place, QCursor::pos(),
                      type == QEvent::MouseMove ? Qt::NoButton : pressed,
                      isHeld ? pressed : Qt::NoButton, modifiers(dice));
    send(receiver, event);
}

void sendKey(Dice &dice, QWidget *receiver)
{
    static constexpr std::array<QEvent::Type, 5> types{
        QEvent::KeyPress,   QEvent::KeyPress,         QEvent::KeyRelease,
        QEvent::KeyRelease, QEvent::ShortcutOverride,
    };
    const QEvent::Type type = dice.pick(types);
    const int code = key(dice);
    const Qt::KeyboardModifiers held = modifiers(dice);
    QKeyEvent event(type, code, held, dice.text(), dice.oneIn(8), ushort(dice.below(3)));
    send(receiver, event);
}

void sendWheel(Dice &dice, QWidget *receiver)
{
    const QPointF place = dice.place(receiver->size());
    const QPoint angle = dice.oneIn(4) ? dice.point() : QPoint(0, dice.coin() ? 120 : -120);
    const QPoint pixels = dice.oneIn(4) ? dice.point() : QPoint();
    QWheelEvent event(place, receiver->mapToGlobal(QPoint()) + place, pixels, angle, Qt::NoButton,
                      modifiers(dice), Qt::NoScrollPhase, dice.coin());
    send(receiver, event);
}

void sendInputMethod(Dice &dice, QWidget *receiver)
{
    const QString preedit = dice.text();
    QList<QInputMethodEvent::Attribute> attributes;
    if (dice.coin() && !preedit.isEmpty()) {
        attributes.append(
            { QInputMethodEvent::Cursor, dice.below(int(preedit.size())), 1, QVariant() });
    }
    QInputMethodEvent event(preedit, attributes);
    event.setCommitString(dice.text(), dice.between(-2, 2), dice.below(3));
    send(receiver, event);
}

void sendDrag(Dice &dice, QWidget *receiver)
{
    QMimeData data;
    data.setText(dice.text());
    const QPoint place = dice.pixel(receiver->size());
    const QPointer<QWidget> alive(receiver);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, modifiers(dice));
    send(receiver, enter);
    if (alive && dice.coin()) {
        QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, modifiers(dice));
        send(receiver, drop);
    } else if (alive) {
        QDragLeaveEvent leave;
        send(receiver, leave);
    }
}

void sendGeometry(Dice &dice, QWidget *receiver)
{
    // the event tells of a size or a place that the widget does not have
    if (dice.coin()) {
        QResizeEvent event(QSize{ dice.side(), dice.side() }, receiver->size());
        send(receiver, event);
    } else {
        QMoveEvent event(dice.point(), receiver->pos());
        send(receiver, event);
    }
}

void sendChange(Dice &dice, QWidget *receiver)
{
    static constexpr std::array<QEvent::Type, 16> types{
        QEvent::FontChange,       QEvent::StyleChange,
        QEvent::PaletteChange,    QEvent::LanguageChange,
        QEvent::EnabledChange,    QEvent::ActivationChange,
        QEvent::ParentChange,     QEvent::LayoutDirectionChange,
        QEvent::LocaleChange,     QEvent::ContentsRectChange,
        QEvent::ToolTipChange,    QEvent::UpdateRequest,
        QEvent::LayoutRequest,    QEvent::WindowActivate,
        QEvent::WindowDeactivate, QEvent::User,
    };
    QEvent event(dice.pick(types));
    send(receiver, event);
}

void sendRare(Dice &dice, QWidget *receiver)
{
    switch (dice.below(6)) {
    case 0: {
        QCloseEvent event;
        send(receiver, event);
        break;
    }
    case 1: {
        // a scroll bar opens a menu that blocks until it is answered
        if (!qobject_cast<QScrollBar *>(receiver)) {
            const QPoint place = dice.pixel(receiver->size());
            QContextMenuEvent event(QContextMenuEvent::Keyboard, place,
                                    receiver->mapToGlobal(place));
            send(receiver, event);
        }
        break;
    }
    case 2: {
        // World::showTip() takes care of widgets that have a tool tip
        if (receiver->toolTip().isEmpty()) {
            Events::askForTip(dice, receiver);
        }
        break;
    }
    case 3: {
        QDynamicPropertyChangeEvent event(dice.text().toUtf8());
        send(receiver, event);
        break;
    }
    case 4: {
        QInputMethodQueryEvent event(Qt::ImQueryAll);
        send(receiver, event);
        break;
    }
    default:
        sendDrag(dice, receiver);
    }
}

void sendPlain(QWidget *receiver, QEvent::Type type)
{
    if (type == QEvent::Enter) {
        const QPointF place = receiver->rect().center();
        QEnterEvent event(place, place, QCursor::pos());
        send(receiver, event);
        return;
    }
    QEvent event(type);
    send(receiver, event);
}

void sendFocus(Dice &dice, QWidget *receiver)
{
    QFocusEvent event(dice.coin() ? QEvent::FocusIn : QEvent::FocusOut,
                      Qt::FocusReason(dice.below(Qt::NoFocusReason)));
    send(receiver, event);
}

void sendHover(Dice &dice, QWidget *receiver)
{
    static constexpr std::array<QEvent::Type, 3> types{ QEvent::HoverEnter, QEvent::HoverMove,
                                                        QEvent::HoverLeave };
    const QPointF place = dice.place(receiver->size());
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    QHoverEvent event(dice.pick(types), place, place, QPointF());
#else
    QHoverEvent event(dice.pick(types), place, QPointF());
#endif
    send(receiver, event);
}

} // namespace

bool Events::isSending(const QEvent &event)
{
    return sentEvents().contains(&event);
}

void Events::sendAny(Dice &dice, QWidget *receiver)
{
    switch (dice.below(32)) {
    case 0:
    case 1:
    case 2:
    case 3:
        return sendMouse(dice, receiver, QEvent::MouseButtonPress);
    case 4:
    case 5:
    case 6:
    case 7:
        return sendMouse(dice, receiver, QEvent::MouseButtonRelease);
    case 8:
    case 9:
    case 10:
    case 11:
        return sendMouse(dice, receiver, QEvent::MouseMove);
    case 12:
        return sendMouse(dice, receiver, QEvent::MouseButtonDblClick);
    case 13:
    case 14:
        return click(dice, receiver);
    case 15:
    case 16:
    case 17:
        return sendPlain(receiver, QEvent::Enter);
    case 18:
    case 19:
        return sendPlain(receiver, QEvent::Leave);
    case 20:
    case 21:
    case 22:
    case 23:
        return sendKey(dice, receiver);
    case 24:
        return sendWheel(dice, receiver);
    case 25:
        return sendFocus(dice, receiver);
    case 26:
        return sendTimer(dice, receiver);
    case 27:
        return sendInputMethod(dice, receiver);
    case 28:
        return sendHover(dice, receiver);
    case 29:
        return sendGeometry(dice, receiver);
    case 30:
        return sendChange(dice, receiver);
    default:
        return sendRare(dice, receiver);
    }
}

void Events::click(Dice &dice, QWidget *receiver)
{
    const QPointer<QWidget> alive(receiver);
    const QPointF place = receiver->rect().center();
    const Qt::MouseButton pressed = dice.oneIn(4) ? Qt::RightButton : Qt::LeftButton;
    sendPlain(receiver, QEvent::Enter);
    if (alive) {
        QMouseEvent press(QEvent::MouseButtonPress, place, QCursor::pos(), pressed, pressed,
                          Qt::NoModifier);
        send(receiver, press);
    }
    if (alive) {
        QMouseEvent release(QEvent::MouseButtonRelease, place, QCursor::pos(), pressed,
                            Qt::NoButton, Qt::NoModifier);
        send(receiver, release);
    }
}

void Events::askForTip(Dice &dice, QWidget *receiver)
{
    QHelpEvent event(QEvent::ToolTip, dice.point(), dice.point());
    send(receiver, event);
}

void Events::sendTimer(Dice &dice, QObject *receiver)
{
    const bool isOwn = dice.coin();
    QTimerEvent event(isOwn ? receiver->property("timerId").toInt() : dice.number());
    send(receiver, event);
}

void Events::paint(Dice &dice, QWidget *widget)
{
    static constexpr std::array<QImage::Format, 8> formats{
        QImage::Format_ARGB32_Premultiplied,
        QImage::Format_ARGB32_Premultiplied,
        QImage::Format_RGB32,
        QImage::Format_Mono,
        QImage::Format_RGB16,
        QImage::Format_RGBA64,
        QImage::Format_Grayscale8,
        QImage::Format_ARGB8565_Premultiplied,
    };
    static constexpr std::array<double, 6> ratios{ 1.0, 1.0, 1.25, 2.0, 3.7, 0.1 };
    const int side = dice.oneIn(16) ? 300 : 64;
    QImage image(QSize{ dice.between(1, side), dice.between(1, side) }, dice.pick(formats));
    image.setDevicePixelRatio(dice.pick(ratios));
    image.fill(0);
    QWidget::RenderFlags flags = QWidget::DrawChildren;
    if (dice.coin()) {
        flags |= QWidget::DrawWindowBackground;
    }
    const QPoint offset = dice.oneIn(16) ? QPoint{ dice.between(-40000, 40000), 3 } : QPoint();
    widget->render(&image, offset, QRegion(), flags);
}
