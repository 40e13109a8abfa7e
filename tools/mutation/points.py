"""Finds the places of a C++ source where a small mistake could be made, with libclang.

Only bodies of functions that run: no templates, no constant expressions, no case labels, nothing that a macro wrote.
Nor calls that do nothing: an overridden handler calls Qt's by good custom, but many of Qt's have no body.
"""

import dataclasses
import re
from ctypes import byref, c_uint

from clang.cindex import CursorKind, Index, TypeKind, conf

FUNCTIONS = {CursorKind.FUNCTION_DECL, CursorKind.CXX_METHOD, CursorKind.CONSTRUCTOR, CursorKind.DESTRUCTOR,
             CursorKind.CONVERSION_FUNCTION}
SCOPES = {CursorKind.TRANSLATION_UNIT, CursorKind.NAMESPACE, CursorKind.CLASS_DECL, CursorKind.STRUCT_DECL,
          CursorKind.LINKAGE_SPEC, CursorKind.UNEXPOSED_DECL}
SKIPPED = {CursorKind.PARM_DECL, CursorKind.FUNCTION_TEMPLATE, CursorKind.CLASS_TEMPLATE, CursorKind.TYPE_REF,
           CursorKind.STATIC_ASSERT}
CONDITIONS = {CursorKind.IF_STMT: 0, CursorKind.WHILE_STMT: 0, CursorKind.CONDITIONAL_OPERATOR: 0, CursorKind.DO_STMT: 1}
STATEMENTS = {CursorKind.CALL_EXPR, CursorKind.BINARY_OPERATOR, CursorKind.COMPOUND_ASSIGNMENT_OPERATOR,
              CursorKind.UNARY_OPERATOR, CursorKind.UNEXPOSED_EXPR}
WHOLE_NUMBERS = {TypeKind.INT, TypeKind.UINT, TypeKind.LONG, TypeKind.ULONG, TypeKind.LONGLONG, TypeKind.ULONGLONG,
                 TypeKind.SHORT, TypeKind.USHORT, TypeKind.DOUBLE, TypeKind.FLOAT}

EMPTY_HANDLERS = {
    "QWidget": {"enterEvent", "leaveEvent", "moveEvent", "resizeEvent", "paintEvent", "showEvent", "hideEvent"},
    "QObject": {"childEvent", "customEvent", "timerEvent"},
}

SWAPS = {
    "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"], "==": ["!="], "!=": ["=="],
    "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["*"],
    "+=": ["-="], "-=": ["+="], "*=": ["/="], "/=": ["*="],
    "&&": ["||"], "||": ["&&"],
}
COMPARISONS = {"<", "<=", ">", ">=", "==", "!=", "&&", "||"}


@dataclasses.dataclass(frozen=True, order=True)
class Point:
    """A change of the bytes start..end of a file; `mutated` is the expression instead, "" removes the statement."""
    file: str
    line: int
    start: int
    end: int
    kind: str
    original: str
    mutated: str

    @property
    def last_line(self):
        return self.line + self.original.count("\n")

    def __str__(self):
        original = " ".join(self.original.split())
        return f"{self.file}:{self.line}: {original} → {' '.join(self.mutated.split()) or '(removed)'}"


def comes_from_macro(cursor):
    """Whether the text of the expression stands elsewhere than the expression."""
    offset = c_uint()
    for place in (cursor.extent.start, cursor.extent.end):
        conf.lib.clang_getSpellingLocation(place, None, None, None, byref(offset))
        if offset.value != place.offset:
            return True
    return False


def does_nothing(statement):
    """Whether it calls a handler that is known to be empty, and by its class, so that no other is meant."""
    called = statement.referenced
    if statement.kind != CursorKind.CALL_EXPR or called is None or called.semantic_parent is None:
        return False
    by_class = any(token.spelling == "::" for token in statement.get_tokens())
    return by_class and called.spelling in EMPTY_HANDLERS.get(called.semantic_parent.spelling, ())


