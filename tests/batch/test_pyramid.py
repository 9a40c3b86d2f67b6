"""Pyramids of korvet-batch against a second computation of them."""

import unittest
from functools import partial

import pyramid_oracle
import sides_cases
from fitting_cases import inside, random_settings, rng_of, sound_sizes, spoilt_case, thick_settings
from fitting_maths import Settings
from pyramid_oracle import BOX_COUNT, CATEGORY
from sides_cases import SidesTest
from window_checks import NO_HALF

TYPES = range(4)
PLAIN = ({0: "100", 1: "140", 2: "5"}, {3: "100", 4: "140", 5: "60", 6: "4"},
         {7: "100", 8: "140.5", 9: "60", 10: "-22.5", 11: "7"}, {12: "100", 13: "45", 14: "80", 15: "8"})


class Case(sides_cases.Case):
    answer = pyramid_oracle.compute


def sizes(dtype, rng):
    base = 10 ** rng.uniform(0.7, 3.3)
    apex = base * rng.uniform(0.2, 4)
    sides = str(rng.choice([3, 4, 5, 6, 8, 12, rng.randint(3, 80)]))
    if dtype == 0:
        return {0: base, 1: apex, 2: sides}
    if dtype == 3:
        return {12: base, 13: inside(rng, 0, base), 14: apex, 15: sides}
    if dtype == 1:
        return {3: base, 4: apex, 5: inside(rng, 0, apex), 6: sides}
    return {7: base, 8: apex, 9: inside(rng, 0, apex), 10: rng.uniform(-60, 60), 11: sides}


def sound_case(dtype, rng, settings=random_settings):
    return sound_sizes(partial(Case, CATEGORY, dtype), partial(sizes, dtype), settings, rng)


def plain_case(dtype, settings=Settings(), **boxes):
    return Case(CATEGORY, dtype, tuple(PLAIN[dtype].items()), settings).with_boxes(**boxes)


class PyramidTest(SidesTest):
    def test_sound_pyramids(self):
        cases = [sound_case(dtype, rng_of(f"pyramid {dtype} {k}")) for dtype in TYPES for k in range(40)]
        self.check_variety(cases, lambda s: s.JoinType and s.LapSize0 > 0 and s.LapSize2 > 0, lambda s: s.Thickness > 0)
        self.check_opened(cases[::3])

    def test_numbers_of_sides(self):
        cases = [plain_case(dtype, Settings(JoinAngle=30, JoinType=1, LapSize1=5), **{f"box{box}": sides})
                 for dtype, box in enumerate((2, 6, 11, 15)) for sides in ("3", "4", "6.0", " 9 ", "144", "1000")]
        self.assertFalse(any(case.answer().refused for case in cases))
        self.check(cases)
        self.check_opened(cases)

    def test_half(self):
        """The class refuses it, when model and pattern are made; the text block tells of a whole one."""
        case = plain_case(2, Settings(HalfPattern=True))
        self.assertEqual([text for _, text, _ in case.answer().messages], [NO_HALF])
        self.check([case])

    def test_limits(self):
        self.check_limits([sound_case(dtype, rng_of(f"pyramid at {dtype}"), thick_settings) for dtype in TYPES])

    def test_order_of_checks(self):
        self.check_order([sound_case(dtype, rng_of(f"pyramid order {dtype}"), thick_settings) for dtype in TYPES])

    def test_sizes_without_a_shape(self):
        """They pass every check, and nobody could cut them."""
        cases = [plain_case(0, box1="1.1e9"), plain_case(0, box2="32768"), plain_case(2, box11="1e15"),
                 plain_case(3, box13="99.9999999999"), plain_case(1, Settings(HalfPattern=True), box3="1.1e9")]
        self.check_impossible(cases)
        self.check([plain_case(0, box2="32767"), plain_case(3, box13="99.99")])

    def test_spoilt_pyramids(self):
        cases = []
        for dtype in TYPES:
            rng = rng_of(f"pyramid spoilt {dtype}")
            cases += [spoilt_case(sound_case(dtype, rng), rng, BOX_COUNT) for _ in range(25)]
        self.assertGreater(sum(case.answer().refused for case in cases), 50)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
