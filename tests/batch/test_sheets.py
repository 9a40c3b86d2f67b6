"""The sheets that korvet-batch writes as PDF, measured by another reader.

The ruler is a pipe without wall: its pattern is a rectangle, PI times the diameter wide and as high as the pipe.
"""

import math
import re
import subprocess
import unittest
from pathlib import Path

from batch_program import DONE, REFUSED, WRONG_USAGE, FolderTest, run
from pdf_pages import pages_of, sheet_names, words_of

CUT_PEN, MARK_PEN, THIN_PEN = (dots * 25.4 / 300 for dots in (3, 5, 1))  # millimetres
HALF_POINT = 25.4 / 144  # the size of a page is told in whole points
PAPERS = {"A4": (210, 297), "A3": (297, 420), "Letter": (215.9, 279.4), "Roll 914 x 3000 mm": (914, 3000)}
CONE = ("--new", "Right Cone", "--type", "2", "--sample")


def pipe(diameter, height):
    return ("--new", "Right Cylinder", "--set", f"box0={diameter}", "--set", f"box1={height}", "--set", "Thickness=0")


def with_pen(page, width):
    return [line for line in page.lines if abs(line.width - width) < 0.01]


def extent(lines, axis):
    places = [end[axis] for line in lines for end in (line.start, line.end)]
    return max(places) - min(places)


