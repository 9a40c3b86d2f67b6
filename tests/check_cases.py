#!/usr/bin/env python3
"""Reference cases: a command line and what it came to, as text that a person can read.

    tests/check_cases.py PROGRAM            compares every case of tests/cases with the program
    tests/check_cases.py PROGRAM --accept   writes what the program gives now; look at the difference before you keep it

The first line of a case is the command line, the rest its result: text block, messages, and of each surface the
edges' lengths, the area of a pattern, and every station. Lengths are rounded to a millionth.
"""
import json
import math
import pathlib
import shlex
import subprocess
import sys

CASES = pathlib.Path(__file__).resolve().parent / "cases"


def number(value):
    return f"{round(value, 6) + 0.0:.6f}".rstrip("0").rstrip(".")


def length(points):
    return sum(math.dist(a[:3], b[:3]) for a, b in zip(points, points[1:]))


def area(points):
    return abs(sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(points, points[1:] + points[:1]))) / 2


def surface_lines(name, surface):
    first, second = surface["List1"], surface["List2"]
    lines = [f"{name}: {len(first)} stations, edges {number(length(first))} and {number(length(second))} long"]
    if name == "pattern":
        lines.append(f"  area {number(area(first + second[::-1]))}")
    for part in ("List3", "LapList1", "LapList2"):
        if surface[part]:
            lines.append(f"  {part}: {len(surface[part])} points, {number(length(surface[part]))} long")
    if surface["RefPoint"]:
        lines.append("  reference point " + " ".join(map(number, surface["RefPoint"])))
    count = 3 if name == "model" else 2
    for index, (a, b) in enumerate(zip(first, second), start=1):
        ends = [" ".join(map(number, point[:count])) + f" [{point[3]}]" for point in (a, b)]
        lines.append(f"  {index:3d}  {ends[0]}  |  {ends[1]}")
    return lines


def result(program, command):
    done = subprocess.run([program, *shlex.split(command), "--json", "-"], capture_output=True, text=True, check=False)
    lines = [f"exit status {done.returncode}"]
    if not done.stdout:
        return lines + done.stderr.splitlines()
    report = json.loads(done.stdout)
    labels = report["labels"]
    if labels and "pattern  " in labels[-1]:
        labels[-1] = labels[-1][: labels[-1].rindex("  ")] + "  (date)"
    lines += [f"text: {label}" for label in labels]
    for message in report["messages"]:
        box = "" if message["box"] is None else f" (box {message['box']})"
        lines.append(f"{message['title']}{box}: {message['text']}")
    for name in ("model", "pattern"):
        for surface in report[name]:
            lines += surface_lines(name, surface)
    return lines


def main():
    program, accept = sys.argv[1], "--accept" in sys.argv[2:]
    cases = sorted(CASES.glob("*.txt"))
    if not cases:
        sys.exit(f"there is no case in {CASES}")
    failed = 0
    for case in cases:
        command = case.read_text(encoding="utf-8").splitlines()[0]
        text = "\n".join([command, *result(program, command)]) + "\n"
        if accept:
            case.write_text(text, encoding="utf-8")
        elif text != case.read_text(encoding="utf-8"):
            failed += 1
            print(f"{case.name} differs; see it with --accept and git diff")
    print(f"{len(cases)} cases, {failed} differ")
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()
