"""The files that korvet-batch writes: drawings, and what becomes of them when writing fails."""

import math
import os
import resource
import subprocess
import unittest
from pathlib import Path

import cone_cases
import dxf_measure
from batch_program import (CONE, CUT_CONE, DONE, PROGRAM, REFUSED, WRONG_USAGE, FolderTest, cone_file, read_json, run,
                           run_all, sets)
from cone_cases import TYPES
from dxf_measure import Drawing
from window_checks import number_text

EXAMPLES = Path(__file__).resolve().parents[2] / "examples"
MODELS_ALONE = ("Bends", "Rectangular Tee")  # fittings without a pattern


class DxfTest(FolderTest):
    def make(self, *arguments):
        path = self.folder / "out.dxf"
        report = run(*arguments, "--dxf", path, "--json", "-").json
        return Drawing(self, path), report

    def test_every_type_in_every_form(self):
        cases = [cone_cases.sound_case(*kind, cone_cases.rng_of(f"drawing {kind} {k}"))
                 for kind in TYPES for k in range(6)]
        forms = (("pattern",), ("pattern", "--polylines"), ("model",))
        runs = run_all([case.arguments() + ["--json", "-", "--view", *form, "--dxf", self.folder / f"{k}{n}.dxf"]
                        for k, case in enumerate(cases) for n, form in enumerate(forms)])
        for k, case in enumerate(cases):
            for n, check in enumerate((self.check_arcs, Drawing.check_polylines, Drawing.check_model)):
                with self.subTest(case=case, form=forms[n]):
                    report = runs[3 * k + n].json
                    surface = report["model" if n == 2 else "pattern"][0]
                    check(Drawing(self, self.folder / f"{k}{n}.dxf"), surface)

    def test_every_example(self):
        """Each type of each fitting with its sample sizes."""
        files = sorted(EXAMPLES.glob("*.Kvt"))
        for form, view, check in (((), "pattern", self.check_arcs), (("--polylines",), "pattern", Drawing.check_polylines),
                                  ((), "model", Drawing.check_model)):
            reports = run(*files, "--view", view, *form, "--json", "-", "--dxf", self.folder / "{name}.dxf").json
            self.assertEqual(len(reports), len(files))
            for path, report in zip(files, reports):
                with self.subTest(path=path.name, view=view, form=form):
                    self.assertEqual(report[view] == [], view == "pattern" and report["category"] in MODELS_ALONE)
                    check(Drawing(self, self.folder / f"{path.stem}.dxf"), *report[view])

    def check_arcs(self, drawing, *surfaces):
        total, straight = drawing.check_arcs(*surfaces), dxf_measure.edge_length(*surfaces)
        self.assertGreaterEqual(total, straight * (1 - 1e-9) - 1e-3)
        # Half circles in the place of two chords square to each other are as far as it can go.
        self.assertLessEqual(total, straight * math.pi / 2 + 1e-3)

    def test_level_cone_has_true_arcs(self):
        for segs in (24, 36, 48):
            drawing, report = self.make(*CONE, "--set", f"segs={segs}")
            surface = report["pattern"][0]
            half = math.atan(25 / 40)
            length = 2 * math.pi * (50 + 25)  # the arcs of the pattern are as long as the circles of the cone
            self.assertAlmostEqual(drawing.check_arcs(surface), length, delta=1e-5 * length)
            self.assertEqual({round(arc.dxf.radius, 6) for arc in drawing.arcs},
                             {round(radius / math.sin(half), 6) for radius in (25, 50)})

    def test_raw_form(self):
        self.make(*CONE)
        data = (self.folder / "out.dxf").read_bytes()
        self.assertTrue(data.startswith(b"0\r\nSECTION\r\n2\r\nENTITIES\r\n0\r\nLINE\r\n8\r\nCutLayer\r\n10\r\n "))
        self.assertTrue(data.endswith(b"0\r\nENDSEC\r\n0\r\nEOF\r\n"))
        self.assertEqual(data.count(b"\n"), data.count(b"\r\n"))

    def test_mesh(self):
        drawing, report = self.make(*CONE, "--view", "model", "--mesh")
        surface = report["model"][0]
        self.assertEqual(len(drawing.meshes), 1)
        mesh = drawing.meshes[0]
        self.assertEqual((mesh.dxf.layer, mesh.dxf.m_count, mesh.dxf.n_count), (dxf_measure.FOLD, 2, 25))
        points = [tuple(v.dxf.location) for v in mesh.vertices]
        for p, q in zip(points, surface["List1"] + surface["List2"]):
            self.assertTrue(dxf_measure.same(p, q[:3]), f"{p} {q}")

    def test_diagonals(self):
        drawing, report = self.make(*CONE, "--polylines", "--diagonals")
        surface = report["pattern"][0]
        ruled = [(p[:3], q[:3]) for p, q in zip(surface["List1"], surface["List2"]) if p[3] == 1]
        self.assertEqual(len(ruled), 13)
        lengths = []
        for (p, _), (_, q) in zip(ruled, ruled[1:]):
            drawing.take_line(dxf_measure.DIMENSION, (p, q), "diagonal")
            lengths.append(number_text(round(math.dist(p, q), 1)))
        self.assertEqual([text.dxf.text for text in drawing.texts], lengths)
        self.assertEqual({text.dxf.layer for text in drawing.texts}, {dxf_measure.TEXT})

    def test_dimensions_follow_the_requests(self):
        drawing, report = self.make(*CUT_CONE, "--polylines", "--dimensions", "--set", "FrameRequested=True",
                                    "--set", "TrueLengthsRequested=-1")
        points = [p for name in ("List1", "List2") for p in report["pattern"][0][name]]
        width, height = (max(p[k] for p in points) - min(p[k] for p in points) for k in (0, 1))
        texts = [text.dxf.text for text in drawing.texts]
        self.assertEqual(len(texts), 3 * 12 + 1 + 3)
        area = next(text for text in texts if text.startswith("Area = "))
        self.assertAlmostEqual(float(area[7:]), width * height, delta=0.051)
        for size in (width, height):
            self.assertIn(number_text(round(size, 1)), texts)
        frame = [ends for layer, ends in drawing.lines if layer == dxf_measure.DIMENSION]
        self.assertEqual(len(frame), 4)
        self.assertAlmostEqual(sum(math.dist(*ends) for ends in frame), 2 * (width + height), delta=1e-5)

    def test_boxes_are_ticked_and_cleared(self):
        """What a file shows is ticked in the export dialog; --no-... clears it, for the export alone."""
        path = self.write("in.Kvt", cone_file(Label=("12.5", "-3", "0"), Comment1="Hood", DiagonalsRequested="True",
                                              TrueLengthsRequested="True"))

        def content(*arguments):
            drawing, report = self.make(path, "--polylines", *arguments)
            texts = [text.dxf.text for text in drawing.texts]
            # 12 rulings between 13 stations: 3 lengths a step, the last ruling, 12 diagonals.
            lengths = len(texts) - (len(report["labels"]) if "Hood" in texts else 0)
            diagonals = sum(layer == dxf_measure.DIMENSION for layer, _ in drawing.lines)
            return lengths, diagonals, "Hood" in texts

        self.assertEqual(content(), (3 * 12 + 1 + 12, 12, True))
        self.assertEqual(content("--no-label"), (3 * 12 + 1 + 12, 12, False))
        self.assertEqual(content("--no-dimensions"), (12, 12, True))
        # Dimensions take the diagonals along that are shown, so that a cleared box alone would not do.
        self.assertEqual(content("--no-diagonals"), (3 * 12 + 1, 0, True))
        self.assertEqual(content("--no-diagonals", "--no-dimensions", "--no-label"), (0, 0, False))
        self.assertEqual(content("--dimensions", "--label", "--diagonals"), content())
        saved = self.folder / "saved.Kvt"
        run(path, "--no-diagonals", "--dxf", self.folder / "a.dxf", "--save", saved)
        self.assertEqual(saved.read_bytes(), path.read_bytes(), "the file shows what it showed")

    def test_clearing_what_is_not_there_is_no_news(self):
        for view in ("model", "pattern"):
            result = run(*CONE, "--view", view, "--no-diagonals", "--no-dimensions", "--no-label",
                         "--dxf", self.folder / "a.dxf")
            self.assertEqual((result.status, result.errors), (DONE, ""))

    def test_what_is_asked_for_and_not_there_is_a_failure(self):
        for name in ("diagonals", "dimensions", "label"):
            path = self.folder / "a.dxf"
            result = run(*CONE, "--view", "model", f"--{name}", "--dxf", path)
            self.assertEqual((result.status, result.lines),
                             (REFUSED, [f'Right Cone: there is nothing for "{name.capitalize()}" in this view']))
            self.assertTrue(path.exists(), "all else is written")

    def test_a_box_is_ticked_or_cleared(self):
        for name in ("diagonals", "dimensions", "label"):
            for pair in ((f"--{name}", f"--no-{name}"), (f"--no-{name}", f"--{name}")):
                result = run(*CONE, *pair, "--dxf", self.folder / "a.dxf")
                self.assertEqual(result.status, WRONG_USAGE, pair)
                self.assertIn(f"--no-{name}", result.errors)
                self.assertEqual(self.names(), [])

    def test_user_dimensions_and_text_block(self):
        path = self.write("in.Kvt", cone_file(Label=("12.5", "-3", "0"), Comment1="Hood", Comment2="Bay 4",
                                              Dimensions=("1", "25", "2", "2", "1", "1")))
        drawing, report = self.make(path, "--polylines", "--dimensions", "--label")
        outer = report["pattern"][0]["List2"]
        drawing.take_line(dxf_measure.DIMENSION, (outer[0][:3], outer[24][:3]), "dimension")
        texts = [text.dxf.text for text in drawing.texts]
        self.assertEqual(texts[0], number_text(round(math.dist(outer[0][:3], outer[24][:3]), 1)))
        block = drawing.texts[1:]
        self.assertEqual(len(block), len(report["labels"]))
        for index, (text, label) in enumerate(zip(block, report["labels"])):
            self.assertEqual(text.dxf.text, label)
            self.assertEqual(tuple(text.dxf.insert)[:2], (12.5, -3 - 2 * index))
        self.assertEqual(report["labels"][:2], ["Hood", "Bay 4"])

    def test_view_of_a_file(self):
        """A file is drawn as it was saved, model or pattern, unless the command line asks otherwise."""
        for view in ("True", "False"):
            path = self.write("in.Kvt", cone_file(Patternview=view))
            for option in ((), ("--view", "model"), ("--view", "pattern")):
                with self.subTest(view=view, option=option):
                    drawing, report = self.make(path, *option)
                    pattern = option[-1] == "pattern" if option else view == "True"
                    if pattern:
                        drawing.check_arcs(report["pattern"][0])
                    else:
                        drawing.check_model(report["model"][0])


