"""Oval pipes, bends and elbows of korvet-batch against a second computation of them."""

import unittest

import fitting_cases
import oval_oracle
from fitting_cases import pipe_settings, rng_of, sound, spoilt_case, thick_settings, typed
from fitting_maths import Settings
from oracle_test import OracleTest
from oval_oracle import BEND, BOX_COUNT, BOXES, ELBOW, FULL_LAYOUT, PIPE, SHORT_LAYOUT
from window_checks import NO_PATTERN, USER_ERROR

TYPES = [(category, dtype) for category in (PIPE, BEND, ELBOW) for dtype in range(len(BOXES[category]))]
PLAIN = {
    PIPE: ({0: "100", 1: "150", 2: "260"}, {5: "100", 15: "230", 3: "200", 4: "30"},
           {12: "120", 14: "300", 6: "90", 7: "160"}, {13: "100", 11: "210", 9: "140", 8: "20", 10: "-35"}),
    BEND: ({0: "100", 11: "240", 1: "150", 2: "5", 3: "20", 4: "0"},
           {5: "100", 12: "220", 6: "200", 7: "60", 8: "0", 9: "35.5", 10: "4"}),
    ELBOW: ({0: "100", 10: "230", 1: "120", 2: "90", 3: "130"}, {4: "100", 11: "250", 5: "80", 6: "110"},
            {7: "100", 12: "210", 8: "150", 9: "70"}),
}


class Case(fitting_cases.Case):
    answer = oval_oracle.compute


def pipe_sizes(dtype, rng, base, length):
    height = base * rng.uniform(0.6, 3)
    if dtype == 0:
        return {0: base, 1: height, 2: length}
    if dtype == 1:
        return {5: base, 15: length, 3: height, 4: rng.uniform(-45, 45)}
    if dtype == 2:
        return {12: base, 14: length, 6: height, 7: base * rng.uniform(0.2, 3)}
    return {13: base, 11: length, 9: height, 8: rng.uniform(-80, 45), 10: rng.uniform(-80, 45)}


def bend_sizes(dtype, rng, base, length):
    radius, straight = base * rng.uniform(0.6, 4), [rng.choice([0, base * rng.uniform(0, 2)]) for _ in "12"]
    pieces = rng.randint(2, 9)
    if dtype == 0:
        return {0: base, 11: length, 1: radius, 2: str(pieces), 3: straight[0], 4: straight[1]}
    angle = rng.uniform(5, 359) if pieces > 4 else rng.uniform(5, 150)
    return {5: base, 12: length, 6: radius, 7: angle, 8: straight[0], 9: straight[1], 10: str(pieces)}


def elbow_sizes(dtype, rng, base, length):
    legs = [base * rng.uniform(0.6, 3) for _ in "12"]
    if dtype == 0:
        return {0: base, 10: length, 1: legs[0], 2: legs[1], 3: rng.uniform(10, 170)}
    if dtype == 1:
        return {4: base, 11: length, 5: legs[0], 6: legs[1]}
    return {7: base, 12: length, 8: legs[0], 9: rng.uniform(10, 170)}


SIZES = {PIPE: pipe_sizes, BEND: bend_sizes, ELBOW: elbow_sizes}


def sound_case(category, dtype, rng, settings=pipe_settings):
    def make(rng):
        base = 10 ** rng.uniform(0.7, 3.3)
        boxes = SIZES[category](dtype, rng, base, base * rng.choice([1.001, rng.uniform(1.01, 6)]))
        select = rng.choice([FULL_LAYOUT, SHORT_LAYOUT]) if category == BEND else None
        return Case(category, dtype, typed(rng, boxes), settings(rng, base), select=select)

    return sound(make, rng)


def limit_case(category, dtype, rng):
    """One that keeps its shape when its angle or number of pieces is taken to the limit."""
    case = sound_case(category, dtype, rng, thick_settings)
    if category == BEND and dtype == 1:
        return case.with_box(7, "100").with_box(10, "6")
    return case


