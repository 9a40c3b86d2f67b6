"""Reducing breeches of two pieces of korvet-batch against a second computation of them."""

import unittest

import fitting_cases
import two_piece_breech_oracle
from fitting_cases import inside, piece_settings, pipe_settings, rng_of, sound, spoilt_case, thick_settings, typed
from fitting_maths import Settings
from oracle_test import OracleTest
from two_piece_breech_oracle import ANGLE_TOP, BOX_COUNT, CENTER_LINE, FLUSH_SIDE, PARALLEL_TOP
from window_checks import NO_HALF, USER_ERROR

WINDOWS = (ANGLE_TOP, PARALLEL_TOP)
SIDES = (CENTER_LINE, FLUSH_SIDE)
PLAIN = {ANGLE_TOP: ("100", "60", "160", "80"), PARALLEL_TOP: ("100", "55", "140", "90.5")}

# What is asked for a second time, with another message, is never refused then.
NEVER = {(ANGLE_TOP, 0, "above", 1), (PARALLEL_TOP, 0, "above", 0), (PARALLEL_TOP, 0, "above", 1)}


class Case(fitting_cases.Case):
    answer = two_piece_breech_oracle.compute


def sizes(window, rng):
    pipe = 10 ** rng.uniform(0.7, 3.3)
    outlet = pipe * rng.uniform(0.15, 0.97)
    length = pipe * rng.uniform(0.55, 3)
    last = inside(rng, 0, 180) if window == ANGLE_TOP else outlet * rng.uniform(1.02, 3)
    return dict(enumerate([pipe, outlet, length, last]))


def sound_case(window, rng, settings=pipe_settings, sides=SIDES):
    def make(rng):
        boxes = sizes(window, rng)
        return Case(window, 0, typed(rng, boxes), settings(rng, boxes[0]), (("optFlushSide", rng.choice(sides)),))

    return sound(make, rng)


def plain_case(window, settings=Settings(segs=6), side=CENTER_LINE, **boxes):
    return Case(window, 0, tuple(enumerate(PLAIN[window])), settings, (("optFlushSide", side),)).with_boxes(**boxes)


class TwoPieceBreechTest(OracleTest):
    def test_sound_breeches(self):
        cases = [sound_case(window, rng_of(f"{window} {k}")) for window in WINDOWS for k in range(80)]
        self.assertGreater(sum(case.answer().messages == [(USER_ERROR, NO_HALF, None)] for case in cases), 5)
        self.check_variety(cases, lambda s: s.HalfPattern and s.JoinType and s.LapSize1 > 0)

    def test_plain_sizes(self):
        self.check([plain_case(window, settings, side) for window in WINDOWS for side in SIDES
                    for settings in piece_settings()])

    def test_flush_side_has_no_half(self):
        cases = [plain_case(window, Settings(segs=6, HalfPattern=True), FLUSH_SIDE) for window in WINDOWS]
        for case in cases:
            self.assertEqual(case.answer().messages, [(USER_ERROR, NO_HALF, None)])
            self.assertIn("Full pattern", case.answer().labels[-1])
        self.check(cases)

    def test_no_side(self):
        """Taken as the center line."""
        cases = [plain_case(window, side="none") for window in WINDOWS]
        for case in cases:
            self.assertEqual(case.answer().model, plain_case(case.category).answer().model)
        self.check(cases)

    def test_narrow_and_wide(self):
        """Outlets that run through each other are made as they come; level ones too."""
        self.check([plain_case(ANGLE_TOP, Settings(segs=segs), side, box3=angle, box1=outlet)
                    for segs in (7, 12) for side in SIDES for angle in ("0.5", "5", "20", "180")
                    for outlet in ("1", "60", "90")])
        self.check([plain_case(PARALLEL_TOP, Settings(segs=segs), side, box2=height, box3=apart)
                    for segs in (7, 12) for side in SIDES for height in ("0.001", "50", "1000")
                    for apart in ("55.001", "100", "1000")])

    def test_limits(self):
        self.check_limits([sound_case(window, rng_of(f"{window} at"), thick_settings) for window in WINDOWS], NEVER)

    def test_order_of_checks(self):
        self.check_order([sound_case(window, rng_of(f"{window} order"), thick_settings) for window in WINDOWS])

    def test_thick_material(self):
        self.check([plain_case(window, Settings(segs=4, Thickness=10, InOutMean=place), box0="30", box1=size)
                    for window in WINDOWS for place in range(3)
                    for size in ("1e-9", "9.999", "10", "19.999", "20", "20.001", "29.999", "30")])

    def test_sizes_without_a_shape(self):
        self.check_impossible([plain_case(ANGLE_TOP, box2="1.1e9"), plain_case(PARALLEL_TOP, box3="1e10")])

    def test_spoilt_breeches(self):
        cases = []
        for window in WINDOWS:
            rng = rng_of(f"{window} spoilt")
            cases += [spoilt_case(sound_case(window, rng), rng, BOX_COUNT) for _ in range(40)]
        self.assertGreater(sum(case.answer().refused for case in cases), 40)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
