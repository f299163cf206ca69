"""Runs the table of a keyword-driven test: keywordtable.py FILE

Each step is a call of the library that the settings name: "Row Passes" is its method row_passes. Of such
tables it understands settings, test cases and steps, no variables, and no keywords made of others. The
status is 0 where every step passes.
"""

import importlib.util
import re
import sys


def cells_of(line):
    return re.split(r" {2,}|\t", line.strip())


def read(path):
    """The settings by their names, and the steps of each test by its name."""
    settings, tests, section, steps = {}, {}, "", None
    for line in open(path, encoding="utf-8"):
        if not line.strip():
            continue
        first, *rest = cells_of(line)
        if line.startswith("***"):
            section = line.strip("* \n")
        elif section == "Settings":
            settings[first] = rest
        elif not line[0].isspace():
            steps = tests.setdefault(first, [])
        else:
            steps.append([first, *rest])
    return settings, tests


def library_in(path):
    name = path.rsplit("/", 1)[-1].removesuffix(".py")
    spec = importlib.util.spec_from_file_location(name, path)
    module = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(module)
    return getattr(module, name)()


def run(path):
    settings, tests = read(path)
    folder = path.rpartition("/")[0] or "."
    library = library_in(folder + "/" + settings["Library"][0])

    def call(step):
        getattr(library, step[0].lower().replace(" ", "_"))(*step[1:])

    call(settings["Suite Setup"])
    failed = 0
    for name, steps in tests.items():
        try:
            for step in steps:
                call(step)
            print("pass", name)
        except AssertionError as error:
            failed += 1
            print("fail", name, error)
    call(settings["Suite Teardown"])
    return failed


sys.exit(1 if run(sys.argv[1]) else 0)
