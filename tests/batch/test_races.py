"""Six programs at once on one settings file, one parameter file and one folder of outputs.

The argument --rounds N tells how often, else 50 times. The environment is that of fault_runs.
"""

import os
import subprocess
import sys
import unittest

from batch_program import DONE, PROGRAM, REFUSED, FolderTest, cone_file, environment_of, read_json

DESKTOP = os.environ.get("KORVET_DESKTOP_FILES")
OLD_OPTIONS = b"3.a\r\nof an earlier version\r\n"
AT_ONCE = 6


class RaceTest(FolderTest):
    rounds = 50

    def start(self, *words):
        return subprocess.Popen([*map(str, words)], cwd=self.folder, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                stderr=subprocess.PIPE, env=environment_of())

    def ends(self, processes):
        ended = []
        for process in processes:
            output, errors = process.communicate(timeout=60)
            ended.append((process.returncode, errors.decode()))
        return ended

    def clear(self):
        for path in self.folder.iterdir():
            if path.is_file():
                path.unlink()

    def one_round(self):
        self.clear()
        self.write("in.Kvt", cone_file())
        self.write("settings.ini", OLD_OPTIONS)
        (self.folder / "config").mkdir(exist_ok=True)
        texts = [cone_file(segs=str(12 + k)) for k in range(AT_ONCE)]
        for k, text in enumerate(texts):
            self.write(f"{k}.Kvt", text)
        batch = [self.start(PROGRAM, f"{k}.Kvt", "--save", "one.Kvt", "--json", "one.json", "--dxf", "one.dxf")
                 for k in range(AT_ONCE)]
        desktops = [self.start(DESKTOP) for _ in range(AT_ONCE)]
        for status, errors in self.ends(desktops):
            self.assertEqual(status, DONE, errors)
        ended = self.ends(batch)
        self.assertIn(DONE, [status for status, _ in ended])
        for status, errors in ended:
            if status != DONE:
                self.assertEqual(status, REFUSED)
                self.assertRegex(errors, "^korvet-batch: one.json cannot be written: another run is at work on [^\n]*\n$")
        self.look(texts)

    def look(self, texts):
        files = {path.name: path.read_bytes() for path in self.folder.iterdir() if path.is_file()}
        kept = {name for name in files if name.startswith("settings.ini.bak")}
        self.assertTrue(kept)
        self.assertEqual({files[name] for name in kept}, {OLD_OPTIONS})
        self.assertEqual(files["settings.ini"].count(b"\r\n"), 25)
        self.assertTrue(files["settings.ini"].startswith(b"3.b\r\n 48 \r\n"))
        self.assertIn(files["one.Kvt"].decode(), texts)
        report = read_json(files["one.json"].decode())
        self.assertIn(len(report["pattern"][0]["List1"]) - 1, range(12, 12 + AT_ONCE))
        self.assertTrue(files["one.dxf"].rstrip().endswith(b"EOF"))
        self.assertEqual(set(files) - kept, {"in.Kvt", "out.Kvt", "settings.ini", "one.Kvt", "one.json", "one.dxf",
                                             *(f"{k}.Kvt" for k in range(AT_ONCE))})

    def test_races(self):
        for k in range(self.rounds):
            with self.subTest(round=k):
                self.one_round()


if __name__ == "__main__":
    if "--rounds" in sys.argv:
        at = sys.argv.index("--rounds")
        RaceTest.rounds = int(sys.argv[at + 1])
        del sys.argv[at:at + 2]
    unittest.main()