class LocaleTest(FolderTest):
    def test_only_the_parameter_file_knows_the_locale(self):
        """A country with a decimal comma gets the same drawings and numbers, and reads and writes its own files."""
        boxes = ["0"] * 3 + ["100.5", "50.25", "40.125"] + ["0"] * 3
        written, saved = [], []
        for locale in ("C", "de_DE.UTF-8"):
            folder = self.folder / locale
            folder.mkdir()
            paths = [self.write(f"{k}.Kvt", cone_file(boxes, Thickness="1.5")) for k in range(2)]
            options = [part for name in ("save", "dxf", "svg") for part in (f"--{name}", folder / f"{{name}}.{name}")]
            environment = {"LC_ALL": locale, "LANG": locale}
            result = run(*paths, *options, "--json", "-", environment=environment)
            self.assertEqual((result.status, result.errors), (DONE, ""))
            surfaces = [(report["model"], report["pattern"]) for report in result.json]
            drawings = {path.name: path.read_bytes() for path in folder.iterdir() if path.suffix != ".save"}
            written.append((surfaces, drawings))
            saved.append((folder / "0.save").read_text())
            again = run(folder / "0.save", "--json", "-", environment={"LC_ALL": "C", "LANG": "C"})
            self.assertEqual((again.json["model"], again.json["pattern"]), surfaces[0])
        self.assertEqual(len(written[0][1]), 4)
        self.assertEqual(*written)
        self.assertIn("\n1,5\n", saved[1])
        # What was typed stays as it was typed.
        self.assertEqual(saved[0].replace("1.5707963267949", "1,5707963267949").replace("\n1.5\n", "\n1,5\n"), saved[1])


