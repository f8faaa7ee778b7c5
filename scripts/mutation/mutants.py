"""What can be changed in one source file: each change as offsets, its new text and words for people.

The compiler's own view of the file (libclang) says where a condition, a number or a statement begins
and ends, so that nothing is changed in comments, includes, attributes, static_asserts or the angle
brackets of templates.
"""
import bisect
import ctypes
import re
import sys
from dataclasses import dataclass

from clang.cindex import CursorKind as K, Index, TokenKind, TypeKind, conf

OTHER_OPERATORS = {
    "&&": ["||"], "||": ["&&"],
    "==": ["!="], "!=": ["=="],
    "<": ["<=", ">="], ">": [">=", "<="], "<=": ["<", ">"], ">=": [">", "<"],
    "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["*"],
    "+=": ["-="], "-=": ["+="], "*=": ["/="], "/=": ["*="], "&": ["|"], "|": ["&"],
}
COMPARISONS = {"==", "!=", "<", ">", "<=", ">="}
NOT_ENTERED = {K.STATIC_ASSERT, K.USING_DIRECTIVE, K.USING_DECLARATION, K.TYPE_ALIAS_DECL,
               K.TEMPLATE_TYPE_PARAMETER, K.TEMPLATE_NON_TYPE_PARAMETER, K.ENUM_DECL}
DECLARATIONS = {K.VAR_DECL, K.FIELD_DECL, K.PARM_DECL, K.FUNCTION_DECL, K.CXX_METHOD,
                K.FUNCTION_TEMPLATE, K.CONSTRUCTOR}
REFERENCES = {K.DECL_REF_EXPR, K.MEMBER_REF_EXPR, K.TYPE_REF, K.TEMPLATE_REF}
LOOPS_AND_BRANCHES = {K.IF_STMT, K.WHILE_STMT, K.DO_STMT, K.FOR_STMT, K.CXX_FOR_RANGE_STMT,
                      K.CASE_STMT, K.DEFAULT_STMT}
NUMBERS = {TypeKind.CHAR_U, TypeKind.UCHAR, TypeKind.USHORT, TypeKind.UINT, TypeKind.ULONG,
           TypeKind.ULONGLONG, TypeKind.CHAR_S, TypeKind.SCHAR, TypeKind.SHORT, TypeKind.INT,
           TypeKind.LONG, TypeKind.LONGLONG, TypeKind.FLOAT, TypeKind.DOUBLE, TypeKind.BOOL}

# Of these a widget, an action, an item or a painter has one each, and none looks at another: which
# is set first makes no difference.
PROPERTIES = re.compile(rb"""(?P<whose>(?:[\w.*&()]|->|\[\w*\])*(?:\.|->))?set(?P<which>
    AccessibleDescription|AccessibleName|Alignment|AllColumnsShowFocus|Attribute|AutoDefault|
    AutoFillBackground|AutoRaise|Brush|Color|ContentsMargins|EditTriggers|FixedHeight|
    FixedSize|FocusPolicy|ForegroundRole|FrameShape|HeaderHidden|HighlightSections|
    HorizontalScrollBarPolicy|IconSize|MaximumSize|ObjectName|Pen|RenderHint|RetainSizeWhenHidden|
    RootIsDecorated|SectionsClickable|SelectionBehavior|SelectionMode|Shortcut|SizeHint|SizePolicy|
    Spacing|StatusTip|TabKeyNavigation|Text|TextAlignment|TextElideMode|TextFormat|
    TextInteractionFlags|TextVisible|ToolTip|ToolTipsVisible|UniformRowHeights|
    VerticalScrollBarPolicy|WindowModality|WindowTitle|WordWrap)\((?P<what>.*)\)""", re.X | re.S)
# Their first argument is for the catalogues alone.
NOT_COMPILED = ("QT_TRANSLATE_NOOP", "QT_TRANSLATE_N_NOOP")
# Members of a JSON object stand in the order of their names.
MEMBER = re.compile(rb"(?P<whose>\w+)\.insert\((?P<what>QStringLiteral\(.*)\)", re.S)
CONNECTION = re.compile(rb"(?:QObject::)?connect\((?P<what>.*)\)", re.S)


