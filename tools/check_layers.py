#!/usr/bin/env python3
"""Checks the #include lines of src/ against the table of layers below and fails on any pair that it does not allow."""
import pathlib
import re
import sys

# For each folder of src/, the other folders that its files may include from.
ALLOWED = {
    "platform": "",
    "platform/linux": "platform",
    "platform/memory": "platform",
    "text": "",
    "core": "platform text",
    "store": "core platform text",
    "sources": "core platform text",
    "parsers": "core platform sources store text",
    "alarms": "core platform sources store text",
    "cloud": "alarms core platform store",
    "screens": "alarms cloud core platform sources store text",
    "ui": "core platform screens store text",
    "demo": "core platform sources store text",
    "app": "alarms cloud core demo parsers platform platform/linux platform/memory screens sources store text ui",
    "agent": "platform platform/linux text",
    "probe": "alarms cloud core parsers platform platform/linux platform/memory sources store text",
}
INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"')


def folder_of(path: str) -> str:
    """The entry of the table that a path below src/ belongs to: the longest one."""
    parts = path.split("/")[:-1]
    for length in range(len(parts), 0, -1):
        if (folder := "/".join(parts[:length])) in ALLOWED:
            return folder
    return parts[0] if parts else ""


def is_allowed(source: str, target: str) -> bool:
    return source == target or target in ALLOWED.get(source, "").split()


def self_check() -> None:
    forbidden = ["core store", "store sources", "screens parsers", "screens platform/linux", "store platform/memory"]
    allowed = ["store core", "app platform/linux", "probe platform/memory", "parsers parsers"]
    assert not any(is_allowed(*pair.split()) for pair in forbidden)
    assert all(is_allowed(*pair.split()) for pair in allowed)
    assert folder_of("platform/linux/Clock.cpp") == "platform/linux" and folder_of("parsers/xmltv/A.h") == "parsers"
    assert INCLUDE.match('  #include "core/ObjectId.h"') and not INCLUDE.match("#include <QString>")


def main() -> int:
    self_check()
    root = pathlib.Path(__file__).resolve().parent.parent / "src"
    folders = {path.name for path in root.iterdir() if path.is_dir()}
    files = 0
    faults = []
    for path in sorted(root.rglob("*")):
        if path.suffix not in {".h", ".cpp"}:
            continue
        files += 1
        source = folder_of(path.relative_to(root).as_posix())
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            match = INCLUDE.match(line)
            # Headers that a tool generates have no folder.
            if not match or match[1].split("/")[0] not in folders:
                continue
            target = folder_of(match[1])
            if not is_allowed(source, target):
                faults.append(f"{path.relative_to(root.parent)}:{number}: {source}/ must not include {match[1]}")
    print(*faults, f"{files} files, {len(faults)} forbidden includes", sep="\n")
    return 1 if faults or files == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
