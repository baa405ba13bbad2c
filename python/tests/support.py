# SPDX-License-Identifier: MIT
"""What the tests of the Python module share: the application, one of each class, and what Qt warns of."""

import gc
import sys
import time
import unittest

import shiboken2
from PySide2.QtCore import (QCoreApplication, QEvent, QEventLoop, QPoint, Qt, QtMsgType,
                            qInstallMessageHandler)
from PySide2.QtGui import QFont
from PySide2.QtTest import QTest
from PySide2.QtWidgets import QApplication

from OlvWidgets import (OlvButton, OlvControlBar, OlvDragWidget, OlvFlexWidget, OlvFormSupport, OlvGridLayout,
                        OlvIconButton, OlvLineEdit, OlvMoveWidget, OlvPluginEventFilter, OlvResizeItem,
                        OlvResizeWidget, OlvShortcut, OlvShortcutEdit, OlvSimpleIconButton, OlvSlider,
                        OlvSwitch, OlvValueDelegate, OlvWidget, SliderRound, SwitchRound)

application = QApplication.instance() or QApplication(['tests'])
warnings = []


class Field(OlvWidget):
    """A value widget as applications write them in Python."""

    def __init__(self, parent=None):
        super().__init__(parent)
        self.value = None

    def setValue(self, value):
        self.value = value
        self.valueChanged.emit(value)

    def getValue(self):
        return self.value


# one object of each class that has a parent
MAKERS = {
    Field: Field,
    OlvButton: lambda parent: OlvButton('Save', parent),
    OlvControlBar: lambda parent: OlvControlBar(['\uf2d2'], parent, ['Settings']),
    OlvDragWidget: lambda parent: OlvDragWidget(parent, None, None, QPoint()),
    OlvFlexWidget: lambda parent: OlvFlexWidget(60, 60, parent),
    OlvFormSupport: OlvFormSupport,
    OlvGridLayout: OlvGridLayout,
    OlvIconButton: lambda parent: OlvIconButton('\uf0e0', 'Mail', 'FontAwesome', parent, 80, 80),
    OlvLineEdit: OlvLineEdit,
    OlvMoveWidget: OlvMoveWidget,
    OlvPluginEventFilter: OlvPluginEventFilter,
    OlvResizeItem: lambda parent: OlvResizeItem(parent, parent, OlvResizeItem.Corner, 5, None, None),
    OlvResizeWidget: lambda parent: OlvResizeWidget(parent, 5),
    OlvShortcut: lambda parent: OlvShortcut(Qt.Key_F5, True, False, False, False, parent),
    OlvShortcutEdit: OlvShortcutEdit,
    OlvSimpleIconButton: lambda parent: OlvSimpleIconButton('\uf006', QFont('FontAwesome', 12), parent),
    OlvSlider: OlvSlider,
    OlvSwitch: OlvSwitch,
    OlvValueDelegate: OlvValueDelegate,
    SliderRound: SliderRound,
    SwitchRound: SwitchRound,
}


def keep_warning(kind, context, text):
    if kind != QtMsgType.QtDebugMsg:
        warnings.append(text)


class TestCase(unittest.TestCase):
    """Fails a test that Qt warns in, or that an exception leaves in a slot or a virtual function."""

    def setUp(self):
        warnings.clear()
        qInstallMessageHandler(keep_warning)
        sys.excepthook = lambda kind, error, trace: warnings.append(repr(error))

    def tearDown(self):
        settle()
        qInstallMessageHandler(None)
        sys.excepthook = sys.__excepthook__
        self.assertEqual(warnings, [])

    def assertDeleted(self, wrapper):
        self.assertFalse(shiboken2.isValid(wrapper))

    def assertAlive(self, wrapper):
        self.assertTrue(shiboken2.isValid(wrapper))

    def assertComes(self, condition):
        """Runs the event loop until the condition is true."""
        end = time.monotonic() + 5
        while not condition():
            self.assertLess(time.monotonic(), end, 'it did not come about')
            QCoreApplication.processEvents(QEventLoop.AllEvents, 10)
            # which processEvents() leaves to the loop that called deleteLater()
            QCoreApplication.sendPostedEvents(None, QEvent.DeferredDelete)


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