@dataclass(frozen=True)
class Mutant:
    file: str      # below the tree's root
    start: int     # bytes
    end: int
    text: bytes    # stands from start to end in the changed file
    line: int
    line_text: str
    change: str    # "< -> <=", "removed: f(x)" …; with the line's text it names the mutant

    def applied(self, source: bytes) -> bytes:
        return source[:self.start] + self.text + source[self.end:]


def one_line(text: bytes) -> str:
    return " ".join(text.decode("utf-8", "replace").split())


def _place(location):
    """The offset in the file that is written by hand, also inside a macro's argument."""
    name, line, column, offset = ctypes.c_void_p(), ctypes.c_uint(), ctypes.c_uint(), ctypes.c_uint()
    conf.lib.clang_getFileLocation(location, ctypes.byref(name), ctypes.byref(line),
                                   ctypes.byref(column), ctypes.byref(offset))
    return offset.value


def _balanced(text: bytes) -> bool:
    bare = re.sub(rb'"(\\.|[^"\\])*"|\'(\\.|[^\'\\])+\'', b"", text)
    return all(bare.count(pair[:1]) == bare.count(pair[1:]) for pair in (b"()", b"{}", b"[]"))


def _arguments(text: bytes) -> list[bytes]:
    """Split at the commas that stand in no brackets."""
    parts, depth = [b""], 0
    for sign in re.findall(rb'"(?:\\.|[^"\\])*"|.', text, re.S):
        depth += (sign in (b"(", b"{", b"[")) - (sign in (b")", b"}", b"]"))
        if sign == b"," and depth == 0:
            parts.append(b"")
        else:
            parts[-1] += sign
    return [p.strip() for p in parts]


def _names(text: bytes, name: bytes) -> bool:
    return re.search(rb"(?<!\w)" + re.escape(name) + rb"(?!\w)", text) is not None


def order_matters(before: bytes, after: bytes) -> bool:
    """Not that of two properties or members, nor that in which two signals are listened to."""
    one, other = MEMBER.fullmatch(before), MEMBER.fullmatch(after)
    if one and other:
        return (_names(other["what"], one["whose"]) or _names(one["what"], other["whose"])
                or _arguments(one["what"])[0] == _arguments(other["what"])[0])
    one, other = CONNECTION.fullmatch(before), CONNECTION.fullmatch(after)
    if one and other:
        return _arguments(one["what"])[:2] == _arguments(other["what"])[:2]
    one, other = PROPERTIES.fullmatch(before), PROPERTIES.fullmatch(after)
    if not one or not other:
        return True
    for this, that in ((one, other), (other, one)):
        owner = (this["whose"] or b"").rstrip(b".->").lstrip(b"*&(")
        getter = this["which"][:1].lower() + this["which"][1:] + b"("
        if owner and _names(that["what"], owner) or getter in that["what"]:
            return True  # what is set is asked for in the other
    if one["whose"] != other["whose"] or one["which"] != other["which"]:
        return False
    # The same property of two columns, roles or states.
    first, second = _arguments(one["what"]), _arguments(other["what"])
    return len(first) == 1 or len(first) != len(second) or first[:-1] == second[:-1]


