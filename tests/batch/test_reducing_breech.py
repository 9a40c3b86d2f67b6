"""Reducing breeches of korvet-batch against a second computation of them."""

import math
import unittest
from functools import partial

import fitting_cases
import reducing_breech_oracle
from cone_surfaces import TOP_LAP
from fitting_cases import inside, piece_settings, pipe_settings, rng_of, sound_sizes, spoilt_case, thick_settings
from fitting_maths import SEAM_LAP, Settings
from oracle_test import OracleTest
from reducing_breech_oracle import BOX_COUNT, CATEGORY, LEFT, RIGHT, TRUNK
from window_checks import IMPOSSIBLE, NO_PATTERN, PRODUCT, THICKNESS_ROOM, USER_ERROR

TYPES = range(3)
PATTERNS = (TRUNK, LEFT, RIGHT)
FIRST_BOX = (0, 5, 11)
PLAIN = (("100", "60", "110", "160", "80"), ("100", "65.5", "110", "150", "20", "60"),
         ("100", "50", "70.5", "110", "170", "35", "55"))


class Case(fitting_cases.Case):
    answer = reducing_breech_oracle.compute


def sizes(dtype, rng):
    pipe = 10 ** rng.uniform(0.7, 3.3)
    cones = [pipe * rng.uniform(0.15, 0.97) for _ in range(2 if dtype == 2 else 1)]
    angles = [inside(rng, 0, 180)] if dtype == 0 else [rng.choice([inside(rng, 0, 90), inside(rng, 0, 90), 90.0])
                                                       for _ in "12"]
    if dtype == 1 and rng.random() < 0.2:
        angles[rng.randrange(2)] = 0.0
    half = math.radians(sum(angles)) / 2
    branch = pipe * rng.uniform(0.6, 3) + 0.7 * max(cones) / math.tan(half)
    return dict(enumerate([pipe, *cones, pipe * rng.uniform(0.2, 3), branch, *angles], FIRST_BOX[dtype]))


def sound_case(dtype, rng, settings=pipe_settings):
    return sound_sizes(partial(Case, CATEGORY, dtype), partial(sizes, dtype), settings, rng, PATTERNS)


def plain_case(dtype, settings=Settings(segs=6), select=LEFT, view="pattern", **boxes):
    texts = tuple(enumerate(PLAIN[dtype], FIRST_BOX[dtype]))
    return Case(CATEGORY, dtype, texts, settings, (), select, view).with_boxes(**boxes)


class ReducingBreechTest(OracleTest):
    def test_sound_breeches(self):
        cases = [sound_case(dtype, rng_of(f"reducing breech {dtype} {k}")) for dtype in TYPES for k in range(50)]
        for select in PATTERNS:
            self.assertGreater(sum(case.select == select for case in cases), 30)
        self.check_variety(cases, lambda s: s.HalfPattern and s.JoinType and s.LapSize1 > 0)

    def test_plain_sizes(self):
        cases = [plain_case(dtype, settings, select) for dtype in TYPES for select in PATTERNS
                 for settings in piece_settings()]
        self.assertFalse(any(case.answer().refused for case in cases))
        self.check(cases)

    def test_level_and_upright_branches(self):
        cases = [plain_case(1, Settings(segs=8), select, box8="400", box9=one, box10=other) for select in PATTERNS
                 for one, other in (("90", "90"), ("0", "90"), ("90", "0"), ("0", "30"), ("45", "45"), ("30", "0"))]
        cases += [plain_case(0, Settings(segs=8), select, box4="180") for select in PATTERNS]
        cases += [plain_case(2, Settings(segs=8), select, box16="90", box17="90") for select in PATTERNS]
        self.assertFalse(any(case.answer().refused for case in cases))
        self.check(cases)

    def test_choice_of_pattern(self):
        cases = [plain_case(dtype, select=None, view=view) for dtype in TYPES for view in ("pattern", "model")]
        self.assertEqual(cases[0].answer().messages, [(USER_ERROR, NO_PATTERN, None)])
        self.assertEqual(cases[1].answer().pattern, [])
        self.check(cases)

    def test_laps_that_do_not_fit(self):
        """The cone that is developed says so, the top before the seam; a trunk has no such limit."""
        settings = Settings(segs=12, JoinType=1, LapSize0=5000, LapSize1=20)
        cases = [plain_case(2, settings, select) for select in PATTERNS]
        self.assertEqual([[text for _, text, _ in case.answer().messages] for case in cases],
                         [[], [TOP_LAP, SEAM_LAP], [TOP_LAP, SEAM_LAP]])
        self.check(cases)

    def test_limits(self):
        self.check_limits([sound_case(dtype, rng_of(f"reducing breech at {dtype}"), thick_settings)
                           for dtype in TYPES])

    def test_order_of_checks(self):
        self.check_order([sound_case(dtype, rng_of(f"reducing breech order {dtype}"), thick_settings)
                          for dtype in TYPES])

    def test_thick_material(self):
        cases = [plain_case(dtype, Settings(segs=6, Thickness=10, InOutMean=place), **{f"box{box}": size})
                 for place in range(3) for size in ("1e-9", "9.999", "10", "19.999", "20", "20.001")
                 for dtype, box in ((0, 0), (0, 1), (1, 5), (1, 6), (2, 11), (2, 12), (2, 13))]
        said = [message for case in cases for message in case.answer().messages]
        for box in (0, 1, 5, 6, 11, 12, 13):
            self.assertGreater(said.count((USER_ERROR, THICKNESS_ROOM, box)), 3)
        self.check(cases)

    def test_lengths_that_the_cuts_need(self):
        """Too short by a hair, and just long enough, whichever pattern is chosen."""
        cases = []
        for dtype, box in ((0, 2), (1, 7), (2, 14), (0, 3), (1, 8), (2, 15)):
            case = plain_case(dtype)
            low, high = 1.0, case.value(box)
            while high - low > 1e-9:  # the length at which the window begins to take it
                middle = (low + high) / 2
                if case.with_box(box, repr(middle)).answer().refused:
                    low = middle
                else:
                    high = middle
            for select in PATTERNS:
                for length in (high * (1 - 1e-7), high * (1 + 1e-7)):
                    cases.append(plain_case(dtype, select=select, **{f"box{box}": repr(length)}))
            short = cases[-2].answer()
            self.assertTrue(short.refused)
            if box in (2, 7, 14):
                self.assertEqual(short.messages, [(PRODUCT, IMPOSSIBLE, None)])
        self.assertEqual(sum(case.answer().refused for case in cases), len(cases) // 2)
        self.check(cases)

    def test_sizes_without_a_shape(self):
        cases = [plain_case(1, box9="0", box10="0"),  # one branch inside the other
                 plain_case(1, box8="30", box9="90", box10="90"), plain_case(2, box15="40", box16="90", box17="80"),
                 plain_case(0, box1="99.9999999"), plain_case(2, box13="99.99999999", box15="400"),
                 plain_case(0, box2="5"), plain_case(0, box3="1.1e9"), plain_case(1, box7="2e9")]
        self.check_impossible(cases)

    def test_spoilt_breeches(self):
        cases = []
        for dtype in TYPES:
            rng = rng_of(f"reducing breech spoilt {dtype}")
            cases += [spoilt_case(sound_case(dtype, rng), rng, BOX_COUNT) for _ in range(40)]
        self.assertGreater(sum(case.answer().refused for case in cases), 60)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
