# SPDX-License-Identifier: MIT
"""Each rule of check_tree.py on a small tree that breaks it, and on one that keeps it."""

import tempfile
import unittest
from pathlib import Path

import check_tree

LICENCE = "// SPDX-License-Identifier: MIT\n"
OPENING = LICENCE + "// What it is for.\n"


class Tree(unittest.TestCase):
    def findings(self, files):
        with tempfile.TemporaryDirectory() as root:
            for path, text in files.items():
                file = Path(root) / path
                file.parent.mkdir(parents=True, exist_ok=True)
                file.write_text(text, encoding="utf-8")
            return check_tree.check_tree(Path(root))

    def findings_of(self, path, body, opening=OPENING):
        return self.findings({path: opening + body})

    def test_levels(self):
        rows = [
            ("uMain/a.cpp", "data/x.h", None),
            ("uMain/a.cpp", "uMain/ui_x.h", None),
            ("data/a.cpp", "automation/x.h", None),
            ("uDjOld/a.cpp", "uDjDetail/x.h", None),
            ("vortaq/app/a.cpp", "vortaq/sql/x.h", None),
            ("vortaq/app/a.cpp", "module/tarnwell_module.h", None),
            ("tests/uMain/a.cpp", "vortaq/sql/x.h", None),
            ("print/a.cpp", "samples/feeinterface/feeinterface.h", None),
            ("samples/feeinterface/a.c", "feeinterface.h", None),
            ("data/a.cpp", "host/x.h", "data may not include host"),
            ("automation/a.cpp", "Common/x.h", "automation may not include Common"),
            ("toolkit/a.cpp", "values/x.h", None),
            ("toolkit/a.cpp", "host/x.h", "toolkit may not include host"),
            ("toolkit/a.cpp", "forms/x.h", "toolkit may not include forms"),
            ("forms/a.cpp", "host/x.h", None),
            ("report/a.cpp", "forms/x.h", "report may not include forms"),
            ("values/a.cpp", "data/x.h", "values may not include data"),
            ("vortaq/sqlite/a.cpp", "values/x.h", None),
            ("toolkit/a.cpp", "report/x.h", "toolkit may not include report"),
            ("host/a.cpp", "toolkit/x.h", "host may not include toolkit"),
            ("uDjDetail/a.cpp", "uDjOld/x.h", "uDjDetail may not include uDjOld"),
            ("uMain/a.cpp", "vortaq/sql/x.h", "uMain may not include vortaq"),
            ("vortaq/app/a.cpp", "uMain/x.h", "vortaq may not include uMain"),
            ("vortaq/app/a.cpp", "module/form.h", "vortaq may not include module"),
            ("uMain/a.cpp", "samples/feeinterface/feeinterface.h", "uMain may not include samples"),
            ("drawer/a.cpp", "data/x.h", "the folder drawer has no level"),
            ("uMain/a.cpp", "x.h", '"x.h" is not written from the root'),
        ]
        for path, target, expected in rows:
            with self.subTest(path=path, target=target):
                found = self.findings_of(path, f'#include "{target}"\n')
                self.assertEqual(found, [f"{path}:3: {expected}"] if expected else [])

    def test_levels_of_the_host(self):
        rows = [
            ("vortaq/sql/a.cpp", '"vortaq/sql/x.h"', None),
            ("vortaq/sql/a.cpp", '"vortaq/SqlError.h"', None),
            ("vortaq/sql/a.cpp", "<string>", None),
            ("vortaq/engines/a.cpp", '"vortaq/sql/x.h"', None),
            ("vortaq/engines/a.cpp", "<QString>", None),
            ("vortaq/sqlite/a.cpp", '"vortaq/engines/x.h"', None),
            ("vortaq/sqlite/a.cpp", "<sqlite3.h>", None),
            ("tests/vortaq/sql/a.cpp", '"vortaq/sqlite/x.h"', None),
            ("vortaq/sql/a.cpp", '"vortaq/engines/x.h"', "vortaq/sql may not include vortaq/engines"),
            ("vortaq/engines/a.cpp", '"vortaq/sqlite/x.h"', "vortaq/engines may not include vortaq/sqlite"),
            ("vortaq/procedures/a.h", '"vortaq/app/x.h"', "vortaq/procedures may not include vortaq/app"),
            ("vortaq/engines/a.cpp", "<sqlite3.h>", "vortaq/engines knows no database's own library"),
            ("vortaq/sql/a.cpp", "<libpq-fe.h>", "vortaq/sql knows no database's own library"),
            ("vortaq/sql/a.h", "<QString>", "vortaq/sql gets by without Qt"),
            ("vortaq/sql/a.h", "<QtGlobal>", "vortaq/sql gets by without Qt"),
        ]
        for path, target, expected in rows:
            with self.subTest(path=path, target=target):
                found = self.findings_of(path, f"#pragma once\n#include {target}\n")
                self.assertEqual(found, [f"{path}:4: {expected}"] if expected else [])

    def test_statements(self):
        rows = [
            ("uMain/a.cpp", 'f("Select BillNo From o_x");', True),
            ("uMain/a.cpp", 'f("  update x set y=1");', True),
            ("uMain/a.cpp", 'f(" from x where y=1");', True),
            ("print/a.cpp", 'f("insert into x values(1)");', True),
            ("uMain/a.cpp", 'f("a // b", "delete from x");', True),
            ("uMain/a.cpp", '// runs "select x"', False),
            ("uMain/a.cpp", 'f("the selection is empty");', False),
            ("data/a.cpp", 'f("select x from y");', False),
            ("tests/uMain/a.cpp", 'f("select x from y");', False),
        ]
        for path, body, found in rows:
            with self.subTest(body=body):
                self.assertEqual(self.findings_of(path, body), [f"{path}:3: a statement outside data/"] if found else [])

    def test_operations(self):
        body = 'call(u"BeginTran");'
        self.assertEqual(self.findings_of("uMain/a.cpp", body),
                         ['uMain/a.cpp:3: the operation "BeginTran" outside its proxy'])
        self.assertEqual(self.findings_of("host/a.cpp", body), [])

    def test_words(self):
        rows = [("delete form;", "a bare delete"), ("delete[] rows;", "a bare delete"), ("A(A &&) = delete;", None),
                ('f("delete it");', None), ("// TODO later", "a note of unfinished work")]
        for body, expected in rows:
            with self.subTest(body=body):
                found = self.findings_of("data/a.cpp", body)
                self.assertEqual(found, [f"data/a.cpp:3: {expected}"] if expected else [])

    def test_openings(self):
        once = "#pragma once\n"
        purpose = "a.h:2: no sentence of purpose below the licence"
        self.assertEqual(self.findings({"data/a.h": OPENING + once}), [])
        self.assertEqual(self.findings({"data/a.h": LICENCE + once}), ["data/" + purpose])
        self.assertEqual(self.findings({"data/a.h": OPENING}), ["data/a.h:1: nothing keeps it from being included twice"])
        self.assertEqual(self.findings({"data/a.h": "// What it is for.\n// More.\n" + once}),
                         ["data/a.h:1: the first line does not name the licence"])
        self.assertEqual(self.findings({"data/a.h": OPENING + once, "data/a.cpp": LICENCE + "int a;\n"}), [])

    def test_sizes(self):
        def lines(count):
            return "int a;\n" * (count - 3)

        once = "#pragma once\n"
        self.assertEqual(self.findings_of("data/a.h", once + lines(120)), [])
        self.assertEqual(self.findings_of("data/a.h", once + lines(121)),
                         ["data/a.h:121: 121 lines; 120 are the limit"])
        self.assertEqual(self.findings_of("data/a.cpp", "\n" + lines(450)), [])
        self.assertEqual(self.findings_of("data/a.cpp", "\n" + lines(451)),
                         ["data/a.cpp:451: 451 lines; 450 are the limit"])
        self.assertEqual(self.findings_of("data/a.cpp", "void f()\n{\n" + "  g();\n" * 60 + "}\n"), [])
        self.assertEqual(self.findings_of("data/a.cpp", "void f()\n{\n" + "  g();\n" * 61 + "}\n"),
                         ["data/a.cpp:4: a function of 61 lines; 60 are the limit"])

    def test_exceptions(self):
        listed = "# comment\ndata/a.cpp function 70 a table of captions\n"
        long_function = OPENING + "void f()\n{\n" + "  g();\n" * 61 + "}\n"
        files = {"scripts/size-exceptions.txt": listed, "data/a.cpp": long_function}
        self.assertEqual(self.findings(files), [])
        del files["data/a.cpp"]
        self.assertEqual(self.findings(files), ["scripts/size-exceptions.txt:1: data/a.cpp is not there any more"])


if __name__ == "__main__":
    unittest.main()
