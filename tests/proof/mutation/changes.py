# SPDX-License-Identifier: MIT
"""Every fault that can be put into a source: small ones, such as a programmer may make."""

import hashlib
import re
from collections import namedtuple

from mutation.source import CONTROL, Source, Span

Change = namedtuple("Change", "kind span replacement")

COMPARISONS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="}
CONNECTIVES = {"&&": "||", "||": "&&"}
CALCULATIONS = {"+": "-", "-": "+", "*": "/", "/": "*", "++": "--", "--": "++", "+=": "-=", "-=": "+="}
NO_CODE = re.compile(r"static_assert|\) (const )?= 0;")  # no fault there is one of the program
NO_CALLS = CONTROL + ("return", "sizeof", "static_assert", "SIGNAL", "SLOT")


class Fault:
    """One change of one source, known by what the lines concerned were and become."""

    def __init__(self, source, change):
        text, span = source.text, change.span
        start = text.rfind("\n", 0, span.start) + 1
        end = text.find("\n", span.end)
        changed = text[start : span.start] + change.replacement + text[span.end : end]
        self.file = source.name
        self.kind = change.kind
        self.line = text.count("\n", 0, span.start) + 1
        self.last_line = text.count("\n", 0, span.end) + 1
        self.was = " ".join(text[start:end].split())
        self.becomes = " ".join(changed.split())
        self.text = text[: span.start] + change.replacement + text[span.end :]

    @property
    def key(self):
        return (self.file, self.was, self.becomes)


def faults_of(name, text):
    source = Source(name, text)
    found, seen = [], {}
    for find in (conditions, constants, calculations, rows, order, removals, arguments, results):
        for change in find(source):
            fault = Fault(source, change)
            if fault.was == fault.becomes or NO_CODE.search(fault.was):
                continue
            # Equal lines of one file are told apart by their number among these.
            seen[fault.key] = seen.get(fault.key, 0) + 1
            name = "\n".join(fault.key + (str(seen[fault.key]),))
            fault.id = hashlib.sha256(name.encode()).hexdigest()[:16]
            found.append(fault)
    return found


def replaced(source, kind, i, text):
    return Change(kind, source.span(i, i), text)


# The layout keeps blanks around binary operators, and none at templates, pointers and signs.
def is_binary(source, i):
    token = source.tokens[i]
    around = source.text[token.start - 1] + source.text[token.end]
    return source.text_at(i - 1) != "operator" and around in ("  ", " \n", "\n ")


def in_table(source, i):
    return any(table < i < source.partner[table] for table in source.tables)


def conditions(source):
    for i, token in enumerate(source.tokens):
        if token.text in ("if", "while") and source.text_at(i + 1) == "(":
            inside = source.slice(source.span(i + 2, source.partner[i + 1] - 1))
            if not re.search(r"[^=!<>]=[^=]", inside):  # a declaration cannot be negated
                whole = source.span(i + 1, source.partner[i + 1])
                yield Change("condition", whole, "(!(%s))" % inside)
        elif token.text == "?" and source.in_block(i):
            yield from swapped_choice(source, i)
        elif token.text in COMPARISONS and is_binary(source, i):
            yield replaced(source, "condition", i, COMPARISONS[token.text])
        elif token.text in CONNECTIVES and is_binary(source, i):
            yield replaced(source, "condition", i, CONNECTIVES[token.text])
        elif token.text == "!" and source.in_block(i):
            yield replaced(source, "condition", i, "")


def swapped_choice(source, i):
    colon = i
    while source.text_at(colon) != ":":
        colon = source.partner.get(colon, colon) + 1
    end = colon
    while source.text_at(end + 1) not in (";", ",", ")", "]", "}"):
        end = source.partner.get(end + 1, end + 1)
    first, second = source.span(i + 1, colon - 1), source.span(colon + 1, end)
    text = "%s : %s" % (source.slice(second), source.slice(first))
    yield Change("condition", Span(first.start, second.end), text)


def constants(source):
    for i, token in enumerate(source.tokens):
        if not in_table(source, i):
            for text in other_constants(token):
                yield replaced(source, "constant", i, text)


def other_constants(token):
    if token.kind == "number":
        if re.fullmatch(r"\d+", token.text):
            return [str(int(token.text) + 1), str(int(token.text) - 1)]
        return [token.text[:-1] + "+1" + token.text[-1]] if token.text[-1] == "f" else [token.text + "+1"]
    if token.kind == "char" and len(token.text) == 3:
        return ["'%s'" % chr(ord(token.text[1]) ^ 1)]
    if token.kind == "string":
        return [token.text[:-1] + 'x"']
    return {"true": ["false"], "false": ["true"]}.get(token.text, [])


