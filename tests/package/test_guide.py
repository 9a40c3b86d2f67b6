"""The commands of the user guide do what it says: files and commands are taken out of its pages and run.

In the pages a comment stands above each: "file: NAME" is written, "run: NAME" is run, "said: NAME" is what that run says.
"""
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
BATCH = pathlib.Path(os.environ["KORVET_BATCH"])
BLOCK = re.compile(r"<!-- (file|run|said): (\S+) -->\n```\w*\n(.*?)```\n", re.DOTALL)


class GuideTest(unittest.TestCase):
    page = None

    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = pathlib.Path(temporary.name)
        self.commands, self.said = {}, {}
        for kind, name, text in BLOCK.findall((ROOT / "docs" / self.page).read_text()):
            if kind == "file":
                (self.folder / name).write_text(text)
            else:
                (self.commands if kind == "run" else self.said)[name] = text

    def run_block(self, name, status=0):
        """What a block of the page says, its errors in the place where they come."""
        environment = dict(os.environ, PATH=f"{BATCH.parent}:{os.environ['PATH']}", HOME=str(self.folder),
                           LC_ALL="C.UTF-8")
        run = subprocess.run(["sh", "-c", self.commands[name]], cwd=self.folder, env=environment, check=False,
                             stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, timeout=200)
        self.assertEqual(run.returncode, status, run.stdout)
        return run.stdout

    def outputs(self):
        return sorted(path.name for path in (self.folder / "out").glob("*.dxf"))


class SpreadsheetTest(GuideTest):
    page = "batch-work.md"
    made = ["hopper-1.dxf", "hopper-2.dxf", "hopper-4.dxf"]

    def test_shell(self):
        self.assertEqual(self.run_block("shell"), self.said["shell"])
        self.assertEqual(self.outputs(), self.made)
        self.assertIn("360.5", (self.folder / "out/hopper-4.Kvt").read_text())

    def test_python(self):
        self.assertEqual(self.run_block("python", 1), self.said["python"])
        self.assertEqual(self.outputs(), self.made)

    def test_python_reads_what_spreadsheets_write(self):
        """The same sizes with semicolons, decimal commas, quotes and the line ends of another system."""
        self.run_block("python", 1)
        first = {name: (self.folder / "out" / name).read_bytes() for name in self.made}
        sheet = self.folder / "cones.csv"
        rows = sheet.read_text().replace(",", ";").replace(".", ",").replace("hopper-2", '"hopper-2"')
        sheet.write_bytes(b"\xef\xbb\xbf" + rows.replace("\n", "\r\n").encode())
        shutil.rmtree(self.folder / "out")
        self.assertEqual(self.run_block("python", 1), self.said["python"])
        self.assertEqual({name: (self.folder / "out" / name).read_bytes() for name in self.made}, first)

    def test_list(self):
        self.assertEqual(self.run_block("list", 1), self.said["list"])
        self.assertEqual(self.outputs(), ["hopper-1.dxf", "pipe.dxf"])


class ManyMachinesTest(GuideTest):
    page = "many-machines.md"

    def setUp(self):
        super().setUp()
        jobs = self.folder / "jobs" / "one shop"
        jobs.mkdir(parents=True)
        for path in sorted((ROOT / "examples").glob("frmR*.Kvt"))[:8]:
            shutil.copy(path, jobs)
        self.names = sorted(path.stem + ".dxf" for path in jobs.iterdir())
        spreadsheet = (ROOT / "docs/batch-work.md").read_text()
        (self.folder / "cones.csv").write_text(next(text for kind, name, text in BLOCK.findall(spreadsheet)
                                                    if name == "cones.csv"))

    def log(self, name):
        """Exit status and number of starts in a job log."""
        rows = [row.split("\t") for row in (self.folder / name).read_text().splitlines()[1:]]
        return [int(row[6]) for row in rows]

    def expected(self):
        """What one start without anything else writes."""
        for path in sorted((self.folder / "jobs").rglob("*.Kvt")):
            subprocess.run([BATCH, "--dxf", self.folder / "alone" / (path.stem + ".dxf"), path], check=True)
        return {path.name: path.read_bytes() for path in (self.folder / "alone").iterdir()}

    def check_same(self):
        (self.folder / "alone").mkdir()
        expected = self.expected()
        self.assertEqual(sorted(expected), self.names)
        self.assertEqual({name: (self.folder / "out" / name).read_bytes() for name in self.outputs()}, expected)

    def test_cores(self):
        self.commands["cores"] = self.commands["cores"].replace("--max-args 50", "--max-args 3")
        self.assertIn("--max-args 3", self.commands["cores"])
        self.run_block("cores")
        self.assertEqual(self.log("done.log"), [0, 0, 0])
        self.check_same()

    def test_again(self):
        bad = self.folder / "jobs" / "bad.Kvt"
        bad.write_text("Korvet Development-3.3.3\n")
        self.assertIn("bad.Kvt", self.run_block("cores", 1))
        bad.unlink()
        shutil.copy(ROOT / "examples/frmAuger-type1.Kvt", bad)
        self.run_block("again")
        self.assertIn("bad.dxf", self.outputs())

    def test_machines(self):
        self.run_block("machines")
        self.assertEqual(self.log("machines.log"), [0] * len(self.names))
        self.check_same()

    def test_rows(self):
        said = self.run_block("rows", 1)
        self.assertIn("box 4: This dimension must be less than 340", said)
        self.assertEqual(self.outputs(), ["hopper-1.dxf", "hopper-2.dxf", "hopper-4.dxf"])
        self.assertEqual(sorted(self.log("rows.log")), [0, 0, 0, 1])



if __name__ == "__main__":
    unittest.main()
