// SPDX-License-Identifier: MIT
#include "valuemenu.h"

#include "glyph.h"

#include <QAction>
#include <QColorDialog>
#include <QInputDialog>
#include <QPointer>
#include <QWidget>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QExtensionManager>

namespace {

QString title(KindProperty::Dialog dialog)
{
    return dialog == KindProperty::Glyph ? QStringLiteral("Change glyph...")
                                         : QStringLiteral("Change colour...");
}

/** Invalid when the dialog is cancelled. */
QVariant askForGlyph(QWidget *window, const QVariant &current)
{
    const bool isCharacter = current.userType() == QMetaType::QChar;
    QString label = QStringLiteral("A character of the icon font, or its code such as f005:");
    QString typed = glyphCode(current.toString());
    for (;;) {
        bool isAccepted = false;
        typed = QInputDialog::getText(window, QStringLiteral("Change Glyph"), label,
                                      QLineEdit::Normal, typed, &isAccepted);
        if (!isAccepted) {
            return QVariant();
        }
        const QString glyph = glyphFrom(typed);
        if (!glyph.isEmpty()) {
            return isCharacter ? QVariant(glyph.at(0)) : QVariant(glyph);
        }
        if (typed.isEmpty() && !isCharacter) {
            return QString();
        }
        label = QStringLiteral("That is no character up to U+FFFF. Type one character, or its code "
                               "such as f005:");
    }
}

/** Invalid when the dialog is cancelled. */
QVariant askForColor(QWidget *window, const QVariant &current)
{
    const QColor color =
        QColorDialog::getColor(QColor::fromRgba(current.toUInt()), window,
                               QStringLiteral("Change Colour"), QColorDialog::ShowAlphaChannel);
    return color.isValid() ? QVariant(color.rgba()) : QVariant();
}

} // namespace

ValueMenu::ValueMenu(const WidgetKind &kind, QWidget *widget, QObject *parent)
    : QObject(parent)
    , m_widget(widget)
{
    for (const KindProperty &property : kind.properties) {
        if (property.dialog == KindProperty::NoDialog) {
            continue;
        }
        auto *action = new QAction(title(property.dialog), this);
        connect(action, &QAction::triggered, this, [=] { ask(property); });
        m_actions.append(action);
    }
}

QAction *ValueMenu::preferredEditAction() const
{
    return m_actions.value(0);
}

QList<QAction *> ValueMenu::taskActions() const
{
    return m_actions;
}

void ValueMenu::ask(const KindProperty &property)
{
    QDesignerFormWindowInterface *form = QDesignerFormWindowInterface::findFormWindow(m_widget);
    if (!form) {
        return;
    }
    const QVariant current = m_widget->property(property.name.toUtf8().constData());
    // the form may be closed while the dialog is open
    const QPointer<ValueMenu> self(this);
    const KindProperty asked = property;
    QWidget *window = form->core()->topLevel();
    const QVariant value = asked.dialog == KindProperty::Glyph ? askForGlyph(window, current)
                                                               : askForColor(window, current);
    if (self && m_widget && value.isValid() && value != current) {
        set(asked, value);
    }
}

void ValueMenu::set(const KindProperty &property, const QVariant &value)
{
    // through the cursor, which makes a command of it that can be undone
    if (auto *form = QDesignerFormWindowInterface::findFormWindow(m_widget)) {
        form->cursor()->setWidgetProperty(m_widget, property.name, value);
    }
}

ValueMenuFactory::ValueMenuFactory(const WidgetKind &kind, QExtensionManager *manager)
    : QExtensionFactory(manager)
    , m_kind(kind)
{ }

QObject *ValueMenuFactory::createExtension(QObject *object, const QString &iid,
                                           QObject *parent) const
{
    auto *widget = qobject_cast<QWidget *>(object);
    if (iid != Q_TYPEID(QDesignerTaskMenuExtension) || !widget
        || QLatin1String(widget->metaObject()->className()) != m_kind.className) {
        return nullptr;
    }
    return new ValueMenu(m_kind, widget, parent);
}
