#!/usr/bin/env python3
"""How long korvet-batch takes for a pattern on many sheets, with everything marked out, and how much memory.

    bench/sheets.py [PROGRAM]
"""

import os
import re
import sys
import tempfile
import time
from pathlib import Path

CONE = ("--new", "Right Cone", "--type", "2", "--set", "box3=2000", "--set", "box4=800", "--set", "box5=1500", "--set",
        "textsize=10")
MARKED_OUT = ("FrameRequested", "CoordGridRequested", "DiagonalsRequested", "TrueLengthsRequested")
PAPERS = ("A3", "A4", "A5")


def measure(program, paper, path):
    """Seconds, and the largest memory of the process in megabytes."""
    arguments = [program, *CONE, "--pdf", str(path), "--paper", paper]
    for name in MARKED_OUT:
        arguments += ["--set", f"{name}=True"]
    start = time.perf_counter()
    child = os.posix_spawn(program, arguments, os.environ)
    _, status, usage = os.wait4(child, 0)
    seconds = time.perf_counter() - start
    if status != 0:
        sys.exit(f"{arguments} failed")
    return seconds, usage.ru_maxrss / 1024


def main():
    program = sys.argv[1] if len(sys.argv) > 1 else "build/release/bin/korvet-batch"
    print("paper  sheets  seconds  per 100 sheets  memory (MB)  file (kB)")
    with tempfile.TemporaryDirectory() as folder:
        for paper in PAPERS:
            path = Path(folder) / f"{paper}.pdf"
            seconds, megabytes = min(measure(program, paper, path) for _ in range(3))
            contents = path.read_bytes()
            sheets = int(re.search(rb"/Count (\d+)", contents)[1])
            print(f"{paper:5}  {sheets:6}  {seconds:7.2f}  {seconds * 100 / sheets:14.2f}  {megabytes:11.1f}  "
                  f"{len(contents) / 1000:9.0f}")


if __name__ == "__main__":
    main()
