"""Parameter files that korvet-batch reads: their versions, and everything that may be wrong in one."""

import os
import unittest

import cone_cases
import test_cones
from batch_program import DONE, REFUSED, FolderTest, cone_file, run


class BranchTest(FolderTest):
    def test_a_file_without_thicknesses_and_join(self):
        """Whether it was cut or comes from a program that knows none, it is read and told of, in the report too."""
        whole = self.folder / "whole.Kvt"
        self.assertEqual(run("--new", "Branch", "--sample", "--set", "ThicknessA=2", "--save", whole).status, DONE)
        data = whole.read_bytes()
        end = data.index(b"End Comments") + len(b"End Comments")
        for length, status in ((len(data), DONE), (end, DONE), (end + 2, DONE), (end + 10, REFUSED),
                               (end - 1, REFUSED)):
            path = self.write("cut.Kvt", data[:length])
            result = run(path, "--json", "-")
            self.assertEqual(result.status, status, length)
            said = ("The thicknesses and the join of the branch are not in this file: "
                    "the settings of a new window are used")
            told = status == DONE and length < len(data)
            self.assertEqual([message["text"] for message in result.json["messages"]].count(said), int(told), length)
            self.assertEqual(said in result.errors, told, length)


class VersionTest(FolderTest):
    def laps(self, version, laps):
        path = self.write("in.Kvt", cone_file(product=f"Korvet Development-{version}", laps=laps, JoinType="1",
                                              KerfSpacing="7"))
        saved = self.folder / "out.Kvt"
        result = run(path, "--save", saved)
        later = version in ("3.9", "4.3.1", "9.9.9", "4.0.0", "4.2")
        self.assertEqual((result.status, len(result.lines)), (DONE, int(later)), version)
        self.assertEqual("This file is of the later version" in result.errors, later)
        lines = saved.read_bytes().decode().split("\r\n")
        self.assertEqual(lines[0], "Korvet Development-3.3.3")
        start = lines.index("Start Pattern Settings")
        self.assertEqual(lines[start + 17], "7")
        return lines[start + 14:start + 17]

    def test_one_lap_of_old(self):
        # Each digit is asked for itself, so that 4.0 counts as old; what is no digit counts as 0.
        for version in ("3.2", "3.2.9", "3.0.0", "2.9.9", "2.3", "4.0.0", "4.2", "1.0", "", "x.y"):
            self.assertEqual(self.laps(version, ["2.5"]), ["2.5"] * 3)

    def test_three_laps(self):
        for version in ("3.3", "3.3.0", "3.3.3", "3.9", "4.3.1", "9.9.9", "3.3.3 beta"):
            self.assertEqual(self.laps(version, ["2.5", "3", "4.25"]), ["2.5", "3", "4.25"])

    def test_product_line_without_a_version(self):
        path = self.write("in.Kvt", cone_file(product="Korvet Development-", laps=["2.5"]))
        self.assertEqual(run(path).status, DONE)

    def test_foreign_product(self):
        for product in ("Other Development-3.3.3", "korvet development-3.3.3", "Korvet Development", "",
                        "\ufeff\ufeffKorvet Development-3.3.3", "Korvet  Development-3.3.3"):
            with self.subTest(product=product):
                path = self.write("in.Kvt", cone_file(product=product))
                result = run(path, "--json", "-")
                self.assertEqual((result.status, result.json["refused"]), (REFUSED, True))
                self.assertEqual(result.json["messages"][0]["text"], "Not a valid ")
                self.assertTrue(result.lines[0].startswith(f"{path}: Not a valid: line 1: "), result.lines)

    def test_forms_of_line_ends_and_blanks(self):
        whole = run(self.write("in.Kvt", cone_file()), "--json", "-").json
        text = cone_file()
        for form in (text.replace("\r\n", "\n"), "\ufeff" + text, text.replace("\r\n", " \t\r\n"),
                     text.replace("\r\n", "\r\n  "), text.replace("False", "FALSE").replace("True", "tRUE"),
                     text.replace("\r\nFalse\r\n", "\r\n0\r\n").replace("\r\nTrue\r\n", "\r\n-1\r\n"),
                     text.replace("End Requests\r\n", "End Requests\r\n\r\nrubbish\r\n\r\n"),
                     text.rstrip("\r\n "), text + "more\r\n" * 5):
            with self.subTest(form=form):
                result = run(self.write("in.Kvt", form), "--json", "-")
                self.assertEqual((result.status, result.errors), (DONE, ""))
                self.assertEqual(result.json, whole)


