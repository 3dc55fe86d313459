"""What a mutant changes: for a source file, every single change that a test should notice."""

import re
from dataclasses import dataclass


@dataclass(frozen=True)
class Mutant:
    path: str
    start: int  # the characters that are replaced
    end: int
    text: str  # by these
    kind: str
    line: int

    def apply(self, source):
        return source[: self.start] + self.text + source[self.end :]

    def describe(self, source):
        begin = source.rfind("\n", 0, self.start) + 1
        end = source.find("\n", self.end)
        before = source[begin : end if end >= 0 else len(source)]
        changed = self.apply(source)
        after = changed[begin : changed.find("\n", self.start + len(self.text))]
        shown = "%s:%d (%s)\n  - %s" % (self.path, self.line, self.kind, "\n    ".join(before.split("\n")))
        return shown + ("\n  + %s" % "\n    ".join(after.split("\n")) if after.strip() else "")


# What the rest must leave alone: comments, texts, characters, directives.
OPAQUE = re.compile(
    r'//[^\n]*|/\*.*?\*/|R"\((?:.|\n)*?\)"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\'|^[ \t]*#(?:\\\n|[^\n])*',
    re.DOTALL | re.MULTILINE,
)

COMPARISONS = {"==": "!=", "!=": "==", "<=": "<", ">=": ">", "<": "<=", ">": ">=", "&&": "||", "||": "&&"}


def blank(source, keep_texts=False):
    """The source with all that is no code as blanks, so that positions stay."""

    def replace(match):
        if keep_texts and match.group().startswith('"'):
            return match.group()
        return re.sub(r"[^\n]", " ", match.group())

    return OPAQUE.sub(replace, source)


def commands_by_controller(definitions):
    """Each command's name with another one of its controller."""
    others = {}
    for text in definitions:
        names = re.findall(r"^COMMAND\((\w+)", text, re.MULTILINE)
        for i, name in enumerate(names):
            if len(names) > 1:
                others[name] = names[(i + 1) % len(names)]
    return others


class Finder:
    def __init__(self, path, source, other_command):
        self.path = path
        self.source = source
        self.code = blank(source)
        self.with_texts = blank(source, keep_texts=True)
        self.other_command = other_command
        self.found = []

    def add(self, start, end, text, kind):
        if self.source[start:end] != text:
            line = self.source.count("\n", 0, start) + 1
            self.found.append(Mutant(self.path, start, end, text, kind, line))

    def each(self, pattern, flags=re.MULTILINE, texts=False):
        return re.finditer(pattern, self.with_texts if texts else self.code, flags)

    def all(self):
        if self.path.endswith(".def"):
            self.rows()
            return self.found
        self.codes()
        self.overloads()
        self.arguments()
        self.comparisons()
        self.constants()
        self.statements()
        self.order()
        self.log_lines()
        self.locks()
        return self.found

    def rows(self):
        for match in self.each(r"^COMMAND\(\w+,\s*0x([0-9A-Fa-f]+)"):
            self.add(match.start(1), match.end(1), "%X" % (int(match.group(1), 16) ^ 1), "code")
        for match in self.each(r'"([^"\n]*)"', texts=True):
            words = {"i32": "bool", "bool": "i32", "s16": "i32"}
            for word in re.finditer(r"\b(i32|bool|s16)\b", match.group(1)):
                at = match.start(1) + word.start()
                self.add(at, at + len(word.group()), words[word.group()], "layout")
            swap = re.search(r"(\w+ )(\w+)(, \w+ )(\w+)", match.group(1))
            if swap:
                at = match.start(1) + swap.start()
                text = swap[1] + swap[4] + swap[3] + swap[2]
                self.add(at, at + len(text), text, "names")

    def codes(self):
        for match in self.each(r"\bCMD_\w+\b"):
            if match.group() in self.other_command:
                self.add(match.start(), match.end(), self.other_command[match.group()], "code")

    def overloads(self):
        for match in self.each(r"\bstatic_cast<int>\((\w+)\)"):
            self.add(match.start(), match.end(), match[1], "overload")
        for match in self.each(r"\bexeCmdSet_(Int|Bool)\b"):
            self.add(match.start(1), match.end(1), "Bool" if match[1] == "Int" else "Int", "overload")

    def arguments(self):
        for match in self.each(r"(?<!METHOD)[(,]\s*(\w+), (\w+)(?=\s*[,)])"):
            if match[1] not in ("int", "bool", "const", "void", "char", "float"):
                self.add(match.start(1), match.end(2), match[2] + ", " + match[1], "arguments")

    def comparisons(self):
        for match in self.each(r"(?<= )(==|!=|<=|>=|<|>|&&|\|\|)(?= )"):
            self.add(match.start(), match.end(), COMPARISONS[match.group()], "comparison")
        for match in self.each(r"(?<=[(\s])!(?=[\w(])"):
            self.add(match.start(), match.end(), "", "comparison")

    def constants(self):
        for match in self.each(r"\b(true|false)\b"):
            self.add(match.start(), match.end(), "false" if match[0] == "true" else "true", "constant")
        for match in self.each(r"(?<![\w.])-1\b"):
            self.add(match.start(), match.end(), "0", "constant")
        for match in self.each(r"(?<![\w.\-'])(?<!\) = )(?<!const = )(\d+)(?=u?\b)(?![\w.']*[xX'])"):
            self.add(match.start(), match.end(), str(int(match[0]) + 1), "constant")
        for match in self.each(r"\breturn (\w+);"):
            if match[1] not in ("true", "false") and not match[1].isdigit():
                self.add(match.start(1), match.end(1), "{}", "result")

    def statements(self):
        """A call or an assignment that stands alone; declarations don't."""
        for match in self.each(r"^[ \t]*((?:[\w:]+(?:\[\w+\])?(?:\.|->))*\w+(?:\([^;{}]*\)| [+|&-]?= [^;{}]*|\+\+));"):
            before = self.code[: match.start(1)].rstrip()[-1:]
            if before in ";{})" and not match[1].startswith(("return", "TLOG", "ALOG")):
                self.add(match.start(1), match.end() , ";", "statement")

    def order(self):
        pattern = r"^([^\n;]*(?:\.|->)(?:read|write)[^\n;]*;)\n([^\n;]*(?:\.|->)(?:read|write)[^\n;]*;)$"
        for match in self.each("(?=" + pattern + ")"):
            first, second = self.source[slice(*match.span(1))], self.source[slice(*match.span(2))]
            declares = re.match(r"\s*(?:const )?\w+ \w+ = ", first)
            if not declares:
                self.add(match.start(1), match.end(2), second + "\n" + first, "order")

    def log_lines(self):
        for match in self.each(r'\b[TA]LOG(\w)(?:_AT)?\(\s*(?:(\d+),\s*)?"', texts=True):
            other = {"D": "I", "I": "D", "W": "E", "E": "W", "V": "D"}.get(match[1])
            if other:
                self.add(match.start(1), match.end(1), other, "log level")
            if match[2]:
                self.add(match.start(2), match.end(2), str(int(match[2]) + 1), "log line")
            self.add(match.end(), match.end(), "X", "log text")

    def locks(self):
        pattern = r"^[ \t]*((?:AutoMutex|(?:const )?std::(?:lock_guard|scoped_lock|unique_lock)(?:<[^;]*?>)?) \w+[({][^;]*[)}]);"
        for match in self.each(pattern):
            if "unique_lock" not in match[1]:
                self.add(match.start(1), match.end(), ";", "lock")


def mutants_of(path, source, other_command):
    return Finder(path, source, other_command).all()
