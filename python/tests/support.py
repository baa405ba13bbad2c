# SPDX-License-Identifier: MIT
"""What the tests of the Python module share: the application, and what Qt warns of."""

import gc
import unittest

import shiboken2
from PySide2.QtCore import QCoreApplication, QEvent, Qt, QtMsgType, qInstallMessageHandler
from PySide2.QtTest import QTest
from PySide2.QtWidgets import QApplication

import OlvWidgets

CLASSES = [value for name, value in sorted(vars(OlvWidgets).items()) if isinstance(value, type)]

application = QApplication.instance() or QApplication(['tests'])
warnings = []


def keep_warning(kind, context, text):
    if kind != QtMsgType.QtDebugMsg:
        warnings.append(text)


class TestCase(unittest.TestCase):
    """Fails a test that Qt warns in, and leaves none of its objects to the next one."""

    def setUp(self):
        warnings.clear()
        qInstallMessageHandler(keep_warning)

    def tearDown(self):
        settle()
        qInstallMessageHandler(None)
        self.assertEqual(warnings, [])

    def assertDeleted(self, wrapper):
        self.assertFalse(shiboken2.isValid(wrapper))


def settle():
    """Collects garbage, and handles what is in the event loop, deferred deletions included."""
    gc.collect()
    QCoreApplication.processEvents()
    QCoreApplication.sendPostedEvents(None, QEvent.DeferredDelete)
    gc.collect()


def click(widget):
    """Clicks as the mouse does: the pointer comes in first."""
    QCoreApplication.sendEvent(widget, QEvent(QEvent.Enter))
    QTest.mouseClick(widget, Qt.LeftButton)
