#!/usr/bin/env python3
"""Every subcommand that `tvpolicy --help` lists has a section in tvpolicy(1) ("## run",
"## wifi status"), and every option its --help shows is described in that section, taking a
value there exactly when it takes one in --help.

Usage: manpage_options.py TVPOLICY MANPAGE.scd
"""
import re
import subprocess
import sys


def help_text(program, path):
    done = subprocess.run([program, *path, "--help"], capture_output=True, text=True, timeout=30)
    if done.returncode != 0:
        raise SystemExit(f"{' '.join(['tvpolicy', *path, '--help'])} exited {done.returncode}: {done.stderr}")
    return done.stdout


def block(text, title):
    """The indented lines under a help heading such as 'Options:'."""
    lines, inside = [], False
    for line in text.splitlines():
        if re.match(r"^[A-Z][A-Za-z ]*:\s*$", line):
            inside = line.strip().rstrip(":").lower() == title
            continue
        if inside and line.startswith("  "):
            lines.append(line.strip())
    return lines


def options(text):
    """Each option's name and whether it takes a value ("--output FILE", not "--json")."""
    found = []
    for line in block(text, "options"):
        if line.startswith("-"):
            # "--once Excludes: --count" names no value: CLI11's notes end in a colon.
            left = re.split(r"\s{2,}", line)[0].split()
            takes_value = len(left) > 1 and not left[1].endswith(":")
            found += [(name, takes_value) for name in left[0].split(",") if name.startswith("-")]
    return [(name, value) for name, value in found if name not in ("-h", "--help")]


def subcommands(text):
    return [line.split()[0] for line in block(text, "subcommands") if line]


def man_sections(source):
    sections, current = {}, None
    for line in source.splitlines():
        heading = re.match(r"^(#+) (.*)$", line)
        if heading:
            current = heading.group(2).strip() if heading.group(1) == "##" else None
            if current is not None:
                sections[current] = ""
        elif current is not None:
            sections[current] += line + "\n"
    return sections


def main():
    program, manpage = sys.argv[1], sys.argv[2]
    with open(manpage, encoding="utf-8") as f:
        sections = man_sections(f.read())

    faults, checked = [], 0
    pending = [[name] for name in subcommands(help_text(program, []))]
    while pending:
        path = pending.pop(0)
        text = help_text(program, path)
        nested = subcommands(text)
        pending += [path + [name] for name in nested]
        wanted = options(text)
        name = " ".join(path)
        if nested and not wanted:
            continue  # a group such as "wifi": its subcommands have the sections
        if name not in sections:
            faults.append(f"tvpolicy {name}: no section '## {name}' in the manual")
            continue
        for option, takes_value in wanted:
            checked += 1
            # On a line of its own that starts with an option, as scdoc's definition lists do,
            # not merely in a synopsis; its value (_FILE_) on the same line.
            pattern = r"^(?:\*-[^*\n]*\*, )*\*" + re.escape(option) + r"\*(.*)$"
            found = re.search(pattern, sections[name], re.MULTILINE)
            if not found:
                faults.append(f"tvpolicy {name}: {option} is not described in its section")
            elif ("_" in found.group(1)) != takes_value:
                faults.append(f"tvpolicy {name}: {option} " + ("takes a value, which the manual does not name"
                                                               if takes_value else
                                                               f"takes no value, but the manual gives it{found.group(1)}"))
    for fault in faults:
        print(fault)
    print(f"{checked} options checked")
    return 1 if faults or checked == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
