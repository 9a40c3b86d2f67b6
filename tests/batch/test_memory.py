"""The largest fittings, and an input that the memory is too small for."""

import resource
import subprocess
import unittest

from batch_program import DONE, PROGRAM, REFUSED, FolderTest, cone_file, environment_of, read_json

# The most stations that a bend can have: pieces by fold lines.
LARGEST = ("--sample", "--set", "box2=10360", "--set", "segs=96", "--set", "box1=300000")
MEBIBYTE = 2**20
SCARCE = 400 * MEBIBYTE  # enough for the program and a small fitting


class MemoryTest(FolderTest):
    def run_within(self, limit, *words, stack=None):
        def limit_it():
            resource.setrlimit(resource.RLIMIT_AS, (limit, limit))
            if stack:
                resource.setrlimit(resource.RLIMIT_STACK, (stack, stack))

        result = subprocess.run([PROGRAM, *words], cwd=self.folder, stdin=subprocess.DEVNULL, capture_output=True,
                                check=False, timeout=300, env=environment_of(),
                                preexec_fn=limit_it)
        return result.returncode, result.stderr.decode()

    def test_no_memory_ends_one_input(self):
        bend = self.folder / "bend.Kvt"
        self.assertEqual(self.run_within(resource.RLIM_INFINITY, "--new", "Segmented Bend", *LARGEST, "--save", bend),
                         (DONE, ""))
        for name in ("first.Kvt", "last.Kvt"):
            self.write(name, cone_file())
        status, errors = self.run_within(SCARCE, "first.Kvt", "bend.Kvt", "last.Kvt", "--json", "out.json",
                                         "--dxf", "{name}.dxf")
        self.assertEqual(status, REFUSED)
        self.assertEqual(errors, "bend.Kvt: This fitting cannot be made with these sizes: there is not enough memory\n")
        reports = read_json((self.folder / "out.json").read_text())
        self.assertEqual([report["refused"] for report in reports], [False, True, False])
        self.assertTrue((self.folder / "first.dxf").exists() and (self.folder / "last.dxf").exists())
        self.assertFalse((self.folder / "bend.dxf").exists())

    def test_fewer_threads_do_the_work_too(self):
        """A thread takes a gigabyte for its stack here: the system gives none, or two of the six."""
        names = [f"cone{number}.Kvt" for number in range(8)]
        for name in names:
            self.write(name, cone_file())
        gibibyte = 1024 * MEBIBYTE
        for limit in (gibibyte, 3 * gibibyte):
            self.assertEqual(self.run_within(limit, *names, "--jobs", "6", "--json", "out.json", stack=gibibyte),
                             (DONE, ""))
            reports = read_json((self.folder / "out.json").read_text())
            self.assertEqual([report["refused"] for report in reports], [False] * len(names))

    def test_a_picture_needs_a_thread(self):
        gibibyte = 1024 * MEBIBYTE
        self.write("a.Kvt", cone_file())
        status, errors = self.run_within(gibibyte, "a.Kvt", "--png", "a.png", stack=gibibyte)
        self.assertEqual(status, REFUSED)
        self.assertIn("the system gives no thread", errors)

    def test_a_document_that_the_memory_ends_in_ends_one_input(self):
        """From where a small fitting has room, up to where a large one has."""
        step = 4 * MEBIBYTE
        to_fit = ("--sample", "--pdf", "sheet.pdf", "--fit")
        limit = 64 * MEBIBYTE
        while self.run_within(limit, "--new", "Right Cone", *to_fit)[0] != DONE:
            limit += step
        statuses = []
        while DONE not in statuses:
            status, errors = self.run_within(limit, "--new", "Segmented Bend", "--set", "box2=500", "--set", "segs=96",
                                             "--set", "box1=300000", *to_fit)
            self.assertIn(status, (DONE, REFUSED), limit)
            self.assertEqual("there is not enough memory" in errors, status == REFUSED, limit)
            statuses.append(status)
            limit += step
        self.assertIn(REFUSED, statuses)

    def test_the_largest_bend_takes_less_than_a_gigabyte(self):
        """The limit counts what is only mapped too: the program itself maps a third of a gigabyte."""
        outputs = [word for option in ("--dxf", "--hpgl", "--svg") for word in (option, "/dev/null")]
        self.assertEqual(self.run_within(1300 * MEBIBYTE, "--new", "Segmented Bend", *LARGEST, *outputs), (DONE, ""))


if __name__ == "__main__":
    unittest.main()
