"""Prisms of korvet-batch against a second computation of them."""

import unittest
from functools import partial

import prism_oracle
import sides_cases
from fitting_cases import random_settings, rng_of, sound_sizes, spoilt_case, thick_settings
from fitting_maths import Settings
from prism_oracle import BOX_COUNT, CATEGORY
from sides_cases import SidesTest
from window_checks import NO_HALF, THICKNESS_ROOM, USER_ERROR

TYPES = range(4)
SIDES_BOX = (2, 6, 11, 16)
PLAIN = ({0: "100", 1: "140", 2: "5"}, {3: "100", 4: "140", 5: "-22.5", 6: "4"},
         {7: "100", 8: "140.5", 9: "31", 10: "12.5", 11: "7"}, {12: "100", 13: "90", 14: "35", 15: "-20", 16: "8"})


class Case(sides_cases.Case):
    answer = prism_oracle.compute


def sizes(dtype, rng):
    base = 10 ** rng.uniform(0.7, 3.3)
    height = base * rng.uniform(0.2, 4)
    sides = str(rng.choice([3, 4, 5, 6, 8, 12, rng.randint(3, 80)]))
    angles = [rng.uniform(-55, 55) for _ in "12"]
    if dtype == 0:
        return {0: base, 1: height, 2: sides}
    if dtype == 1:
        return {3: base, 4: height, 5: angles[0], 6: sides}
    if dtype == 2:
        return {7: base, 8: height, 9: angles[0], 10: angles[1], 11: sides}
    return {12: base, 13: height, 14: rng.uniform(-85, 55), 15: rng.uniform(-85, 55), 16: sides}


def sound_case(dtype, rng, settings=random_settings):
    return sound_sizes(partial(Case, CATEGORY, dtype), partial(sizes, dtype), settings, rng)


def plain_case(dtype, settings=Settings(), **boxes):
    return Case(CATEGORY, dtype, tuple(PLAIN[dtype].items()), settings).with_boxes(**boxes)


class PrismTest(SidesTest):
    def test_sound_prisms(self):
        cases = [sound_case(dtype, rng_of(f"prism {dtype} {k}")) for dtype in TYPES for k in range(40)]
        self.check_variety(cases, lambda s: s.JoinType and s.LapSize0 > 0 and s.LapSize2 > 0,
                           lambda s: s.InOutMean == 1 and s.Thickness, lambda s: s.InOutMean == 2 and s.Thickness)
        self.check_opened(cases[::3])

    def test_numbers_of_sides(self):
        """With two planes at the top a corner takes its plane by its number: every remainder of 4, and the seam."""
        cases = [plain_case(dtype, Settings(JoinAngle=30, JoinType=1, LapSize1=5, Thickness=4, InOutMean=place),
                            **{f"box{SIDES_BOX[dtype]}": sides})
                 for dtype in TYPES for place in range(3)
                 for sides in ("3", "4", "5", "6.0", " 7 ", "8", "9", "10", "12", "144")]
        self.assertFalse(any(case.answer().refused for case in cases))
        self.check(cases)
        self.check_opened(cases)

    def test_half(self):
        """The class refuses it, when model and pattern are made; the text block tells of a whole one."""
        case = plain_case(3, Settings(HalfPattern=True))
        self.assertEqual([text for _, text, _ in case.answer().messages], [NO_HALF])
        self.check([case])

    def test_limits(self):
        self.check_limits([sound_case(dtype, rng_of(f"prism at {dtype}"), thick_settings) for dtype in TYPES])

    def test_order_of_checks(self):
        self.check_order([sound_case(dtype, rng_of(f"prism order {dtype}"), thick_settings) for dtype in TYPES])

    def test_thick_material(self):
        """Of 4 sides half the thickness counts 1.41421 times across a corner, of 8 sides 1.0824 times."""
        cases = [plain_case(dtype, Settings(Thickness=10, InOutMean=place), **boxes)
                 for place in range(3) for size in ("-1e-9", "0", "1e-9", "14.142", "14.143", "21.6", "21.7", "28.29")
                 for dtype, boxes in ((1, {"box3": size}), (1, {"box3": size, "box4": "0"}), (3, {"box12": size}))]
        said = [case.answer().messages for case in cases]
        for box in (3, 12):
            self.assertGreater(said.count([(USER_ERROR, THICKNESS_ROOM, box)]), 3)
        self.check(cases)

    def test_sizes_without_a_shape(self):
        """They pass every check, and nobody could make them."""
        cases = [plain_case(0, box0="0"), plain_case(1, box3="-0"), plain_case(2, box7="0", box9="89.9"),
                 plain_case(3, Settings(HalfPattern=True), box12="0"), plain_case(0, box1="1.1e9"),
                 plain_case(0, box2="32768"), plain_case(3, box16="1e15"), plain_case(3, box14="-89.99999999")]
        self.check_impossible(cases)
        self.check([plain_case(0, box2="32767"), plain_case(0, Settings(Thickness=2, InOutMean=1), box0="0")])

    def test_spoilt_prisms(self):
        cases = []
        for dtype in TYPES:
            rng = rng_of(f"prism spoilt {dtype}")
            cases += [spoilt_case(sound_case(dtype, rng), rng, BOX_COUNT) for _ in range(25)]
        self.assertGreater(sum(case.answer().refused for case in cases), 50)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
