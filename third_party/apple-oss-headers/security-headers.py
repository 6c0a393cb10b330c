#!/usr/bin/env python3
"""Prints the files behind Security's installed-header symlinks (header_symlinks/Security and
header_symlinks/macOS/Security) of one tag, one "installed-name<TAB>repository-path" a line.
Links to links are followed; a link that leads nowhere in the tag is left out."""
import os
import subprocess
import sys

git_dir, tag = sys.argv[1], sys.argv[2]


def git(*args):
    return subprocess.run(["git", "--git-dir", git_dir, *args], check=True, capture_output=True, text=True).stdout


def entry(path):
    out = git("ls-tree", tag, "--", path).split("\n")[0]
    if not out:
        return None
    meta, _ = out.split("\t", 1)
    mode, _, blob = meta.split()
    return mode, blob


seen = {}
for folder in ("header_symlinks/Security", "header_symlinks/macOS/Security"):
    for line in git("ls-tree", tag, folder + "/").splitlines():
        meta, path = line.split("\t", 1)
        name = os.path.basename(path)
        for _ in range(8):
            found = entry(path)
            if found is None:
                path = None
                break
            mode, blob = found
            if mode != "120000":
                break
            path = os.path.normpath(os.path.join(os.path.dirname(path), git("cat-file", "-p", blob).strip()))
        if path is not None and name.endswith(".h"):
            seen[name] = path
for name, path in sorted(seen.items()):
    print(f"{name}\t{path}")
