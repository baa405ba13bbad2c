# SPDX-License-Identifier: MIT
"""An assistive program: reads and drives another program's widgets over the accessibility bus.

Usage: assistant.py PID COMMAND [ARGUMENT...]

    tree             every widget that has a name, one a line: role, name, states, value, actions
    act NAME ACTION  does an action of the widget of that name
    set NAME VALUE   sets the value of the widget of that name
    hear             says the updates of names, texts, values and checked states as they come,
                     until it is killed
"""

import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 60  # seconds


def until(find):
    """What find() gives as soon as that is something."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            found = find()
        except GLib.Error:  # the program or a widget of it comes or goes at the moment
            found = None
        if found:
            return found
        time.sleep(0.02)
    sys.exit("assistant.py: waited in vain")


def application(pid):
    desktop = Atspi.get_desktop(0)
    children = [desktop.get_child_at_index(i) for i in range(desktop.get_child_count())]
    return next((child for child in children if child and child.get_process_id() == pid), None)


def widgets(root):
    for i in range(root.get_child_count()):
        child = root.get_child_at_index(i)
        if child:
            yield child
            yield from widgets(child)


def named(root, name):
    return next((widget for widget in widgets(root) if widget.get_name() == name), None)


def actions(widget):
    action = widget.get_action_iface()
    return [action.get_action_name(i) for i in range(action.get_n_actions())] if action else []


def value(widget):
    number = widget.get_value_iface()
    if number:
        return "%g of %g to %g" % (
            number.get_current_value(),
            number.get_minimum_value(),
            number.get_maximum_value(),
        )
    text = widget.get_text_iface()
    return Atspi.Text.get_text(text, 0, text.get_character_count()) if text else ""


def states(widget):
    state = widget.get_state_set()
    checked = ["checked"] if state.contains(Atspi.StateType.CHECKED) else []
    focusable = ["focusable"] if state.contains(Atspi.StateType.FOCUSABLE) else []
    focused = ["focused"] if state.contains(Atspi.StateType.FOCUSED) else []
    enabled = [] if state.contains(Atspi.StateType.ENABLED) else ["disabled"]
    return checked + focusable + focused + enabled


def describe(widget):
    return "|".join(
        [
            widget.get_role_name(),
            widget.get_name(),
            " ".join(states(widget)),
            value(widget),
            " ".join(actions(widget)),
        ]
    )


def hear(pid):
    def say(event):
        if event.source.get_process_id() != pid:
            return
        what = event.type.replace("object:", "")
        detail = str(event.detail1) if what.startswith("state-changed") else value(event.source)
        if what.startswith("text-changed"):
            detail = event.any_data
        print("|".join([what, event.source.get_name(), detail]), flush=True)

    listener = Atspi.EventListener.new(say)
    for kind in (
        "object:property-change:accessible-name",
        "object:property-change:accessible-value",
        "object:text-changed",
        "object:state-changed:checked",
    ):
        listener.register(kind)
    Atspi.event_main()


def main(arguments):
    pid, command = int(arguments[0]), arguments[1]
    program = until(lambda: application(pid))
    if command == "tree":
        # windows come onto the bus one by one
        until(lambda: program.get_child_count())
        for widget in widgets(program):
            if widget.get_name():
                print(describe(widget))
    elif command == "act":
        widget = until(lambda: named(program, arguments[2]))
        if not widget.do_action(actions(widget).index(arguments[3])):
            sys.exit("assistant.py: the action was refused")
    elif command == "set":
        widget = until(lambda: named(program, arguments[2]))
        if not widget.get_value_iface().set_current_value(float(arguments[3])):
            sys.exit("assistant.py: the value was refused")
    elif command == "hear":
        hear(pid)
    else:
        sys.exit(__doc__)


if __name__ == "__main__":
    main(sys.argv[1:])
