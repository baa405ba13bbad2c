// SPDX-License-Identifier: MIT
#include <OlvWidgets/buttons.h>
#include <OlvWidgets/input.h>

#include "input/inputlook_p.h"
#include "input/inputmetrics_p.h"
#include "input/inputproperties_p.h"
#include "painting/colors_p.h"
#include "painting/flipped_p.h"

#include <QEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>

namespace {

constexpr char iconWidthProperty[] = "IconWidth";
constexpr char visibleProperty[] = "Visible";
constexpr char invisibleProperty[] = "Invisible";
constexpr char stateProperty[] = "state";

constexpr QRgb focusedIconColor = qRgb(18, 183, 245);

QString normalState()
{
    return QStringLiteral("normal");
}

void drawFrame(QPainter &painter, QSize size)
{
    painter.setPen(QColor(Colors::inactive));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(QPointF(0, 0), size), InputMetrics::cornerRadius,
                            InputMetrics::cornerRadius);
}

} // namespace

/**
 * The parts of a line. An application may find and delete either; while one is being destroyed,
 * only its QWidget may be left of it, which is no QLineEdit or button any more.
 */
class OlvLineEdit::Private
{
public:
    static Private *of(const OlvLineEdit *edit)
    {
        return edit->d.get();
    }

    QLineEdit *editor() const
    {
        return qobject_cast<QLineEdit *>(editorObject);
    }
    OlvSimpleIconButton *pwdButton() const
    {
        return qobject_cast<OlvSimpleIconButton *>(pwdButtonObject);
    }

    QPointer<QObject> editorObject;
    QPointer<QObject> pwdButtonObject;
    InputLook look;
};

OlvLineEdit::OlvLineEdit(QWidget *parent)
    : OlvWidget(parent)
    , d(std::make_unique<Private>())
{
    const QString visible = QStringLiteral("✍");
    const QString invisible = QStringLiteral("※");
    setProperty(InputProperties::icon, QLatin1String(""));
    setProperty(iconWidthProperty, 0);
    setProperty(InputProperties::password, false);
    setProperty(visibleProperty, visible);
    setProperty(invisibleProperty, invisible);
    setProperty(stateProperty, normalState());
    d->look.mirror.width = width();
    activateWindow();
    setFocusPolicy(Qt::StrongFocus);

    auto *editor = new QLineEdit(this);
    d->editorObject = editor;
    editor->setStyleSheet(QStringLiteral("border: none;background-color:rgba(0,0,0,0)"));
    editor->installEventFilter(this);

    auto *pwdButton = new OlvSimpleIconButton(visible, QFont(QStringLiteral("FontAwesome")), this);
    d->pwdButtonObject = pwdButton;
    pwdButton->hide();
    pwdButton->setToggle(invisible);
    connect(pwdButton, &QPushButton::clicked, editor, [object = d->editorObject](bool checked) {
        if (auto *alive = qobject_cast<QLineEdit *>(object)) {
            alive->setEchoMode(checked ? QLineEdit::Normal : QLineEdit::Password);
        }
    });
}

OlvLineEdit::~OlvLineEdit() = default;

QVariant OlvLineEdit::getValue()
{
    return getText();
}

void OlvLineEdit::setValue(const QVariant &value)
{
    setText(value.toString());
}

void OlvLineEdit::setText(const QString &text)
{
    if (QLineEdit *editor = d->editor()) {
        editor->setText(text);
    }
}

QString OlvLineEdit::getText()
{
    const QLineEdit *editor = d->editor();
    return editor ? editor->text() : QString();
}

QLineEdit *OlvLineEdit::lineEdit() const
{
    return d->editor();
}

void OlvLineEdit::setPlaceholderText(const QString &text)
{
    if (QLineEdit *editor = d->editor()) {
        editor->setPlaceholderText(text);
    }
}

// An event filter on the line or on a part of it may delete the line at each step that sends an
// event: a new property, font or visibility.

void OlvLineEdit::setIcon(const QString &icon)
{
    const QPointer<OlvLineEdit> self(this);
    setProperty(InputProperties::icon, icon);
    if (self) {
        setProperty(iconWidthProperty, iconWidth(icon));
    }
    if (self) {
        update();
        resizeEvent(nullptr);
    }
}

