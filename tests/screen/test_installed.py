"""The program as it is installed: its help, and files that are double clicked."""
import os
import pathlib
import re
import shutil
import subprocess
import unittest

from korvet_screen import ScreenTest

BUILD = pathlib.Path(os.environ["KORVET"]).parents[1]
EXAMPLE = pathlib.Path(__file__).resolve().parents[2] / "examples/frmRightCone1-type2.Kvt"


class Installed(ScreenTest):
    def setUp(self):
        super().setUp()
        prefix = self.folder / "installed"
        subprocess.run(["cmake", "--install", BUILD, "--prefix", prefix], stdout=subprocess.DEVNULL, check=True)
        self.program = prefix / "bin/korvet"
        self.files = [self.folder / f"{name}.Kvt" for name in ("one", "two", "three")]
        for file in self.files:
            shutil.copy(EXAMPLE, file)

    def click(self, *files):
        """What the desktop does when files are double clicked, while the program runs: the exit status."""
        return subprocess.run([self.program, "--open", *files], cwd="/", env=self.screen.environment, timeout=60,
                              check=False).returncode

    def wait_children(self, *files):
        names = [str(file) for file in files]
        self.screen.wait(lambda: self.screen.children() == names, f"windows of {names}")

    def check_window_class(self):
        """By it a desktop finds the entry of a window, and with it name and icon."""
        window = subprocess.run(["xdotool", "search", "--onlyvisible", "--class", "korvet"], capture_output=True,
                                text=True, check=True).stdout.split()[0]
        said = subprocess.run(["xprop", "-id", window, "WM_CLASS"], capture_output=True, text=True, check=True).stdout
        entry = (self.program.parents[1] / "share/applications/korvet.desktop").read_text()
        self.assertIn(re.search("StartupWMClass=(.*)", entry)[1], re.findall('"(.*?)"', said))

    def test_help(self):
        screen = self.run_to_frame(program=self.program)
        screen.key("F1")
        page = screen.find("Help page")
        screen.wait(lambda: "lays out sheet-metal and plate fittings" in page.queryText().getText(0, -1), "text of the help")

    def test_double_clicks(self):
        """The first starts the program, the next ones bring their files to it, in front of a dialog if need be."""
        screen = self.run_to_frame("--open", self.files[0], program=self.program)
        self.wait_children(self.files[0])
        self.check_window_class()
        self.assertEqual(self.click(self.files[1]), 0)
        self.wait_children(*self.files[:2])

        screen.key("ctrl+n")
        screen.wait_active("New fitting")
        self.assertEqual(self.click(self.files[2]), 0)
        screen.settle(0.5)
        screen.wait_active("New fitting")
        screen.key("Escape")
        screen.wait_active("Main window")
        self.wait_children(*self.files)

    def test_each_start_by_name_is_a_program_of_its_own(self):
        first = self.run_to_frame(self.files[0], program=self.program)
        self.wait_children(self.files[0])
        second = self.another(self.files[1], program=self.program)
        second.pass_splash()
        second.wait(lambda: second.children() == [str(self.files[1])], "a window in the second program")
        self.assertEqual(first.children(), [str(self.files[0])])

        # A double click goes to the one that was started last; when that one is killed, to the other.
        self.assertEqual(self.click(self.files[2]), 0)
        second.wait(lambda: len(second.children()) == 2, "the file in the second program")
        second.process.kill()
        second.process.wait()
        self.assertEqual(self.click(self.files[2]), 0)
        first.wait(lambda: first.children() == [str(self.files[0]), str(self.files[2])], "the file in the first program")


if __name__ == "__main__":
    unittest.main()
