"""A desktop program driven as a person drives it: what is on the screen is found through the accessibility service,
mouse and keys go through the X server. Nothing sleeps where there is something to wait for."""
import os
import pathlib
import subprocess
import time

import pyatspi

PATIENCE = float(os.environ.get("KORVET_PATIENCE", 15))  # seconds
DIALOGS = ("dialog", "alert", "file chooser", "color chooser")
TOP_LEVEL = ("frame", "window") + DIALOGS


def has(node, state):
    return node.getState().contains(state)


class Screen:
    def __init__(self, program, folder, *files, pictures=None, environment=None):
        self.folder = pathlib.Path(folder)
        self.pictures = pathlib.Path(pictures) if pictures else None
        if self.pictures:
            self.pictures.mkdir(parents=True, exist_ok=True)
        runtime = self.folder / "runtime"
        runtime.mkdir(mode=0o700, exist_ok=True)
        env = dict(os.environ, XDG_CONFIG_HOME=str(self.folder / "config"), XDG_RUNTIME_DIR=str(runtime),
                   XDG_CACHE_HOME=str(self.folder / "cache"),
                   XDG_STATE_HOME=str(self.folder / "state"), QT_QPA_PLATFORM="xcb", LC_ALL="C.UTF-8",
                   CUPS_SERVER=str(runtime / "no-printers"))
        env.update(environment or {})
        self.scale = int(env.get("QT_SCALE_FACTOR", 1))  # the accessibility service counts the pixels before it
        self.errors = open(self.folder / "errors.txt", "ab")
        self.environment = env
        self.process = subprocess.Popen([program, *map(str, files)], cwd=self.folder, env=env, stderr=self.errors)

    # What is there.

    def application(self):
        for app in pyatspi.Registry.getDesktop(0):
            if app is not None and app.get_process_id() == self.process.pid:
                return app
        return None

    def everything(self, node=None):
        """All accessible objects that are shown, outermost first."""
        node = node or self.application()
        if node is None:
            return
        for child in node:
            if child is None:
                continue
            yield child
            if has(child, pyatspi.STATE_SHOWING) or child.getRoleName() in ("frame", "dialog"):
                yield from self.everything(child)

    def search(self, name, role=None, within=None):
        for node in self.everything(within):
            try:
                right_role = role is None or node.getRoleName() == role
                if right_role and node.name == name and has(node, pyatspi.STATE_SHOWING):
                    return node
            except Exception:  # it went away while we looked
                continue
        return None

    def find(self, name, role=None):
        """The shown object of that name; waits for it."""
        return self.wait(lambda: self.search(name, role), f"{role or 'object'} {name!r}")

    def active(self):
        """The window that has the keyboard; none while it changes hands."""
        for window in self.application() or ():
            if window is not None and has(window, pyatspi.STATE_ACTIVE):
                return window
        return None

    def wait(self, condition, what):
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            if self.process.poll() is not None:
                raise AssertionError(f"the program ended with {self.process.returncode} while we waited for {what}")
            try:
                found = condition()
            except Exception:
                found = None
            if found:
                return found
            time.sleep(0.03)
        self.picture("failure")
        raise AssertionError(f"no {what} after {PATIENCE} s")

    def wait_active(self, name, role=None):
        """The window of that name once it has the keyboard."""
        def active():
            window = self.active()
            right = window and window.name == name and (role is None or window.getRoleName() == role)
            return window if right else None
        return self.wait(active, f"active window {name!r}")

    def wait_gone(self, name, role=None):
        self.wait(lambda: self.search(name, role) is None, f"end of {name!r}")

    def wait_focus(self, name, role="text"):
        return self.wait(lambda: has(self.search(name, role), pyatspi.STATE_FOCUSED), f"focus in {name!r}")

    def has_focus(self, name, role=None):
        node = self.search(name, role)
        return node is not None and has(node, pyatspi.STATE_FOCUSED)

    def wait_end(self):
        """The program's exit code, once it has ended by itself."""
        return self.process.wait(PATIENCE)

    def texts(self, within):
        return [node.name for node in self.everything(within) if node.name]

    def message(self, title):
        """The lines of the message box that is on top."""
        box = self.wait_active(title, "alert")
        return "\n".join(node.name for node in self.everything(box) if node.getRoleName() == "label" and node.name)

    def read(self, name):
        return self.find(name, "text").queryText().getText(0, -1)

    def children(self):
        """The titles of the windows inside the frame."""
        area = self.find("Fitting windows")
        return [child.name for child in area if child is not None and child.getRoleName() == "frame"]

    def area(self, node):
        """Left, top, width and height in pixels of the screen."""
        extents = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return tuple(self.scale * value for value in (extents.x, extents.y, extents.width, extents.height))

    @staticmethod
    def middle(area):
        x, y, width, height = area
        return x + width // 2, y + height // 2

    # What a person does.

    @staticmethod
    def xdotool(*arguments):
        subprocess.run(["xdotool", *map(str, arguments)], check=True)

    @staticmethod
    def settle(seconds=0.1):
        """For what shows nowhere when it has happened."""
        time.sleep(seconds)

    def key(self, *keys):
        """Keys for the window that has the keyboard."""
        self.wait(self.active, "active window")
        self.xdotool("key", "--clearmodifiers", "--delay", 30, *keys)
        self.settle()

    def type(self, text):
        self.wait(self.active, "active window")
        self.xdotool("type", "--delay", 25, "--", text)

    def click(self, name, role=None, button=1):
        self.click_at(self.middle(self.area(self.find(name, role))), button)

    def press(self, name, role=None):
        """Presses a button as a screen reader does, wherever it has scrolled to."""
        self.find(name, role).queryAction().doAction(0)
        self.settle()

    def click_at(self, place, button=1):
        self.xdotool("mousemove", *place, "click", button)
        self.settle()

    def drag(self, start, end, button=1):
        self.xdotool("mousemove", *start)
        self.xdotool("mousedown", button)
        for part in (1, 2, 3, 4):
            self.xdotool("mousemove", *(start[i] + (end[i] - start[i]) * part // 4 for i in (0, 1)))
            self.settle(0.03)
        self.xdotool("mouseup", button)

    def fill(self, name, text):
        """Clicks a box and types over what stands in it."""
        self.click(name, "text")
        self.wait_focus(name)
        self.key("ctrl+a")
        self.type(text)
        self.wait(lambda: self.read(name) == text, f"{text!r} in {name!r}, which reads {self.read(name)!r}")

    def answer(self, title, button="OK"):
        """Presses a button of the message box on top, and returns what the box said."""
        said = self.message(title)
        box = self.active()
        press = self.search(button, "push button", box)
        if press is None:
            raise AssertionError(f"no button {button!r} in {self.texts(box)}")
        self.click_at(self.middle(self.area(press)))
        # The next box may have the same title.
        self.wait(lambda: self.gone(box), f"end of {title!r}")
        return said

    @staticmethod
    def gone(node):
        try:
            return not has(node, pyatspi.STATE_SHOWING)
        except Exception:
            return True

    def picture(self, name):
        if self.pictures:
            subprocess.run(["import", "-window", "root", str(self.pictures / f"{name}.png")], check=True)

    def pixels(self, area):
        """The rows of a part of the screen, three bytes to a pixel."""
        x, y, width, height = area
        raw = subprocess.run(["import", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}", "-depth", "8",
                              "rgb:-"], check=True, stdout=subprocess.PIPE).stdout
        if len(raw) != 3 * width * height:
            raise AssertionError(f"{len(raw)} bytes for {width} x {height} pixels")
        return [raw[row * 3 * width:(row + 1) * 3 * width] for row in range(height)]

    def stop(self):
        if self.process.poll() is None:
            self.process.terminate()
            try:
                self.process.wait(10)
            except subprocess.TimeoutExpired:
                self.process.kill()
                self.process.wait()
        self.errors.close()
