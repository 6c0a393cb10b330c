#!/usr/bin/env python3
"""The fuzzing's bookkeeping: every parser file has a target that names it, every target is
registered with a seed corpus, and the coverage report passes and fails the files it should.

Usage: fuzz_layout.py SOURCE_DIR
"""
import contextlib
import io
import json
import os
import re
import sys
import tempfile

root = sys.argv[1]
sys.path.insert(0, os.path.join(root, "scripts"))
import fuzz_coverage  # noqa: E402

failures = []


def check(condition, message):
    if not condition:
        failures.append(message)


# --- every parser has a target, every target its corpus -----------------------------------
with open(os.path.join(root, "fuzz", "CMakeLists.txt"), encoding="utf-8") as text:
    cmake = text.read()
calls = re.findall(r"^tvpolicy_fuzz_target\((\w+)(.*?)\)\s*$", cmake, re.M | re.S)
registered = {name for name, _ in calls}
named = set(re.findall(r"\b((?:src|tools)/[\w/]+\.cpp)\b", cmake))
parse_dir = os.path.join(root, "src", "host", "parse")
for source in sorted(os.listdir(parse_dir)):
    if source.endswith(".cpp"):
        check(f"src/host/parse/{source}" in named, f"src/host/parse/{source} is named by no fuzz target")
for source in sorted(os.listdir(os.path.join(root, "fuzz"))):
    if source.endswith("_fuzz.cpp"):
        what = source[: -len("_fuzz.cpp")]
        check(what in registered, f"fuzz/{source} is not registered in fuzz/CMakeLists.txt")
for what in registered:
    corpus = os.path.join(root, "fuzz", "corpus", what)
    check(os.path.isdir(corpus) and os.listdir(corpus), f"fuzz target {what} has no seeds in fuzz/corpus/{what}/")

# --- the coverage report's verdicts ---------------------------------------------------------


def summary(lines_covered, lines, branches_covered=0, branches=0):
    def part(covered, count):
        return {"count": count, "covered": covered, "percent": 100.0 * covered / count if count else 0.0}

    return {"lines": part(lines_covered, lines), "branches": part(branches_covered, branches)}


# Line counts as llvm-cov show prints them: lines 1-10 of a.cpp run, 11-100 not.
SHOWN = "/top/a.cpp:\n" + "".join(f"{n:5}|{1 if n <= 10 else 0:6}|code\n" for n in range(1, 101))

CASES = [
    # (what, files reached by the corpus, unreachable.txt, exit status, text expected in the report)
    ("at the floor", {"a.cpp": summary(80, 100, 1, 2)}, "", 0, "80/100  80.0%"),
    ("below the floor", {"a.cpp": summary(79, 100)}, "", 1, "BELOW 80%"),
    ("below, missed lines named", {"a.cpp": summary(10, 100)}, "a.cpp | 3-90, 91-100 | platform only\n", 0,
     "100.0% without lines 3-90, 91-100: platform only"),
    ("below, too few named", {"a.cpp": summary(10, 100)}, "a.cpp | 11-50 | platform only\n", 1,
     "even without the lines named unreachable (16.7%)"),
    ("another file named", {"a.cpp": summary(10, 100)}, "b.cpp | 3 | why\n", 1, "BELOW 80%"),
    ("never reached", {}, "", 1, "not reached"),
    ("no branches", {"a.cpp": summary(5, 5)}, "# a comment\n\n", 0, "5/5 100.0%"),
]
with tempfile.TemporaryDirectory() as scratch:
    for what, files, notes, status, expected in CASES:
        names = ("summary.json", "lines.txt", "parsers.txt", "notes.txt")
        paths = {name: os.path.join(scratch, name) for name in names}
        exported = {"data": [{"files": [{"filename": f"/top/{name}", "summary": s} for name, s in files.items()]}]}
        for name, content in zip(names, (json.dumps(exported), SHOWN, "t a.cpp\n", notes)):
            with open(paths[name], "w", encoding="utf-8") as out:
                out.write(content)
        printed = io.StringIO()
        with contextlib.redirect_stdout(printed):
            got = fuzz_coverage.main(*(paths[name] for name in names), "/top", "t")
        check(got == status, f"{what}: exit {got}, expected {status}\n{printed.getvalue()}")
        check(expected in printed.getvalue(), f"{what}: no '{expected}' in\n{printed.getvalue()}")

    malformed = os.path.join(scratch, "malformed.txt")
    with open(malformed, "w", encoding="utf-8") as out:
        out.write("a.cpp | 3-x | a reason\n")
    try:
        fuzz_coverage.read_notes(malformed)
        failures.append("a note without its reason was accepted")
    except SystemExit as refusal:
        check("malformed.txt:1" in str(refusal), f"the refusal names no line: {refusal}")

for failure in failures:
    print(failure)
sys.exit(1 if failures else 0)
