"""Murok mitres of korvet-batch against a second computation of them."""

import unittest
from functools import partial

import fitting_cases
import murok_mitre_oracle
from fitting_cases import pipe_settings, rng_of, sound_sizes, spoilt_case, thick_settings
from fitting_maths import Settings, distance
from murok_mitre_oracle import BOX_COUNT, CATEGORY
from oracle_test import OracleTest

PLAIN = {0: "40", 1: "220", 2: "160", 3: "50", 4: "120"}


class Case(fitting_cases.Case):
    answer = murok_mitre_oracle.compute


def sizes(rng):
    radius = 10 ** rng.uniform(0.4, 3)
    return {0: radius, **{box: radius * rng.uniform(0.3, 12) for box in (1, 2, 3, 4)}}


def sound_case(rng, settings=pipe_settings):
    return sound_sizes(partial(Case, CATEGORY, 0), sizes, settings, rng)


def plain_case(settings, **boxes):
    return Case(CATEGORY, 0, tuple(PLAIN.items()), settings).with_boxes(**boxes)


class MurokMitreTest(OracleTest):
    def test_sound_mitres(self):
        cases = [sound_case(rng_of(f"murok mitre {k}")) for k in range(60)]
        self.check_variety(cases, lambda s: s.TemplateType and s.Thickness, lambda s: s.KerfSpacing > 0)

    def test_numbers_of_fold_lines(self):
        """The trim counts whole quarters, the joining station is the nearest one: they part for odd numbers."""
        cases = [plain_case(Settings(segs=segs)) for segs in (*range(1, 10), 12, 13, 24, 25, 99, 100)]
        for case in cases:
            first, second, middle = case.answer().model
            self.assertEqual(len(first.List1), (2 * case.settings.segs + 1) // 4 + 1)
            gap = max(distance(first.List1[-1], middle.List2[-1]), distance(second.List1[0], middle.List1[-1]))
            self.assertEqual(gap < 1e-9, case.settings.segs % 2 == 0)
        self.check(cases)

    def test_limits(self):
        self.check_limits([sound_case(rng_of(f"murok mitre at {k}"), thick_settings) for k in range(2)])

    def test_order_of_checks(self):
        self.check_order([sound_case(rng_of(f"murok mitre order {k}"), thick_settings) for k in range(2)])

    def test_thick_material(self):
        cases = [plain_case(Settings(segs=6, Thickness=10, InOutMean=place), box0=size)
                 for place in range(3) for size in ("-1", "0", "1e-9", "4.999", "5", "9.999", "10", "10.001")]
        self.assertGreater(sum(case.answer().refused for case in cases), 10)
        self.check(cases)

    def test_sizes_without_a_shape(self):
        """They pass every check, but nobody could cut them."""
        settings = Settings(segs=6)
        cases = [plain_case(settings, box1="1.1e9"), plain_case(settings, box4="1e-6"),
                 plain_case(settings, box2="8e8", box3="8e8")]
        self.check_impossible(cases)

    def test_spoilt_mitres(self):
        rng = rng_of("murok mitre spoilt")
        cases = [spoilt_case(sound_case(rng), rng, BOX_COUNT) for _ in range(50)]
        self.assertGreater(sum(case.answer().refused for case in cases), 25)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
