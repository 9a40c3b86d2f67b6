"""Pictures of everything the program shows, to be looked at by a person: light and dark, at 100 % and 200 %.

    KORVET=PROGRAM tests/screen/on_a_screen /usr/bin/python3 tests/screen/take_pictures.py FOLDER [light|dark] [1|2] [FITTING]

Without light or dark and a scale all four sets are taken. Each is a folder of numbered pictures of the whole screen. Of
one fitting: its tile, pages, models, pattern and help page.
"""
import itertools
import os
import pathlib
import re
import subprocess
import sys
import tempfile

from korvet_screen import TITLE, Korvet

EXAMPLES = pathlib.Path(__file__).resolve().parents[2] / "examples"

# A dark desktop's colours, as the toolkit reads them from that desktop's settings: background, text.
DARK = {"Window": ("49,54,59", "239,240,241"), "View": ("35,38,41", "239,240,241"),
        "Button": ("49,54,59", "239,240,241"), "Selection": ("61,174,233", "239,240,241"),
        "Tooltip": ("49,54,59", "239,240,241")}
DARK_DESKTOP = {"XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5", "QT_QPA_PLATFORMTHEME": "kde"}


class Fitting:
    """A fitting that is built: its sample sizes type by type, and its first pattern option if it has some."""

    def __init__(self, category):
        self.category = category
        self.types = []
        self.option = None


def built_fittings():
    """What the batch program beside the desktop's lists."""
    program = pathlib.Path(os.environ["KORVET"]).with_name("korvet-batch")
    fittings = []
    for line in subprocess.run([program, "--list"], capture_output=True, text=True, check=True).stdout.splitlines():
        if not line.startswith(" "):
            fittings.append(Fitting(line.split("  ")[0]))
        elif line.startswith("    Type"):
            fittings[-1].types.append([])
        elif match := re.match(r"        box\d+ .*\(sample (\S+)\)$", line):
            fittings[-1].types[-1].append(match[1])
        elif match := re.match(r"    pattern option 1  (.*)$", line):
            fittings[-1].option = match[1]
    return [fitting for fitting in fittings if fitting.types]


def write_dark_settings(folder):
    lines = ["[General]", "ColorScheme=Dark"]
    for name, (background, text) in DARK.items():
        lines += [f"[Colors:{name}]", f"BackgroundNormal={background}", f"BackgroundAlternate={background}",
                  f"ForegroundNormal={text}", "ForegroundInactive=161,169,177", "ForegroundLink=41,128,185",
                  "ForegroundVisited=155,89,182"]
    folder.mkdir(exist_ok=True)
    (folder / "kdeglobals").write_text("\n".join(lines) + "\n")


