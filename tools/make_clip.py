#!/usr/bin/env python3
"""Draws data/demo/clip.ogv, the stream of the demo's channels: a boat crosses a bay in ten seconds, with a soft chord.

Needs gst-launch-1.0 (package gstreamer1.0-tools) with the base plug-ins.
"""
import math
import pathlib
import subprocess

WIDTH, HEIGHT, RATE, SECONDS = 480, 270, 12, 10
HORIZON = 170
TARGET = pathlib.Path(__file__).resolve().parent.parent / "data" / "demo" / "clip.ogv"


def mixed(one, other, share):
    return tuple(round(a + (b - a) * share) for a, b in zip(one, other))


def span(row, start, end, colour):
    start, end = max(0, round(start)), min(WIDTH, round(end))
    if end > start:
        row[3 * start:3 * end] = bytes(colour) * (end - start)


def frame(turn):
    """The picture at `turn` of the whole, from 0 to 1; the last one leads back to the first."""
    angle = 2 * math.pi * turn
    boat = -60 + turn * (WIDTH + 120)
    sun_x, sun_y = WIDTH * 0.72, 82 + 6 * math.sin(angle)
    picture = bytearray()
    for y in range(HEIGHT):
        if y < HORIZON:
            row = bytearray(bytes(mixed((58, 110, 165), (245, 205, 150), y / HORIZON)) * WIDTH)
            inside = 30**2 - (y - sun_y)**2
            if inside > 0:
                span(row, sun_x - math.sqrt(inside), sun_x + math.sqrt(inside), (255, 232, 180))
            for peak, at, slope, colour in ((70, 90, 1.5, (96, 112, 140)), (100, 210, 2.2, (80, 98, 124))):
                if y > peak:
                    span(row, at - (y - peak) * slope, at + (y - peak) * slope, colour)
        else:
            depth = (y - HORIZON) / (HEIGHT - HORIZON)
            row = bytearray(bytes(mixed((120, 160, 180), (30, 70, 100), depth)) * WIDTH)
            if (y - HORIZON) % 9 == 4:
                for x in range(0, WIDTH, 60):
                    shift = 14 * math.sin(angle + y)
                    span(row, x + shift, x + 10 + 22 * depth + shift, (190, 210, 215))
        top = 120 + 2 * math.sin(4 * angle)
        if top <= y < top + 58:
            span(row, boat, boat + (y - top) * 0.62, (250, 248, 240))
            span(row, boat - 3 - (y - top) * 0.3, boat - 3, (222, 90, 70))
        elif top + 60 <= y < top + 74:
            span(row, boat - 34 + (y - top - 60), boat + 46 - (y - top - 60) * 1.4, (94, 62, 48))
        picture += row
    return bytes(picture)


def main():
    frames = RATE * SECONDS
    pipeline = (
        f"fdsrc ! rawvideoparse format=rgb width={WIDTH} height={HEIGHT} framerate={RATE}/1 ! videoconvert ! "
        f"theoraenc bitrate=150 keyframe-force=24 ! queue ! oggmux name=mux ! filesink location={TARGET} "
        f"audiotestsrc wave=sine freq=220 volume=0.04 samplesperbuffer=4410 num-buffers={SECONDS * 5} ! "
        "audio/x-raw,rate=22050,channels=1 ! audioconvert ! vorbisenc quality=0.05 ! queue ! mux.")
    launch = subprocess.Popen(["gst-launch-1.0", "-q", *pipeline.split()], stdin=subprocess.PIPE)
    for number in range(frames):
        launch.stdin.write(frame(number / frames))
    launch.stdin.close()
    launch.wait()
    print(TARGET, TARGET.stat().st_size, "bytes")
    return launch.returncode


if __name__ == "__main__":
    raise SystemExit(main())
