"""Breeches of korvet-batch against a second computation of them."""

import unittest
from functools import partial

import breech_oracle
import fitting_cases
from breech_oracle import BOX_COUNT, CATEGORY, FIRST_BOX, IN_A_COLUMN, IN_A_ROW
from fitting_cases import pipe_settings, rng_of, sound_sizes, spoilt_case, thick_settings
from fitting_maths import Settings
from oracle_test import OracleTest
from window_checks import NO_PATTERN, USER_ERROR

TYPES = range(3)
PLAIN_ANGLES = (("130", "105"), ("80", "95", "110.5"), ("60", "85", "70", "90"))


class Case(fitting_cases.Case):
    answer = breech_oracle.compute


def boxes_of(dtype, diameter, length, angles):
    return dict(enumerate([diameter, length, *angles], FIRST_BOX[dtype]))


def sizes(dtype, rng):
    diameter = 10 ** rng.uniform(0.7, 3.3)
    shares = [rng.uniform(0.4, 2) for _ in range(dtype + 3)]
    if rng.random() < 0.2:
        shares[0] *= 4  # all on one side of the first pipe, or of the last angle
    angles = [share * 360 / sum(shares) for share in shares]
    rng.shuffle(angles)
    return boxes_of(dtype, diameter, diameter * rng.uniform(0.8, 5), angles[:-1])


def sound_case(dtype, rng, settings=pipe_settings):
    return sound_sizes(partial(Case, CATEGORY, dtype), partial(sizes, dtype), settings, rng, [IN_A_ROW, IN_A_COLUMN])


def plain_case(dtype, settings=Settings(segs=6), select=IN_A_ROW, view="pattern", diameter="100", length="150",
               angles=None):
    boxes = boxes_of(dtype, diameter, length, angles or PLAIN_ANGLES[dtype])
    return Case(CATEGORY, dtype, tuple(boxes.items()), settings, (), select, view)


class BreechTest(OracleTest):
    def test_sound_breeches(self):
        cases = [sound_case(dtype, rng_of(f"breech {dtype} {k}")) for dtype in TYPES for k in range(50)]
        for select in (IN_A_ROW, IN_A_COLUMN):
            self.assertGreater(sum(case.select == select for case in cases), 30)
        self.check_variety(cases, lambda s: s.HalfPattern and s.JoinType and s.LapSize1 > 0,
                           lambda s: s.KerfSpacing > 0, lambda s: s.TemplateType and s.Thickness)

    def test_plain_sizes(self):
        self.check([plain_case(dtype, Settings(segs=segs, Thickness=3, InOutMean=place, HalfPattern=half, JoinType=join,
                                               LapSize0=-5, LapSize1=10, LapSize2=4, KerfSpacing=25,
                                               TemplateType=template), select)
                    for dtype in TYPES for select in (IN_A_ROW, IN_A_COLUMN)
                    for segs, place, half, join, template in
                    ((12, 0, False, 0, 0), (24, 1, True, 0, 1), (13, 2, False, 1, 1), (7, 0, True, 1, 0),
                     (3, 0, True, 0, 0), (1, 0, False, 1, 0), (2, 0, True, 1, 1))])

    def test_choice_of_layout(self):
        """Without one a pattern can't be shown; behind the model all patterns then lie on each other."""
        cases = [plain_case(dtype, select=None, view=view) for dtype in TYPES for view in ("pattern", "model")]
        self.assertEqual(cases[0].answer().messages, [(USER_ERROR, NO_PATTERN, None)])
        self.assertEqual({flat.List2[0] for flat in cases[1].answer().pattern}, {(0.0, 0.0, 0.0, 1)})
        self.check(cases)

    def test_wide_angles(self):
        """More than half a turn between two pipes: their cuts lean outward."""
        cases = [plain_case(0, Settings(segs=8, HalfPattern=half), length=length, angles=angles)
                 for half in (False, True) for length, angles in
                 (("150", ("200", "80")), ("150", ("50", "60")), ("500", ("20", "320")), ("50", ("180", "90")),
                  ("28.868", ("120", "120")), ("300", ("300", "30")))]
        self.assertFalse(any(case.answer().refused for case in cases))
        self.check(cases)

    def test_limits(self):
        self.check_limits([sound_case(dtype, rng_of(f"breech at {dtype}"), thick_settings) for dtype in TYPES])

    def test_order_of_checks(self):
        self.check_order([sound_case(dtype, rng_of(f"breech order {dtype}"), thick_settings) for dtype in TYPES])

    def test_thick_material(self):
        self.check([plain_case(dtype, Settings(segs=4, Thickness=10, InOutMean=place), diameter=size)
                    for dtype in TYPES for place in range(3)
                    for size in ("1e-9", "9.999", "10", "19.999", "20", "20.001")])

    def test_sizes_without_a_shape(self):
        self.check_impossible([plain_case(0, diameter="0"), plain_case(0, length="1.1e9"),
                               plain_case(1, diameter="1.5e9", length="1.6e9"),
                               plain_case(0, diameter="0", select=None),
                               plain_case(2, Settings(segs=4, KerfSpacing=1e9))])

    def test_next_to_no_angle(self):
        """The last one, which has no box, may ask for any length, or be nothing at all."""
        self.check([plain_case(0, angles=("180", text)) for text in ("179.999", "179.9999999999", "179.9999999999999")])

    def test_spoilt_breeches(self):
        cases = []
        for dtype in TYPES:
            rng = rng_of(f"breech spoilt {dtype}")
            cases += [spoilt_case(sound_case(dtype, rng), rng, BOX_COUNT) for _ in range(40)]
        self.assertGreater(sum(case.answer().refused for case in cases), 60)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
