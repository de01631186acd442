#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""Builds the small fonts of kinds that no package brings, for the tests: make-fonts.py FOLDER

Every *_fonts.py beside this file has a dictionary FONTS, from a file name to a function that is given the path to
write. Built with Debian's fonttools; the same bytes each time.
"""
import importlib
import os
import sys
from pathlib import Path

# fontTools writes this into head.modified.
os.environ["SOURCE_DATE_EPOCH"] = "1700000000"


def main(folder):
    here = Path(__file__).resolve().parent
    sys.path.insert(0, str(here))
    sys.dont_write_bytecode = True
    folder.mkdir(parents=True, exist_ok=True)
    for module in sorted(path.stem for path in here.glob("*_fonts.py")):
        for name, build in importlib.import_module(module).FONTS.items():
            build(folder / name)


if __name__ == "__main__":
    main(Path(sys.argv[1]))
