"""Pipes into cones of korvet-batch against a second computation of them."""

import math
import unittest
from functools import partial

import fitting_cases
import pipe_to_cone_oracle
from fitting_cases import inside, pipe_settings, rng_of, sound_sizes, spoilt_case, thick_settings
from fitting_maths import Settings
from oracle_test import OracleTest
from pipe_to_cone_oracle import BOX_COUNT, CATEGORY, CONE, PAGES, PIPE, SIDE, SLANT, TOP
from window_checks import NO_HALF, NO_PATTERN, THICKNESS_ROOM, USER_ERROR

TYPES = (SIDE, TOP, SLANT)
BASE, TOP_END, THE_PIPE, OFFSET = 0, 1, 2, 6  # places in a row of PAGES
# (base, top and pipe diameter, height, pipe length, center distance, offset, angle)
PLAIN = ((300, 120, 80, 260, 260, 110, 15, None), (400, 100, 70, 240, 300, 120, 20, None),
         (360, 150, 90, 280, 340, 70, 12, 35))


class Case(fitting_cases.Case):
    answer = pipe_to_cone_oracle.compute


def boxes_of(dtype, values):
    return {box: value for box, value in zip(PAGES[dtype], values) if box is not None}


def sizes(dtype, rng):
    base = 10 ** rng.uniform(1.2, 3.3)
    top = base * rng.uniform(0.08, 0.85)
    height = base * rng.uniform(0.3, 2.5)
    apex = height * base / (base - top)
    lean = math.atan(base / 2 / apex)
    if dtype == TOP:
        pipe = (base - top) / 2 * rng.uniform(0.1, 0.85)
        center = inside(rng, (top + pipe) / 2, (base - pipe) / 2)
        room = math.sqrt(((base - pipe) / 2) ** 2 - center * center)
    else:
        # As wide as the ball in the cone at the middle of the pipe allows, and within the height.
        center = height * rng.uniform(0.1, 0.8)
        ball = 2 * math.sin(lean) * (apex - center)
        pipe = min(ball * rng.uniform(0.1, 0.9), 1.8 * min(center, height - center))
        room = (apex - center) * base / 2 / apex - pipe / 2 / math.cos(lean)
    angle = rng.choice([0, rng.uniform(-20, 60)])
    length = base * rng.uniform(0.7, 2) + (height if dtype != SIDE else 0)
    offset = rng.choice([0, 0, room * rng.uniform(-0.9, 0.9)])
    return boxes_of(dtype, (base, top, pipe, height, length, center, offset, angle))


def sound_case(dtype, rng, settings=pipe_settings, select=None):
    return sound_sizes(partial(Case, CATEGORY, dtype), partial(sizes, dtype), settings, rng,
                       [CONE, PIPE] if select is None else [select])


def plain_case(dtype, settings=Settings(segs=8), select=CONE, view="pattern", **changed):
    boxes = boxes_of(dtype, PLAIN[dtype])
    texts = tuple((box, str(value)) for box, value in boxes.items())
    return Case(CATEGORY, dtype, texts, settings, (), select, view).with_boxes(**changed)


