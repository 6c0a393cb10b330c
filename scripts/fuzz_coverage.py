"""The coverage table of scripts/fuzz.sh --coverage.

Arguments: llvm-cov's summary (export -summary-only), its line counts (show, as text), the
build's fuzz-parsers.txt (a target
and its parser files on each line), fuzz/unreachable.txt, the top of the repository and the
targets that were run. Prints per target and parser file the lines and branches its corpus
reaches; fails when a file is below the floor unless fuzz/unreachable.txt names its missed
lines: those it names are then left out, and the rest must reach the floor.
"""
import json
import os
import re
import sys

FLOOR = 80.0


def read_notes(path):
    """fuzz/unreachable.txt: "<file> | <lines> | <why>" per line; '#' starts a comment."""
    notes = {}
    try:
        with open(path, encoding="utf-8") as text:
            for number, line in enumerate(text, 1):
                line = line.split("#", 1)[0].strip()
                if not line:
                    continue
                fields = [field.strip() for field in line.split("|")]
                if (len(fields) != 3 or not all(fields)
                        or not re.fullmatch(r"\d+(-\d+)?(\s*,\s*\d+(-\d+)?)*", fields[1])):
                    sys.exit(f"{path}:{number}: expected '<file> | <lines> | <why>'")
                notes[fields[0]] = (fields[1], fields[2])
    except FileNotFoundError:
        pass
    return notes


def missed_lines(path, root):
    """The executable lines that ran no time, per file, from llvm-cov show's text."""
    missed, current = {}, None
    with open(path, encoding="utf-8", errors="replace") as text:
        for line in text:
            header = re.match(r"^(/\S+):$", line)
            if header:
                current = os.path.relpath(os.path.normpath(header.group(1)), root)
                missed.setdefault(current, set())
                continue
            counted = re.match(r"^\s*(\d+)\|\s*0\|", line)
            if counted and current is not None:
                missed[current].add(int(counted.group(1)))
    return missed


def line_numbers(ranges):
    """ "3-5, 9" as {3, 4, 5, 9}."""
    numbers = set()
    for part in ranges.split(","):
        first, _, last = part.strip().partition("-")
        numbers.update(range(int(first), int(last or first) + 1))
    return numbers


def share(part):
    if part["count"] == 0:
        return "-", 100.0
    return f"{part['covered']}/{part['count']} {part['percent']:5.1f}%", part["percent"]


def main(summary_path, lines_path, parsers_path, notes_path, root, *targets):
    with open(summary_path, encoding="utf-8") as text:
        summary = json.load(text)
    files = {}
    for export in summary["data"]:
        for entry in export["files"]:
            name = os.path.relpath(os.path.normpath(entry["filename"]), root)
            files[name] = entry["summary"]
    parsers = {}
    with open(parsers_path, encoding="utf-8") as text:
        for line in text:
            what, *sources = line.split()
            parsers[what] = sources
    notes = read_notes(notes_path)
    missed = missed_lines(lines_path, root)

    failed = False
    print(f"\n{'target':<24} {'parser file':<46} {'lines':>16} {'branches':>16}")
    for what in targets:
        for source in parsers.get(what, []):
            found = files.get(source)
            if found is None:
                print(f"{what:<24} {source:<46} {'not reached':>16}")
                failed = True
                continue
            lines, line_share = share(found["lines"])
            branches, _ = share(found["branches"])
            verdict = ""
            if line_share < FLOOR:
                if source in notes:
                    named = line_numbers(notes[source][0]) & missed.get(source, set())
                    total = found["lines"]["count"] - len(named)
                    rest = 100.0 * found["lines"]["covered"] / total if total else 100.0
                    verdict = f"  {rest:.1f}% without lines {notes[source][0]}: {notes[source][1]}"
                    if rest < FLOOR:
                        verdict = f"  BELOW {FLOOR:.0f}% even without the lines named unreachable ({rest:.1f}%)"
                        failed = True
                else:
                    verdict = f"  BELOW {FLOOR:.0f}%, not named in fuzz/unreachable.txt"
                    failed = True
            print(f"{what:<24} {source:<46} {lines:>16} {branches:>16}{verdict}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