class Collector:
    def __init__(self, root, files):
        self._root = root
        self._texts = {str(root / file): (root / file).read_bytes() for file in files}
        self._precompiled = []
        self.points = set()

    def precompile(self, header, arguments, folder):
        """Reads a large header once instead of for each source."""
        source = folder / "precompiled.h"
        source.write_text(f"#include {header}\n")
        unit = Index.create().parse(str(source), ["-xc++-header", *arguments])
        unit.save(str(source.with_suffix(".pch")))
        self._precompiled = ["-include-pch", str(source.with_suffix(".pch"))]

    def collect(self, source, arguments):
        unit = Index.create().parse(str(source), [*arguments, *self._precompiled])
        for problem in unit.diagnostics:
            if problem.severity >= problem.Error:
                raise SystemExit(f"libclang cannot read {source}: {problem}")
        self._visit_scope(unit.cursor)

    # Where a cursor stands

    def _path(self, cursor):
        return cursor.location.file.name if cursor.location.file else ""

    def _is_ours(self, cursor):
        return self._path(cursor) in self._texts

    def _span(self, cursor):
        return cursor.extent.start.offset, cursor.extent.end.offset

    def _text(self, cursor):
        start, end = self._span(cursor)
        return self._texts[self._path(cursor)][start:end].decode()

    def _text_between(self, left, right):
        return self._texts[self._path(left)][left.extent.end.offset:right.extent.start.offset].decode().strip()

    # The walk

    def _visit_scope(self, scope):
        for cursor in scope.get_children():
            if scope.kind == CursorKind.TRANSLATION_UNIT and not self._is_ours(cursor):
                continue
            if cursor.kind in SCOPES:
                self._visit_scope(cursor)
            elif cursor.kind in FUNCTIONS and cursor.is_definition():
                self._visit_function(cursor)

    def _visit_function(self, function):
        body = [c for c in function.get_children() if c.kind == CursorKind.COMPOUND_STMT]
        if not body or not self._is_ours(body[-1]):
            return
        head = self._texts[self._path(function)][function.extent.start.offset:body[-1].extent.start.offset]
        if b"constexpr" not in head and b"= default" not in head:
            for child in function.get_children():
                self._visit(child)

    def _visit(self, cursor):
        if cursor.kind in SKIPPED:
            return
        if cursor.kind == CursorKind.DECL_STMT and re.match(r"(static\s+)?constexpr\b", self._text(cursor)):
            return
        children = list(cursor.get_children())
        if cursor.kind == CursorKind.CASE_STMT:
            children = children[1:]
        self._consider_operator(cursor, children)
        self._consider_literal(cursor)
        self._consider_condition(cursor, children)
        self._consider_result(cursor, children)
        self._consider_statements(cursor, children)
        for child in children:
            self._visit(child)

    # Kinds of mistakes

    def _consider_operator(self, cursor, children):
        if cursor.kind == CursorKind.UNARY_OPERATOR:
            self._consider_unary(cursor)
            return
        overloaded = cursor.kind == CursorKind.CALL_EXPR and cursor.spelling.startswith("operator")
        plain = cursor.kind in (CursorKind.BINARY_OPERATOR, CursorKind.COMPOUND_ASSIGNMENT_OPERATOR)
        if not (plain or overloaded) or len(children) < 2:
            return
        left, right = children[0], children[-1]
        operator = self._text_between(left, right)
        if left.extent.start != cursor.extent.start or right.extent.end != cursor.extent.end:
            return
        for swap in SWAPS.get(operator, []):
            self._add(cursor, f"{operator} → {swap}", f"({self._text(left)}) {swap} ({self._text(right)})")

    def _consider_unary(self, cursor):
        text = self._text(cursor)
        for operator, swap in (("++", "--"), ("--", "++")):
            if text.startswith(operator):
                self._add(cursor, f"{operator} → {swap}", swap + text[2:])
            elif text.endswith(operator):
                self._add(cursor, f"{operator} → {swap}", text[:-2] + swap)
        if text.startswith("!"):
            self._add(cursor, "! dropped", f"bool({text[1:]})")
        elif re.match(r"-[^-]", text):
            self._add(cursor, "sign dropped", text[1:])

    def _consider_literal(self, cursor):
        if cursor.kind == CursorKind.CXX_BOOL_LITERAL_EXPR:
            flipped = {"true": "false", "false": "true"}.get(self._text(cursor))
            if flipped:
                self._add(cursor, "flipped", flipped)
        elif cursor.kind in (CursorKind.INTEGER_LITERAL, CursorKind.FLOATING_LITERAL):
            text = self._text(cursor)
            if re.match(r"[0-9]", text):
                for step in ("+ 1", "- 1"):
                    self._add(cursor, step, f"{text} {step}")

    def _consider_condition(self, cursor, children):
        index = CONDITIONS.get(cursor.kind)
        if index is None or not children[index].kind.is_expression():
            return
        condition = children[index]
        # A comparison is negated by its operator.
        parts = list(condition.get_children())
        compared = len(parts) > 1 and self._text_between(parts[0], parts[-1]) in COMPARISONS
        if not compared and not self._text(condition).startswith("!"):
            self._add(condition, "negated", f"!({self._text(condition)})", as_bool=True)

    def _consider_result(self, cursor, children):
        if cursor.kind != CursorKind.RETURN_STMT or not children:
            return
        result = children[0]
        kind = result.type.get_canonical().kind
        text = self._text(result)
        if kind in WHOLE_NUMBERS and not re.fullmatch(r"[0-9.]+", text):
            self._add(result, "result + 1", f"({text}) + 1")
        elif kind == TypeKind.BOOL and text not in ("true", "false") and not text.startswith("!"):
            self._add(result, "result negated", f"!({text})", as_bool=True)

    def _consider_statements(self, cursor, children):
        if cursor.kind == CursorKind.COMPOUND_STMT:
            statements = children
        elif cursor.kind in (CursorKind.IF_STMT, CursorKind.WHILE_STMT):
            statements = children[1:]
        elif cursor.kind in (CursorKind.FOR_STMT, CursorKind.CXX_FOR_RANGE_STMT):
            statements = children[-1:]
        elif cursor.kind in (CursorKind.CASE_STMT, CursorKind.DEFAULT_STMT):
            statements = children[-1:]
        else:
            return
        for statement in statements:
            if statement.kind in STATEMENTS and not does_nothing(statement):
                self._add(statement, "removed", "")

    def _add(self, cursor, kind, mutated, as_bool=False):
        path = self._path(cursor)
        start, end = self._span(cursor)
        original = self._text(cursor)
        if path not in self._texts or comes_from_macro(cursor):
            return
        if "\n" in mutated and "//" in mutated or original.startswith("Q_"):
            return
        if as_bool:
            original = f"bool({original})"
        line = self._texts[path].count(b"\n", 0, start) + 1
        file = path[len(str(self._root)) + 1:]
        self.points.add(Point(file, line, start, end, kind, original, " ".join(mutated.split())))
