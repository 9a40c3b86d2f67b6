"""Parameter files that korvet-batch writes: their bytes, and that they read back to the same."""

import unittest
from dataclasses import replace

import cone_cases
from batch_program import CONE, DONE, FolderTest, cone_file, run, sets
from cone_cases import TYPES
from cone_oracle import TRUNCATED

# A new Right Cone of Type 2 in its pattern view; each number is one line.
NEW_CONE = """\
Korvet Development-3.3.3
Right Cone
1
End Header
_
Start ViewPoint
1.5707963267949
1.5707963267949
0
0
1
True
End ViewPoint
_
Start Pattern Settings
1.2
12
30.5
False
0
False
2
200
150
No Border
_
7
1
0
15
2.25
0
False
outside
0
False
End Pattern Settings
_
Start Standard TextBoxes
0
0
0
100
50.0
40
0
0
0
End Standard TextBoxes
_
Start Angle Option Buttons
End Angle Option Buttons
_
Start Pattern Select Option Buttons
End Pattern Select Option Buttons
_
Start Flush Side Option Buttons
End Flush Side Option Buttons
_
Start Rotation
0
0
0
0
End Rotation
_
Start Move
0
0
0
0
0
0
End Move
_
Start Requests
False
False
False
True
False
End Requests

Start LabelPoint
End LabelPoint
_
Start Dimensions
End Dimensions
_
Start Comments
Hood
Bay 4
End Comments
_
"""


class SavedFileTest(FolderTest):
    def save(self, *arguments):
        path = self.folder / "saved.Kvt"
        result = run(*arguments, "--save", path)
        self.assertEqual((result.status, result.output, result.errors), (DONE, "", ""))
        return path.read_bytes()

    def test_every_line(self):
        data = self.save("--new", "Right Cone", *sets([
            ("box3", "100"), ("box4", "50.0"), ("box5", "40"), ("Thickness", "1.20"), ("segs", "12"),
            ("JoinAngle", "30.5"), ("InOutMean", "2"), ("JoinType", "1"), ("LapSize1", "15"), ("LapSize2", "2.25"),
            ("FrameRequested", "True"), ("comment1", "Hood"), ("comment2", "Bay 4")]))
        expected = NEW_CONE.replace("_\n", " \n").replace("\n", "\r\n")
        self.assertEqual(data.decode("ascii").split("\r\n"), expected.split("\r\n"))
        self.assertEqual(data, expected.encode("ascii"))

    def test_model_view(self):
        lines = self.save(*CONE, "--view", "model").decode().split("\r\n")
        self.assertEqual(lines[6:12], ["2.35619449019234", "0.610865238198015", "0", "0", "1", "False"])

    def test_roofed_cone_has_its_seam_at_0(self):
        for dtype in (3, 4):
            case = cone_cases.sound_case(TRUNCATED, dtype, cone_cases.rng_of("seam"))
            case.settings.JoinAngle = 45
            lines = self.save(*case.arguments()).decode().split("\r\n")
            start = lines.index("Start Pattern Settings")
            self.assertEqual(lines[start + 3:start + 5], ["0", "True"])
        lines = self.save(*CONE, "--set", "JoinAngle=45").decode().split("\r\n")
        start = lines.index("Start Pattern Settings")
        self.assertEqual(lines[start + 3:start + 5], ["45", "False"])

    def test_round_trip(self):
        """What was saved saves again to the same bytes, whatever it holds."""
        full = cone_file(
            angle="-33.3333333333333", laps=("1.5", "0.1", "-2"), segs="7", Thickness="0.333333333333333",
            HalfPattern="True", InOutMean="1", PositionString="inside", JoinType="1", KerfSpacing="2", NoOfSides="6",
            TemplateType="1", Comment1="Kühlturm – 5 €", Comment2="x", Label=("1.5", "-2", "0"),
            Dimensions=("1", "2", "1", "2", "1", "1", "3", "4", "5", "1", "1", "1"), CoordGridRequested="True",
            TrueLengthsRequested="True", AroundZ="-1.5707963267949", FromXY="0.5", PanX="-12.25", PanY="1E-05",
            ZoomFactor="2.5").replace("1E-05", "1e-05")
        path = self.write("in.Kvt", full.encode("cp1252"))
        self.assertEqual(self.save(path).decode("cp1252").split("\r\n"), full.split("\r\n"))
        for kind in TYPES:
            with self.subTest(kind=kind):
                case = cone_cases.sound_case(*kind, cone_cases.rng_of(f"saved {kind}"))
                # Blanks around a size are saved as typed, and not read back.
                case = replace(case, boxes=tuple((index, text.strip()) for index, text in case.boxes))
                # A file holds 15 digits of a number.
                for name, value in vars(case.settings).items():
                    if isinstance(value, float):
                        setattr(case.settings, name, float("%.15g" % value))
                first, second = self.folder / "first.Kvt", self.folder / "second.Kvt"
                run(*case.arguments(), "--save", first)
                self.assertEqual(run(first, "--save", second).status, DONE)
                self.assertEqual(first.read_bytes(), second.read_bytes())
                reports = [run(*options, "--json", "-").json for options in (case.arguments(), [second])]
                for report in reports:
                    del report["file"]
                self.assertEqual(*reports)

    def test_moves_and_the_rotation_point(self):
        """The rotation point of a saved file is its first move point; the rest comes through."""
        path = self.write("in.Kvt", cone_file(Move=("1", "2", "0", "4.5", "6", "0"), RotationAngle="0.25")
                          .replace("Start Rotation\r\n0\r\n0\r\n0\r\n", "Start Rotation\r\n7\r\n8\r\n9\r\n"))
        lines = self.save(path).decode().split("\r\n")
        start = lines.index("Start Rotation")
        self.assertEqual(lines[start + 1:start + 5], ["1", "2", "0", "0.25"])
        start = lines.index("Start Move")
        self.assertEqual(lines[start + 1:start + 7], ["1", "2", "0", "4.5", "6", "0"])

    def test_plan_view_of_old(self):
        for text, kept in (("0", "-1.5707963267949"), ("0.0", "-1.5707963267949"), ("-0", "-1.5707963267949"),
                           ("1e-300", "1e-300"), ("3.14159265358979", "3.14159265358979")):
            path = self.write("in.Kvt", cone_file(AroundZ=text))
            self.assertEqual(self.save(path).decode().split("\r\n")[6], kept)

    def test_comments_in_every_character_set(self):
        for text in ("plain", "Ø 120 × 3", "„Haube“ – 5 €", "глухой конус", "圆锥", "Ã¤", "a\u0080b"):
            with self.subTest(text=text):
                first = self.folder / "first.Kvt"
                run(*CONE, "--set", f"comment1={text}", "--save", first)
                report = run(first, "--json", "-").json
                self.assertEqual(report["labels"][0], text)
                self.assertEqual(self.save(first), first.read_bytes())


if __name__ == "__main__":
    unittest.main()
