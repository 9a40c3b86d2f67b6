"""Augers of korvet-batch against a second computation of them."""

import unittest

import auger_oracle
import fitting_cases
from auger_oracle import BOX_COUNT, BOXES, CATEGORY, FROM_INSIDE, FROM_OUTSIDE, PARALLEL, TAPERED
from fitting_cases import inside, random_settings, rng_of, sound, spoilt_case, thick_settings, typed
from fitting_maths import Settings
from oracle_test import OracleTest
from window_checks import NO_HALF, USER_ERROR

PLAIN = ({0: "300", 1: "280", 2: "700", 3: "110"}, {4: "320", 5: "240", 6: "260", 7: "585", 8: "75"},
         {9: "60", 10: "190", 11: "70"}, {12: "250", 13: "230", 14: "85"})


class Case(fitting_cases.Case):
    answer = auger_oracle.compute


def sizes(rng, dtype):
    diameter = 10 ** rng.uniform(1.4, 3.3)
    pitch = diameter * rng.uniform(0.3, 2)
    length = pitch * rng.choice([1, 2, 3, *(rng.uniform(0.2, 4.2) for _ in range(6))])
    if dtype == PARALLEL:
        return diameter, pitch, length, diameter * inside(rng, 0, 0.5)
    if dtype == TAPERED:
        other = diameter * rng.uniform(0.4, 1.8)
        return diameter, other, pitch, length, min(diameter, other) * inside(rng, 0, 0.5)
    return diameter, pitch, diameter * (rng.uniform(0.05, 2) if dtype == FROM_INSIDE else inside(rng, 0, 0.5))


def sound_case(rng, dtype, settings=random_settings):
    def make(rng):
        values = sizes(rng, dtype)
        return Case(CATEGORY, dtype, typed(rng, dict(zip(BOXES[dtype], values))), settings(rng, values[0]))

    return sound(make, rng)


def plain_case(dtype, settings, **boxes):
    return Case(CATEGORY, dtype, tuple(PLAIN[dtype].items()), settings).with_boxes(**boxes)


class AugerTest(OracleTest):
    def test_sound_augers(self):
        for dtype in range(4):
            with self.subTest(dtype=dtype):
                cases = [sound_case(rng_of(f"auger {dtype} {k}"), dtype) for k in range(60)]
                self.check_variety(cases, lambda s: s.Thickness)

    def test_numbers_of_turns(self):
        """Lengths from less than a turn to whole ones, also those that miss a whole one by rounding alone."""
        settings = Settings(segs=6, Thickness=4)
        turns = {"100": 1, "280": 1, "280.001": 2, "560": 2, "839.999": 3, "840.0000000001": 3, "841": 4}
        cases = [plain_case(PARALLEL, settings, box2=length) for length in turns]
        self.assertEqual([len(case.answer().pattern) for case in cases], list(turns.values()))
        rounded = [plain_case(PARALLEL, settings, box1=pitch, box2=length)
                   for pitch, length in (("50.3", "150.9"), ("0.7", "4.9"), ("1.1", "3.3"), ("0.1", "0.8"))]
        self.assertEqual([len(case.answer().pattern) for case in rounded], [3, 7, 3, 8])
        self.assertNotEqual(150.9 / 50.3, 3)
        self.check(cases + rounded + [plain_case(TAPERED, settings, box7=length) for length in turns])

    def test_tapers(self):
        """To a wider and to a narrower end, to no shaft at all, with material from none to far too thick."""
        cases = [plain_case(TAPERED, Settings(segs=8, Thickness=thickness), box4=start, box5=end)
                 for thickness in (0, 3, 60, 1500) for start, end in (("320", "150"), ("150", "320"), ("240", "240"))]
        self.assertGreater(sum(case.answer().refused for case in cases), 0)
        self.assertGreater(sum(not case.answer().refused for case in cases), 9)
        self.check(cases)

    def test_seam_of_a_ring(self):
        """A file may bring an angle, which turns a single plate, but not the turns of an auger."""
        cases = [plain_case(dtype, Settings(segs=7, JoinAngle=seam)) for dtype in range(4) for seam in (0, 30, -400)]
        starts = [case.answer().pattern[0].List2[0][:2] for case in cases]
        self.assertEqual([len(set(starts[k:k + 3])) for k in range(0, 12, 3)], [1, 1, 3, 3])
        self.check(cases)

    def test_there_is_no_half(self):
        cases = [plain_case(dtype, Settings(segs=7, HalfPattern=True)) for dtype in range(4)]
        for case in cases:
            self.assertEqual(case.answer().messages, [(USER_ERROR, NO_HALF, None)])
        self.check(cases)

    def test_limits(self):
        self.check_limits([sound_case(rng_of(f"auger {dtype} at {k}"), dtype, thick_settings)
                           for dtype in range(4) for k in range(2)])

    def test_flight_up_to_the_axis(self):
        cases = [plain_case(PARALLEL, Settings(segs=9), box3="150"), plain_case(TAPERED, Settings(segs=9), box8="120"),
                 plain_case(FROM_OUTSIDE, Settings(segs=9), box14="125")]
        self.assertFalse(any(case.answer().refused for case in cases))
        self.check(cases)

    def test_order_of_checks(self):
        self.check_order([sound_case(rng_of(f"auger {dtype} order {k}"), dtype, thick_settings)
                          for dtype in range(4) for k in range(2)])

    def test_sizes_without_a_shape(self):
        """They pass every check: no shaft, no turn, more turns than the memory holds, sizes that nobody could cut."""
        settings = Settings(segs=6)
        cases = [plain_case(FROM_OUTSIDE, settings, box12="300", box13="300", box14="250"),
                 plain_case(FROM_OUTSIDE, settings, box12="300", box13="2000", box14="150.01"),
                 plain_case(PARALLEL, settings, box2="1e-10"), plain_case(PARALLEL, settings, box1="1e-300"),
                 plain_case(TAPERED, settings, box6="1e-4"), plain_case(TAPERED, settings, box7="1e9"),
                 plain_case(FROM_INSIDE, settings, box9="1.1e9"), plain_case(FROM_INSIDE, settings, box11="1e9"),
                 plain_case(PARALLEL, settings, box0="1e300"),
                 plain_case(PARALLEL, Settings(segs=100000), box2="2800")]
        self.check_impossible(cases)

    def test_spoilt_augers(self):
        rng = rng_of("auger spoilt")
        cases = [spoilt_case(sound_case(rng, k % 4), rng, BOX_COUNT) for k in range(80)]
        self.assertGreater(sum(case.answer().refused for case in cases), 40)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
