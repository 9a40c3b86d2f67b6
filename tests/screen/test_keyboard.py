"""All of it by the keyboard: mnemonics, shortcuts, arrows and the tab key."""
import unittest

import pyatspi

from korvet_screen import ScreenTest
from screen import has


class Keyboard(ScreenTest):
    def walk_to(self, name):
        """The arrow key from tile to tile, until that one has the focus."""
        screen = self.screen
        dialog = screen.wait_active("New fitting")
        for _ in range(40):
            if screen.search(name, "push button", dialog) and self.has_focus(name):
                return
            screen.key("Right")
        self.fail(f"the arrows do not lead to {name}")

    def has_focus(self, name):
        return has(self.screen.search(name), pyatspi.STATE_FOCUSED)

    def new_cone(self):
        screen = self.screen
        screen.key("alt+f", "n")
        self.walk_to("Right Cone")
        screen.picture("keyboard-tile")
        screen.key("Return")
        screen.wait_active("Main window")
        screen.wait_focus("Base diameter")

    def set_thickness_and_seam_lap(self, thickness, lap):
        screen = self.screen
        screen.key("ctrl+e")
        screen.wait_active("Settings")
        screen.key("alt+t")
        screen.wait_focus("Thickness")
        screen.key("ctrl+a")
        screen.type(thickness)
        screen.key("alt+l")
        screen.wait(lambda: has(screen.search("Lap size, seam"), pyatspi.STATE_ENABLED), "lap sizes to type in")
        screen.key("alt+2")
        screen.wait_focus("Lap size, seam")
        screen.key("ctrl+a")
        screen.type(lap)
        screen.key("Return")
        screen.wait_active("Main window")
        screen.wait(lambda: f"| Thickness = {thickness} |" in screen.status(), "thickness in the status bar")

    def test_fast_typing(self):
        screen = self.run_to_frame()
        self.new_cone()
        for number in range(6):
            sizes = [f"{300 + number}", f"{120 + number}", f"{250 + number}"]
            screen.wait_focus("Base diameter")
            screen.xdotool("type", "--delay", 1, "\t".join(sizes))
            screen.settle(0.5)
            self.assertEqual(screen.cone_boxes(), sizes)
            screen.key("shift+Tab", "shift+Tab")

    def test_whole_path(self):
        screen = self.run_to_frame()
        screen.key("alt+f", "n")
        screen.wait_active("New fitting")
        screen.key("Escape")
        screen.wait_active("Main window")
        self.assertEqual(screen.children(), [])

        self.new_cone()
        screen.key("ctrl+Next")
        screen.wait_focus("Base diameter")
        screen.find("Cone angle (degrees, included)", "text")
        screen.key("ctrl+Prior")
        screen.find("Cutting plane height", "text")
        for name, text in (("Base diameter", "300"), ("Top diameter", "120"), ("Cutting plane height", "250")):
            screen.wait_focus(name)
            screen.type(text)
            screen.key("Tab")
        self.assertEqual(screen.cone_boxes(), ["300", "120", "250"])
        screen.wait_focus("Base diameter")  # the tab key stays among the boxes

        screen.key("ctrl+1")
        screen.wait_drawing("Model")
        screen.key("ctrl+0")
        screen.wait_drawing("Flat pattern")
        before = screen.drawing_pixels()
        screen.key("alt+v", "Up", "Up", "Up", "Return")  # the third entry from below: Zoom Out
        screen.wait(lambda: screen.drawing_pixels() != before, "smaller pattern")
        before = screen.drawing_pixels()
        screen.key("alt+v", "Up", "Up", "Return")  # the last but one entry: Zoom Extents
        screen.wait(lambda: screen.drawing_pixels() != before, "pattern at its extents")
        extents = screen.drawing_pixels()

        self.set_thickness_and_seam_lap("2", "15")
        self.assertNotEqual(screen.drawing_pixels(), extents, "no lap is drawn")

        screen.key("F1")
        screen.wait_active("Help")
        self.assertTrue(screen.find("Help page").queryText().getText(0, -1).startswith("Right Cone\n"))
        screen.picture("keyboard-help")
        screen.key("Escape")
        screen.wait_active("Main window")
        screen.wait_gone("Help page")

        screen.key("ctrl+t")
        screen.wait_focus("Text size of drawn texts")
        screen.key("ctrl+s")
        screen.choose_file("SaveAs", "keys")
        screen.wait((self.folder / "keys.Kvt").exists, "saved file")
        screen.key("alt+f", "x")  # all is saved: no question
        self.assertEqual(screen.wait_end(), 0)


if __name__ == "__main__":
    unittest.main()
