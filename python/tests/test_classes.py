# SPDX-License-Identifier: MIT
"""Creates each class, sets and gets."""

import unittest

from PySide2.QtCore import QPoint, QRect, QSize, Qt
from PySide2.QtGui import QColor, QFont
from PySide2.QtWidgets import QLineEdit, QPushButton, QWidget

import OlvWidgets
from OlvWidgets import (OlvAutoDestroy, OlvButton, OlvColorFromString, OlvColorToRgb, OlvColorToString,
                        OlvControlBar, OlvDragWidget, OlvFlexWidget, OlvFormSupport, OlvGlobal, OlvGridLayout,
                        OlvIconButton, OlvLastOnceFunction, OlvLineEdit, OlvMoveWidget, OlvResizeItem,
                        OlvResizeWidget, OlvShortcut, OlvShortcutEdit, OlvSimpleIconButton, OlvSlider,
                        OlvSwitch, OlvWidget, SliderRound, SwitchRound)
from support import MAKERS, Field, TestCase

GLYPHS = ['\uf2d2', '\uf103', '\uf102', '\uf068', '\uf065', '\uf00d', '\uf066', '\uf013']


class Classes(TestCase):
    def test_each_class_is_among_the_makers(self):
        others = {OlvAutoDestroy, OlvGlobal, OlvLastOnceFunction, OlvWidget}
        classes = {value for value in vars(OlvWidgets).values() if isinstance(value, type)}
        self.assertEqual(classes, set(MAKERS) - {Field} | others)

    def test_each_class_is_made_in_a_parent(self):
        for kind, make in MAKERS.items():
            with self.subTest(kind.__name__):
                parent = QWidget()
                self.assertIs(make(parent).parent(), parent)

    def test_each_widget_is_made_without_a_parent(self):
        for kind, make in MAKERS.items():
            if kind not in (OlvResizeItem, OlvResizeWidget, SliderRound):
                with self.subTest(kind.__name__):
                    self.assertIsNone(make(None).parent())

    def test_each_widget_paints(self):
        for kind, make in MAKERS.items():
            if issubclass(kind, QWidget):
                with self.subTest(kind.__name__):
                    parent = QWidget()
                    widget = make(parent)
                    widget.resize(80, 80)
                    self.assertEqual(widget.grab().size(), widget.size())

    def test_base_class_is_abstract(self):
        self.assertRaises(NotImplementedError, OlvWidget)


