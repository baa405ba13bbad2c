# SPDX-License-Identifier: MIT
"""Overrides virtual functions in Python, which C++ calls."""

import unittest

import shiboken2
from PySide2.QtCore import Qt
from PySide2.QtGui import QColor, QPainter, QStandardItem, QStandardItemModel
from PySide2.QtTest import QTest
from PySide2.QtWidgets import QDataWidgetMapper, QStyleOptionViewItem, QTableView, QWidget

from OlvWidgets import (OlvButton, OlvFlexWidget, OlvFormSupport, OlvLineEdit, OlvShortcut, OlvShortcutEdit,
                        OlvSlider, OlvSwitch, OlvValueDelegate, OlvWidget, SliderRound)
from support import Field, TestCase, settle, warnings


class Red(OlvButton):
    def paintEvent(self, event):
        super().paintEvent(event)
        painter = QPainter(self)
        painter.fillRect(0, 0, 5, 5, QColor(255, 0, 0))
        painter.end()


class Recorder(OlvSlider):
    def __init__(self):
        super().__init__()
        self.values = []

    def setValue(self, value):
        self.values.append(value)
        super().setValue(value)


def mapper_of(widget, value):
    model = QStandardItemModel(1, 1)
    model.setItem(0, 0, QStandardItem(value))
    mapper = QDataWidgetMapper(widget)
    model.setParent(mapper)
    mapper.setModel(model)
    mapper.setItemDelegate(OlvValueDelegate(mapper))
    mapper.addMapping(widget, 0)
    mapper.toFirst()
    return mapper


class Overrides(TestCase):
    def test_paint_event(self):
        button = Red('Save')
        button.resize(80, 30)
        picture = button.grab().toImage()
        self.assertEqual(picture.pixelColor(2, 2), QColor(255, 0, 0))
        self.assertEqual(picture.pixelColor(10, 5), QColor(64, 158, 255))

    def test_value_of_a_drag(self):
        slider = Recorder()
        slider.findChild(SliderRound).dragTo(40)
        slider.setSliderPosition(50)
        self.assertEqual(slider.values, [40, 50])
        self.assertEqual(slider.getValue(), 50)

    def test_value_widget_in_a_form(self):
        field = Field()
        mapper = mapper_of(field, 'first')
        self.assertEqual(field.value, 'first')
        field.setValue('second')
        self.assertEqual(mapper.model().index(0, 0).data(), 'second')

    def test_pure_virtual_function_without_override(self):
        class Nothing(OlvWidget):
            pass

        self.assertRaises(NotImplementedError, Nothing().getValue)

    def test_events_that_the_library_handles(self):
        class Counted(OlvFlexWidget):
            resizes = 0

            def resizeEvent(self, event):
                self.resizes += 1
                super().resizeEvent(event)

        panel = Counted(60, 60)
        panel.show()
        self.assertEqual(panel.resizes, 1)

    def test_event_filter(self):
        class Silent(OlvLineEdit):
            def eventFilter(self, watched, event):
                return event.type() == event.KeyPress or super().eventFilter(watched, event)

        line = Silent()
        QTest.keyClick(line.lineEdit(), Qt.Key_A)
        self.assertEqual(line.getText(), '')

    def test_key_events(self):
        class Upper(OlvShortcutEdit):
            keys = ()

            def keyPressEvent(self, event):
                self.keys += event.key(),
                super().keyPressEvent(event)

        edit = Upper()
        QTest.keyClick(edit, Qt.Key_F7, Qt.ControlModifier | Qt.ShiftModifier)
        self.assertIn(Qt.Key_F7, edit.keys)
        self.assertEqual(edit.getValue(), 'Ctrl+Shift+F7')

    def test_shortcut(self):
        class Named(OlvShortcut):
            calls = ()

            def active(self):
                self.calls += 'active',
                return True

            def destroy(self):
                self.calls += 'destroy',

            def toString(self):
                return 'mine'

        shortcut, edit = Named(Qt.Key_F5, False, False, False, False), OlvShortcutEdit()
        self.assertTrue(edit.setShortcut(shortcut))
        self.assertEqual((edit.getValue(), shortcut.calls), ('mine', ('active',)))

    def test_editor_of_a_delegate(self):
        class Sliders(OlvValueDelegate):
            def createEditor(self, parent, option, index):
                return Recorder_in(parent)

        def Recorder_in(parent):
            editor = Recorder()
            editor.setParent(parent)
            return editor

        table, delegate = QTableView(), Sliders()
        table.setModel(QStandardItemModel(1, 1, table))
        table.model().setItem(0, 0, QStandardItem('30'))
        table.setItemDelegate(delegate)
        table.show()
        table.edit(table.model().index(0, 0))
        settle()
        editor, = [child for child in table.viewport().children() if isinstance(child, Recorder)]
        self.assertEqual(editor.values[-1], 30)

    def test_editor_of_a_factory_without_override(self):
        parent, model = QWidget(), QStandardItemModel(1, 1)
        editor = OlvValueDelegate().createEditor(parent, QStyleOptionViewItem(), model.index(0, 0))
        self.assertIs(editor.parent(), parent)

    def test_subclass_in_a_supported_form(self):
        form = QWidget()
        button = Red('Save', form)
        OlvFormSupport(form)
        clicks = []
        button.clicked.connect(lambda: clicks.append(True))
        QTest.keyClick(button, Qt.Key_Space)
        self.assertEqual(clicks, [True])

    def test_exception_in_an_override_is_reported(self):
        class Broken(OlvSwitch):
            def paintEvent(self, event):
                raise ValueError('broken')

        switch = Broken()
        switch.resize(50, 24)
        switch.grab()
        self.assertTrue(warnings)
        self.assertEqual(set(warnings), {"ValueError('broken')"})
        warnings.clear()

    def test_forgotten_constructor_of_the_base(self):
        class Hollow(OlvSwitch):
            def __init__(self):
                pass

        self.assertRaises(RuntimeError, Hollow().isChecked)

    def test_override_deletes_the_widget(self):
        class DeletesItself(OlvSlider):
            def setValue(self, value):
                shiboken2.delete(self)

        slider = DeletesItself()
        slider.setSliderPosition(40)
        self.assertDeleted(slider)


if __name__ == '__main__':
    unittest.main()
