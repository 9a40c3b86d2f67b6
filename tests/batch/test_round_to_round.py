"""Round to round and offset cylinders of korvet-batch against a second computation of them."""

import unittest
from functools import partial

import fitting_cases
import round_to_round_oracle
from fitting_cases import inside, random_settings, rng_of, sound_sizes, spoilt_case, thick_settings
from fitting_maths import SEAM_LAP, Settings
from oracle_test import OracleTest
from round_to_round_oracle import BOX_COUNT, CYLINDER, ROUND, TYPES
from window_checks import IMPOSSIBLE, PRODUCT, USER_ERROR

PLAIN = {
    (ROUND, 0): {0: "100", 1: "60", 2: "80", 3: "20"},
    (ROUND, 1): {4: "100", 5: "120.5", 6: "90", 7: "-30", 8: "-35"},
    (ROUND, 2): {9: "110", 10: "70", 11: "95", 12: "85"},
    (CYLINDER, 0): {0: "100", 1: "130", 2: "45"},
    (CYLINDER, 1): {3: "90", 4: "115", 5: "150"},
}


class Case(fitting_cases.Case):
    answer = round_to_round_oracle.compute

    @property
    def kind(self):
        return self.category, self.dtype


def sizes(kind, rng):
    base = 10 ** rng.uniform(0.7, 3.3)
    top, height = base * rng.uniform(0.2, 2), base * rng.uniform(0.4, 3)
    offset, tilt = base * rng.choice((0, rng.uniform(-2, 2))), rng.choice((0.0, 90.0, inside(rng, -90, 90)))
    return dict(zip(PLAIN[kind], {
        (ROUND, 0): (base, top, height, tilt),
        (ROUND, 1): (base, top, height, offset, tilt),
        (ROUND, 2): (base, top, height, offset),
        (CYLINDER, 0): (base, height, offset),
        (CYLINDER, 1): (base, inside(rng, 0, 180), height),
    }[kind]))


def sound_case(kind, rng, settings=random_settings):
    return sound_sizes(partial(Case, *kind), partial(sizes, kind), settings, rng)


def plain_case(kind, settings, **boxes):
    case = Case(*kind, tuple(PLAIN[kind].items()), settings)
    for name, text in boxes.items():
        case = case.with_box(int(name.removeprefix("box")), text)
    return case


