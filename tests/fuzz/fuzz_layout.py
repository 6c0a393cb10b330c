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

# Demangled names as the notes name them: no file prefix, parameters or ABI tags.
for demangled, plain in (
    ("U.cpp:(anonymous namespace)::PipeCloser::operator()(_IO_FILE*) const",
     "(anonymous namespace)::PipeCloser::operator()"),
    ("Section::getType[abi:cxx11]()", "Section::getType"),
    ("Section::parse(xercesc_3_2::SAX2XMLReader*)::$_0::operator()() const", "Section::parse"),
    ("tvpolicy::parse::sockDiagRequest(int, int)", "tvpolicy::parse::sockDiagRequest"),
):
    check(fuzz_coverage.plain_name(demangled) == plain, f"{demangled} read as {fuzz_coverage.plain_name(demangled)}")

# The functions of a.cpp as llvm-cov exports them (mangled; the first region spans the body):
# a file-local helper on lines 11-90, A::send() on 91-100 and A::read() on 1-10.
FUNCTIONS = [
    {"name": name, "filenames": ["/top/a.cpp"], "regions": [[first, 1, last, 2, 0, 0, 0, 0]]}
    for name, first, last in (("a.cpp:_ZN12_GLOBAL__N_15probeEv", 11, 90), ("_ZN1A4sendEv", 91, 100),
                              ("_ZN1A4readEv", 1, 10))
]

CASES = [
    # (what, files reached by the corpus, unreachable.txt, exit status, text expected in the report)
    ("at the floor", {"a.cpp": summary(80, 100, 1, 2)}, "", 0, "80/100  80.0%"),
    ("below the floor", {"a.cpp": summary(79, 100)}, "", 1, "BELOW 80%"),
    ("below, missed functions named", {"a.cpp": summary(10, 100)}, "a.cpp | probe, A::send | platform only\n", 0,
     "100.0% without probe, A::send: platform only"),
    ("below, too few named", {"a.cpp": summary(10, 100)}, "a.cpp | A::send | platform only\n", 1,
     "even without the lines named unreachable (11.1%)"),
    ("a name of a run function leaves nothing out", {"a.cpp": summary(10, 100)}, "a.cpp | read | why\n", 1,
     "even without the lines named unreachable (10.0%)"),
    ("a stale name", {"a.cpp": summary(80, 100)}, "a.cpp | A::gone | why\n", 1, "a.cpp has no function A::gone"),
    ("a part of a name is no name", {"a.cpp": summary(80, 100)}, "a.cpp | end | why\n", 1, "has no function end"),
    ("another file named", {"a.cpp": summary(10, 100)}, "b.cpp | f | why\n", 1, "BELOW 80%"),
    ("never reached", {}, "", 1, "not reached"),
    ("no branches", {"a.cpp": summary(5, 5)}, "# a comment\n\n", 0, "5/5 100.0%"),
]
with tempfile.TemporaryDirectory() as scratch:
    for what, files, notes, status, expected in CASES:
        names = ("summary.json", "lines.txt", "parsers.txt", "notes.txt")
        paths = {name: os.path.join(scratch, name) for name in names}
        exported = {"data": [{"files": [{"filename": f"/top/{name}", "summary": s} for name, s in files.items()],
                              "functions": FUNCTIONS}]}
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
        out.write("a.cpp |  | a reason\n")
    try:
        fuzz_coverage.read_notes(malformed)
        failures.append("a note that names no function was accepted")
    except SystemExit as refusal:
        check("malformed.txt:1" in str(refusal), f"the refusal names no line: {refusal}")

for failure in failures:
    print(failure)
sys.exit(1 if failures else 0)
