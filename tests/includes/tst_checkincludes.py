#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Tests check-includes on a small made-up project, in which each test breaks one rule."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SCRIPT = Path(__file__).resolve().with_name('check-includes')

TABLE = """# Contributing

## Which folder includes which

| folder | what it includes |
| --- | --- |
| `src/support/` | nothing of the project |
| `src/knob/` | `src/support/` |
| `src/slider/` | `src/knob/`, `systeminfo/` |
| `systeminfo/` | nothing of the project |
| `examples/`, `tests/` | `include/` |
| `tests/knob/`, which tests what is hidden | `tests/`, `src/knob/` |

## Something else

| `src/other/` | `src/slider/` |
"""

FILES = {
    'CONTRIBUTING.md': TABLE,
    'include/OlvWidgets/knob.h': 'class OLVWIDGETS_EXPORT OlvKnob {};\n',
    'include/OlvWidgets/slider.h': '#include <OlvWidgets/knob.h>\n#include <QWidget>\n',
    'include/OlvSystemInfo/shortcut.h': '#include <OlvSystemInfo/olvsysteminfo_export.h>\n',
    'src/support/place_p.h': '#include <QPoint>\n',
    'src/knob/knob.cpp': '#include "support/place_p.h"\n#include "knob.moc"\n',
    'src/knob/angle_p.h': '',
    'src/slider/slider.cpp': '#include <OlvKnob>\n#include <OlvSystemInfo/shortcut.h>\n',
    'systeminfo/shortcut.cpp': '#include <OlvSystemInfo/shortcut.h>\n',
    'examples/page.h': '',
    'examples/main.cpp': '#include "page.h"\n#include <OlvWidgets/OlvWidgets>\n',
    'tests/support/mouse.h': '',
    'tests/slider/tst_slider.cpp': '#include "mouse.h"\n#include <OlvWidgets/slider.h>\n',
    'tests/knob/tst_knob.cpp': '#include "knob/angle_p.h"\n#include "mouse.h"\n',
}


class CheckIncludes(unittest.TestCase):
    def check(self, files={}):
        """Runs the script on the project with some of its files changed or added."""
        with tempfile.TemporaryDirectory() as folder:
            for name, text in {**FILES, **files}.items():
                path = Path(folder) / name
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text)
            return subprocess.run([sys.executable, str(SCRIPT), folder],
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)

    def assertComplains(self, complaint, files):
        result = self.check(files)
        self.assertIn(complaint, result.stdout)
        self.assertEqual(result.returncode, 1)

    def test_accepts_what_the_table_says(self):
        result = self.check()
        self.assertEqual(result.stdout, '7 includes between 7 folders, as CONTRIBUTING.md has them\n')
        self.assertEqual(result.returncode, 0)

    def test_refuses_an_include_that_the_table_lacks(self):
        self.assertComplains(
            'src/slider/ includes src/support/, which its row in CONTRIBUTING.md does not name '
            '(src/slider/round.cpp: support/place_p.h)',
            {'src/slider/round.cpp': '#include "support/place_p.h"\n'})

    def test_refuses_a_public_header_that_the_table_lacks(self):
        for name in ('OlvWidgets/knob.h', 'OlvKnob', 'OlvWidgets/OlvKnob'):
            self.assertComplains('src/support/ includes src/knob/',
                                 {'src/support/place_p.h': '#  include <%s>\n' % name})

    def test_counts_a_public_header_as_part_of_its_family(self):
        self.assertComplains('src/knob/ includes src/slider/',
                             {'include/OlvWidgets/knob.h': '#include <OlvWidgets/slider.h>\n'})

    def test_refuses_all_public_headers_at_once_in_the_library(self):
        self.assertComplains('src/knob/all.cpp: OlvWidgets/OlvWidgets is in no folder of the table',
                             {'src/knob/all.cpp': '#include <OlvWidgets/OlvWidgets>\n'})

    def test_refuses_a_row_that_names_too_much(self):
        self.assertComplains(
            'src/knob/ includes nothing of src/support/, which its row in CONTRIBUTING.md names',
            {'src/knob/knob.cpp': ''})

    def test_refuses_a_circle_even_when_the_table_has_it(self):
        self.assertComplains(
            'a circle of includes: src/knob/ -> src/support/ -> src/knob/',
            {'src/support/place_p.h': '#include "knob/angle_p.h"\n',
             'CONTRIBUTING.md': TABLE.replace('`src/support/` | nothing of the project',
                                              '`src/support/` | `src/knob/`')})

    def test_refuses_a_folder_without_a_row(self):
        self.assertComplains('src/other/other.cpp lies in no folder of the table',
                             {'src/other/other.cpp': ''})

    def test_refuses_hidden_headers_in_examples_and_tests(self):
        for path in ('"knob/angle_p.h"', '"../src/knob/angle_p.h"', '<knob/angle_p.h>'):
            self.assertComplains('examples/ includes src/knob/',
                                 {'examples/more.cpp': '#include %s\n' % path})
            self.assertComplains('tests/ includes src/knob/',
                                 {'tests/slider/tst_more.cpp': '#include %s\n' % path})

    def test_takes_the_nearer_of_two_files_of_one_name(self):
        result = self.check({'src/slider/page.h': '', 'examples/page/page.h': ''})
        self.assertEqual(result.returncode, 0)

    def test_refuses_a_file_that_is_missing(self):
        self.assertComplains('src/knob/knob.cpp: "support/gone_p.h" is no file of the project',
                             {'src/knob/knob.cpp': '#include "support/gone_p.h"\n'})

    def test_refuses_a_contributing_without_the_table(self):
        self.assertComplains('has no section', {'CONTRIBUTING.md': '# Contributing\n'})
        self.assertComplains('has no table',
                             {'CONTRIBUTING.md': '## Which folder includes which\n\n## More\n'})


if __name__ == '__main__':
    unittest.main()
