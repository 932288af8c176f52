# SPDX-License-Identifier: MIT
"""Checks what no compiler does: which folder may include which, where statements may stand, and the size of files.

Usage: check_tree.py ROOT. Prints one line a finding, "file:line: reason", and fails if there is one.
"""

import re
import sys
from pathlib import Path

# The levels, lowest first. A folder includes itself and what its line names; everything else is out of bounds.
LEVELS = ["Common", "automation", "values", "data", "host", "toolkit", "forms", "report", "print", "uPrint",
          "uDjDetail", "uDjOld", "uAddBill", "uMain", "module"]


def levels_below(folder):
    return set(LEVELS[:LEVELS.index(folder)])


MAY_INCLUDE = {folder: levels_below(folder) for folder in LEVELS}
MAY_INCLUDE["automation"] = set()
MAY_INCLUDE["values"] = set()
# Windows' building blocks serve any module: they know neither the host nor what a record is.
MAY_INCLUDE["toolkit"] = {"Common", "automation", "values"}
MAY_INCLUDE["report"] -= {"data", "forms"}
MAY_INCLUDE["vortaq"] = {"automation", "values"}
ALLOWED_HEADERS = {"vortaq": {"module/tarnwell_module.h"}, "print": {"samples/feeinterface/feeinterface.h"}}
# The same within the reference host. SqlError.h and Engine.h, what all of them share, stand above these folders.
HOST_LEVELS = {"sql": set(), "schema": set(), "engines": {"sql"}, "sqlite": {"sql", "engines"}, "procedures": set(),
               "demo": {"schema", "sqlite"}, "app": {"sql", "schema", "engines", "sqlite", "procedures", "demo"}}
# Only an engine speaks to its database's own library; the dialect's front end gets by without Qt, too.
DATABASE_HEADERS = re.compile(r"(sqlite3|libpq-fe|sql|sqlext)\.h$")
DATABASE_FOLDERS = {"schema", "sqlite", "demo"}
# Tests, benchmarks and fuzz targets look into everything.
UNBOUND = {"tests", "bench", "fuzz", "samples"}

# Statements stand in data/, and in the host, which writes its own tables; tests quote them.
STATEMENT_FOLDERS = {"data", "vortaq"} | UNBOUND
STATEMENT = re.compile(r"^\s*(select|update|insert\s+into|delete\s+from)\s|\swhere\s.*[=<>]|\s(order|group)\s+by\s", re.I)

# Each operation of the shared objects is written once, in its proxy; the host that answers writes it too.
OPERATION_FOLDERS = {"host", "vortaq"} | UNBOUND
OPERATIONS = {"OpenSql", "CloseSql", "execSql", "BeginTran", "CommitTran", "RollbackTran", "ExecProc", "CustomParam",
              "ShowHint", "UserID", "RightParam", "GetSRM", "SetPosition", "GetCodeValue"}

HEADER_LINES, SOURCE_LINES, FUNCTION_LINES = 120, 450, 60

ANY_INCLUDE = re.compile(r'^\s*#\s*include\s+["<]([^">]+)[">]')
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"')
LITERAL = re.compile(r'"((?:[^"\\]|\\.)*)"')
GENERATED = re.compile(r"(^|/)ui_\w+\.h$|\.moc$|(^|/)moc_\w+\.cpp$")
LICENCE = re.compile(r"(//|/\*) SPDX-License-Identifier: MIT$")
PURPOSE = re.compile(r"(//| \*|/\*)( \w|$)")
ONCE = re.compile(r"^#(pragma once|ifndef \w+_H)$", re.M)


def without_comment(line):
    """The line up to its // comment; a // inside a literal does not open one."""
    code = re.sub(LITERAL, lambda found: '"' + "_" * len(found[1]) + '"', line).split("//")[0]
    return line[:len(code)]


def top_folder(path):
    return path.split("/")[0] if "/" in path else ""


def check_include(folder, target):
    # A sample is copied to where it is built, header and source together.
    if GENERATED.search(target) or folder == "samples":
        return None
    if "/" not in target:
        return f'"{target}" is not written from the root'
    reached = top_folder(target)
    if folder in UNBOUND or reached == folder or target in ALLOWED_HEADERS.get(folder, set()):
        return None
    if folder not in MAY_INCLUDE:
        return f"the folder {folder} has no level"
    if reached not in MAY_INCLUDE[folder]:
        return f"{folder} may not include {reached}"
    return None


