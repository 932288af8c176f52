# SPDX-License-Identifier: MIT
"""The script "run", with a build and a program that only tell what they were asked for.

Usage: runscript_test.py SOURCE BUILD
"""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.argv.pop()
SOURCE = Path(sys.argv.pop())


class RunScript(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = Path(scratch.name)
        shutil.copy(SOURCE / "run", self.folder / "run")
        self.write("scripts/install-packages", "echo packages $*")
        self.write("scripts/build", "echo built $*")
        self.write("build/release/bin/tarnwell-host", 'echo "$TARNWELL_COMMAND" "$@"')

    def write(self, name, line):
        file = self.folder / name
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(f"#!/bin/sh\n{line}\n")
        file.chmod(0o755)

    def run_with(self, *arguments):
        environment = {name: value for name, value in os.environ.items()
                       if name not in ("DISPLAY", "WAYLAND_DISPLAY", "TARNWELL_COMMAND")}
        return subprocess.run([self.folder / "run", *arguments], capture_output=True, text=True, env=environment)

    def test_what_only_asks_gets_only_the_answer(self):
        for option in ("--help", "-h", "--version", "-v"):
            done = self.run_with(option)
            self.assertEqual((done.returncode, done.stdout, done.stderr), (0, f"./run {option}\n", ""))

    def test_a_build_that_fails_is_told_all_the_same(self):
        self.write("scripts/build", "echo no compiler; exit 3")
        done = self.run_with("--help")
        self.assertEqual((done.returncode, done.stdout, done.stderr), (1, "", "packages run\nno compiler\n"))

    def test_without_packages_nothing_is_built(self):
        self.write("scripts/install-packages", "echo no packages >&2; exit 1")
        for option in ("--help", "--create-demo=x"):
            done = self.run_with(option)
            self.assertEqual((done.returncode, done.stdout, done.stderr), (1, "", "no packages\n"))

    def test_working_shows_the_build(self):
        done = self.run_with("--create-demo", "a b")
        self.assertEqual((done.returncode, done.stdout), (0, "packages run\nbuilt release\n./run --create-demo a b\n"))


if __name__ == "__main__":
    unittest.main()
