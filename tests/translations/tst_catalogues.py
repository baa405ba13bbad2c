#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Tests that scripts/translations --check finds whatever the catalogues lack, in a copy of the sources."""

import re
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path
from xml.etree import ElementTree

ROOT = Path(__file__).resolve().parents[2]
SOURCES = ('include', 'scripts', 'src', 'systeminfo', 'translations')
CATALOGUE = 'translations/olvwidgets_de.ts'
FONTS = {'宋体', '新宋体', '楷体'}
CHINESE_LITERAL = re.compile(r'"([^"\n]*[\u4e00-\u9fff][^"\n]*)"')


class Catalogues(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        for name in SOURCES:
            shutil.copytree(ROOT / name, self.root / name)

    def check(self):
        return subprocess.run([self.root / 'scripts/translations', '--check'],
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)

    def assertComplains(self, complaint):
        result = self.check()
        self.assertNotEqual(result.returncode, 0)
        self.assertIn(complaint, result.stdout)

    def replace(self, name, old, new):
        path = self.root / name
        text = path.read_text()
        self.assertIn(old, text)
        path.write_text(text.replace(old, new, 1))

    def test_catalogues_are_up_to_date(self):
        result = self.check()
        self.assertEqual(result.returncode, 0, result.stdout)

    def test_new_text_is_missing(self):
        for folder in ('src/frame', 'systeminfo'):
            with self.subTest(folder):
                path = self.root / folder / 'added.cpp'
                path.write_text('const char *t = QT_TRANSLATE_NOOP("OlvControlBar", "新的");\n')
                self.assertComplains('<source>新的</source>')
                path.unlink()

    def test_changed_text_is_missing(self):
        self.replace('src/containers/gridlayout.cpp', '"空"', '"空的"')
        self.assertComplains('<source>空的</source>')

    def test_text_that_has_gone_is_left_over(self):
        self.replace(CATALOGUE, '</message>', '</message><message><source>旧的</source>'
                     '<translation>Alt</translation></message>')
        self.assertComplains('is not up to date')

    def test_text_without_a_translation_is_unfinished(self):
        self.replace(CATALOGUE, '<translation>Schweben lassen</translation>',
                     '<translation type="unfinished"></translation>')
        self.assertComplains('has unfinished texts')

    def test_no_chinese_text_goes_without_a_translation(self):
        catalogue = ElementTree.parse(ROOT / CATALOGUE)
        known = {source.text for source in catalogue.iter('source')} | FONTS
        found = set()
        for folder in ('include', 'src', 'systeminfo'):
            for pattern in ('*.cpp', '*.h'):
                for path in (ROOT / folder).rglob(pattern):
                    found.update(CHINESE_LITERAL.findall(path.read_text()))
        self.assertTrue(found)
        self.assertLessEqual(found, known)


if __name__ == '__main__':
    unittest.main()
