"""What the tests on a screen share: the program from its start to an empty frame, and the way to a cone."""
import os
import pathlib
import shutil
import tempfile
import unittest

from screen import Screen

TITLE = "Korvet Development"
BASE, TOP, HEIGHT = "Base diameter", "Top diameter", "Cutting plane height"  # boxes of the type that opens
STATUS = "Settings of the active fitting"


class Korvet(Screen):
    def __init__(self, folder, *files, environment=None, pictures=None, program=None):
        super().__init__(program or os.environ["KORVET"], folder, *files, environment=environment,
                         pictures=pictures or os.environ.get("KORVET_PICTURES"))

    def pass_splash(self):
        """Answers what comes up before the frame is free: no printer, then the splash."""
        assert self.answer(TITLE) == "No Printer available"
        splash = self.wait_active(TITLE, "dialog")
        self.key("Return")
        self.wait(lambda: self.gone(splash), "end of the splash")

    def new_cone(self):
        """A new window of the Right Cone, by a click on its tile."""
        self.wait_active("Main window")
        others = len(self.children())
        self.click("New", "push button")
        self.wait_active("New fitting")
        self.click("Right Cone", "push button")
        self.wait(lambda: len(self.children()) == others + 1, "new window")
        self.wait_active("Main window")
        self.wait_focus(BASE)

    def fill_cone(self, base, top, height):
        for name, text in ((BASE, base), (TOP, top), (HEIGHT, height)):
            self.fill(name, text)

    def cone_boxes(self, window=""):
        """The texts of the active window's boxes, or of another one's by its title."""
        return [self.read(f"{name}, {window}" if window else name) for name in (BASE, TOP, HEIGHT)]

    def drawing(self):
        """What the drawing area says it shows."""
        return self.find("Drawing").description

    def wait_drawing(self, description):
        self.wait(lambda: self.drawing() == description, f"drawing of {description!r}")

    def drawing_area(self):
        return self.area(self.find("Drawing"))

    def drawing_pixels(self):
        """The rows of the drawing, once two pictures of it are the same. The mouse is out of its way."""
        area = self.drawing_area()
        self.xdotool("mousemove", area[0] + area[2] // 2, area[1] + area[3] + 15)
        last = [None]

        def steady():
            rows = self.pixels(area)
            same, last[0] = rows == last[0], rows
            return rows if same else None
        return self.wait(steady, "steady drawing")

    def choose_file(self, title, name):
        """Types a name into a file dialog, and presses Return. A path is put there as if pasted, for the toolkit's
        list of the folders on the way takes the keyboard while it comes up."""
        self.wait_active(title, "dialog")
        self.wait_focus("File name:")
        if "/" in str(name):
            self.find("File name:", "text").queryEditableText().setTextContents(str(name))
        else:
            self.key("ctrl+a")
            self.type(name)
        self.wait(lambda: self.read("File name:") == str(name), f"name {name}")
        dialog = self.active()
        self.key("Return")
        self.wait(lambda: self.gone(dialog), f"end of {title!r}")

    def menu(self, menu_letter, entry):
        """An entry of a menu, found by its text, with the keyboard to the menu and the mouse to the entry."""
        self.wait_active("Main window")
        self.key(f"alt+{menu_letter}")
        self.click(entry, "menu item")

    def status(self):
        return self.find(STATUS, "label").description


class ScreenTest(unittest.TestCase):
    environment = {}

    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = pathlib.Path(temporary.name)
        self.screen = None

    def stop(self):
        """Ends the run, if there is one, in the midst of its work. Returns the folder of the runs."""
        if self.screen is not None:
            self.screen.stop()
        return self.folder

    def start(self, *files, program=None):
        """A run of the program, in place of the last one, of which it knows nothing."""
        shutil.rmtree(self.stop() / "state", ignore_errors=True)
        self.screen = self.another(*files, program=program)
        return self.screen

    def another(self, *files, program=None):
        """A run of the program beside the last one."""
        screen = Korvet(self.folder, *files, environment=self.environment, program=program)
        self.addCleanup(screen.stop)
        return screen

    def run_to_frame(self, *files, program=None):
        self.start(*files, program=program).pass_splash()
        return self.screen

    def tearDown(self):
        if self.screen is None:
            return
        self.assertIn(self.screen.process.poll(), (None, 0), "the program came to a bad end")
        self.assertEqual((self.folder / "errors.txt").read_text(errors="replace"), "", "the program complained")
