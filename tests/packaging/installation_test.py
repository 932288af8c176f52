# SPDX-License-Identifier: MIT
"""What an installation lays down, and what a second one leaves alone: the setup file and the forms a hospital edited.

Usage: installation_test.py SOURCE BUILD
"""

import hashlib
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

BUILD = Path(sys.argv.pop())
SOURCE = Path(sys.argv.pop())

SETUP = SOURCE / "vortaq/app/setup.ini"
FORMS = sorted((SOURCE / "templates").glob("*.rmf"))


class Folder(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.prefix = Path(scratch.name) / "opt"

    def program(self):
        """The folder of the program, wherever the system keeps its libraries."""
        found = list(self.prefix.rglob("tarnwell-host"))
        return next(path.parent for path in found if path.is_file() and not path.is_symlink())


class Installation(Folder):
    def install(self, **environment):
        done = subprocess.run(["cmake", "--install", BUILD, "--prefix", self.prefix], check=True, capture_output=True,
                              text=True, env={**os.environ, **environment})
        return done.stdout

    def test_a_first_one_lays_everything(self):
        said = self.install()
        self.assertEqual(len(FORMS), 4)
        for source, laid in [(SETUP, self.program() / "setup.ini")] + [
                (form, self.program() / "Module" / form.name) for form in FORMS]:
            self.assertEqual(laid.read_bytes(), source.read_bytes())
            self.assertEqual(laid.stat().st_mode & 0o777, 0o644)
            self.assertIn(f"Installing: {laid}\n", said)
        self.assertEqual(list(self.prefix.rglob("*.new")), [])

    def test_a_second_one_keeps_what_was_edited_and_says_so(self):
        self.install()
        setup, form = self.program() / "setup.ini", self.program() / "Module" / FORMS[0].name
        setup.write_text("[system]\nconnStyle=0\n")
        form.write_text(form.read_text().replace("size=", "size ="))
        edited = form.read_bytes()
        said = self.install()
        self.assertEqual(setup.read_text(), "[system]\nconnStyle=0\n")
        self.assertEqual(form.read_bytes(), edited)
        self.assertEqual(setup.with_name("setup.ini.new").read_bytes(), SETUP.read_bytes())
        self.assertEqual(form.with_name(form.name + ".new").read_bytes(), FORMS[0].read_bytes())
        for kept in (setup, form):
            self.assertIn(f"Kept, because it was edited: {kept}; the new version is {kept.name}.new\n", said)
        self.assertEqual(len(list(self.prefix.rglob("*.new"))), 2)
        self.assertEqual((self.program() / "Module" / FORMS[1].name).read_bytes(), FORMS[1].read_bytes())

    def test_what_nobody_edited_follows_the_new_version(self):
        self.install()
        setup = self.program() / "setup.ini"
        earlier = b"[system]\nconnStyle=1\n; an earlier version\n"
        setup.write_bytes(earlier)
        (self.program() / ".shipped/setup.ini.sha256").write_text(hashlib.sha256(earlier).hexdigest())
        self.install()
        self.assertEqual(setup.read_bytes(), SETUP.read_bytes())
        self.assertEqual(list(self.prefix.rglob("*.new")), [])

    def test_of_an_installation_without_memory_everything_that_differs_stays(self):
        self.install()
        setup = self.program() / "setup.ini"
        setup.write_text("[system]\nconnStyle=0\n")
        for memory in self.prefix.rglob("*.sha256"):
            memory.unlink()
        self.install()
        self.assertEqual(setup.read_text(), "[system]\nconnStyle=0\n")
        self.install()
        self.assertEqual(setup.read_text(), "[system]\nconnStyle=0\n")

    def test_what_was_thrown_away_is_laid_again_and_a_link_stays_a_link(self):
        self.install()
        setup, form = self.program() / "setup.ini", self.program() / "Module" / FORMS[0].name
        form.unlink()
        own = self.prefix / "own.ini"
        own.write_text("[system]\nconnStyle=2\n")
        setup.unlink()
        setup.symlink_to(own)
        self.install()
        self.assertEqual(form.read_bytes(), FORMS[0].read_bytes())
        self.assertTrue(setup.is_symlink())
        self.assertEqual(own.read_text(), "[system]\nconnStyle=2\n")

    def test_a_package_is_made_in_a_folder_of_its_own(self):
        stage = self.prefix.parent / "stage"
        self.install(DESTDIR=str(stage))
        self.assertFalse(self.prefix.exists())
        self.assertEqual(len(list(stage.rglob("*.rmf"))), 4)
        self.assertEqual(len(list(stage.rglob("setup.ini"))), 1)


class BuildFolder(Folder):
    """The program may also be used where it was built."""

    def lay(self):
        subprocess.run(["cmake", f"-DSOURCE={FORMS[0]}", f"-DFOLDER={self.prefix}", "-P",
                        SOURCE / "cmake/LayEditable.cmake"], check=True, capture_output=True)
        return self.prefix / FORMS[0].name

    def test_an_edited_form_stays(self):
        form = self.lay()
        self.assertEqual(form.read_bytes(), FORMS[0].read_bytes())
        form.write_text("edited")
        self.assertEqual(self.lay().read_text(), "edited")
        form.unlink()
        self.assertEqual(self.lay().read_bytes(), FORMS[0].read_bytes())

    def test_a_form_of_the_time_before_memory_is_replaced(self):
        self.prefix.mkdir()
        (self.prefix / FORMS[0].name).write_text("old")
        self.assertEqual(self.lay().read_bytes(), FORMS[0].read_bytes())


if __name__ == "__main__":
    unittest.main()
