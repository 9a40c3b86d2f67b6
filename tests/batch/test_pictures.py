"""The pictures that korvet-batch writes, PNG and SVG."""

import math
import os
import struct
import subprocess
import unittest
import xml.etree.ElementTree

from batch_program import CONE, CUT_CONE, DONE, PROGRAM, REFUSED, WRONG_USAGE, FolderTest, cone_file, run, start


class PictureTest(FolderTest):
    def png(self, path):
        data = path.read_bytes()
        self.assertEqual(data[:8], b"\x89PNG\r\n\x1a\n")
        self.assertEqual(data[12:16], b"IHDR")
        self.assertEqual(data[-8:-4], b"IEND")
        return struct.unpack(">II", data[16:24])

    def svg(self, path):
        root = xml.etree.ElementTree.parse(path).getroot()
        self.assertEqual(root.tag, "{http://www.w3.org/2000/svg}svg")
        shapes = [item for item in root.iter() if item.tag.split("}")[1] in ("polyline", "path", "line", "polygon")]
        return root, shapes

    def test_nothing_is_cut_off(self):
        """The whole pattern is on the picture, though the drawing sits a text height off its centre."""
        path = self.folder / "whole.svg"
        for kind in ("1", "2", "3", "4", "5"):
            result = run("--new", "Truncated Right Cone", "--type", kind, "--sample", "--set", "textsize=7",
                         "--svg", path, "--size", "800x600")
            self.assertEqual((result.status, result.errors), (DONE, ""))
            _, shapes = self.svg(path)
            points = [tuple(map(float, point.split(","))) for shape in shapes
                      for point in shape.get("points", "").split()]
            self.assertGreater(len(points), 50)
            for x, y in points:
                self.assertTrue(0 < x < 800 and 0 < y < 600, (kind, x, y))

    def texts_of(self, root):
        """Corner and height of each text, by the transformations around it."""
        found = []

        def walk(item, matrix):
            value = item.get("transform")
            if value:
                a, b, c, d, e, f = map(float, value[len("matrix("):-1].split(","))
                pa, pb, pc, pd, pe, pf = matrix
                matrix = (pa * a + pc * b, pb * a + pd * b, pa * c + pc * d, pb * c + pd * d,
                          pa * e + pc * f + pe, pb * e + pd * f + pf)
            if item.tag.endswith("}text"):
                x, y = float(item.get("x")), float(item.get("y"))
                a, b, c, d, e, f = matrix
                found.append((a * x + c * y + e, b * x + d * y + f))
            for child in item:
                walk(child, matrix)

        walk(root, (1, 0, 0, 1, 0, 0))
        return found

    def test_small_patterns_and_texts_are_whole(self):
        """Texts are as high as a small pattern is wide, stand beside the pattern, or are drawn into its frame."""
        toy = ("0", "0", "0", "3", "1.5", "1.2", "0", "0", "0")
        marked = {name + "Requested": "True" for name in ("CoordGrid", "CoordTable", "Diagonals", "Frame", "TrueLengths")}
        for name, text in (("toy", cone_file(boxes=toy)),
                           ("labelled toy", cone_file(boxes=toy, Label=("1", "-1", "0"), Comment1="First of four")),
                           ("label aside", cone_file(Label=("700", "-900", "0"), Comment1="Bay 4")),
                           ("marked out", cone_file(Label=("60", "0", "0"), **marked)),
                           ("marked toy", cone_file(boxes=toy, Label=("1", "1", "0"), **marked))):
            for view in ("pattern", "model"):
                path = self.folder / "whole.svg"
                result = run(self.write("in.Kvt", text), "--view", view, "--svg", path)
                self.assertEqual((result.status, result.errors), (DONE, ""))
                root, shapes = self.svg(path)
                points = [tuple(map(float, point.split(","))) for shape in shapes
                          for point in shape.get("points", "").split()]
                texts = self.texts_of(root)
                self.assertGreater(len(points), 20)
                self.assertEqual(bool(texts), name != "toy")
                for x, y in points + texts:
                    self.assertTrue(0 < x < 800 and 0 < y < 600, (name, view, x, y))

    def test_sizes(self):
        for option, size in (((), (800, 600)), (("--size", "200x100"), (200, 100)), (("--size", "1x1"), (1, 1)),
                             (("--size", "1000x31"), (1000, 31))):
            with self.subTest(size=size):
                png, svg = self.folder / "a.png", self.folder / "a.svg"
                self.assertEqual(run(*CONE, *option, "--png", png, "--svg", svg).status, DONE)
                self.assertEqual(self.png(png), size)
                root, _ = self.svg(svg)
                self.assertEqual([float(number) for number in root.get("viewBox").split()], [0, 0, *size])

    def test_views_differ(self):
        pictures = {}
        for view in ("model", "pattern"):
            for kind in ("png", "svg"):
                path = self.folder / f"{view}.{kind}"
                run(*CUT_CONE, "--view", view, f"--{kind}", path)
                pictures[view, kind] = path.read_bytes()
            self.assertGreater(len(self.svg(self.folder / f"{view}.svg")[1]), 10)
            self.assertGreater(len(pictures[view, "png"]), 2000)
        self.assertNotEqual(pictures["model", "png"], pictures["pattern", "png"])
        self.assertNotEqual(pictures["model", "svg"], pictures["pattern", "svg"])

    def test_picture_shows_the_pattern(self):
        """The edges in the picture are those of the pattern, all alike enlarged, upright and inside."""
        path = self.folder / "a.svg"
        pattern = run(*CUT_CONE, "--svg", path, "--json", "-").json["pattern"][0]
        _, shapes = self.svg(path)
        drawn = [[tuple(float(number) for number in pair.split(",")) for pair in shape.get("points").split()]
                 for shape in shapes]
        for points in drawn:
            self.assertTrue(all(0 <= x <= 800 and 0 <= y <= 600 for x, y in points))
        edges = [points for points in drawn if len(points) == 25]
        self.assertEqual(len(edges), 2)
        scale = math.dist(edges[1][0], edges[1][24]) / math.dist(pattern["List2"][0], pattern["List2"][24])
        middle = [(edges[1][0][0] - scale * pattern["List2"][0][0]), (edges[1][0][1] + scale * pattern["List2"][0][1])]
        for name, edge in zip(("List1", "List2"), edges):
            for p, (x, y) in zip(pattern[name], edge):
                self.assertAlmostEqual(x, middle[0] + scale * p[0], delta=2)
                self.assertAlmostEqual(y, middle[1] - scale * p[1], delta=2)

    def test_nothing_is_said(self):
        """A picture that was written is no news, however bare the environment is."""
        for kind in ("png", "svg"):
            result = subprocess.run([PROGRAM, *CONE, f"--{kind}", self.folder / "a"], capture_output=True, check=False,
                                    env={"PATH": os.environ["PATH"], "HOME": str(self.folder)})
            self.assertEqual((result.returncode, result.stdout, result.stderr), (DONE, b"", b""))
            self.assertEqual(self.names(), ["a"])

    def test_the_environment_does_not_matter(self):
        """A desktop's settings that can't be followed without a screen neither end the run nor spoil its report."""
        bad = self.write("bad.Kvt", "x")
        for platform in ("xcb", "wayland", "none"):
            for kind in ("png", "svg"):
                result = start(bad, self.write("a.Kvt", cone_file()), f"--{kind}", self.folder / f"{{name}}.{kind}",
                               "--json", "-", environment={"QT_QPA_PLATFORM": platform, "DISPLAY": ""})
                self.assertEqual((result.status, len(result.lines)), (REFUSED, 1))
                self.assertEqual([report["refused"] for report in result.json], [True, False])
                self.assertTrue((self.folder / f"a.{kind}").exists())

    def test_control_characters_in_texts(self):
        """A vector file can be read whatever the texts hold."""
        texts = "a\x01b\x1bc\x7fd\x85e\ufffef\uffffg\t<&>"
        path = self.write("in.Kvt", cone_file(Comment1=texts, Label=("0", "0", "0")))
        out = self.folder / "out.svg"
        self.assertEqual(run(path, "--svg", out).status, DONE)
        root, _ = self.svg(out)
        words = "".join(root.itertext())
        self.assertIn("a b c d e f g <&>", words)

    def test_same_picture_every_time(self):
        for kind in ("png", "svg"):
            paths = [self.folder / f"{k}.{kind}" for k in range(2)]
            for path in paths:
                run(*CONE, f"--{kind}", path)
            self.assertEqual(paths[0].read_bytes(), paths[1].read_bytes())

    def test_most_pixels(self):
        self.assertEqual(run(*CONE, "--size", "20000x10001", "--png", self.folder / "a.png").status, WRONG_USAGE)
        self.assertEqual(self.names(), [])

    def test_largest_size(self):
        path = self.folder / "wide.png"
        result = run(*CONE, "--size", "20000x1", "--png", path)
        self.assertEqual(result.status, DONE)
        self.assertEqual(self.png(path), (20000, 1))


if __name__ == "__main__":
    unittest.main()
