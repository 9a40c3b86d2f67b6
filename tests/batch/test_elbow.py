"""Elbows of korvet-batch against a second computation of them."""

import math
import unittest
from functools import partial

import elbow_oracle
import fitting_cases
from elbow_oracle import BOX_COUNT, CATEGORY
from fitting_cases import inside, pipe_settings, rng_of, sound_sizes, spoilt_case, thick_settings
from fitting_maths import Settings
from oracle_test import OracleTest

TYPES = range(3)
PLAIN = ({0: "100", 1: "150", 2: "210.5", 3: "75"}, {4: "100", 5: "50", 6: "180"}, {7: "100", 8: "140", 9: "50"})


class Case(fitting_cases.Case):
    answer = elbow_oracle.compute


def sizes(dtype, rng):
    diameter = 10 ** rng.uniform(0.7, 3.3)
    radius, angle = diameter / 2, rng.choice([90.0, inside(rng, 0, 180, 0.03)])
    if dtype == 2:
        return {7: diameter, 8: radius * rng.uniform(1.1, 5), 9: angle}
    shortest = radius / math.tan(math.radians(angle) / 2) if dtype == 0 else radius
    lengths = [shortest * rng.uniform(1.1, 4) + rng.choice([0, diameter]) for _ in "12"]
    return {0: diameter, 1: lengths[0], 2: lengths[1], 3: angle} if dtype == 0 else \
        {4: diameter, 5: lengths[0], 6: lengths[1]}


def sound_case(dtype, rng, settings=pipe_settings):
    return sound_sizes(partial(Case, CATEGORY, dtype), partial(sizes, dtype), settings, rng)


def plain_case(dtype, settings, **boxes):
    return Case(CATEGORY, dtype, tuple(PLAIN[dtype].items()), settings).with_boxes(**boxes)


class ElbowTest(OracleTest):
    def test_sound_elbows(self):
        cases = [sound_case(dtype, rng_of(f"elbow {dtype} {k}")) for dtype in TYPES for k in range(45)]
        self.check_variety(cases, lambda s: s.HalfPattern and s.JoinType and s.LapSize1 > 0,
                           lambda s: s.TemplateType and s.Thickness, lambda s: s.KerfSpacing > 0)

    def test_plain_sizes(self):
        cases = [plain_case(dtype, Settings(segs=segs, Thickness=3, InOutMean=place, HalfPattern=half, JoinType=join,
                                            LapSize1=10, KerfSpacing=25, TemplateType=template, JoinAngle=seam),
                            **({"box5": "60"} if dtype == 1 else {}))
                 for dtype in TYPES
                 for segs, place, half, join, template, seam in
                 ((12, 0, False, 0, 0, 0), (24, 1, True, 0, 1, 0), (13, 2, False, 1, 1, 90), (24, 0, True, 1, 0, -30),
                  (13, 1, True, 1, 1, 15), (2, 0, False, 1, 0, 400), (1, 0, True, 1, 0, 0))]
        self.assertFalse(any(case.answer().refused for case in cases))
        self.check(cases)

    def test_half_with_a_seam_lap_ends_a_station_beyond_the_half(self):
        """The tab counts as a station where the pattern is halved, and is cut off by that."""
        cases = [plain_case(dtype, Settings(segs=segs, HalfPattern=True, JoinType=1, LapSize1=lap))
                 for dtype in TYPES for segs in (7, 12) for lap in (0, 15)]
        for case in cases:
            answer = case.answer()
            beyond = 1 if case.settings.LapSize1 else 0
            self.assertEqual([len(piece.List1) for piece in answer.model], 2 * [case.settings.segs + 1])
            self.assertEqual([len(piece.List1) for piece in answer.pattern], 2 * [case.settings.segs + 1 + beyond])
        self.check(cases)

    def test_limits(self):
        self.check_limits([sound_case(dtype, rng_of(f"elbow at {dtype}"), thick_settings) for dtype in TYPES])

    def test_order_of_checks(self):
        self.check_order([sound_case(dtype, rng_of(f"elbow order {dtype}"), thick_settings) for dtype in TYPES])

    def test_lengths_as_short_as_the_pipe_is_wide(self):
        """A right angle takes a length of just half the diameter, whichever way it is given."""
        cases = [plain_case(0, Settings(segs=6), box3="90", box1=length) for length in ("50", "49.999999", "50.000001")]
        cases += [plain_case(1, Settings(segs=6), box5=length) for length in ("50", "49.999999", "50.000001")]
        self.assertEqual([case.answer().refused for case in cases], [False, True, False] * 2)
        self.check(cases)

    def test_thick_material(self):
        """Types 2 and 3 have no other test of the diameter."""
        boxes = ("box0", "box4", "box7")
        cases = [plain_case(dtype, Settings(segs=6, Thickness=10, InOutMean=place), **{boxes[dtype]: size})
                 for dtype in TYPES for place in range(3)
                 for size in ("-1", "0", "1e-9", "9.999", "10", "19.999", "20", "20.001")]
        self.assertGreater(sum(case.answer().refused for case in cases), 30)
        self.check(cases)

    def test_sizes_without_a_shape(self):
        """They pass every check: no wall at all, or one that nobody could cut."""
        cases = [plain_case(1, Settings(segs=6), box4="0"), plain_case(2, Settings(segs=6), box7="0"),
                 plain_case(2, Settings(segs=6), box7="0", box8="0"), plain_case(1, Settings(segs=6), box6="1.1e9"),
                 plain_case(0, Settings(segs=6), box1="1e12"), plain_case(2, Settings(segs=6), box8="2e9", box9="1e-6"),
                 plain_case(1, Settings(segs=6), box5="7e8", box6="7e8"),
                 plain_case(2, Settings(segs=6), box9="179.9999999"),
                 plain_case(1, Settings(segs=6, KerfSpacing=1.1e9))]
        self.check_impossible(cases)
        self.check([plain_case(1, Settings(segs=6), box5="4e8", box6="5e8")])

    def test_spoilt_elbows(self):
        cases = []
        for dtype in TYPES:
            rng = rng_of(f"elbow spoilt {dtype}")
            cases += [spoilt_case(sound_case(dtype, rng), rng, BOX_COUNT) for _ in range(30)]
        self.assertGreater(sum(case.answer().refused for case in cases), 35)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
