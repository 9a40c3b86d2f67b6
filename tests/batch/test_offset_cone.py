"""Offset cones of korvet-batch against a second computation of them."""

import unittest
from functools import partial

import fitting_cases
import offset_cone_oracle
from cone_surfaces import TOP_LAP
from fitting_cases import inside, random_settings, rng_of, sound_sizes, spoilt_case, thick_settings
from fitting_maths import SEAM_LAP, Settings
from offset_cone_oracle import BOX_COUNT, CATEGORY
from oracle_test import OracleTest
from window_checks import IMPOSSIBLE, PRODUCT

TYPES = range(2)
PLAIN = ({0: "100", 1: "60", 2: "80", 3: "35"}, {4: "120", 5: "70.5", 6: "90"})


class Case(fitting_cases.Case):
    answer = offset_cone_oracle.compute


def sizes(dtype, rng):
    base = 10 ** rng.uniform(0.7, 3.3)
    height = base * rng.uniform(0.15, 3) * rng.choice((1, 1, -1))
    if dtype == 1:
        return {4: base, 5: inside(rng, 0, base), 6: height}
    return {0: base, 1: inside(rng, 0, base), 2: height, 3: base * rng.uniform(0.02, 1.5) * rng.choice((1, -1))}


def sound_case(dtype, rng, settings=random_settings):
    return sound_sizes(partial(Case, CATEGORY, dtype), partial(sizes, dtype), settings, rng)


def plain_case(dtype, settings, **boxes):
    case = Case(CATEGORY, dtype, tuple(PLAIN[dtype].items()), settings)
    for name, text in boxes.items():
        case = case.with_box(int(name.removeprefix("box")), text)
    return case


class OffsetConeTest(OracleTest):
    def test_sound_cones(self):
        cases = [sound_case(dtype, rng_of(f"offset cone {dtype} {k}")) for dtype in TYPES for k in range(60)]
        for wanted in (lambda s: s.HalfPattern, lambda s: s.JoinType and s.LapSize0 > 0,
                       lambda s: s.JoinType and s.LapSize1 > 0, lambda s: s.JoinType and s.LapSize2 > 0,
                       lambda s: s.segs % 2, lambda s: s.JoinAngle != 0, lambda s: s.InOutMean == 1,
                       lambda s: s.InOutMean == 2):
            self.assertGreater(sum(1 for case in cases if wanted(case.settings)), 5)
        self.assertGreater(sum(case.value(2 if case.dtype == 0 else 6) < 0 for case in cases), 20)
        self.check(cases)

    def test_plain_sizes(self):
        cases = [plain_case(dtype, Settings(segs=segs, Thickness=3, InOutMean=place, HalfPattern=half, JoinType=join,
                                            LapSize0=4, LapSize1=10, LapSize2=6, JoinAngle=seam))
                 for dtype in TYPES for segs, place, half, join, seam in
                 ((12, 0, False, 0, 0), (24, 1, True, 0, 0), (13, 2, False, 1, 90), (24, 0, True, 1, -30),
                  (3, 1, True, 1, 15), (2, 0, False, 1, 400), (2, 0, True, 0, 0), (1440, 0, False, 0, 0))]
        self.assertFalse(any(case.answer().refused for case in cases))
        self.check(cases)

    def test_top_lap(self):
        """It is held against the apex whether there is a join or not."""
        cases = [plain_case(dtype, Settings(segs=12, JoinType=join, LapSize0=lap))
                 for dtype in TYPES for join in (0, 1) for lap in (1, 1000)]
        said = [case.answer().messages for case in cases]
        self.assertEqual(said, [[], [(PRODUCT, TOP_LAP, None)]] * 4)
        self.check(cases)

    def test_laps_that_do_not_fit(self):
        """A cone so flat that its pattern goes round nearly all the way."""
        flat = {"box2": "3.1", "box3": "0.01"}
        cases = [plain_case(0, Settings(segs=24, JoinType=1, LapSize0=top, LapSize1=20), **flat) for top in (0, 500)]
        self.assertEqual([text for _, text, _ in cases[0].answer().messages], [SEAM_LAP])
        self.assertEqual([text for _, text, _ in cases[1].answer().messages], [TOP_LAP, SEAM_LAP])
        self.check(cases)

    def test_low_cones_far_beside_the_base(self):
        """With few fold lines their triangles do not close, and with many they do."""
        low = {"box0": "500", "box1": "300", "box2": "20", "box3": "300"}
        cases = [plain_case(0, Settings(segs=segs, JoinAngle=seam), **low)
                 for segs in (2, 3, 5, 8, 11, 12, 13, 14, 15, 16, 24, 48, 200) for seam in (0, 90, 3.75)]
        cases += [plain_case(0, Settings(segs=24), **{**low, "box2": "2"})]
        said = {segs: {tuple(case.answer().messages) for case in cases if case.settings.segs == segs}
                for segs in (8, 12, 48)}
        self.assertEqual(said, {8: {((PRODUCT, IMPOSSIBLE, None),)}, 12: {((PRODUCT, IMPOSSIBLE, None),)}, 48: {()}})
        self.assertTrue(cases[-1].answer().refused)
        self.check(cases)

    def test_sizes_without_a_shape(self):
        """They pass every check: no width, an apex out of reach, sizes that nobody could cut."""
        cases = [plain_case(dtype, Settings(segs=1, HalfPattern=half)) for dtype in TYPES for half in (False, True)]
        cases += [plain_case(0, Settings(segs=6), box1="99.9999999999"), plain_case(0, Settings(segs=6), box3="1.1e9"),
                  plain_case(1, Settings(segs=6), box6="-1e12"),
                  plain_case(1, Settings(segs=6, JoinType=1, LapSize2=1.1e9))]
        for case in cases:
            self.assertEqual(case.answer().messages, [(PRODUCT, IMPOSSIBLE, None)])
        self.check(cases)

    def test_limits(self):
        self.check_limits([sound_case(dtype, rng_of(f"offset cone at {dtype}"), thick_settings) for dtype in TYPES])

    def test_order_of_checks(self):
        self.check_order([sound_case(dtype, rng_of(f"offset cone order {dtype}"), thick_settings) for dtype in TYPES])

    def test_thick_material(self):
        cases = [plain_case(dtype, Settings(segs=6, Thickness=10, InOutMean=place), **{box: size})
                 for place in range(3) for size in ("1e-9", "9.999", "10", "19.999", "20", "20.001")
                 for dtype, box in ((0, "box0"), (0, "box1"), (1, "box4"), (1, "box5"))]
        self.assertGreater(sum(case.answer().refused for case in cases), 20)
        self.check(cases)

    def test_spoilt_cones(self):
        cases = []
        for dtype in TYPES:
            rng = rng_of(f"offset cone spoilt {dtype}")
            cases += [spoilt_case(sound_case(dtype, rng), rng, BOX_COUNT) for _ in range(40)]
        self.assertGreater(sum(case.answer().refused for case in cases), 40)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
