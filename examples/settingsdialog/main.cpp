// SPDX-License-Identifier: MIT
// A settings dialog: value widgets in a form, mapped to a record of an SQLite table.
#include <OlvButton>
#include <OlvFormSupport>
#include <OlvLineEdit>
#include <OlvSlider>
#include <OlvSwitch>
#include <OlvValueDelegate>

#include <QtSql>
#include <QtWidgets>

/** Opens the database, and makes the record that the settings are kept in at the first start. */
bool openSettings(const QString &file)
{
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    database.setDatabaseName(file);
    QSqlQuery query(database);
    return database.open()
        && query.exec(QStringLiteral("CREATE TABLE IF NOT EXISTS settings (id INTEGER PRIMARY KEY, "
                                     "name TEXT, notify INTEGER DEFAULT 1, "
                                     "autostart INTEGER DEFAULT 0, volume INTEGER DEFAULT 60)"))
        && query.exec(QStringLiteral("INSERT OR IGNORE INTO settings (id) VALUES (1)"));
}

class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    SettingsDialog()
        : m_form(new QFormLayout(this))
    {
        setWindowTitle(tr("Settings"));
        m_form->setContentsMargins(28, 24, 28, 24);
        m_form->setHorizontalSpacing(48);
        m_form->setVerticalSpacing(18);
        m_form->addRow(new QLabel(QStringLiteral("<h2>%1</h2>").arg(windowTitle())));

        m_model.setTable(QStringLiteral("settings"));
        m_model.setEditStrategy(QSqlTableModel::OnManualSubmit);
        m_model.select();
        m_mapper.setModel(&m_model);
        m_mapper.setItemDelegate(new OlvValueDelegate(this));
        m_mapper.setSubmitPolicy(QDataWidgetMapper::ManualSubmit);

        auto *name = new OlvLineEdit;
        name->setPlaceholderText(tr("as others see you"));
        name->lineEdit()->setMaxLength(40);
        addRow(tr("Display &name"), name, QStringLiteral("name"));
        addRow(tr("N&otifications"), new OlvSwitch, QStringLiteral("notify"));
        addRow(tr("Start with the &desktop"), new OlvSwitch, QStringLiteral("autostart"));
        addRow(tr("&Volume"), new OlvSlider, QStringLiteral("volume"));

        auto *save = new OlvButton(tr("Save"));
        connect(save, &OlvButton::clicked, this, &SettingsDialog::accept);
        m_form->addRow(QString(), save);

        m_mapper.toFirst();
        new OlvFormSupport(this); // sizes, keyboard, focus: as other dialogs have them
        resize(440, 0);
    }

    void accept() override
    {
        if (m_mapper.submit() && m_model.submitAll()) {
            QDialog::accept();
        } else {
            QMessageBox::warning(this, windowTitle(), m_model.lastError().text());
        }
    }

private:
    void addRow(const QString &label, OlvWidget *widget, const QString &column)
    {
        m_form->addRow(label, widget); // the label names the widget for screen readers as well
        m_mapper.addMapping(widget, m_model.fieldIndex(column));
    }

    QSqlTableModel m_model;
    QDataWidgetMapper m_mapper;
    QFormLayout *m_form;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("OlvWidgets"));
    QApplication::setApplicationName(QStringLiteral("settingsdialog"));
    QTranslator texts; // the library's own texts in the user's language
    if (texts.load(QLocale(), QStringLiteral("olvwidgets"), QStringLiteral("_"),
                   QLibraryInfo::location(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(&texts);
    }
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
    if (!folder.mkpath(QStringLiteral("."))
        || !openSettings(folder.filePath(QStringLiteral("settings.sqlite")))) {
        qCritical("The settings cannot be opened: %s",
                  qPrintable(QSqlDatabase::database().lastError().text()));
        return 1;
    }
    SettingsDialog().exec();
    return 0;
}

#include "main.moc"
