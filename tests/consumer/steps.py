#!/usr/bin/env python3
# SPDX-License-Identifier: LGPL-2.1-or-later
"""steps.py PAGE FOLDER: writes the programs of a page into FOLDER.

Those of a page with steps come into FOLDER/1, FOLDER/2 …: a step has the functions of all steps so far and its
own main(), which is the last block of its section. Other pages have whole programs, one a block: they make one
project, example1, example2 …"""

import pathlib
import re
import sys

page = pathlib.Path(sys.argv[1]).read_text(encoding="utf-8")
target = pathlib.Path(sys.argv[2])


def blocks(text, language):
    return re.findall(rf"^```{language}\n(.*?)^```", text, re.S | re.M)


def write(folder, files):
    folder.mkdir(parents=True)
    for name, text in files.items():
        (folder / name).write_text(text, encoding="utf-8")


head, *sections = re.split(r"^## Step \d+.*$", page, flags=re.M)
functions = []
for number, section in enumerate(sections, 1):
    *added, main = blocks(section, "cpp")
    functions += added
    files = {"CMakeLists.txt": blocks(head, "cmake")[0], "main.cpp": "\n".join([*functions, main])}
    write(target / str(number), files)
    print("step", number, "has", len(files["main.cpp"].splitlines()), "lines")

if not sections:
    files = {f"example{number}": text for number, text in
             enumerate([text for text in blocks(page, "cpp") if "int main(" in text], 1)}
    project = ["cmake_minimum_required(VERSION 3.21)", "project(Examples LANGUAGES CXX)",
               "find_package(CommonLib 1.0 REQUIRED COMPONENTS Engine)",
               "link_libraries(CommonLib::CommonLib)", *[f"add_executable({name} {name}.cpp)" for name in files]]
    write(target, {f"{name}.cpp": text for name, text in files.items()} |
          {"CMakeLists.txt": "\n".join(project) + "\n"})
    print({name: len(text.splitlines()) for name, text in files.items()})
