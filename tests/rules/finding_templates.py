#!/usr/bin/env python3
"""Finds the message template of every place that reports a finding.

Reads the sources of the model repository and the parser, finds each call
that reports a finding (checkThrowException, report, reportSetterResult,
say, and the records handed to addRecord) and resolves its format argument
to the template text: a literal, a named constant of the same file, a
function that returns literals, a field of a text table, or either side of
a conditional. A call whose format is only passed on (the reporting chain
itself) is skipped; a call whose format cannot be resolved is an error, so a
new way of reporting must be taught here before it can pass.

    finding_templates.py SOURCE_DIR [--rules RULES_FILE]

Without --rules it prints "level<TAB>template<TAB>file:line" for every
template found. With --rules (the output of `zef_model_validator
--list-rules`: "id<TAB>severity<TAB>template" lines) it checks that every
template found is the template of exactly one rule, of the severity the call
reports, and that every rule is reported somewhere; it prints what is wrong
and exits 1, else exits 0.
"""

import glob
import os
import re
import sys

# Texts put together from pieces rather than formatted from one template:
# the file, a piece of the call, and the templates the pieces can make.
COMPOSED = [
    ("ModelRepositoryValidate.cpp", "text.c_str()", "error", [
        "Mom %s not correct: The namespace is not set.",
        "Mom %s not correct: The namespacePrefix is not set.",
        "Mom %s not correct: The namespace is not set. The namespacePrefix is not set.",
    ]),
    ("ModelRepositoryValidate.cpp", "text.c_str()", "warning", [
        "String restriction length min (%lld) > max (%lld) for ddt (%s)",
        "Numeric restriction range min (%lld) > max (%lld) for ddt (%s)",
    ]),
]

# Functions that take finding formats as arguments and report them: the
# place of each such argument and the level it is reported at. Their
# templates are resolved where these functions are called.
# A name given as "file:function" counts in that file only.
FORWARDERS = {
    "addRecord": [(2, "error"), (3, "error"), (4, "error")],
    "readRelationshipName": [(3, "warning"), (4, "warning")],
    "readNameAttribute": [(2, "warning"), (3, "warning")],
    # the texts of the records that addRecord finds incomplete
    "ModelRepository.cpp:format": [(0, "error")],
}

# Format arguments that only pass on a format received by the enclosing
# function (one of the reporting functions or of FORWARDERS).
PASSED_ON = {
    "format",
    "result == ZefAlreadyExists ? alreadySetFormat : failedFormat",
    "render(text, args...)",
    "nullText",
    "incompleteText(*record).c_str()",
    "duplicateFormat",
    "alreadySetFormat",
    "failedFormat",
}

LEVELS = {
    "3": "error", "4": "warning",
    "ZEF_LOG_LEVEL_ERROR": "error", "ZEF_LOG_LEVEL_WARNING": "warning",
    "levelError": "error", "levelWarning": "warning",
}

REPORTING_CALLS = ("checkThrowException", "vcheckThrowException", "report", "reportAt", "reportSetterResult",
                   "say") + tuple(
    sorted(set(name.split(":")[-1] for name in FORWARDERS)))


def strip_comments(text):
    """The text with comments blanked out (line numbers kept)."""
    out = []
    i = 0
    n = len(text)
    while i < n:
        if text.startswith("//", i):
            j = text.find("\n", i)
            i = n if j < 0 else j
            continue
        if text.startswith("/*", i):
            j = text.find("*/", i)
            j = n if j < 0 else j + 2
            out.append("\n" * text.count("\n", i, j))
            i = j
            continue
        c = text[i]
        if c in "\"'":
            j = skip_quoted(text, i)
            out.append(text[i:j])
            i = j
            continue
        out.append(c)
        i += 1
    return "".join(out)


def skip_quoted(text, i):
    quote = text[i]
    j = i + 1
    while text[j] != quote:
        if text[j] == "\\":
            j += 1
        j += 1
    return j + 1


def split_args(text, open_paren):
    """The comma-separated arguments of the parenthesis at open_paren."""
    depth = 0
    args = []
    current = []
    i = open_paren
    while i < len(text):
        c = text[i]
        if c in "\"'":
            j = skip_quoted(text, i)
            current.append(text[i:j])
            i = j
            continue
        if c in "([{":
            depth += 1
            if depth == 1:
                i += 1
                continue
        elif c in ")]}":
            depth -= 1
            if depth == 0:
                args.append("".join(current).strip())
                return [squeeze(a) for a in args if a != ""]
        elif c == "," and depth == 1:
            args.append("".join(current).strip())
            current = []
            i += 1
            continue
        current.append(c)
        i += 1
    raise ValueError("unbalanced call")


