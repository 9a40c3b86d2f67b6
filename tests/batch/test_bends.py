"""Segmented bends of korvet-batch against a second computation of them."""

import unittest
from functools import partial
from dataclasses import replace

import bend_oracle
import fitting_cases
from bend_oracle import BOX_COUNT, CATEGORY, FULL_LAYOUT, SHORT_LAYOUT
from fitting_cases import pipe_settings, rng_of, sound_sizes, spoilt_case, thick_settings
from fitting_maths import Settings
from oracle_test import OracleTest
from window_checks import NO_PATTERN, USER_ERROR

TYPES = range(2)
PLAIN = ({0: "100", 1: "150", 2: "5", 3: "20", 4: "0"}, {5: "100", 6: "200", 7: "60", 8: "0", 9: "35.5", 10: "4"})


class Case(fitting_cases.Case):
    answer = bend_oracle.compute


def sizes(dtype, rng):
    base = 10 ** rng.uniform(0.7, 3.3)
    bend_radius, straight = base * rng.uniform(0.55, 4), [rng.choice([0, base * rng.uniform(0, 2)]) for _ in "12"]
    segments = rng.randint(2, 9)
    if dtype == 0:
        return {0: base, 1: bend_radius, 2: str(segments), 3: straight[0], 4: straight[1]}
    angle = rng.choice([360.0, rng.uniform(5, 360)]) if segments > 4 else rng.uniform(5, 150)
    return {5: base, 6: bend_radius, 7: angle, 8: straight[0], 9: straight[1], 10: str(segments)}


def sound_case(dtype, rng, settings=pipe_settings):
    return sound_sizes(partial(Case, CATEGORY, dtype), partial(sizes, dtype), settings, rng,
                       [FULL_LAYOUT, SHORT_LAYOUT])


def limit_case(dtype, rng):
    """One that stays a bend when its angle or number of segments is taken to the limit."""
    case = sound_case(dtype, rng, thick_settings)
    return case if dtype == 0 else case.with_box(7, "100").with_box(10, "6")


def plain_case(dtype, settings, select=FULL_LAYOUT, view="pattern"):
    return Case(CATEGORY, dtype, tuple(PLAIN[dtype].items()), settings, select=select, view=view)


class BendTest(OracleTest):
    def test_sound_bends(self):
        cases = [sound_case(dtype, rng_of(f"bend {dtype} {k}")) for dtype in TYPES for k in range(45)]
        self.assertGreater(sum(case.select == SHORT_LAYOUT for case in cases), 20)
        self.check_variety(cases, lambda s: s.TemplateType and s.Thickness, lambda s: s.KerfSpacing > 0)

    def test_plain_sizes(self):
        cases = [plain_case(dtype, Settings(segs=segs, Thickness=3, InOutMean=place, HalfPattern=half, JoinType=join,
                                            LapSize1=10, KerfSpacing=25, TemplateType=template, JoinAngle=seam), select)
                 for dtype in TYPES for select in (FULL_LAYOUT, SHORT_LAYOUT)
                 for segs, place, half, join, template, seam in
                 ((12, 0, False, 0, 0, 0), (24, 1, True, 0, 1, 0), (13, 2, False, 1, 1, 90), (24, 0, True, 1, 0, -30),
                  (2, 0, False, 1, 0, 400))]
        self.check(cases)

    def test_two_segments(self):
        """No piece lies between in the model, but the short layout shows one."""
        cases = [plain_case(1, Settings(segs=8), select).with_box(10, "2") for select in (FULL_LAYOUT, SHORT_LAYOUT)]
        answers = [case.answer() for case in cases]
        self.assertEqual([(len(answer.model), len(answer.pattern)) for answer in answers], [(2, 2), (2, 3)])
        self.check(cases)

    def test_numbers_of_segments(self):
        cases = [plain_case(1, Settings(segs=6)).with_box(10, text).with_box(7, angle)
                 for text in ("2", "3.0", "7", "1e1", "2.5", "1", "0", "-3", "1.999999", "20")
                 for angle in ("90", "179.99", "180", "200", "360", "0", "361", "-1")]
        self.check(cases)

    def test_choice_of_pattern(self):
        """A pattern can't be shown without the choice of one; the model can, and then the short layout is meant."""
        cases = [plain_case(dtype, Settings(segs=6), select=None, view=view)
                 for dtype in TYPES for view in ("pattern", "model")]
        answers = [case.answer() for case in cases]
        self.assertEqual([answer.refused for answer in answers], [True, False, True, False])
        self.assertEqual(answers[0].messages, [(USER_ERROR, NO_PATTERN, None)])
        self.check(cases)

    def test_limits(self):
        self.check_limits([limit_case(dtype, rng_of(f"bend at {dtype}")) for dtype in TYPES])

    def test_order_of_checks(self):
        self.check_order([limit_case(dtype, rng_of(f"bend order {dtype}")) for dtype in TYPES])

    def test_thick_material(self):
        """Nothing else asks the diameter to be above 0."""
        cases = [replace(plain_case(0, Settings(segs=6, Thickness=10, InOutMean=place)).with_box(0, size), select=0)
                 for place in range(3) for size in ("-1", "0", "1e-9", "9.999", "10", "19.999", "20", "20.001")]
        cases += [plain_case(0, Settings(segs=6)).with_box(0, "-1")]
        self.check(cases)

    def test_sizes_without_a_shape(self):
        """They pass every check: no wall, no mitre, or a bend that nobody could cut."""
        settings = Settings(segs=6)
        cases = [plain_case(0, settings).with_box(0, "0"), plain_case(1, settings).with_box(5, "0"),
                 plain_case(1, settings).with_box(10, "2").with_box(7, "180"),
                 plain_case(1, settings).with_box(10, "3").with_box(7, "360"),
                 plain_case(1, settings).with_box(10, "2").with_box(7, "270"),
                 plain_case(0, settings).with_box(3, "1.1e9"),
                 plain_case(1, settings).with_box(6, "1e12").with_box(7, "1e-9"),
                 plain_case(1, settings).with_box(10, "2").with_box(7, "179.9999999"),
                 plain_case(0, Settings(segs=6, KerfSpacing=3e8))]
        self.check_impossible(cases)

    def test_spoilt_bends(self):
        cases = []
        for dtype in TYPES:
            rng = rng_of(f"bend spoilt {dtype}")
            cases += [spoilt_case(sound_case(dtype, rng), rng, BOX_COUNT) for _ in range(30)]
        # Angles so near to what no bend can have are left to the tests of arithmetic.
        self.assertGreater(sum(case.answer().refused for case in cases), 35)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
