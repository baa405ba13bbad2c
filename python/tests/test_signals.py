# SPDX-License-Identifier: MIT
"""Connects each signal, also to slots that delete the sender."""

import unittest

import shiboken2
from PySide2.QtCore import QCoreApplication, QEvent, QObject, QPoint, Qt, Slot
from PySide2.QtGui import QInputMethodEvent
from PySide2.QtTest import QTest
from PySide2.QtWidgets import QWidget

from OlvWidgets import (OlvAutoDestroy, OlvButton, OlvControlBar, OlvFlexWidget, OlvIconButton,
                        OlvLastOnceFunction, OlvLineEdit, OlvPluginEventFilter, OlvShortcut, OlvShortcutEdit,
                        OlvSimpleIconButton, OlvSwitch)
from support import Field, TestCase, click, settle, warnings


class Receiver(QObject):
    def __init__(self):
        super().__init__()
        self.received = []

    def receive(self, value):
        self.received.append(value)

    @Slot(bool)
    def receive_bool(self, value):
        self.received.append(value)


def checkable(button):
    button.setCheckable(True)
    return button


def commit(widget):
    event = QInputMethodEvent()
    event.setCommitString('好')
    QCoreApplication.sendEvent(widget, event)


def double_click(widget):
    click(widget)
    click(widget)


def shortcut():
    return OlvShortcut(Qt.Key_F7, True, True, False, False)


def bar():
    return OlvControlBar(['a'] * 8, None, ['Settings'])


# what makes the sender, the signal, what the user does, and the arguments that the slot gets
CASES = [
    (OlvButton, 'clicked', click, []),
    (OlvButton, 'clicked', OlvButton.click, []),
    (lambda: checkable(OlvButton()), 'toggled', click, [True]),
    (lambda: checkable(OlvButton()), 'toggled', lambda button: button.click(True), [True]),
    (OlvIconButton, 'clicked', click, []),
    (OlvIconButton, 'dClicked', double_click, []),
    # which of Qt's two clicked signals, PySide chooses by the slot's arguments
    (OlvSimpleIconButton, 'clicked', click, []),
    (OlvSwitch, 'valueChanged', lambda switch: switch.setChecked(True), [True]),
    (OlvSwitch, 'changed', lambda switch: switch.setChecked(True), [True]),
    (OlvSwitch, 'changed', lambda switch: switch.setValue(True), [True]),
    (OlvSwitch, 'inputMethodCommit', commit, ['好']),
    (OlvLineEdit, 'inputMethodCommit', commit, ['好']),
    (OlvLineEdit, 'textChanged', lambda line: line.textChanged.emit('a'), ['a']),
    (OlvShortcutEdit, 'valueChanged', lambda edit: edit.setShortcut(shortcut()), ['Ctrl+Shift+F7']),
    (bar, 'changed', lambda bar: bar.button(OlvControlBar.Top).click(), [OlvControlBar.Top, True]),
    (bar, 'changed', lambda bar: click(bar.button(OlvControlBar.Close)), [OlvControlBar.Close, True]),
    (bar, 'custom', lambda bar: bar.customButton(0).click(), [0]),
    (lambda: OlvFlexWidget(60, 60), 'clicked', lambda panel: panel.clicked.emit(), []),
    (shortcut, 'activated', lambda shortcut: shortcut.activated.emit(), []),
    (shortcut, 'stateChanged', lambda shortcut: shortcut.stateChanged.emit(OlvShortcut.Active),
     [OlvShortcut.Active]),
    (Field, 'valueChanged', lambda field: field.setValue({'a': [1, 2]}), [{'a': [1, 2]}]),
]


class Signals(TestCase):
    def each_case(self):
        for make, signal, act, arguments in CASES:
            sender = make()
            if isinstance(sender, QWidget):
                sender.resize(200, 40)
            with self.subTest(sender=type(sender).__name__, signal=signal):
                yield sender, getattr(sender, signal), act, arguments

    def test_lambdas_get_the_arguments(self):
        for sender, signal, act, arguments in self.each_case():
            calls = []
            signal.connect(lambda *received: calls.append(list(received)))
            act(sender)
            self.assertComes(lambda: calls)
            self.assertEqual(calls, [arguments])

    def test_slot_deletes_the_sender(self):
        for sender, signal, act, arguments in self.each_case():
            signal.connect(lambda *received: shiboken2.delete(sender))
            act(sender)
            self.assertComes(lambda: not shiboken2.isValid(sender))

    def test_slot_deletes_the_sender_later(self):
        for sender, signal, act, arguments in self.each_case():
            signal.connect(sender.deleteLater)
            act(sender)
            self.assertComes(lambda: not shiboken2.isValid(sender))

    def test_slot_drops_the_last_reference(self):
        for sender, signal, act, arguments in self.each_case():
            keeper = [sender]
            deleted = []
            sender.destroyed.connect(lambda: deleted.append(True))
            signal.connect(lambda *received: keeper.clear())
            del sender, signal
            act(keeper[0])
            self.assertComes(lambda: not keeper)

    def test_emission_from_python(self):
        button = OlvButton()
        calls = []
        button.toggled.connect(calls.append)
        button.toggled.emit(True)
        self.assertEqual(calls, [True])

    def test_shortcut_comes_as_the_object_that_was_set(self):
        edit = OlvShortcutEdit()
        received = []
        edit.shortcutChanged.connect(received.append)
        new = shortcut()
        edit.setShortcut(new)
        self.assertIs(received[0], new)

    def test_shortcut_edit_deleted_by_a_slot(self):
        edit = OlvShortcutEdit()
        edit.shortcutChanged.connect(lambda new: shiboken2.delete(edit))
        new = shortcut()
        edit.setShortcut(new)
        self.assertDeleted(edit)
        self.assertDeleted(new)


