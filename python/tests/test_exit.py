# SPDX-License-Identifier: MIT
"""Ends programs while their widgets live."""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

BEGINNING = '''
import sys
sys.path.insert(0, %r)
from PySide2.QtCore import Qt, QTimer
from PySide2.QtWidgets import QApplication, QWidget
from support import MAKERS, application, shiboken2
from OlvWidgets import *
window = QWidget()
children = [make(window) for make in MAKERS.values()]
window.show()
''' % str(Path(__file__).parent)

# what the programs end with, and their exit status
ENDS = {
    '': 0,
    'sys.exit(3)': 3,
    'del window': 0,
    'del children': 0,
    'QTimer.singleShot(50, application.quit); sys.exit(application.exec_())': 0,
    'QTimer.singleShot(50, window.close); sys.exit(application.exec_())': 0,
    'button = OlvButton(); button.clicked.connect(lambda: sys.exit(4)); button.click(); application.exec_()': 4,
    'shiboken2.delete(application)': 0,
    'application.setStyleSheet("* { color: red }")': 0,
    'panel = OlvFlexWidget(60, 60); panel.show(); panel.cycle = panel': 0,
    'switch = OlvSwitch(); switch.setValue(True); application.processEvents()': 0,
    'tile = OlvIconButton(); tile.clicked.connect(tile.deleteLater); tile.clicked.emit()': 0,
    'edit = OlvShortcutEdit(OlvShortcut(Qt.Key_F8, True, True, False, False))': 0,
    'grid = OlvGridLayout(); taken = OlvSlider(grid); grid.addWidget(taken); grid.takeWidget(taken)': 0,
    'OlvLastOnceFunction(window.update); OlvAutoDestroy.addDestroy(window.update)': 0,
    'guard = OlvAutoDestroy(); OlvAutoDestroy.addDestroy(lambda: None)': 0,
    'listener = OlvPluginEventFilter(application); '
    'from PySide2.QtCore import QEvent; listener.addEventListener(QEvent.Timer, lambda event: None)': 0,
}


class Exit(unittest.TestCase):
    def test_exit(self):
        with tempfile.TemporaryDirectory() as folder:
            for end, status in ENDS.items():
                with self.subTest(end):
                    result = subprocess.run(
                        [sys.executable, '-X', 'faulthandler', '-B', '-c', BEGINNING + end], timeout=60,
                        env=dict(os.environ, XDG_RUNTIME_DIR=folder), capture_output=True, text=True)
                    self.assertEqual(result.returncode, status, result.stderr)
                    self.assertEqual(result.stderr, '')

    def test_import_alone(self):
        result = subprocess.run([sys.executable, '-B', '-c', 'import OlvWidgets'], capture_output=True, text=True)
        self.assertEqual((result.returncode, result.stderr), (0, ''))


if __name__ == '__main__':
    unittest.main()
