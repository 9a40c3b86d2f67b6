#!/usr/bin/env python3
"""How long the desktop program takes from its start to its first shown frame, and what memory open windows take.

    tests/screen/on_a_screen /usr/bin/python3 bench/desktop_start.py [PROGRAM]

The default is build/release/bin/korvet; korvet-batch, which makes the files to open, stands beside it.

The start is timed until the frame is painted: mapped by the X server, and its middle no longer black. Where there
is no printer the program first shows a box that says so. It is answered with Return, and the time between its map
and its unmap, in which the program waits for the user, is taken off. A first run that is not counted fills the disk
cache; the median of ten is told, with the fastest and the slowest.

Memory is read when all windows are open: VmRSS, and Pss, which counts shared pages by their share.
"""
import ctypes
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tests/screen"))
from korvet_screen import Korvet  # noqa: E402

RUNS = 10
PATIENCE = 30  # seconds
FRAME_WIDTH = 600  # the frame is wider than that, the box is not
KEY_AGAIN = 0.02  # seconds; a key that comes before the box has the keyboard is lost

X = ctypes.CDLL("libX11.so.6")
X.XOpenDisplay.restype = ctypes.c_void_p
X.XDefaultRootWindow.restype = ctypes.c_ulong
X.XGetImage.restype = ctypes.c_void_p
X.XGetPixel.restype = ctypes.c_ulong
UNMAP, MAP = 18, 19  # events
SUBSTRUCTURE = 1 << 19
Z_PIXMAP = 2


class XEvent(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("sent", ctypes.c_int),
                ("display", ctypes.c_void_p), ("parent", ctypes.c_ulong), ("window", ctypes.c_ulong),
                ("rest", ctypes.c_long * 24)]


class Windows:
    """The windows that come up on the screen and go, as the X server tells it."""

    def __init__(self):
        self.display = ctypes.c_void_p(X.XOpenDisplay(None))
        self.root = ctypes.c_ulong(X.XDefaultRootWindow(self.display))
        X.XSelectInput(self.display, self.root, ctypes.c_long(SUBSTRUCTURE))
        X.XSetErrorHandler(IGNORE)

    def events(self):
        """What has happened since the last call, as pairs of event and window."""
        event = XEvent()
        while X.XPending(self.display):
            X.XNextEvent(self.display, ctypes.byref(event))
            if event.type in (MAP, UNMAP):
                yield event.type, event.window

    def place(self, window):
        """Left, top, width and height; nothing when the window is gone."""
        root, border, depth = ctypes.c_ulong(), ctypes.c_uint(), ctypes.c_uint()
        x, y, width, height = ctypes.c_int(), ctypes.c_int(), ctypes.c_uint(), ctypes.c_uint()
        there = X.XGetGeometry(self.display, ctypes.c_ulong(window), *map(ctypes.byref, (
            root, x, y, width, height, border, depth)))
        return (x.value, y.value, width.value, height.value) if there else None

    def black(self, x, y):
        image = ctypes.c_void_p(X.XGetImage(self.display, self.root, x, y, 1, 1, ctypes.c_ulong(-1), Z_PIXMAP))
        pixel = X.XGetPixel(image, 0, 0)
        X.XDestroyImage(image)
        return pixel & 0xFFFFFF == 0


@ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)
def IGNORE(_display, _error):
    """A window may be gone before its place is asked for."""
    return 0


def start_time(windows, program):
    """Seconds from the start of the program to its painted frame, without the wait of the box before it."""
    list(windows.events())
    with tempfile.TemporaryDirectory() as folder:
        environment = dict(os.environ, XDG_CONFIG_HOME=folder, XDG_RUNTIME_DIR=folder, QT_QPA_PLATFORM="xcb",
                           CUPS_SERVER=folder + "/no-printers")
        began = time.perf_counter()
        process = subprocess.Popen([program], cwd=folder, env=environment, stderr=subprocess.DEVNULL)
        box, frame, waited, key_at = None, None, 0.0, 0.0
        try:
            while time.perf_counter() - began < PATIENCE:
                for event, window in windows.events():
                    now = time.perf_counter()
                    place = windows.place(window) if event == MAP else None
                    if place and place[2] > FRAME_WIDTH:
                        frame = frame or place
                    elif place and place[2] > 50 and box is None:
                        box, box_shown = window, now
                    elif event == UNMAP and window == box:
                        waited, key_at = now - box_shown, float("inf")
                now = time.perf_counter()
                if frame and not windows.black(frame[0] + frame[2] // 2, frame[1] + frame[3] // 2):
                    return now - began - waited
                if box and now > key_at:
                    subprocess.run(["xdotool", "key", "Return"], check=True)
                    key_at = time.perf_counter() + KEY_AGAIN
                time.sleep(0.0005)
            raise TimeoutError("no frame came up")
        finally:
            process.kill()
            process.wait()
            time.sleep(0.2)  # for the window manager


def memory(process_id, file, key):
    """Megabytes of a key of a process."""
    for line in pathlib.Path(f"/proc/{process_id}/{file}").read_text().splitlines():
        if line.startswith(key + ":"):
            return int(line.split()[1]) / 1024
    raise KeyError(key)


def measure_memory(program, count):
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        batch = str(pathlib.Path(program).with_name("korvet-batch"))
        files = [folder / f"cone{number}.Kvt" for number in range(count)]
        for file in files:
            subprocess.run([batch, "--new", "Right Cone", "--sample", "--save", file], check=True,
                           stdout=subprocess.DEVNULL)
        os.environ["KORVET"] = program
        screen = Korvet(folder, *files)
        try:
            screen.pass_splash()
            screen.wait(lambda: len(screen.children()) == count, f"{count} windows")
            screen.settle(1)
            pid = screen.process.pid
            return memory(pid, "status", "VmRSS"), memory(pid, "smaps_rollup", "Pss")
        finally:
            screen.stop()


def main():
    program = os.path.abspath(sys.argv[1] if len(sys.argv) > 1 else ROOT / "build/release/bin/korvet")
    windows = Windows()
    start_time(windows, program)
    times = sorted(start_time(windows, program) for _ in range(RUNS))
    print(f"start to first frame: median {statistics.median(times):.3f} s "
          f"({times[0]:.3f} to {times[-1]:.3f}, {RUNS} runs)")
    for count in (1, 20):
        resident, share = measure_memory(program, count)
        print(f"{count:2d} windows open: VmRSS {resident:.1f} MB, Pss {share:.1f} MB")


if __name__ == "__main__":
    main()
