#!/usr/bin/env python3
# SPDX-License-Identifier: LGPL-2.1-or-later
"""steps.py PAGE FOLDER: writes the programs that the page builds step by step into FOLDER/1, FOLDER/2 ….

A step has the functions of all steps so far and its own main(), which is the last block of its section."""

import pathlib
import re
import sys

page = pathlib.Path(sys.argv[1]).read_text(encoding="utf-8")
head, *sections = re.split(r"^## Step \d+.*$", page, flags=re.M)
project = re.search(r"^```cmake\n(.*?)^```", head, re.S | re.M).group(1)
functions = []
for number, section in enumerate(sections, 1):
    *added, main = re.findall(r"^```cpp\n(.*?)^```", section, re.S | re.M)
    functions += added
    folder = pathlib.Path(sys.argv[2]) / str(number)
    folder.mkdir(parents=True)
    (folder / "CMakeLists.txt").write_text(project, encoding="utf-8")
    (folder / "main.cpp").write_text("\n".join([*functions, main]), encoding="utf-8")
print(len(sections), "steps,", len("".join([*functions, main]).splitlines()), "lines at the end")