def squeeze(expr):
    """The expression with each run of white space outside literals made one blank."""
    out = []
    i = 0
    while i < len(expr):
        if expr[i] in "\"'":
            j = skip_quoted(expr, i)
            out.append(expr[i:j])
            i = j
        elif expr[i].isspace():
            while i < len(expr) and expr[i].isspace():
                i += 1
            out.append(" ")
        else:
            out.append(expr[i])
            i += 1
    return "".join(out).strip()


LITERAL = re.compile(r'"((?:[^"\\]|\\.)*)"')


def unescape(body):
    return bytes(body, "utf-8").decode("unicode_escape")


def literal_value(expr):
    """The value of an expression made only of adjacent string literals."""
    expr = expr.strip()
    if not expr.startswith('"'):
        return None
    rest = LITERAL.sub("", expr).strip()
    if rest:
        return None
    return "".join(unescape(m.group(1)) for m in LITERAL.finditer(expr))


class SourceFile:
    def __init__(self, path):
        self.path = path
        self.name = os.path.basename(path)
        self.text = strip_comments(open(path, encoding="utf-8").read())

    def line_of(self, offset):
        return self.text.count("\n", 0, offset) + 1

    def constant(self, name):
        """The literal a named constant of the file is defined as."""
        m = re.search(r"\b" + re.escape(name) + r"\s*=\s*((?:\"(?:[^\"\\]|\\.)*\"\s*)+);", self.text)
        return literal_value(m.group(1)) if m else None

    def returned_literals(self, function):
        """The literals a function of the file returns."""
        m = re.search(r"\b" + re.escape(function) + r"\s*\([^)]*\)\s*\{", self.text)
        if not m:
            return None
        depth = 0
        i = m.end() - 1
        start = i
        while True:
            if self.text[i] in "\"'":
                i = skip_quoted(self.text, i)
                continue
            if self.text[i] == "{":
                depth += 1
            elif self.text[i] == "}":
                depth -= 1
                if depth == 0:
                    break
            i += 1
        body = self.text[start:i]
        return [literal_value(m.group(1)) for m in re.finditer(r"return\s+((?:\"(?:[^\"\\]|\\.)*\"\s*)+);", body)]

    def table_field(self, field):
        """The literals a field of the file's text tables holds: the field's
        place in its struct, then that element of every table of the type."""
        for struct in re.finditer(r"struct\s+(\w+)\s*\{", self.text):
            body_start = struct.end()
            body_end = self.text.find("};", body_start)
            body = self.text[body_start:body_end]
            fields = re.findall(r"([\w:<>*&\s()]+?)\s*\b(\w+)\s*;", body)
            names = [f[1] for f in fields]
            # A member pointer field reads "T (C::*name)() const".
            names = [re.sub(r".*\*", "", n) for n in names]
            declared = re.findall(r"(?:\(\w+::\*(\w+)\)|\b(\w+))\s*(?:\([^)]*\)\s*(?:const)?)?\s*;", body)
            names = [a or b for a, b in declared]
            if field not in names:
                continue
            index = names.index(field)
            values = []
            for table in re.finditer(r"const\s+" + struct.group(1) + r"\s+\w+\s*=\s*\{", self.text):
                items = split_args(self.text, table.end() - 1)
                item = items[index]
                if item.startswith("{"):
                    item = split_args(item, 0)[0]
                if item == "nullptr":
                    continue
                value = literal_value(item)
                if value is None:
                    return None
                values.append(value)
            return values
        return None

    def resolve(self, expr):
        """The templates an expression can yield, or None."""
        expr = expr.strip()
        value = literal_value(expr)
        if value is not None:
            return [value]
        m = re.fullmatch(r"(.+?)\s*\?\s*(.+?)\s*:\s*(.+)", expr)
        if m:
            a = self.resolve(m.group(2))
            b = self.resolve(m.group(3))
            return a + b if a is not None and b is not None else None
        if re.fullmatch(r"\w+", expr):
            value = self.constant(expr)
            return [value] if value is not None else None
        m = re.fullmatch(r"(\w+)\(.*\)", expr)
        if m:
            return self.returned_literals(m.group(1))
        m = re.fullmatch(r"[\w.>\-]*(?:\.|->)(\w+)", expr)
        if m:
            return self.table_field(m.group(1))
        return None


DECLARED = re.compile(r"(const\s+)?[A-Za-z_][\w:<>]*(\s+[A-Za-z_]\w*)?[\s&*]+[A-Za-z_]\w*")


