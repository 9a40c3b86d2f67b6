"""One day's work with the program in a real window: a cone from its sizes to the saved and exported pattern.

    KORVET=PROGRAM [KORVET_PICTURES=FOLDER] tests/screen/on_a_screen /usr/bin/python3 tests/screen/test_end_to_end.py
"""
import math
import re
import unittest

from korvet_screen import BASE, TITLE, ScreenTest
from typed_cone import R, SLANT, TOP_SLANT, straight_cuts

SECTOR = 2 * math.pi * R / SLANT  # the angle of its flat pattern
FOLDS = 24
LAP = 20.0
READ = 0.0501  # the measuring box shows one decimal


def at(angle, distance):
    return distance * math.cos(angle), distance * math.sin(angle)


FOOT, END_FOOT = at(0, SLANT), at(SECTOR, SLANT)
HEAD = at(0, TOP_SLANT)


def red_columns(row):
    """Where a row of pixels has the colour of cut lines."""
    return [x for x, (red, green) in enumerate(zip(row[0::3], row[1::3])) if red > 60 and green < red // 2]


class DrawnPattern:
    """Where the points of the pattern stand on the screen, from its outline in the picture alone."""

    def __init__(self, test, screen):
        lines = [(y, red_columns(row)) for y, row in enumerate(screen.drawing_pixels()) if row.strip(b"\0")]
        lines = [(y, columns) for y, columns in lines if columns]
        test.assertTrue(lines, "nothing is drawn")
        left, top, self.width, self.height = screen.drawing_area()
        minx, maxx = min(columns[0] for _, columns in lines), max(columns[-1] for _, columns in lines)
        stations = [at(SECTOR * i / FOLDS, d) for i in range(FOLDS + 1) for d in (SLANT, TOP_SLANT)]
        self.low = min(p[0] for p in stations), min(p[1] for p in stations)
        self.size = max(p[0] for p in stations) - self.low[0], max(p[1] for p in stations) - self.low[1]
        self.scale = (maxx - minx) / self.size[0]
        self.left, self.bottom = left + minx, top + lines[-1][0]
        self.drawn_height = lines[-1][0] - lines[0][0]

    def pixel(self, point):
        return (round(self.left + (point[0] - self.low[0]) * self.scale),
                round(self.bottom - (point[1] - self.low[1]) * self.scale))


class EndToEnd(ScreenTest):
    def measure(self, start, end):
        """Drags between two places on the screen, and returns the distance that the box tells."""
        self.screen.click("Measure distance", "check box")
        self.screen.drag(start, end)
        said = self.screen.answer(TITLE)
        return float(re.match(r"Distance = ([\d.]+)\n", said).group(1))

    def make_pattern(self):
        screen = self.screen
        screen.new_cone()
        screen.fill_cone("300", "120", "250")
        screen.picture("typed")
        screen.click("View Model 1, slanted", "check box")
        screen.wait_drawing("Model")
        screen.picture("model")
        screen.click("Create or update pattern", "check box")
        screen.wait_drawing("Flat pattern")
        screen.click("Zoom Extents", "push button")

    def zoom_and_measure(self):
        screen = self.screen
        whole = screen.drawing_pixels()
        pattern = DrawnPattern(self, screen)
        screen.picture("pattern")
        # The pattern is drawn in true proportion and fills the drawing area.
        self.assertAlmostEqual(pattern.drawn_height, pattern.size[1] * pattern.scale, delta=3)
        self.assertGreater(max(pattern.size[0] * pattern.scale / pattern.width,
                               pattern.drawn_height / pattern.height), 0.8)
        self.assertAlmostEqual(self.measure(pattern.pixel(FOOT), pattern.pixel(END_FOOT)),
                               math.dist(FOOT, END_FOOT), delta=READ)

        screen.click("Zoom Window", "check box")
        screen.drag(pattern.pixel((HEAD[0] - 20, 60)), pattern.pixel((FOOT[0] + 20, -20)))
        screen.wait(lambda: screen.drawing_pixels() != whole, "zoomed drawing")
        screen.picture("zoomed")
        left, top, width, height = screen.drawing_area()
        # The lowest line is now the seam, all of it, and about as long as the box was wide.
        lines = [(y, red_columns(row)) for y, row in enumerate(screen.drawing_pixels())]
        y, columns = max(line for line in lines if len(line[1]) > width // 2)
        x1, x2 = columns[0], columns[-1]
        # A wide box is fitted to the shorter side of the area, with a hundredth of it left free.
        seam = 0.99 * min(width, height) * (SLANT - TOP_SLANT) / (SLANT - TOP_SLANT + 40)
        self.assertAlmostEqual(x2 - x1, seam, delta=4)
        self.assertAlmostEqual(self.measure((left + x1 + 3, top + y - 2), (left + x2 - 3, top + y + 2)),
                               SLANT - TOP_SLANT, delta=READ)

        screen.click("Zoom Previous", "push button")
        screen.wait(lambda: screen.drawing_pixels() == whole, "drawing as it was before the zoom")

    def set_lap_and_thickness(self):
        screen = self.screen
        self.assertIn("| Thickness = 0 |", screen.status())
        before = screen.drawing_pixels()
        screen.key("ctrl+e")
        screen.wait_active("Settings")
        screen.fill("Thickness", "3")
        screen.click("Lap", "radio button")
        screen.fill("Lap size, seam", "20")
        screen.picture("settings")
        screen.click("OK", "push button")
        screen.wait_active("Main window")
        screen.wait(lambda: "| Thickness = 3 |" in screen.status(), "thickness in the status bar")
        screen.wait(lambda: screen.drawing_pixels() != before, "pattern with a lap")
        screen.click("Zoom Extents", "push button")

    def check_drawing_file(self):
        """The outline of the exported pattern: two arcs, the seam, and the lap beside the other seam edge."""
        # The sizes were measured on the mean of the sheet, so that the thickness changes no length.
        cut = straight_cuts(self, self.folder / "first cone.DXF")
        seams = [length for length in cut if abs(length - (SLANT - TOP_SLANT)) < 1e-4]
        ends = [length for length in cut if abs(length - LAP) < 1e-4]
        self.assertEqual((len(seams), len(ends), len(cut)), (2, 2, 4), cut)

    def test_first_cone(self):
        screen = self.run_to_frame()
        screen.picture("frame")
        self.make_pattern()
        self.zoom_and_measure()
        self.set_lap_and_thickness()
        finished = screen.drawing_pixels()
        screen.picture("lapped")

        screen.key("ctrl+s")
        screen.choose_file("SaveAs", "first cone")
        saved = self.folder / "first cone.Kvt"
        screen.wait(saved.exists, "saved file")
        screen.wait(lambda: screen.children() == [str(saved)], "title of the saved window")

        screen.menu("f", "Export DXF...")
        screen.choose_file("Export DXF", "first cone")
        exported = self.folder / "first cone.DXF"
        screen.wait_active(f"Exporting {exported}")
        screen.picture("export")
        screen.key("Return")
        said = screen.answer(TITLE).split("\n")
        self.assertEqual(said[0], f"DXF successfully saved to: {exported}")
        self.assertTrue(said[1].startswith("Check passed: 1 piece, "), said)
        self.check_drawing_file()

        screen.key("ctrl+w")  # it is saved: no question
        screen.wait(lambda: screen.children() == [], "empty frame")

        screen.click("Open", "push button")
        screen.choose_file("Open", "first cone.Kvt")
        screen.wait(lambda: screen.children() == [str(saved)], "opened window")
        self.assertEqual(screen.cone_boxes(), ["300", "120", "250"])
        self.assertEqual(screen.drawing(), "Flat pattern")
        self.assertEqual(screen.drawing_pixels(), finished, "the opened pattern is drawn otherwise")
        self.assertIn("| Thickness = 3 |", screen.status())
        screen.picture("reopened")
        lines = saved.read_text().split("\n")
        settings = lines[lines.index("Start Pattern Settings") + 1:lines.index("End Pattern Settings")]
        # The thickness first; then, behind seven lines of other things, a lap of 20 along the seam.
        self.assertEqual((settings[0], settings[12:16]), ("3", ["1", "0", "20", "0"]), settings)

        screen.fill(BASE, "310")
        screen.key("alt+f", "x")
        self.assertEqual(screen.message(TITLE), f"Save parameter file for {saved}")
        screen.key("alt+n")
        self.assertEqual(screen.wait_end(), 0)


if __name__ == "__main__":
    unittest.main()
