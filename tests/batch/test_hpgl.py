"""Plot files of korvet-batch, read by readers of their own and held against the drawing of the same pattern."""

import math
import re
import subprocess
import unittest
from pathlib import Path

import ezdxf

from batch_program import CONE, DONE, WRONG_USAGE, FolderTest, run

EXAMPLES = Path(__file__).resolve().parents[2] / "examples"
STEPS = 40  # to the millimetre
NEAR = 2  # steps


class Plot:
    """What a pen draws: lines (from, to), arcs (from, centre, degrees) and texts (at, direction, letters)."""

    def __init__(self, test, path):
        data = path.read_bytes()
        test.assertEqual(data.count(b"\n"), data.count(b";\r\n"))
        self.instructions = data.decode("ascii").replace("\r\n", "").split(";")
        test.assertEqual(self.instructions[:2], ["IN", "SP1"])
        test.assertEqual(self.instructions[-3:], ["PU", "SP0", ""])
        self.lines, self.arcs, self.texts = [], [], []
        at, down, direction = None, False, None
        for instruction in self.instructions[2:-3]:
            word, rest = instruction[:2], instruction[2:]
            if word in ("PU", "PD"):
                test.assertEqual(rest, "")
                down = word == "PD"
            elif word == "PA":
                test.assertRegex(rest, r"^-?\d+,-?\d+$")
                to = tuple(map(int, rest.split(",")))
                if down:
                    self.lines.append((at, to))
                at = to
            elif word == "AA":
                test.assertTrue(down)
                x, y, sweep, chord = rest.split(",")
                test.assertEqual(chord, "1")
                self.arcs.append((at, (int(x), int(y)), float(sweep)))
            elif word == "DI":
                direction = tuple(map(float, rest.split(",")))
            elif word == "LB":
                test.assertTrue(rest.endswith("#"))
                self.texts.append((at, direction, rest[:-1]))
            else:
                test.assertEqual(instruction, "DT#")

    def ends(self):
        """Of all lines and arcs."""
        return {p for line in self.lines for p in line} | {p for start, centre, sweep in self.arcs
                                                           for p in (start, turned(start, centre, sweep))}


LISTS = ("List1", "List2", "List3", "LapList1", "LapList2")


def points_of(surfaces):
    return [p for surface in surfaces for name in LISTS for p in surface[name] or ()]


def turned(point, centre, degrees):
    c, s = math.cos(math.radians(degrees)), math.sin(math.radians(degrees))
    x, y = point[0] - centre[0], point[1] - centre[1]
    return centre[0] + c * x - s * y, centre[1] + s * x + c * y