class _Finder:
    def __init__(self, unit, path, name, source):
        self.path, self.name, self.source = path, name, source
        self.found = {}
        self.tokens = [(t.extent.start.offset, t.kind, t.spelling)
                       for t in unit.get_tokens(extent=unit.cursor.extent)]
        self.skipped = []  # ranges in which nothing is changed
        for cursor in unit.cursor.get_children():
            if cursor.location.file and cursor.location.file.name == path:
                self.walk(cursor, None)
        self.texts()

    # -- places

    def range(self, cursor):
        start, end = _place(cursor.extent.start), _place(cursor.extent.end)
        return (start, end) if start < end and _balanced(self.source[start:end]) else None

    def tokens_between(self, start, end):
        first = bisect.bisect_left(self.tokens, start, key=lambda t: t[0])
        last = bisect.bisect_left(self.tokens, end, key=lambda t: t[0])
        return [t for t in self.tokens[first:last] if t[1] != TokenKind.COMMENT]

    # -- collecting

    def add(self, start, end, text, change):
        before = self.source[start:end]
        if before == text:
            return
        line = self.source.count(b"\n", 0, start) + 1
        first = self.source.rfind(b"\n", 0, start) + 1
        last = self.source.find(b"\n", start)
        line_text = one_line(self.source[first:last if last >= 0 else len(self.source)])
        self.found.setdefault((start, end, text), Mutant(
            self.name, start, end, text, line, line_text, change))

    def replaced(self, start, end, text):
        self.add(start, end, text,
                 f"{one_line(self.source[start:end])} -> {text.decode('utf-8', 'replace')}")

    def removed(self, cursor):
        place = self.range(cursor)
        # Without room kept ready the same happens, a little later.
        if place and not re.match(rb"[\w.]+(\.|->)reserve\(", self.source[slice(*place)]):
            self.add(*place, b"(void)0", "removed: " + one_line(self.source[slice(*place)]))

    def negated(self, cursor):
        place = self.range(cursor)
        # A lone comparison and a lone true are turned round where they stand.
        if place and not self.turned_round_alone(cursor):
            text = self.source[slice(*place)]
            self.add(*place, b"!(" + text + b")", "negated: " + one_line(text))

    def turned_round_alone(self, cursor):
        children = [c for c in cursor.get_children() if c.kind.is_expression()]
        while cursor.kind in (K.UNEXPOSED_EXPR, K.PAREN_EXPR) and len(children) == 1:
            cursor = children[0]
            children = [c for c in cursor.get_children() if c.kind.is_expression()]
        if cursor.kind == K.CXX_BOOL_LITERAL_EXPR:
            return True
        if cursor.kind == K.BINARY_OPERATOR and len(children) == 2:
            between = self.tokens_between(_place(children[0].extent.end),
                                          _place(children[1].extent.start))
            return any(spelling in COMPARISONS for _, _, spelling in between)
        return any(c.kind in REFERENCES and c.spelling in ("operator==", "operator!=")
                   for c in children)

    # -- the walk

    def walk(self, cursor, parent):
        kind = cursor.kind
        if kind in NOT_ENTERED or kind.is_attribute():
            place = (_place(cursor.extent.start), _place(cursor.extent.end))
            if kind != K.ENUM_DECL:
                self.skipped.append(place)
            return
        if self.is_never_read(cursor, parent):
            self.skipped.append((_place(cursor.extent.start), _place(cursor.extent.end)))
            return
        children = list(cursor.get_children())
        if kind in (K.IF_STMT, K.WHILE_STMT, K.DO_STMT, K.CONDITIONAL_OPERATOR):
            self.condition(cursor, children)
        if kind == K.IF_STMT:
            self.early_end(children)
        elif kind == K.RETURN_STMT and children:
            if children[0].type.get_canonical().kind == TypeKind.BOOL:
                self.negated(children[0])
        elif kind in (K.BINARY_OPERATOR, K.COMPOUND_ASSIGNMENT_OPERATOR) and len(children) == 2:
            self.operator(cursor, children)
        elif kind in REFERENCES and cursor.spelling.startswith("operator"):
            self.overloaded(cursor)
        elif kind in (K.INTEGER_LITERAL, K.FLOATING_LITERAL):
            self.number(cursor, parent)
        elif kind == K.CXX_BOOL_LITERAL_EXPR:
            place = self.range(cursor)
            word = self.source[slice(*place)] if place else b""
            if word in (b"true", b"false"):
                self.replaced(*place, b"false" if word == b"true" else b"true")
        elif kind == K.COMPOUND_STMT:
            self.statements(children)
        if kind in LOOPS_AND_BRANCHES:
            self.lone_statements(cursor, children)
        for child in children:
            # What the compiler puts between, as the conversion of a number, counts for nothing.
            self.walk(child, parent if kind == K.UNEXPOSED_EXPR and parent else cursor)

    def is_never_read(self, cursor, parent):
        """A constant that stands there for another tool; what a function leaves unread has been done."""
        if cursor.kind != K.VAR_DECL or (parent is not None and parent.kind != K.NAMESPACE):
            return False
        start, name = _place(cursor.extent.start), _place(cursor.location)
        attribute = rb"\[\[maybe_unused\]\]"
        return bool(re.search(attribute + rb"\s*\Z", self.source[:start]) or
                    re.match(attribute, self.source[start:name]))

    def condition(self, cursor, children):
        if cursor.kind == K.DO_STMT:
            children = children[::-1]
        for child in children:
            if child.kind in (K.DECL_STMT, K.VAR_DECL):
                if child.kind == K.VAR_DECL:
                    return
                continue
            start = _place(cursor.extent.start)
            head = self.source[start:start + 14]
            if child.kind.is_expression() and b"constexpr" not in head:
                self.negated(child)
            return

    def early_end(self, children):
        """Without an else, what leaves the function or the loop is taken out."""
        bodies = [c for c in children if c.kind.is_statement() and c.kind != K.DECL_STMT]
        if len(bodies) != 1:
            return
        body = bodies[0]
        inner = list(body.get_children()) if body.kind == K.COMPOUND_STMT else [body]
        if inner and inner[-1].kind in (K.RETURN_STMT, K.BREAK_STMT, K.CONTINUE_STMT):
            self.removed(inner[-1])

    def operator(self, cursor, children):
        first = children[0].extent.end
        between = self.tokens_between(_place(first), _place(children[1].extent.start))
        for offset, _, spelling in between:
            others = OTHER_OPERATORS.get(spelling)
            if not others:
                continue
            of_numbers = cursor.type.get_canonical().kind in NUMBERS
            for other in others if of_numbers or spelling in COMPARISONS else []:
                self.replaced(offset, offset + len(spelling), other.encode())
            return

    def overloaded(self, cursor):
        spelling = cursor.spelling.removeprefix("operator")
        offset = _place(cursor.location)
        index = bisect.bisect_left(self.tokens, offset, key=lambda t: t[0])
        written = self.tokens[index][2] if self.tokens[index][0] == offset else ""
        function = cursor.type
        if spelling not in COMPARISONS and (not function.kind == TypeKind.FUNCTIONPROTO
                                            or not len(function.argument_types())
                                            or "tring" in function.get_result().spelling):
            return  # the sign of a pointer, and texts have no other sign to take
        # A written != may be the operator == of two values.
        if spelling in COMPARISONS and written in COMPARISONS or written == spelling:
            for other in OTHER_OPERATORS.get(written, []) if written not in "&|" else []:
                self.replaced(offset, offset + len(written), other.encode())

    def number(self, cursor, parent):
        if parent is not None and parent.kind in REFERENCES:
            return  # an argument of a template
        start = _place(cursor.extent.start)
        if parent is not None and parent.kind in DECLARATIONS:
            if start < _place(parent.location):
                return
        index = bisect.bisect_left(self.tokens, start, key=lambda t: t[0])
        before, (_, kind, text), after = self.tokens[index - 1:index + 2]
        if kind != TokenKind.LITERAL or before[2] in ("<", ",") and after[2] == ">":
            return
        parts = re.fullmatch(r"(0[xX][0-9a-fA-F']+|\d[\d']*(?:\.\d*)?)(\D*)", text)
        if not parts:
            return
        digits, ending = parts[1].replace("'", ""), parts[2]
        if "." in digits:
            value = float(digits)
            others = [value + 1] + ([value - 1] if value >= 1 else [])
        else:
            value = int(digits, 0 if digits[:2].lower() == "0x" else 8 if digits[0] == "0" else 10)
            others = [value + 1] + ([value - 1] if value > 0 else [])
        for other in others:
            self.replaced(start, start + len(text), f"{other}{ending}".encode())

    @staticmethod
    def acts(cursor):
        """An expression that stands as a statement."""
        return cursor.kind.is_expression() and cursor.kind != K.LAMBDA_EXPR

    def calls(self, cursor):
        while cursor.kind in (K.UNEXPOSED_EXPR, K.CSTYLE_CAST_EXPR):
            inner = [c for c in cursor.get_children() if c.kind.is_expression()]
            if len(inner) != 1:
                return False
            cursor = inner[0]
        return cursor.kind == K.CALL_EXPR and cursor.spelling != "operator="

    def statements(self, children):
        for child in children:
            if self.acts(child):
                self.removed(child)
        for first, second in zip(children, children[1:]):
            if self.acts(first) and self.acts(second) and self.calls(first) and self.calls(second):
                self.swapped(first, second)

    def lone_statements(self, cursor, children):
        # Of an if or a loop the last children are bodies; a condition is never one of them.
        if cursor.kind == K.IF_STMT:
            bodies = children[1:]
        elif cursor.kind == K.DO_STMT:
            bodies = children[:1]
        else:
            bodies = children[-1:]
        for body in bodies:
            place = self.range(body)
            if place and self.acts(body) and self.source[place[1]:].lstrip()[:1] == b";":
                self.removed(body)

    def swapped(self, first, second):
        a, b = self.range(first), self.range(second)
        if a and b and a[1] <= b[0]:
            before, after = self.source[slice(*a)], self.source[slice(*b)]
            if before != after and order_matters(before, after):
                self.add(a[0], b[1], after + self.source[a[1]:b[0]] + before,
                         f"swapped: {one_line(before)} and {one_line(after)}")

    def texts(self):
        before, previous = "", ""
        for offset, kind, spelling in self.tokens:
            plain = re.fullmatch(r'((?:u8|u|U|L)?)"(.*)"(\w*)', spelling, re.DOTALL)
            letter = re.fullmatch(r"((?:u8|u|U|L)?)'(.+)'", spelling)
            line = self.source[self.source.rfind(b"\n", 0, offset) + 1:offset].lstrip()
            if (kind == TokenKind.LITERAL and not line.startswith(b"#") and previous != "extern"
                    and not (before in NOT_COMPILED and previous == "(")
                    and not any(a <= offset < b for a, b in self.skipped)):
                size = len(spelling.encode())
                if plain:
                    self.replaced(offset, offset + size,
                                  f'{plain[1]}"{plain[2]}~"{plain[3]}'.encode())
                elif letter:
                    other = "~" if letter[2] != "~" else "^"
                    self.replaced(offset, offset + size, f"{letter[1]}'{other}'".encode())
            if kind != TokenKind.COMMENT:
                before, previous = previous, spelling


def mutants_of(path: str, name: str, arguments: list[str]) -> list[Mutant]:
    """All changes of the file in the order of its lines; `arguments` are the compiler's."""
    with open(path, "rb") as file:
        source = file.read()
    unit = Index.create().parse(path, args=arguments)
    faults = [d for d in unit.diagnostics if d.severity >= 3]
    if any(d.severity > 3 for d in faults):
        raise RuntimeError(f"{name}: libclang cannot read it: {faults[0].spelling}")
    if faults:  # a statement that it does not understand has no mutants
        print(f"mutate: {name}: not wholly read: {faults[0].spelling}", file=sys.stderr)
    found = sorted(_Finder(unit, path, name, source).found.values(),
                   key=lambda m: (m.start, m.end, m.text))
    # The same change twice in a line: the second is told apart by its number.
    seen, numbered = {}, []
    for mutant in found:
        key = (mutant.line, mutant.change)
        seen[key] = seen.get(key, 0) + 1
        if seen[key] > 1:
            mutant = Mutant(**{**mutant.__dict__, "change": f"{mutant.change} #{seen[key]}"})
        numbered.append(mutant)
    return numbered
