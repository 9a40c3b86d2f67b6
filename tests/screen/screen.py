"""A desktop program driven as a person drives it: what is on the screen is found through the accessibility service,
mouse and keys go through the X server."""
import os
import pathlib
import subprocess
import time

import pyatspi

PATIENCE = 15  # seconds


class Screen:
    def __init__(self, program, folder, *files, pictures=None, environment=None):
        self.folder = pathlib.Path(folder)
        self.pictures = pathlib.Path(pictures) if pictures else None
        if self.pictures:
            self.pictures.mkdir(parents=True, exist_ok=True)
        runtime = self.folder / "runtime"
        runtime.mkdir(mode=0o700, exist_ok=True)
        env = dict(os.environ, XDG_CONFIG_HOME=str(self.folder / "config"), XDG_RUNTIME_DIR=str(runtime),
                   XDG_CACHE_HOME=str(self.folder / "cache"), QT_QPA_PLATFORM="xcb", LC_ALL="C.UTF-8")
        env.update(environment or {})
        self.errors = open(self.folder / "errors.txt", "ab")
        self.process = subprocess.Popen([program, *files], cwd=self.folder, env=env, stderr=self.errors)

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
            if child.getState().contains(pyatspi.STATE_SHOWING) or child.getRoleName() in ("frame", "dialog"):
                yield from self.everything(child)

    def search(self, name, role=None, within=None):
        for node in self.everything(within):
            try:
                shown = node.getState().contains(pyatspi.STATE_SHOWING)
                if shown and node.name == name and (role is None or node.getRoleName() == role):
                    return node
            except Exception:  # it went away while we looked
                continue
        return None

    def find(self, name, role=None):
        """The shown object of that name; waits for it."""
        return self.wait(lambda: self.search(name, role), f"{role or 'object'} {name!r}")

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
            time.sleep(0.05)
        self.picture("failure")
        raise AssertionError(f"no {what} after {PATIENCE} s")

    def wait_gone(self, name, role=None):
        self.wait(lambda: self.search(name, role) is None, f"end of {name!r}")

    def texts(self, within):
        return [node.name for node in self.everything(within) if node.name]

    # What a person does.

    @staticmethod
    def xdotool(*arguments):
        subprocess.run(["xdotool", *map(str, arguments)], check=True)

    def settle(self, seconds=0.25):
        time.sleep(seconds)

    def key(self, *keys):
        self.settle()
        self.xdotool("key", "--clearmodifiers", *keys)
        self.settle()

    def type(self, text):
        self.settle(0.1)
        self.xdotool("type", "--delay", 15, text)
        self.settle(0.1)

    @staticmethod
    def area(node):
        extents = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return extents.x, extents.y, extents.width, extents.height

    def click(self, name, role=None, button=1):
        x, y, width, height = self.area(self.find(name, role))
        self.xdotool("mousemove", x + width // 2, y + height // 2, "click", button)
        self.settle()

    def drag(self, start, end):
        self.xdotool("mousemove", *start)
        self.xdotool("mousedown", 1)
        for part in (1, 2, 3, 4):
            self.xdotool("mousemove", *(start[i] + (end[i] - start[i]) * part // 4 for i in (0, 1)))
            self.settle(0.05)
        self.xdotool("mouseup", 1)
        self.settle()

    def fill(self, name, text):
        """Clicks a box and types over what stands in it."""
        self.click(name, "text")
        self.key("ctrl+a")
        self.type(text)

    def read(self, name):
        return self.find(name, "text").queryText().getText(0, -1)

    def picture(self, name):
        if self.pictures:
            subprocess.run(["import", "-window", "root", str(self.pictures / f"{name}.png")], check=True)

    def stop(self):
        if self.process.poll() is None:
            self.process.terminate()
            self.process.wait(10)
        self.errors.close()
