# SPDX-License-Identifier: MIT
"""Lists what a program offers an assistive program's user.

Usage: listwidgets.py ASSISTANT_FOLDER PID

Each widget that is shown and takes the keyboard or has an action is a line: its role and its name.
"""

import sys

sys.path.insert(0, sys.argv[1])
sys.dont_write_bytecode = True
from assistant import Atspi, actions, application, until, widgets  # noqa: E402

program = until(lambda: application(int(sys.argv[2])))
until(lambda: program.get_child_count())  # windows come onto the bus one by one
for widget in widgets(program):
    states = widget.get_state_set()
    is_used = states.contains(Atspi.StateType.FOCUSABLE) or actions(widget)
    if is_used and states.contains(Atspi.StateType.SHOWING):
        print("%s|%s" % (widget.get_role_name(), widget.get_name()))
