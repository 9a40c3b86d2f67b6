"""What is marked out on a pattern: the coordinate table, dimensions, true lengths, grid and frame, read back from
the files that korvet-batch writes and measured against the JSON."""

import math
import unittest

import dxf_measure
from batch_program import CONE, DONE, REFUSED, WRONG_USAGE, FolderTest, run, sets
from dxf_measure import DIMENSION, Drawing
from window_checks import limit_text

BEND = ["--new", "Segmented Bend", "--sample", "--select", "1", "--set", "segs=12"]
TRUNK = ["--new", "Branch", "--sample", "--select", "1", "--set", "segs=12"]
TRANSITION = ["--new", "Rectangle to Round", "--sample", "--set", "segs=12"]
EVERYTHING = sets([("TrueLengthsRequested", "True"), ("DiagonalsRequested", "True"), ("CoordGridRequested", "True"),
                   ("FrameRequested", "True")])


def stations(points):
    return [p for p in points or [] if p[3] in dxf_measure.RULED]


def frame(surfaces):
    """The lowest and the highest x and y of the two edges."""
    points = [p for s in surfaces for p in s["List1"] + s["List2"]]
    return (*(min(p[k] for p in points) for k in (0, 1)), *(max(p[k] for p in points) for k in (0, 1)))


def table_of(surfaces, decimals=1):
    left, bottom, *_ = frame(surfaces)
    lines = ["Korvet Development"]
    for number, surface in enumerate(surfaces, 1):
        lines += [f"Suface No: {number}", "", "Number".ljust(14) + "A".ljust(14) + "B".ljust(14) + "C", "-" * 62,
                  " " * 14 + "X,Y".ljust(14) + "X,Y".ljust(14) + "X,Y"]
        columns = [stations(surface[name]) for name in ("List1", "List2", "List3")]
        for row in range(len(columns[0])):
            texts = [f" {row + 1} "]
            texts += [",".join(limit_text(v, decimals) for v in (c[row][0] - left, c[row][1] - bottom)) if c else ""
                      for c in columns]
            lines.append("".join(text.ljust(14) for text in texts[:3]) + texts[3])
    return "".join(line + "\r\n" for line in lines)


class TableTest(FolderTest):
    def table(self, *arguments):
        path = self.folder / "table.txt"
        report = run(*arguments, "--table", path, "--json", "-").json
        return path.read_bytes().decode("ascii"), report

    def test_is_the_stations_from_the_corner(self):
        for fitting in (CONE, BEND, TRUNK, TRANSITION):
            with self.subTest(fitting=fitting[1]):
                table, report = self.table(*fitting)
                self.assertEqual(table, table_of(report["pattern"]))

    def test_is_of_the_pattern_in_a_model_view_too(self):
        table, report = self.table(*CONE, "--view", "model")
        self.assertEqual(table, table_of(report["pattern"]))

    def test_that_cannot_be_written_is_told(self):
        missing = self.folder / "no folder" / "table.txt"
        result = run(*CONE, "--table", missing)
        self.assertEqual(result.status, REFUSED)
        self.assertIn("Error in COptions:WriteTableFile", result.errors)
        self.assertFalse(missing.exists())

    def test_does_not_share_a_file(self):
        path = self.folder / "out"
        self.assertEqual(run(*CONE, "--table", path, "--dxf", path).status, WRONG_USAGE)


class DimensionTest(FolderTest):
    def drawing(self, *arguments):
        path = self.folder / "out.dxf"
        result = run(*arguments, "--polylines", "--dimensions", "--view", "pattern", "--dxf", path, "--json", "-")
        self.assertEqual(result.status, DONE, result.errors)
        drawing = Drawing(self, path)
        return drawing, result.json["pattern"]

    def dimension_lines(self, drawing):
        return [ends for layer, ends in drawing.lines if layer == DIMENSION]

    def test_runs_between_its_points(self):
        drawing, (surface,) = self.drawing(*CONE, "--dimension", "1 1 1 1 2 25", "--dimension", "1 0 0 1 1 3")
        first = (surface["List1"][0][:3], surface["List2"][24][:3])
        second = (surface["RefPoint"], surface["List1"][2][:3])
        for ends in (first, second):
            drawing.take_line(DIMENSION, ends, "dimension")
        self.assertEqual(self.dimension_lines(drawing), [])
        self.assertEqual([text.dxf.text for text in drawing.texts],
                         [limit_text(math.dist(*ends)) for ends in (first, second)])

    def test_to_a_corner_of_the_frame(self):
        drawing, surfaces = self.drawing(*CONE, "--dimension", "1 5 1 1 5 3")
        left, bottom, right, top = frame(surfaces)
        drawing.take_line(DIMENSION, ((left, bottom, 0), (right, top, 0)), "diagonal of the frame")

    def test_between_the_pieces_of_a_bend(self):
        drawing, surfaces = self.drawing(*BEND, "--dimension", "2 1 1 3 2 5")
        drawing.take_line(DIMENSION, (surfaces[1]["List1"][0][:3], surfaces[2]["List2"][4][:3]), "dimension")

    def test_whose_end_is_gone_waits_with_those_behind_it(self):
        ends = ["--dimension", "1 1 1 1 1 3", "--dimension", "1 1 1 1 1 25", "--dimension", "1 2 1 1 2 3"]
        saved = self.folder / "cone.Kvt"
        drawing, _ = self.drawing(*CONE, "--set", "segs=12", *ends, "--save", saved)
        self.assertEqual(len(self.dimension_lines(drawing)), 1)
        drawing, _ = self.drawing(saved)
        self.assertEqual(len(self.dimension_lines(drawing)), 1, "the file holds all three")
        drawing, _ = self.drawing(saved, "--set", "segs=24")
        self.assertEqual(len(self.dimension_lines(drawing)), 3)

    def test_is_six_numbers(self):
        for text in ("", "1 1 1 1 1", "1 1 1 1 1 1 1", "1 6 1 1 1 1", "1 1 -1 1 1 1", "1 1 1.5 1 1 1", "one"):
            result = run(*CONE, "--dimension", text)
            self.assertEqual(result.status, WRONG_USAGE, text)
            self.assertIn("surface list point surface list point", result.errors)


