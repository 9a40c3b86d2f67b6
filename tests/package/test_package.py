"""The Debian package: made from the build that the tests run on, looked at, unpacked, and its programs run from there.

KORVET_BUILD is the folder of the build. That the package installs and goes away again on a bare machine is tried with
scripts/try-package.
"""
import gzip
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

BUILD = pathlib.Path(os.environ["KORVET_BUILD"])
SOURCES = pathlib.Path(__file__).resolve().parents[2]
VERSION = re.search(r'ProgramVersion = "(.*)"', (SOURCES / "src/core/constants.h").read_text())[1]
MIME = "application/x-korvet-fitting"
SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)


def call(*command, environment=None, check=True, **options):
    """What a command says, errors included."""
    run = subprocess.run([str(part) for part in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                         env=dict(os.environ, LC_ALL="C.UTF-8", **(environment or {})), check=False, **options)
    if check and run.returncode != 0:
        raise AssertionError(f"{command} ended with {run.returncode}:\n{run.stdout}")
    return run.stdout


class Unpacked:
    """The package, made and unpacked once for all tests."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        call("cpack", "--config", BUILD / "CPackConfig.cmake", "-G", "DEB", "-B", self.folder / "made")
        self.package = next((self.folder / "made").glob("*.deb"))
        self.root = self.folder / "root"
        call("dpkg-deb", "-x", self.package, self.root)


def setUpModule():
    temporary = tempfile.TemporaryDirectory()
    unittest.addModuleCleanup(temporary.cleanup)
    UnpackedTest.unpacked = Unpacked(temporary.name)


class UnpackedTest(unittest.TestCase):
    unpacked = None

    def setUp(self):
        self.package = self.unpacked.package
        self.root = self.unpacked.root
        self.usr = self.root / "usr"
        self.share = self.usr / "share"
        self.batch = self.usr / "bin/korvet-batch"
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = pathlib.Path(temporary.name)


class PackageTest(UnpackedTest):
    def field(self, name):
        return call("dpkg-deb", "-f", self.package, name).strip()

    def test_names(self):
        self.assertTrue(self.package.name.startswith(f"korvet_{VERSION}-1_"), self.package.name)
        self.assertEqual(self.field("Version"), f"{VERSION}-1")

    def test_lintian(self):
        # The package does not go to Debian, so there is no bug there that it closes.
        said = call("lintian", "--allow-root", "--fail-on", "error,warning", "--suppress-tags",
                    "initial-upload-closes-no-bugs", self.package)
        self.assertNotRegex(said, "(?m)^[EW]:")

    def test_dependencies(self):
        needed = re.split(r"[ ,]+", self.field("Depends"))
        for name in ("libqt6sql6-sqlite", "libqt6widgets6", "libqt6gui6", "libc6"):
            self.assertIn(name, needed)

    def test_contents(self):
        share = [
            "korvet/korvet.qch", "applications/korvet.desktop", "mime/packages/korvet.xml", "man/man1/korvet.1.gz",
            "metainfo/org.korvet.Development.metainfo.xml", "man/man1/korvet-batch.1.gz", "doc/korvet/copyright",
            "bash-completion/completions/korvet-batch", "doc/korvet/changelog.Debian.gz", "doc/korvet/changelog.gz",
            "doc/korvet/docs/user-guide.md"]
        for kind, name in (("apps", "korvet"), ("mimetypes", MIME.replace("/", "-"))):
            share.append(f"icons/hicolor/scalable/{kind}/{name}.svg")
            share += [f"icons/hicolor/{side}x{side}/{kind}/{name}.png" for side in SIZES]
        for name in share:
            with self.subTest(name):
                self.assertTrue((self.share / name).is_file())
        self.assertEqual(sorted(path.name for path in (self.usr / "bin").iterdir()), ["korvet", "korvet-batch"])
        stray = [path for path in self.root.rglob("*") if path.is_file() and self.usr not in path.parents]
        self.assertEqual(stray, [])

    def test_icons(self):
        for side in SIZES:
            for path in (self.share / f"icons/hicolor/{side}x{side}").rglob("*.png"):
                with self.subTest(path.name, side=side):
                    size, colours = call("identify", "-format", "%wx%h %k", path).split()
                    self.assertEqual(size, f"{side}x{side}")
                    self.assertGreater(int(colours), 20)

    def test_versions(self):
        self.assertEqual(call(self.batch, "--version"), f"korvet-batch {VERSION}\n")
        self.assertEqual(call(self.usr / "bin/korvet", "--version"), f"korvet {VERSION}\n")

    def test_command_line_of_the_desktop_program(self):
        korvet = self.usr / "bin/korvet"
        said = call(korvet, "--help", environment={"DISPLAY": "", "QT_QPA_PLATFORM": "none"})
        self.assertIn("Usage: korvet [OPTION]... [FILE]...", said)
        environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", XDG_RUNTIME_DIR=str(self.folder))
        wrong = subprocess.run([korvet, "--nonsense"], env=environment,
                               stderr=subprocess.PIPE, text=True, check=False, timeout=60)
        self.assertEqual(wrong.returncode, 2)
        self.assertEqual(wrong.stderr, "korvet knows no option --nonsense; see korvet --help\n")

    def test_batch_program(self):
        """The installed program writes what the built one does."""
        files = []
        for program, name in ((self.batch, "installed.dxf"), (BUILD / "bin/korvet-batch", "built.dxf")):
            call(program, "--new", "Right Cone", "--type", 2, "--sample", "--dxf", self.folder / name)
            files.append((self.folder / name).read_bytes())
        self.assertEqual(files[0], files[1])
        self.assertGreater(len(files[0]), 1000)

    def test_stripped(self):
        for path in (self.usr / "bin").iterdir():
            self.assertNotIn(".debug_info", call("readelf", "-WS", path))

    def test_desktop_entry(self):
        call("desktop-file-validate", self.share / "applications/korvet.desktop")
        entry = (self.share / "applications/korvet.desktop").read_text()
        self.assertIn("\nExec=korvet --open %F\n", entry)
        self.assertIn(f"\nMimeType={MIME};\n", entry)

    def test_metainfo(self):
        metainfo = self.share / "metainfo/org.korvet.Development.metainfo.xml"
        call("appstreamcli", "validate", "--no-net", metainfo)
        self.assertIn(f'<release version="{VERSION}"', metainfo.read_text())

    def test_mime_type(self):
        mime = self.folder / "mime"
        (mime / "packages").mkdir(parents=True)
        shutil.copy(self.share / "mime/packages/korvet.xml", mime / "packages")
        said = call("update-mime-database", mime, environment={"XDG_DATA_DIRS": str(self.folder)})
        self.assertEqual(said, "")
        self.assertIn(f"50:{MIME}:*.kvt", (mime / "globs2").read_text().splitlines())
        self.assertIn(f"{MIME} text/plain", (mime / "subclasses").read_text().splitlines())
        self.assertIn(b"Korvet Development-", (mime / "magic").read_bytes())
        example = next((self.share / "doc/korvet/examples").glob("*.Kvt"))
        self.assertTrue(example.read_bytes().startswith(b"Korvet Development-"))

    def test_manual_pages(self):
        for name, program in (("korvet", self.usr / "bin/korvet"), ("korvet-batch", self.batch)):
            with self.subTest(name):
                page = self.folder / f"{name}.1"
                page.write_bytes(gzip.decompress((self.share / f"man/man1/{name}.1.gz").read_bytes()))
                shown = subprocess.run(["man", "--warnings", "-l", str(page)], capture_output=True, text=True, check=True,
                                       env=dict(os.environ, LC_ALL="C.UTF-8", MANPAGER="cat", MANWIDTH="100"))
                self.assertEqual(shown.stderr, "")
                self.assertIn(f"{name} - flat patterns", shown.stdout)
                help_text = call(program, "--help").split("Exit status")[0]
                options = set(re.findall(r"(?m)^  (?:-.,)? ?(--[a-z-]+)", help_text))
                self.assertGreaterEqual(len(options), 2)
                for option in options:
                    self.assertRegex(shown.stdout, rf"(?m)^ +(-., )?{option}\b")


class CompletionTest(UnpackedTest):
    """What bash offers after some words."""

    def complete(self, *words):
        script = ('source "$1"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _korvet_batch; '
                  'for reply in "${COMPREPLY[@]}"; do printf "%s\\n" "$reply"; done')
        completion = self.share / "bash-completion/completions/korvet-batch"
        return call("bash", "-c", script, "bash", completion, self.batch, *words, cwd=self.folder).splitlines()

    def test_options(self):
        self.assertEqual(self.complete("--po"), ["--polylines"])
        self.assertLessEqual({"--new", "--dxf", "--no-label", "--help"}, set(self.complete("--")))

    def test_every_option(self):
        """Each is offered; behind one with a value stand its values, files or nothing, behind a switch the inputs."""
        (self.folder / "job.csv").touch()
        (self.folder / "one.Kvt").touch()
        heads = re.findall(r"(?m)^  (?:-.,)?(--[a-z-]+)(?: (TEXT|INT)\S*)?", call(self.batch, "--help"))
        self.assertGreater(len(heads), 35)
        files = ("--fittings", "--mesh-file", "--settings", "--json", "--dxf", "--save", "--png", "--svg", "--table",
                 "--pdf", "--hpgl")
        for option, kind in heads:
            with self.subTest(option):
                self.assertIn(option, self.complete(option))
                offered = self.complete(option, "")
                if option in files:
                    self.assertEqual(set(offered), {"job.csv", "one.Kvt"})
                elif not kind:
                    self.assertEqual(offered, ["one.Kvt"])
                else:
                    self.assertNotIn("job.csv", offered)

    def test_values(self):
        self.assertEqual(self.complete("--view", ""), ["model", "pattern"])
        self.assertEqual(self.complete("--units", "i"), ["inch"])
        self.assertIn("A3", self.complete("--paper", "A"))
        self.assertEqual(self.complete("--size", ""), [])
        self.assertEqual(self.complete("--type", ""), [])

    def test_categories(self):
        self.assertEqual(self.complete("--new", "Rectangle (R"), ["Rectangle (Radius) to Round"])
        self.assertEqual(self.complete("--new", "\"Cyclone (Co"), ["Cyclone (Cone)"])
        self.assertEqual(self.complete("--new", "Pipe\\ to\\ B"), ["Pipe to Bend"])
        self.assertEqual(len(self.complete("--new", "")), 39)

    def test_files(self):
        for name in ("one.Kvt", "two words.kvt", "other.txt"):
            (self.folder / name).touch()
        self.assertLessEqual({"one.Kvt", "two words.kvt"}, set(self.complete("")))
        self.assertNotIn("other.txt", self.complete(""))
        self.assertEqual(self.complete("--dxf", "oth"), ["other.txt"])


if __name__ == "__main__":
    unittest.main()
