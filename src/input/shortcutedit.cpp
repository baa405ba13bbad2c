// SPDX-License-Identifier: MIT
#include <OlvWidgets/input.h>

#include "input/inputlook_p.h"
#include "input/inputmetrics_p.h"
#include "input/shortcutcapture_p.h"
#include "painting/canvas_p.h"
#include "painting/colors_p.h"
#include "painting/flipped_p.h"
#include "painting/shape_p.h"
#include "support/childaddress_p.h"
#include "support/owntooltip_p.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPointer>

#include <utility>

namespace {

constexpr char hasShortcutProperty[] = "HasOlvShortcut";
constexpr char shortcutProperty[] = "OlvShortcut";
constexpr char captureProperty[] = "Temp";

constexpr int frameInset = 2;
constexpr int editFrameWidth = 1;

void drawFrame(QPainter &painter, QSize size, const QColor &color)
{
    painter.setRenderHint(QPainter::Antialiasing);
    const Canvas canvas(painter);
    const QRect rect(QPoint(0, 0), size - QSize(frameInset, frameInset));
    const Shape frame = Shape::roundedRect(rect, InputMetrics::cornerRadius);
    frame.fill(canvas, Qt::white);
    frame.stroke(canvas, color, editFrameWidth);
}

} // namespace

class Q_DECL_HIDDEN OlvShortcutEdit::Private
{
public:
    static Private *of(const OlvShortcutEdit *edit)
    {
        return edit->d.get();
    }

    void await(OlvShortcutEdit *edit, OlvShortcut *candidate);

    ShortcutCapture capture;
    QPointer<OlvShortcut> held;
    /** The last one that the desktop has not answered for yet. */
    QPointer<OlvShortcut> pending;
    QMetaObject::Connection answer;
    OwnToolTip tip;
    InputLook look;
    bool isEnding = false; // nothing would delete a shortcut that is taken now
};

/** Has @p edit take the candidate again once the desktop has answered for it. */
void OlvShortcutEdit::Private::await(OlvShortcutEdit *edit, OlvShortcut *candidate)
{
    if (candidate == pending) {
        return;
    }
    disconnect(answer);
    answer = connect(candidate, &OlvShortcut::stateChanged, edit, [=] {
        disconnect(answer);
        pending.clear();
        const QPointer<OlvShortcutEdit> self(edit);
        if (edit->setShortcut(candidate) && self) {
            edit->update();
        }
    });
    const QPointer<OlvShortcut> before(std::exchange(pending, candidate));
    delete before; // slots that hear of it may delete the field
}

OlvShortcutEdit::OlvShortcutEdit(QWidget *parent)
    : OlvWidget(parent)
    , d(std::make_unique<Private>())
{
    qRegisterMetaType<OlvShortcut *>("OlvShortcut*");
    setWindowFlags(Qt::FramelessWindowHint);
    setProperty(hasShortcutProperty, false);
    setFocusPolicy(Qt::StrongFocus);
    setProperty(captureProperty, reinterpret_cast<qulonglong>(&d->capture));
    d->tip.set(this, "OlvShortcutEdit",
               QT_TRANSLATE_NOOP("OlvShortcutEdit", "请直接在键盘上输入新的快捷键"));
}

OlvShortcutEdit::OlvShortcutEdit(OlvShortcut *shortcut, QWidget *parent)
    : OlvShortcutEdit(parent)
{
    setShortcut(shortcut);
}

OlvShortcutEdit::~OlvShortcutEdit()
{
    d->isEnding = true;
    delete d->pending;
    delete d->held;
}

OlvShortcut *OlvShortcutEdit::shortcut()
{
    // An application may write the properties: that can hide the shortcut, but not name another.
    return property(hasShortcutProperty).toBool() ? ifAtAddress(d->held, property(shortcutProperty))
                                                  : nullptr;
}

QVariant OlvShortcutEdit::getValue()
{
    OlvShortcut *held = shortcut();
    return held ? held->toString() : QStringLiteral("nullptr");
}

void OlvShortcutEdit::setValue(const QVariant &value)
{
    setShortcut(OlvShortcut::fromAddress(value.toULongLong()));
}

