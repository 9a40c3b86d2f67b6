"""Elliptical holes of korvet-batch against a second computation of them."""

import unittest
from functools import partial

import elliptical_hole_oracle
import fitting_cases
from elliptical_hole_oracle import BOX_COUNT, CATEGORY
from fitting_cases import pipe_settings, rng_of, sound_sizes, spoilt_case, thick_settings
from fitting_maths import Settings
from oracle_test import OracleTest

PLAIN = {0: "120", 1: "55", 2: "300", 3: "380", 4: "140", 5: "210"}


class Case(fitting_cases.Case):
    answer = elliptical_hole_oracle.compute


def sizes(rng):
    diameter = 10 ** rng.uniform(0, 3.3)
    x, y = (diameter * rng.uniform(1, 6) for _ in "xy")
    angle = rng.choice([0, 30, 45, 60, -20, 180, 200, rng.uniform(-89, 89)])
    return {0: diameter, 1: angle, 2: x, 3: y, 4: x * rng.uniform(-0.2, 1.2), 5: y * rng.uniform(-0.2, 1.2)}


def sound_case(rng, settings=pipe_settings):
    return sound_sizes(partial(Case, CATEGORY, 0), sizes, settings, rng)


def plain_case(settings, **boxes):
    return Case(CATEGORY, 0, tuple(PLAIN.items()), settings).with_boxes(**boxes)


class EllipticalHoleTest(OracleTest):
    def test_sound_plates(self):
        cases = [sound_case(rng_of(f"elliptical hole {k}")) for k in range(80)]
        self.check_variety(cases, lambda s: s.Thickness)

    def test_angles(self):
        """Beyond 90 degrees the plate is seen from its other side; the hole is the same."""
        cases = [plain_case(Settings(segs=segs), box1=angle) for segs in (1, 2, 13, 24)
                 for angle in ("0", "-0", "1e-9", "30", "-30", "60", "89.99", "90.01", "120", "180", "360", "-1e3")]
        self.assertFalse(any(case.answer().refused for case in cases))
        self.check(cases)

    def test_the_hole_alone(self):
        """The plate may have no size, or be smaller than its hole."""
        self.check([plain_case(Settings(segs=12), box2="0", box3="0", box4="0", box5="0"),
                    plain_case(Settings(segs=12), box2="20", box3="-30"), plain_case(Settings(segs=12), box4="-500")])

    def test_limits(self):
        self.check_limits([sound_case(rng_of(f"elliptical hole at {k}"), thick_settings) for k in range(2)])

    def test_sizes_without_a_shape(self):
        """They pass every check: a plate along the pipe, sizes that nobody could cut."""
        settings = Settings(segs=6)
        cases = [plain_case(settings, box1=angle) for angle in ("90", "-90", "270", "90.00000001")]
        cases += [plain_case(settings, box0="1e-8", box1="90"), plain_case(settings, box0="2.1e9"),
                  plain_case(settings, box2="1e300"), plain_case(settings, box4="-6e8", box2="6e8")]
        self.check_impossible(cases)

    def test_spoilt_plates(self):
        rng = rng_of("elliptical hole spoilt")
        cases = [spoilt_case(sound_case(rng), rng, BOX_COUNT) for _ in range(50)]
        self.assertGreater(sum(case.answer().refused for case in cases), 20)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