class Slots(TestCase):
    def test_bound_methods(self):
        switch = OlvSwitch()
        receiver = Receiver()
        switch.changed.connect(receiver.receive)
        switch.changed.connect(receiver.receive_bool)
        switch.setChecked(True)
        self.assertEqual(receiver.received, [True, True])
        switch.changed.disconnect(receiver.receive)
        switch.setChecked(False)
        self.assertEqual(receiver.received, [True, True, False])

    def test_receiver_goes_before_the_sender(self):
        switch = OlvSwitch()
        receiver = Receiver()
        switch.changed.connect(receiver.receive)
        shiboken2.delete(receiver)
        switch.setChecked(True)

    def test_bound_method_does_not_keep_its_object(self):
        button = OlvButton()
        receiver = Receiver()
        deleted = []
        receiver.destroyed.connect(lambda: deleted.append(True))
        button.toggled.connect(receiver.receive)
        del receiver
        settle()
        self.assertTrue(deleted)
        button.toggled.emit(True)

    def test_slots_of_the_library(self):
        first, second = OlvButton(), OlvButton()
        calls = []
        first.clicked.connect(second.click)
        second.clicked.connect(lambda: calls.append('second'))
        first.click()
        self.assertEqual(calls, ['second'])

    def test_exception_in_a_slot_is_reported_and_goes_no_further(self):
        button = OlvButton()
        button.clicked.connect(lambda: 1 / 0)
        button.click()
        self.assertEqual(len(warnings), 1)
        self.assertIn('ZeroDivisionError', warnings.pop())


class Callables(TestCase):
    def test_listener_gets_the_event_in_its_own_type(self):
        widget = QWidget()
        listener = OlvPluginEventFilter(widget)
        positions = []
        listener.addEventListener(QEvent.MouseButtonPress, lambda event: positions.append(event.pos()))
        QTest.mousePress(widget, Qt.LeftButton, Qt.NoModifier, QPoint(3, 4))
        self.assertEqual(positions, [QPoint(3, 4)])

    def test_event_that_a_listener_keeps_is_invalid(self):
        widget = QWidget()
        events = []
        OlvPluginEventFilter(widget).addEventListener(QEvent.KeyPress, events.append)
        QTest.keyClick(widget, Qt.Key_A)
        self.assertDeleted(events[0])

    def test_event_that_python_passes_on_stays_valid(self):
        class PassesOn(QWidget):
            def keyPressEvent(self, event):
                listener.eventFilter(self, event)
                texts.append(event.text())

        listener = OlvPluginEventFilter()
        events, texts = [], []
        listener.addEventListener(QEvent.KeyPress, events.append)
        QTest.keyClick(PassesOn(), Qt.Key_A)
        self.assertEqual((len(events), texts), (1, ['a']))

    def test_listener_deletes_the_filter_or_the_object(self):
        for victim in 0, 1:
            widget = QWidget()
            listener = OlvPluginEventFilter()
            listener.addObject(widget)
            listener.addObject(None)
            pair = widget, listener
            listener.addEventListener(QEvent.User, lambda event: shiboken2.delete(pair[victim]))
            self.assertTrue(listener.eventFilter(widget, QEvent(QEvent.User)))
            self.assertDeleted(pair[victim])
            self.assertAlive(pair[1 - victim])

    def test_exception_in_a_listener_is_reported(self):
        widget = QWidget()
        OlvPluginEventFilter(widget).addEventListener(QEvent.User, lambda event: event.nothing)
        QCoreApplication.sendEvent(widget, QEvent(QEvent.User))
        self.assertIn('AttributeError', warnings.pop())

    def test_last_once_function(self):
        calls = []
        OlvLastOnceFunction(lambda: calls.append(1))
        OlvLastOnceFunction(lambda: calls.append(2))
        self.assertEqual(calls, [])
        self.assertComes(lambda: len(calls) == 2)
        self.assertEqual(calls, [1, 2])

    def test_auto_destroy(self):
        calls = []
        guard = OlvAutoDestroy()
        OlvAutoDestroy.addDestroy(lambda: calls.append(1))
        OlvAutoDestroy.addDestroy(lambda: calls.append(2))
        self.assertEqual(calls, [])
        del guard
        self.assertEqual(calls, [1, 2])
        OlvAutoDestroy.addDestroy(lambda: calls.append(3))
        OlvAutoDestroy()
        self.assertEqual(calls, [1, 2])


if __name__ == '__main__':
    unittest.main()
