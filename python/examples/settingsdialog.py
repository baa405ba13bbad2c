# SPDX-License-Identifier: MIT
"""A settings dialog: value widgets in a form, mapped to a record of an SQLite table."""
import sys

from PySide2.QtCore import QDir, QStandardPaths
from PySide2.QtSql import QSqlDatabase, QSqlQuery, QSqlTableModel
from PySide2.QtWidgets import QApplication, QDataWidgetMapper, QDialog, QFormLayout, QLabel, QMessageBox

from OlvWidgets import OlvButton, OlvFormSupport, OlvLineEdit, OlvSlider, OlvSwitch, OlvValueDelegate


def open_settings(file):
    """Opens the database, and makes the record that the settings are kept in at the first start."""
    database = QSqlDatabase.addDatabase('QSQLITE')
    database.setDatabaseName(file)
    return database.open() and all(QSqlQuery(database).exec_(text) for text in (
        'CREATE TABLE IF NOT EXISTS settings (id INTEGER PRIMARY KEY, name TEXT, notify INTEGER DEFAULT 1, '
        'autostart INTEGER DEFAULT 0, volume INTEGER DEFAULT 60)',
        'INSERT OR IGNORE INTO settings (id) VALUES (1)'))


class SettingsDialog(QDialog):
    def __init__(self):
        super().__init__(windowTitle='Settings', minimumWidth=440)
        form = QFormLayout(self, horizontalSpacing=48, verticalSpacing=18)
        form.setContentsMargins(28, 24, 28, 24)
        form.addRow(QLabel('<h2>%s</h2>' % self.windowTitle()))
        self.model = QSqlTableModel(self)
        self.model.setTable('settings')
        self.model.setEditStrategy(QSqlTableModel.OnManualSubmit)
        self.model.select()
        self.mapper = QDataWidgetMapper(self, submitPolicy=QDataWidgetMapper.ManualSubmit)
        self.mapper.setModel(self.model)
        self.mapper.setItemDelegate(OlvValueDelegate(self))
        name = OlvLineEdit()
        name.setPlaceholderText('as others see you')
        for label, widget, column in (('Display &name', name, 'name'),
                                      ('N&otifications', OlvSwitch(), 'notify'),
                                      ('Start with the &desktop', OlvSwitch(), 'autostart'),
                                      ('&Volume', OlvSlider(), 'volume')):
            form.addRow(label, widget)  # the label names the widget for screen readers as well
            self.mapper.addMapping(widget, self.model.fieldIndex(column))
        form.addRow('', OlvButton('Save', clicked=self.accept))
        self.mapper.toFirst()
        OlvFormSupport(self)  # sizes, keyboard, focus: as other dialogs have them

    def accept(self):
        if self.mapper.submit() and self.model.submitAll():
            super().accept()
        else:
            QMessageBox.warning(self, self.windowTitle(), self.model.lastError().text())


if __name__ == '__main__':
    application = QApplication(sys.argv)
    application.setApplicationName('settingsdialog')
    folder = QDir(QStandardPaths.writableLocation(QStandardPaths.AppConfigLocation))
    if not folder.mkpath('.') or not open_settings(folder.filePath('settings.sqlite')):
        sys.exit('The settings cannot be opened: %s' % QSqlDatabase.database().lastError().text())
    SettingsDialog().exec_()
