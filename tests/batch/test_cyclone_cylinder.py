"""Cyclones on a cylinder of korvet-batch against a second computation of them."""

import math
import unittest

import cyclone_cylinder_oracle
import fitting_cases
from branch_oracle import BRANCH, JOIN_LINES, MEAN_TO_MEAN, SET_IN, SET_ON, TOO_LARGE, TRUNK
from cyclone_cylinder_oracle import BOX_COUNT, CATEGORY, PAGES
from fitting_cases import pipe_settings, rng_of, sound, spoilt_case, thick_settings, typed
from fitting_maths import Settings
from oracle_test import OracleTest
from window_checks import IMPOSSIBLE, NO_HALF, NO_PATTERN, PRODUCT, USER_ERROR

TYPES = range(2)
JOINS = (SET_IN, SET_ON, MEAN_TO_MEAN)


class Case(fitting_cases.Case):
    answer = cyclone_cylinder_oracle.compute


def boxes_of(dtype, *values):
    return {box: value for box, value in zip(PAGES[dtype][:5] + PAGES[dtype][6:], values) if box is not None}


def sizes(dtype, rng):
    main = 10 ** rng.uniform(0.9, 3.3)
    branch = main * rng.choice([rng.uniform(0.1, 0.8), rng.uniform(0.8, 1.02), 1.0])
    angle = rng.choice([90.0, rng.uniform(35, 89), rng.uniform(35, 89)])
    tilt = math.radians(angle if dtype else 90)
    length = main * rng.uniform(0.55, 3)
    lower = (branch / 2 / math.sin(tilt) + main / 2 / math.tan(tilt)) * rng.uniform(1.03, 2)
    return boxes_of(dtype, branch, main, length, lower, lower + main * rng.uniform(1, 2), angle)


def sound_case(dtype, rng, settings=pipe_settings, joins=JOINS):
    def make(rng):
        boxes = sizes(dtype, rng)
        options = (("optInOrOn", rng.choice(joins)), ("chkHeelCompensation", rng.random() < 0.5))
        return Case(CATEGORY, dtype, typed(rng, boxes), settings(rng, boxes[PAGES[dtype][1]]), options,
                    select=rng.choice([TRUNK, BRANCH]))

    return sound(make, rng)


def plain_case(dtype, settings=Settings(segs=8), join=MEAN_TO_MEAN, heel=False, select=BRANCH, view="pattern",
               branch="60", main="100", length="150", to_intersection="160", main_length="330", angle="55"):
    boxes = boxes_of(dtype, branch, main, length, to_intersection, main_length, angle)
    return Case(CATEGORY, dtype, tuple(boxes.items()), settings,
                (("optInOrOn", join), ("chkHeelCompensation", heel)), select, view)