class EverythingTest(FolderTest):
    """All annotations at once, on one surface and on many."""

    def test_texts_and_lines_are_those_of_the_pattern(self):
        for fitting in (CONE, BEND, TRUNK, TRANSITION):
            with self.subTest(fitting=fitting[1]):
                self.check(fitting)

    def check(self, fitting):
        path = self.folder / "all.dxf"
        surfaces = run(*fitting, *EVERYTHING, "--polylines", "--dimensions", "--dxf", path, "--json", "-").json["pattern"]
        drawing = Drawing(self, path)
        texts = [text.dxf.text.strip() for text in drawing.texts]
        left, bottom, right, top = frame(surfaces)
        # The frame has the lengths of two sides and its area.
        for text in (limit_text(right - left), limit_text(top - bottom),
                     "Area = " + limit_text((right - left) * (top - bottom))):
            self.assertIn(text, texts)
            texts.remove(text)
        for surface in surfaces:
            a, b, c = (stations(surface[name]) for name in ("List1", "List2", "List3"))
            for p, q in [*zip(a, b[1:])]:
                drawing.take_line(DIMENSION, (p[:3], q[:3]), "diagonal")
            lengths = [*zip(a, a[1:]), *zip(b, b[1:]), *zip(a, b), *zip(a, b[1:]), *zip(c, c[1:])]
            for p, q in lengths:
                text = limit_text(math.dist(p[:3], q[:3]))
                self.assertIn(text, texts)
                texts.remove(text)
            for x, y, *_ in [*a, *b, *c]:
                for text in (limit_text(x - left), limit_text(y - bottom)):
                    self.assertIn(text, texts)
                    texts.remove(text)
        self.assertEqual(texts, [])
        for p, q in [ends for layer, ends in drawing.lines if layer == DIMENSION]:
            self.assertTrue(any(abs(v - w) < 1e-5 for v, w in ((q[0], left), (q[0], right), (q[1], bottom),
                                                               (q[1], top))), "a leader ends on the frame")


class GridTest(FolderTest):
    """The grid alone, station by station: its texts stand at the frame, and leaders run there."""

    def grid(self, *fitting):
        path = self.folder / "grid.dxf"
        surfaces = run(*fitting, "--set", "CoordGridRequested=True", "--polylines", "--dimensions", "--view", "pattern",
                       "--dxf", path, "--json", "-").json["pattern"]
        return Drawing(self, path), surfaces

    def take_end(self, drawing, station, value, rotation, ends):
        """Takes out a station's leader and text at the nearer of two ends, the lower and the higher one."""
        lower, higher = (math.dist(station, end) for end in ends)
        high = higher <= lower
        if abs(higher - lower) < 1e-9:  # the higher one in the middle; a rounding beside it, either
            high = any(dxf_measure.same_segment(leader, (station, ends[True])) for _, leader in drawing.lines)
        if math.dist(station, ends[high]) > 1e-8:
            drawing.take_line(DIMENSION, (station, ends[high]), "leader")
        for text in drawing.texts:
            if text.dxf.text == limit_text(value) and text.dxf.rotation == rotation and \
               text.dxf.halign == (0 if high else 2) and dxf_measure.same(text.dxf.insert, ends[high]):
                drawing.texts.remove(text)
                return
        self.fail(f"no text {limit_text(value)} for {station}")

    def check(self, *fitting):
        drawing, surfaces = self.grid(*fitting)
        left, bottom, right, top = frame(surfaces)
        points = [(x, y, 0) for x, y in ((left, bottom), (right, bottom), (right, top), (left, top))]
        for ends in zip(points, points[1:] + points[:1]):
            drawing.take_line(DIMENSION, ends, "side of the frame")
        count = 0
        for station in (p for s in surfaces for name in ("List1", "List2", "List3") for p in stations(s[name])):
            x, y = station[:2]
            self.take_end(drawing, (x, y, 0), y - bottom, 0, ((left, y, 0), (right, y, 0)))
            self.take_end(drawing, (x, y, 0), x - left, 90, ((x, bottom, 0), (x, top, 0)))
            count += 1
        self.assertEqual(drawing.texts, [])
        self.assertEqual([ends for layer, ends in drawing.lines if layer == DIMENSION], [], "a leader of no station")
        return count

    def test_has_an_x_and_a_y_for_every_station(self):
        for fitting in (CONE, BEND, TRUNK, TRANSITION):
            with self.subTest(fitting=fitting[1]):
                self.assertGreater(self.check(*fitting), 0)

    def test_of_an_edge_along_the_frame_is_complete(self):
        self.assertEqual(self.check("--new", "Right Cylinder", "--sample"), 2 * 25)


if __name__ == "__main__":
    unittest.main()
