"""The coverage table of scripts/fuzz.sh --coverage.

Arguments: llvm-cov's export of the parser files (with their functions), its line counts
(show, as text), the build's fuzz-parsers.txt (a target and its parser files on each line),
fuzz/unreachable.txt, the top of the repository and the targets that were run. Prints per
target and parser file the lines and branches its corpus reaches; fails when a file is below
the floor unless fuzz/unreachable.txt names functions of it as out of reach: the lines of those
functions that were missed are then left out, and the rest must reach the floor. Functions are
named rather than lines so that the notes survive edits; a name that matches no function of
its file fails, so that a renamed function cannot leave a stale note.
"""
import subprocess
import json
import os
import re
import sys

FLOOR = 80.0


def read_notes(path):
    """fuzz/unreachable.txt: "<file> | <functions> | <why>" per line; '#' starts a comment."""
    notes = {}
    try:
        with open(path, encoding="utf-8") as text:
            for number, line in enumerate(text, 1):
                line = line.split("#", 1)[0].strip()
                if not line:
                    continue
                fields = [field.strip() for field in line.split("|")]
                if len(fields) != 3 or not all(fields):
                    sys.exit(f"{path}:{number}: expected '<file> | <functions> | <why>'")
                names = [name.strip() for name in fields[1].split(",") if name.strip()]
                notes[fields[0]] = (names, fields[2])
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


def plain_name(demangled):
    """ "Section.cpp:(anonymous namespace)::isWebUrl(std::string const&)" as
    "(anonymous namespace)::isWebUrl": no file prefix, parameters or ABI tags."""
    anonymous, call = "(anonymous namespace)", "operator()"
    name = demangled.replace(anonymous, "\0").replace(call, "\1")
    name = re.sub(r"\[abi:[^\]]*\]", "", name.split("(", 1)[0])
    name = name.split(":", 1)[1] if re.match(r"^[\w.-]+\.\w+:[^:]", name) else name
    return name.replace("\0", anonymous).replace("\1", call)


def function_spans(export, root):
    """{file: [(plain name, first line, last line)]} of the functions in llvm-cov's export."""
    functions = [f for data in export["data"] for f in data.get("functions", [])]
    demangled = subprocess.run(["c++filt"], input="\n".join(f["name"] for f in functions),
                               capture_output=True, text=True, check=True).stdout.split("\n")
    spans = {}
    for function, name in zip(functions, demangled):
        body = function["regions"][0]
        source = os.path.relpath(os.path.normpath(function["filenames"][body[5]]), root)
        spans.setdefault(source, []).append((plain_name(name), body[0], body[2]))
    return spans


def named_lines(names, spans, source):
    """The lines of the functions of `source` that `names` name (a name matches a function
    whose qualified name is it or ends in "::" and it); the names that match none."""
    lines, unmatched = set(), []
    for name in names:
        found = [(first, last) for plain, first, last in spans.get(source, [])
                 if plain == name or plain.endswith("::" + name)]
        if not found:
            unmatched.append(name)
        for first, last in found:
            lines.update(range(first, last + 1))
    return lines, unmatched


def share(part):
    if part["count"] == 0:
        return "-", 100.0
    return f"{part['covered']}/{part['count']} {part['percent']:5.1f}%", part["percent"]


def main(summary_path, lines_path, parsers_path, notes_path, root, *targets):
    with open(summary_path, encoding="utf-8") as text:
        summary = json.load(text)
    spans = function_spans(summary, root)
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
            if source in notes:
                named, unmatched = named_lines(notes[source][0], spans, source)
                if unmatched:
                    print(f"fuzz/unreachable.txt: {source} has no function {', '.join(unmatched)}")
                    failed = True
            if line_share < FLOOR:
                if source in notes:
                    named &= missed.get(source, set())
                    total = found["lines"]["count"] - len(named)
                    rest = 100.0 * found["lines"]["covered"] / total if total else 100.0
                    verdict = f"  {rest:.1f}% without {', '.join(notes[source][0])}: {notes[source][1]}"
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
