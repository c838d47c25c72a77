#!/usr/bin/env python3
"""Runs the benchmarks and prints each as a ratio to its floor, both measured in the same run.

usage: ratios.py FOLDER [FILTER]

FOLDER contains the benchmark programs (`guide_*_benchmark`). A row is a pair of benchmarks, "ROW/guide" and "ROW/floor";
the counter `atMost` of the first is the highest ratio allowed. Medians of CPU time are compared, or of wall time
where the name says real_time. A benchmark whose result was wrong is an error, whatever its time.
The other programs (`guide_*_measure`) print rows with both sides, each as a JSON object on a line.
Exits with 1 when a result was wrong, a row has no pair or a ratio is above its bound.
"""
import json
import pathlib
import re
import subprocess
import sys

# Number of runs of every benchmark, in random order; medians are compared.
REPETITIONS = 7


def measure(program: pathlib.Path, pattern: str) -> list[dict]:
    command = [
        str(program),
        "--benchmark_format=json",
        f"--benchmark_repetitions={REPETITIONS}",
        "--benchmark_enable_random_interleaving=true",
        "--benchmark_report_aggregates_only=true",
        f"--benchmark_filter={pattern}",
    ]
    ran = subprocess.run(command, capture_output=True, text=True, check=False)
    if ran.returncode != 0:
        sys.exit(f"{program.name} ended with {ran.returncode}:\n{ran.stderr}")
    # No benchmark matches the filter.
    return json.loads(ran.stdout)["benchmarks"] if ran.stdout.strip() else []


def split(name: str) -> tuple[str, str, str] | None:
    """The row, the side and the rest of a benchmark's name."""
    for side in ("guide", "floor"):
        row, mark, rest = name.rpartition("/" + side)
        if mark:
            return row, side, rest
    return None


def measured_rows(program: pathlib.Path) -> dict[str, dict[str, dict]]:
    ran = subprocess.run([str(program)], capture_output=True, text=True, check=False)
    if ran.returncode != 0:
        sys.exit(f"{program.name} ended with {ran.returncode}:\n{ran.stderr}")
    rows = {}
    for line in ran.stdout.splitlines():
        row = json.loads(line)
        guide = {"time": row["guide"], "time_unit": row["unit"], "atMost": row["atMost"]}
        rows[row["row"]] = {"guide": guide, "floor": {"time": row["floor"], "time_unit": row["unit"]}}
    return rows


def main() -> int:
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    folder = pathlib.Path(sys.argv[1])
    pattern = sys.argv[2] if len(sys.argv) == 3 else "."
    programs = sorted(path for path in folder.glob("guide_*_benchmark") if path.is_file())
    if not programs:
        sys.exit(f"no benchmark programs in {folder}")
    rows: dict[str, dict[str, dict]] = {}
    faults = 0
    for program in programs:
        for result in measure(program, pattern):
            parts = split(result["run_name"])
            if result.get("error_occurred") or not parts:
                print(f"{result['name']}: {result.get('error_message', 'neither ROW/guide nor ROW/floor')}")
                faults += 1
            elif result.get("aggregate_name") == "median":
                row, side, rest = parts
                result["time"] = result["real_time" if "real_time" in rest else "cpu_time"]
                rows.setdefault(row, {})[side] = result
    for program in sorted(path for path in folder.glob("guide_*_measure") if path.is_file()):
        if re.search(pattern, program.name):
            rows.update(measured_rows(program))
    print(f"{'row':48} {'guide':>14} {'floor':>14} {'ratio':>7} {'at most':>8}")
    for row, sides in rows.items():
        if set(sides) != {"guide", "floor"}:
            print(f"{row}: only {', '.join(sides)}")
            faults += 1
            continue
        guide, floor = sides["guide"], sides["floor"]
        if guide["time_unit"] != floor["time_unit"]:
            print(f"{row}: the two sides have different units")
            faults += 1
            continue
        unit = guide["time_unit"]
        ratio = guide["time"] / floor["time"]
        bound = guide.get("atMost")
        over = bound is None or ratio > bound
        faults += over
        print(
            f"{row:48} {guide['time']:11.3f} {unit} {floor['time']:11.3f} {unit} {ratio:7.2f} "
            f"{'none' if bound is None else bound:>8}{'  TOO MUCH' if over else ''}"
        )
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
