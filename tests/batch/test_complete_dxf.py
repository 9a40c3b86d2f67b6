"""A DXF with header, layers and units, as another program reads it."""

import unittest
from pathlib import Path

import ezdxf
from ezdxf import units

from batch_program import DONE, WRONG_USAGE, FolderTest, run

EXAMPLES = Path(__file__).parents[2] / "examples"


class CompleteTest(FolderTest):
    def files(self, *arguments):
        plain, complete = self.folder / "plain.dxf", self.folder / "complete.dxf"
        self.assertEqual(run(*arguments, "--dxf", plain).status, DONE)
        self.assertEqual(run(*arguments, "--dxf", complete, "--complete").status, DONE)
        return plain, complete

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


if __name__ == "__main__":
    unittest.main()