class SheetTest(FolderTest):
    def sheets(self, *arguments):
        path = self.folder / "sheets.pdf"
        result = run(*arguments, "--pdf", path)
        self.assertEqual((result.status, result.errors), (DONE, ""), arguments)
        return path

    def settings(self, **changes):
        """A settings file of the program with some of its lines, by number, replaced."""
        path = self.folder / "settings.ini"
        lines = ["3.b", "24", "1", "English", "2", "255", "255", "255", "0", "65535", "0", "Text", "Fold", "Cut", "Border",
                 "Dimension", "1", "0", "0", "0", "1", "0", "6", "1", "1"]
        for number, text in changes.items():
            lines[int(number[4:]) - 1] = text
        path.write_text("\r\n".join(lines) + "\r\n", encoding="ascii")
        return path

    def expect_true(self, arguments, width, height):
        """One sheet, with a rectangle of this size on it in millimetres, true to 0.01 in 300."""
        pages = pages_of(self.sheets(*arguments))
        self.assertEqual(len(pages), 1, arguments)
        cut = with_pen(pages[0], CUT_PEN)
        self.assertGreaterEqual(len(cut), 4)
        for axis, wanted in enumerate((width, height)):
            self.assertAlmostEqual(extent(cut, axis), wanted, delta=0.01 * max(1, wanted / 300), msg=str(arguments))

    def test_every_paper_has_its_size_both_ways(self):
        for name, (width, height) in PAPERS.items():
            for turned in ((), ("--landscape",)):
                wanted = (height, width) if turned else (width, height)
                for page in pages_of(self.sheets(*CONE, "--paper", name, *turned)):
                    self.assertAlmostEqual(page.width, wanted[0], delta=HALF_POINT)
                    self.assertAlmostEqual(page.height, wanted[1], delta=HALF_POINT)

    def test_the_longest_lines_of_a_frame_are_true(self):
        for name, (width, height) in PAPERS.items():
            for turned in ((), ("--landscape",)):
                across, up = (height, width) if turned else (width, height)
                diameter = (across - 12) / math.pi
                self.expect_true((*pipe(diameter, up - 12), "--paper", name, *turned), across - 12, up - 12)

    def test_inches_are_inches(self):
        self.expect_true((*pipe(2, 10), "--units", "inch"), 2 * math.pi * 25.4, 254)
        settings = self.settings(line23="5")
        self.expect_true((*pipe(2, 10), "--settings", settings), 2 * math.pi * 25.4, 254)
        self.expect_true((*pipe(20, 100), "--settings", settings, "--units", "mm"), 20 * math.pi, 100)

    def test_measured_lengths_follow_the_calibration(self):
        for x, y in ((1.01, 0.99), (0.99, 1.01)):
            settings = self.settings(line24=str(x), line25=str(y))
            self.expect_true((*pipe(58, 270), "--settings", settings), 58 * math.pi * x, 270 * y)

    def test_a_stretched_drawing_stays_on_its_sheet(self):
        settings = self.settings(line24="1.05", line25="1.1")
        for page in pages_of(self.sheets(*CONE, "--settings", settings)):
            for line in page.lines:
                for x, y in (line.start, line.end):
                    self.assertTrue(0 <= x <= page.width and 0 <= y <= page.height, (x, y))

    def test_sheets_are_named_and_hold_nothing_outside_their_frames(self):
        path = self.sheets(*CONE)
        self.assertEqual(sheet_names(path), ["A1", "A2", "B1", "B2", "C1", "C2", "D1", "D2"])
        for page in pages_of(path):
            for line in page.lines:
                for x, y in (line.start, line.end):
                    self.assertTrue(4.99 <= x <= page.width - 4.99, x)
                    self.assertTrue(4.99 <= y <= page.height - 4.99, y)

    def test_taped_together_they_are_the_pattern(self):
        """The outline over all sheets: two arcs of 24 chords and two seams of the cone."""
        length = sum(line.length for page in pages_of(self.sheets(*CONE)) for line in with_pen(page, CUT_PEN))
        diameters, height = (300, 120), 250
        slant = math.hypot((diameters[0] - diameters[1]) / 2, height)
        angle = 2 * math.pi * (diameters[0] - diameters[1]) / 2 / slant / 24
        radii = [slant * d / (diameters[0] - diameters[1]) for d in diameters]
        whole = 2 * slant + sum(24 * 2 * radius * math.sin(angle / 2) for radius in radii)
        first = sum(line.length for line in with_pen(pages_of(self.sheets(*CONE))[0], CUT_PEN))
        self.assertGreater(whole, first)
        # The seam on y = 0 runs along the lower edge of the frames, on no other sheet.
        self.assertAlmostEqual(length, whole, delta=0.5)

    def test_marks_stand_in_all_corners(self):
        for page in pages_of(self.sheets(*CONE)):
            marks = with_pen(page, MARK_PEN)
            corners = [(x, y) for x in (5, page.width - 5) for y in (5, page.height - 5)]
            for x, y in corners:
                here = [line for line in marks if min(math.dist((x, y), line.start), math.dist((x, y), line.end)) < 0.01]
                self.assertGreaterEqual(len(here), 2)
                for line in here:
                    self.assertAlmostEqual(line.length, 10, delta=0.01)

    def test_ticks_carry_the_running_distance(self):
        words = words_of(self.sheets(*CONE), 7)  # D1, whose left edge is three frames in
        frame = 595 * 25.4 / 72 - 10
        for distance in range(50, 800, 50):
            self.assertEqual(str(distance) in words, 3 * frame < distance <= 4 * frame or distance < 280, distance)

    def test_chosen_sheets_only(self):
        path = self.sheets(*CONE, "--sheets", "C1, A2")
        self.assertEqual(sheet_names(path), ["A2", "C1"])
        result = run(*CONE, "--pdf", self.folder / "none.pdf", "--sheets", "A1,E7")
        self.assertEqual(result.status, REFUSED)
        self.assertIn('There is no sheet "E7". The sheets are A1, A2, B1, B2, C1, C2, D1, D2.', result.errors)
        self.assertFalse((self.folder / "none.pdf").exists())

    def test_to_fit_is_one_sheet_with_all_of_it(self):
        for turned in ((), ("--landscape",)):
            for view in ("pattern", "model"):
                path = self.sheets(*CONE, "--fit", "--view", view, "--set", "FrameRequested=True", *turned)
                pages = pages_of(path)
                self.assertEqual(len(pages), 1)
                lines = pages[0].lines
                for line in lines:
                    for x, y in (line.start, line.end):
                        self.assertTrue(0 <= x <= pages[0].width and 0 <= y <= pages[0].height)
                filled = max(extent(lines, 0) / pages[0].width, extent(lines, 1) / pages[0].height)
                self.assertGreater(filled, 0.6)

    def test_full_size_is_of_the_pattern_whatever_the_view(self):
        path = self.sheets(*CONE, "--view", "model", "--png", self.folder / "model.png")
        self.assertEqual(len(pages_of(path)), 8)

    def test_a_sheet_looks_as_it_did(self):
        """A sheet of a cone two metres wide beside a picture of it that somebody has looked at."""
        path = self.sheets("--new", "Right Cone", "--type", "2", "--set", "box3=2000", "--set", "box4=800", "--set",
                           "box5=1500", "--set", "textsize=10", "--sheets", "M4")
        subprocess.run(["pdftoppm", "-r", "40", "-gray", "-singlefile", "-png", path, self.folder / "sheet"], check=True)
        compared = subprocess.run(["compare", "-metric", "MAE", self.folder / "sheet.png",
                                   Path(__file__).parent / "sheet_M4.png", "null:"], check=False, stderr=subprocess.PIPE)
        share = float(re.search(r"\((.*)\)", compared.stderr.decode("ascii"))[1])
        self.assertLess(share, 0.003, "the mean difference of a pixel")

    def test_the_same_command_draws_the_same(self):
        def contents(path):
            return [[(line.start, line.end, line.width) for line in page.lines] for page in pages_of(path)]

        first = contents(self.sheets(*CONE, "--set", "FrameRequested=True"))
        self.assertEqual(first, contents(self.sheets(*CONE, "--set", "FrameRequested=True")))

    def test_it_is_titled(self):
        self.assertIn(b"Right Cone".decode("ascii"), self.title_of(self.sheets(*CONE)))

    def title_of(self, path):
        found = re.search(rb"/Title \((.*?)\)", path.read_bytes(), re.S)
        return found[1].decode("utf-16") if found else ""

    def test_too_many_sheets_are_refused_by_their_number(self):
        path = self.folder / "many.pdf"
        result = run(*pipe(5000, 40000), "--pdf", path)
        self.assertEqual(result.status, REFUSED)
        sheets = (int(5000 * math.pi / (595 * 25.4 / 72 - 10)) + 1) * (int(40000 / (842 * 25.4 / 72 - 10)) + 1)
        self.assertIn(f"This pattern takes {sheets} sheets of this paper. No more than 2000 can be printed.", result.errors)
        self.assertFalse(path.exists())

    def test_what_can_not_be_written_leaves_the_old_file(self):
        result = run(*CONE, "--pdf", "/dev/full")
        self.assertEqual((result.status, "No space left on device" in result.errors), (REFUSED, True))
        result = run(*CONE, "--pdf", self.folder / "missing" / "cone.pdf")
        self.assertEqual(result.status, REFUSED)
        old = self.folder / "old.pdf"
        old.write_bytes(b"old")
        result = run("--new", "Right Cone", "--type", "2", "--sample", "--set", "box4=400", "--pdf", old)
        self.assertEqual(result.status, REFUSED)
        self.assertEqual(old.read_bytes(), b"old")
        self.assertEqual(sorted(path.name for path in self.folder.iterdir()), ["old.pdf"])

    def test_names_stand_for_inputs(self):
        saved = self.folder / "funnel.Kvt"
        self.assertEqual(run(*CONE, "--save", saved).status, DONE)
        self.assertEqual(run(saved, "--pdf", self.folder / "{name}.pdf").status, DONE)
        self.assertEqual(len(pages_of(self.folder / "funnel.pdf")), 8)

    def test_wrong_usage(self):
        pdf = ("--pdf", self.folder / "x.pdf")
        for arguments, said in (((*pdf, "--paper", "Foolscap"), "it takes A4, A3, A2"),
                                (("--paper", "A3"), "--pdf"),
                                ((*pdf, "--units", "cubit"), "--units"),
                                ((*pdf, "--fit", "--sheets", "A1"), "--sheets")):
            result = run(*CONE, *arguments)
            self.assertEqual(result.status, WRONG_USAGE, arguments)
            self.assertIn(said, result.errors)
        self.assertFalse((self.folder / "x.pdf").exists())


if __name__ == "__main__":
    unittest.main()
