# SPDX-License-Identifier: MIT
"""Uses the example as its user does, and the code in the guide."""

import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROJECT = Path(__file__).parents[2]
EXAMPLES = PROJECT / 'python' / 'examples'
sys.path.insert(0, str(EXAMPLES))

from PySide2.QtCore import QPoint, Qt
from PySide2.QtSql import QSqlDatabase, QSqlQuery
from PySide2.QtTest import QTest

from OlvWidgets import OlvButton, OlvLineEdit, OlvSlider, OlvSwitch, OlvWidget
import settingsdialog
from support import TestCase, click, settle

# runs the program, and saves at once
PROGRAM = '''
import runpy, sys
from PySide2.QtCore import QTimer
from PySide2.QtWidgets import QDialog

class Quick(QDialog):
    def exec_(self):
        QTimer.singleShot(0, self.accept)
        return super().exec_()

import PySide2.QtWidgets
PySide2.QtWidgets.QDialog = Quick
runpy.run_path(sys.argv[1], run_name='__main__')
'''


class SettingsDialog(TestCase):
    def setUp(self):
        super().setUp()
        self.folder = tempfile.TemporaryDirectory()
        self.assertTrue(settingsdialog.open_settings(self.folder.name + '/settings.sqlite'))
        self.dialog = settingsdialog.SettingsDialog()
        self.dialog.show()

    def tearDown(self):
        self.dialog = None
        settle()
        QSqlDatabase.database().close()
        QSqlDatabase.removeDatabase(QSqlDatabase.defaultConnection)
        self.folder.cleanup()
        super().tearDown()

    def record(self):
        query = QSqlQuery('SELECT name, notify, autostart, volume FROM settings')
        query.next()
        return [query.value(i) for i in range(4)]

    def test_shows_the_record(self):
        self.assertEqual([switch.isChecked() for switch in self.dialog.findChildren(OlvSwitch)], [True, False])
        self.assertEqual(self.dialog.findChild(OlvSlider).getValue(), 60)
        picture = self.dialog.grab().toImage()
        self.assertGreater(self.count(picture, 0xff13ce66), 500)  # the track of a switch that is on
        self.assertGreater(self.count(picture, 0xff409eff), 4000)  # the button and the slider

    def count(self, picture, colour):
        return sum(picture.pixel(x, y) == colour for x in range(picture.width()) for y in range(picture.height()))

    def test_saves_what_the_user_does(self):
        QTest.keyClicks(self.dialog.findChild(OlvLineEdit).lineEdit(), 'Me')
        click(self.dialog.findChildren(OlvSwitch)[1])
        QTest.keyClick(self.dialog.findChild(OlvSlider), Qt.Key_Right)
        self.assertEqual(self.record(), ['', 1, 0, 60])
        click(self.dialog.findChild(OlvButton))
        self.assertEqual(self.dialog.result(), settingsdialog.QDialog.Accepted)
        self.assertEqual(self.record(), ['Me', 1, 1, 61])

    def test_escape_saves_nothing(self):
        QTest.keyClick(self.dialog.findChild(OlvSlider), Qt.Key_Right)
        QTest.keyClick(self.dialog, Qt.Key_Escape)
        self.assertFalse(self.dialog.isVisible())
        self.assertEqual(self.record(), ['', 1, 0, 60])


class Program(unittest.TestCase):
    def test_program_ends_without_a_word(self):
        with tempfile.TemporaryDirectory() as folder:
            result = subprocess.run(
                [sys.executable, '-B', '-c', PROGRAM, str(EXAMPLES / 'settingsdialog.py')], timeout=60,
                env=dict(os.environ, XDG_CONFIG_HOME=folder, XDG_RUNTIME_DIR=folder), capture_output=True,
                text=True)
            self.assertEqual((result.returncode, result.stdout + result.stderr), (0, ''))
            self.assertTrue(list(Path(folder).rglob('settings.sqlite')))

    def test_program_has_at_most_60_lines(self):
        for file in EXAMPLES.glob('*.py'):
            self.assertLessEqual(len(file.read_text().splitlines()), 60)


class Documentation(TestCase):
    def code(self, file):
        return re.findall(r'^```python\n(.*?)^```', (PROJECT / file).read_text(), re.S | re.M)

    def test_code_of_the_front_page(self):
        code, = self.code('README.md')
        names = {'dialog': settingsdialog.QDialog()}
        exec(code, names)
        names['save'].click()
        self.assertEqual(names['dialog'].result(), settingsdialog.QDialog.Accepted)

    def test_widget_of_the_guide(self):
        program, widget = self.code('docs/guides/python.md')
        compile(program, 'program', 'exec')
        names = {'OlvWidget': OlvWidget}
        exec(widget, names)
        rating, values = names['Rating'](), []
        rating.resize(100, 20)
        rating.valueChanged.connect(values.append)
        QTest.mouseClick(rating, Qt.LeftButton, Qt.NoModifier, QPoint(50, 10))
        self.assertEqual((values, rating.getValue()), ([3], 3))

    def test_program_of_the_guide(self):
        program, widget = self.code('docs/guides/python.md')
        timer = 'from PySide2.QtCore import QTimer\nQTimer.singleShot(0, save.click)\n'
        code = program.replace('save.show()\n', 'save.show()\n' + timer)
        self.assertIn(timer, code)
        subprocess.run([sys.executable, '-B', '-c', code], check=True, timeout=60)


if __name__ == '__main__':
    unittest.main()
