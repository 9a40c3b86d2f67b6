"""The pictures of the user guide are those of the pages that there are, and the program still makes them."""
import os
import pathlib
import re
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
DOCS = ROOT / "docs"
MOST_BYTES = 3_000_000  # of all of them: they are kept with the sources
LEAST_COLOURS = 8


class PicturesTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        temporary = tempfile.TemporaryDirectory()
        cls.addClassCleanup(temporary.cleanup)
        cls.made = pathlib.Path(temporary.name)
        subprocess.run([ROOT / "scripts/make-pictures", cls.made, os.environ["KORVET_PAGE_PICTURES"]], check=True,
                       timeout=900)

    def names(self, folder):
        return sorted(path.name for path in (folder / "pictures").iterdir())

    def test_every_page_has_its_picture(self):
        pages = sorted(path.stem + ".png" for path in (ROOT / "examples").glob("*-type*.Kvt"))
        self.assertEqual(self.names(self.made), pages)
        self.assertEqual(self.names(DOCS), pages)

    def test_the_guide_shows_them(self):
        text = (DOCS / "fittings.md").read_text()
        self.assertEqual((self.made / "fittings.md").read_text(), text)
        shown = re.findall(r"!\[.*, type \d+\]\(pictures/(.*)\)", text)
        self.assertEqual(sorted(shown), self.names(DOCS))
        self.assertEqual(len(re.findall("(?m)^## ", text)), 39)

    def test_none_is_empty_and_all_are_small(self):
        for folder in (DOCS, self.made):
            paths = sorted((folder / "pictures").iterdir())
            self.assertLess(sum(path.stat().st_size for path in paths), MOST_BYTES)
            colours = subprocess.run(["identify", "-format", "%k\n", *paths], capture_output=True, text=True, check=True)
            self.assertEqual(len(colours.stdout.split()), len(paths))
            self.assertGreaterEqual(min(map(int, colours.stdout.split())), LEAST_COLOURS)


if __name__ == "__main__":
    unittest.main()
