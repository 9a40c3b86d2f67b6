"""Every file is the old or the new one, whichever call to the system fails, and wherever the program is ended.

With the argument --all every fault is tried, else the first ones: those of the cheapest runs.
"""

import itertools
import sys
import unittest

import fault_runs

FEW = 500


class FaultsTest(unittest.TestCase):
    how_many = FEW

    def test_faults(self):
        count, complaints = fault_runs.check(itertools.islice(fault_runs.faults(), self.how_many))
        self.assertGreaterEqual(count, FEW)
        self.assertEqual(complaints, [])

    def test_a_saved_file_survives_a_power_cut(self):
        """The file is flushed before it takes its place, and the folder behind that."""
        task = next(task for task in fault_runs.tasks() if task.name == "save, old")
        calls = fault_runs.Outcome(task).calls
        at = calls.index("rename")
        self.assertIn("fsync", calls[:at])
        self.assertIn("fsync", calls[at:])
        self.assertLess(calls.index("write"), calls.index("fsync"))


if __name__ == "__main__":
    if "--all" in sys.argv:
        sys.argv.remove("--all")
        FaultsTest.how_many = None
    unittest.main()
