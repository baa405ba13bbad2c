# SPDX-License-Identifier: MIT
"""Who deletes what, whichever side goes first."""

import gc
import unittest
import weakref

import shiboken2
from PySide2.QtCore import Qt
from PySide2.QtGui import QStandardItem, QStandardItemModel
from PySide2.QtWidgets import QDataWidgetMapper, QStyleOptionViewItem, QWidget

from OlvWidgets import (OlvButton, OlvControlBar, OlvGridLayout, OlvLineEdit, OlvResizeItem, OlvResizeWidget,
                        OlvShortcut, OlvShortcutEdit, OlvSlider, OlvSwitch, OlvValueDelegate, SliderRound,
                        SwitchRound)
from support import MAKERS, TestCase, application, settle


class Shortcut(OlvShortcut):
    """One that needs no server, and may be refused."""

    def __init__(self, granted=True):
        super().__init__(Qt.Key_F5, True, False, False, False)
        self.granted = granted

    def active(self):
        return self.granted

    def destroy(self):
        pass


class Parents(TestCase):
    def each_class(self):
        for kind, make in MAKERS.items():
            with self.subTest(kind.__name__):
                yield make

    def test_parent_goes_first(self):
        for make in self.each_class():
            parent = QWidget()
            child = make(parent)
            shiboken2.delete(parent)
            self.assertDeleted(child)

    def test_parent_is_collected(self):
        for make in self.each_class():
            parent = QWidget()
            child = make(parent)
            del parent
            settle()
            self.assertDeleted(child)

    def test_parent_is_deleted_later(self):
        for make in self.each_class():
            parent = QWidget()
            child = make(parent)
            parent.deleteLater()
            self.assertComes(lambda: not shiboken2.isValid(parent))
            self.assertDeleted(child)

    def test_child_goes_first(self):
        for make in self.each_class():
            parent = QWidget()
            child = make(parent)
            shiboken2.delete(child)
            self.assertNotIn(child, parent.children())
            shiboken2.delete(parent)

    def test_child_is_deleted_later(self):
        for make in self.each_class():
            parent = QWidget()
            child = make(parent)
            child.deleteLater()
            self.assertComes(lambda: not shiboken2.isValid(child))
            self.assertAlive(parent)

    def test_child_lives_without_a_reference(self):
        for make in self.each_class():
            parent = QWidget()
            kind = type(make(parent))
            settle()
            self.assertIn(kind, [type(other) for other in parent.children()])

    def test_child_leaves_its_parent(self):
        for make in self.each_class():
            parent = QWidget()
            child = make(parent)
            child.setParent(None)
            shiboken2.delete(parent)
            self.assertAlive(child)

    def test_without_a_parent_python_owns_it(self):
        for kind, make in MAKERS.items():
            if kind not in (OlvResizeItem, OlvResizeWidget, SliderRound):
                with self.subTest(kind.__name__):
                    ends = []
                    child = make(None)
                    child.destroyed.connect(lambda: ends.append(True))
                    del child
                    settle()
                    self.assertEqual(ends, [True])

    def test_cycle_is_collected(self):
        class Page(QWidget):
            def __init__(self):
                super().__init__()
                self.button = OlvButton('Save', self)
                self.button.page = self

        page = weakref.ref(Page())
        gc.collect()
        self.assertIsNone(page())


# shiboken2.delete() is for what Python has made: the wrapper of a part that findChild() has found stays behind
# among those of the parent's children, and crashes with the parent, in PySide's own classes as well
def delete_part(part):
    part.deleteLater()
    settle()


# an owner that the library gives a part, and that part
PARTS = [
    (OlvLineEdit, OlvLineEdit.lineEdit),
    (OlvSlider, lambda slider: slider.findChild(SliderRound)),
    (OlvSwitch, lambda switch: switch.findChild(SwitchRound)),
    (lambda: OlvControlBar(['a']), lambda bar: bar.button(OlvControlBar.Close)),
    (lambda: OlvControlBar(['a'], None, ['b']), lambda bar: bar.customButton(0)),
]


