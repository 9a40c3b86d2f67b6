"""Printing on real queues: what comes out of a spooler of the tests' own, measured by another reader."""

import math
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "batch"))

from pdf_pages import pages_of, sheet_names, words_of  # noqa: E402
from private_cups import EDGE, PPD, SPOOLER, PrivateCups  # noqa: E402

PROGRAM = os.environ.get("KORVET_QUEUE_PRINT", "queue_print")
BATCH = os.environ.get("KORVET_BATCH", "korvet-batch")
CUT_PEN = 3 * 25.4 / 300  # millimetres
ROLL = ("Roll", 2551, 4252)  # points: 900 by 1500 mm


def extents(lines):
    ends = [end for line in lines for end in (line.start, line.end)]
    return [max(end[axis] for end in ends) - min(end[axis] for end in ends) for axis in (0, 1)]


class QueueTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        if not Path(SPOOLER).exists() or not PPD.exists():
            raise AssertionError("these tests need cups-daemon, cups-client, cups-filters and printer-driver-cups-pdf")
        cls.folder = tempfile.TemporaryDirectory()
        os.chmod(cls.folder.name, 0o755)
        cls.runtime = Path(cls.folder.name) / "runtime"
        os.mkdir(cls.runtime, 0o700)
        cls.cups = PrivateCups(Path(cls.folder.name) / "cups").__enter__()
        for name in ("PLOT", "OTHER"):
            cls.cups.add_queue(name, ROLL if name == "PLOT" else None)

    @classmethod
    def tearDownClass(cls):
        cls.cups.__exit__()
        cls.folder.cleanup()

    def print_on(self, queue, paper, orientation, mode, *fitting):
        result = subprocess.run([PROGRAM, queue, paper, orientation, mode, *map(str, fitting)], check=False,
                                env={**self.cups.environment, "QT_QPA_PLATFORM": "offscreen",
                                     "XDG_RUNTIME_DIR": str(self.runtime)}, cwd=self.folder.name,
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=120)
        self.assertIn(result.returncode, (0, 1), result.stderr.decode("utf-8")[-2000:])
        return result.stderr.decode("utf-8")

    def expect_printed(self, *arguments):
        before = self.cups.documents("PLOT")
        self.assertEqual(self.print_on("PLOT", *arguments), "")
        path = self.cups.printed("PLOT")
        self.assertEqual(self.cups.documents("PLOT"), before + 1)  # one job a command
        return path

    def test_lengths_are_true_on_every_paper_both_ways(self):
        papers = {"A4": (210, 297), "A3": (297, 420), "US Letter": (215.9, 279.4), "Roll": (900, 1500)}
        for paper, (width, height) in papers.items():
            for orientation in ("portrait", "landscape"):
                across, up = (width, height) if orientation == "portrait" else (height, width)
                wanted = (across - 32, up - 32)  # room for the queue's margins and the program's
                path = self.expect_printed(paper, orientation, "full", "Right Cylinder", f"0={wanted[0] / math.pi}",
                                           f"1={wanted[1]}")
                pages = pages_of(path)
                self.assertEqual(len(pages), 1, (paper, orientation))
                self.assertAlmostEqual(sorted((pages[0].width, pages[0].height))[0], width, delta=0.4)
                self.assertAlmostEqual(sorted((pages[0].width, pages[0].height))[1], height, delta=0.4)
                for end in (end for line in pages[0].lines for end in (line.start, line.end)):
                    # A frame lies 5 mm inside what the queue can print on.
                    self.assertGreater(min(end), EDGE * 25.4 / 72 + 4.99)
                cut = [line for line in pages[0].lines if abs(line.width - CUT_PEN) < 0.01]
                for length, true in zip(sorted(extents(cut)), sorted(wanted)):
                    self.assertAlmostEqual(length, true, delta=0.01 * max(1, true / 300), msg=(paper, orientation))

    def test_every_sheet_arrives(self):
        path = self.expect_printed("A4", "portrait", "full", "Right Cone", "3=300", "4=120", "5=250")
        self.assertEqual(sheet_names(path), ["A1", "A2", "B1", "B2", "C1", "C2", "D1", "D2"])
        self.assertNotIn("scaling pages", self.cups.log())

    def test_to_fit_and_table_are_one_job_each(self):
        self.assertEqual(len(pages_of(self.expect_printed("A4", "landscape", "fit", "Right Cone", "3=300", "4=120",
                                                          "5=250"))), 1)
        path = self.expect_printed("A4", "portrait", "table", "Right Cone", "3=300", "4=120", "5=250")
        words = words_of(path, 1)
        self.assertEqual(words[:4], ["Korvet", "Development", "Suface", "No:"])

    def test_a_cancelled_job_leaves_nothing_behind(self):
        before = self.cups.documents("PLOT")
        fitting = ("Right Cone", "3=300", "4=120", "5=250")
        self.assertEqual(self.print_on("PLOT", "A4", "portrait", "cancel", *fitting), "")
        self.assertEqual(self.cups.ask("lpstat", "-o", "PLOT").strip(), "")
        self.assertEqual(self.print_on("PDF file", "A4", "portrait", "cancel", *fitting), "")
        self.assertFalse((Path(self.folder.name) / "printed.pdf").exists())
        self.expect_printed("A4", "portrait", "full", *fitting)
        self.assertEqual(self.cups.documents("PLOT"), before + 1)

    def test_the_pdf_of_the_desktop_is_that_of_the_batch_program(self):
        self.assertEqual(self.print_on("PDF file", "A4", "portrait", "full", "Right Cone", "3=300", "4=120", "5=250"), "")
        batch = Path(self.folder.name) / "batch.pdf"
        subprocess.run([BATCH, "--new", "Right Cone", "--type", "2", "--set", "box3=300", "--set", "box4=120", "--set",
                        "box5=250", "--pdf", batch], check=True)

        def plain(path):
            text = subprocess.run(["qpdf", "--qdf", "--object-streams=disable", path, "-"], check=True,
                                  stdout=subprocess.PIPE).stdout.decode("latin-1")
            return [line for line in text.splitlines() if "/CreationDate" not in line and "/ID" not in line]

        printed = plain(Path(self.folder.name) / "printed.pdf")
        self.assertGreater(len(printed), 1000)
        self.assertEqual(printed, plain(batch))

    def test_a_queue_that_takes_nothing_says_why(self):
        fitting = ("Right Cone", "3=300", "4=120", "5=250")
        for command, back, said in (("cupsdisable", "cupsenable", "is paused"),
                                    ("cupsreject", "cupsaccept", "does not accept documents")):
            self.cups.ask(command, "OTHER")
            self.assertIn(said, self.print_on("OTHER", "A4", "portrait", "full", *fitting))
            self.cups.ask(back, "OTHER")
        self.assertEqual(self.cups.documents("OTHER"), 0)
        self.assertEqual(self.cups.ask("lpstat", "-o", "OTHER").strip(), "")
        self.assertIn("There is no printer", self.print_on("GONE", "A4", "portrait", "full", *fitting))


if __name__ == "__main__":
    unittest.main()
