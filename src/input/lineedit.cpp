// SPDX-License-Identifier: MIT
#include <OlvWidgets/buttons.h>
#include <OlvWidgets/input.h>

#include <QEvent>
#include <QFontMetrics>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>

namespace {

constexpr char iconProperty[] = "Icon";
constexpr char iconWidthProperty[] = "IconWidth";
constexpr char passwordProperty[] = "Pwd";
constexpr char visibleProperty[] = "Visible";
constexpr char invisibleProperty[] = "Invisible";
constexpr char stateProperty[] = "state";

constexpr int iconMargin = 5;
constexpr qreal frameRadius = 3.0;
constexpr QRgb frameColor = qRgb(220, 223, 230);
constexpr QRgb iconColor = qRgb(184, 186, 188);
constexpr QRgb focusedIconColor = qRgb(18, 183, 245);

QString normalState()
{
    return QStringLiteral("normal");
}

} // namespace

/** The parts of a line; an application may find and delete either. */
class OlvLineEdit::Private
{
public:
    QPointer<QLineEdit> editor;
    QPointer<OlvSimpleIconButton> pwdButton;
};

OlvLineEdit::OlvLineEdit(QWidget *parent)
    : OlvWidget(parent)
    , d(std::make_unique<Private>())
{
    const QString visible = QStringLiteral("✍");
    const QString invisible = QStringLiteral("※");
    setProperty(iconProperty, QLatin1String(""));
    setProperty(iconWidthProperty, 0);
    setProperty(passwordProperty, false);
    setProperty(visibleProperty, visible);
    setProperty(invisibleProperty, invisible);
    setProperty(stateProperty, normalState());
    activateWindow();
    setFocusPolicy(Qt::StrongFocus);

    d->editor = new QLineEdit(this);
    d->editor->setStyleSheet(QStringLiteral("border: none;background-color:rgba(0,0,0,0)"));
    d->editor->installEventFilter(this);

    d->pwdButton = new OlvSimpleIconButton(visible, QFont(QStringLiteral("FontAwesome")), this);
    d->pwdButton->hide();
    d->pwdButton->setToggle(invisible);
    connect(d->pwdButton, &QPushButton::clicked, d->editor,
            [editor = d->editor.data()](bool checked) {
                editor->setEchoMode(checked ? QLineEdit::Normal : QLineEdit::Password);
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
    if (d->editor) {
        d->editor->setText(text);
    }
}

QString OlvLineEdit::getText()
{
    return d->editor ? d->editor->text() : QString();
}

QLineEdit *OlvLineEdit::lineEdit() const
{
    return d->editor;
}

void OlvLineEdit::setPlaceholderText(const QString &text)
{
    if (d->editor) {
        d->editor->setPlaceholderText(text);
    }
}

void OlvLineEdit::setIcon(const QString &icon)
{
    setProperty(iconProperty, icon);
    setProperty(iconWidthProperty, iconWidth(icon));
    resizeEvent(nullptr);
    update();
}

void OlvLineEdit::setPassWord(bool on)
{
    setProperty(passwordProperty, on);
    if (d->pwdButton) {
        d->pwdButton->setVisible(on);
    }
    if (d->editor) {
        d->editor->setEchoMode(on ? QLineEdit::Password : QLineEdit::Normal);
    }
    resizeEvent(nullptr);
    update();
}

void OlvLineEdit::setPwdIcon(const QString &hidden, const QString &shown)
{
    if (d->pwdButton) {
        d->pwdButton->setTextIcon(hidden, shown);
    }
}

bool OlvLineEdit::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        setProperty(stateProperty, QStringLiteral("edit"));
        update();
    } else if (event->type() == QEvent::FocusOut) {
        setProperty(stateProperty, normalState());
        update();
    }
    return QObject::eventFilter(watched, event);
}

void OlvLineEdit::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setPen(QColor(frameColor));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(0, 0, width(), height()), frameRadius, frameRadius);
    const bool isNormal = property(stateProperty).toString() == normalState();
    painter.setPen(QColor(isNormal ? iconColor : focusedIconColor));
    painter.drawText(QRect(0, 0, property(iconWidthProperty).toInt(), height()), Qt::AlignCenter,
                     property(iconProperty).toString());
}

void OlvLineEdit::resizeEvent(QResizeEvent * /*event*/)
{
    QFont sized = font();
    // QFont keeps its size, with a warning, when it is told to be 0 points large
    if (height() / 2 > 0) {
        sized.setPointSize(height() / 2);
    }
    setFont(sized);
    if (d->editor) {
        d->editor->setFont(sized);
    }
    if (d->pwdButton) {
        d->pwdButton->setFont(sized);
    }

    const int column = iconWidth(property(iconProperty).toString());
    const int pwdWidth = property(passwordProperty).toBool() ? height() : 0;
    setProperty(iconWidthProperty, column);
    if (d->editor) {
        d->editor->setGeometry(column, 0, width() - column - pwdWidth, height());
    }
    if (d->pwdButton) {
        d->pwdButton->setGeometry(width() - height(), 0, height(), height());
    }
}

void OlvLineEdit::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    if (d->editor) {
        d->editor->setFocus(Qt::OtherFocusReason);
    }
}

int OlvLineEdit::iconWidth(const QString &icon) const
{
    return qMax(QFontMetrics(font()).boundingRect(icon).width() + iconMargin, height());
}