class BadFileTest(FolderTest):
    def outcome(self, contents):
        """Every text as a file of its own, all in few runs: [(refused, messages)]."""
        results = []
        for start in range(0, len(contents), 400):
            paths = [self.write(f"{start + k}.Kvt", text) for k, text in enumerate(contents[start:start + 400])]
            result = run(*paths, "--json", "-")
            reports = result.json if len(paths) > 1 else [result.json]
            self.assertEqual(result.status, REFUSED if any(report["refused"] for report in reports) else DONE)
            for path, report in zip(paths, reports):
                self.assertEqual(report["file"], str(path))
                if report["refused"]:
                    self.assertEqual((report["model"], report["pattern"]), ([], []))
                    self.assertTrue(report["messages"])
                results.append((report["refused"], [message["text"] for message in report["messages"]]))
        return results

    def load_error(self, text, what, in_header=False):
        self.refused_at_load(self.outcome([text])[0], what, in_header)

    def refused_at_load(self, outcome, what, in_header):
        """A fault of the header has a box of its own before the one that every load ends with."""
        refused, messages = outcome
        self.assertTrue(refused, what)
        if in_header:
            self.assertRegex(messages.pop(0), "^Error in CKVTFile:ReadHeader  line 3: ", what)
        self.assertEqual(messages, ["Error loading parameter file"], what)

    def test_cut_short_at_every_byte(self):
        data = cone_file(Comment1="first comment", Comment2="second", Label=("1", "2", "0"),
                         Dimensions=("1", "2", "1", "2", "1", "1")).encode()
        whole = data.index(b"End Comments") + len(b"End Comments")
        outcomes = self.outcome([data[:size] for size in range(len(data))])
        for size, (refused, messages) in enumerate(outcomes):
            self.assertEqual(refused, size < whole, f"cut at byte {size}: {messages}")

    def test_every_line_left_out(self):
        """A file that lacks a line is refused, but for lines that carry nothing: readers look for the sections."""
        lines = cone_file().split("\r\n")[:-1]
        needless = {"End Header", " ", "", "End ViewPoint", "End Pattern Settings", "End Standard TextBoxes",
                    "End Rotation", "End Move", "End Requests", "End LabelPoint", "200", "150", "No Border",
                    "Start Angle Option Buttons", "End Angle Option Buttons", "Start Pattern Select Option Buttons",
                    "End Pattern Select Option Buttons", "Start Flush Side Option Buttons",
                    "End Flush Side Option Buttons"}
        outcomes = self.outcome(["".join(f"{line}\r\n" for k, line in enumerate(lines) if k != left)
                                 for left in range(len(lines))])
        for line, (refused, messages) in zip(lines, outcomes):
            if line.startswith("Start") and line not in needless:
                self.assertTrue(refused, f"without {line}: {messages}")

    def test_numbers_that_are_none(self):
        bad = ("NaN", "nan", "inf", "-inf", "Infinity", "1e400", "-1e999", "", "x", "1.5.2", "0x1F", "1 2",
               "--1", "1e", "&H10", "12abc")
        names = ("AroundZ", "FromXY", "PanX", "PanY", "ZoomFactor", "Thickness", "segs", "NoOfSides", "InOutMean",
                 "LapEnable", "JoinType", "KerfSpacing", "TemplateType", "RotationAngle")
        files = [(name, text, cone_file(**{name: text})) for name in names for text in bad]
        files += [("JoinAngle", text, cone_file(angle=text)) for text in bad]
        files += [(f"LapSize{k}", text, cone_file(laps=["0"] * k + [text] + ["0"] * (2 - k)))
                  for k in range(3) for text in bad]
        files += [("Dtype", text, cone_file(dtype=text)) for text in bad]
        files += [(f"Move {k}", text, cone_file(Move=["0"] * k + [text] + ["0"] * (5 - k)))
                  for k in range(6) for text in bad]
        files += [(f"Dimension {k}", text, cone_file(Dimensions=["1"] * k + [text] + ["1"] * (5 - k)))
                  for k in range(6) for text in bad]
        files += [(f"Label {k}", text, cone_file(Label=["0"] * k + [text] + ["0"] * (2 - k)))
                  for k in range(1, 3) for text in bad]
        for (name, text, _), outcome in zip(files, self.outcome([contents for _, _, contents in files])):
            self.refused_at_load(outcome, f"{name} {text!r}", name == "Dtype")

    def test_label_point_that_is_none(self):
        """A label point is taken only when its first line is a number."""
        for text in ("nan", "x", "1e400"):
            saved = self.folder / "out.Kvt"
            path = self.write("in.Kvt", cone_file(Label=(text, "1", "2")))
            self.assertEqual(run(path, "--save", saved).status, DONE)
            self.assertIn("Start LabelPoint\r\nEnd LabelPoint\r\n", saved.read_bytes().decode())

    def test_boxes_that_hold_no_number(self):
        typed = ["Not a valid number"] * 2
        bad = ("NaN", "inf", "1e400", "x")
        files = [cone_file(["0", "0", "0"] + [text if k == box else "50" for k in (3, 4, 5)] + ["0"] * 3)
                 for box in (3, 4, 5) for text in bad]
        self.assertEqual(self.outcome(files), [(True, typed)] * len(files))
        # Boxes of another type are told of, and needed by the truncated cone alone.
        files = [cone_file([text, "0", "0", "100", "50", "40", "0", "0", "0"]) for text in bad]
        self.assertEqual(self.outcome(files), [(False, typed[:1])] * len(files))
        files = [cone_file(["100", "40", "60", "10"] + ["0"] * 22 + [text], 0, "Truncated Right Cone") for text in bad]
        self.assertEqual(self.outcome(files), [(True, typed)] * len(files))

    def test_values_out_of_range(self):
        for lines in ({"segs": "0"}, {"segs": "-1"}, {"segs": "2.5"}, {"segs": "10000000"}, {"segs": "99999999999"},
                      {"InOutMean": "3"}, {"InOutMean": "-1"}, {"NoOfSides": "40000"}, {"LapEnable": "1e3"},
                      {"HalfPattern": "Yes"}, {"HalfPattern": "1"}, {"Patternview": ""}, {"KerfEnabled": "2"},
                      {"FrameRequested": "maybe"}, {"TemplateTypeEnabled": "nan"}, {"JoinAngleDisable": "-2"}):
            self.load_error(cone_file(**lines), lines)
        for dtype in ("-1", "3", "5", "99", "40000", "1.5"):
            self.load_error(cone_file(dtype=dtype), f"Dtype {dtype}", dtype in ("40000", "1.5"))
        self.load_error(cone_file(["0"] * 27, 5, "Truncated Right Cone"), "Dtype 5")

    def test_fault_is_located(self):
        path = self.write("in.Kvt", cone_file(segs="2.5"))
        fault = 'line 17: "2.5" is not a whole number from 1 to 100000'
        self.assertEqual(run(path).lines, [f"{path}: Error loading parameter file: {fault}"])

    def test_too_few_boxes(self):
        """End markers taken for sizes are no numbers, and what lies behind is not eaten."""
        refused, messages = self.outcome([cone_file(["0", "0", "0", "100", "50"])])[0]
        self.assertEqual(refused, True)
        self.assertIn("Not a valid number", messages)

    def test_rubbish(self):
        rng = cone_cases.rng_of("rubbish")
        data = cone_file().encode()
        files = [b"", b"\0" * 1000, b"\xff\xfe" * 50, b"\r\n" * 5000, b"Korvet Development-3.3.3", b"x" * 100000,
                 data.replace(b"\r\n", b"\r"), data[::-1], data * 2]
        for _ in range(300):
            spoilt = bytearray(data)
            for _ in range(rng.randint(1, 8)):
                at = rng.randrange(len(spoilt))
                spoilt[at:at + rng.randrange(3)] = bytes(rng.randrange(256) for _ in range(rng.randrange(3)))
            files.append(bytes(spoilt))
        outcomes = self.outcome(files)
        self.assertEqual([refused for refused, _ in outcomes[:9]], [True] * 8 + [False])

    def test_large_files(self):
        self.assertEqual(run(self.write("in.Kvt", cone_file(Comment1="c" * 10_000_000))).status, DONE)
        path = self.write("large.Kvt", cone_file())
        os.truncate(path, 272 * 2**20 + 1)  # one byte more than the largest mesh and what stands before it
        result = run(path)
        self.assertEqual(result.status, REFUSED)
        self.assertIn("is larger than", result.errors)
        for count, status in ((10000, DONE), (10001, REFUSED)):
            many = cone_file(Dimensions=["1", "2", "1", "2", "1", "1"] * count)
            self.assertEqual(run(self.write("in.Kvt", many), "--dxf", self.folder / "out.dxf").status, status)

    def test_dimensions_that_name_nothing(self):
        """Dimensions of points, lists and surfaces that are not there break nothing off."""
        odd = ("0", "-1", "26", "1000000000", "-1000000000")
        files = [cone_file(Dimensions=[value if k == place else "1" for k in range(6)], Label=("0", "0", "0"))
                 for place in range(6) for value in odd]
        paths = [self.write(f"{k}.Kvt", text) for k, text in enumerate(files)]
        result = run(*paths, "--dxf", self.folder / "{name}.dxf", "--dimensions", "--svg", self.folder / "{name}.svg")
        self.assertEqual(result.status, DONE)

    def test_what_cannot_be_read(self):
        for path in (self.folder, self.folder / "none.Kvt", self.folder / "none" / "x.Kvt", "/dev/null"):
            with self.subTest(path=path):
                result = run(path, "--json", "-")
                self.assertEqual(result.status, REFUSED)
                self.assertEqual(len(result.lines), 1)
                self.assertTrue(result.lines[0].startswith(f"{path}: Error loading parameter file: "), result.lines)

    def test_empty_name(self):
        """An empty name, as a script may pass it on, is refused in words."""
        result = run("")
        self.assertNotEqual(result.status, DONE)
        self.assertNotEqual(result.errors, "")

    def test_odd_views(self):
        """Views far out or turned inside out still draw, or are refused in words."""
        paths = []
        for k, (name, value) in enumerate([(name, value) for name in ("AroundZ", "FromXY", "PanX", "PanY", "ZoomFactor")
                                           for value in ("1e300", "-1e300", "1e-300", "0", "-1", "1e308")]):
            for view in ("True", "False"):
                paths.append(self.write(f"{k}{view}.Kvt", cone_file(**{name: value, "Patternview": view})))
        result = run(*paths, "--svg", self.folder / "{name}.svg", "--dxf", self.folder / "{name}.dxf")
        for path in paths:
            told = any(line.startswith(f"{path}: ") for line in result.lines)
            self.assertTrue(told or path.with_suffix(".svg").exists(), path)

    def test_odd_settings(self):
        """Any finite number may stand in the settings: it is worked with or refused, never broken down over."""
        numbers = ("1e308", "-1e308", "1e154", "1e-300", "-5", "1e15", "-1000000", "123456789.123456789")
        files = [cone_file(**{name: number}, JoinType="1", InOutMean=side)
                 for name in ("Thickness", "KerfSpacing") for number in numbers for side in ("0", "1", "2")]
        files += [cone_file(angle=number, JoinType="1") for number in numbers]
        files += [cone_file(laps=[number if k == lap else "5" for k in range(3)], JoinType="1")
                  for lap in range(3) for number in numbers]
        files += [cone_file(JoinType=str(kind), laps=("5", "5", "5")) for kind in (-1, 2, 32767, -32768)]
        files += [cone_file(segs=str(segs)) for segs in (1, 2, 3)]
        self.outcome(files)

    def test_most_segments(self):
        path = self.write("in.Kvt", cone_file(segs="100000"))
        report = run(path, "--json", "-").json
        self.assertEqual(len(report["pattern"][0]["List2"]), 100001)
        self.assertFalse(test_cones.Comparison(report, test_cones.Case(
            "Right Cone", 1, ((3, "100"), (4, "50"), (5, "40")),
            test_cones.Settings(segs=100000)).answer()).faults)


if __name__ == "__main__":
    unittest.main()