bool OlvShortcutEdit::setShortcut(OlvShortcut *shortcut)
{
    if (!shortcut) {
        return false;
    }
    if (d->isEnding) {
        // called by a slot that hears of the end of the one that is held
        if (shortcut != d->held) {
            delete shortcut;
        }
        return false;
    }
    const QPointer<OlvShortcutEdit> self(this);
    const QPointer<OlvShortcut> candidate(shortcut);
    const bool isActive = candidate->active();
    if (self && candidate && !isActive && candidate != d->held
        && candidate->state() == OlvShortcut::Pending) {
        d->await(this, candidate);
        return false;
    }
    // an application's own shortcut may do anything in its operations
    if (!self || !candidate || !isActive) {
        if (!self || candidate != d->held) {
            delete candidate;
        }
        return false;
    }
    if (candidate != d->held) {
        const QPointer<OlvShortcut> pending(std::exchange(d->pending, nullptr));
        if (pending != candidate) {
            delete pending;
        }
        if (!self || !candidate) {
            delete candidate;
            return false;
        }
        const QPointer<OlvShortcut> before(std::exchange(d->held, candidate));
        if (before && property(hasShortcutProperty).toBool()) {
            before->destroy();
        }
        delete before;
        if (!self || !candidate) {
            return false;
        }
    }
    // From here on others hear of it, and may delete the field or have it hold another shortcut.
    setProperty(hasShortcutProperty, true);
    if (self) {
        setProperty(shortcutProperty, reinterpret_cast<qulonglong>(d->held.data()));
    }
    if (self) {
        Q_EMIT shortcutChanged(this->shortcut());
    }
    const QVariant value = self ? getValue() : QVariant();
    if (self) {
        Q_EMIT valueChanged(value);
    }
    return true;
}

void OlvShortcutEdit::clear()
{
    const QPointer<OlvShortcutEdit> self(this);
    delete d->pending;
    if (!self || !property(hasShortcutProperty).toBool()) {
        return;
    }
    delete d->held;
    if (self && !d->held) { // a slot of destroyed() may have set another
        setProperty(hasShortcutProperty, false);
    }
}

void OlvShortcutEdit::keyPressEvent(QKeyEvent *event)
{
    if (!d->capture.recording) {
        d->capture = ShortcutCapture();
        d->capture.key = Qt::Key_unknown;
        d->capture.recording = true;
    }
    if (bool *modifier = d->capture.modifier(event->key())) {
        *modifier = true;
    } else {
        d->capture.key = event->key();
    }
}

void OlvShortcutEdit::keyReleaseEvent(QKeyEvent *event)
{
    if (bool *modifier = d->capture.modifier(event->key())) {
        *modifier = false;
    } else if (d->capture.key != Qt::Key_unknown) {
        const QPointer<OlvShortcutEdit> self(this);
        setShortcut(new OlvShortcut(d->capture.qtKey(), d->capture.ctrl, d->capture.shift,
                                    d->capture.alt, d->capture.meta));
        if (!self) {
            return;
        }
        update();
    }
    // Once a key has been noted it stays noted, so that recording ends only with modifiers alone.
    const bool isEmpty = !d->capture.ctrl && !d->capture.shift && !d->capture.alt
        && !d->capture.meta && d->capture.key == Qt::Key_unknown;
    if (isEmpty) {
        d->capture.recording = false;
    }
}

void OlvShortcutEdit::changeEvent(QEvent *event)
{
    OlvWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        d->tip.retranslate(this);
    }
}

void OlvShortcutEdit::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const QColor color = hasFocus() ? QColor(Colors::emphasized) : QColor(Qt::gray);
    if (d->look.mirror.isOn) {
        drawFlipped(painter, size(), [&](QPainter &flipped) { drawFrame(flipped, size(), color); });
    } else {
        drawFrame(painter, size(), color);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(QFont(QStringLiteral("新宋体"), height() / 2));
    painter.setPen(d->look.textColor(color));
    if (OlvShortcut *held = shortcut()) {
        painter.drawText(QRect(0, 0, width(), height()), Qt::AlignCenter, held->toString());
    }
}

void InputLook::setMirrored(OlvShortcutEdit *edit, bool isOn)
{
    Mirror &mirror = OlvShortcutEdit::Private::of(edit)->look.mirror;
    if (mirror.isOn != isOn) {
        mirror.isOn = isOn;
        edit->update();
    }
}

void InputLook::setContrast(OlvShortcutEdit *edit, Contrast contrast)
{
    InputLook &look = OlvShortcutEdit::Private::of(edit)->look;
    if (look.contrast != contrast) {
        look.contrast = contrast;
        edit->update();
    }
}
