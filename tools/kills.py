#!/usr/bin/env python3
"""Kills the guide at random moments and checks after each kill that its profile is whole.

    tools/kills.py [--kills 200]

Each run starts the demo on a fresh profile or on one that was killed before, a day later by its own clock, so that
its lists are loaded again. Half of the runs are killed at a random moment, the other half while lists are written after
a load. Then `quellin-probe archives` reads every list, selection and catalogue of the profile, and every JSON file is
parsed. A load that ended 45 s before the kill must be in its list's file; the record of the sources, which is written
when a check ends, says what was loaded.

Prints one line for each kill and a summary. Exit status 1 when a file was damaged or a load not written.
"""
import argparse
import datetime
import json
import os
import pathlib
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
# Later than when any list was loaded plus the guide's interval of a day, so that every list is due again.
STEP = datetime.timedelta(hours=25)
# The guide writes 20 s after a check, so a load must be in its file this long after it ended.
MOST_BEHIND = datetime.timedelta(seconds=45)
# A run that has not written by then is killed all the same.
WRITE_TIMEOUT = 60


class Profile:
    def __init__(self, folder, now):
        self.folder = folder
        self.now = now
        self.caches = folder / "caches"

    def health(self):
        """For each channel when its list was loaded, by the guide's clock."""
        try:
            channels = json.loads((self.caches / "source-health.json").read_bytes())["channels"]
        except (OSError, ValueError, KeyError):
            return {}
        return {channel: datetime.datetime.fromisoformat(record["used"]["at"].replace("Z", "+00:00"))
                for channel, record in channels.items() if record.get("used")}

    def lists(self):
        """For each list's file name its inode: a replaced file has another one."""
        try:
            return {entry.name: entry.inode() for entry in os.scandir(self.caches) if entry.name.endswith(".plist")}
        except OSError:
            return {}

    def is_writing(self, before):
        try:
            names = os.listdir(self.caches)
        except OSError:
            return False
        return any(name.startswith(".replacing-") for name in names) or self.lists() != before

    def leftovers(self):
        return sum(1 for path in self.folder.rglob(".replacing-*") if path.is_file())

    def damaged(self, probe):
        """The names of files that cannot be read."""
        archives = [str(path) for path in self.folder.rglob("*.plist") if "demo" not in path.parts]
        damaged = []
        if archives:
            answer = subprocess.run([probe, "archives", *archives], capture_output=True, timeout=60)
            if answer.returncode != 0:
                return [answer.stderr.decode(errors="replace").strip() or f"the probe ended with {answer.returncode}"]
            damaged = [each["file"] for each in json.loads(answer.stdout)["archives"] if each["content"] is None]
        texts = [*self.folder.rglob("*.json"), *(path for path in (self.folder / "key-values").glob("*")
                                                 if path.is_file() and not path.name.startswith("."))]
        for path in set(texts):
            try:
                json.loads(path.read_bytes())
            except ValueError:
                damaged.append(str(path))
        return damaged

    def behind(self, killed):
        """How long before the kill the oldest load of this run ended that is not in its list's file."""
        longest = datetime.timedelta(0)
        for channel, loaded in self.health().items():
            path = self.caches / f"{channel}.plist"
            written = path.stat().st_mtime if path.exists() else 0
            if loaded >= self.now and loaded.timestamp() - written > 1:
                longest = max(longest, killed - loaded)
        return longest


