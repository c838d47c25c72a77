#!/usr/bin/env python3
"""Checks that includes go only downwards through the floors of the house.

Reads every `#include "folder/…"` below src/ and fails on an arrow that the table does not have.
"""
import pathlib
import re
import sys

# Lowest floor first. Folders of one floor do not see each other.
FLOORS = [
    ["text", "platform"],
    ["core"],
    ["sources", "store"],
    ["parsers"],
    ["alarms"],
    ["cloud"],
    ["screens"],
    ["ui", "demo"],
    ["app", "probe"],
]
# The device's real implementations: for whoever puts a program together, and for themselves.
SEES_LINUX = {"app", "probe", "platform/linux"}

FLOOR_OF = {folder: number for number, floor in enumerate(FLOORS) for folder in floor}
INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"')


def folder_of(path: str) -> str:
    parts = path.split("/")
    return "platform/linux" if parts[:2] == ["platform", "linux"] else parts[0]


def forbidden(source: str, target: str) -> str | None:
    """Why a file of folder `source` must not include one of `target`; None when it may."""
    if source == target:
        return None
    if target == "platform/linux":
        return None if source in SEES_LINUX else "only app/ and probe/ see platform/linux/"
    below = "platform" if source == "platform/linux" else source
    if below == target:
        return None
    # The implementations for one device may use the toolkit and platform/, and nothing above.
    if source not in FLOOR_OF and source != "platform/linux":
        return f"{source}/ has no floor"
    if FLOOR_OF[target] >= FLOOR_OF[below]:
        return f"{target}/ is not below {below}/"
    return None


def main() -> int:
    root = pathlib.Path(__file__).resolve().parent.parent / "src"
    faults = 0
    files = 0
    for path in sorted(root.rglob("*")):
        if path.suffix not in {".h", ".cpp"}:
            continue
        files += 1
        source = folder_of(str(path.relative_to(root)))
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            match = INCLUDE.match(line)
            if not match:
                continue
            included = match.group(1)
            if included.split("/")[0] not in FLOOR_OF:
                continue
            why = forbidden(source, folder_of(included))
            if why:
                print(f"src/{path.relative_to(root)}:{number}: includes {included}: {why}")
                faults += 1
    # The check has to notice what it is for.
    assert forbidden("core", "store") and forbidden("store", "sources") and forbidden("screens", "platform/linux")
    assert not forbidden("store", "core") and not forbidden("app", "platform/linux")
    if files == 0:
        print("no source files found")
        return 1
    print(f"{files} files, {faults} forbidden includes")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
