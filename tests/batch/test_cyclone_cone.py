"""Cyclones on a cone of korvet-batch against a second computation of them."""

import math
import unittest
from functools import partial
from dataclasses import replace

import cyclone_cone_oracle
import fitting_cases
from cyclone_cone_oracle import BOX_COUNT, CATEGORY
from fitting_cases import pipe_settings, rng_of, sound_sizes, spoilt_case, thick_settings
from fitting_maths import Settings
from oracle_test import OracleTest
from pipe_to_cone_oracle import CONE, PIPE
from window_checks import NO_HALF, NO_PATTERN, THICKNESS_ROOM, USER_ERROR

PLAIN = {0: "400", 1: "150", 2: "100", 3: "420", 4: "300", 5: "90"}


class Case(fitting_cases.Case):
    answer = cyclone_cone_oracle.compute


def sizes(rng):
    top = 10 ** rng.uniform(1.5, 3.3)
    pipe = top * rng.uniform(0.05, 0.3)
    center = pipe * rng.uniform(0.52, 1.5)
    height = center + pipe / 2 + top * rng.uniform(0.05, 2)
    return {0: top, 1: top * rng.uniform(0.2, 0.7), 2: pipe, 3: height, 4: top * rng.uniform(0.55, 1.5), 5: center}


def sound_case(rng, settings=pipe_settings, select=None):
    return sound_sizes(partial(Case, CATEGORY, 0), sizes, settings, rng, [CONE, PIPE] if select is None else [select])


def few_stations(rng, size):
    """With outside sizes the pattern of the cone takes a pipe that stands a hair outside it where it touches: there
    must be no station just there."""
    return replace(thick_settings(rng, size), segs=3)


def plain_case(settings=Settings(segs=8), select=CONE, view="pattern", **changed):
    return Case(CATEGORY, 0, tuple(PLAIN.items()), settings, (), select, view).with_boxes(**changed)


class CycloneConeTest(OracleTest):
    def test_sound_cyclones(self):
        cases = [sound_case(rng_of(f"cyclone cone {k}")) for k in range(80)]
        self.assertGreater(sum((USER_ERROR, NO_HALF, None) in case.answer().messages for case in cases), 5)
        self.check_variety(cases, lambda s: s.JoinType and s.LapSize0 > 0, lambda s: s.TemplateType and s.Thickness)

    def test_plain_sizes(self):
        cases = [plain_case(Settings(segs=segs, Thickness=3, InOutMean=place, HalfPattern=half, JoinType=join,
                                     LapSize0=4, LapSize1=10, LapSize2=6, TemplateType=template, JoinAngle=seam), select)
                 for select in (CONE, PIPE) for segs, place, half, join, template, seam in
                 ((12, 0, False, 0, 0, 0), (24, 1, True, 0, 1, 0), (3, 2, False, 1, 1, 90), (13, 1, True, 1, 1, 15),
                  (1, 0, False, 1, 0, 0))]
        self.assertFalse(any(case.answer().refused for case in cases))
        self.check(cases)

    def test_touching_pipes(self):
        """A station may stand just where the pipe touches the wall: a wall that leans by 30 degrees and 24 stations."""
        height = "%.17g" % (150 / math.tan(math.radians(30)))
        cases = [plain_case(Settings(segs=segs, Thickness=thick), PIPE, box1="100", box2=pipe, box3=height)
                 for segs in (12, 24, 25) for thick in (0, 3) for pipe in ("60", "87.5", "100")]
        self.assertFalse(any(case.answer().refused for case in cases))
        self.check(cases)

    def test_sizes_without_a_shape(self):
        """A rule of the pipe stands outside the cone; a hole runs across the seam."""
        self.check_impossible([plain_case(Settings(segs=100, Thickness=6, InOutMean=2), CONE),
                               plain_case(box2="260", box5="140")])

    def test_choice_of_pattern(self):
        cases = [plain_case(select=None, view=view) for view in ("pattern", "model")]
        self.assertEqual([case.answer().messages for case in cases], [[(USER_ERROR, NO_PATTERN, None)], []])
        self.check(cases)

    def test_limits(self):
        # A top that grows narrower is refused as narrower than the base before the material has no room in it.
        self.check_limits([sound_case(rng_of(f"cyclone cone at {select}"), few_stations, select)
                           for select in (CONE, PIPE)], [(CATEGORY, 0, "room", 0)])

    def test_order_of_checks(self):
        self.check_order([sound_case(rng_of(f"cyclone cone order {select}"), few_stations, select)
                          for select in (CONE, PIPE)])

    def test_thick_material(self):
        cases = [plain_case(Settings(segs=6, Thickness=10, InOutMean=place), select, **{box: size})
                 for place in range(3) for select in (CONE, PIPE)
                 for box, size in (("box1", "9"), ("box1", "19"), ("box2", "9.999"), ("box2", "10"), ("box2", "19.999"),
                                   ("box2", "20.001"))]
        cases += [plain_case(Settings(segs=6, Thickness=10, InOutMean=2), box0="9", box1="5")]
        self.assertEqual(cases[-1].answer().messages, [(USER_ERROR, THICKNESS_ROOM, 0)])
        self.check(cases)

    def test_spoilt_cyclones(self):
        rng = rng_of("cyclone cone spoilt")
        cases = [spoilt_case(sound_case(rng), rng, BOX_COUNT) for _ in range(40)]
        self.assertGreater(sum(case.answer().refused for case in cases), 25)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