class RoundToRoundTest(OracleTest):
    def test_sound_fittings(self):
        cases = [sound_case(kind, rng_of(f"round to round {kind} {k}")) for kind in TYPES for k in range(35)]
        for wanted in (lambda s: s.HalfPattern, lambda s: s.JoinType and s.LapSize0 > 0,
                       lambda s: s.JoinType and s.LapSize1 > 0, lambda s: s.JoinType and s.LapSize2 > 0,
                       lambda s: s.segs % 2, lambda s: s.JoinAngle != 0, lambda s: s.InOutMean == 1,
                       lambda s: s.InOutMean == 2):
            self.assertGreater(sum(1 for case in cases if wanted(case.settings)), 5)
        self.check(cases)

    def test_plain_sizes(self):
        cases = [plain_case(kind, Settings(segs=segs, Thickness=3, InOutMean=place, HalfPattern=half, JoinType=join,
                                           LapSize0=4, LapSize1=10, LapSize2=6, JoinAngle=seam))
                 for kind in TYPES for segs, place, half, join, seam in
                 ((12, 0, False, 0, 0), (24, 1, True, 0, 0), (13, 2, False, 1, 90), (24, 0, True, 1, -30),
                  (3, 1, True, 1, 15), (2, 0, False, 1, 400), (1440, 0, False, 0, 0))]
        self.assertFalse(any(case.answer().refused for case in cases))
        self.check(cases)

    def test_one_fold_line(self):
        self.check([plain_case(kind, Settings(segs=1, HalfPattern=half, JoinType=1, LapSize1=5))
                    for kind in TYPES for half in (False, True)])

    def test_upright_tops(self):
        """Up to the limits of the angle, to either side, and with the top of type 3 for comparison."""
        cases = [plain_case((ROUND, 0), Settings(segs=24), box3=angle) for angle in ("90", "-90", "89.9", "0")]
        cases += [plain_case((ROUND, 1), Settings(segs=24), box7=offset, box8=angle)
                  for offset in ("-150", "0", "150") for angle in ("90", "-90")]
        cases += [plain_case((ROUND, 2), Settings(segs=24), box12=offset) for offset in ("-150", "0", "150")]
        self.assertFalse(any(case.answer().refused for case in cases))
        self.check(cases)

    def test_seam_laps_that_do_not_fit(self):
        cases = [plain_case(kind, Settings(segs=12, JoinType=join, LapSize1=lap))
                 for kind in TYPES for join, lap in ((1, 5000), (1, 5), (0, 5000))]
        said = [case.answer().messages for case in cases]
        self.assertEqual(said, [[(USER_ERROR, SEAM_LAP, None)], [], []] * len(TYPES))
        self.check(cases)

    def test_low_fittings(self):
        """The arcs of few stations are longer than so low a wall can make up for."""
        cases = [plain_case((CYLINDER, 0), Settings(segs=segs), box1=height, box2="0")
                 for segs in (1, 2, 4, 8, 24, 48) for height in ("0.001", "0.01", "0.1", "1", "3", "10", "60")]
        cases += [plain_case((ROUND, 0), Settings(segs=segs), box1="100", box2="0.5", box3="0") for segs in (2, 4, 48)]
        refused = [case for case in cases if case.answer().messages == [(PRODUCT, IMPOSSIBLE, None)]]
        self.assertGreater(len(refused), 10)
        self.assertGreater(len(cases) - len(refused), 10)
        self.check(cases)

    def test_sizes_without_a_shape(self):
        """They pass every check: no wall at all, sizes that nobody could cut."""
        settings = Settings(segs=6)
        cases = [plain_case((CYLINDER, 0), settings, box0="0"), plain_case((CYLINDER, 1), settings, box3="0"),
                 plain_case((CYLINDER, 1), settings, box5="1.1e9"), plain_case((ROUND, 1), settings, box7="-1.1e9"),
                 plain_case((ROUND, 2), settings, box12="9.9e8", box11="9.9e8"),
                 plain_case((ROUND, 0), Settings(segs=6, JoinType=1, LapSize2=1.1e9))]
        for case in cases:
            self.assertEqual(case.answer().messages, [(PRODUCT, IMPOSSIBLE, None)])
        self.check(cases)

    def test_limits(self):
        self.check_limits([sound_case(kind, rng_of(f"round to round at {kind}"), thick_settings) for kind in TYPES])

    def test_order_of_checks(self):
        self.check_order([sound_case(kind, rng_of(f"round to round order {kind}"), thick_settings) for kind in TYPES])

    def test_thick_material(self):
        cases = [plain_case(kind, Settings(segs=6, Thickness=10, InOutMean=place), **{f"box{box}": size})
                 for place in range(3) for size in ("-1", "0", "1e-9", "9.999", "10", "19.999", "20", "20.001")
                 for kind, box in ((TYPES[0], 0), (TYPES[0], 1), (TYPES[1], 4), (TYPES[1], 5), (TYPES[2], 9),
                                   (TYPES[2], 10), (TYPES[3], 0), (TYPES[4], 3))]
        self.assertGreater(sum(case.answer().refused for case in cases), 50)
        self.check(cases)

    def test_spoilt_fittings(self):
        cases = []
        for kind in TYPES:
            rng = rng_of(f"round to round spoilt {kind}")
            cases += [spoilt_case(sound_case(kind, rng), rng, BOX_COUNT[kind[0]]) for _ in range(25)]
        self.assertGreater(sum(case.answer().refused for case in cases), 60)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
