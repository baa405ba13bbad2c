// SPDX-License-Identifier: MIT
// A settings dialog: every row binds a value widget to a key of QSettings, whatever the widget is.
#include <OlvButton>
#include <OlvLineEdit>
#include <OlvSlider>
#include <OlvSwitch>

#include <QApplication>
#include <QDialog>
#include <QGridLayout>
#include <QHash>
#include <QLabel>
#include <QSettings>

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
        for (QObject *child : children()) {
            if (auto *knob = dynamic_cast<SliderRound *>(child)) {
                const int inset = (height() - knob->height()) / 2;
                knob->move(inset + getValue().toInt() * knob->maxX() / 100, inset);
            }
        }
    }
};

class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    SettingsDialog()
        : m_layout(new QGridLayout(this))
    {
        setWindowTitle(tr("Settings"));
        setStyleSheet(QStringLiteral("QDialog { background: white; }"
                                     "QLabel { color: rgb(48,49,51); font-size: 13px; }"
                                     "QLabel#title { font-size: 20px; font-weight: bold; }"));
        m_layout->setContentsMargins(28, 24, 28, 24);
        m_layout->setHorizontalSpacing(48);
        m_layout->setVerticalSpacing(18);
        auto *title = new QLabel(tr("Settings"));
        title->setObjectName(QStringLiteral("title"));
        m_layout->addWidget(title, 0, 0, 1, 2);

        auto *name = new OlvLineEdit;
        name->setPlaceholderText(tr("as others see you"));
        bind(tr("Display name"), QStringLiteral("name"), name, { 220, 26 }, QString());
        bind(tr("Notifications"), QStringLiteral("notify"), new OlvSwitch, { 50, 24 }, true);
        bind(tr("Start with the desktop"), QStringLiteral("autostart"), new OlvSwitch, { 50, 24 },
             false);
        auto *volume = new VolumeSlider;
        auto *percent = new QLabel;
        connect(volume, &OlvWidget::valueChanged, percent, [=](const QVariant &value) {
            percent->setText(tr("Volume: %1 %").arg(value.toInt()));
        });
        bind(percent, QStringLiteral("volume"), volume, { 220, 30 }, 60);

        auto *save = new OlvButton(tr("Save"));
        save->setFixedSize(96, 32);
        connect(save, &OlvButton::clicked, this, &QDialog::accept);
        m_layout->addWidget(save, m_layout->rowCount(), 1, Qt::AlignRight);
        connect(this, &QDialog::accepted, this, &SettingsDialog::save);
    }

private:
    void bind(const QString &label, const QString &key, OlvWidget *widget, QSize size,
              const QVariant &preset)
    {
        bind(new QLabel(label), key, widget, size, preset);
    }

    void bind(QLabel *label, const QString &key, OlvWidget *widget, QSize size,
              const QVariant &preset)
    {
        const int row = m_layout->rowCount();
        m_layout->addWidget(label, row, 0);
        m_layout->addWidget(widget, row, 1, Qt::AlignRight);
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
    QGridLayout *m_layout;
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
