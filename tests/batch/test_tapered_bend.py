"""Tapered bends of korvet-batch against a second computation of them."""

import unittest
from functools import partial

import fitting_cases
import tapered_bend_oracle
from cone_surfaces import TOP_LAP
from fitting_cases import piece_settings, pipe_settings, rng_of, sound_sizes, spoilt_case, thick_settings
from fitting_maths import SEAM_LAP, Settings
from oracle_test import OracleTest
from tapered_bend_oracle import BOX_COUNT, CATEGORY

TYPES = range(2)
PLAIN = ({0: "100", 1: "60", 2: "150", 3: "5"}, {4: "100", 5: "70.5", 6: "200", 7: "60", 8: "4"})


class Case(fitting_cases.Case):
    answer = tapered_bend_oracle.compute


def sizes(dtype, rng):
    base = 10 ** rng.uniform(0.7, 3.3)
    top, bend_radius, segments = base * rng.uniform(0.1, 0.95), base * rng.uniform(0.6, 4), rng.randint(2, 9)
    if dtype == 0:
        return {0: base, 1: top, 2: bend_radius, 3: str(segments)}
    angle = rng.choice([360.0, rng.uniform(5, 500)]) if segments > 4 else rng.uniform(5, 150)
    return {4: base, 5: top, 6: bend_radius, 7: angle, 8: str(segments)}


def sound_case(dtype, rng, settings=pipe_settings):
    return sound_sizes(partial(Case, CATEGORY, dtype), partial(sizes, dtype), settings, rng)


def limit_case(dtype, rng):
    """One that stays a bend when its number of segments is taken to the limit."""
    case = sound_case(dtype, rng, thick_settings)
    return case if dtype == 0 else case.with_box(7, "100").with_box(8, "6")


def plain_case(dtype, settings, **boxes):
    return Case(CATEGORY, dtype, tuple(PLAIN[dtype].items()), settings).with_boxes(**boxes)


class TaperedBendTest(OracleTest):
    def test_sound_bends(self):
        cases = [sound_case(dtype, rng_of(f"tapered bend {dtype} {k}")) for dtype in TYPES for k in range(60)]
        said = [text for case in cases for _, text, _ in case.answer().messages]
        self.assertGreater(said.count(TOP_LAP), 5)
        self.check_variety(cases, lambda s: s.HalfPattern and s.JoinType and s.LapSize1 > 0,
                           lambda s: s.KerfSpacing > 0)

    def test_plain_sizes(self):
        cases = [plain_case(dtype, settings) for dtype in TYPES for settings in piece_settings()]
        self.assertFalse(any(case.answer().refused for case in cases))
        self.check(cases)

    def test_laps_that_do_not_fit(self):
        """Every piece says so by itself, the top before the seam."""
        settings = Settings(segs=12, JoinType=1, LapSize0=5000, LapSize1=20)
        case = plain_case(1, settings, box5="1", box6="51", box7="1")
        self.assertEqual([text for _, text, _ in case.answer().messages], 4 * [TOP_LAP, SEAM_LAP])
        self.check([case])

    def test_numbers_of_segments(self):
        cases = [plain_case(1, Settings(segs=6), box8=text, box7=angle)
                 for text in ("2", "3.0", "7", "1e1", "2.5", "1", "0", "-3", "1.999999", "20")
                 for angle in ("90", "179.99", "180", "200", "360", "0", "900", "-1", "3240", "3241")]
        self.assertGreater(sum(case.answer().refused for case in cases), 40)
        self.check(cases)

    def test_edges_that_cross(self):
        """A tight bend, and one that is short for its taper: built as told."""
        self.check([plain_case(0, Settings(segs=9), box2="50", box3="2"),
                    plain_case(1, Settings(segs=12), box5="1", box6="50", box7="10", box8="8"),
                    plain_case(1, Settings(segs=12, HalfPattern=True), box5="1", box6="50", box7="170", box8="2")])

    def test_limits(self):
        self.check_limits([limit_case(dtype, rng_of(f"tapered bend at {dtype}")) for dtype in TYPES])

    def test_order_of_checks(self):
        self.check_order([limit_case(dtype, rng_of(f"tapered bend order {dtype}")) for dtype in TYPES])

    def test_sizes_without_a_shape(self):
        """They pass every check: no mitre, more than can be made, or a cone that nobody could cut."""
        settings = Settings(segs=6)
        cases = [plain_case(1, settings, box8="2", box7="180"), plain_case(1, settings, box8="3", box7="360"),
                 plain_case(1, settings, box8="2", box7="270"), plain_case(1, settings, box8="4", box7="540"),
                 plain_case(0, settings, box3="32768"), plain_case(0, settings, box3="1e9"),
                 plain_case(0, Settings(segs=99), box3="20001"), plain_case(0, settings, box2="1.1e9"),
                 plain_case(1, settings, box6="9e8", box7="175", box8="2"),
                 plain_case(0, settings, box1="99.9999999999"), plain_case(0, Settings(segs=6, KerfSpacing=3e8))]
        self.check_impossible(cases)

    def test_spoilt_bends(self):
        cases = []
        for dtype in TYPES:
            rng = rng_of(f"tapered bend spoilt {dtype}")
            cases += [spoilt_case(sound_case(dtype, rng), rng, BOX_COUNT) for _ in range(30)]
        self.assertGreater(sum(case.answer().refused for case in cases), 35)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
