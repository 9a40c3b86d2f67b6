"""The command line of korvet-batch: what it takes, what it refuses, what it says and how it ends."""

import unittest

from batch_program import CONE, DONE, REFUSED, WRONG_USAGE, FolderTest, cone_file, run, run_all, start

CATALOGUE = """\
Right Cone  frmRightCone1
Segmented Bend  frmSegBendParallel
Right Cylinder  frmRightCylinder
Branch  frmBranch
Rectangle (Radius) to Round  frmRectRound2
Pipe to Cone  frmPipeToCone
Rectangle to Rectangle  frmRectToRect
Offset Cone  frmOffsetCone
Truncated Right Cone  frmRightCone2
Breech  frmBreech
Reducing Breech  frmBreechReducing
Offset Cylinder  frmOffsetCylinder
Pyramid  frmPyramid
Reducing Elbow  frmElbowReducing
Round to Round  frmRoundToRound
Auger  frmAuger
Rectangle to Ellipse  frmRectEllipse
Prism  frmPrism
Elbow  frmElbow
Rectangle to Round  frmRectRound1
Tapered Bend  FrmSegBendTapered
Cone to Pipe Elbow  frmElbowPipeCone1
Pipe to Cone Elbow  frmElbowPipeCone2
Cyclone (Cylinder)  frmCyclone1
Cyclone (Cone)  frmCyclone2
Rectangle to Rectangle (folded)  frmRectToRectRad
Oval to Oval  frmOvalToOval
Oval Segmented Bend  frmSegBendOval
Oval Right Cylinder  frmOvalRightCylinder
Oval Elbow  frmElbowOval
Reducing Breech - Two Piece - Angle Top  frmBreechTwoPieceAngleTop
Reducing Breech - Two Piece - Parallel Top  frmBreechTwoPieceParallelTop
Imported Mesh  frmImportMesh
Elliptical Hole  frmEllipticalHole
Pipe to Bend  frmPipeToBend
Mitre Elbow  frmMitreElbow
Rectangular Tee  frmRectTee
Bends  frmBends
Murok Mitre  frmMurokMitre
""".splitlines()


def catalogue_rows():
    return [line for line in start("--list").output.splitlines() if not line.startswith(" ")]


class ListTest(unittest.TestCase):
    def test_list(self):
        result = start("--list")
        self.assertEqual((result.status, result.errors), (DONE, ""))
        rows = catalogue_rows()
        self.assertEqual(rows, CATALOGUE)
        self.assertEqual(len(rows), 39)

    def test_types_and_boxes(self):
        """The boxes of all types of a window together are numbered from 0 without a gap."""
        windows = {}
        for line in run("--list").output.splitlines():
            if not line.startswith(" "):
                window = windows.setdefault(line.split("  ")[0], [])
            elif line.startswith("    Type "):
                window.append([])
            elif line.startswith("        box"):
                window[-1].append(int(line.split()[0].removeprefix("box")))
        self.assertEqual(windows["Right Cone"], [[0, 1, 2], [3, 4, 5], [6, 7, 8]])
        self.assertEqual([sorted(boxes) for boxes in windows["Truncated Right Cone"]],
                         [list(range(0, 4)), list(range(4, 8)), list(range(8, 14)), list(range(14, 20)),
                          list(range(20, 27))])

    def test_samples_are_sound(self):
        for category, types in (("Right Cone", 3), ("Truncated Right Cone", 5)):
            for dtype in range(1, types + 1):
                with self.subTest(category=category, type=dtype):
                    result = run("--new", category, "--type", dtype, "--sample", "--json", "-")
                    self.assertEqual((result.status, result.errors), (DONE, ""))
                    self.assertEqual((result.json["type"], result.json["refused"]), (dtype, False))

    def test_type_at_the_start(self):
        self.assertEqual(run("--new", "Right Cone", "--sample", "--json", "-").json["type"], 2)
        self.assertEqual(run("--new", "Truncated Right Cone", "--sample", "--json", "-").json["type"], 1)

    def test_help(self):
        result = start("--help")
        self.assertEqual((result.status, result.errors), (DONE, ""))
        for option in ("--json", "--dxf", "--hpgl", "--save", "--png", "--svg", "--size", "--view", "--set", "--new", "--type",
                       "--mesh-file", "--select", "--settings", "--list", "--polylines", "--mesh", "--diagonals", "--dimensions",
                       "--label", "{name}", "Exit status"):
            self.assertIn(option, result.output)