class HpglTest(FolderTest):
    def make(self, *arguments):
        plot, drawing = self.folder / "out.plt", self.folder / "out.dxf"
        result = run(*arguments, "--hpgl", plot, "--dxf", drawing, "--json", "-")
        self.assertEqual((result.status, result.errors), (DONE, ""))
        return Plot(self, plot), ezdxf.readfile(drawing).modelspace(), result.json

    def to_steps(self, report, view, steps=STEPS):
        """How a point of the drawing lies on the plotter."""
        points = [p for surface in report[view] for name in ("List1", "List2") for p in surface[name]]
        left, low = min(p[0] for p in points), min(p[1] for p in points)
        return lambda p: ((p[0] - left) * steps, (p[1] - low) * steps)

    def near(self, a, b, what):
        self.assertLessEqual(math.dist(a, b), NEAR, what)

    def check(self, plot, space, place, steps=STEPS):
        """Every LINE, ARC and TEXT of the drawing is there, in its order, and an edge of two points."""
        lines = [(e.dxf.start, e.dxf.end) if e.dxftype() == "LINE" else tuple(v.dxf.location for v in e.vertices)
                 for e in space if e.dxftype() == "LINE" or (e.dxftype() == "POLYLINE" and len(e.vertices) == 2)]
        self.assertEqual(len(plot.lines), len(lines))
        for (a, b), drawn in zip(plot.lines, lines):
            self.near(a, place(drawn[0]), "start of a line")
            self.near(b, place(drawn[1]), "end of a line")
        arcs = list(space.query("ARC"))
        self.assertEqual(len(plot.arcs), len(arcs))
        for (start, centre, sweep), arc in zip(plot.arcs, arcs):
            self.near(start, place(arc.start_point), "start of an arc")
            self.near(turned(start, centre, sweep), place(arc.end_point), "end of an arc")
            self.assertGreater(sweep, 0)
            middle = arc.dxf.start_angle + ((arc.dxf.end_angle - arc.dxf.start_angle) % 360) / 2
            there = (arc.dxf.center.x + arc.dxf.radius * math.cos(math.radians(middle)),
                     arc.dxf.center.y + arc.dxf.radius * math.sin(math.radians(middle)))
            self.near(turned(start, centre, sweep / 2), place(there), "middle of an arc")
        texts = list(space.query("TEXT"))
        self.assertEqual([letters for _, _, letters in plot.texts], [e.dxf.text for e in texts])
        for (at, direction, _), text in zip(plot.texts, texts):
            self.near(at, place(text.dxf.insert), "a text")
            angle = math.radians(text.dxf.rotation)
            self.near(direction, (100 * math.cos(angle), 100 * math.sin(angle)), "direction of a text")

    def test_every_example(self):
        for path in sorted(EXAMPLES.glob("*.Kvt")):
            for view in ("pattern", "model"):
                with self.subTest(path=path.name, view=view):
                    plot, space, report = self.make(path, "--view", view)
                    if not report[view]:
                        self.assertEqual((plot.lines, plot.arcs), ([], []))  # a model that is never laid flat
                        continue
                    self.assertGreater(len(plot.lines), 3)
                    place = self.to_steps(report, view)
                    self.check(plot, space, place)
                    self.same_points(plot.ends(), {place(p) for p in points_of(report[view])}, NEAR)

    def test_diagonals_and_their_lengths(self):
        plot, space, report = self.make(*CONE, "--diagonals")
        self.assertGreater(len(plot.texts), 10)
        self.check(plot, space, self.to_steps(report, "pattern"))

    def test_arcs_are_forced(self):
        plain, _, _ = self.make(*CONE)
        other, _, _ = self.make(*CONE, "--polylines", "--set", "FrameRequested=True", "--dimensions")
        self.assertEqual(plain.instructions, other.instructions)
        self.assertGreater(len(plain.arcs), 20)

    def test_a_mesh_of_two_keeps_its_long_edges(self):
        path = self.write("in.dxf", "0\nSECTION\n2\nENTITIES\n0\nPOLYLINE\n70\n16\n71\n2\n72\n2\n" + "".join(
            f"0\nVERTEX\n10\n{x}\n20\n{y}\n30\n0\n" for y in (0, 40) for x in (0, 30)) + "0\nSEQEND\n0\nENDSEC\n0\nEOF\n")
        plot, space, report = self.make("--new", "Imported Mesh", "--mesh-file", path)
        self.assertEqual(sorted(round(math.dist(*line)) for line in plot.lines), [1200, 1200, 1600, 1600])
        self.check(plot, space, self.to_steps(report, "pattern"))

    def test_another_reader_draws_the_same(self):
        """hp2xx finds every end of a line and draws arcs by their chords of a degree."""
        for arguments in (CONE, ["--new", "Segmented Bend", "--sample", "--select", "1"],
                          ["--new", "Branch", "--sample", "--view", "model"]):
            plot, _, _ = self.make(*arguments)
            drawn = self.folder / "drawn.dxf"
            subprocess.run(["hp2xx", "-q", "-t", "-m", "dxf", "-f", drawn, self.folder / "out.plt"], check=True,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            ends = {tuple(point)[:2] for line in ezdxf.readfile(drawn).modelspace().query("LINE")
                    for point in (line.dxf.start, line.dxf.end)}
            ours = {(p[0] / STEPS, p[1] / STEPS) for line in plot.lines for p in line}
            for start, centre, sweep in plot.arcs:
                ours |= {(x / STEPS, y / STEPS) for x, y in (turned(start, centre, degrees) for degrees in
                                                             [*range(math.ceil(sweep)), sweep])}
            # Its origin is the corner of what it draws.
            for axis in (0, 1):
                shift = min(p[axis] for p in ends) - min(p[axis] for p in ours)
                ours = {tuple(c + (shift if k == axis else 0) for k, c in enumerate(p)) for p in ours}
            self.same_points(ours, ends, NEAR / STEPS)
            self.same_points(ends, ours, NEAR / STEPS)

    def same_points(self, points, others, near):
        """Each of the points is one of the others."""
        cells = {}
        for p in others:
            cells.setdefault((math.floor(p[0] / near), math.floor(p[1] / near)), []).append(p)
        for p in points:
            x, y = math.floor(p[0] / near), math.floor(p[1] / near)
            beside = [q for i in (-1, 0, 1) for j in (-1, 0, 1) for q in cells.get((x + i, y + j), ())]
            self.assertTrue(any(math.dist(p, q) <= near for q in beside), p)

    def test_usage(self):
        result = run(*CONE, "--hpgl", self.folder / "a", "--dxf", self.folder / "a")
        self.assertEqual(result.status, WRONG_USAGE)


if __name__ == "__main__":
    unittest.main()
