"""Pictures of everything the program shows, to be looked at by a person: light and dark, at 100 % and 200 %.

    KORVET=PROGRAM tests/screen/on_a_screen /usr/bin/python3 tests/screen/take_pictures.py FOLDER [light|dark] [1|2]

Without the last two all four sets are taken. Each is a folder of numbered pictures of the whole screen.
"""
import itertools
import pathlib
import sys
import tempfile

from korvet_screen import TITLE, Korvet

# A dark desktop's colours, as the toolkit reads them from that desktop's settings: background, text.
DARK = {"Window": ("49,54,59", "239,240,241"), "View": ("35,38,41", "239,240,241"),
        "Button": ("49,54,59", "239,240,241"), "Selection": ("61,174,233", "239,240,241"),
        "Tooltip": ("49,54,59", "239,240,241")}
DARK_DESKTOP = {"XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5", "QT_QPA_PLATFORMTHEME": "kde"}

# In the order of the boxes on the page.
SIZES = {
    "Right Cone": [("300", "120", "400"), ("300", "120", "250"), ("300", "120", "60")],
    "Truncated Right Cone": [("300", "150", "60", "20"), ("300", "25", "400", "200"),
                             ("400", "320", "15", "80", "20", "600"), ("25", "15", "35", "600", "320", "400"),
                             ("400", "160", "350", "120", "20", "25", "30")],
}


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

    def cone(self, category, types):
        """The pages of a window, each with sizes typed and its model, and the last of them with its pattern."""
        screen = self.screen
        for page in range(types):
            screen.key("ctrl+n")
            screen.wait_active("New fitting")
            if page == 0 and category == "Right Cone":
                self.take("catalogue")
            others = len(screen.children())
            screen.click(category, "push button")
            screen.wait(lambda: len(screen.children()) == others + 1, "new window")
            screen.wait_active("Main window")
            screen.settle(0.3)
            for _ in range(types):
                screen.key("ctrl+Prior")
            for _ in range(page):
                screen.key("ctrl+Next")
            self.take(f"{category}-type{page + 1}-empty".replace(" ", "-"))
            self.type_sizes(SIZES[category][page])
            screen.key("ctrl+1")
            screen.wait_drawing("Model")
            screen.click("Zoom Extents", "push button")
            self.take(f"{category}-type{page + 1}-model".replace(" ", "-"))
        screen.key("ctrl+0")
        screen.wait_drawing("Flat pattern")
        screen.click("Zoom Extents", "push button")
        self.take(f"{category}-pattern".replace(" ", "-"))

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
        screen.click("Add / Remove the label", "push button")
        self.dialog("label", "Shift_L")
        screen.click("Rotate pattern", "push button")
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


def take_all(folder, look, scale):
    pictures = Pictures(folder / f"{look}-{scale}", look == "dark", scale)
    try:
        pictures.start()
        pictures.menus()
        for category, sizes in SIZES.items():
            pictures.cone(category, len(sizes))
        pictures.dialogs()
        pictures.arrangements()
    finally:
        pictures.screen.stop()


def main():
    folder = pathlib.Path(sys.argv[1])
    for look in sys.argv[2:3] or ("light", "dark"):
        for scale in sys.argv[3:4] or ("1", "2"):
            take_all(folder, look, scale)


if __name__ == "__main__":
    main()
