#!/usr/bin/env python3
"""Makes a guide of one XMLTV feed: a catalogue, a host table, a selection and icons, in one folder with the feed.

    real_feed_catalogue.py FEED FOLDER
    (cd FOLDER && python3 -m http.server 8000 --bind 127.0.0.1)
    quellin-guide --catalogue FOLDER/Data.plist --hosts FOLDER/hosts.json --select FOLDER/selection.json --now TIME

The last line is printed as it has to be typed, with an evening of the feed for TIME. FEED is an XMLTV file, plain, .gz
or .xz; it is copied to where the guide looks for the feed of a family.

The guide serves the pairs of language and region that its data/supported-channel-types.json lists. The rows of the
catalogue get the pair of --language: "sk" is Slovak, "cs" Czech, "en", "fr", "tr" and "ru" are Other. Without the option
the mark that most titles of the feed have decides. A feed in a language that has no pair (Hungarian, say) goes under
"en", Other: the language of a row chooses the alphabet of its texts and where the channel is listed, and no text is
changed by it.
"""
import argparse
import codecs
import datetime
import gzip
import hashlib
import json
import lzma
import math
import pathlib
import plistlib
import re
import shutil
import struct
import sys
import unicodedata
import xml.etree.ElementTree as ElementTree
import zlib
from collections import Counter

REGIONS = {"cs": "Czech", "sk": "Slovak", "en": "Other", "fr": "Other", "tr": "Other", "ru": "Other"}
# The guide unpacks an xz page into no more than so many times its size.
XZ_ROOM = 23
TIME = re.compile(r"(\d{14}) ?([+-]\d{4})")

# Letters of five by seven dots, a number a row, the leftmost dot the highest bit.
FONT = {
    "A": (14, 17, 17, 31, 17, 17, 17), "B": (30, 17, 17, 30, 17, 17, 30), "C": (14, 17, 16, 16, 16, 17, 14),
    "D": (30, 17, 17, 17, 17, 17, 30), "E": (31, 16, 16, 30, 16, 16, 31), "F": (31, 16, 16, 30, 16, 16, 16),
    "G": (14, 17, 16, 23, 17, 17, 15), "H": (17, 17, 17, 31, 17, 17, 17), "I": (14, 4, 4, 4, 4, 4, 14),
    "J": (7, 2, 2, 2, 2, 18, 12), "K": (17, 18, 20, 24, 20, 18, 17), "L": (16, 16, 16, 16, 16, 16, 31),
    "M": (17, 27, 21, 21, 17, 17, 17), "N": (17, 17, 25, 21, 19, 17, 17), "O": (14, 17, 17, 17, 17, 17, 14),
    "P": (30, 17, 17, 30, 16, 16, 16), "Q": (14, 17, 17, 17, 21, 18, 13), "R": (30, 17, 17, 30, 20, 18, 17),
    "S": (15, 16, 16, 14, 1, 1, 30), "T": (31, 4, 4, 4, 4, 4, 4), "U": (17, 17, 17, 17, 17, 17, 14),
    "V": (17, 17, 17, 17, 17, 10, 4), "W": (17, 17, 17, 21, 21, 21, 10), "X": (17, 17, 10, 4, 10, 17, 17),
    "Y": (17, 17, 17, 10, 4, 4, 4), "Z": (31, 1, 2, 4, 8, 16, 31), "0": (14, 17, 19, 21, 25, 17, 14),
    "1": (4, 12, 4, 4, 4, 4, 14), "2": (14, 17, 1, 2, 4, 8, 31), "3": (31, 2, 4, 2, 1, 17, 14),
    "4": (2, 6, 10, 18, 31, 2, 2), "5": (31, 16, 30, 1, 1, 17, 14), "6": (6, 8, 16, 30, 17, 17, 14),
    "7": (31, 1, 2, 4, 8, 8, 8), "8": (14, 17, 17, 14, 17, 17, 14), "9": (14, 17, 17, 15, 1, 2, 12),
    "+": (0, 4, 4, 31, 4, 4, 0),
}
COLOURS = [(47, 111, 222), (211, 38, 56), (74, 44, 130), (30, 138, 75), (185, 45, 118), (13, 115, 128), (190, 84, 20),
           (47, 63, 158), (18, 53, 91), (100, 40, 90), (122, 86, 55), (60, 66, 78)]


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
    """What a feed says of its channels, in its own order."""

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
        """Half past seven (UTC) of the day on which most channels have something on then."""
        days = Counter()
        for shows in self.shows.values():
            for day in {start.date() + datetime.timedelta(days=i) for start, _ in shows for i in (0, 1)}:
                at = datetime.datetime.combine(day, datetime.time(19, 30), datetime.timezone.utc)
                # A later show as well: a guide shows what comes next.
                if any(start <= at < stop for start, stop in shows) and any(start > at for start, _ in shows):
                    days[at] += 1
        return max(days, key=lambda at: (days[at], -at.timestamp())) if days else None

    def title(self, channel):
        """The channel's name, without an ending such as ".sk" when all names have it."""
        names = [self.names.get(each) or each for each in self.channels()]
        ending = names[0][-3:]
        name = self.names.get(channel) or channel
        return name[:-3] if ending.startswith(".") and all(each.endswith(ending) for each in names) else name

    def variety(self, channel):
        """How evenly a channel mixes short and long shows (the entropy of their lengths): a channel for everybody has
        news, series and films, where one for cartoons has one length all day."""
        lengths = Counter(sum((stop - start).total_seconds() > minutes * 60 for minutes in (12, 35, 65, 100))
                          for start, stop in self.shows[channel])
        total = sum(lengths.values())
        return -sum(count / total * math.log(count / total) for count in lengths.values())

    def most_varied(self, count, at):
        """Channels with something on at the moment, those for everybody first."""
        on_air = [channel for channel in self.channels()
                  if any(start <= at < stop for start, stop in self.shows[channel])]
        return sorted(on_air, key=lambda channel: -self.variety(channel))[:count]


