"""Reducing elbows of korvet-batch against a second computation of them."""

import unittest
from functools import partial

import fitting_cases
import reducing_elbow_oracle
from cone_surfaces import TOP_LAP
from fitting_cases import inside, piece_settings, pipe_settings, rng_of, sound_sizes, spoilt_case, thick_settings
from fitting_maths import SEAM_LAP, Settings
from oracle_test import OracleTest
from reducing_elbow_oracle import BOX_COUNT, CATEGORY
from window_checks import THICKNESS_ROOM, USER_ERROR

TYPES = range(2)
PLAIN = ({0: "100", 1: "60", 2: "150", 3: "210.5"}, {4: "100", 5: "70.5", 6: "120", 7: "130", 8: "115"})


class Case(fitting_cases.Case):
    answer = reducing_elbow_oracle.compute


def sizes(dtype, rng):
    large = 10 ** rng.uniform(0.7, 3.3)
    small = large * rng.uniform(0.1, 0.95)
    lengths = [large * rng.uniform(0.6, 4) for _ in "12"]
    angle = rng.choice([90.0, inside(rng, 90, 180, 0.03)])
    return dict(enumerate([large, small, *lengths]) if dtype == 0 else enumerate([large, small, *lengths, angle], 4))


def sound_case(dtype, rng, settings=pipe_settings):
    return sound_sizes(partial(Case, CATEGORY, dtype), partial(sizes, dtype), settings, rng)


def plain_case(dtype, settings, **boxes):
    return Case(CATEGORY, dtype, tuple(PLAIN[dtype].items()), settings).with_boxes(**boxes)


class ReducingElbowTest(OracleTest):
    def test_sound_elbows(self):
        cases = [sound_case(dtype, rng_of(f"reducing elbow {dtype} {k}")) for dtype in TYPES for k in range(60)]
        self.check_variety(cases, lambda s: s.HalfPattern and s.JoinType and s.LapSize1 > 0,
                           lambda s: s.KerfSpacing > 0)

    def test_laps_that_do_not_fit(self):
        """Both pieces say so by themselves, the top before the seam."""
        case = plain_case(0, Settings(segs=12, JoinType=1, LapSize0=5000, LapSize1=20))
        self.assertEqual([text for _, text, _ in case.answer().messages], 2 * [TOP_LAP, SEAM_LAP])
        self.check([case])

    def test_plain_sizes(self):
        cases = [plain_case(dtype, settings) for dtype in TYPES for settings in piece_settings()]
        self.assertFalse(any(case.answer().refused for case in cases))
        self.check(cases)

    def test_shortest_lengths(self):
        """Length 1 down to the small radius and length 2 down to the large one, though the edges cross there."""
        cases = [plain_case(0, Settings(segs=12, HalfPattern=half), box2="30", box3="50") for half in (False, True)]
        cases += [plain_case(1, Settings(segs=13), box6="35.25", box7="50", box8=angle) for angle in ("90", "179.999")]
        self.assertFalse(any(case.answer().refused for case in cases))
        self.check(cases)

    def test_limits(self):
        self.check_limits([sound_case(dtype, rng_of(f"reducing elbow at {dtype}"), thick_settings) for dtype in TYPES])

    def test_order_of_checks(self):
        self.check_order([sound_case(dtype, rng_of(f"reducing elbow order {dtype}"), thick_settings)
                          for dtype in TYPES])

    def test_thick_material(self):
        cases = [plain_case(dtype, Settings(segs=6, Thickness=10, InOutMean=place), **boxes)
                 for place in range(3) for size in ("1e-9", "9.999", "10", "19.999", "20", "20.001")
                 for dtype, boxes in ((0, {"box0": size}), (0, {"box1": size}), (1, {"box4": size}),
                                      (1, {"box5": size}), (1, {"box4": size, "box5": "9", "box8": "1"}))]
        said = [case.answer().messages for case in cases if case.dtype == 1]
        for box in (0, 1):
            self.assertGreater(said.count([(USER_ERROR, THICKNESS_ROOM, box)]), 3)
        self.check(cases)

    def test_sizes_without_a_shape(self):
        """They pass every check, and nobody could cut them."""
        cases = [plain_case(0, Settings(segs=6), box2="1.1e9"), plain_case(1, Settings(segs=6), box7="1e12"),
                 plain_case(0, Settings(segs=6), box1="99.9999999999"),
                 plain_case(1, Settings(segs=6, KerfSpacing=1.1e9))]
        self.check_impossible(cases)

    def test_spoilt_elbows(self):
        cases = []
        for dtype in TYPES:
            rng = rng_of(f"reducing elbow spoilt {dtype}")
            cases += [spoilt_case(sound_case(dtype, rng), rng, BOX_COUNT) for _ in range(30)]
        self.assertGreater(sum(case.answer().refused for case in cases), 35)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
