"""Lists of fittings, many inputs at the same time, and the check of cut files."""

import math
import re
import unittest
from pathlib import Path

from batch_program import DONE, REFUSED, WRONG_USAGE, FolderTest, read_json, run

EXAMPLES = sorted((Path(__file__).parents[2] / "examples").glob("*.Kvt"))
LIST = """name,fitting,type,sizes
hood,Right Cone,1,box0=300,box1=120,box2=400
bad,Right Cone,1,box0=-1
nothing,Round Cone,1
pipe,Right Cylinder,1,"comment1=for bay 4, left",Thickness=2
"""


class ListTest(FolderTest):
    def test_each_row_is_an_input_of_its_own(self):
        rows = self.write("list.csv", LIST)
        result = run("--fittings", rows, "--sample", "--dxf", "{name}.dxf", "--json", "all.json", cwd=self.folder)
        self.assertEqual(result.status, REFUSED)
        self.assertEqual(result.lines, [
            f"{rows}: line 3: box 0: This dimension must be greater than 0",
            f'{rows}: line 4: there is no fitting "Round Cone"'])
        self.assertEqual(sorted(path.name for path in self.folder.iterdir()),
                         ["all.json", "hood.dxf", "list.csv", "pipe.dxf"])
        report = read_json((self.folder / "all.json").read_text(encoding="utf-8"))
        self.assertEqual([(entry["name"], entry["file"], entry["refused"]) for entry in report],
                         [("hood", None, False), ("bad", None, True), ("nothing", None, True), ("pipe", None, False)])
        self.assertEqual(report[2]["messages"][0]["text"], 'there is no fitting "Round Cone"')
        self.assertEqual(report[3]["labels"][0], "for bay 4, left")

    def test_a_row_is_what_new_makes(self):
        rows = self.write("list.csv", "\ufeffa;Right Cone;1;box0=300;box1=120;box2=400\r\n")
        listed = run("--fittings", rows, "--dxf", self.folder / "{name}.dxf", "--check")
        self.assertEqual(listed.status, DONE)
        run("--new", "Right Cone", "--type", 1, "--set", "box0=300", "--set", "box1=120", "--set", "box2=400",
            "--dxf", self.folder / "new.dxf")
        self.assertEqual((self.folder / "a.dxf").read_bytes(), (self.folder / "new.dxf").read_bytes())

    def test_what_a_row_cannot_have_is_told_with_its_line(self):
        rows = self.write("list.csv", "a,Right Cone,1,optFlushSide=7\nb,Right Cone,1,box99=3\nc,Elbow,1,select=2\n"
                          "d,Right Cone,1,Thickness=x\ne,Right Cone,1\n")
        result = run("--fittings", rows, "--sample", "--dxf", "{name}.dxf", "--json", "-", cwd=self.folder)
        self.assertEqual(result.status, REFUSED)
        self.assertEqual([line.split(": ")[1] for line in result.lines], ["line 1", "line 2", "line 3", "line 4"])
        self.assertEqual([entry["refused"] for entry in result.json], [True] * 4 + [False])
        self.assertEqual(self.names(), ["e.dxf", "list.csv"])

    def test_a_list_without_rows_has_an_empty_report(self):
        rows = self.write("list.csv", "name,fitting,type\n")
        result = run("--fittings", rows, "--json", "-")
        self.assertEqual((result.status, result.json), (DONE, []))
        run("--fittings", rows, "--json", "all.json", cwd=self.folder)
        self.assertEqual(read_json((self.folder / "all.json").read_text(encoding="utf-8")), [])

    def test_a_cell_may_hold_line_ends_marks_and_quotes(self):
        rows = self.write("list.csv", 'a;Right Cone;1;"comment1=4"" pipe;\r\nleft"\r\n'
                          "Trichter Ü;Elbow;1;Thickness=1,5\r\n")
        report = run("--fittings", rows, "--sample", "--json", "-").json
        self.assertEqual(report[0]["labels"][0], '4" pipe;\r\nleft')
        self.assertEqual((report[1]["name"], report[1]["refused"]), ("Trichter Ü", True))  # 1,5 is no number here

    def test_what_a_list_does_not_go_with(self):
        rows = self.write("list.csv", LIST)
        for arguments in (["x.Kvt"], ["--new", "Elbow"], ["--type", 1], ["--dxf", "one.dxf"], ["--dxf", rows]):
            self.assertEqual(run("--fittings", rows, *arguments, cwd=self.folder).status, WRONG_USAGE, arguments)
        self.assertEqual(run("--fittings", self.folder / "none.csv").status, REFUSED)

    def test_values_of_the_command_line_are_for_all_rows(self):
        rows = self.write("list.csv", "a,Right Cone,1\nb,Right Cone,1,segs=12\n")
        report = run("--fittings", rows, "--sample", "--set", "segs=48", "--json", "-").json
        self.assertEqual([len(entry["pattern"][0]["List1"]) for entry in report], [49, 13])


