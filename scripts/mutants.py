# SPDX-License-Identifier: MIT
"""Small changes to a C++ file that a test should notice."""

import re
from dataclasses import dataclass

TOKEN = re.compile(
    r'''(?P<blank>\s+|//[^\n]*|/\*.*?\*/)
      | (?P<directive>^[ \t]*\#(?:\\\n|[^\n])*)
      | (?P<text>"(?:\\.|[^"\\])*"|'(?:\\.|[^'\\])*')
      | (?P<number>0[xX][0-9a-fA-F]+[uUlL]*|\d+\.\d*(?:[eE][-+]?\d+)?|\d+[uUlL]*)
      | (?P<name>[A-Za-z_]\w*)
      | (?P<sign><<=|>>=|->|::|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|.)''',
    re.VERBOSE | re.DOTALL | re.MULTILINE)

# Given how the code is formatted, these are binary operators if they have blanks on both sides: "<"
# opens no template, "*" and "&" declare nothing.
SWAPS = {
    '<': ('<=', '>='), '<=': ('<', '>'), '>': ('>=', '<='), '>=': ('>', '<'),
    '==': ('!=',), '!=': ('==',), '&&': ('||',), '||': ('&&',),
    '+': ('-',), '-': ('+',), '*': ('/',), '/': ('*',), '%': ('*',),
    '+=': ('-=',), '-=': ('+=',), '&': ('|',), '|': ('&',), '^': ('|',), '<<': ('>>',),
}
STEPS = {'++': '--', '--': '++'}
WORDS = {'true': 'false', 'false': 'true', 'qMin': 'qMax', 'qMax': 'qMin'}
# Values of one type each, which can be exchanged.
KINDS = (
    'Qt::white Qt::black Qt::gray', 'Qt::AlignCenter Qt::AlignLeft', 'Qt::Vertical Qt::Horizontal',
    'Qt::OtherFocusReason Qt::MouseFocusReason', 'Qt::StrongFocus Qt::ClickFocus',
    'Qt::ControlModifier Qt::ShiftModifier Qt::AltModifier Qt::MetaModifier',
    'Qt::Key_Control Qt::Key_Shift Qt::Key_Alt Qt::Key_Meta',
    'Qt::SizeHorCursor Qt::SizeVerCursor Qt::SizeFDiagCursor',
    'Qt::WindowStaysOnTopHint Qt::WindowStaysOnBottomHint',
    'Qt::DirectConnection Qt::QueuedConnection',
    'QEvent::FocusIn QEvent::FocusOut',
    'QEvent::MouseButtonPress QEvent::MouseMove QEvent::MouseButtonRelease',
    'QEvent::Resize QEvent::Move QEvent::Timer', 'QLineEdit::Normal QLineEdit::Password',
    'QSizePolicy::Expanding QSizePolicy::Minimum',
    'RightEdge BottomEdge Corner', 'HeaderTop HeaderLeft HeaderBottom HeaderRight',
    'StayNormal StayTop StayBottom', 'Float Bottom Top Min Max Close',
    'RestingPlainFill RestingPlainBorder HoverFill Fill PressedFill',
    'ButtonState::resting ButtonState::hovered ButtonState::pressed',
    'XCB_KEY_PRESS XCB_KEY_RELEASE', 'XCB_MOD_MASK_SHIFT XCB_MOD_MASK_CONTROL XCB_MOD_MASK_LOCK',
    'XCB_MOD_MASK_1 XCB_MOD_MASK_4',
)
OTHERS = {value: tuple(other for other in kind.split() if other != value)
          for kind in KINDS for value in kind.split()}
CALL = re.compile(r'(?:Q_EMIT )?(?:[\w:]+(?:\(\))?(?:->|\.))*[\w:]+\(.*\)', re.DOTALL)
NO_CALL = re.compile(r'(?:return|static_assert|Q_DECLARE|Q_DISABLE|if|for|while|switch|else|case)\b')


@dataclass(frozen=True)
class Mutant:
    """One change: replaces the text of a file from start to end."""
    file: str
    start: int
    end: int
    text: str
    operator: str

    def apply(self, source):
        return source[:self.start] + self.text + source[self.end:]