class Pictures:
    def __init__(self, folder, dark, scale):
        self.temporary = tempfile.TemporaryDirectory()
        environment = dict(DARK_DESKTOP if dark else {}, QT_SCALE_FACTOR=scale)
        if dark:
            write_dark_settings(pathlib.Path(self.temporary.name) / "config")
        self.screen = Korvet(self.temporary.name, pictures=folder, environment=environment)
        self.numbers = itertools.count(1)
        self.catalogue_taken = False

    def take(self, name):
        self.screen.settle(0.3)
        self.screen.picture(f"{next(self.numbers):02d}-{name}")

    def dialog(self, name, *keys):
        """The dialog that keys open, and away with it."""
        self.screen.key(*keys)
        self.screen.wait(lambda: self.screen.active().name != "Main window", name)
        self.take(name)
        self.screen.key("Escape")
        self.screen.wait_active("Main window")

    def start(self):
        screen = self.screen
        screen.message(TITLE)
        self.take("no-printer")
        screen.answer(TITLE)
        screen.wait_active(TITLE, "dialog")
        self.take("splash")
        screen.click("Continue", "push button")
        screen.wait_active("Main window")
        self.take("frame")

    def menus(self):
        for letter in "fvtdmwh":
            self.screen.key(f"alt+{letter}")
            self.take(f"menu-{letter}")
            self.screen.key("Escape", "Escape")

    def fitting(self, fitting):
        """The pages of a window, each with its sample sizes typed and its model, and the last with its pattern."""
        screen = self.screen
        name = fitting.category.replace(" ", "-")
        for page, sizes in enumerate(fitting.types):
            screen.key("ctrl+n")
            screen.wait_active("New fitting")
            if not self.catalogue_taken:
                self.take("catalogue")
                self.catalogue_taken = True
            others = len(screen.children())
            screen.press(fitting.category, "push button")
            screen.wait(lambda: len(screen.children()) == others + 1, "new window")
            screen.wait_active("Main window")
            screen.settle(0.3)
            for _ in fitting.types:
                screen.key("ctrl+Prior")
            for _ in range(page):
                screen.key("ctrl+Next")
            self.take(f"{name}-type{page + 1}-empty")
            if sizes:
                self.type_sizes(sizes)
            else:
                self.import_mesh()
            screen.key("ctrl+1")
            screen.wait_drawing("Model")
            screen.click("Zoom Extents", "push button")
            self.take(f"{name}-type{page + 1}-model")
        if fitting.option:
            screen.press(f"Select Pattern: {fitting.option}", "radio button")
        screen.key("ctrl+0")
        screen.wait_drawing("Flat pattern")
        screen.click("Zoom Extents", "push button")
        self.take(f"{name}-pattern")
        if screen.search("Additional Options", "push button"):
            screen.press("Additional Options", "push button")
            screen.wait_active("Additional Options")
            for type_name in ("SET-IN type join", "SET-ON type join", "MEAN  to MEAN  type join"):
                screen.click(type_name, "radio button")
                self.take(f"additional-options-{type_name[:6].strip()}")
            screen.key("Escape")
            screen.wait_active("Main window")

    def import_mesh(self):
        self.screen.press("Import Mesh from DXF File...", "push button")
        self.screen.choose_file("Import Mesh", EXAMPLES / "imported-mesh.dxf")
        self.screen.answer(TITLE)

    def type_sizes(self, sizes):
        self.screen.settle(0.3)
        for text in sizes:
            self.screen.key("ctrl+a")
            self.screen.type(text)
            self.screen.key("Tab")
            self.screen.settle(0.2)

    def options(self):
        screen = self.screen
        screen.key("alt+t", "Down", "Return")
        for letter, name in (("g", "general"), ("d", "display"), ("p", "printing"), ("n", "dxf")):
            screen.wait_active("Global Options")
            screen.key(f"alt+{letter}")
            self.take(f"options-{name}")
        screen.key("Escape")
        screen.wait_active("Main window")

    def dialogs(self):
        screen = self.screen
        self.dialog("settings", "alt+t", "Return")
        self.options()
        screen.click("Dimension Options", "push button")
        self.dialog("dimension-options", "Shift_L")
        screen.click("Add / Remove the label", "check box")
        self.dialog("label", "Shift_L")
        screen.click("Rotate pattern", "check box")
        x, y, width, height = screen.drawing_area()
        screen.drag((x + width - 30, y + height - 60), (x + 30, y + 60))
        self.dialog("rotate", "Shift_L")
        screen.menu("f", "Export DXF...")
        screen.wait_active("Export DXF")
        self.take("file-dialog")
        screen.type("picture")
        screen.key("Return")
        screen.wait(lambda: (screen.active().name or "").startswith("Exporting"), "export dialog")
        self.take("export")
        screen.key("Return")
        screen.message(TITLE)
        self.take("exported")
        screen.answer(TITLE)
        self.dialog("about", "alt+h", "Up", "Return")
        self.dialog("disclaimer", "alt+h", "Up", "Up", "Return")
        self.dialog("help", "F1")

    def arrangements(self):
        for name, moves in (("cascade", 2), ("tile-horizontal", 3), ("tile-vertical", 4)):
            self.screen.key("alt+w", *["Down"] * (moves - 1), "Return")
            self.take(f"windows-{name}")


def take_fitting(folder, look, scale, category):
    pictures = Pictures(folder / f"{look}-{scale}", look == "dark", scale)
    try:
        pictures.start()
        pictures.fitting(next(fitting for fitting in built_fittings() if fitting.category == category))
        pictures.dialog("help", "F1")
    finally:
        pictures.screen.stop()


def take_all(folder, look, scale):
    pictures = Pictures(folder / f"{look}-{scale}", look == "dark", scale)
    try:
        pictures.start()
        pictures.menus()
        for fitting in built_fittings():
            pictures.fitting(fitting)
        pictures.dialogs()
        pictures.arrangements()
    finally:
        pictures.screen.stop()


def main():
    folder = pathlib.Path(sys.argv[1])
    for look in sys.argv[2:3] or ("light", "dark"):
        for scale in sys.argv[3:4] or ("1", "2"):
            if len(sys.argv) > 4:
                take_fitting(folder, look, scale, sys.argv[4])
            else:
                take_all(folder, look, scale)


if __name__ == "__main__":
    main()
