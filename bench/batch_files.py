#!/usr/bin/env python3
"""One korvet-batch process turns parameter files into DXF files: files a second on one core, and peak memory.

    bench/batch_files.py [PROGRAM]      the default is build/release/bin/korvet-batch

Each count of files is run in a process of its own, so that memory that grows with the count would show. The first
run on a disk is the fair one: file systems take longer where many files have just been removed. TMPDIR=/dev/shm
takes the disk out.
"""
import os
import pathlib
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent


def make_inputs(program, folder, count):
    """Writes `count` cones of different sizes: one saved by the program, the rest with other sizes typed in."""
    first = folder / "first.Kvt"
    subprocess.run([program, "--new", "Right Cone", "--sample", "--save", first], check=True)
    lines = first.read_bytes().split(b"\r\n")
    base = lines.index(b"Start Standard TextBoxes") + 1 + 3
    paths = []
    for number in range(count):
        lines[base] = b"%d" % (300 + number % 700)
        path = folder / f"cone{number}.Kvt"
        path.write_bytes(b"\r\n".join(lines))
        paths.append(path)
    return paths


def run(program, count):
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        paths = make_inputs(program, folder, count)
        out = folder / "out"
        out.mkdir()
        started = time.perf_counter()
        pid = os.fork()
        if pid == 0:
            os.sched_setaffinity(0, {min(os.sched_getaffinity(0))})
            os.execv(program, [program, "--dxf", str(out / "{name}.dxf"), *map(str, paths)])
        _, status, usage = os.wait4(pid, 0)
        seconds = time.perf_counter() - started
        written = len(list(out.iterdir()))
        assert status == 0 and written == count, (status, written)
        print(f"{count:6d} files  {seconds:7.3f} s  {count / seconds:8.0f} files/s  "
              f"peak memory {usage.ru_maxrss / 1024:.1f} MB")


def main():
    program = sys.argv[1] if len(sys.argv) > 1 else str(ROOT / "build/release/bin/korvet-batch")
    for count in (200, 2000, 2000, 2000):
        run(program, count)


if __name__ == "__main__":
    main()