def is_declaration(args):
    """True for the parameter list of a definition rather than a call."""
    return any(DECLARED.fullmatch(a) or a.endswith("...") and " " in a for a in args)


def templates_of(source_dir):
    """(level, template, where) for every reporting place; errors."""
    found = []
    errors = []
    for path in sorted(glob.glob(os.path.join(source_dir, "internal_services", "model_repository", "*.cpp"))):
        src = SourceFile(path)
        for call in re.finditer(r"\b(" + "|".join(REPORTING_CALLS) + r")\s*\(", src.text):
            name = call.group(1)
            args = split_args(src.text, call.end() - 1)
            where = "%s:%d" % (src.name, src.line_of(call.start()))
            before = src.text[max(0, call.start() - 40):call.start()]
            if is_declaration(args) or re.search(r"(::|\bvoid\s+|ZefReturnT\s+)$", before):
                continue
            forwarder = FORWARDERS.get(src.name + ":" + name, FORWARDERS.get(name))
            if forwarder is None and name not in REPORTING_CALLS[:6]:
                continue
            if forwarder is not None:
                for index, level_word in forwarder:
                    if args[index] in PASSED_ON:
                        continue
                    # A functor that builds the text holds its templates as literals.
                    values = src.resolve(args[index]) or [unescape(m.group(1)) for m in LITERAL.finditer(args[index])]
                    if not values:
                        errors.append("%s: cannot tell the templates of %s(..., %s, ...)" % (where, name, args[index]))
                    for value in values:
                        found.append((level_word, value, where))
                continue
            # The repository's forms name the place and the reporter first.
            while name in ("checkThrowException", "reportAt") and args and args[0] not in LEVELS and args[0] != "level":
                args = args[1:]
            if name == "reportSetterResult":
                level_word, formats = "warning", args[1:3]
            else:
                level_word, formats = LEVELS.get(args[0]), args[1:2]
                if args[0] == "level":
                    continue  # passes a finding on
            if level_word is None:
                errors.append("%s: unknown level %r" % (where, args[0]))
                continue
            for index, fmt in enumerate(formats):
                if fmt in PASSED_ON:
                    continue
                if fmt == '"%s"' and name != "reportSetterResult":
                    fmt = args[index + 2]
                    if fmt in PASSED_ON:
                        continue
                    composed = [c for c in COMPOSED if c[0] == src.name and c[1] == fmt and c[2] == level_word]
                    if composed:
                        for template in composed[0][3]:
                            found.append((level_word, template, where))
                        continue
                values = src.resolve(fmt)
                if not values or any(v is None for v in values):
                    errors.append("%s: cannot tell the template of %s(..., %s, ...)" % (where, name, fmt))
                    continue
                for value in values:
                    found.append((level_word, value, where))
    return found, errors


def read_rules(path):
    rules = []
    with open(path, encoding="utf-8") as handle:
        for line in handle:
            line = line.rstrip("\n")
            if not line:
                continue
            parts = line.split("\t")
            if len(parts) != 3:
                raise SystemExit("bad rule line: %r" % line)
            rules.append(tuple(parts))
    return rules


def main(argv):
    if len(argv) < 2:
        print(__doc__)
        return 2
    found, errors = templates_of(argv[1])
    if "--rules" not in argv:
        for level, template, where in found:
            print("%s\t%s\t%s" % (level, template, where))
        for error in errors:
            print("ERROR: " + error, file=sys.stderr)
        return 1 if errors else 0
    rules = read_rules(argv[argv.index("--rules") + 1])
    problems = list(errors)
    by_template = {}
    ids = set()
    for rule_id, severity, template in rules:
        if rule_id in ids:
            problems.append("rule id %s listed twice" % rule_id)
        ids.add(rule_id)
        by_template.setdefault(template, []).append((rule_id, severity))
    used = set()
    for level, template, where in found:
        matches = by_template.get(template, [])
        if len(matches) != 1:
            problems.append("%s: %d rules for the template %r" % (where, len(matches), template))
            continue
        rule_id, severity = matches[0]
        used.add(rule_id)
        if severity != level:
            problems.append("%s: %r is reported as %s, rule %s says %s" % (where, template, level, rule_id, severity))
    for rule_id, severity, template in rules:
        if rule_id not in used and not rule_id.startswith("plugin-"):
            problems.append("rule %s (%r) is reported nowhere" % (rule_id, template))
    for problem in problems:
        print(problem)
    print("%d reporting places, %d rules, %d problems" % (len(found), len(rules), len(problems)))
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
