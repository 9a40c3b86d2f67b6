"""Runs korvet-batch for the tests of this folder.

Its path is in the environment variable KORVET_BATCH. When KORVET_BATCH_RUNS is the path of batch_runs, which does the
same for many command lines in one process, all runs go there that need no process of their own.
"""

import atexit
import json
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM = os.environ.get("KORVET_BATCH", "korvet-batch")
DONE, REFUSED, WRONG_USAGE = 0, 1, 2
TIMEOUT = 300  # seconds; a sanitized program with a thousand inputs is slow
FAULTS = ("Sanitizer", "runtime error:", "terminate called", "Assertion")


class Run:
    """What a command line of the program gave back."""

    def __init__(self, arguments, status, output, errors):
        self.status, self.output, self.errors = status, output, errors
        if self.status not in (DONE, REFUSED, WRONG_USAGE) or any(fault in self.errors for fault in FAULTS):
            raise AssertionError(f"{arguments} ended with {self.status}:\n{self.errors[-3000:]}")

    @property
    def lines(self):
        return self.errors.splitlines()

    @property
    def json(self):
        return read_json(self.output)


def environment_of(changes=None):
    return {**os.environ, "LC_ALL": "C", **(changes or {})}


def start(*arguments, cwd=None, stdout=subprocess.PIPE, environment=None):
    """Starts the program for one command line."""
    result = subprocess.run([PROGRAM, *map(str, arguments)], stdin=subprocess.DEVNULL, stdout=stdout,
                            stderr=subprocess.PIPE, timeout=TIMEOUT, cwd=cwd, check=False,
                            env=environment_of(environment))
    output = result.stdout.decode("utf-8") if result.stdout is not None else ""
    return Run(arguments, result.returncode, output, result.stderr.decode("utf-8"))


class ManyRuns:
    """One process for the command lines of all tests of a file."""

    def __init__(self, path):
        self.complaints = tempfile.TemporaryFile()
        self.process = subprocess.Popen([path], stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=self.complaints,
                                        env=environment_of())
        atexit.register(self.close)

    def run(self, *arguments, cwd=None):
        words = [str(argument) for argument in arguments]
        try:
            self.process.stdin.write(json.dumps([str(cwd or os.getcwd()), *words]).encode("utf-8") + b"\n")
            self.process.stdin.flush()
            answer = self.process.stdout.readline()
        except BrokenPipeError:
            answer = b""
        if not answer:
            raise AssertionError(f"{words} ended the process:\n{self.said()}")
        return Run(words, **json.loads(answer))

    def said(self):
        self.complaints.seek(0)
        return self.complaints.read().decode("utf-8", "replace")[-3000:]

    def close(self):
        """A fault that shows only at the end, such as lost memory, fails the tests too."""
        self.process.stdin.close()
        if self.process.wait(TIMEOUT) != 0 or any(fault in self.said() for fault in FAULTS):
            print(self.said(), file=sys.stderr, flush=True)
            os._exit(1)


MANY_RUNS = ManyRuns(os.environ["KORVET_BATCH_RUNS"]) if "KORVET_BATCH_RUNS" in os.environ else None


def run(*arguments, cwd=None, **options):
    """Does what a command line asks for; further `options` of `start` ask for a process of its own."""
    return (start if options or not MANY_RUNS else MANY_RUNS.run)(*arguments, cwd=cwd, **options)


def run_all(argument_lists):
    """Runs the program with each list of arguments; the Runs in the same order."""
    return [run(*arguments) for arguments in argument_lists]


def read_json(text):
    def refuse(word):
        raise AssertionError(f"{word} stands in the JSON")

    return json.loads(text, parse_constant=refuse)


def sets(values):
    """The --set options for [(name, value)]."""
    return [part for name, value in values for part in ("--set", f"{name}={value}")]


class FolderTest(unittest.TestCase):
    """A test case with an empty folder of its own."""

    def setUp(self):
        temporary = tempfile.TemporaryDirectory(prefix="korvet-batch-test-")
        self.addCleanup(temporary.cleanup)
        self.folder = Path(temporary.name)

    def write(self, name, contents):
        path = self.folder / name
        path.write_bytes(contents if isinstance(contents, bytes) else contents.encode("utf-8"))
        return path

    def names(self):
        return sorted(path.name for path in self.folder.iterdir())


# A valid fitting of each window, by the --new and --set options that make it.
CONE = ["--new", "Right Cone", *sets([("box3", "100"), ("box4", "50"), ("box5", "40")])]
CUT_CONE = ["--new", "Truncated Right Cone",
            *sets([("box0", "100"), ("box1", "40"), ("box2", "60"), ("box3", "10")])]


def cone_file(boxes=("0", "0", "0", "100", "50", "40", "0", "0", "0"), dtype=1, category="Right Cone",
              product="Korvet Development-3.3.3", angle="0", laps=("0", "0", "0"), **lines):
    """A parameter file line by line. `lines` replaces single lines by what they hold, such as segs="12"."""
    value = {"AroundZ": "1.5707963267949", "FromXY": "1.5707963267949", "PanX": "0", "PanY": "0",
             "ZoomFactor": "1", "Patternview": "True", "Thickness": "0", "segs": "24", "NoOfSides": "0",
             "JoinAngleDisable": "False", "HalfPattern": "False", "InOutMean": "0", "LapEnable": "7",
             "JoinType": "0", "KerfSpacing": "0", "KerfEnabled": "False", "PositionString": "mean",
             "TemplateType": "0", "TemplateTypeEnabled": "False", "CoordGridRequested": "False",
             "CoordTableRequested": "False", "DiagonalsRequested": "False", "FrameRequested": "False",
             "TrueLengthsRequested": "False", "Comment1": "", "Comment2": "", "RotationAngle": "0",
             "Label": (), "Dimensions": (), "Move": ("0",) * 6}
    unknown = set(lines) - set(value)
    assert not unknown, unknown
    value.update(lines)

    def section(name, contents, separator=" "):
        return [f"Start {name}", *contents, f"End {name}", separator]

    def values(*names):
        return [value[name] for name in names]

    text = [product, category, str(dtype), "End Header", " "]
    text += section("ViewPoint", values("AroundZ", "FromXY", "PanX", "PanY", "ZoomFactor", "Patternview"))
    text += section("Pattern Settings", [
        *values("Thickness", "segs"), angle, *values("JoinAngleDisable", "NoOfSides", "HalfPattern", "InOutMean"),
        "200", "150", "No Border", " ", *values("LapEnable", "JoinType"), *laps,
        *values("KerfSpacing", "KerfEnabled", "PositionString", "TemplateType", "TemplateTypeEnabled")])
    text += section("Standard TextBoxes", boxes)
    for name in ("Angle", "Pattern Select", "Flush Side"):
        text += section(f"{name} Option Buttons", [])
    text += section("Rotation", ["0", "0", "0", value["RotationAngle"]])
    text += section("Move", value["Move"])
    text += section("Requests", values("CoordGridRequested", "CoordTableRequested", "DiagonalsRequested",
                                       "FrameRequested", "TrueLengthsRequested"), "")
    text += section("LabelPoint", value["Label"])
    text += section("Dimensions", value["Dimensions"])
    text += section("Comments", values("Comment1", "Comment2"))
    return "".join(line + "\r\n" for line in text)
