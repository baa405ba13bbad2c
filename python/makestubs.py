# SPDX-License-Identifier: MIT
"""Writes the types of the module OlvWidgets for type checkers and editors.

Usage: makestubs.py FILE

PySide tells the signatures of the module's functions. Its signals, its enums, and what else may be None are
told here.
"""

import inspect
import sys
from pathlib import Path

from PySide2.QtCore import Qt, Signal
import PySide2.QtWidgets  # the types that the signatures name

import OlvWidgets

Enum = type(Qt.Key)
HEADER = '''# SPDX-License-Identifier: MIT
# Written by makestubs.py.
import typing

import PySide2.QtCore
import PySide2.QtGui
import PySide2.QtWidgets

'''
# what returns a null pointer where there is nothing to return
OPTIONAL = {'customButton', 'fromAddress', 'firstPartner', 'secondPartner', 'shortcut', 'takeWidget',
            'widgetAt'}
# and what takes one
OPTIONAL_ARGUMENTS = {'parent', 'first', 'second'}
CALLABLES = {'addDestroy': 'typing.Callable[[], typing.Any]',
             'OlvLastOnceFunction': 'typing.Callable[[], typing.Any]',
             'addEventListener': 'typing.Callable[[typing.Any], typing.Any]'}


def annotation(kind):
    text = 'None' if kind is type(None) else inspect.formatannotation(kind)
    return text.replace('OlvWidgets.', '')


def optional(text, is_optional):
    return 'typing.Optional[%s]' % text if is_optional and not text.startswith('typing.Optional') else text


def argument(parameter, function):
    if parameter.name == 'self':
        return 'self'
    text = annotation(parameter.annotation)
    if text == 'typing.Callable':
        text = CALLABLES[function]
    if text == 'OlvFormSupport.Features':
        text = 'typing.Union[OlvFormSupport.Features, OlvFormSupport.Feature]'
    default = '' if parameter.default is parameter.empty else ' = ...'
    return '%s: %s%s' % (parameter.name, optional(text, parameter.name in OPTIONAL_ARGUMENTS), default)


def function(name, signature, owner=None, is_static=False):
    """The lines of a function, one for each of its overloads."""
    signatures = signature if isinstance(signature, list) else [signature]
    for single in signatures:
        if len(signatures) > 1:
            yield '@typing.overload'
        if is_static:
            yield '@staticmethod'
        arguments = [argument(parameter, owner if name == '__init__' else name)
                     for parameter in single.parameters.values()]
        result = optional(annotation(single.return_annotation), name in OPTIONAL)
        yield 'def %s(%s) -> %s: ...' % (name, ', '.join(arguments), result)


def enum(value, flags):
    yield 'class %s:' % value.__name__
    for name in value.values:
        yield '    %s: typing.ClassVar[%s]' % (name, value.__qualname__)
    yield '    name: str'
    yield '    values: typing.ClassVar[typing.Dict[str, %s]]' % value.__qualname__
    yield '    def __init__(self, value: int = ...) -> None: ...'
    yield '    def __int__(self) -> int: ...'
    yield '    def __index__(self) -> int: ...'
    if flags:
        yield from operators(value, flags)


def operators(value, flags):
    for name in '__and__', '__or__', '__xor__':
        yield '    def %s(self, other: typing.Union[%s, %s]) -> %s: ...' % (
            name, flags.__qualname__, value.__qualname__, flags.__qualname__)
    yield '    def __invert__(self) -> %s: ...' % flags.__qualname__


def flag_set(flags, value):
    yield 'class %s:' % flags.__name__
    yield '    def __init__(self, value: typing.Union[int, %s] = ...) -> None: ...' % value.__qualname__
    yield '    def __int__(self) -> int: ...'
    yield '    def __index__(self) -> int: ...'
    yield '    def __bool__(self) -> bool: ...'
    yield from operators(value, flags)


def is_inherited(owner, name):
    return any(name in vars(base) for base in owner.__mro__[1:])


def members(owner):
    # an object of flags is the set of the enum beside it
    enums = [value for value in vars(owner).values() if isinstance(value, Enum)]
    flags = {name: value for name, value in vars(owner).items()
             if isinstance(value, type) and not isinstance(value, Enum)}
    for name, value in sorted(vars(owner).items()):
        if isinstance(value, Enum):
            yield from enum(value, flags.get(name + 's'))
        elif name in flags:
            yield from flag_set(value, vars(owner)[name[:-1]])
        elif type(value) in enums:
            yield '%s: typing.ClassVar[%s]' % (name, type(value).__qualname__)
        elif isinstance(value, Signal):
            if not is_inherited(owner, name):
                yield '%s: typing.ClassVar[PySide2.QtCore.Signal]  # %s' % (name, value)
        elif getattr(value, '__signature__', None):
            yield from function(name, value.__signature__, owner.__name__, isinstance(value, staticmethod))


def stubs():
    classes = [value for value in vars(OlvWidgets).values() if isinstance(value, type)]
    for value in sorted(classes, key=lambda value: (len(value.__mro__), value.__name__)):
        base = annotation(value.__base__).replace('Shiboken.Object', 'object')
        yield '\nclass %s(%s):' % (value.__name__, base)
        for line in list(members(value)) or ['...']:
            yield '    ' + line
        yield ''
    for name, value in sorted(vars(OlvWidgets).items()):
        if inspect.isbuiltin(value):
            yield from function(name, value.__signature__)


path = Path(sys.argv[1])
path.parent.mkdir(exist_ok=True)
path.write_text(HEADER + '\n'.join(stubs()) + '\n')
