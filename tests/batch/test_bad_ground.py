"""What the system gives a run, or does not: closed streams, small files, names that can't be followed."""

import os
import resource
import subprocess
import unittest

from batch_program import DONE, PROGRAM, REFUSED, FolderTest, cone_file, environment_of, read_json

FAR = "1e20"


class BadGroundTest(FolderTest):
    def setUp(self):
        super().setUp()
        self.write("a.Kvt", cone_file())

    def run_on(self, *words, prepare=None, **streams):
        streams.setdefault("stdout", subprocess.PIPE)
        streams.setdefault("stderr", subprocess.PIPE)
        return subprocess.run([PROGRAM, *words], cwd=self.folder, stdin=subprocess.DEVNULL, check=False, timeout=60,
                              env=environment_of(), preexec_fn=prepare, **streams)

    def far_file(self, coordinate):
        """One whose pattern is moved from a point that far out; the coordinates of a point are 0 to 2."""
        lines = cone_file().split("\n")
        lines[[line.strip() for line in lines].index("Start Move") + 1 + coordinate] = FAR
        return "\n".join(lines)

    def test_messages_never_get_into_a_file_where_their_stream_is_closed(self):
        self.write("bad.Kvt", "no such thing\r\n")
        run = self.run_on("a.Kvt", "bad.Kvt", "a.Kvt", "--json", "out.json", prepare=lambda: os.close(2), stderr=None)
        self.assertEqual(run.returncode, REFUSED)
        self.assertEqual([entry["refused"] for entry in read_json((self.folder / "out.json").read_text())],
                         [False, True, False])

    def test_a_report_to_a_closed_stream_fails_and_spoils_no_file(self):
        run = self.run_on("a.Kvt", "--json", "-", "--dxf", "a.dxf", prepare=lambda: os.close(1), stdout=None)
        self.assertEqual(run.returncode, REFUSED)
        self.assertIn(b"standard output", run.stderr)
        self.assertTrue((self.folder / "a.dxf").read_text().startswith("0\n"))

    def test_a_file_larger_than_the_system_allows_ends_one_input(self):
        run = self.run_on("a.Kvt", "--set", "segs=1000", "--dxf", "a.dxf",
                          prepare=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (1024, 1024)))
        self.assertEqual(run.returncode, REFUSED)
        self.assertIn(b"a.dxf cannot be written", run.stderr)
        self.assertEqual(self.names(), ["a.Kvt"])

    def test_a_pattern_that_is_moved_beyond_reach_is_refused(self):
        for coordinate in range(3):
            self.write("far.Kvt", self.far_file(coordinate))
            run = self.run_on("far.Kvt", "--view", "pattern", "--pdf", "far.pdf", "--check", "--json", "-")
            self.assertEqual(run.returncode, REFUSED)
            self.assertIn(b"the point lies beyond 1000000000", run.stderr)
            self.assertTrue(read_json(run.stdout.decode())["refused"])

    def test_a_name_in_the_way_of_a_report_keeps_what_it_holds(self):
        precious = self.folder / "precious"
        precious.write_text("kept")
        os.link(precious, self.folder / "out.json.part")
        run = self.run_on("a.Kvt", "--json", "out.json")
        self.assertEqual(run.returncode, REFUSED)
        self.assertIn(b"out.json.part is in its way", run.stderr)
        self.assertEqual(precious.read_text(), "kept")

    def test_one_file_under_two_names_may_be_read_twice(self):
        (self.folder / "link.Kvt").symlink_to("a.Kvt")
        run = self.run_on("a.Kvt", "./a.Kvt", "link.Kvt", "--json", "-")
        self.assertEqual((run.returncode, len(read_json(run.stdout.decode()))), (DONE, 3))

    def test_names_that_lead_nowhere_stop_nothing_else(self):
        for name in ("one.Kvt", "two.Kvt"):
            (self.folder / name).symlink_to(name)
        run = self.run_on("one.Kvt", "two.Kvt", "a.Kvt", "--json", "-")
        self.assertEqual(run.returncode, REFUSED)
        self.assertEqual([entry["refused"] for entry in read_json(run.stdout.decode())], [True, True, False])

    def test_a_list_that_is_a_torn_quote_is_refused(self):
        self.write("list.csv", '"')
        run = self.run_on("--fittings", "list.csv", "--sample", "--json", "-")
        self.assertEqual(run.returncode, REFUSED)


if __name__ == "__main__":
    unittest.main()