OUTPUTS = ("json", "dxf", "save", "png", "svg")


class FailedOutputTest(FolderTest):
    def test_missing_folder(self):
        for name in OUTPUTS:
            with self.subTest(output=name):
                path = self.folder / "none" / "out"
                result = run(*CONE, f"--{name}", path)
                self.assertEqual(result.status, REFUSED)
                self.assertEqual(len(result.lines), 1)
                self.assertIn(str(path), result.errors)
                self.assertEqual(self.names(), [])

    def test_folder_in_the_way(self):
        for name in OUTPUTS:
            with self.subTest(output=name):
                path = self.folder / f"out-{name}"
                path.mkdir()
                result = run(*CONE, f"--{name}", path)
                self.assertEqual(result.status, REFUSED)
                self.assertEqual(len(result.lines), 1)
                self.assertIn(str(path), result.errors)
                self.assertTrue(path.is_dir())
                self.assertEqual(list(path.iterdir()), [])
        self.assertEqual(self.names(), sorted(f"out-{name}" for name in OUTPUTS))

    def test_one_failed_output_stops_no_other(self):
        good = {name: self.folder / f"good.{name}" for name in OUTPUTS}
        for bad in OUTPUTS:
            with self.subTest(bad=bad):
                for path in good.values():
                    path.unlink(missing_ok=True)
                options = [part for name, path in good.items()
                           for part in (f"--{name}", self.folder / "none" / "out" if name == bad else path)]
                self.assertEqual(run(*CONE, *options).status, REFUSED)
                self.assertEqual([name for name, path in good.items() if not path.exists()], [bad])

    def test_old_output_stays_whole(self):
        """When the disk is full in the middle of writing, the old file is as it was and nothing lies beside it."""
        def limit():
            resource.setrlimit(resource.RLIMIT_FSIZE, (200, 200))

        for name in OUTPUTS:
            with self.subTest(output=name):
                path = self.write("old", "what was there")
                result = subprocess.run(["/bin/sh", "-c", 'trap "" XFSZ; exec "$@"', "sh", PROGRAM, *map(str, CONE),
                                         f"--{name}", path], capture_output=True, check=False, preexec_fn=limit)
                self.assertEqual(result.returncode, REFUSED, result.stderr)
                self.assertNotEqual(result.stderr, b"")
                self.assertEqual(path.read_text(), "what was there")
                self.assertEqual(self.names(), ["old"])

    def test_new_output_takes_the_place_of_the_old(self):
        path = self.write("old", "x" * 100000)
        for name in OUTPUTS:
            with self.subTest(output=name):
                self.assertEqual(run(*CONE, f"--{name}", path).status, DONE)
                self.assertNotIn(b"xxxx", path.read_bytes())
                self.assertEqual(self.names(), ["old"])

    def test_modes_of_files(self):
        """A new file is as open as the user's mask says; an old one keeps the rights it had."""
        old = self.write("old", "")
        old.chmod(0o640)
        for name in OUTPUTS:
            with self.subTest(output=name):
                new = self.folder / f"new.{name}"
                for path in (old, new):
                    subprocess.run(["/bin/sh", "-c", 'umask 022; exec "$@"', "sh", PROGRAM, *CONE, f"--{name}", path],
                                   capture_output=True, check=True)
                self.assertEqual([oct(path.stat().st_mode & 0o777) for path in (old, new)], ["0o640", "0o644"])

    def test_links_are_followed(self):
        """An output that is a link stays one: the file it points to is written."""
        for name in OUTPUTS:
            with self.subTest(output=name):
                (self.folder / "real").mkdir(exist_ok=True)
                target = self.folder / "real" / f"file.{name}"
                target.write_text("old")
                link = self.folder / f"link.{name}"
                link.symlink_to(target)
                self.assertEqual(run(*CONE, f"--{name}", link).status, DONE)
                self.assertTrue(link.is_symlink())
                self.assertGreater(target.stat().st_size, 200)

    def test_full_standard_output(self):
        with open("/dev/full", "wb") as full:
            result = run(*CONE, "--json", "-", stdout=full)
        self.assertEqual(result.status, REFUSED)
        self.assertEqual(len(result.lines), 1)
        self.assertTrue(result.errors.startswith("korvet-batch: the standard output "), result.errors)
        for option in ("--list", "--help"):
            with open("/dev/full", "wb") as full:
                self.assertEqual(run(option, stdout=full).status, REFUSED, option)

    def test_devices_are_left_alone(self):
        """A pipe as the output is no file to be replaced, and must stay what it is."""
        for name in OUTPUTS:
            with self.subTest(output=name):
                pipe = self.folder / f"pipe.{name}"
                os.mkfifo(pipe)
                reader = os.open(pipe, os.O_RDONLY | os.O_NONBLOCK)
                self.addCleanup(os.close, reader)
                run(*CONE, f"--{name}", pipe)
                self.assertTrue(pipe.is_fifo())

    def test_bad_numbers_write_nothing(self):
        options = [part for name in OUTPUTS if name != "json" for part in (f"--{name}", self.folder / name)]
        result = run("--new", "Right Cone", *sets([("box3", "100"), ("box4", "200"), ("box5", "1")]), *options)
        self.assertEqual((result.status, result.lines),
                         (REFUSED, ["Right Cone: box 4: This dimension must be less than 100"]))
        self.assertEqual(self.names(), [])

    def test_refused_json_holds_no_surface(self):
        path = self.folder / "out.json"
        self.assertEqual(run("--new", "Right Cone", "--json", path).status, REFUSED)
        report = read_json(path.read_text("utf-8"))
        self.assertEqual((report["refused"], report["model"], report["pattern"]), (True, [], []))


if __name__ == "__main__":
    unittest.main()
