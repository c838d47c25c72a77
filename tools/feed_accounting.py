#!/usr/bin/env python3
"""Accounts for every programme of every feed in a folder: counted by another parser, kept by the guide's reader.

usage: feed_accounting.py FOLDER [--program FEED_LISTS] [--now TIME]

Reads the *.xml, *.xml.gz and *.xml.xz files below FOLDER with Python's own parser, walks through each as the rules of
the reader say, and notes for each programme whether it is kept or why not. Then the reader itself (the program
`feed-lists` of the build) reads the same bytes: what it keeps of each channel has to be what was counted here.

  ended       its stop is not after now (2000-01-01, when no --now is given)
  no stop     it has no stop
  bad date    its stop is no date: digits missing, no offset from UTC, the name of a zone
  placeholder its title says that there is nothing
  after one   it follows a placeholder, whose place its title is lost in
  no title    it has no title
  cut off     the document ends, or stops being XML, inside it

Exits with 1 when the numbers do not add up, or when leaving out unwanted channels before the parse changes a list.
"""
import argparse
import collections
import datetime
import gzip
import json
import lzma
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.parsers.expat

REASONS = ["kept", "ended", "no stop", "bad date", "placeholder", "after one", "no title", "cut off"]
PLACEHOLDERS = {"NEMA INFORMACIJA", "Nema informacija o programu"}
DATE = re.compile(r"(\d{14}) ?(?:[Zz]|([+-])(\d\d)(?::?(\d\d))?)", re.ASCII)
DECLARATION = re.compile(rb"<\?xml[^>]*?encoding\s*=\s*[\"']([A-Za-z0-9._-]+)")
UTC = datetime.timezone.utc


def feed_date(text: str) -> datetime.datetime | None:
    match = DATE.fullmatch(text)
    if not match:
        return None
    digits, sign, hours, minutes = match.groups()
    hours, minutes = int(hours or 0), int(minutes or 0)
    if hours > 23 or minutes > 59:
        return None
    try:
        moment = datetime.datetime.strptime(digits, "%Y%m%d%H%M%S").replace(tzinfo=UTC)
        offset = datetime.timedelta(hours=hours, minutes=minutes)
        return moment + offset if sign == "-" else moment - offset
    except (ValueError, OverflowError):
        return None


class Count:
    """One feed, walked through by the rules of the reader."""

    def __init__(self, document: bytes, now: datetime.datetime):
        self.now = now
        self.programmes = 0
        self.reasons = collections.Counter()
        self.kept = collections.Counter()
        # The show under construction: its channel and its title. A show that comes to nothing stays until the next.
        self.channel: str | None = None
        self.title: str | None = None
        self.inside: str | None = None
        self.title_closed = False
        # Why the programmes that are open will be dropped, as far as their beginning tells, with whether the title
        # of one was lost to the placeholder before it.
        self.open: list[tuple[str | None, bool]] = []
        parser = xml.parsers.expat.ParserCreate("UTF-8")
        parser.buffer_text = True
        parser.StartElementHandler = self.start
        parser.EndElementHandler = self.end
        parser.CharacterDataHandler = self.text
        try:
            parser.Parse(document, True)
        except xml.parsers.expat.ExpatError:
            pass
        self.reasons["cut off"] += len(self.open)

    def start(self, name: str, attributes: dict[str, str]) -> None:
        self.inside = name
        if name != "programme":
            return
        self.programmes += 1
        reason = None
        if "stop" not in attributes:
            reason = "no stop"
        else:
            stop = feed_date(attributes["stop"])
            if stop and "Plus1" in attributes.get("channel", ""):
                stop -= datetime.timedelta(hours=1)
            if not stop:
                reason = "bad date"
            elif stop <= self.now:
                reason = "ended"
            else:
                self.channel = attributes.get("channel", "")
                self.title = None
        self.open.append((reason, self.title_closed))

    def text(self, text: str) -> None:
        if self.inside == "title" and self.channel is not None and not self.title_closed:
            self.title = (self.title or "") + text

    def end(self, name: str) -> None:
        if name != "programme":
            self.inside = "programme" if self.inside else None
            self.title_closed = self.title_closed or name == "title"
            return
        reason, follows_placeholder = self.open.pop()
        if self.channel is not None and self.title is not None:
            if self.title.replace("\\n", "") in PLACEHOLDERS:
                self.reasons[reason or "placeholder"] += 1
                return
            # A programme that is dropped may give its title to a show that had none.
            self.reasons["kept"] += 1
            self.kept[self.channel] += 1
            self.channel = None
        else:
            self.reasons[reason or ("after one" if follows_placeholder else "no title")] += 1
        self.inside = None
        self.title_closed = False


def utf8(path: pathlib.Path) -> bytes:
    opener = {".gz": gzip.open, ".xz": lzma.open}.get(path.suffix, open)
    with opener(path, "rb") as file:
        document = file.read()
    try:
        document.decode("utf-8")
    except UnicodeDecodeError:
        match = DECLARATION.match(document)
        document = document.decode(match.group(1).decode() if match else "latin-1", "replace").encode()
    return document.split(b"\0", 1)[0]


def account(path: pathlib.Path, program: pathlib.Path, now: datetime.datetime) -> tuple[Count, dict]:
    document = utf8(path)
    with tempfile.NamedTemporaryFile(suffix=".xml") as plain:
        plain.write(document)
        plain.flush()
        ran = subprocess.run([program, now.strftime("%Y-%m-%dT%H:%M:%SZ"), plain.name], capture_output=True, check=True)
    # A declared encoding no longer tells the truth; expat is told so, and the reader ignores it.
    return Count(document, now), json.loads(ran.stdout)


def main() -> int:
    arguments = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    arguments.add_argument("folder", type=pathlib.Path)
    root = pathlib.Path(__file__).resolve().parent.parent
    arguments.add_argument("--program", type=pathlib.Path, default=root / "build/dev/tools/feed-lists")
    arguments.add_argument("--now", default="2000-01-01T00:00:00+00:00")
    options = arguments.parse_args()
    now = datetime.datetime.fromisoformat(options.now.replace("Z", "+00:00")).astimezone(UTC)

    feeds = sorted(path for path in options.folder.rglob("*") if re.search(r"\.xml(\.gz|\.xz)?$", path.name))
    if not feeds:
        sys.exit(f"no feeds in {options.folder}")
    width = max(len(str(path.relative_to(options.folder))) for path in feeds)
    print(f"{'feed':{width}} {'programmes':>11}" + "".join(f"{reason:>12}" for reason in REASONS))
    faults = []
    for path in feeds:
        name = str(path.relative_to(options.folder))
        count, reader = account(path, options.program, now)
        print(f"{name:{width}} {count.programmes:>11}" + "".join(f"{count.reasons[reason]:>12}" for reason in REASONS))
        if count.reasons.total() != count.programmes:
            faults.append(f"{name}: {count.reasons.total()} of {count.programmes} programmes accounted for")
        for channel in sorted(set(count.kept) | set(reader["kept"])):
            if count.kept[channel] != reader["kept"].get(channel, 0):
                faults.append(f"{name}: channel {channel!r}: counted {count.kept[channel]}, "
                              f"the reader kept {reader['kept'].get(channel, 0)}")
        if reader["differing"]:
            faults.append(f"{name}: {reader['differing']} of {reader['filters']} filters change a list")
    print("\n".join(faults) or "Everything is accounted for.")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