class CycloneCylinderTest(OracleTest):
    def test_sound_cyclones(self):
        cases = [sound_case(dtype, rng_of(f"cyclone {dtype} {k}")) for dtype in TYPES for k in range(60)]
        for join in JOINS:
            self.assertGreater(sum(JOIN_LINES[join] in case.answer().labels for case in cases), 10)
        self.assertGreater(sum(case.answer().messages == [(USER_ERROR, NO_HALF, None)] for case in cases), 3)
        self.check_variety(cases, lambda s: s.TemplateType and s.ThicknessA, lambda s: s.ThicknessA > s.ThicknessB > 0)

    def test_plain_sizes(self):
        settings = [Settings(segs=segs, ThicknessA=2, ThicknessB=5, InOutMean=place, HalfPattern=half, JoinType=lap,
                             LapSize0=4, LapSize1=12, LapSize2=6, TemplateType=template)
                    for segs, place, half, lap, template in
                    ((12, 0, False, 0, 0), (24, 1, True, 0, 1), (13, 2, False, 1, 1), (2, 0, True, 0, 0))]
        self.check([plain_case(dtype, one, join, select=select) for dtype in TYPES for one in settings for join in JOINS
                    for select in (TRUNK, BRANCH)])

    def test_sizes_of_the_branch(self):
        """One size after the other that fits, and what is said of those that do not: for some nothing."""
        cases = [plain_case(dtype, Settings(segs=6, ThicknessA=thick_a, ThicknessB=thick_b), join, branch=branch,
                            select=select)
                 for dtype in TYPES for select in (TRUNK, BRANCH) for join in JOINS
                 for thick_a, thick_b in ((0, 0), (4, 6), (6, 4))
                 for branch in ("94", "96", "98", "100", "100.01", "102", "104", "106", "106.01", "110")]
        said = {message for case in cases for message in case.answer().messages}
        self.assertEqual(said, {(USER_ERROR, "", None), (USER_ERROR, TOO_LARGE, None)})
        self.check(cases)

    def test_a_hair_beside_the_limit(self):
        """Rounding leaves no gap between a wide set-in branch and its trunk, whatever the thickness."""
        cases = [plain_case(0, Settings(segs=4, ThicknessA=0.2 + k * 0.07, ThicknessB=3), SET_IN, select=BRANCH,
                            branch="%.4f" % (103 - (0.2 + k * 0.07))) for k in range(60)]
        self.check(cases)

    def test_half_patterns(self):
        """There is one only of a branch as wide as the main pipe."""
        cases = [plain_case(dtype, Settings(segs=segs, HalfPattern=True), join, select=select, branch=branch)
                 for dtype in TYPES for segs in (4, 7) for join in JOINS for select in (TRUNK, BRANCH)
                 for branch in ("100", "80")]
        without = [case for case in cases if not case.answer().messages]
        self.assertEqual({case.value(PAGES[case.dtype][0]) for case in without}, {100.0})
        self.check(cases)

    def test_heel(self):
        cases = [plain_case(1, Settings(segs=6, ThicknessA=thick, ThicknessB=3, InOutMean=place), join, heel, select,
                            angle=angle)
                 for join, heel in ((SET_ON, False), (SET_ON, True), (SET_IN, True), (MEAN_TO_MEAN, True))
                 for select in (TRUNK, BRANCH) for place, thick in ((0, 0), (1, 2.5)) for angle in ("55", "90")]
        self.check(cases)

    def test_choice_of_pattern(self):
        cases = [plain_case(dtype, select=None, view=view) for dtype in TYPES for view in ("pattern", "model")]
        self.assertEqual([case.answer().messages for case in cases[:2]], [[(USER_ERROR, NO_PATTERN, None)], []])
        self.check(cases)

    def test_short_branches(self):
        """At 30 degrees a branch that is long enough for the checks ends inside the main pipe."""
        cases = [plain_case(1, Settings(segs=12), angle="30", length=length, select=select)
                 for length in ("60", "140", "160") for select in (TRUNK, BRANCH)]
        fates = [case.answer().messages for case in cases[::2]]
        self.assertEqual(fates, [[(PRODUCT, IMPOSSIBLE, None)], [(PRODUCT, IMPOSSIBLE, None)], []])
        self.check(cases)

    def test_thick_material(self):
        cases = [plain_case(dtype, Settings(segs=6, ThicknessA=4, ThicknessB=6, InOutMean=place), join, select=select,
                            branch=branch, main=main)
                 for dtype in TYPES for join in JOINS for select in (TRUNK, BRANCH) for place, branch, main in
                 ((2, "4", "100"), (2, "7.9", "100"), (2, "8", "100"), (0, "4", "100"), (0, "3.9", "100"),
                  (1, "1", "100"), (2, "9", "11.9"), (2, "9", "12"), (0, "4", "5.9"))]
        self.assertGreater(sum(case.answer().refused for case in cases), 20)
        self.check(cases)

    def test_limits(self):
        self.check_limits([sound_case(dtype, rng_of(f"cyclone at {dtype} {join}"), thick_settings, (join,))
                           for dtype in TYPES for join in JOINS])

    def test_order_of_checks(self):
        self.check_order([sound_case(dtype, rng_of(f"cyclone order {dtype}"), thick_settings) for dtype in TYPES])

    def test_spoilt_cyclones(self):
        cases = []
        for dtype in TYPES:
            rng = rng_of(f"cyclone spoilt {dtype}")
            cases += [spoilt_case(sound_case(dtype, rng), rng, BOX_COUNT) for _ in range(30)]
        self.assertGreater(sum(case.answer().refused for case in cases), 40)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
