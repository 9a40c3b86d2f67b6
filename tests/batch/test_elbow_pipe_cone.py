"""Elbows of a cone and a pipe of korvet-batch against a second computation of them."""

import unittest
from functools import partial

import elbow_pipe_cone_oracle
import fitting_cases
from elbow_pipe_cone_oracle import ANY_ANGLE, BOX_COUNT, CONE, CONE_TO_PIPE, PIPE, PIPE_TO_CONE, SQUARE
from fitting_cases import inside, pipe_settings, rng_of, sound_sizes, spoilt_case, thick_settings
from fitting_maths import SEAM_LAP, Settings
from oracle_test import OracleTest
from window_checks import NO_PATTERN, PRODUCT, USER_ERROR

CATEGORIES = (CONE_TO_PIPE, PIPE_TO_CONE)
TYPES = (SQUARE, ANY_ANGLE)
PLAIN = ({0: "200", 1: "110", 2: "230", 3: "250"}, {4: "210", 5: "125", 6: "240", 7: "260", 8: "118"})


class Case(fitting_cases.Case):
    answer = elbow_pipe_cone_oracle.compute


def sizes(dtype, rng):
    wide = 10 ** rng.uniform(0.7, 3.3)
    narrow = wide * rng.uniform(0.15, 0.95)
    lengths = [wide * rng.uniform(0.55, 3) for _ in "12"]
    angle = rng.choice([90.0, inside(rng, 90, 175, 0.03)])
    return dict(enumerate([wide, narrow, *lengths] + ([angle] if dtype else []), 4 if dtype else 0))


def sound_case(category, dtype, rng, settings=pipe_settings):
    return sound_sizes(partial(Case, category, dtype), partial(sizes, dtype), settings, rng, [CONE, PIPE])


def plain_case(category, dtype, settings=Settings(segs=8), select=CONE, view="pattern", **changed):
    return Case(category, dtype, tuple(PLAIN[dtype].items()), settings, (), select, view).with_boxes(**changed)


class PipeConeElbowTest(OracleTest):
    def test_sound_elbows(self):
        cases = [sound_case(category, dtype, rng_of(f"{category} {dtype} {k}"))
                 for category in CATEGORIES for dtype in TYPES for k in range(40)]
        self.check_variety(cases, lambda s: s.JoinType and s.LapSize0 > 0, lambda s: s.JoinType and s.LapSize2 > 0,
                           lambda s: s.TemplateType and s.Thickness)

    def test_plain_sizes(self):
        cases = [plain_case(category, dtype, Settings(segs=segs, Thickness=3, InOutMean=place, HalfPattern=half,
                                                      JoinType=join, LapSize0=4, LapSize1=10, LapSize2=6,
                                                      TemplateType=template, JoinAngle=seam), select)
                 for category in CATEGORIES for dtype in TYPES for select in (CONE, PIPE)
                 for segs, place, half, join, template, seam in
                 ((12, 0, False, 0, 0, 0), (24, 1, True, 0, 1, 0), (13, 2, False, 1, 1, 90), (3, 1, True, 1, 1, 15),
                  (24, 0, False, 1, 0, -30), (1, 0, False, 1, 0, 0))]
        self.assertFalse(any(case.answer().refused for case in cases))
        self.check(cases)

    def test_angles(self):
        """Those from which on the pipe stands within the opening of the cone, too."""
        cases = [plain_case(category, ANY_ANGLE, select=select, box8=angle) for category in CATEGORIES
                 for select in (CONE, PIPE)
                 for angle in ("90", "90.001", "120", "150", "163", "165", "167", "168", "170", "175", "179", "179.99")]
        self.assertFalse(any(case.answer().refused for case in cases))
        self.check(cases)

    def test_short_parts(self):
        """The checks let lengths through that leave nothing of a part on the inside of the elbow, and a cone that is
        nearly a pipe."""
        self.check_impossible([
            plain_case(PIPE_TO_CONE, SQUARE, box0="400", box1="250", box2="250", box3="130"),
            plain_case(PIPE_TO_CONE, ANY_ANGLE, box4="400", box5="250", box6="250", box7="130", box8="90"),
            plain_case(PIPE_TO_CONE, ANY_ANGLE, box4="250", box5="120", box6="50"),
            plain_case(PIPE_TO_CONE, ANY_ANGLE, box7="1"), plain_case(PIPE_TO_CONE, ANY_ANGLE, box6="75"),
            plain_case(CONE_TO_PIPE, SQUARE, box1="199.9999999", select=PIPE)])

    def test_choice_of_pattern(self):
        cases = [plain_case(category, dtype, select=None, view=view) for category in CATEGORIES for dtype in TYPES
                 for view in ("pattern", "model")]
        self.assertEqual([case.answer().messages for case in cases[:2]], [[(USER_ERROR, NO_PATTERN, None)], []])
        self.check(cases)

    def test_seam_laps(self):
        """On both cones the tab lies outside; one that comes round to the start is warned of."""
        cases = [plain_case(category, SQUARE, Settings(segs=segs, JoinType=1, LapSize1=lap), select)
                 for category in CATEGORIES for segs in (5, 12) for select in (CONE, PIPE) for lap in (12, 900)]
        cases += [plain_case(CONE_TO_PIPE, SQUARE, Settings(segs=12, JoinType=1, LapSize1=60, JoinAngle=-180), CONE,
                             box0="600", box1="60", box2="40", box3="300")]
        self.assertEqual(cases[-1].answer().messages, [(PRODUCT, SEAM_LAP, None)])
        self.check(cases)

    def test_limits(self):
        cases = [sound_case(category, dtype, rng_of(f"{category} at {dtype}"), thick_settings)
                 for category in CATEGORIES for dtype in TYPES]
        self.check_limits(cases)

    def test_order_of_checks(self):
        self.check_order([sound_case(category, dtype, rng_of(f"{category} order {dtype}"), thick_settings)
                          for category in CATEGORIES for dtype in TYPES])

    def test_thick_material(self):
        cases = [plain_case(category, dtype, Settings(segs=6, Thickness=10, InOutMean=place), **{f"box{box}": size})
                 for category in CATEGORIES for place in range(3) for dtype, box in ((0, 0), (0, 1), (1, 4), (1, 5))
                 for size in ("1e-9", "9.999", "10", "19.999", "20", "20.001")]
        self.assertGreater(sum(case.answer().refused for case in cases), 20)
        self.check(cases)

    def test_spoilt_elbows(self):
        cases = []
        for category in CATEGORIES:
            for dtype in TYPES:
                rng = rng_of(f"{category} spoilt {dtype}")
                cases += [spoilt_case(sound_case(category, dtype, rng), rng, BOX_COUNT) for _ in range(20)]
        self.assertGreater(sum(case.answer().refused for case in cases), 45)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