class Values(TestCase):
    def test_button(self):
        button = OlvButton()
        self.assertIs(button.setOlvStyle('success', 'round'), button)
        self.assertEqual((button.property('color'), button.property('type')), ('success', 'round'))
        button.setText('保存')
        self.assertEqual(button.property('content'), '保存')
        self.assertFalse(button.isCheckable() or button.isChecked())
        button.setCheckable(True)
        button.setChecked(True)
        self.assertTrue(button.isCheckable() and button.isChecked())
        button.setValue(True)
        self.assertIs(button.getValue(), True)
        button.setColor(['1,1,1', '2,2,2', '3,3,3', '4,4,4', '5,5,5'])

    def test_properties_can_be_written(self):
        button = OlvButton('Save')
        button.setProperty('isChecked', True)
        self.assertTrue(button.isChecked())
        button.setProperty('content', 'Other')
        self.assertIn(b'content', [bytes(name) for name in button.dynamicPropertyNames()])

    def test_icon_button(self):
        tile = OlvIconButton('\uf0e0', 'Mail', 'FontAwesome', None, 80, 60)
        self.assertEqual(tile.size(), QSize(80, 60))
        self.assertEqual(tile.icon(), '\uf0e0')
        tile.setIcon('信')
        self.assertEqual(tile.icon(), '信')
        tile.setIcon('')
        self.assertEqual(tile.icon(), '\0')
        tile.setText('Post')
        tile.setFontFamily('FontAwesome')
        tile.setColor(QColor(1, 2, 3))
        for value in 'text', 3, 1.5, [1, 'a'], None:
            tile.setValue(value)
            self.assertEqual(tile.getValue(), value)
        tile.setCheckable(True)
        tile.setProperty('isChecked', True)
        self.assertTrue(OlvWidgets.isChecked(tile))
        self.assertFalse(OlvWidgets.isChecked(None))

    def test_simple_icon_button(self):
        star = OlvSimpleIconButton('\uf006', QFont('FontAwesome', 12))
        star.setToggle('\uf005')
        star.click()
        self.assertEqual(star.text(), '\uf005')
        star.setTextIcon('a', 'b')
        self.assertEqual(star.text(), 'b')
        self.assertEqual(OlvSimpleIconButton().text(), '')

    def test_line_edit(self):
        line = OlvLineEdit()
        line.setValue('好')
        self.assertEqual((line.getValue(), line.getText(), line.lineEdit().text()), ('好',) * 3)
        self.assertIsInstance(line.lineEdit(), QLineEdit)
        line.setPassWord(True)
        self.assertEqual(line.lineEdit().echoMode(), QLineEdit.Password)
        line.setPwdIcon('\uf06e', '\uf070')
        line.setIcon('\uf023')
        line.setPlaceholderText('Password')
        self.assertEqual(line.lineEdit().placeholderText(), 'Password')

    def test_slider(self):
        slider = OlvSlider()
        slider.setSliderPosition(40)
        self.assertEqual(slider.getValue(), 40)
        knob, = slider.findChildren(SliderRound)
        self.assertIs(type(knob), SliderRound)
        self.assertEqual(knob.maxX(), slider.width() - 30)
        knob.dragTo(70)
        self.assertEqual(slider.getValue(), 70)

    def test_switch(self):
        switch = OlvSwitch()
        switch.setChecked(True)
        self.assertTrue(switch.isChecked() and switch.getValue())
        switch.setValue(False)
        self.assertTrue(switch.getValue())
        self.assertComes(lambda: not switch.getValue())
        switch.setColorOpen(QColor(1, 2, 3))
        switch.setColorClose(QColor(4, 5, 6))
        switch.setColorRound(QColor(7, 8, 9))
        self.assertEqual((switch.property('openColor'), switch.property('closeColor')), ('1,2,3', '4,5,6'))
        self.assertEqual(switch.findChild(SwitchRound).color(), QColor(7, 8, 9))

    def test_shortcut(self):
        shortcut = OlvShortcut(Qt.Key_F7, True, True, False, False)
        self.assertEqual((shortcut.toString(), shortcut.state()), ('Ctrl+Shift+F7', OlvShortcut.Inactive))
        self.assertTrue(shortcut.active())
        self.assertEqual(shortcut.state(), OlvShortcut.Active)
        shortcut.destroy()
        self.assertEqual(shortcut.state(), OlvShortcut.Inactive)
        shortcut.setDescription('Record')
        self.assertEqual(shortcut.description(), 'Record')
        self.assertIsNone(OlvShortcut.fromAddress(0))

    def test_shortcut_edit(self):
        edit = OlvShortcutEdit()
        self.assertEqual((edit.getValue(), edit.shortcut()), ('nullptr', None))
        shortcut = OlvShortcut(Qt.Key_F7, True, True, False, False)
        self.assertTrue(edit.setShortcut(shortcut))
        self.assertEqual(edit.getValue(), 'Ctrl+Shift+F7')
        self.assertIs(edit.shortcut(), shortcut)
        self.assertIs(OlvShortcut.fromAddress(edit.property('OlvShortcut')), shortcut)
        self.assertFalse(edit.setShortcut(None))

    def test_control_bar(self):
        bar = OlvControlBar(GLYPHS, None, ['Settings'])
        self.assertEqual(bar.button(OlvControlBar.Max).text(), '\uf065')
        self.assertEqual(bar.customButton(0).text(), '\uf013')
        self.assertEqual(bar.customButton(0).toolTip(), 'Settings')
        self.assertIsNone(bar.customButton(1))
        self.assertEqual(len(bar.findChildren(QPushButton)), 7)

    def test_helpers_of_windows(self):
        window = QWidget()
        window.resize(200, 100)
        OlvMoveWidget(window).setMoveArea(QRect(0, 0, 200, 30))
        OlvResizeWidget(window, 5).reset()
        handles = window.findChildren(OlvResizeItem)
        self.assertEqual({int(handle.type()) for handle in handles}, {0, 1, 2})
        self.assertIn(handles[0].firstPartner(), handles)
        self.assertEqual(handles[0].pressPosition(), QPoint(0, 0))
        handles[0].setPartners(None, None)
        self.assertIsNone(handles[0].secondPartner())

    def test_grid(self):
        grid = OlvGridLayout()
        tiles = [QWidget(grid) for _ in range(4)]
        grid.addWidget(tiles[0])
        grid.addWidget(tiles[2:])
        self.assertTrue(grid.insWidget(tiles[1], tiles[2]))
        self.assertFalse(grid.insWidget(QWidget(grid), None))
        self.assertEqual([grid.widgetAt(i) for i in range(grid.count())], tiles)
        self.assertIsNone(grid.widgetAt(4))
        self.assertEqual((grid.indexOf(tiles[3]), grid.indexOf(None)), (3, -1))
        grid.setRetainSizeWhenHidden(False)
        self.assertFalse(grid.retainSizeWhenHidden())
        grid.setMargin(1)
        grid.setSpacing(2)

    def test_flex_widget(self):
        panel = OlvFlexWidget(60, 60)
        panel.setHeaderWay(OlvFlexWidget.HeaderLeft, QColor(255, 0, 0))
        panel.stay(OlvFlexWidget.StayTop)
        self.assertTrue(panel.windowFlags() & Qt.WindowStaysOnTopHint)
        self.assertEqual((panel.property('headerWay'), panel.property('stay')), (2, 1))

    def test_form_support(self):
        form = QWidget()
        support = OlvFormSupport(form, OlvFormSupport.Keyboard | OlvFormSupport.FocusRing)
        self.assertEqual(int(support.features()), 6)
        support.setFeatures(OlvFormSupport.NaturalSizes)
        self.assertTrue(support.features() & OlvFormSupport.NaturalSizes)
        self.assertGreater(OlvFormSupport.naturalSize(OlvButton('Save')).width(), 0)
        self.assertFalse(OlvFormSupport.naturalSize(None).isValid())

    def test_colours(self):
        self.assertEqual(OlvColorToString(QColor(236, 245, 255)), '236,245,255')
        self.assertEqual(OlvColorFromString('236,245,255'), QColor(236, 245, 255))
        self.assertEqual(OlvColorToRgb(QColor(1, 2, 3, 4)), 0x04010203)

    def test_texts(self):
        font = QFont('DejaVu Sans', 9)
        self.assertEqual(OlvGlobal.rightDocumentLine('see page', 'x'), 4)
        self.assertEqual(OlvGlobal.rightDocumentLine('see page', '页'), 0)
        self.assertEqual(OlvGlobal.adaptDocumentOfLine('a\nb', 100, font), 2)
        self.assertEqual(OlvGlobal.adaptDocumentToPointSize('a', QSize(100, 100), font), 9)
        self.assertEqual(OlvGlobal.accommodate('abc', 0, font), 0)

    def test_fonts(self):
        self.assertEqual(OlvGlobal.DPI(), 0.0)
        OlvGlobal.init()
        self.assertComes(lambda: OlvGlobal.isReady() and OlvGlobal.DPI() > 0)
        self.assertTrue(OlvGlobal.desktopSize().isValid())
        self.assertEqual(OlvGlobal.OlvPluginFonts(), {})
        self.assertGreater(OlvGlobal.getFont('none', 12).pointSize(), 0)


class Enums(TestCase):
    def test_values(self):
        values = {
            OlvControlBar.WindowState: dict(Float=0, Bottom=1, Top=2, Min=3, Max=4, Close=5),
            OlvFlexWidget.HeaderWay: dict(HeaderTop=1, HeaderLeft=2, HeaderBottom=3, HeaderRight=4),
            OlvFlexWidget.OlvStayType: dict(StayNormal=0, StayTop=1, StayBottom=-1),
            OlvResizeItem.ResizeType: dict(RightEdge=0, BottomEdge=1, Corner=2),
            OlvShortcut.State: dict(Inactive=0, Pending=1, Active=2),
            OlvFormSupport.Feature: dict(NaturalSizes=1, Keyboard=2, FocusRing=4, DisabledLook=8,
                                         Mirroring=16, ReadableText=32, AllFeatures=63),
        }
        for enum, expected in values.items():
            self.assertEqual({name: int(value) for name, value in enum.values.items()}, expected)


if __name__ == '__main__':
    unittest.main()