class Run:
    """One start of the guide on a profile."""

    def __init__(self, guide, profile, log):
        self.profile = profile
        self.begun = time.monotonic()
        self.lasted = 0.0
        self.process = subprocess.Popen(
            [guide, "--demo", "--profile", str(profile.folder), "--now", f"{profile.now:%Y-%m-%dT%H:%M:%SZ}"],
            stdout=subprocess.DEVNULL, stderr=log, env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})

    def elapsed(self):
        return time.monotonic() - self.begun

    def clock(self):
        return self.profile.now + datetime.timedelta(seconds=self.elapsed())

    def until(self, condition, seconds, pause):
        end = time.monotonic() + seconds
        while time.monotonic() < end and self.process.poll() is None:
            if condition():
                return True
            if pause:
                time.sleep(pause)
        return False

    def kill(self):
        """The time of the kill by the guide's clock."""
        killed = self.clock()
        self.lasted = self.elapsed()
        self.process.send_signal(signal.SIGKILL)
        self.process.wait()
        return killed


def kill_while_writing(run, at_end, choose):
    """Kills during the first writing of lists after a load: the one that is due, or that of an ordinary end."""
    before = run.profile.lists()
    loaded = run.until(lambda: any(at >= run.profile.now for at in run.profile.health().values()), WRITE_TIMEOUT, 0.02)
    if loaded and at_end:
        run.process.terminate()
    writing = loaded and run.until(lambda: run.profile.is_writing(before), WRITE_TIMEOUT, 0 if at_end else 0.0005)
    if writing:
        # While the temporary files are written, or later, when they are flushed and renamed.
        time.sleep(choose.uniform(0, choose.choice((0.004, 0.06))))
    return run.kill(), writing


def arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--kills", type=int, default=200)
    parser.add_argument("--longest", type=float, default=45, metavar="SECONDS", help="latest random kill (45)")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--guide", default=str(ROOT / "build/dev/src/app/quellin-guide"))
    parser.add_argument("--probe", default=str(ROOT / "build/dev/src/probe/quellin-probe"))
    return parser.parse_args()


def main():
    options = arguments()
    choose = random.Random(options.seed)
    work = pathlib.Path(tempfile.mkdtemp(prefix="kills-"))
    today = datetime.datetime.now(datetime.timezone.utc).replace(microsecond=0)
    old = Profile(work / "old", today)
    failures = written_to = 0
    longest = datetime.timedelta(0)
    for number in range(options.kills):
        is_fresh, in_writing, at_end = number % 2 == 0, number // 2 % 2 == 1, number // 4 % 2 == 1
        profile = Profile(work / f"fresh-{number}", today) if is_fresh else old
        if not is_fresh:
            old.now += STEP
        log_path = work / f"{number}.log"
        with log_path.open("wb") as log:
            run = Run(options.guide, profile, log)
            if in_writing:
                killed, hit = kill_while_writing(run, at_end, choose)
            else:
                run.until(lambda: False, choose.uniform(0, options.longest), 0.01)
                killed, hit = run.kill(), False
        written_to += hit
        damaged = profile.damaged(options.probe)
        behind = profile.behind(killed)
        longest = max(longest, behind)
        ended = run.process.returncode != -signal.SIGKILL
        # A run that was told to end may be done before the kill; any other must still be running.
        failed = bool(damaged) or behind > MOST_BEHIND or (ended and not (in_writing and at_end))
        failures += failed
        print(f"{number + 1:4} {'fresh' if is_fresh else 'old  '} after {run.lasted:5.1f} s "
              f"{'writing at the end' if hit and at_end else 'writing when due' if hit else 'at random':18} "
              f"{len(profile.lists()):3} lists, {profile.leftovers()} unfinished, "
              f"unwritten for {behind.total_seconds():.0f} s, "
              + (f"DAMAGED {', '.join(damaged)}" if damaged else "none damaged")
              + (f", ended by itself with {run.process.returncode}" if ended else ""), flush=True)
        if failed:
            print(f"     the log is {log_path}", flush=True)
        elif is_fresh:
            shutil.rmtree(profile.folder, ignore_errors=True)
    print(f"{options.kills} kills, {written_to} of them during writing: {failures} failed, "
          f"loads unwritten for at most {longest.total_seconds():.0f} s")
    if failures == 0:
        shutil.rmtree(work, ignore_errors=True)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