void OlvLineEdit::setPassWord(bool on)
{
    const QPointer<OlvLineEdit> self(this);
    setProperty(InputProperties::password, on);
    if (OlvSimpleIconButton *pwdButton = self ? d->pwdButton() : nullptr) {
        pwdButton->setVisible(on);
    }
    if (QLineEdit *editor = self ? d->editor() : nullptr) {
        editor->setEchoMode(on ? QLineEdit::Password : QLineEdit::Normal);
    }
    if (self) {
        update();
        resizeEvent(nullptr);
    }
}

void OlvLineEdit::setPwdIcon(const QString &hidden, const QString &shown)
{
    if (OlvSimpleIconButton *pwdButton = d->pwdButton()) {
        pwdButton->setTextIcon(hidden, shown);
    }
}

bool OlvLineEdit::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::FocusIn && event->type() != QEvent::FocusOut) {
        return QObject::eventFilter(watched, event);
    }
    const QPointer<OlvLineEdit> self(this);
    const QPointer<QObject> receiver(watched);
    update();
    setProperty(stateProperty,
                event->type() == QEvent::FocusIn ? QStringLiteral("edit") : normalState());
    if (!self || (watched && !receiver)) {
        return true; // an object that has gone must not get the event
    }
    return QObject::eventFilter(watched, event);
}

void OlvLineEdit::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const Mirror &mirror = d->look.mirror;
    if (mirror.isOn) {
        drawFlipped(painter, size(), [&](QPainter &flipped) { drawFrame(flipped, size()); });
    } else {
        drawFrame(painter, size());
    }
    const bool isNormal = property(stateProperty).toString() == normalState();
    painter.setPen(d->look.textColor(QColor(isNormal ? Colors::restingToggle : focusedIconColor)));
    const int column = InputMetrics::bounded(property(iconWidthProperty).toInt());
    painter.drawText(QRect(mirror.placed(0, column), 0, column, height()), Qt::AlignCenter,
                     property(InputProperties::icon).toString());
}

void OlvLineEdit::resizeEvent(QResizeEvent * /*event*/)
{
    const QPointer<OlvLineEdit> self(this);
    const QPointer<QWidget> editor(d->editor());
    const QPointer<QWidget> pwdButton(d->pwdButton());
    QFont sized = font();
    // QFont keeps its size, with a warning, when it is told to be 0 points large
    if (height() / 2 > 0) {
        sized.setPointSize(height() / 2);
    }
    setFont(sized);
    if (editor) {
        editor->setFont(sized);
    }
    if (pwdButton) {
        pwdButton->setFont(sized);
    }
    if (!self) {
        return;
    }

    const int column = iconWidth(property(InputProperties::icon).toString());
    const int pwdWidth = property(InputProperties::password).toBool() ? height() : 0;
    Mirror &mirror = d->look.mirror;
    mirror.width = width();
    setProperty(iconWidthProperty, column);
    if (self && editor) {
        const int textWidth = width() - column - pwdWidth;
        editor->setGeometry(mirror.placed(column, qMax(0, textWidth)), 0, textWidth, height());
    }
    if (self && pwdButton) {
        pwdButton->setGeometry(mirror.placed(width() - height(), height()), 0, height(), height());
    }
}

void OlvLineEdit::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    if (QLineEdit *editor = d->editor()) {
        editor->setFocus(Qt::OtherFocusReason);
    }
}

int OlvLineEdit::iconWidth(const QString &icon) const
{
    return InputMetrics::columnWidth(icon, font(), height());
}

void InputLook::setMirrored(OlvLineEdit *edit, bool isOn)
{
    OlvLineEdit::Private *state = OlvLineEdit::Private::of(edit);
    Mirror &mirror = state->look.mirror;
    if (mirror.isOn == isOn) {
        return;
    }
    mirror.isOn = isOn;
    const Mirror otherSide{ true, mirror.width };
    // moving sends events, whose receivers may delete the line and its parts
    const QPointer<OlvLineEdit> self(edit);
    const QPointer<QWidget> parts[] = { state->editor(), state->pwdButton() };
    for (const QPointer<QWidget> &part : parts) {
        if (part) {
            part->move(otherSide.placed(part->x(), part->width()), part->y());
        }
    }
    if (self) {
        self->update();
    }
}

void InputLook::setContrast(OlvLineEdit *edit, Contrast contrast)
{
    InputLook &look = OlvLineEdit::Private::of(edit)->look;
    if (look.contrast != contrast) {
        look.contrast = contrast;
        edit->update();
    }
}
