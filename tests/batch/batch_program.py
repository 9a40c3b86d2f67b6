"""Runs korvet-batch, whose path is in the environment variable KORVET_BATCH, for the tests of this folder."""

import json
import os
import subprocess
import tempfile
import unittest
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

PROGRAM = os.environ.get("KORVET_BATCH", "korvet-batch")
DONE, REFUSED, WRONG_USAGE = 0, 1, 2
TIMEOUT = 300  # seconds; a sanitized program with a thousand inputs is slow
FAULTS = ("Sanitizer", "runtime error:", "terminate called", "Assertion")


class Run:
    """What one start of the program gave back."""

    def __init__(self, arguments, cwd=None, stdout=subprocess.PIPE, environment=None):
        result = subprocess.run([PROGRAM, *map(str, arguments)], stdin=subprocess.DEVNULL, stdout=stdout,
                                stderr=subprocess.PIPE, timeout=TIMEOUT, cwd=cwd, check=False,
                                env={**os.environ, "LC_ALL": "C", **(environment or {})})
        self.status = result.returncode
        self.output = result.stdout.decode("utf-8") if result.stdout is not None else ""
        self.errors = result.stderr.decode("utf-8")
        if self.status not in (DONE, REFUSED, WRONG_USAGE) or any(fault in self.errors for fault in FAULTS):
            raise AssertionError(f"{arguments} ended with {self.status}:\n{self.errors[-3000:]}")

    @property
    def lines(self):
        return self.errors.splitlines()

    @property
    def json(self):
        return read_json(self.output)


def run(*arguments, **options):
    return Run(arguments, **options)


def run_all(argument_lists):
    """Runs the program with each list of arguments, a few at a time; the Runs in the same order."""
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        return list(pool.map(Run, argument_lists))


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
