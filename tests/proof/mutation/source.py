# SPDX-License-Identifier: MIT
"""A C++ source as tokens, with its brackets, tables and statements: as much of it as is needed to
change it in places. It is no parser: a compiler has the last word on every change."""

import re
from collections import namedtuple

Token = namedtuple("Token", "kind text start end")
Span = namedtuple("Span", "start end")  # characters
Statement = namedtuple("Statement", "span tokens kind")  # kind: "plain", "if" or "other"

TOKEN = re.compile(
    r"""(?P<comment>//[^\n]*|/\*.*?\*/)
      | (?P<directive>^[ \t]*\#(?:\\\n|[^\n])*)
      | (?P<string>"(?:\\.|[^"\\\n])*")
      | (?P<char>'(?:\\.|[^'\\\n])*')
      | (?P<number>\d[\w.]*)
      | (?P<name>[A-Za-z_]\w*)
      | (?P<operator>::|->|\+\+|--|<<=|>>=|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|[^\s\w])
      | (?P<space>\s+)""",
    re.VERBOSE | re.MULTILINE | re.DOTALL,
)
CLOSING = {"(": ")", "[": "]", "{": "}"}
CONTROL = ("if", "for", "while", "switch")


class Source:
    def __init__(self, name, text):
        self.name = name
        self.text = text
        self.tokens = [
            Token(match.lastgroup, match.group(), match.start(), match.end())
            for match in TOKEN.finditer(text)
            if match.lastgroup not in ("comment", "directive", "space")
        ]
        self.partner = self._match_brackets()
        self.tables = [i for i in self._braces() if self._is_table(i)]
        self.blocks = self._find_blocks()

    def _match_brackets(self):
        partner, open_brackets = {}, []
        for i, token in enumerate(self.tokens):
            if token.kind != "operator":
                continue
            if token.text in CLOSING:
                open_brackets.append(i)
            elif token.text in CLOSING.values():
                partner[open_brackets.pop()] = i
        return partner

    def _braces(self):
        return [i for i in self.partner if self.tokens[i].text == "{"]

    def text_at(self, i):
        return self.tokens[i].text if 0 <= i < len(self.tokens) else ""

    def _is_table(self, brace):
        return self.text_at(brace - 1) == "=" and self.text_at(brace - 2) == "]"

    # A block is what follows a parameter list, a condition, `else` or a statement of a block.
    def _find_blocks(self):
        blocks = set()
        for i in sorted(self._braces()):
            before = self.text_at(i - 1)
            if before in (")", "else", "do", "const", "override"):
                blocks.add(i)
            elif before in (";", "{", "}") and any(b < i < self.partner[b] for b in blocks):
                blocks.add(i)
        return sorted(blocks)

    def in_block(self, i):
        return any(b < i < self.partner[b] for b in self.blocks)

    def span(self, first, last):
        return Span(self.tokens[first].start, self.tokens[last].end)

    def slice(self, span):
        return self.text[span.start : span.end]

    # The parts between the commas directly inside the bracket at `i`, as (first, last) tokens.
    def elements(self, i):
        parts, first = [], i + 1
        j = first
        while j < self.partner[i]:
            if j in self.partner:
                j = self.partner[j]
            elif self.tokens[j].text == ",":
                parts.append((first, j - 1))
                first = j + 1
            j += 1
        if first < self.partner[i]:
            parts.append((first, self.partner[i] - 1))
        return [part for part in parts if part[0] <= part[1]]

    # The statements of a block, without those inside them.
    def statements(self, block):
        found, i = [], block + 1
        while i < self.partner[block]:
            first = i
            if self.text_at(i) in ("case", "default"):
                while self.text_at(i) != ":":
                    i += 1
                found.append(Statement(self.span(first, i), (first, i), "other"))
                i += 1
                continue
            i = self.end_of_statement(i) + 1
            if self.text_at(first) == "if":
                kind = "if"
            elif self.text_at(first) in CONTROL + ("{", "do") or self._is_declaration(first):
                kind = "other"
            else:
                kind = "plain"
            found.append(Statement(self.span(first, i - 1), (first, i - 1), kind))
        return found

    def end_of_statement(self, i):
        if self.text_at(i) == "{":
            return self.partner[i]
        if self.text_at(i) in CONTROL:
            end = self.end_of_statement(self.partner[i + 1] + 1)
            while self.text_at(end + 1) == "else":
                end = self.end_of_statement(end + 2)
            return end
        while self.text_at(i) != ";":
            i = self.partner.get(i, i) + 1
        return i

    # Two names in a row, as in `const int x`, `QList<int> y` and `Type *z`.
    def _is_declaration(self, i):
        if self.text_at(i) in ("return", "delete", "throw", "Q_EMIT", "new"):
            return False
        while self.tokens[i].kind == "name" and self.text_at(i + 1) == "::":
            i += 2
        i += 1
        if self.text_at(i) == "<":
            while self.text_at(i) not in (">", ">>", ";"):
                i += 1
            i += 1
        while self.text_at(i) in ("*", "&"):
            i += 1
        return self.tokens[i].kind == "name"