class ExitStatusTest(FolderTest):
    def test_statuses_of_the_program_itself(self):
        for arguments, status in (((*CONE, "--json", "-"), DONE), ((*CONE, "--set", "box4=200"), REFUSED),
                                  (("--bogus",), WRONG_USAGE)):
            alone, among_others = start(*arguments), run(*arguments)
            self.assertEqual((alone.status, alone.errors), (status, among_others.errors))
            self.assertEqual(among_others.status, status)
            self.assertEqual(alone.output, among_others.output)


class WrongUsageTest(FolderTest):
    def wrong(self, *arguments, says="", prefix="korvet-batch: "):
        with self.subTest(arguments=arguments):
            result = run(*arguments, cwd=self.folder)
            self.assertEqual((result.status, result.output), (WRONG_USAGE, ""), result.errors)
            self.assertTrue(result.errors.startswith(prefix), result.errors)
            self.assertIn(says, result.errors)

    def test_options(self):
        self.wrong(says="--new")
        self.wrong("--bogus", says="--bogus")
        self.wrong("a.Kvt", "--new", "Right Cone", says="--new")
        self.wrong("a.Kvt", "--type", "2", says="--type")
        self.wrong("a.Kvt", "--sample", says="--sample")
        self.wrong("--new")
        for view in ("both", "Model", "MODEL", " pattern"):
            self.wrong(*CONE, "--view", view, says="--view")
        for size in ("800", "x", "0x600", "800x0", "-1x5", "20001x5", "5x20001", "8e2x600", "800x600x2", "800 x", "x5"):
            self.wrong(*CONE, "--size", size, says="--size")
        for text in ("box3", "=5", ""):
            self.wrong(*CONE, "--set", text, says="--set")
        for number in ("0", "-1", "x", "1.5", "100"):
            self.wrong("--new", "Right Cone", "--type", number, says="--type")
            self.wrong("--new", "Right Cone", "--select", number, says="--select")

    def test_empty_values(self):
        """An empty text where a name or a value must stand is no way of leaving the option out."""
        for option in ("--json", "--dxf", "--hpgl", "--save", "--png", "--svg", "--settings", "--size", "--view", "--new", "--pdf",
                       "--paper", "--sheets", "--units"):
            self.wrong(*CONE, option, "")

    def test_names_and_types(self):
        self.wrong("--new", "right cone", says='"right cone"')
        self.wrong("--new", "Category", says="--list")
        self.wrong("--new", "Right Cone", "--type", "4", says="3 types")
        self.wrong("--new", "Truncated Right Cone", "--type", "6", says="5 types")

    def test_select_on_a_window_without_options(self):
        self.wrong(*CONE, "--select", "1", says="no pattern option")
        path = self.write("a.Kvt", cone_file())
        self.wrong(path, "--select", "1", says="no pattern option", prefix=f"{path}: ")

    def test_unknown_names(self):
        for name in ("Box3", "box", "boxx", "box-1", "box1000", "thickness", "Segs", "LapSize", "LapSize3",
                     "PositionString", "comment3", "Comment1", "TextSize", " box3", "chkNone"):
            self.wrong(*CONE, "--set", f"{name}=1", says=name)
        for name in ("box9", "box27", "box999"):
            self.wrong(*CONE, "--set", f"{name}=1", says=name)
        # An unknown name is wrong whatever the input is worth.
        self.wrong("missing.Kvt", "--set", "LapSize=1", says="LapSize")

    def test_values_of_switches(self):
        for name in ("HalfPattern", "FrameRequested", "CoordGridRequested", "CoordTableRequested", "DiagonalsRequested",
                     "TrueLengthsRequested"):
            for value in ("", "yes", "1", "2", "Truee", "None"):
                self.wrong(*CONE, "--set", f"{name}={value}", says=name)
        for name, values in (("InOutMean", ("3", "-1", "1.0", "mean", "")), ("JoinType", ("2", "-1", "Lap", "")),
                             ("TemplateType", ("2", "-1", ""))):
            for value in values:
                self.wrong(*CONE, "--set", f"{name}={value}", says=name)

    def test_options_that_the_window_lacks(self):
        for name in ("optTopAngle", "optBaseAngle", "optFlushSide"):
            for value in ("0", "1", "none"):
                self.wrong(*CONE, "--set", f"{name}={value}", says=name)

    def test_one_name_for_several_inputs(self):
        self.write("a.Kvt", cone_file())
        self.write("b.Kvt", cone_file())
        (self.folder / "sub").mkdir()
        self.write("sub/a.Kvt", cone_file())
        for option in ("--dxf", "--save", "--png", "--svg"):
            self.wrong("a.Kvt", "b.Kvt", option, "out", says="{name}")
            self.wrong("a.Kvt", "sub/a.Kvt", option, "{name}.out", says="{name}")
            self.wrong("a.Kvt", "a.Kvt", option, "{name}.out", says="{name}")
        self.wrong("a.Kvt", "sub/a.Kvt", "--json", "{name}.json", says="{name}")
        self.assertEqual(self.names(), ["a.Kvt", "b.Kvt", "sub"])

    def test_two_outputs_to_one_file(self):
        """An output must not be written over by another one, nor over its input by a drawing."""
        self.write("a.Kvt", cone_file())
        self.wrong("a.Kvt", "--json", "out", "--dxf", "out")
        self.wrong("a.Kvt", "--png", "out", "--svg", "out")
        self.wrong("a.Kvt", "--dxf", "a.Kvt")
        self.assertEqual((self.folder / "a.Kvt").read_bytes(), cone_file().encode())

    def test_two_names_of_one_file(self):
        self.write("a.Kvt", cone_file())
        self.write("one", "x")
        (self.folder / "two").hardlink_to(self.folder / "one")
        (self.folder / "b.dxf").hardlink_to(self.folder / "a.Kvt")
        self.wrong("a.Kvt", "--json", "one", "--dxf", "two", says="cannot be the DXF of a.Kvt and the JSON")
        self.wrong("a.Kvt", "--dxf", "b.dxf")
        for name in ("c.dxf", "c.svg"):
            (self.folder / name).symlink_to("not there yet")
        self.wrong("a.Kvt", "--dxf", "c.dxf", "--svg", "c.svg", says="cannot be the DXF of a.Kvt and the SVG")
        self.wrong("a.Kvt", "--dxf", "c.dxf", "--save", "not there yet")


