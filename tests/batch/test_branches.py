"""Branches of korvet-batch against a second computation of them."""

import math
import unittest
from dataclasses import replace

import branch_oracle
import fitting_cases
from branch_oracle import BOX_COUNT, BRANCH, CATEGORY, MEAN_TO_MEAN, PAGES, SET_IN, SET_ON, TOO_LARGE, TRUNK
from fitting_cases import pipe_settings, rng_of, sound, spoilt_case, thick_settings, typed
from fitting_maths import Settings
from oracle_test import OracleTest
from window_checks import NO_HALF, NO_PATTERN, USER_ERROR

TYPES = range(2)
JOINS = (SET_IN, SET_ON, MEAN_TO_MEAN)


class Case(fitting_cases.Case):
    answer = branch_oracle.compute


def boxes_of(dtype, branch, main, length, to_intersection, main_length, offset, angle):
    values = (branch, main, length, to_intersection, main_length, offset, angle)
    return {box: value for box, value in zip(PAGES[dtype], values) if box is not None}


def sizes(dtype, rng):
    main = 10 ** rng.uniform(0.9, 3.3)
    branch = main * rng.choice([rng.uniform(0.1, 0.9), rng.uniform(0.9, 1.05), 1.0])
    offset = rng.choice([0, 0, rng.uniform(-0.95, 0.95) * (main - branch) / 2])
    angle = rng.choice([90.0, rng.uniform(20, 89), rng.uniform(20, 89)])
    tilt = math.radians(angle if dtype else 90)
    length = main * rng.uniform(0.55, 3)
    lower = (branch / 2 / math.sin(tilt) + main / 2 / math.tan(tilt)) * rng.uniform(1.03, 2)
    return boxes_of(dtype, branch, main, length, lower, lower + main * rng.uniform(1, 2), offset, angle)


def sound_case(dtype, rng, settings=pipe_settings, joins=JOINS):
    def make(rng):
        boxes = sizes(dtype, rng)
        options = (("optInOrOn", rng.choice(joins)), ("chkHeelCompensation", rng.random() < 0.5))
        return Case(CATEGORY, dtype, typed(rng, boxes), settings(rng, boxes[PAGES[dtype][1]]), options,
                    select=rng.choice([TRUNK, BRANCH]))

    return sound(make, rng)


def off_axis_case(dtype, rng):
    """One with which every check can be made to refuse: the offset is asked for room only when there is one."""
    def make(rng):
        case = sound_case(dtype, rng, thick_settings)
        return case if case.value(PAGES[dtype][5]) > 0 else replace(case, boxes=())

    while not (case := make(rng)).boxes:
        pass
    return case


def plain_case(dtype, settings=Settings(), join=MEAN_TO_MEAN, heel=False, select=BRANCH, view="pattern", branch="60",
               main="100", length="150", to_intersection="160", main_length="330", offset="0", angle="55"):
    boxes = boxes_of(dtype, branch, main, length, to_intersection, main_length, offset, angle)
    return Case(CATEGORY, dtype, tuple(boxes.items()), settings,
                (("optInOrOn", join), ("chkHeelCompensation", heel)), select, view)


