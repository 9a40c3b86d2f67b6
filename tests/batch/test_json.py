"""The JSON of korvet-batch."""

import json
import os
import subprocess
import time
import unittest
from pathlib import Path

from batch_program import CONE, CUT_CONE, DONE, PROGRAM, REFUSED, WRONG_USAGE, FolderTest, cone_file, read_json, run


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

    def test_further_names_part_and_are_told_of(self):
        for pattern, name in (("one.json", "one.json"), ("{name}.json", "Right Cone.json")):
            old = self.write(name, "old")
            os.link(old, self.folder / f"other of {name}")
            result = run(*CONE, "--json", self.folder / pattern)
            told = f"korvet-batch: {old} had further names (hard links): under those the file stays as it was\n"
            self.assertEqual((result.status, result.errors), (DONE, told))
            self.assertEqual((self.folder / f"other of {name}").read_text("ascii"), "old")
            read_json(old.read_text("utf-8"))

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

    def test_what_is_no_unicode_spoils_no_report(self):
        """Names of files, comments and values from anywhere; the JSON of the inputs beside them stays whole."""
        spoilt = cone_file(Comment1="COMMENT", category="CATEGORY").encode()
        paths = [self.write("good.Kvt", cone_file())]
        for k, (comment, category) in enumerate(((b"\xff\xfe", b"Right Cone"), (b"a\xe2\x82", b"Right Cone"),
                                                 (b"", b"Right\xc3"), ("é".encode() * 300, "ü".encode() * 300))):
            paths.append(self.write(f"{k}.Kvt", spoilt.replace(b"COMMENT", comment).replace(b"CATEGORY", category)))
        out = self.folder / "out.json"
        for target in ("-", out):
            result = subprocess.run([PROGRAM, *paths, "--set", b"comment2=\xff\xc3", "--json", target],
                                    capture_output=True, check=False)
            text = result.stdout if target == "-" else out.read_bytes()
            reports = read_json(text.decode("utf-8"))
            self.assertEqual([report["refused"] for report in reports], [False, False, False, True, True])
            self.assertEqual(reports[0]["labels"][1], "ÿÃ")

    def test_details_of_messages(self):
        path = self.write("bad.Kvt", cone_file(segs="2.5"))
        message, = run(path, "--json", "-").json["messages"]
        self.assertEqual(list(message), ["title", "text", "detail", "box"])
        self.assertEqual(message["text"], "Error loading parameter file")
        self.assertEqual(message["detail"], f'{path}: line 17: "2.5" is not a whole number from 1 to 100000')
        message, = run("--new", "Right Cone", "--json", "-").json["messages"]
        self.assertIsNone(message["detail"])

    def test_messages_show_little_of_a_file(self):
        for text in (cone_file(category="x" * 5000), cone_file(segs="x" * 5000), cone_file(product="x" * 5000)):
            message = run(self.write("bad.Kvt", text), "--json", "-").json["messages"][0]
            self.assertNotIn("x" * 201, message["text"] + message["detail"])

    def test_file_name_that_is_no_unicode(self):
        path = self.folder / "x"
        path = bytes(path)[:-1] + b"\xff.Kvt"
        with open(path, "wb") as file:
            file.write(cone_file().encode())
        result = subprocess.run([PROGRAM, path, "--json", "-"], capture_output=True, check=False)
        self.assertEqual(result.returncode, DONE)
        read_json(result.stdout.decode("utf-8"))


class GrowingReportTest(FolderTest):
    """The report is written as the inputs are done."""

    def started(self, count, *outputs):
        """A run over some inputs that are done at once, and many that take long."""
        paths = [self.write(f"{k}.Kvt", cone_file()) for k in range(count)]
        slow = self.write("slow.Kvt", cone_file(segs="100000"))
        process = subprocess.Popen([PROGRAM, *paths, *[slow] * 50, *outputs], stdout=subprocess.PIPE,
                                   stderr=subprocess.DEVNULL)
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        self.addCleanup(process.stdout.close)
        return process

    def wait_for(self, condition):
        end = time.monotonic() + 60
        while not condition():
            self.assertLess(time.monotonic(), end)
            time.sleep(0.01)

    def entries(self, text, count):
        """The first entries of a list that is not complete."""
        decoder, at, entries = json.JSONDecoder(), 1, []
        for _ in range(count):
            entry, at = decoder.raw_decode(text, at)
            entries.append(entry)
            at += len(",\n")
        return entries

    def test_a_killed_run_leaves_its_part_and_the_old_file(self):
        out = self.write("out.json", "what was there")
        part = self.folder / "out.json.part"
        process = self.started(3, "--json", out)
        self.wait_for(lambda: part.exists() and part.stat().st_size > 30000)
        process.kill()
        process.wait()
        self.assertEqual(out.read_text(), "what was there")
        self.assertEqual([Path(entry["file"]).name for entry in self.entries(part.read_text("utf-8"), 3)],
                         ["0.Kvt", "1.Kvt", "2.Kvt"])
        # The next run takes the part for its own.
        self.assertEqual(run(self.folder / "0.Kvt", "--json", out).status, DONE)
        self.assertFalse(part.exists())
        read_json(out.read_text("utf-8"))

    def test_the_standard_output_gets_each_entry_as_it_is_done(self):
        process = self.started(3, "--json", "-")
        text = ""
        while text.count('"file"') < 4:
            text += os.read(process.stdout.fileno(), 65536).decode("utf-8")
        self.assertIsNone(process.poll(), "the run goes on")
        self.assertEqual(len(self.entries(text, 3)), 3)

    def test_two_runs_at_once_do_not_mix(self):
        out = self.folder / "out.json"
        process = self.started(3, "--json", out)
        self.wait_for((self.folder / "out.json.part").exists)
        result = run(self.folder / "0.Kvt", "--json", out)
        self.assertEqual((result.status, len(result.lines)), (REFUSED, 1))
        self.assertIn("another run is at work on", result.lines[0])
        self.assertIsNone(process.poll())

    def test_the_part_is_no_other_output(self):
        path = self.write("a.Kvt", cone_file())
        for option in ("--dxf", "--save"):
            result = run(path, "--json", self.folder / "out", option, self.folder / "out.part")
            self.assertEqual(result.status, WRONG_USAGE)
        self.assertEqual(self.names(), ["a.Kvt"])


if __name__ == "__main__":
    unittest.main()
