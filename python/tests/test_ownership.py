# SPDX-License-Identifier: MIT
"""Who deletes what, whichever side goes first."""

import unittest

import shiboken2
from PySide2.QtWidgets import QWidget

from OlvWidgets import OlvSlider
from support import TestCase, settle


class Parents(TestCase):
    def test_parent_deletes_its_child(self):
        parent = QWidget()
        slider = OlvSlider(parent)
        shiboken2.delete(parent)
        self.assertDeleted(slider)

    def test_child_lives_as_long_as_its_parent(self):
        parent = QWidget()
        OlvSlider(parent)
        settle()
        self.assertIsInstance(parent.children()[0], OlvSlider)


if __name__ == '__main__':
    unittest.main()