class Parts(TestCase):
    def test_part_lives_without_a_reference(self):
        line = OlvLineEdit()
        for _ in range(3):
            line.lineEdit().setText('a')
            settle()
        self.assertEqual(line.getText(), 'a')

    def test_owner_goes_first(self):
        for make, part_of in PARTS:
            owner = make()
            part = part_of(owner)
            shiboken2.delete(owner)
            self.assertDeleted(part)

    def test_owner_is_collected(self):
        for make, part_of in PARTS:
            owner = make()
            part = part_of(owner)
            del owner
            settle()
            self.assertDeleted(part)

    def test_part_goes_first(self):
        for make, part_of in PARTS:
            owner = make()
            delete_part(part_of(owner))
            owner.resize(90, 40)
            owner.grab()
            shiboken2.delete(owner)

    def test_deleted_part_is_none(self):
        line, bar = OlvLineEdit(), OlvControlBar(['a'], None, ['b'])
        for part in line.lineEdit(), bar.button(OlvControlBar.Top), bar.customButton(0):
            delete_part(part)
        self.assertIsNone(line.lineEdit())
        self.assertIsNone(bar.button(OlvControlBar.Top))
        self.assertIsNone(bar.customButton(0))
        self.assertEqual(line.getText(), '')

    def test_handles_forget_each_other(self):
        window = QWidget()
        first = OlvResizeItem(window, window, OlvResizeItem.RightEdge, 5, None, None)
        second = OlvResizeItem(window, window, OlvResizeItem.Corner, 5, first, None)
        shiboken2.delete(first)
        self.assertIsNone(second.firstPartner())
        second.placeAll()


class Grid(TestCase):
    def setUp(self):
        super().setUp()
        self.grid = OlvGridLayout()
        self.tile = OlvButton('a', self.grid)
        self.stranger = OlvButton('b')
        self.grid.addWidget([self.tile, self.stranger])

    def tearDown(self):
        self.grid = self.tile = self.stranger = None
        super().tearDown()

    def test_grid_goes_first(self):
        shiboken2.delete(self.grid)
        self.assertDeleted(self.tile)
        self.assertAlive(self.stranger)

    def test_widgets_go_first(self):
        shiboken2.delete(self.tile)
        self.stranger = None
        settle()
        self.assertEqual(self.grid.count(), 0)

    def test_asking_for_a_widget_does_not_give_it_away(self):
        self.assertIs(self.grid.widgetAt(1), self.stranger)
        shiboken2.delete(self.grid)
        self.assertAlive(self.stranger)

    def test_taken_widget_is_pythons(self):
        self.assertIs(self.grid.takeWidget(self.tile), self.tile)
        self.assertIsNone(self.tile.parent())
        shiboken2.delete(self.grid)
        self.assertAlive(self.tile)
        self.assertPythonDeletes('tile')

    def test_taken_widget_outlives_nothing_that_forgets_it(self):
        self.grid.takeWidget(self.tile)
        self.assertPythonDeletes('tile')
        self.assertEqual(self.grid.count(), 1)

    def test_taken_stranger_stays_pythons(self):
        self.assertIs(self.grid.takeWidget(self.stranger), self.stranger)
        self.assertPythonDeletes('stranger')

    def test_taken_child_of_another_stays_with_its_parent(self):
        parent = QWidget()
        child = OlvButton('c', parent)
        self.grid.addWidget(child)
        self.grid.takeWidget(child)
        del child
        settle()
        self.assertEqual(len(parent.children()), 1)

    def test_nothing_is_taken(self):
        child = OlvButton('c', self.grid)
        for widget in child, None:
            self.assertIsNone(self.grid.takeWidget(widget))
        self.assertIs(child.parent(), self.grid)

    def test_taken_part_of_the_library_is_pythons(self):
        bar = OlvControlBar(['a'], self.grid)
        button = bar.button(OlvControlBar.Close)
        button.setParent(self.grid)
        self.grid.addWidget(button)
        self.assertIs(self.grid.takeWidget(button), button)
        button.setObjectName('taken')
        del button
        settle()
        self.assertNotIn('taken', [window.objectName() for window in application.topLevelWidgets()])

    def test_deleted_by_the_grid(self):
        other = OlvButton('c', self.grid)
        self.grid.addWidget(other)
        self.assertTrue(self.grid.delWidget(self.tile))
        self.assertDeleted(self.tile)
        self.assertTrue(self.grid.delWidget([other]))
        self.assertDeleted(other)
        self.grid.clear()
        self.assertDeleted(self.stranger)

    def test_inserted_widgets_stay_whose_they_were(self):
        other = OlvButton('c')
        self.assertTrue(self.grid.insWidget([other], self.tile))
        shiboken2.delete(self.grid)
        self.assertAlive(other)

    def assertPythonDeletes(self, name):
        ends = []
        getattr(self, name).destroyed.connect(lambda: ends.append(True))
        setattr(self, name, None)
        settle()
        self.assertEqual(ends, [True])


