// SPDX-License-Identifier: MIT
// A settings dialog: every row binds a value widget to a key of QSettings, whatever the widget is.
#include <OlvButton>
#include <OlvLineEdit>
#include <OlvSlider>
#include <OlvSwitch>

#include <QtWidgets>

/** A switch whose value is what the user wants, while its knob is still on the way there. */
class SettingSwitch : public OlvSwitch
{
public:
    QVariant getValue() override
    {
        return m_wanted;
    }
    void setValue(const QVariant &value) override
    {
        if (m_wanted == OlvSwitch::getValue().toBool()) { // it takes no other value on the way
            m_wanted = value.toBool();
            OlvSwitch::setValue(value);
        }
    }

private:
    bool m_wanted = false;
};

/** A slider that tells its value while it is dragged, and opens with its knob at the value. */
class VolumeSlider : public OlvSlider
{
public:
    void setValue(const QVariant &value) override
    {
        OlvSlider::setValue(value);
        Q_EMIT valueChanged(value);
    }

protected:
    void showEvent(QShowEvent * /*event*/) override
    {
        if (auto *knob = dynamic_cast<SliderRound *>(findChild<QWidget *>())) {
            knob->move(knob->y() + getValue().toInt() * knob->maxX() / 100, knob->y());
        }
    }
};

class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    SettingsDialog()
        : m_form(new QFormLayout(this))
    {
        setWindowTitle(tr("Settings"));
        setStyleSheet(QStringLiteral("QDialog { background: white; }"
                                     "QLabel { color: rgb(48,49,51); font-size: 13px; }"));
        m_form->setContentsMargins(28, 24, 28, 24);
        m_form->setHorizontalSpacing(48);
        m_form->setVerticalSpacing(18);
        m_form->addRow(new QLabel(QStringLiteral("<h2>%1</h2>").arg(windowTitle())));

        auto *name = new OlvLineEdit;
        name->setPlaceholderText(tr("as others see you"));
        bind(tr("Display name"), QStringLiteral("name"), name, { 220, 26 }, QString());
        bind(tr("Notifications"), QStringLiteral("notify"), new SettingSwitch, { 50, 24 }, true);
        bind(tr("Start with the desktop"), QStringLiteral("autostart"), new SettingSwitch,
             { 50, 24 }, false);
        auto *volume = new VolumeSlider;
        bind(tr("Volume"), QStringLiteral("volume"), volume, { 220, 30 }, 60);
        auto *label = qobject_cast<QLabel *>(m_form->labelForField(volume));
        const auto showVolume = [=](const QVariant &value) {
            label->setText(tr("Volume: %1 %").arg(value.toInt()));
        };
        connect(volume, &OlvWidget::valueChanged, label, showVolume);
        showVolume(volume->getValue());

        auto *save = new OlvButton(tr("Save"));
        save->setFixedSize(96, 32);
        connect(save, &OlvButton::clicked, this, &SettingsDialog::save);
        connect(save, &OlvButton::clicked, this, &QDialog::accept);
        m_form->addRow(QString(), save);
    }

private:
    void bind(const QString &label, const QString &key, OlvWidget *widget, QSize size,
              const QVariant &preset)
    {
        m_form->addRow(label, widget); // the label names the widget for screen readers as well
        widget->setObjectName(key);
        widget->setFixedSize(size);
        widget->setValue(m_settings.value(key, preset));
        m_widgets.insert(key, widget);
    }

    void save()
    {
        for (auto row = m_widgets.cbegin(); row != m_widgets.cend(); ++row) {
            m_settings.setValue(row.key(), row.value()->getValue());
        }
    }

    QSettings m_settings;
    QFormLayout *m_form;
    QHash<QString, OlvWidget *> m_widgets;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("OlvWidgets"));
    QApplication::setApplicationName(QStringLiteral("settingsdialog"));
    SettingsDialog().exec();
    return 0;
}

#include "main.moc"
