#!/usr/bin/env python3
"""Every subcommand that `tvpolicy --help` lists has a section in tvpolicy(1) ("## run",
"## wifi status"), and every option its --help shows is described in that section.

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
    names = []
    for line in block(text, "options"):
        if line.startswith("-"):
            names += [name for name in line.split()[0].split(",") if name.startswith("-")]
    return [name for name in names if name not in ("-h", "--help")]


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
        for option in wanted:
            checked += 1
            # On a line of its own that starts with an option, as scdoc's definition lists do,
            # not merely in a synopsis.
            pattern = r"^(?:\*-[^*\n]*\*, )*\*" + re.escape(option) + r"\*"
            if not re.search(pattern, sections[name], re.MULTILINE):
                faults.append(f"tvpolicy {name}: {option} is not described in its section")
    for fault in faults:
        print(fault)
    print(f"{checked} options checked")
    return 1 if faults or checked == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
