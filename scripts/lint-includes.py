#!/usr/bin/env python3
"""Holds the includes of src/ against the order of the folders in docs/architecture.md.

The table there has a row for each folder: | order | folder | ... |. A file may include its own folder and those
of a lower order. Qt headers stand in folders named qt and in shell/Main.cpp only.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
ROW = re.compile(r"^\|\s*(\d+)\s*\|\s*`([a-z_/]+)`\s*\|", re.M)
INCLUDE = re.compile(r'^\s*#\s*include\s+(["<])([^">]+)[">]', re.M)


def main():
    order = {folder: int(n) for n, folder in ROW.findall((ROOT / "docs/architecture.md").read_text("utf-8"))}
    faults = []
    for path in sorted((ROOT / "src").rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        name = path.relative_to(ROOT / "src").as_posix()
        folder = path.parent.relative_to(ROOT / "src").as_posix()
        is_view = folder.endswith("qt") or name == "shell/Main.cpp"
        if folder not in order:
            faults.append(f"{name}: the folder {folder} stands in no row of docs/architecture.md")
            continue
        for kind, included in INCLUDE.findall(path.read_text("utf-8")):
            target = included.rsplit("/", 1)[0] if "/" in included else ""
            if kind == "<" and included.startswith("Q") and not is_view:
                faults.append(f"{name}: includes the toolkit header <{included}>")
            elif target in order and order[target] > order[folder] and name != "shell/Main.cpp":
                faults.append(f"{name}: includes {included}, which lies above {folder}")
    print("\n".join(faults) if faults else f"includes: {len(order)} folders in order")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
