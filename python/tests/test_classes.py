# SPDX-License-Identifier: MIT
"""Creates, sets, gets and connects."""

import unittest

from PySide2.QtCore import QObject

from OlvWidgets import OlvButton, OlvLineEdit, OlvSwitch
from support import TestCase, click


class Receiver(QObject):
    def __init__(self):
        super().__init__()
        self.received = []

    def receive(self, value):
        self.received.append(value)


class Buttons(TestCase):
    def test_button_is_clicked_by_the_mouse(self):
        button = OlvButton('Save')
        button.setCheckable(True)
        received = []
        button.clicked.connect(lambda: received.append('clicked'))
        button.toggled.connect(received.append)
        click(button)
        self.assertEqual(received, ['clicked', True])
        self.assertTrue(button.isChecked())

    def test_switch_tells_a_bound_method(self):
        switch = OlvSwitch()
        receiver = Receiver()
        switch.changed.connect(receiver.receive)
        switch.setChecked(True)
        switch.changed.disconnect(receiver.receive)
        switch.setChecked(False)
        self.assertEqual(receiver.received, [True])

    def test_line_edit_keeps_its_text(self):
        line = OlvLineEdit()
        line.setValue('好')
        self.assertEqual((line.getValue(), line.getText(), line.lineEdit().text()), ('好',) * 3)


if __name__ == '__main__':
    unittest.main()
