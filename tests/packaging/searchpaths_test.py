# SPDX-License-Identifier: MIT
"""Where the programs and libraries look for further libraries, as built and as installed: never in the working folder.

Usage: searchpaths_test.py SOURCE BUILD
"""

import os
import struct
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

BUILD = Path(sys.argv.pop())
SOURCE = Path(sys.argv.pop())

EXECUTABLE, SHARED = 2, 3
LOAD, DYNAMIC = 1, 2
END, STRINGS, RPATH, RUNPATH = 0, 5, 15, 29


def is_linked(path):
    """Whether the file is an ELF executable or shared object of 64 bits, the only kind built here."""
    if path.is_symlink() or not path.is_file():
        return False
    with path.open("rb") as file:
        head = file.read(18)
    return head[:6] == b"\x7fELF\x02\x01" and struct.unpack_from("<H", head, 16)[0] in (EXECUTABLE, SHARED)


def search_path(path):
    """The entries of RPATH and RUNPATH."""
    data = path.read_bytes()
    offset, = struct.unpack_from("<Q", data, 32)
    size, count = struct.unpack_from("<HH", data, 54)
    segments = [struct.unpack_from("<IIQQQQ", data, offset + i * size) for i in range(count)]
    tags = []
    for kind, _, start, _, _, length in segments:
        if kind == DYNAMIC:
            tags = [struct.unpack_from("<QQ", data, start + i) for i in range(0, length, 16)]
    values = dict(reversed(tags[:next((i for i, tag in enumerate(tags) if tag[0] == END), 0)]))
    entries = []
    for tag in (RPATH, RUNPATH):
        if tag in values:
            address = values[STRINGS]
            strings = next(start + address - virtual for kind, _, start, virtual, _, length in segments
                           if kind == LOAD and virtual <= address < virtual + length)
            begin = strings + values[tag]
            entries += data[begin:data.index(b"\0", begin)].decode().split(":")
    return entries


def bad_entries(folder):
    return [f"{path}: {entry!r}" for path in sorted(folder.rglob("*")) if is_linked(path)
            for entry in search_path(path) if not entry.startswith(("/", "$ORIGIN"))]


class SearchPaths(unittest.TestCase):
    def test_the_reader_sees_what_the_linker_wrote(self):
        with tempfile.TemporaryDirectory() as folder:
            library = Path(folder) / "empty.so"
            for written, read in (("$ORIGIN/..::/usr/lib", ["$ORIGIN/..", "", "/usr/lib"]), ("sub", ["sub"])):
                subprocess.run(["c++", "-shared", "-x", "c++", os.devnull, "-o", library, f"-Wl,-rpath,{written}"],
                               check=True)
                self.assertEqual(search_path(library), read)
                self.assertEqual(len(bad_entries(Path(folder))), 1)

    def test_as_built(self):
        names = {path.name for path in (BUILD / "bin").rglob("*") if is_linked(path)}
        self.assertLessEqual({"tarnwell-host", "libtarnwell-automation.so", "Tarnwell.so", "FeeInterFace.so"}, names)
        self.assertEqual(bad_entries(BUILD), [])

    def test_as_installed(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run(["cmake", "--install", BUILD, "--prefix", folder], check=True, stdout=subprocess.DEVNULL)
            linked = [path for path in Path(folder).rglob("*") if is_linked(path)]
            self.assertEqual(sorted(path.name for path in linked),
                             ["Tarnwell.so", "libtarnwell-automation.so", "tarnwell-host"])
            for path in linked:
                for entry in search_path(path):
                    self.assertRegex(entry, r"^\$ORIGIN(/|$)", path)
            program = Path(folder) / "bin" / "tarnwell-host"
            answer = subprocess.run([program, "--version"], check=True, capture_output=True, text=True, cwd=folder)
            self.assertTrue(answer.stdout.startswith("tarnwell-host "), answer.stdout)


if __name__ == "__main__":
    unittest.main()