class PipeToConeTest(OracleTest):
    def test_sound_pipes(self):
        cases = [sound_case(dtype, rng_of(f"pipe to cone {dtype} {k}")) for dtype in TYPES for k in range(40)]
        for dtype in TYPES:
            halves = [case for case in cases if case.dtype == dtype and case.settings.HalfPattern]
            self.assertTrue(any(case.answer().messages == [] for case in halves))
            self.assertTrue(any((USER_ERROR, NO_HALF, None) in case.answer().messages for case in halves))
        self.check_variety(cases, lambda s: s.JoinType and s.LapSize0 > 0, lambda s: s.JoinType and s.LapSize2 > 0,
                           lambda s: s.TemplateType and s.Thickness)

    def test_plain_sizes(self):
        cases = [plain_case(dtype, Settings(segs=segs, Thickness=3, InOutMean=place, HalfPattern=half, JoinType=join,
                                            LapSize0=4, LapSize1=10, LapSize2=6, TemplateType=template, JoinAngle=seam),
                            select)
                 for dtype in TYPES for select in (CONE, PIPE) for segs, place, half, join, template, seam in
                 ((12, 0, False, 0, 0, 0), (24, 1, True, 0, 1, 0), (13, 2, False, 1, 1, 90), (3, 1, True, 1, 1, 15),
                  (1, 0, False, 1, 0, 0))]
        self.assertFalse(any(case.answer().refused for case in cases))
        self.check(cases)

    def test_halves(self):
        """With even and odd fold lines. The hole keeps the half on the half plate."""
        cases = [plain_case(dtype, Settings(segs=segs, HalfPattern=True, JoinType=join, LapSize1=9), select,
                            **{f"box{PAGES[dtype][OFFSET]}": "0"})
                 for dtype in TYPES for select in (CONE, PIPE) for segs in (2, 7, 12) for join in (0, 1)]
        self.assertTrue(all(case.answer().messages == [] for case in cases))
        for case in cases:
            self.assertLess(max(p[1] for p in case.answer().model[0].List3), 1e-9)
        self.check(cases)

    def test_choice_of_pattern(self):
        cases = [plain_case(dtype, select=None, view=view) for dtype in TYPES for view in ("pattern", "model")]
        self.assertEqual([case.answer().messages for case in cases[:2]], [[(USER_ERROR, NO_PATTERN, None)], []])
        self.check(cases)

    def test_limits(self):
        # A base that grows narrower is refused as narrower than its top before the material has no room in it.
        self.check_limits([sound_case(dtype, rng_of(f"pipe to cone at {dtype} {select}"), thick_settings, select)
                           for dtype in TYPES for select in (CONE, PIPE)],
                          [(CATEGORY, dtype, "room", PAGES[dtype][BASE]) for dtype in TYPES])

    def test_order_of_checks(self):
        self.check_order([sound_case(dtype, rng_of(f"pipe to cone order {dtype} {select}"), thick_settings, select)
                          for dtype in TYPES for select in (CONE, PIPE)])

    def test_sizes_without_a_shape(self):
        """They pass every check, and a part of the pipe's edge is not on the cone."""
        self.check_impossible([
            plain_case(SIDE, box4="60"),  # ends inside the cone
            plain_case(SIDE, box4="0"),
            plain_case(SIDE, box4="-260"),  # leads to the seam
            plain_case(TOP, box10="70"),
            plain_case(TOP, box10="-300"),
            plain_case(TOP, box9="0"),
            plain_case(TOP, box9="-240"),
            plain_case(TOP, box9="1e-3"),
            plain_case(SLANT, box18="55", box17="190"),  # over the top
            plain_case(SLANT, box18="140", box17="100"),  # leads to the seam
            plain_case(SLANT, box16="100"),
            plain_case(SLANT, Settings(segs=1), box12="1e6", box13="9e5", box14="2000"),  # no end after 20,000 steps
        ])

    def test_flat_cones(self):
        """The first step goes by the height: up to 20,000 of them are taken."""
        self.check([plain_case(SIDE, Settings(segs=2), box0=base, box1="180", box2="5", box3="8", box4="1e5", box5="4",
                               box19="0") for base in ("300", "1200", "3000", "3380", "3390", "6000")])

    def test_thick_material(self):
        cases = [plain_case(dtype, Settings(segs=6, Thickness=10, InOutMean=place), select,
                            **{f"box{PAGES[dtype][which]}": size})
                 for dtype in TYPES for place in range(3) for select in (CONE, PIPE)
                 for which, size in ((TOP_END, "9"), (TOP_END, "19"), (THE_PIPE, "9.999"), (THE_PIPE, "10"),
                                     (THE_PIPE, "19.999"), (THE_PIPE, "20.001"))]
        self.assertGreater(sum(case.answer().refused for case in cases), 12)
        without_room = [plain_case(dtype, Settings(segs=6, Thickness=10, InOutMean=2),
                                   **{f"box{PAGES[dtype][BASE]}": "9", f"box{PAGES[dtype][TOP_END]}": "5"})
                        for dtype in TYPES]
        for case in without_room:
            self.assertEqual(case.answer().messages, [(USER_ERROR, THICKNESS_ROOM, PAGES[case.dtype][BASE])])
        self.check(cases + without_room)

    def test_spoilt_pipes(self):
        cases = []
        for dtype in TYPES:
            rng = rng_of(f"pipe to cone spoilt {dtype}")
            cases += [spoilt_case(sound_case(dtype, rng), rng, BOX_COUNT) for _ in range(25)]
        self.assertGreater(sum(case.answer().refused for case in cases), 45)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