def plain_case(category, dtype, settings, select=FULL_LAYOUT, view="pattern"):
    return Case(category, dtype, tuple(PLAIN[category][dtype].items()), settings,
                select=select if category == BEND else None, view=view)


class OvalTest(OracleTest):
    def test_sound_sizes(self):
        cases = [sound_case(*kind, rng_of(f"oval {kind} {k}")) for kind in TYPES for k in range(20)]
        self.check_variety(cases, lambda s: s.KerfSpacing > 0)

    def test_plain_sizes(self):
        self.check([plain_case(*kind, Settings(segs=segs, Thickness=3, InOutMean=place, HalfPattern=half, JoinType=join,
                                               LapSize1=10, KerfSpacing=25, JoinAngle=seam), select)
                    for kind in TYPES for select in (FULL_LAYOUT, SHORT_LAYOUT)
                    for segs, place, half, join, seam in ((12, 0, False, 0, 0), (24, 1, True, 0, 0),
                                                          (13, 2, False, 1, 90), (2, 0, False, 1, 400))])

    def test_length_of_just_the_diameter(self):
        """A round pipe, two stations of which stand at one place; refused for a bend of any angle alone."""
        refused = []
        for category, dtype in TYPES:
            diameter, length = [(box[0], box[1]) for box in [list(PLAIN[category][dtype])]][0]
            if (category, dtype) == (PIPE, 0):
                length = 2
            case = plain_case(category, dtype, Settings(segs=12)).with_box(length, "100").with_box(diameter, "100")
            refused += [(category, dtype)] if case.answer().refused else []
            self.check([case])
        self.assertEqual(refused, [(BEND, 1)])

    def test_elbow_shorter_than_its_diameter(self):
        """In the first type a length between radius and diameter passes, and so does a leg below 0."""
        self.check([plain_case(ELBOW, 0, Settings(segs=6)).with_box(10, text) for text in ("100", "70", "50", "49")])
        self.check([plain_case(ELBOW, 0, Settings(segs=6)).with_box(1, text) for text in ("0", "-10", "-23", "-24")])

    def test_choice_of_pattern(self):
        cases = [plain_case(BEND, dtype, Settings(segs=6), select=None, view=view)
                 for dtype in range(2) for view in ("pattern", "model")]
        answers = [case.answer() for case in cases]
        self.assertEqual([answer.refused for answer in answers], [True, False, True, False])
        self.assertEqual(answers[0].messages, [(USER_ERROR, NO_PATTERN, None)])
        self.check(cases)

    def test_limits(self):
        self.check_limits([limit_case(*kind, rng_of(f"oval at {kind}")) for kind in TYPES])

    def test_order_of_checks(self):
        self.check_order([limit_case(*kind, rng_of(f"oval order {kind}")) for kind in TYPES])

    def test_sizes_without_a_shape(self):
        """They pass every check: no mitre, or nothing that a workshop could make."""
        settings = Settings(segs=6)
        cases = [plain_case(BEND, 1, settings).with_box(10, "2").with_box(7, "180"),
                 plain_case(BEND, 1, settings).with_box(10, "2").with_box(7, "270"),
                 plain_case(BEND, 0, settings).with_box(3, "1.1e9"),
                 plain_case(PIPE, 0, settings).with_box(2, "1.1e9"),
                 plain_case(ELBOW, 1, settings).with_box(5, "1.1e9"),
                 plain_case(ELBOW, 2, settings).with_box(8, "9e8").with_box(9, "179.9")]
        self.check_impossible(cases)

    def test_spoilt_sizes(self):
        cases = []
        for category, dtype in TYPES:
            rng = rng_of(f"oval spoilt {category} {dtype}")
            cases += [spoilt_case(sound_case(category, dtype, rng), rng, BOX_COUNT[category]) for _ in range(15)]
        self.assertGreater(sum(case.answer().refused for case in cases), 60)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