def check_host_include(path, line):
    """What folders of the reference host may not include of one another, of databases' libraries and of Qt."""
    parts = path.split("/")
    include = ANY_INCLUDE.match(line)
    if not include or parts[0] != "vortaq" or len(parts) < 3 or parts[1] not in HOST_LEVELS:
        return
    folder, target = parts[1], include[1]
    reached = target.split("/")
    if reached[0] == "vortaq" and len(reached) > 2 and reached[1] != folder and reached[1] not in HOST_LEVELS[folder]:
        yield f"vortaq/{folder} may not include vortaq/{reached[1]}"
    if DATABASE_HEADERS.match(target) and folder not in DATABASE_FOLDERS:
        yield f"vortaq/{folder} knows no database's own library"
    if folder == "sql" and re.match(r"Q[A-Z]|Qt", target):
        yield "vortaq/sql gets by without Qt"


def check_line(folder, line):
    """Findings of one line, comments left out."""
    code = without_comment(line)
    include = INCLUDE.match(code)
    if include:
        finding = check_include(folder, include[1])
        if finding:
            yield finding
        return
    for literal in LITERAL.findall(code):
        if folder not in STATEMENT_FOLDERS and STATEMENT.search(literal):
            yield "a statement outside data/"
        if folder not in OPERATION_FOLDERS and literal in OPERATIONS:
            yield f'the operation "{literal}" outside its proxy'
    bare = LITERAL.sub('""', code)
    if re.search(r"(?<!operator )\bdelete\b(\[\])?\s+\w", bare):
        yield "a bare delete"
    if re.search(r"\b(TODO|FIXME|XXX)\b", line):
        yield "a note of unfinished work"


def check_functions(lines, limit):
    """Functions open and close with a brace in the first column, as the layout has it."""
    start = None
    for number, line in enumerate(lines, 1):
        if line == "{":
            start = number
        elif line == "}" and start is not None:
            if number - start - 1 > limit:
                yield start, f"a function of {number - start - 1} lines; {limit} are the limit"
            start = None


def check_opening(lines, needs_purpose):
    if not lines or not LICENCE.match(lines[0]):
        yield 1, "the first line does not name the licence"
    if needs_purpose and (len(lines) < 2 or not PURPOSE.match(lines[1])):
        yield 2, "no sentence of purpose below the licence"


def check_file(path, text, exceptions, has_header):
    """has_header: a source whose header of the same name says what both are for."""
    folder = top_folder(path)
    lines = text.splitlines()
    limits = exceptions.get(path, {})
    yield from check_opening(lines, not has_header)
    header = path.endswith(".h")
    if header and not ONCE.search(text):
        yield 1, "nothing keeps it from being included twice"
    limit = limits.get("lines", HEADER_LINES if header else SOURCE_LINES)
    if len(lines) > limit:
        yield len(lines), f"{len(lines)} lines; {limit} are the limit"
    yield from check_functions(lines, limits.get("function", FUNCTION_LINES))
    for number, line in enumerate(lines, 1):
        for finding in (*check_line(folder, line), *check_host_include(path, line)):
            yield number, finding


def read_exceptions(text):
    """Lines of "path kind limit reason"; the reason is there for whoever reads the file."""
    exceptions = {}
    for line in text.splitlines():
        if line.strip() and not line.startswith("#"):
            path, kind, limit, _reason = line.split(None, 3)
            exceptions.setdefault(path, {})[kind] = int(limit)
    return exceptions


def check_tree(root):
    listed = root / "scripts" / "size-exceptions.txt"
    exceptions = read_exceptions(listed.read_text(encoding="utf-8")) if listed.exists() else {}
    findings = [f"scripts/size-exceptions.txt:1: {path} is not there any more"
                for path in exceptions if not (root / path).exists()]
    for suffix in ("*.h", "*.cpp", "*.c"):
        for file in sorted(root.rglob(suffix)):
            path = file.relative_to(root).as_posix()
            if top_folder(path) in ("build", ".git"):
                continue
            has_header = suffix != "*.h" and file.with_suffix(".h").exists()
            for line, reason in check_file(path, file.read_text(encoding="utf-8"), exceptions, has_header):
                findings.append(f"{path}:{line}: {reason}")
    return findings


def main():
    findings = check_tree(Path(sys.argv[1]))
    print("\n".join(findings))
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
