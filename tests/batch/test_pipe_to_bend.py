"""Pipes on a bend of korvet-batch against a second computation of them."""

import math
import unittest
from functools import partial

import fitting_cases
import pipe_to_bend_oracle
from fitting_cases import pipe_settings, rng_of, sound_sizes, spoilt_case, thick_settings
from fitting_maths import Settings
from oracle_test import OracleTest
from pipe_to_bend_oracle import BOX_COUNT, CATEGORY

PLAIN = {0: "60", 1: "100", 2: "150", 3: "90", 4: "260"}


class Case(fitting_cases.Case):
    answer = pipe_to_bend_oracle.compute


def sizes(rng):
    bend = 10 ** rng.uniform(0.7, 3.3)
    pipe = bend * rng.uniform(0.1, 0.97)
    centre_line = bend * rng.uniform(0.52, 4)
    height = pipe / 2 + rng.uniform(0.01, 0.99) * (centre_line + bend / 2 - pipe)
    shortest = math.sqrt(max(0.0, (centre_line + bend / 2) ** 2 - (height - pipe / 2) ** 2))
    return {0: pipe, 1: bend, 2: centre_line, 3: height, 4: shortest + bend * rng.uniform(0.05, 3)}


def sound_case(rng, settings=pipe_settings):
    return sound_sizes(partial(Case, CATEGORY, 0), sizes, settings, rng)


def plain_case(settings, **boxes):
    return Case(CATEGORY, 0, tuple(PLAIN.items()), settings).with_boxes(**boxes)


class PipeToBendTest(OracleTest):
    def test_sound_pipes(self):
        cases = [sound_case(rng_of(f"pipe to bend {k}")) for k in range(90)]
        self.check_variety(cases, lambda s: s.JoinType and s.LapSize0 > 0, lambda s: s.JoinType and s.LapSize2 > 0,
                           lambda s: s.TemplateType and s.Thickness)

    def test_plain_sizes(self):
        self.check([plain_case(Settings(segs=segs, Thickness=3, InOutMean=place, HalfPattern=half, JoinType=join,
                                        LapSize0=4, LapSize1=10, LapSize2=6, TemplateType=template, JoinAngle=seam))
                    for segs, place, half, join, template, seam in
                    ((12, 0, False, 0, 0, 0), (24, 1, True, 0, 1, 0), (13, 2, False, 1, 1, 90), (24, 0, True, 1, 0, -30),
                     (3, 1, True, 1, 1, 15), (2, 0, False, 1, 0, 400), (1, 0, True, 1, 0, 0))])

    def test_pipe_as_wide_as_the_bend(self):
        """Corners at both sides, and none when the pipe is a hair narrower."""
        cases = [plain_case(Settings(segs=segs, HalfPattern=half), box0=size)
                 for segs in (1, 3, 4, 23, 24, 25, 26) for half in (False, True) for size in ("100", "99.9999")]
        corners = [sum(p[3] > 1 for p in case.answer().pattern[0].List1) for case in cases]
        self.assertEqual(set(corners[::2]), {1, 2})
        self.assertEqual(set(corners[1::2]), {0})
        self.check(cases)

    def test_limits(self):
        self.check_limits([sound_case(rng_of(f"pipe to bend at {k}"), thick_settings) for k in range(2)])

    def test_limits_together(self):
        """The bend as wide as the pipe, with no radius inside; the pipe on its start or on its back."""
        cases = [plain_case(Settings(segs=24), box0="100", box2="50", box3="50", box4="101"),
                 plain_case(Settings(segs=24), box3="30"), plain_case(Settings(segs=24), box3="170"),
                 plain_case(Settings(segs=24), box2="50", box3="70")]
        self.assertFalse(any(case.answer().refused for case in cases))
        self.check(cases)

    def test_order_of_checks(self):
        self.check_order([sound_case(rng_of(f"pipe to bend order {k}"), thick_settings) for k in range(2)])

    def test_thick_material(self):
        cases = [plain_case(Settings(segs=6, Thickness=10, InOutMean=place), box0=size)
                 for place in range(3)
                 for size in ("-1", "0", "1e-9", "9.999", "10", "19.999", "20", "20.001", "89.9", "90", "90.1", "110")]
        self.assertGreater(sum(case.answer().refused for case in cases), 10)
        self.check(cases)

    def test_sizes_without_a_shape(self):
        """They pass every check: no wall at all, a pipe that nobody could cut, more than the memory holds."""
        settings = Settings(segs=6)
        cases = [plain_case(settings, box0="0", box1="0", box2="0", box3="0", box4="5"), plain_case(settings, box0="0"),
                 plain_case(settings, box4="1.1e9"), plain_case(settings, box2="2e9", box4="4e9"),
                 plain_case(Settings(segs=6, JoinType=1, LapSize2=1.1e9)), plain_case(Settings(segs=74074))]
        self.check_impossible(cases)

    def test_spoilt_pipes(self):
        rng = rng_of("pipe to bend spoilt")
        cases = [spoilt_case(sound_case(rng), rng, BOX_COUNT) for _ in range(60)]
        self.assertGreater(sum(case.answer().refused for case in cases), 35)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