@dataclass(frozen=True)
class Token:
    kind: str
    text: str
    start: int
    end: int


def tokens_of(source):
    return [Token(match.lastgroup, match.group(), match.start(), match.end())
            for match in TOKEN.finditer(source)]


def matching(tokens, i):
    """The index of the bracket that closes the one at i."""
    depth = 0
    for place in range(i, len(tokens)):
        if tokens[place].text in '([{':
            depth += 1
        elif tokens[place].text in ')]}':
            depth -= 1
            if depth == 0:
                return place
    return len(tokens) - 1


def without_assertions(tokens):
    """The tokens that are code: no blanks, no directives, no static_assert, no class declarations'
    macros."""
    code = [token for token in tokens if token.kind not in ('blank', 'directive')]
    kept, i = [], 0
    while i < len(code):
        if code[i].text in ('static_assert', 'Q_DISABLE_COPY', 'Q_DECLARE_METATYPE'):
            i = matching(code, i + 1) + 1
        else:
            kept.append(code[i])
            i += 1
    return kept


def changes_of_number(text):
    if re.fullmatch(r'\d+', text):
        return [str(int(text) + 1), str(int(text) - 1)]
    if re.fullmatch(r'0[xX][0-9a-fA-F]+', text):
        return [hex(int(text, 16) + 1), hex(int(text, 16) - 1)]
    if '.' in text:
        return [repr(float(text) + 1), repr(float(text) - 1)]
    return []


def ends_label(code, i):
    """Whether the colon at i belongs to a case, not to the choice between two values."""
    while i > 0 and code[i - 1].text not in ('{', '}', ';'):
        i -= 1
    return code[i].text in ('case', 'default')


def statements_of(code):
    """The indices of the first token and the semicolon of each statement."""
    for i, token in enumerate(code[:-1]):
        if token.text not in ('{', '}', ';') and not (token.text == ':' and ends_label(code, i)):
            continue
        if code[i + 1].kind != 'name':
            continue
        place = i + 1
        while place < len(code) and code[place].text not in (';', '}', '{'):
            place = matching(code, place) + 1 if code[place].text in '([' else place + 1
        if place < len(code) and code[place].text == ';':
            yield i + 1, place


def mutants_of(file, source):
    code = without_assertions(tokens_of(source))
    found = []

    def add(first, last, text, operator):
        found.append(Mutant(file, first.start, last.end, text, operator))

    for i, token in enumerate(code):
        before, after = source[token.start - 1:token.start], source[token.end:token.end + 1]
        if token.kind == 'number':
            for text in changes_of_number(token.text):
                add(token, token, text, 'constant')
        elif token.text in SWAPS and before.isspace() and after.isspace() \
                and not source.startswith('/*', token.end + 1):
            for text in SWAPS[token.text]:
                add(token, token, text, 'operator')
        elif token.text in STEPS:
            add(token, token, STEPS[token.text], 'step')
        elif token.text in WORDS:
            add(token, token, WORDS[token.text], 'value')
        elif token.text == '!' and after != '=':
            add(token, token, '', 'negation')
        elif token.text in ('if', 'while') and code[i + 1].text == '(':
            first, last = code[i + 1], code[matching(code, i + 1)]
            condition = source[first.end:last.start]
            # removing a leading "!" is a mutant already
            if not re.fullmatch(r'![^&|]*', condition):
                add(first, last, '(!(%s))' % condition, 'negation')
        elif token.kind == 'name':
            if i > 1 and code[i - 1].text == '::' and code[i - 2].kind == 'name':
                first, name = code[i - 2], code[i - 2].text + '::' + token.text
            else:
                first, name = token, token.text
            for text in OTHERS.get(name, ()):
                add(first, token, text, 'enumerator')
            if first is not token:
                for text in OTHERS.get(token.text, ()):
                    add(token, token, text, 'enumerator')
    for first, last in statements_of(code):
        text = source[code[first].start:code[last].start]
        if text.startswith('delete ') or (CALL.fullmatch(text) and not NO_CALL.match(text)):
            add(code[first], code[last], ';', 'statement')
    return found
