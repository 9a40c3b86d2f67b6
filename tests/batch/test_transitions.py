"""Transitions of korvet-batch against a second computation of them."""

import unittest
from dataclasses import replace

import fitting_cases
import transition_oracle
from fitting_cases import inside, random_settings, rng_of, sound, spoilt_case, thick_settings, typed
from fitting_maths import SEAM_LAP, Settings
from oracle_test import OracleTest
from transition_oracle import (BOX_COUNT, ELLIPSE, FOLDED, NO_CHOICE, OVAL, PAGES, ROUND1, ROUND2, X_AXIS, Y_AXIS)
from window_checks import IMPOSSIBLE, NO_AXIS, NO_HALF, PRODUCT, USER_ERROR

TYPES = list(PAGES)
TILTING = [kind for kind in TYPES if "ta" in PAGES[kind]]
LONG = [kind for kind in TYPES if kind[1] == 1]

# A corner radius within the rectangle leaves the rectangle wider than the material; a repeated check has been made.
NEVER = {(ROUND2, 0, "room", 1), (ROUND2, 0, "room", 2)}


class Case(fitting_cases.Case):
    answer = transition_oracle.compute


def sizes(kind, rng):
    """{what: size} of a page; see PAGES."""
    size = 10 ** rng.uniform(0.7, 3.3)
    found = {name: size * rng.uniform(0.3, 1.5) for name in ("d", "tx", "ty", "bx", "by")}
    if kind[0] == OVAL:
        for short, long_ in (("ty", "tx"), ("by", "bx")):
            found[short] = found[long_] * rng.choice([1.0, rng.uniform(0.2, 0.95)])
    short_base, short_top = min(found["bx"], found["by"]), min(found["tx"], found["ty"])
    found["r"] = inside(rng, 0.02, 0.48, 0.0) * short_base
    found["tr"] = inside(rng, 0.02, 0.48, 0.0) * short_top
    found["h"] = size * rng.uniform(0.3, 2) * (1 if kind[0] == ELLIPSE else rng.choice([1, 1, -1]))
    found["ox"], found["oy"] = (rng.choice([0, size * rng.uniform(-0.6, 0.6)]) for _ in "xy")
    found["ta"], found["ba"] = (rng.choice([0, rng.uniform(-40, 40)]) for _ in "tb")
    return found, size


def case_of(kind, named, settings, options=()):
    boxes = {box: named[name] for name, box in PAGES[kind].items()}
    return Case(*kind, tuple((box, value if isinstance(value, str) else "%.17g" % value)
                             for box, value in boxes.items()), settings, options)


def sound_case(kind, rng, settings=random_settings):
    def make(rng):
        named, size = sizes(kind, rng)
        options = tuple((name, rng.choice([X_AXIS, Y_AXIS])) for name in ("optTopAngle", "optBaseAngle")
                        if kind in TILTING and rng.random() < 0.6)
        boxes = typed(rng, {box: named[name] for name, box in PAGES[kind].items()})
        return Case(*kind, boxes, settings(rng, size), options)

    return sound(make, rng)


def thick_case(kind, rng):
    return sound_case(kind, rng, thick_settings)


PLAIN = {"d": "80", "tx": "90", "ty": "60", "bx": "120", "by": "100", "r": "15", "tr": "12", "h": "110", "ox": "20",
         "oy": "0", "ta": "0", "ba": "0"}


def plain_case(kind, settings=Settings(), options=(), **others):
    return case_of(kind, PLAIN | others, settings, options)


