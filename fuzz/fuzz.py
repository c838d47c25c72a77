#!/usr/bin/env python3
"""Fuzzes every target for an equal share of the time and prints executions, coverage and failures.

usage: fuzz.py PROGRAM SECONDS [NAME...]

PROGRAM is guide_fuzz; each NAME is one of its targets (default: all). Corpora, dictionaries and failing inputs are kept
in folders next to the program and used by the next run. Exits with 1 when a target failed.
"""
import concurrent.futures
import os
import pathlib
import re
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
LONGEST_INPUT = 64 * 1024
SLOWEST_INPUT_SECONDS = 20
MEMORY_MB = 2048

# A C++ string literal, raw or quoted.
LITERAL = re.compile(r'R"(?P<mark>[^()\s\\]{0,16})\((?P<raw>.*?)\)(?P=mark)"|"(?P<quoted>(?:[^"\\\n]|\\.)*)"', re.S)
ESCAPE = re.compile(r'\\(x[0-9a-fA-F]{1,2}|[0-7]{1,3}|.)', re.S)
NAMED = {"n": "\n", "t": "\t", "r": "\r", "0": "\0"}


def unescaped(text: str) -> bytes:
    def one(match: re.Match) -> bytes:
        code = match[1]
        if code.startswith("x"):
            return bytes([int(code[1:], 16)])
        return NAMED.get(code, code).encode()

    pieces = []
    end = 0
    for match in ESCAPE.finditer(text):
        pieces += [text[end : match.start()].encode(), one(match)]
        end = match.end()
    return b"".join(pieces) + text[end:].encode()


def literals(source: pathlib.Path) -> set[bytes]:
    """The string literals of a source file, without its includes."""
    code = re.sub(r"^\s*(#include|//).*$", "", source.read_text(encoding="utf-8"), flags=re.M)
    found = set()
    for match in LITERAL.finditer(code):
        text = match["raw"].encode() if match["raw"] is not None else unescaped(match["quoted"])
        if 1 < len(text) <= 64:
            found.add(text)
    return found


def write_dictionary(path: pathlib.Path, files: list[str]) -> None:
    words = set().union(*(literals(HERE.parent / "src" / file) for file in files)) | {b"\x1e"}
    lines = ('"' + "".join(f"\\x{byte:02x}" for byte in word) + '"\n' for word in sorted(words))
    path.write_text("".join(lines), encoding="ascii")


def fuzz(program: pathlib.Path, name: str, files: list[str], seconds: int) -> dict:
    folder = program.parent
    corpus = folder / "corpus" / name
    seeds = folder / "seeds" / name
    finds = folder / "finds"
    dictionary = folder / "dictionaries" / f"{name}.dict"
    for each in (corpus, seeds, finds, dictionary.parent):
        each.mkdir(parents=True, exist_ok=True)
    write_dictionary(dictionary, files)
    subprocess.run([program, f"--target={name}", f"--seeds={seeds}"], check=True)
    corpora = [corpus, seeds] + [each for each in [HERE / "regressions" / name] if each.is_dir()]
    ran = subprocess.run(
        [
            program,
            *corpora,
            f"-dict={dictionary}",
            f"-max_total_time={seconds}",
            f"-max_len={LONGEST_INPUT}",
            f"-timeout={SLOWEST_INPUT_SECONDS}",
            f"-rss_limit_mb={MEMORY_MB}",
            f"-artifact_prefix={finds}/{name}-",
            "-print_final_stats=1",
            f"--target={name}",
        ],
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        text=True,
        errors="replace",
        check=False,
    )
    log = folder / f"{name}.log"
    log.write_text(ran.stdout, encoding="utf-8")

    def last(pattern: str) -> str:
        values = re.findall(pattern, ran.stdout)
        return values[-1] if values else "?"

    return {
        "name": name,
        "executions": last(r"stat::number_of_executed_units:\s*(\d+)"),
        "rate": last(r"stat::average_exec_per_sec:\s*(\d+)"),
        "edges": last(r"cov: (\d+)"),
        "features": last(r"ft: (\d+)"),
        "memory": last(r"peak memory per byte of input: ([\d.]+)"),
        "found": "" if ran.returncode == 0 else f"  FOUND: {last(r'Test unit written to (.*)')}, see {log}",
        "failed": ran.returncode != 0,
    }


def main() -> int:
    if len(sys.argv) < 3 or not sys.argv[2].isdigit():
        sys.exit(__doc__)
    program = pathlib.Path(sys.argv[1]).resolve()
    listed = subprocess.run([program, "--list"], capture_output=True, text=True, check=True).stdout
    targets = {name: files for name, *files in map(str.split, listed.splitlines())}
    wanted = sys.argv[3:] or list(targets)
    if unknown := set(wanted) - set(targets):
        sys.exit(f"no such target: {', '.join(sorted(unknown))}; the targets are {', '.join(targets)}")
    at_once = min(len(wanted), os.cpu_count() or 1)
    rounds = -(-len(wanted) // at_once)
    seconds = max(1, int(sys.argv[2]) // rounds)
    print(f"{len(wanted)} targets, {at_once} at a time, {seconds} s each", flush=True)
    print(f"{'target':20} {'executions':>12} {'a second':>9} {'edges':>7} {'features':>9} {'memory/byte':>12}")
    failed = False
    with concurrent.futures.ThreadPoolExecutor(at_once) as workers:
        for done in concurrent.futures.as_completed(
            workers.submit(fuzz, program, name, targets[name], seconds) for name in wanted
        ):
            row = done.result()
            failed |= row["failed"]
            print(
                f"{row['name']:20} {row['executions']:>12} {row['rate']:>9} {row['edges']:>7} {row['features']:>9} "
                f"{row['memory']:>12}{row['found']}",
                flush=True,
            )
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
