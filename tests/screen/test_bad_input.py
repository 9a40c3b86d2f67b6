"""What goes wrong in a day's work: nothing typed may be lost by it, and no file that was good."""
import pathlib
import unittest

from korvet_screen import BASE, TITLE, ScreenTest

EXAMPLE = pathlib.Path(__file__).resolve().parents[2] / "examples/frmRightCone1-type2.Kvt"


class BadInput(ScreenTest):
    def make_model(self, *sizes):
        self.screen.new_cone()
        self.screen.fill_cone(*sizes)
        self.screen.key("ctrl+1")
        self.screen.wait_drawing("Model")

    def answer_all(self, title):
        """Answers the boxes of a title until none follows; all that they said."""
        said = [self.screen.answer(title)]
        while self.screen.wait(self.screen.active, "active window").name == title:
            said.append(self.screen.answer(title))
        return "\n".join(said)

    def test_files_on_the_command_line(self):
        good = EXAMPLE.read_bytes()
        files = {"foreign.Kvt": good.replace(b"Korvet", b"Cutter", 1), "short.Kvt": good[:len(good) // 2],
                 "noise.Kvt": bytes(range(256)) * 8, "empty.Kvt": b""}
        for name, content in files.items():
            (self.folder / name).write_bytes(content)
        for name in (*files, "missing.Kvt"):
            with self.subTest(name):
                screen = self.run_to_frame(name)
                screen.wait_active(TITLE, "alert")
                screen.picture(f"bad-{name}")
                said = self.answer_all(TITLE)
                if name == "foreign.Kvt":
                    self.assertIn("Not a valid", said)
                else:
                    self.assertRegex(said, "Error (loading parameter file|in CKVTFile:ReadHeader)|Not a valid")
                # Half a file fills no more than a new window, which does not carry its name.
                self.assertEqual(screen.children(), ["Development 1"] if name == "short.Kvt" else [])
                self.make_model("300", "120", "250")  # the program goes on
        self.assertEqual({name: (self.folder / name).read_bytes() for name in files}, files)
        self.assertFalse((self.folder / "missing.Kvt").exists())

    def test_save_where_nothing_can_be_written(self):
        screen = self.run_to_frame()
        self.make_model("300", "120", "250")
        screen.key("ctrl+s")
        screen.choose_file("SaveAs", "/proc/sys/cone")
        said = screen.answer(TITLE)
        self.assertIn("/proc/sys/cone.Kvt", said)
        self.assertEqual(screen.children(), ["Development 1"])

        missing = self.folder / "no such folder" / "cone"
        screen.key("ctrl+s")
        screen.choose_file("SaveAs", missing)
        self.assertIn("does not exist", screen.answer("SaveAs"))
        screen.wait_active("SaveAs", "dialog")  # asks again
        screen.key("Escape")
        screen.wait_active("Main window")
        self.assertEqual((screen.children(), screen.cone_boxes()), (["Development 1"], ["300", "120", "250"]))

        # It is still unsaved: closing asks, and what could not be saved then stays open.
        screen.key("ctrl+w")
        said = screen.answer(TITLE, "Yes")
        self.assertEqual(said, "Save parameter file for Development 1")
        screen.choose_file("SaveAs", "/proc/sys/cone")
        self.assertIn("/proc/sys/cone.Kvt", screen.answer(TITLE))
        screen.wait_active("Main window")
        self.assertEqual((screen.children(), screen.cone_boxes()), (["Development 1"], ["300", "120", "250"]))

    def test_cancel_at_the_second_window(self):
        screen = self.run_to_frame()
        self.make_model("300", "120", "250")
        self.make_model("400", "160", "350")
        screen.fill(BASE, "410")  # typed, and not yet in the drawing
        screen.key("alt+f", "x")
        self.assertEqual(screen.answer(TITLE, "No"), "Save parameter file for Development 1")
        self.assertEqual(screen.answer(TITLE, "Cancel"), "Save parameter file for Development 2")
        screen.wait_active("Main window")
        self.assertEqual(screen.cone_boxes(), ["410", "160", "350"])
        self.assertEqual(len(screen.children()), 2)
        screen.key("alt+w", "v")  # side by side, so that both are shown
        self.assertEqual(screen.cone_boxes("Development 1"), ["300", "120", "250"])

    def test_texts_that_are_no_size(self):
        screen = self.run_to_frame()
        screen.new_cone()
        screen.fill_cone("300", "120", "250")
        for text in ("x", "-", "1,", "1..", "300x", "-300", "0"):
            with self.subTest(text):
                screen.fill(BASE, text)
                refused = []
                screen.settle()
                while screen.wait(screen.active, "active window").getRoleName() == "alert":
                    refused.append(screen.answer(screen.active().name))
                screen.key("ctrl+1")
                while screen.wait(screen.active, "active window").getRoleName() == "alert":
                    refused.append(screen.answer(screen.active().name))
                self.assertTrue(refused, "accepted")
                self.assertEqual(screen.drawing(), "Empty")
                self.assertEqual(screen.cone_boxes(), [text, "120", "250"])
                screen.wait_focus(BASE)
        screen.fill(BASE, "300")
        screen.key("ctrl+1")
        screen.wait_drawing("Model")


if __name__ == "__main__":
    unittest.main()
