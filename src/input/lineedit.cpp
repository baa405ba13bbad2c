// SPDX-License-Identifier: MIT
#include <OlvWidgets/buttons.h>
#include <OlvWidgets/input.h>

#include <QEvent>
#include <QFontMetrics>
#include <QLineEdit>
#include <QPainter>

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

OlvLineEdit::OlvLineEdit(QWidget *parent)
    : OlvWidget(parent)
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

    m_editor = new QLineEdit(this);
    m_editor->setStyleSheet(QStringLiteral("border: none;background-color:rgba(0,0,0,0)"));
    m_editor->installEventFilter(this);

    m_pwdButton = new OlvSimpleIconButton(visible, QFont(QStringLiteral("FontAwesome")), this);
    m_pwdButton->hide();
    m_pwdButton->setToggle(invisible);
    connect(m_pwdButton, &QPushButton::clicked, m_editor, [editor = m_editor.data()](bool checked) {
        editor->setEchoMode(checked ? QLineEdit::Normal : QLineEdit::Password);
    });
}

QVariant OlvLineEdit::getValue()
{
    return getText();
}

void OlvLineEdit::setValue(const QVariant &value)
{
    setText(value.toString());
}

// whoever finds the children may delete them: each use asks whether they are still there
void OlvLineEdit::setText(const QString &text)
{
    if (m_editor) {
        m_editor->setText(text);
    }
}

QString OlvLineEdit::getText()
{
    return m_editor ? m_editor->text() : QString();
}

QLineEdit *OlvLineEdit::lineEdit() const
{
    return m_editor;
}

void OlvLineEdit::setPlaceholderText(const QString &text)
{
    if (m_editor) {
        m_editor->setPlaceholderText(text);
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
    if (m_pwdButton) {
        m_pwdButton->setVisible(on);
    }
    if (m_editor) {
        m_editor->setEchoMode(on ? QLineEdit::Password : QLineEdit::Normal);
    }
    resizeEvent(nullptr);
    update();
}

void OlvLineEdit::setPwdIcon(const QString &hidden, const QString &shown)
{
    if (m_pwdButton) {
        m_pwdButton->setTextIcon(hidden, shown);
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
    if (m_editor) {
        m_editor->setFont(sized);
    }
    if (m_pwdButton) {
        m_pwdButton->setFont(sized);
    }

    const int column = iconWidth(property(iconProperty).toString());
    const int pwdWidth = property(passwordProperty).toBool() ? height() : 0;
    setProperty(iconWidthProperty, column);
    if (m_editor) {
        m_editor->setGeometry(column, 0, width() - column - pwdWidth, height());
    }
    if (m_pwdButton) {
        m_pwdButton->setGeometry(width() - height(), 0, height(), height());
    }
}

void OlvLineEdit::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    if (m_editor) {
        m_editor->setFocus(Qt::OtherFocusReason);
    }
}

int OlvLineEdit::iconWidth(const QString &icon) const
{
    return qMax(QFontMetrics(font()).boundingRect(icon).width() + iconMargin, height());
}