class BranchTest(OracleTest):
    def test_sound_branches(self):
        cases = [sound_case(dtype, rng_of(f"branch {dtype} {k}")) for dtype in TYPES for k in range(60)]
        for join in JOINS:
            self.assertGreater(sum(dict(case.options)["optInOrOn"] == join for case in cases), 10)
        self.assertGreater(sum(case.answer().messages == [(USER_ERROR, NO_HALF, None)] for case in cases), 3)
        self.check_variety(cases, lambda s: s.TemplateType and s.ThicknessA, lambda s: s.ThicknessA > s.ThicknessB > 0)

    def test_plain_sizes(self):
        settings = [Settings(segs=segs, ThicknessA=2, ThicknessB=5, InOutMean=place, HalfPattern=half, JoinType=lap,
                             LapSize0=4, LapSize1=12, LapSize2=6, TemplateType=template)
                    for segs, place, half, lap, template in
                    ((12, 0, False, 0, 0), (24, 1, True, 0, 1), (13, 2, False, 1, 1), (7, 0, True, 1, 0),
                     (2, 0, True, 0, 0))]
        self.check([plain_case(dtype, one, join, select=select) for dtype in TYPES for one in settings for join in JOINS
                    for select in (TRUNK, BRANCH)])

    def test_offsets_and_half_patterns(self):
        cases = [plain_case(dtype, Settings(segs=8, HalfPattern=half), select=select, offset=offset)
                 for dtype in TYPES for half in (False, True) for select in (TRUNK, BRANCH)
                 for offset in ("0", "15", "-15", "20", "-20", "20.001", "-20.001", "1e-9")]
        self.check(cases)

    def test_as_wide_as_the_trunk(self):
        """A branch that just reaches the sides of the trunk, in axis with it or not."""
        cases = [plain_case(dtype, Settings(segs=segs, HalfPattern=half), select=select, branch=branch, offset=offset)
                 for dtype in TYPES for segs in (2, 7, 12, 25) for half in (False, True) for select in (TRUNK, BRANCH)
                 for branch, offset in (("100", "0"), ("70", "15"), ("33.3", "-33.35"), ("99.99", "0"))]
        self.check(cases)

    def test_set_in(self):
        """The size of the branch decides which trunk radius it is cut by: r against R - tB / 2 and R."""
        cases = [plain_case(dtype, Settings(segs=6, ThicknessA=thick_a, ThicknessB=thick_b), SET_IN, branch=branch,
                            select=select)
                 for dtype in TYPES for select in (TRUNK, BRANCH) for thick_a, thick_b in ((0, 6), (4, 6), (6, 4))
                 for branch in ("60", "93.99", "94", "94.01", "98", "100", "100.01", "102.01")]
        fates = [(case.answer().messages or [None])[0] for case in cases]
        self.assertEqual(set(fates), {None, (USER_ERROR, TOO_LARGE, None)})
        self.assertGreater(min(fates.count(None), fates.count((USER_ERROR, TOO_LARGE, None))), 30)
        self.check(cases)

    def test_thick_material(self):
        """Material that leaves nothing of the branch's bore or of the hole is refused in words."""
        cases = [plain_case(dtype, Settings(segs=6, HalfPattern=True, ThicknessA=4, ThicknessB=6, InOutMean=place),
                            join, select=TRUNK, branch=branch, main=main, offset=offset)
                 for dtype in TYPES for join in JOINS for place, branch, main, offset in
                 ((2, "1", "100", "0"), (2, "4", "100", "0"), (2, "4.001", "100", "0"), (0, "3", "100", "0"),
                  (0, "4", "100", "5"), (0, "4.1", "100", "0"), (2, "8", "100", "0"), (2, "8.1", "100", "0"),
                  (2, "1", "5", "0"), (2, "7", "6", "0"), (2, "1", "7", "0"), (1, "1", "100", "0"))]
        self.assertGreater(sum(case.answer().refused for case in cases), 20)
        self.check(cases)

    def test_set_on_with_heel(self):
        cases = [plain_case(1, Settings(segs=6, ThicknessA=thick, ThicknessB=3, InOutMean=place), join, heel, select,
                            angle=angle)
                 for join, heel in ((SET_ON, False), (SET_ON, True), (SET_IN, True), (MEAN_TO_MEAN, True))
                 for select in (TRUNK, BRANCH) for place, thick in ((0, 0), (0, 2.5), (1, 2.5))
                 for angle in ("55", "89.9", "90")]
        cases += [plain_case(0, Settings(segs=6, ThicknessA=2, ThicknessB=3), SET_ON, True, select)
                  for select in (TRUNK, BRANCH)]
        self.check(cases)

    def test_choice_of_pattern(self):
        """A pattern can't be shown without the choice of one; the model can, and then the trunk is meant."""
        cases = [plain_case(dtype, Settings(segs=6, HalfPattern=half), select=None, view=view, offset=offset)
                 for dtype in TYPES for view in ("pattern", "model") for half, offset in ((False, "0"), (True, "5"))]
        told = [case.answer().messages for case in cases[:2]]
        self.assertEqual(told, [[(USER_ERROR, NO_PATTERN, None)],
                                [(USER_ERROR, NO_HALF, None), (USER_ERROR, NO_PATTERN, None)]])
        self.check(cases)

    def test_order_of_messages(self):
        """The half pattern is spoken of before the size of the branch."""
        cases = [plain_case(dtype, Settings(segs=6, HalfPattern=True, ThicknessA=4, ThicknessB=6), SET_IN,
                            select=select, offset="20") for dtype in TYPES for select in (None, TRUNK)]
        self.assertEqual([text for _, text, _ in cases[0].answer().messages], [NO_HALF, TOO_LARGE])
        self.check(cases)

    def test_limits(self):
        self.check_limits([off_axis_case(dtype, rng_of(f"branch at {dtype}")) for dtype in TYPES])

    def test_order_of_checks(self):
        self.check_order([off_axis_case(dtype, rng_of(f"branch order {dtype}")) for dtype in TYPES])

    def test_spoilt_branches(self):
        cases = []
        for dtype in TYPES:
            rng = rng_of(f"branch spoilt {dtype}")
            cases += [spoilt_case(sound_case(dtype, rng), rng, BOX_COUNT) for _ in range(40)]
        self.assertGreater(sum(case.answer().refused for case in cases), 60)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