def initials(name):
    """Up to three letters or digits that stand for the name."""
    plain = unicodedata.normalize("NFD", name).upper()
    words = ["".join(c for c in word if c in FONT) for word in re.split(r"[\s\-_.:/]+", plain)]
    words = [word for word in words if word and word not in ("TV", "HD", "THE")]
    if not words:
        return "TV"
    if len(words) == 1 or len(words[0]) == 3:
        return words[0][:3]
    first = words[0][:2] if len(words[0]) <= 2 else words[0][:1]
    return (first + "".join(word[:1] for word in words[1:]))[:3]


def tile_cover(width, height, radius):
    """How much of each dot lies in a tile with round corners, 0 to 255, a row of bytes a line."""
    rows = []
    for y in range(height):
        dy = max(radius - y - 0.5, y + 0.5 - (height - radius), 0)
        reach = [max(radius - x - 0.5, x + 0.5 - (width - radius), 0) for x in range(width)]
        rows.append(bytes(round(255 * min(max(radius + 0.5 - (dx * dx + dy * dy) ** 0.5, 0), 1)) for dx in reach))
    return rows


TILE = (150, 108)
COVER = tile_cover(*TILE, 22)


def icon(name):
    """A PNG: white letters on a tile whose colour is the name's own."""
    width, height = TILE
    text = initials(name)
    colour = COLOURS[hashlib.md5(name.encode()).digest()[0] % len(COLOURS)]
    dot = 8 if len(text) < 3 else 7
    left = (width - (len(text) * 6 - 1) * dot) // 2
    top = (height - 7 * dot) // 2
    rows = bytearray()
    for y in range(height):
        line = bytearray(bytes((*colour, 0)) * width)
        line[3::4] = COVER[y]
        row = (y - top) // dot
        for place, letter in enumerate(text if 0 <= row < 7 else ""):
            for column in range(5):
                if FONT[letter][row] >> (4 - column) & 1:
                    x = left + (place * 6 + column) * dot
                    line[4 * x:4 * (x + dot)] = b"\xff" * (4 * dot)
        rows += b"\0" + line

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0)) +
            chunk(b"IDAT", zlib.compress(bytes(rows), 9)) + chunk(b"IEND", b""))


def place_feed(path, folder):
    """Copies the feed to where its family looks for it. Answers the beginning of its source ids."""
    with opened(path) as file:
        size, decoder = 0, codecs.getincrementaldecoder("utf-8")()
        try:
            for piece in iter(lambda: file.read(1 << 20), b""):
                size += len(piece)
                decoder.decode(piece)
            decoder.decode(b"", final=True)
        except UnicodeDecodeError:
            # The guide reads files as UTF-8, whatever they say of themselves.
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


def place_icon(channel, title, icons, given):
    """Puts the channel's icon into the folder: the given one, by feed id or title, or one of letters."""
    name = slug(channel)
    for stem in (channel, title):
        for found in sorted(given.glob("*")) if given else ():
            if found.stem.lower() == stem.lower():
                shutil.copyfile(found, icons / (name + found.suffix.lower()))
                return name
    (icons / (name + ".png")).write_bytes(icon(title))
    return name


def arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("feed", type=pathlib.Path, help="XMLTV file, plain, .gz or .xz")
    parser.add_argument("folder", type=pathlib.Path, help="where everything goes; made when it is missing")
    parser.add_argument("--port", type=int, default=8000, help="of the server on 127.0.0.1 (8000)")
    parser.add_argument("--language", choices=sorted(REGIONS), help="language of the catalogue's rows")
    parser.add_argument("--icons", type=pathlib.Path, help="folder of pictures named by feed id or channel name")
    parser.add_argument("--select", type=int, default=12, metavar="N", help="how many channels to select (12)")
    parser.add_argument("--pick", default="", metavar="ID,ID…", help="feed ids to select, in this order, instead")
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
        rows.append({"Location": hashlib.md5(channel.encode()).hexdigest()[:24], "Title": title,
                     "Language": language, "Icon": REGIONS[language] + "/" + place_icon(channel, title, icons, options.icons),
                     "Location1": prefix + channel})
    identities = {channel: row["Location"] for channel, row in zip(channels, rows)}
    picked = [each for each in options.pick.split(",") if each in identities]
    selected = picked or feed.most_varied(options.select, at)

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
