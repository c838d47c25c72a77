#!/usr/bin/env python3
"""Writes a catalogue, a host table, a selection and icons for one XMLTV feed into a folder, with a copy of the feed.

    real_feed_catalogue.py FEED FOLDER
    (cd FOLDER && python3 -m http.server 8000 --bind 127.0.0.1)
    quellin-guide --catalogue FOLDER/Data.plist --hosts FOLDER/hosts.json --select FOLDER/selection.json --now TIME

Prints the last two commands, with an evening of the feed for TIME. FEED is an XMLTV file, plain, .gz or .xz.

Rows of the catalogue get a language that data/supported-channel-types.json supports: that of --language, or the one that
most titles of the feed have. A feed in any other language (Hungarian, say) goes under "en". The language of a row decides
only the alphabet of its texts and where the channel is listed.
"""
import argparse
import codecs
import datetime
import gzip
import hashlib
import json
import lzma
import pathlib
import plistlib
import re
import shutil
import sys
import unicodedata
import xml.etree.ElementTree as ElementTree
from collections import Counter

REGIONS = {"cs": "Czech", "sk": "Slovak", "en": "Other", "fr": "Other", "tr": "Other", "ru": "Other"}
# The guide unpacks an xz page to at most this multiple of its size.
XZ_ROOM = 23
TIME = re.compile(r"(\d{14}) ?([+-]\d{4})")

COLOURS = ["#2f6fde", "#d32638", "#4a2c82", "#1e8a4b", "#b92d76", "#0d7380", "#be5414", "#2f3f9e"]
ICON = """<svg xmlns="http://www.w3.org/2000/svg" width="150" height="108" viewBox="0 0 150 108">
  <rect width="150" height="108" rx="22" fill="{colour}"/>
  <text x="75" y="73" font-family="sans-serif" font-size="52" font-weight="bold" fill="#fff" text-anchor="middle">{text}</text>
</svg>
"""


def opened(path):
    """The feed's XML as a file of bytes."""
    with path.open("rb") as file:
        head = file.read(6)
    if head.startswith(b"\x1f\x8b"):
        return gzip.open(path)
    return lzma.open(path) if head == b"\xfd7zXZ\x00" else path.open("rb")


def moment(text):
    match = TIME.match(text or "")
    if not match:
        return None
    return datetime.datetime.strptime(match[1] + match[2], "%Y%m%d%H%M%S%z").astimezone(datetime.timezone.utc)


class Feed:
    """The channels and shows of a feed, in its order."""

    def __init__(self, path):
        self.names = {}
        self.shows = {}
        self.languages = Counter()
        with opened(path) as file:
            root = None
            for event, element in ElementTree.iterparse(file, events=("start", "end")):
                root = element if root is None else root
                if event == "start" or element.tag not in ("channel", "programme"):
                    continue
                if element.tag == "channel":
                    self.names.setdefault(element.get("id", ""), (element.findtext("display-name") or "").strip())
                else:
                    self.add_show(element)
                root.clear()

    def add_show(self, element):
        start, stop = moment(element.get("start")), moment(element.get("stop"))
        if start and stop and start < stop:
            self.shows.setdefault(element.get("channel", ""), []).append((start, stop))
            title = element.find("title")
            if title is not None and title.get("lang"):
                self.languages[title.get("lang")[:2].lower()] += 1

    def channels(self):
        """The ids of all channels with shows, those with a `channel` element first."""
        known = [each for each in self.names if each in self.shows]
        return [each for each in known + [each for each in self.shows if each not in self.names] if each]

    def evening(self):
        """19:30 UTC on the day when the most channels have a show on air at that time."""
        days = Counter()
        for shows in self.shows.values():
            for day in {start.date() + datetime.timedelta(days=i) for start, _ in shows for i in (0, 1)}:
                at = datetime.datetime.combine(day, datetime.time(19, 30), datetime.timezone.utc)
                # The guide also shows what comes next.
                if any(start <= at < stop for start, stop in shows) and any(start > at for start, _ in shows):
                    days[at] += 1
        return max(days, key=lambda at: (days[at], -at.timestamp())) if days else None

    def title(self, channel):
        """The channel's name, without an ending such as ".sk" when all names have it."""
        names = [self.names.get(each) or each for each in self.channels()]
        ending = names[0][-3:]
        name = self.names.get(channel) or channel
        return name[:-3] if ending.startswith(".") and all(each.endswith(ending) for each in names) else name

    def on_air(self, at):
        return [channel for channel in self.channels() if any(start <= at < stop for start, stop in self.shows[channel])]


