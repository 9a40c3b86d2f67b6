"""A DXF with header, layers and units, as two other programs read it: a library, and a drawing program that plots it."""

import os
import re
import subprocess
import unittest
from pathlib import Path

import ezdxf
from ezdxf import units

from batch_program import DONE, WRONG_USAGE, FolderTest, run

EXAMPLES = Path(__file__).parents[2] / "examples"


class DrawingTest(FolderTest):
    def files(self, *arguments):
        plain, complete = self.folder / "plain.dxf", self.folder / "complete.dxf"
        self.assertEqual(run(*arguments, "--dxf", plain).status, DONE)
        self.assertEqual(run(*arguments, "--dxf", complete, "--complete").status, DONE)
        return plain, complete


class CompleteTest(DrawingTest):
    def test_the_entities_are_the_same_bytes(self):
        for name in ("frmElbow-type1", "frmBranch-type2", "frmRectRound1-type1"):
            plain, complete = self.files(EXAMPLES / f"{name}.Kvt", "--set", "FrameRequested=True", "--dimensions")
            entities = plain.read_bytes()
            text = complete.read_bytes()
            self.assertTrue(text.endswith(entities))
            self.assertTrue(text.startswith(b"0\r\nSECTION\r\n2\r\nHEADER\r\n9\r\n$ACADVER\r\n1\r\nAC1009\r\n"))
            self.assertEqual(text[:-len(entities)].count(b"ENDSEC"), 3)

    def test_another_program_reads_it(self):
        _, complete = self.files(EXAMPLES / "frmBranch-type1.Kvt", "--set", "FrameRequested=True", "--dimensions",
                                 "--view", "pattern")
        document = ezdxf.readfile(complete)
        self.assertEqual(document.dxfversion, "AC1009")
        self.assertEqual([str(fault.message) for fault in document.audit().errors], [])
        self.assertEqual(document.header["$INSUNITS"], units.MM)
        colors = {layer.dxf.name: layer.dxf.color for layer in document.layers}
        self.assertEqual({name: colors[name] for name in
                          ("CutLayer", "FoldLayer", "TextLayer", "DimensionLayer", "BorderLayer")},
                         {"CutLayer": 1, "FoldLayer": 4, "TextLayer": 3, "DimensionLayer": 2, "BorderLayer": 4})
        space = document.modelspace()
        self.assertLessEqual({entity.dxf.layer for entity in space}, set(colors))
        self.assertEqual({entity.dxf.linetype for entity in space}, {"BYLAYER"})
        low, high = document.header["$EXTMIN"], document.header["$EXTMAX"]
        for axis in (0, 1):
            ends = [point[axis] for line in space.query("LINE") for point in (line.dxf.start, line.dxf.end)]
            ends += [text.dxf.insert[axis] for text in space.query("TEXT")]
            self.assertAlmostEqual(low[axis], min(ends), 5)
            self.assertAlmostEqual(high[axis], max(ends), 5)

    def test_units_and_names_of_layers_are_those_of_the_options(self):
        out = self.folder / "out.dxf"
        arguments = [EXAMPLES / "frmElbow-type1.Kvt", "--dxf", out, "--complete"]
        self.assertEqual(run(*arguments, "--units", "inch").status, DONE)
        self.assertEqual(ezdxf.readfile(out).header["$INSUNITS"], units.IN)
        self.assertEqual(run(EXAMPLES / "frmElbow-type1.Kvt", "--dxf", out, "--units", "inch").status, WRONG_USAGE)
        self.assertEqual(run(EXAMPLES / "frmElbow-type1.Kvt", "--complete").status, WRONG_USAGE)

    def test_a_model_has_one_too(self):
        _, complete = self.files("--new", "Right Cone", "--sample", "--view", "model")
        document = ezdxf.readfile(complete)
        self.assertEqual([str(fault.message) for fault in document.audit().errors], [])
        ends = [point.z for line in document.modelspace().query("LINE") for point in (line.dxf.start, line.dxf.end)]
        self.assertAlmostEqual(document.header["$EXTMAX"][2], max(ends), 5)


class PlottedTest(DrawingTest):
    """LibreCAD plots the drawing at 1 to 1; its page tells the colour of each line and where it runs."""

    COLOURS = {"CutLayer": (1, 0, 0), "FoldLayer": (0, 1, 1), "TextLayer": (0, 1, 0), "DimensionLayer": (1, 1, 0)}
    POINT = 25.4 / 72  # millimetres

    def plot(self, path):
        """The widths in millimetres of what is plotted, by colour."""
        environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", HOME=str(self.folder),
                           XDG_RUNTIME_DIR=str(self.folder))
        page = path.with_suffix(".pdf")
        subprocess.run(["librecad", "dxf2pdf", path.name], cwd=self.folder, env=environment, check=True,
                       capture_output=True, timeout=120)
        text = subprocess.run(["qpdf", "--qdf", "--object-streams=disable", page, "-"], check=True,
                              capture_output=True).stdout.decode("latin-1")
        places, colour = {}, None
        for line in text.splitlines():
            if found := re.fullmatch(r"(\S+) (\S+) (\S+) SCN", line):
                colour = tuple(float(part) for part in found.groups())
            elif found := re.fullmatch(r"(-?[\d.]+) -?[\d.]+ [ml]", line):
                places.setdefault(colour, []).append(float(found[1]))
        scale = self.POINT * float(re.search(r"(?m)^(\S+) 0 0 \S+ 0 \S+ cm$", text)[1])
        return {colour: (max(xs) - min(xs)) * scale for colour, xs in places.items()}

    def widths(self, path):
        """Of the lines of each layer, as they stand in the file."""
        places = {}
        for line in ezdxf.readfile(path).modelspace().query("LINE"):
            places.setdefault(line.dxf.layer, []).extend((line.dxf.start.x, line.dxf.end.x))
        return {layer: max(xs) - min(xs) for layer, xs in places.items()}

    def test_layers_are_told_apart_in_the_right_size(self):
        for unit, millimetres in (("mm", 1), ("inch", 25.4)):
            complete = self.folder / f"{unit}.dxf"
            result = run(EXAMPLES / "frmElbow-type1.Kvt", "--set", "FrameRequested=True", "--view", "pattern",
                         "--dimensions", "--dxf", complete, "--complete", "--units", unit)
            self.assertEqual(result.status, DONE)
            plotted = self.plot(complete)
            self.assertLessEqual(set(self.COLOURS.values()), set(plotted), unit)
            widths = self.widths(complete)
            self.assertGreater(widths["CutLayer"], 600)
            for layer in ("CutLayer", "FoldLayer"):
                expected = widths[layer] * millimetres
                self.assertAlmostEqual(plotted[self.COLOURS[layer]], expected, delta=expected / 500, msg=(unit, layer))


if __name__ == "__main__":
    unittest.main()
