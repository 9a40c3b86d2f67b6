"""What goes into a window of korvet-batch besides its file: --set values and the options file."""

import unittest

from batch_program import CONE, DONE, REFUSED, FolderTest, cone_file, run, sets


class SetTest(FolderTest):
    def saved(self, *arguments):
        path = self.folder / "out.Kvt"
        result = run(*arguments, "--save", path, "--json", "-")
        self.assertEqual((result.status, result.errors), (DONE, ""))
        return path.read_bytes().decode("cp1252").split("\r\n"), result.json

    def section(self, lines, name):
        return lines[lines.index(f"Start {name}") + 1:lines.index(f"End {name}")]

    def test_every_name(self):
        lines, report = self.saved("--new", "Right Cone", *sets([
            ("box3", "120"), ("box4", "60.50"), ("box5", "4.0e1"), ("comment1", "Hood, bay 4"), ("comment2", "no. 7"),
            ("textsize", "3.5"), ("segs", "36"), ("Thickness", "2.50"), ("ThicknessA", "3"), ("ThicknessB", "4"),
            ("InOutMean", "2"), ("HalfPattern", "tRUE"), ("JoinType", "1"), ("LapSize0", "5"), ("LapSize1", "10.25"),
            ("LapSize2", "-1"), ("JoinAngle", "-90"), ("KerfSpacing", "0.5"), ("TemplateType", "1"),
            ("CoordGridRequested", "True"), ("CoordTableRequested", "-1"), ("DiagonalsRequested", "false"),
            ("FrameRequested", "0"), ("TrueLengthsRequested", "TRUE")]))
        self.assertEqual(self.section(lines, "Pattern Settings"),
                         ["2.5", "36", "-90", "False", "0", "True", "2", "200", "150", "No Border", " ", "7", "1", "5",
                          "10.25", "-1", "0.5", "False", "outside", "1", "False"])
        self.assertEqual(self.section(lines, "Standard TextBoxes"),
                         ["0", "0", "0", "120", "60.50", "4.0e1", "0", "0", "0"])
        self.assertEqual(self.section(lines, "Requests"), ["True", "True", "False", "False", "True"])
        self.assertEqual(self.section(lines, "Comments"), ["Hood, bay 4", "no. 7"])
        self.assertEqual(report["labels"][:-1], [
            "Hood, bay 4", "no. 7", "Base diameter = 120", "Top diameter = 60.50", "Cutting plane height = 4.0e1",
            "Thickness = 2.5", "Dimensions are based on the outside"])
        self.assertTrue(report["labels"][-1].startswith("Right Cone  Half pattern  "))
        self.assertEqual(len(report["pattern"][0]["List1"]), 37 // 2 + 1 + 1)

    def test_later_values_win(self):
        lines, _ = self.saved(*CONE, *sets([("segs", "12"), ("segs", "48"), ("box4", "40"), ("box4", "45")]))
        self.assertEqual(self.section(lines, "Pattern Settings")[1], "48")
        self.assertEqual(self.section(lines, "Standard TextBoxes")[4], "45")

    def test_values_hold_anything(self):
        """What stands behind the first equals sign is the value, blanks and further signs included."""
        _, report = self.saved(*CONE, *sets([("comment1", "a = b"), ("comment2", ' "x"\\y ')]))
        self.assertEqual(report["labels"][:2], ["a = b", ' "x"\\y '])
        _, report = self.saved(*CONE, *sets([("comment1", "Ø 120 × 3 – é"), ("comment2", "\t\x01\n end")]))
        self.assertEqual(report["labels"][:2], ["Ø 120 × 3 – é", "\t\x01\n end"])

    def test_comment_stays_on_its_line(self):
        lines, _ = self.saved(*CONE, *sets([("comment1", "one\r\nEnd Comments"), ("comment2", "two")]))
        self.assertEqual(self.section(lines, "Comments")[-1], "two")
        self.assertEqual(len(self.section(lines, "Comments")), 2)

    def test_values_overrule_a_file(self):
        path = self.write("in.Kvt", cone_file(segs="12", Thickness="1"))
        report = run(path, *sets([("segs", "48"), ("box4", "40")]), "--json", "-").json
        self.assertEqual(len(report["pattern"][0]["List1"]), 49)
        self.assertIn("Top diameter = 40", report["labels"])
        self.assertIn("Thickness = 1", report["labels"])

    def test_bad_numbers(self):
        for name in ("Thickness", "ThicknessA", "ThicknessB", "JoinAngle", "LapSize0", "LapSize1", "LapSize2",
                     "KerfSpacing", "segs"):
            for value in ("", "x", "1,5", "nan", "inf", "-inf", "1e400", "0x10"):
                self.refused(name, value, "Not a valid number")
        for value, text in (("0", "This dimension must be greater than 0"),
                            ("-1", "This dimension must be greater than 0"),
                            ("2.5", "This dimension must be an integer (whole number)"),
                            ("10000000", "This dimension must be equal to or less than 100000"),
                            ("1e300", "This dimension must be equal to or less than 100000")):
            self.refused("segs", value, text)

    def test_thickness_below_nothing(self):
        """Refused where it is given: one for most fittings, two for a branch, whose single one is greyed."""
        text = "This dimension must be equal to or greater than 0"
        for value in ("-1", "-1e-9"):
            self.refused("Thickness", value, text)
        for value in ("0", "-0", "1e-9"):
            self.assertEqual(run(*CONE, "--set", f"Thickness={value}", "--json", "-").status, DONE)
        branch = ["--new", "Branch", "--type", "1", "--sample", "--json", "-"]
        plain = run(*branch).json
        self.assertEqual(run(*branch, "--set", "Thickness=-1").json, plain)
        for name in ("ThicknessA", "ThicknessB"):
            report = run(*branch, "--set", f"{name}=-1").json
            self.assertEqual([message["text"] for message in report["messages"]], [text])
            self.assertEqual(run(*CONE, "--set", f"{name}=-1").status, DONE)

    def test_file_with_a_thickness_below_nothing(self):
        path = self.write("thin.Kvt", cone_file(Thickness="-1"))
        result = run(path, "--json", "-")
        text = "This dimension must be equal to or greater than 0"
        self.assertEqual((result.status, result.lines), (REFUSED, [f"{path}: {text}"]))
        self.assertEqual([(m["title"], m["text"], m["box"]) for m in result.json["messages"]],
                         [("User Error", text, None)])
        self.assertEqual(run(path, "--set", "Thickness=1", "--json", "-").status, DONE)

    def refused(self, name, value, text):
        with self.subTest(name=name, value=value):
            result = run(*CONE, "--set", f"{name}={value}", "--json", "-")
            self.assertEqual((result.status, result.json["refused"], result.json["pattern"]), (REFUSED, True, []))
            self.assertEqual([(m["text"], m["box"]) for m in result.json["messages"]], [(text, None)])
            self.assertEqual(result.lines, [f"Right Cone: {name}: {text}"])

    def test_every_bad_value_is_told(self):
        bad = [("Thickness", "x"), ("JoinAngle", "x"), ("segs", "0"), ("box4", "y"), ("box5", "y")]
        result = run(*CONE, *sets(bad), "--json", "-")
        self.assertEqual((result.status, result.lines), (REFUSED, [
            "Right Cone: Thickness: Not a valid number", "Right Cone: JoinAngle: Not a valid number",
            "Right Cone: segs: This dimension must be greater than 0", "Right Cone: box 4: Not a valid number",
            "Right Cone: box 5: Not a valid number"]))
        self.assertEqual([message["box"] for message in result.json["messages"]], [None, None, None, 4, 5])

    def test_text_size_must_be_drawable(self):
        for size in ("0", "-3", "1e30", "1e300"):
            with self.subTest(size=size):
                path = self.folder / f"{size}.png"
                result = run(*CONE, "--set", f"textsize={size}", "--set", "TrueLengthsRequested=True", "--png", path)
                self.assertEqual(result.status, DONE if path.exists() else REFUSED)
                self.assertEqual(result.errors == "", path.exists())


def settings_file(**changes):
    values = {"version": "3.b", "DefaultSegs": " 36 ", "Decimals": " 3 ", "Language": "English", "TextSize": " 2 ",
              "Fold": " 16776960 ", "Cut": " 255 ", "Text": " 65280 ", "Back": " 0 ", "Dimension": " 65535 ",
              "Border": " 16776960 ", "TextLayer": "Words", "FoldLayer": "Bends", "CutLayer": "Profile",
              "BorderLayer": "Border", "DimensionLayer": "Sizes", "DXFTextSize": " 1.5 ", "a": " 200 ", "b": " 150 ",
              "PolyMode": " 1 ", "Orientation": " 1 ", "Scale": " 0 ", "Units": " 6 ", "X": " 1 ", "Y": " 1 "}
    values.update(changes)
    return "".join(f"{value}\r\n" for value in values.values())


class SettingsFileTest(FolderTest):
    def test_options_take_effect(self):
        path = self.write("settings.ini", settings_file())
        result = run(*CONE, "--settings", path, "--json", "-", "--dxf", self.folder / "out.dxf")
        self.assertEqual((result.status, result.errors), (DONE, ""))
        self.assertEqual(len(result.json["pattern"][0]["List1"]), 37)
        drawing = (self.folder / "out.dxf").read_bytes()
        for word, count in ((b"Profile", True), (b"Bends", True), (b"CutLayer", False), (b"POLYLINE", True),
                            (b"ARC", False)):
            self.assertEqual(word in drawing, count, word)
        result = run("--new", "Right Cone", *sets([("box3", "100.123456"), ("box4", "200"), ("box5", "5")]),
                     "--settings", path)
        self.assertEqual(result.lines, ["Right Cone: box 4: This dimension must be less than 100.123"])
        self.assertEqual(path.read_bytes(), settings_file().encode())

    def test_decimals(self):
        for decimals, shown in enumerate(("100", "100.5", "100.46", "100.457", "100.4568", "100.45678")):
            path = self.write("settings.ini", settings_file(Decimals=f" {decimals} "))
            result = run("--new", "Right Cone", *sets([("box3", "100.45678"), ("box4", "200"), ("box5", "5")]),
                         "--settings", path)
            self.assertEqual(result.lines, [f"Right Cone: box 4: This dimension must be less than {shown}"])

    def test_halves_are_rounded_to_even(self):
        path = self.write("settings.ini", settings_file(Decimals=" 1 "))
        for size, shown in (("100.25", "100.2"), ("100.35", "100.4"), ("100.75", "100.8"), ("0.25", "0.2"),
                            ("0.04", "0"), ("123456789.25", "123456789.2")):
            result = run("--new", "Right Cone", *sets([("box3", size), ("box4", "1e9"), ("box5", "5")]),
                         "--settings", path)
            self.assertEqual(result.lines, [f"Right Cone: box 4: This dimension must be less than {shown}"])

    def test_language_without_texts(self):
        """Messages of a language that has no texts are empty; the refusal stands."""
        path = self.write("settings.ini", settings_file(Language="French"))
        result = run("--new", "Right Cone", "--settings", path, "--json", "-")
        self.assertEqual((result.status, [m["text"] for m in result.json["messages"]]), (REFUSED, [""]))

    def test_missing_file_is_not_made(self):
        path = self.folder / "settings.ini"
        result = run(*CONE, "--settings", path, "--json", self.folder / "out.json")
        self.assertEqual(result.status, REFUSED)
        self.assertEqual(len(result.lines), 1)
        self.assertIn(str(path), result.lines[0])
        self.assertEqual(self.names(), [])

    def test_bad_lines(self):
        """A line that cannot be used is named; the file stays as it is and nothing is made."""
        for change, line in (({"DefaultSegs": "x"}, 2), ({"DefaultSegs": "0"}, 2), ({"Decimals": "6"}, 3),
                             ({"Decimals": "-1"}, 3), ({"TextSize": ""}, 5), ({"Cut": "nan"}, 7),
                             ({"Border": "1e30"}, 11), ({"DXFTextSize": "0"}, 17), ({"X": "0"}, 24),
                             ({"Y": "1e400"}, 25)):
            with self.subTest(change=change):
                path = self.write("settings.ini", settings_file(**change))
                result = run(*CONE, "--settings", path, "--json", self.folder / "out.json")
                self.assertEqual((result.status, len(result.lines)), (REFUSED, 1))
                self.assertIn(f"line {line}", result.lines[0])
                self.assertIn(str(path), result.lines[0])
                self.assertEqual(path.read_bytes(), settings_file(**change).encode())
                self.assertEqual(self.names(), ["settings.ini"])

    def test_short_file(self):
        whole = settings_file().splitlines(keepends=True)
        for count in range(1, 25):
            path = self.write("settings.ini", "".join(whole[:count]))
            self.assertEqual(run(*CONE, "--settings", path).status, REFUSED, count)

    def test_files_that_are_no_options_of_this_version(self):
        """They are refused and stay as they are, whatever they hold; nothing is made beside them."""
        for name, contents in (("settings.ini", settings_file(version="3.a")), ("mine.Kvt", cone_file()),
                               ("notes", "shopping list\n"), ("empty", "")):
            with self.subTest(name=name):
                path = self.write(name, contents)
                self.write(f"{name}.bak", "older")
                result = run(*CONE, "--settings", path, "--json", self.folder / "out.json")
                self.assertEqual((result.status, len(result.lines)), (REFUSED, 1))
                self.assertIn(f"{path}, line 1: ", result.lines[0])
                self.assertEqual(path.read_bytes(), contents.encode())
                self.assertEqual((self.folder / f"{name}.bak").read_text(), "older")
                self.assertNotIn("out.json", self.names())

    def test_layer_names_that_no_drawing_has(self):
        for bad in ("a/b", "c|d", "e\x07f", 'g"h', "i`j"):
            path = self.write("settings.ini", settings_file(CutLayer=bad))
            result = run(*CONE, "--settings", path, "--dxf", self.folder / "out.dxf")
            self.assertEqual((result.status, len(result.lines)), (DONE, 1))
            self.assertIn("line 14", result.lines[0])
            drawing = (self.folder / "out.dxf").read_bytes()
            self.assertIn(b"CutLayer", drawing)
            self.assertNotIn(bad.encode(), drawing)
            self.assertIn(b"Bends", drawing)

    def test_folder_as_settings(self):
        self.assertEqual(run(*CONE, "--settings", self.folder).status, REFUSED)


if __name__ == "__main__":
    unittest.main()
