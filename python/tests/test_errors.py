# SPDX-License-Identifier: MIT
"""Refuses wrong arguments, and takes None where C++ takes a null pointer."""

import unittest

import shiboken2
from PySide2.QtCore import QEvent, QObject, Qt
from PySide2.QtWidgets import QWidget

import OlvWidgets
from OlvWidgets import (OlvAutoDestroy, OlvButton, OlvColorFromString, OlvControlBar, OlvFlexWidget,
                        OlvFormSupport, OlvGlobal, OlvGridLayout, OlvIconButton, OlvLastOnceFunction,
                        OlvLineEdit, OlvMoveWidget, OlvPluginEventFilter, OlvResizeItem, OlvShortcut,
                        OlvShortcutEdit, OlvSimpleIconButton, OlvSlider, OlvSwitch, SliderRound, SwitchRound)
from support import MAKERS, TestCase


class WrongArguments(TestCase):
    def test_parent_of_another_type(self):
        for kind, make in MAKERS.items():
            for parent in 3, 'parent', object():
                with self.subTest(kind.__name__, parent=parent):
                    self.assertRaises(TypeError, make, parent)

    def test_types(self):
        button, grid, bar, window = OlvButton(), OlvGridLayout(), OlvControlBar(['a']), QWidget()
        calls = [
            (button.setChecked, 'yes'), (button.setText, 3), (button.setOlvStyle, 'success'),
            (button.setColor, 3), (button.click, 1, 2),
            (OlvIconButton().setIcon, 3), (OlvIconButton().setIcon, None), (OlvIconButton().setColor, []),
            (OlvIconButton, 'a', 'b', 'c', None, 'wide', 80),
            (OlvSimpleIconButton, 'a', []), (OlvWidgets.isChecked, button),
            (OlvLineEdit().setText, b'text'), (OlvLineEdit().setPassWord, 'yes'),
            (OlvSlider().setSliderPosition, 'half'), (OlvSlider().setValue,), (OlvSlider().getValue, 1),
            (OlvSwitch().setChecked, None), (SwitchRound().setInset, 'a'),
            (SliderRound(window).dragTo, None),
            (OlvShortcut, 'F5', True, True, True, True), (OlvShortcut, Qt.Key_F5), (OlvShortcut.fromAddress, 'a'),
            (OlvShortcutEdit().setShortcut, button), (OlvShortcutEdit().setShortcut, 'F5'),
            (OlvMoveWidget(window).setMoveArea, (0, 0, 1, 1)),
            (bar.button, 4), (bar.button, 'Max'), (bar.customButton, 'first'),
            (OlvControlBar,), (OlvControlBar, None), (OlvControlBar, 3),
            (grid.addWidget, 'tile'), (grid.addWidget, [1, 2]), (grid.widgetAt, None), (grid.takeWidget, QObject()),
            (grid.insWidget, QWidget(grid)), (grid.setMargin, 'wide'),
            (OlvFlexWidget(60, 60).stay, 1), (OlvFlexWidget(60, 60).setHeaderWay, OlvFlexWidget.StayTop, Qt.red),
            (OlvFlexWidget, 60), (OlvFormSupport.naturalSize, 'button'), (OlvFormSupport, QWidget(), 'Keyboard'),
            (OlvColorFromString, 3), (OlvGlobal.getFont, 'key', 'large'), (OlvGlobal.getFiles, 3),
            (OlvPluginEventFilter().addEventListener, QEvent.Paint, 3),
            (OlvPluginEventFilter().addEventListener, 3, print),
            (OlvLastOnceFunction, None), (OlvLastOnceFunction,), (OlvAutoDestroy.addDestroy, 'call'),
        ]
        for function, *arguments in calls:
            with self.subTest(function=function, arguments=arguments):
                self.assertRaises(TypeError, function, *arguments)

    def test_glyph_of_more_than_one_character(self):
        for function in OlvIconButton().setIcon, lambda glyph: OlvControlBar(['a', glyph]):
            for glyph in 'ab', '\U0001f600':
                self.assertRaises(ValueError, function, glyph)

    def test_glyph_that_is_no_text(self):
        self.assertRaises(TypeError, OlvControlBar, ['a', 3])

    def test_glyphs_that_cannot_be_read(self):
        class Unreadable(list):
            def __getitem__(self, index):
                raise LookupError(index)

        self.assertRaises(LookupError, OlvControlBar, Unreadable(['a', 'b']))

    def test_unknown_names(self):
        button = OlvButton()
        self.assertRaises(AttributeError, lambda: button.setPicture)
        self.assertRaises(AttributeError, lambda: OlvControlBar.Middle)
        self.assertRaises((AttributeError, TypeError), lambda: OlvButton(caption='Save'))

    def test_deleted_widget(self):
        for kind, make in MAKERS.items():
            with self.subTest(kind.__name__):
                widget = make(QWidget())
                self.assertDeleted(widget)
                self.assertRaises(RuntimeError, widget.objectName)

    def test_deleted_argument(self):
        grid, tile = OlvGridLayout(), QWidget()
        shiboken2.delete(tile)
        for function in grid.addWidget, grid.takeWidget, grid.indexOf, OlvButton:
            self.assertRaises(RuntimeError, function, tile)


class Nothing(TestCase):
    def test_none_for_a_pointer(self):
        grid = OlvGridLayout(None)
        grid.addWidget(None)
        grid.ensureVisible(None)
        self.assertEqual(grid.count(), 0)
        self.assertFalse(grid.delWidget(None))
        self.assertFalse(grid.insWidget(None, None))
        self.assertIsNone(grid.takeWidget(None))
        self.assertIsNone(OlvShortcutEdit(None).shortcut())
        self.assertFalse(OlvShortcutEdit().setShortcut(None))
        OlvPluginEventFilter(None).addObject(None)
        OlvFormSupport(None).setFeatures(OlvFormSupport.AllFeatures)
        window = QWidget()
        OlvResizeItem(window, None, OlvResizeItem.Corner, 5, None, None).placeAll()

    def test_none_as_a_value(self):
        for widget in OlvSwitch(), OlvSlider(), OlvLineEdit(), OlvButton(), OlvIconButton():
            widget.setValue(None)
        self.assertIsNone(widget.getValue())

    def test_values_of_other_types(self):
        slider, line = OlvSlider(), OlvLineEdit()
        slider.setValue('text')
        self.assertEqual(slider.getValue(), 0)
        line.setValue(3.5)
        self.assertEqual(line.getValue(), '3.5')


if __name__ == '__main__':
    unittest.main()