class JobsTest(FolderTest):
    def outputs(self, jobs, *inputs):
        folder = self.folder / str(jobs)
        folder.mkdir()
        result = run(*inputs, "--jobs", jobs, "--check", "--view", "pattern", "--json", folder / "all.json",
                     *(part for kind in ("dxf", "svg", "png", "table", "save", "pdf")
                       for part in (f"--{kind}", folder / f"{{name}}.{kind}")))
        return result, {path.name: path.read_bytes() for path in folder.iterdir()}

    @staticmethod
    def untimed(contents):
        """A file without the time at which a PDF was made."""
        return re.sub(rb"/CreationDate \(D:\d{14}Z?", b"/CreationDate (", contents)

    def same(self, *inputs):
        one, files = self.outputs(1, *inputs)
        for jobs in (2, 8):
            several, others = self.outputs(jobs, *inputs)
            self.assertEqual((several.status, several.lines), (one.status, one.lines))
            self.assertEqual(sorted(others), sorted(files))
            for name, contents in files.items():
                self.assertEqual(self.untimed(others[name]), self.untimed(contents), name)
        return one, files

    def test_examples_at_the_same_time_are_the_same_bytes(self):
        bad = self.write("bad.Kvt", "Korvet\r\nnothing\r\n")
        one, files = self.same(*EXAMPLES[:7], bad, *EXAMPLES[20:23], *EXAMPLES[50:53])
        self.assertEqual(one.status, REFUSED)
        self.assertEqual(len([name for name in files if name.endswith(".svg")]), 13)

    def test_rows_at_the_same_time_are_the_same_bytes(self):
        rows = self.write("list.csv", LIST + "".join(
            f"c{i},Truncated Right Cone,{i % 5 + 1},segs={12 + i},comment1=no. {i}\n" for i in range(20)))
        one, files = self.same("--fittings", rows, "--sample")
        self.assertEqual(one.status, REFUSED)
        self.assertEqual(len([name for name in files if name.endswith(".dxf")]), 22)

    def test_more_jobs_than_inputs(self):
        self.assertEqual(run(EXAMPLES[0], "--jobs", 200).status, DONE)
        for jobs in (0, -1, 257, "x"):
            self.assertEqual(run(EXAMPLES[0], "--jobs", jobs).status, WRONG_USAGE)


class CheckTest(FolderTest):
    def check(self, *arguments):
        result = run(*arguments, "--check", "--json", "-")
        self.assertEqual(result.status, DONE)
        return result, result.json["check"]

    def test_a_pipe(self):
        result, check = self.check("--new", "Right Cylinder", "--type", 1, "--sample")
        self.assertEqual((check["passed"], check["pieces"], check["bends"], check["holes"], check["faults"]),
                         (True, 1, 23, 0, []))
        self.assertEqual({name: check[name] for name in
                          ("openOutlines", "openHoles", "holesOutside", "doubled", "zeroLength", "lapFolds")},
                         {"openOutlines": 0, "openHoles": 0, "holesOutside": 0, "doubled": 0, "zeroLength": 0,
                          "lapFolds": 0})
        self.assertLess(check["widestGap"], 1e-6)
        self.assertEqual(set(check["onPurpose"].values()), {0})
        self.assertAlmostEqual(check["cutLength"], 2 * (200 * math.pi + 300), 5)
        self.assertAlmostEqual(check["area"], 200 * math.pi * 300, 2)
        self.assertEqual(check["finerSegs"], 192)
        self.assertLess(check["fromPoints"], 1e-6)
        self.assertLess(check["fromFiner"], 1e-5)
        self.assertEqual(result.lines, [
            "Right Cylinder: Check passed: 1 piece, 23 bends, cut length 1856.637, area 188495.559.",
            "Right Cylinder: The cut runs within 0.0001 of the pattern's points, within 0.0001 of the pattern with "
            "192 segments."])

    def test_what_is_double_on_purpose_is_told_as_such(self):
        result, check = self.check("--new", "Rectangle to Round", "--type", 1, "--sample")
        self.assertEqual((check["passed"], check["doubled"], check["onPurpose"]["lastSegments"]), (True, 0, 1))
        self.assertIn("Rectangle to Round: On purpose: 1 last segment of an edge.", result.lines)

    def test_the_report_has_it_only_when_it_is_asked_for(self):
        self.assertNotIn("check", run(EXAMPLES[0], "--json", "-").json)

    def test_it_is_of_the_pattern_whatever_the_view(self):
        plain = run("--new", "Elbow", "--sample", "--view", "model", "--dxf", self.folder / "a.dxf")
        self.assertEqual(plain.status, DONE)
        _, check = self.check("--new", "Elbow", "--sample", "--view", "model", "--dxf", self.folder / "b.dxf")
        self.assertEqual(check["pieces"], 2)
        self.assertEqual((self.folder / "a.dxf").read_bytes(), (self.folder / "b.dxf").read_bytes())

    def test_a_model_without_a_pattern_has_nothing_to_check(self):
        result = run("--new", "Bends", "--sample", "--check")
        self.assertEqual(result.status, DONE)
        self.assertEqual(result.lines, ["Bends: There is nothing to check: the pattern is empty."])

    def test_a_refused_input_has_none(self):
        result = run("--new", "Right Cone", "--check", "--json", "-")
        self.assertEqual((result.status, result.json["check"]), (REFUSED, None))


if __name__ == "__main__":
    unittest.main()