class Shortcuts(TestCase):
    def test_edit_keeps_the_shortcut(self):
        edit = OlvShortcutEdit()
        edit.setShortcut(Shortcut())
        settle()
        self.assertIs(type(edit.shortcut()), Shortcut)

    def test_edit_goes_first(self):
        for make in lambda shortcut: OlvShortcutEdit(shortcut), self.edit_with:
            shortcut = Shortcut()
            edit = make(shortcut)
            self.assertIs(edit.shortcut(), shortcut)
            del edit
            settle()
            self.assertDeleted(shortcut)

    def edit_with(self, shortcut):
        edit = OlvShortcutEdit()
        edit.setShortcut(shortcut)
        return edit

    def test_shortcut_goes_first(self):
        edit = OlvShortcutEdit(Shortcut())
        shiboken2.delete(edit.shortcut())
        self.assertIsNone(edit.shortcut())
        self.assertEqual(edit.getValue(), 'nullptr')

    def test_next_shortcut_deletes_the_last(self):
        edit = OlvShortcutEdit()
        first, second = Shortcut(), Shortcut()
        edit.setShortcut(first)
        edit.setShortcut(second)
        self.assertDeleted(first)
        edit.setShortcut(second)
        edit.clear()
        self.assertDeleted(second)

    def test_refused_shortcut_is_deleted(self):
        edit = OlvShortcutEdit()
        shortcut = Shortcut(granted=False)
        self.assertFalse(edit.setShortcut(shortcut))
        self.assertDeleted(shortcut)

    def test_object_in_python_goes_with_the_shortcut(self):
        edit = OlvShortcutEdit()
        for granted in True, False:
            shortcut = weakref.ref(self.given(edit, Shortcut(granted)))
            edit.clear()
            settle()
            self.assertIsNone(shortcut())

    def given(self, edit, shortcut):
        edit.setShortcut(shortcut)
        return shortcut

    def test_address_as_the_value(self):
        edit = OlvShortcutEdit()
        shortcut = Shortcut()
        edit.setValue(shiboken2.getCppPointer(shortcut)[0])
        self.assertIs(edit.shortcut(), shortcut)
        del shortcut
        settle()
        self.assertIsNone(edit.shortcut())


class Delegates(TestCase):
    def mapped(self):
        model = QStandardItemModel(1, 1)
        model.setItem(0, 0, QStandardItem('20'))
        mapper, slider = QDataWidgetMapper(), OlvSlider()
        mapper.setModel(model)
        delegate = OlvValueDelegate(mapper)
        mapper.setItemDelegate(delegate)
        mapper.addMapping(slider, 0)
        mapper.toFirst()
        self.assertEqual(slider.getValue(), 20)
        return model, mapper, delegate, slider

    def test_each_goes_first(self):
        for first in range(4):
            objects = self.mapped()
            shiboken2.delete(objects[first])
            for other in objects:
                if shiboken2.isValid(other):
                    shiboken2.delete(other)

    def test_editor_belongs_to_its_parent(self):
        delegate, parent, model = OlvValueDelegate(), QWidget(), QStandardItemModel(1, 1)
        editor = delegate.createEditor(parent, QStyleOptionViewItem(), model.index(0, 0))
        delegate.setEditorData(editor, model.index(0, 0))
        delegate.setModelData(editor, model, model.index(0, 0))
        shiboken2.delete(delegate)
        self.assertAlive(editor)
        ends = []
        parent.destroyed.connect(lambda: ends.append(True))
        del parent
        settle()
        self.assertEqual(ends, [True])
        self.assertDeleted(editor)


if __name__ == '__main__':
    unittest.main()
