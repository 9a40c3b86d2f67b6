"""The walk of a new user from the start of the program to the file for the cutting table: once with the keyboard alone,
once with the mouse, which types nothing but numbers and a name. Nothing is done that the screen does not ask for."""
import unittest

from korvet_screen import BASE, HEIGHT, TITLE, TOP, ScreenTest
from typed_cone import SLANT, TOP_SLANT, straight_cuts

SIZES = ((BASE, "300"), (TOP, "120"), (HEIGHT, "250"))
PROMPT = "What the mouse is to do"
POINTER = "Place of the pointer on the pattern"


class NewUser(ScreenTest):
    def brightness(self):
        """Of the pixels of the drawing that are not black."""
        inked = [max(row[i:i + 3]) for row in self.screen.drawing_pixels() if row.strip(b"\0")
                 for i in range(0, len(row), 3) if any(row[i:i + 3])]
        self.assertTrue(inked, "nothing is drawn")
        return inked

    def check_hint(self):
        """One line of grey text on an empty drawing."""
        self.assertEqual(self.screen.drawing(), "Empty")
        self.assertLess(max(self.brightness()), 200, "no grey line")
        rows = [y for y, row in enumerate(self.screen.drawing_pixels()) if row.strip(b"\0")]
        self.assertLess(max(rows) - min(rows), 30, "more than a line")

    def check_whole_pattern(self):
        """The pattern fills the drawing, and none of it runs over an edge."""
        screen = self.screen
        screen.wait_drawing("Flat pattern")
        rows = screen.drawing_pixels()
        inked = [y for y, row in enumerate(rows) if row.strip(b"\0")]
        self.assertGreater(inked[0], 0)
        self.assertLess(inked[-1], len(rows) - 1)
        self.assertTrue(all(row[:3] == row[-3:] == b"\0\0\0" for row in rows), "a line leaves the picture")
        left = min(len(row) - len(row.lstrip(b"\0")) for row in rows if row.strip(b"\0")) // 3
        right = max(len(row.rstrip(b"\0")) for row in rows) // 3
        self.assertGreater(max((right - left) / (len(rows[0]) // 3), (inked[-1] - inked[0]) / len(rows)), 0.8)

    def export(self, name):
        screen = self.screen
        screen.choose_file("Export DXF", name)
        path = self.folder / f"{name}.DXF"
        screen.wait_active(f"Exporting {path}")
        return path

    def check_drawing_file(self, path):
        """The sector of the cone: two arcs of its true lengths about one centre, and its two straight edges."""
        edges = straight_cuts(self, path)
        self.assertEqual(len(edges), 2, edges)
        for edge in edges:
            self.assertAlmostEqual(edge, SLANT - TOP_SLANT, delta=1e-3)

    def test_with_the_keyboard_alone(self):
        screen = self.run_to_frame()
        screen.xdotool("mousemove", 1, 1)
        screen.key("alt+f", "n")
        screen.wait_active("New fitting")
        for _ in range(40):
            if self.screen.has_focus("Right Cone"):
                break
            screen.key("Right")
        screen.key("Return")
        screen.wait_active("Main window")
        screen.wait_focus(BASE)
        self.check_hint()
        screen.picture("new-user-empty")
        for name, text in SIZES:
            screen.wait_focus(name)
            screen.type(text)
            if name != HEIGHT:
                screen.key("Tab")
        screen.key("Return")
        self.check_whole_pattern()
        screen.picture("new-user-pattern")
        screen.key("alt+f")
        screen.settle(0.3)
        screen.key("Down", "Down", "Down", "Down", "Down", "Return")  # New is on; Export DXF is the fifth below
        path = self.export("keys")
        screen.key("Return")
        screen.message(TITLE)
        screen.key("Return")
        screen.wait_active("Main window")
        self.check_drawing_file(path)

    def test_with_the_mouse(self):
        screen = self.run_to_frame()
        screen.new_cone()
        self.check_hint()
        for name, text in SIZES:
            screen.fill(name, text)
        screen.click("Create or update pattern", "check box")
        self.check_whole_pattern()
        whole = screen.drawing_pixels()

        place = screen.middle(screen.drawing_area())
        screen.click_at(place, 4)  # the wheel, forward
        screen.wait(lambda: screen.drawing_pixels() != whole, "zoomed drawing")
        screen.click_at(place, 5)
        screen.wait(lambda: screen.drawing_pixels() == whole, "drawing as it was")
        screen.drag(place, (place[0] + 60, place[1] + 20), 2)
        screen.wait(lambda: screen.drawing_pixels() != whole, "panned drawing")
        screen.click("Measure distance", "check box")
        screen.wait(lambda: screen.find(PROMPT).description == "Click the first point of the distance", "prompt")
        moved = screen.drawing_pixels()  # the mode comes after all steps of the drag
        self.assertNotEqual(moved, whole)
        screen.xdotool("mousemove", *place)
        screen.wait(lambda: screen.find(POINTER).description.startswith("X = "), "place of the pointer")
        screen.picture("new-user-armed")
        screen.key("Escape")
        screen.wait(lambda: screen.search(PROMPT) is None or screen.find(PROMPT).description == "", "end of the mode")
        screen.wait(lambda: screen.drawing_pixels() == moved, "drawing as it was before the mode ended")

        screen.click("File", "menu item")
        screen.click("Export DXF...", "menu item")
        path = self.export("mouse")
        screen.click("OK", "push button")
        screen.answer(TITLE)
        self.check_drawing_file(path)


if __name__ == "__main__":
    unittest.main()
