"""The JSON of korvet-batch."""

import json
import subprocess
import unittest

from batch_program import CONE, CUT_CONE, DONE, PROGRAM, REFUSED, FolderTest, cone_file, read_json, run


class JsonTest(FolderTest):
    KEYS = ["file", "category", "window", "type", "labels", "messages", "refused", "model", "pattern"]
    SURFACE = ["List1", "List2", "List3", "LapList1", "LapList2", "RefPoint", "RefPointDisplay"]

    def test_new_window(self):
        report = run(*CUT_CONE, "--json", "-").json
        self.assertEqual(list(report), self.KEYS)
        self.assertEqual([report[key] for key in self.KEYS[:4]], [None, "Truncated Right Cone", "frmRightCone2", 1])
        self.assertEqual((report["messages"], report["refused"]), ([], False))
        for name in ("model", "pattern"):
            self.assertEqual(len(report[name]), 1)
            self.assertEqual(list(report[name][0]), self.SURFACE)
        self.assertEqual([report["model"][0][key] for key in self.SURFACE[2:]], [None, None, None, None, False])
        self.assertEqual([report["pattern"][0][key] for key in self.SURFACE[2:]], [None, None, None, [0, 0, 0], True])

    def test_numbers_read_back_to_themselves(self):
        text = run(*CUT_CONE, "--json", "-").output
        numbers = []
        json.loads(text, parse_float=numbers.append, parse_int=numbers.append)
        self.assertGreater(len(numbers), 300)
        for number in numbers:
            self.assertLessEqual(len(number.strip("-").replace(".", "").split("e")[0].lstrip("0")), 17, number)
            shortest = repr(float(number)).replace("e-0", "e-").removesuffix(".0")
            self.assertEqual(len(shortest.split("e")[0].strip("-0").replace(".", "")),
                             len(number.split("e")[0].strip("-0").replace(".", "")), number)
            self.assertNotIn(number, ("-0", "-0.0"))

    def test_file_and_standard_output_are_alike(self):
        path = self.write("in.Kvt", cone_file())
        out = self.folder / "out.json"
        printed = run(path, "--json", "-")
        written = run(path, "--json", out)
        self.assertEqual((written.status, written.output, written.errors), (DONE, "", ""))
        self.assertEqual(out.read_text("utf-8"), printed.output)
        self.assertEqual(read_json(printed.output)["file"], str(path))

    def test_object_or_list(self):
        paths = [self.write(f"{name}.Kvt", cone_file(segs=segs)) for name, segs in (("b", "12"), ("a", "36"))]
        self.assertIsInstance(run(paths[0], "--json", "-").json, dict)
        reports = run(*paths, "--json", "-").json
        self.assertEqual([report["file"] for report in reports], [str(path) for path in paths])
        self.assertEqual([len(report["pattern"][0]["List1"]) for report in reports], [13, 37])

    def test_one_file_for_each_input(self):
        paths = [self.write(f"{name}.Kvt", cone_file()) for name in ("one", "two.more", ".hidden", "no suffix")]
        self.assertEqual(run(*paths, "--json", self.folder / "{name}-{name}.json").status, DONE)
        self.assertEqual([name for name in self.names() if name.endswith(".json")],
                         [".hidden-.hidden.json", "no suffix-no suffix.json", "one-one.json", "two.more-two.more.json"])
        for path in self.folder.glob("*.json"):
            self.assertIsInstance(read_json(path.read_text("utf-8")), dict)

    def test_refused_inputs_have_their_file(self):
        paths = [self.write("good.Kvt", cone_file()), self.write("bad.Kvt", "x"), self.folder / "none.Kvt"]
        self.assertEqual(run(*paths, "--json", self.folder / "{name}.json").status, REFUSED)
        reports = [read_json((self.folder / f"{name}.json").read_text("utf-8")) for name in ("good", "bad", "none")]
        self.assertEqual([report["refused"] for report in reports], [False, True, True])
        self.assertEqual([report["file"] for report in reports], [str(path) for path in paths])

    def test_name_of_a_new_window(self):
        self.assertEqual(run(*CONE, "--json", "{name}.json", "--dxf", "{name}.dxf", cwd=self.folder).status, DONE)
        self.assertEqual(self.names(), ["Right Cone.dxf", "Right Cone.json"])

    def test_model_is_the_same_in_every_view(self):
        reports = [run(*CUT_CONE, "--view", view, "--json", "-").output for view in ("model", "pattern")]
        self.assertEqual(reports[0], reports[1])

    def test_unusual_names_of_files(self):
        for name in ('quo"te.Kvt', "back\\slash.Kvt", "blank s.Kvt", "é.Kvt", "-dash.Kvt"):
            path = self.write(name, cone_file())
            self.assertEqual(run(path, "--json", "-").json["file"], str(path))

    def test_file_name_that_is_no_unicode(self):
        path = self.folder / "x"
        path = bytes(path)[:-1] + b"\xff.Kvt"
        with open(path, "wb") as file:
            file.write(cone_file().encode())
        result = subprocess.run([PROGRAM, path, "--json", "-"], capture_output=True, check=False)
        self.assertEqual(result.returncode, DONE)
        read_json(result.stdout.decode("utf-8"))


if __name__ == "__main__":
    unittest.main()