def icon(name):
    """An SVG tile with up to three letters of the name."""
    plain = unicodedata.normalize("NFD", name).upper()
    words = [word for word in re.findall(r"[A-Z0-9+]+", plain) if word not in ("TV", "HD", "THE")] or ["TV"]
    text = words[0][:3] if len(words) == 1 or len(words[0]) == 3 else "".join(word[0] for word in words)[:3]
    return ICON.format(colour=COLOURS[hashlib.md5(name.encode()).digest()[0] % len(COLOURS)], text=text)


def place_feed(path, folder):
    """Copies the feed to where the guide requests it. Returns the prefix of its source ids."""
    with opened(path) as file:
        size, decoder = 0, codecs.getincrementaldecoder("utf-8")()
        try:
            for piece in iter(lambda: file.read(1 << 20), b""):
                size += len(piece)
                decoder.decode(piece)
            decoder.decode(b"", final=True)
        except UnicodeDecodeError:
            # The guide reads files as UTF-8, whatever they declare.
            with opened(path) as whole:
                ElementTree.parse(whole).write(folder / "epg.xml", encoding="utf-8", xml_declaration=True)
            return "n."
    with path.open("rb") as file:
        head = file.read(6)
    if head == b"\xfd7zXZ\x00" and size < path.stat().st_size * XZ_ROOM:
        shutil.copyfile(path, folder / "rytecfeed.xz")
        return "r.feed."
    if head == b"\xfd7zXZ\x00" or head.startswith(b"\x1f\x8b"):
        target = folder / "losmij" / "epg.xml.gz"
        target.parent.mkdir(exist_ok=True)
        if head.startswith(b"\x1f\x8b"):
            shutil.copyfile(path, target)
        else:
            with opened(path) as unpacked, gzip.open(target, "wb") as packed:
                shutil.copyfileobj(unpacked, packed)
        return "s."
    shutil.copyfile(path, folder / "epg.xml")
    return "n."


def slug(channel):
    plain = unicodedata.normalize("NFD", channel).encode("ascii", "ignore").decode().lower()
    return re.sub(r"[^a-z0-9]+", "-", plain).strip("-") + "-" + hashlib.md5(channel.encode()).hexdigest()[:6]


def arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("feed", type=pathlib.Path, help="XMLTV file, plain, .gz or .xz")
    parser.add_argument("folder", type=pathlib.Path, help="output folder")
    parser.add_argument("--port", type=int, default=8000, help="port of the server on 127.0.0.1 (default 8000)")
    parser.add_argument("--language", choices=sorted(REGIONS), help="language of the catalogue's rows")
    parser.add_argument("--select", type=int, default=12, metavar="N", help="how many channels to select (12)")
    parser.add_argument("--now", help="the evening to show, such as 2025-12-31T19:30:00Z")
    return parser.parse_args()


def main():
    options = arguments()
    try:
        feed = Feed(options.feed)
    except (OSError, EOFError, lzma.LZMAError, ElementTree.ParseError) as error:
        return f"{options.feed}: {error}"
    channels = feed.channels()
    at = moment(re.sub(r"[-:T]", "", options.now[:19]) + "+0000") if options.now else feed.evening()
    if not channels or at is None:
        return f"{options.feed}: no channel has a show with a start and a stop that could be shown"

    marks = [language for language, _ in feed.languages.most_common(1) if language in REGIONS]
    language = options.language or (marks[0] if marks else "en")
    icons = options.folder / "icons"
    icons.mkdir(parents=True, exist_ok=True)
    prefix = place_feed(options.feed, options.folder)
    rows = []
    for channel in channels:
        title = feed.title(channel)
        name = slug(channel)
        (icons / (name + ".svg")).write_text(icon(title))
        rows.append({"Location": hashlib.md5(channel.encode()).hexdigest()[:24], "Title": title,
                     "Language": language, "Icon": REGIONS[language] + "/" + name, "Location1": prefix + channel})
    identities = {channel: row["Location"] for channel, row in zip(channels, rows)}
    selected = feed.on_air(at)[:options.select]

    base = f"http://127.0.0.1:{options.port}"
    hosts = {key: base for key in ("RytecMirrorA", "RytecMirrorB", "NFeedHost", "SFeedHost")}
    with (options.folder / "Data.plist").open("wb") as file:
        plistlib.dump({"Channels": rows}, file)
    (options.folder / "hosts.json").write_text(json.dumps(hosts, indent=2) + "\n")
    (options.folder / "selection.json").write_text(json.dumps([identities[each] for each in selected], indent=2) + "\n")

    folder = options.folder
    print(f"{len(rows)} channels, {sum(map(len, feed.shows.values()))} shows; selected: " +
          ", ".join(feed.title(each) for each in selected))
    print(f"(cd {folder} && python3 -m http.server {options.port} --bind 127.0.0.1)")
    print(f"quellin-guide --catalogue {folder}/Data.plist --hosts {folder}/hosts.json "
          f"--select {folder}/selection.json --now {at:%Y-%m-%dT%H:%M:%SZ}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
