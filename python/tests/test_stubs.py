# SPDX-License-Identifier: MIT
"""Compares the types for type checkers with the module, and has mypy check programs by them."""

import ast
import os
import subprocess
import tempfile
import unittest
from pathlib import Path

from PySide2.QtCore import QObject, Qt, Signal

import OlvWidgets

Enum = type(Qt.Key)
STUBS = Path(OlvWidgets.__file__).with_name('OlvWidgets-stubs') / '__init__.pyi'
GOOD = '''
from OlvWidgets import OlvButton, OlvControlBar, OlvFormSupport, OlvGridLayout, OlvShortcutEdit, OlvWidget

class Field(OlvWidget):
    def setValue(self, value: object) -> None: ...
    def getValue(self) -> object: ...

button: OlvButton = OlvButton('Save').setOlvStyle('success', 'round')
button.clicked.connect(lambda: None)
OlvFormSupport(None, OlvFormSupport.Keyboard | OlvFormSupport.FocusRing).setFeatures(OlvFormSupport.Keyboard)
state: OlvControlBar.WindowState = OlvControlBar.Max
number: int = int(state)
OlvGridLayout().addWidget([button, button])
shortcut = OlvShortcutEdit().shortcut()
if shortcut:
    text: str = shortcut.toString()
'''
# each with the part of the message that says what is wrong
BAD = {
    "OlvButton().setChecked('yes')": 'incompatible type "str"',
    'OlvGlobal.picture()': 'no attribute "picture"',
    'OlvSwitch().setChecked()': 'Missing positional argument',
    'OlvShortcutEdit().shortcut().toString()': 'Item "None"',
    'OlvControlBar(["a"]).button(4)': 'incompatible type "int"',
    'OlvSlider().setSliderPosition("half")': 'incompatible type "str"',
    'OlvFlexWidget(60, 60).stay(OlvFlexWidget.HeaderTop)': 'incompatible type "HeaderWay"',
}


def own(kind):
    """What a class has that its bases do not have, and that is no affair of Python's or Qt's."""
    inherited = {name for base in kind.__mro__[1:] for name in vars(base) if isinstance(vars(base)[name], Signal)}
    return {name for name, value in vars(kind).items()
            if not (name.startswith('__') or name in inherited or name == 'staticMetaObject')}


def stub_members(node):
    for child in node.body:
        if isinstance(child, ast.AnnAssign):
            yield child.target.id
        elif isinstance(child, (ast.FunctionDef, ast.ClassDef)) and not child.name.startswith('__'):
            yield child.name


class Stubs(unittest.TestCase):
    def setUp(self):
        self.tree = ast.parse(STUBS.read_text())
        self.classes = {node.name: node for node in self.tree.body if isinstance(node, ast.ClassDef)}

    def test_same_classes_and_functions(self):
        functions = {node.name for node in self.tree.body if isinstance(node, ast.FunctionDef)}
        module = {name for name in vars(OlvWidgets) if not name.startswith('__')}
        self.assertEqual(functions | set(self.classes), module)

    def test_same_members(self):
        for name, node in self.classes.items():
            with self.subTest(name):
                self.assertEqual(set(stub_members(node)), own(getattr(OlvWidgets, name)))

    def test_same_enums(self):
        for name, node in self.classes.items():
            for child in node.body:
                kind = getattr(getattr(OlvWidgets, name), getattr(child, 'name', ''), None)
                if isinstance(kind, Enum):
                    self.assertEqual(set(stub_members(child)), {'name', 'values', *kind.values})

    def test_same_bases(self):
        for name, node in self.classes.items():
            kind = getattr(OlvWidgets, name)
            base = ast.unparse(node.bases[0]).rpartition('.')[2]
            self.assertEqual(base, kind.__base__.__name__ if issubclass(kind, QObject) else 'object')

    def test_functions_that_can_be_made_have_a_constructor(self):
        for name, node in self.classes.items():
            has = any(getattr(child, 'name', '') == '__init__' for child in node.body)
            self.assertEqual(has, name != 'OlvGlobal')

    def test_mypy(self):
        with tempfile.TemporaryDirectory() as folder:
            Path(folder, 'good.py').write_text(GOOD)
            Path(folder, 'bad.py').write_text('from OlvWidgets import *\n' + '\n'.join(BAD) + '\n')
            result = subprocess.run(
                ['mypy', '--ignore-missing-imports', '--no-error-summary', 'good.py', 'bad.py'], cwd=folder,
                env=dict(os.environ, PYTHONPATH=str(STUBS.parents[1])), stdout=subprocess.PIPE, text=True)
            messages = result.stdout.splitlines()
            self.assertEqual(len(messages), len(BAD), result.stdout)
            for number, (message, (code, part)) in enumerate(zip(messages, BAD.items()), start=2):
                self.assertTrue(message.startswith('bad.py:%d: error:' % number), message)
                self.assertIn(part, message, code)


if __name__ == '__main__':
    unittest.main()