class TransitionTest(OracleTest):
    def test_sound_transitions(self):
        cases = [sound_case(kind, rng_of(f"transition {kind} {k}")) for kind in TYPES for k in range(15)]
        texts = [text for case in cases for _, text, _ in case.answer().messages]
        self.assertGreater(min(texts.count(SEAM_LAP), texts.count(NO_HALF)), 3)
        self.check_variety(cases)

    def test_numbers_of_fold_lines(self):
        """Odd numbers leave the corners short of the quarter turn or take them past it."""
        cases = [plain_case(kind, Settings(segs=segs, HalfPattern=half))
                 for kind in TYPES for segs, half in
                 ((2, False), (3, True), (4, True), (5, False), (6, False), (7, True), (9, False), (11, True),
                  (13, False))]
        self.check(cases)

    def test_heights(self):
        cases = [plain_case(kind, Settings(segs=8), h=height) for kind in TYPES for height in ("-75.5", "0", "1e-3")]
        self.check(cases)

    def test_tilts(self):
        cases = [plain_case(kind, Settings(segs=6, HalfPattern=half),
                            (("optTopAngle", top_axis), ("optBaseAngle", base_axis)), ta=top, ba=base)
                 for kind in TILTING for half in (False, True) for top_axis in (X_AXIS, Y_AXIS)
                 for base_axis in (X_AXIS, Y_AXIS) for top, base in (("25", "-15"), ("-30", "0"), ("0", "20"))]
        cases += [plain_case(kind, Settings(segs=6, HalfPattern=True), ta="90", ba="-90") for kind in TILTING]
        self.check(cases)

    def test_axis_of_rotation(self):
        """An angle needs its axis, one of 0 does not."""
        cases = [plain_case(kind, Settings(segs=6), ((option, NO_CHOICE),), ta=top, ba=base)
                 for kind in TILTING for option in ("optTopAngle", "optBaseAngle")
                 for top, base in (("0", "0"), ("10", "0"), ("0", "10"), ("10", "10"), ("91", "0"))]
        told = [case for case in cases if case.answer().messages == [(USER_ERROR, NO_AXIS, None)]]
        self.assertEqual(len(told), 4 * len(TILTING))
        cases += [replace(case, boxes=case.with_box(PAGES[kind]["h"], "0").boxes)
                  for case in told for kind in [(case.category, case.dtype)]]
        self.check(cases)

    def test_half_patterns(self):
        """An offset along y or a tilt about x makes the halves uneven."""
        cases = [plain_case(kind, Settings(segs=segs, HalfPattern=True), oy=offset)
                 for kind in LONG for segs in (6, 7) for offset in ("0", "10", "-10", "1e-9", "45", "-70")]
        told = {case.category for case in cases if any(text == NO_HALF for _, text, _ in case.answer().messages)}
        self.assertEqual(told, {ROUND1, ROUND2, ELLIPSE, FOLDED})
        self.check(cases)

    def test_laps_and_material(self):
        cases = [plain_case(kind, Settings(segs=8, Thickness=2, InOutMean=place, JoinType=1, LapSize0=laps[0],
                                           LapSize1=laps[1], LapSize2=laps[2], HalfPattern=half))
                 for kind in TYPES for place, half, laps in
                 ((0, False, (0, 12, 0)), (1, False, (0, 12, 0)), (2, True, (0, 12, 0)), (0, True, (5, 0, 0)),
                  (1, True, (4, 8, 6)), (2, False, (4, 8, 6)), (0, False, (0, 500, 0)), (0, True, (0, 500, 0)))]
        self.check(cases)

    def test_offsets(self):
        """The start of the seam goes to the middle where the doubled offset leaves the straight side."""
        cases = [plain_case(kind, Settings(segs=6), ox=x, oy=y)
                 for kind in LONG
                 for x, y in (("0", "12"), ("-30", "-12"), ("15", "23.9"), ("15", "24.1"), ("0", "200"))]
        self.check(cases)

    def test_radii_of_nothing_and_of_half_the_side(self):
        cases = [plain_case(kind, Settings(segs=6, HalfPattern=half), r=radius, tr=top)
                 for kind in TYPES if kind[0] in (ROUND2, ELLIPSE, FOLDED) for half in (False, True)
                 for radius, top in (("0", "0"), ("50", "30"), ("50", "0"), ("0", "30"))]
        cases += [plain_case((FOLDED, 0), Settings(segs=6), bx="100", tx="60", r="50", tr="30")]
        self.check(cases)

    def test_limits(self):
        self.check_limits([thick_case(kind, rng_of(f"transition at {kind}")) for kind in TYPES], NEVER)

    def test_material_that_leaves_nothing(self):
        """Sizes that pass every check and are used up by the thickness: exactly, with more, and not quite."""
        settings = Settings(segs=6, Thickness=6, InOutMean=2)
        cases = [plain_case(kind, settings, d=size) for kind in TYPES if "d" in PAGES[kind]
                 for size in ("6", "5", "6.1")]
        cases += [plain_case(kind, settings, **{name: size}) for kind in TYPES if kind[0] == ELLIPSE
                  for name in ("tx", "ty") for size in ("6", "1", "6.1")]
        cases += [plain_case(kind, settings, bx=size) for kind in TYPES if kind[0] == ROUND1
                  for size in ("12", "8", "12.1")]
        told = [case for case in cases if case.answer().messages == [(PRODUCT, IMPOSSIBLE, None)]]
        self.assertEqual(told, cases[1::3])
        self.check(cases)

    def test_order_of_checks(self):
        self.check_order([thick_case(kind, rng_of(f"transition order {kind}")) for kind in TYPES])

    def test_box_that_starts_with_two_zeros(self):
        case = plain_case((FOLDED, 1), Settings(segs=4))
        self.check([case, replace(case, boxes=case.boxes + ((2, ""),)), replace(case, boxes=case.boxes + ((2, "x"),))])

    def test_spoilt_transitions(self):
        cases = []
        for kind in TYPES:
            rng = rng_of(f"transition spoilt {kind}")
            cases += [spoilt_case(sound_case(kind, rng), rng, BOX_COUNT[kind[0]]) for _ in range(10)]
        self.assertGreater(sum(case.answer().refused for case in cases), 50)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
