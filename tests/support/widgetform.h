// SPDX-License-Identifier: MIT
#pragma once

#include <OlvWidgets/OlvWidgets>

#include <QFormLayout>
#include <QLabel>
#include <QString>
#include <QVector>
#include <QWidget>

/** A window with a form of the library's widgets, one row for each, in this order. */
class WidgetForm : public QWidget
{
public:
    explicit WidgetForm(QWidget *parent = nullptr)
        : QWidget(parent)
        , name(new OlvLineEdit)
        , password(new OlvLineEdit)
        , shortcut(new OlvShortcutEdit(nullptr))
        , wifi(new OlvSwitch)
        , volume(new OlvSlider)
        , star(new OlvSimpleIconButton(QStringLiteral("*"), QFont()))
        , mail(new OlvIconButton(QLatin1Char('M'), QStringLiteral("Mail"), QStringLiteral("Sans"),
                                 nullptr, 80, 80))
        , save(new OlvButton(QStringLiteral("Save"), nullptr))
        , m_rows(new QFormLayout(this))
    {
        // the offscreen platform complains about windows with a minimum size
        m_rows->setSizeConstraint(QLayout::SetNoConstraint);
        password->setPassWord(true);
        addRow("&Name", name);
        addRow("&Password", password);
        addRow("S&hortcut", shortcut);
        addRow("&Wi-Fi", wifi);
        addRow("&Volume", volume);
        addRow("Sta&r", star);
        addRow("&Mail", mail);
        addRow("&Save", save);
    }

    QFormLayout *rows() const
    {
        return m_rows;
    }

    OlvLineEdit *const name;
    OlvLineEdit *const password;
    OlvShortcutEdit *const shortcut;
    OlvSwitch *const wifi;
    OlvSlider *const volume;
    OlvSimpleIconButton *const star;
    OlvIconButton *const mail;
    OlvButton *const save;

private:
    void addRow(const char *label, QWidget *field)
    {
        m_rows->addRow(QLatin1String(label), field);
    }

    QFormLayout *const m_rows;
};