class SeveralInputsTest(FolderTest):
    def test_refused_input_stops_nothing_else(self):
        good = [self.write(f"good{k}.Kvt", cone_file()) for k in range(2)]
        bad = self.write("bad.Kvt", cone_file(("0", "0", "0", "100", "200", "40", "0", "0", "0")))
        result = run(good[0], bad, self.folder / "none.Kvt", self.folder, good[1], "--json", "-",
                     "--dxf", self.folder / "{name}.dxf", "--save", self.folder / "{name}.copy",
                     "--svg", self.folder / "{name}.svg")
        self.assertEqual(result.status, REFUSED)
        self.assertEqual([report["refused"] for report in result.json], [False, True, True, True, False])
        self.assertEqual([report["window"] for report in result.json],
                         ["frmRightCone1", "frmRightCone1", None, None, "frmRightCone1"])
        self.assertEqual([(report["category"], report["type"]) for report in result.json][2:4], [(None, None)] * 2)
        self.assertEqual(result.lines[0], f"{bad}: box 4: This dimension must be less than 100")
        self.assertTrue(result.lines[1].startswith(f"{self.folder / 'none.Kvt'}: Error loading parameter file"))
        self.assertTrue(result.lines[2].startswith(f"{self.folder}: Error loading parameter file"))
        self.assertEqual(len(result.lines), 3)
        self.assertEqual(self.names(), ["bad.Kvt", *[f"good{k}.{end}" for k in range(2)
                                                     for end in ("Kvt", "copy", "dxf", "svg")]])
        self.assertEqual((self.folder / "good0.dxf").read_bytes(), (self.folder / "good1.dxf").read_bytes())

    def test_wrong_usage_of_one_input_stops_nothing_else(self):
        cone = self.write("cone.Kvt", cone_file())
        cut = self.write("cut.Kvt", cone_file(["100", "40", "60", "10"] + ["0"] * 23, 0, "Truncated Right Cone"))
        result = run(cone, cut, "--set", "box26=1", "--json", "-")
        self.assertEqual(result.status, WRONG_USAGE)
        self.assertEqual([report["refused"] for report in result.json], [True, False])
        self.assertEqual(len(result.lines), 1)
        self.assertTrue(result.lines[0].startswith(f"{cone}: "))
        # However the inputs behind it end.
        bad = self.write("bad.Kvt", "x")
        self.assertEqual(run(cone, bad, "--set", "box26=1").status, WRONG_USAGE)
        self.assertEqual(run(bad, cone, "--set", "box26=1").status, WRONG_USAGE)

    def test_inputs_do_not_touch_each_other(self):
        """Each input is worked as if it were alone, whatever stood before it."""
        paths = [self.write(f"{k}.Kvt", text) for k, text in enumerate([
            cone_file(segs="12", JoinType="1", laps=("5", "5", "5"), Comment1="first", FrameRequested="True"),
            cone_file(["0"] * 20 + ["100", "50", "40", "10", "5", "3", "4"], 4, "Truncated Right Cone"),
            "rubbish", cone_file(angle="30"), cone_file(Patternview="False")])]
        together = run(*paths, "--json", "-").json
        apart = [result.json for result in run_all([[path, "--json", "-"] for path in paths])]
        self.assertEqual(together, apart)

    def test_many_inputs(self):
        paths = [self.write(f"{k}.Kvt", cone_file()) for k in range(300)]
        result = run(*paths, "--dxf", self.folder / "{name}.dxf")
        self.assertEqual((result.status, result.output, result.errors), (DONE, "", ""))
        self.assertEqual(len({path.read_bytes() for path in self.folder.glob("*.dxf")}), 1)
        self.assertEqual(len(list(self.folder.glob("*.dxf"))), 300)

    def test_saving_over_the_input(self):
        path = self.write("in.Kvt", cone_file(segs="12"))
        self.assertEqual(run(path, "--set", "segs=36", "--save", path).status, DONE)
        self.assertEqual(path.read_bytes().decode(), cone_file(segs="36"))


class CategoryTest(FolderTest):
    def test_unknown_fitting_in_a_file(self):
        for name in ("Right Con", "right cone", "Category", "Right  Cone", "é"):
            with self.subTest(name=name):
                path = self.write("a.Kvt", cone_file(category=name))
                result = run(path, "--json", "-")
                said = "Error loading parameter file"
                self.assertEqual((result.status, result.lines),
                                 (REFUSED, [f'{path}: {said}: line 2: there is no fitting "{name}"']))
                self.assertEqual([message["text"] for message in result.json["messages"]], [said])
                self.assertEqual((result.json["category"], result.json["window"]), (name, None))


if __name__ == "__main__":
    unittest.main()