def calculations(source):
    for i, token in enumerate(source.tokens):
        if token.text in ("++", "--") and source.in_block(i):
            yield replaced(source, "calculation", i, CALCULATIONS[token.text])
        elif token.text in CALCULATIONS and is_binary(source, i) and source.in_block(i):
            yield replaced(source, "calculation", i, CALCULATIONS[token.text])


def rows(source):
    for table in source.tables:
        elements = source.elements(table)
        for k, (first, last) in enumerate(elements):
            span = source.span(first, last)
            if k + 1 < len(elements):
                following = source.span(*elements[k + 1])
                between = source.text[span.end : following.start]
                if "//" not in between and "\n\n" not in between:
                    swapped = source.slice(following) + between + source.slice(span)
                    yield Change("row", Span(span.start, following.end), swapped)
                yield Change("row", Span(span.start, source.tokens[last + 1].end), "")
            elif k > 0:
                yield Change("row", Span(source.tokens[first - 1].start, span.end), "")
            yield from cells(source, elements, k)


def cells(source, elements, k):
    def cells_of(row):
        first, last = elements[row]
        return source.elements(first) if source.text_at(first) == "{" else [(first, last)]

    for column, (first, last) in enumerate(cells_of(k)):
        token = source.tokens[last]
        for text in other_constants(token):
            yield replaced(source, "row", last, text)
        if token.kind == "name" and token.text not in ("true", "false", "nullptr"):
            other = another(source, [cells_of(row) for row in range(len(elements))], k, column)
            if other:
                yield Change("row", source.span(first, last), other)


# What the next row that has something else in `column` has there.
def another(source, table, k, column):
    own = source.slice(source.span(*table[k][column]))
    for row in table[k + 1 :] + table[:k]:
        text = source.slice(source.span(*row[column])) if column < len(row) else own
        if text != own:
            return text
    return None


def order(source):
    for block in source.blocks:
        statements = source.statements(block)
        for one, two in zip(statements, statements[1:]):
            if one.kind != "plain" or two.kind != "plain" or is_jump(source, two):
                continue
            between = source.text[one.span.end : two.span.start]
            if "//" in between or "#" in between or source.slice(one.span) == source.slice(two.span):
                continue
            text = source.slice(two.span) + between + source.slice(one.span)
            yield Change("order", Span(one.span.start, two.span.end), text)


def is_jump(source, statement):
    return source.text_at(statement.tokens[0]) in ("return", "break", "continue")


def removals(source):
    for block in source.blocks:
        for statement in source.statements(block):
            if statement.kind == "if" or statement.kind == "plain" and not returns_value(source, statement):
                yield Change("removal", statement.span, ";")
            yield from bodies(source, statement)


def returns_value(source, statement):
    first, last = statement.tokens
    return source.text_at(first) == "return" and last > first + 1


# Statements that stand alone behind a condition.
def bodies(source, statement):
    first, last = statement.tokens
    for i in range(first, last):
        if source.text_at(i) in CONTROL and not any(
            first < b < i < source.partner[b] for b in source.blocks
        ):
            body = source.partner[i + 1] + 1
            if source.text_at(body) not in CONTROL + ("{",):
                yield Change("removal", source.span(body, source.end_of_statement(body)), ";")
        elif source.text_at(i) == "else" and source.text_at(i + 1) not in CONTROL + ("{",):
            if not any(first < b < i < source.partner[b] for b in source.blocks):
                yield Change("removal", source.span(i + 1, source.end_of_statement(i + 1)), ";")


def arguments(source):
    for i, token in enumerate(source.tokens[:-1]):
        if token.kind != "name" or token.text in NO_CALLS or source.text_at(i + 1) != "(":
            continue
        if not source.in_block(i):
            continue
        parts = [source.span(*part) for part in source.elements(i + 1)]
        for one, two in zip(parts, parts[1:]):
            if source.slice(one) == source.slice(two):
                continue
            text = source.slice(two) + source.text[one.end : two.start] + source.slice(one)
            yield Change("arguments", Span(one.start, two.end), text)


def results(source):
    for i, token in enumerate(source.tokens):
        if token.text != "return" or source.text_at(i + 1) == ";":
            continue
        span = source.span(i + 1, source.end_of_statement(i) - 1)
        value = source.slice(span)
        if value not in ("true", "false"):  # which are constants
            for text in ("!(%s)" % value, "{}", "(%s) + 1" % value):
                yield Change("result", span, text)
