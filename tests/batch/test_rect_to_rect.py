"""Sharp transitions between two rectangles of korvet-batch against a second computation of them."""

import unittest
from dataclasses import replace

import fitting_cases
import rect_to_rect_oracle
from fitting_cases import random_settings, rng_of, sound, spoilt_case, typed
from fitting_maths import Settings
from oracle_test import OracleTest
from rect_to_rect_oracle import BOX_COUNT, CATEGORY, PAGES

TYPES = range(4)
PLAIN = {"tx": "90", "ty": "60", "bx": "120", "by": "100", "ox": "20", "oy": "15", "h": "110", "ba": "10", "ta": "-25",
         "rotation": "0.4"}


class Case(fitting_cases.Case):
    answer = rect_to_rect_oracle.compute


def sizes(rng):
    """{what: size}."""
    size = 10 ** rng.uniform(0.7, 3.3)
    found = {name: size * rng.uniform(0.3, 1.5) for name in ("tx", "ty", "bx", "by")}
    found["h"] = size * rng.uniform(0.3, 2) * rng.choice([1, 1, -1])
    found["ox"], found["oy"] = (rng.choice([0, size * rng.uniform(-0.6, 0.6)]) for _ in "xy")
    found["ta"], found["ba"] = (rng.choice([0, rng.uniform(-90, 90)]) for _ in "tb")
    found["rotation"] = rng.choice([0, rng.uniform(-7, 7)])
    return found, size


def case_of(dtype, named, settings, forms=("%.17g",), rng=None):
    boxes = {box: named[name] for name, box in PAGES[dtype].items()}
    return Case(CATEGORY, dtype, typed(rng or rng_of("form"), boxes, forms), settings)


def sound_case(dtype, rng, settings=random_settings):
    def make(rng):
        named, size = sizes(rng)
        return case_of(dtype, named, settings(rng, size), fitting_cases.NUMBER_FORMS, rng)

    return sound(make, rng)


def plain_case(dtype, settings=Settings(), **others):
    return case_of(dtype, PLAIN | others, settings)


class RectToRectTest(OracleTest):
    def test_sound_transitions(self):
        cases = [sound_case(dtype, rng_of(f"rectangles {dtype} {k}")) for dtype in TYPES for k in range(50)]
        self.assertFalse(any(case.answer().messages for case in cases))
        self.check_variety(cases, lambda s: s.InOutMean == 0, lambda s: s.Thickness > 0)

    def test_angles_and_heights(self):
        cases = [plain_case(dtype, h=height, ta=top, ba=base, rotation=turn) for dtype in TYPES
                 for height in ("75.5", "-110", "1e-3") for top, base in (("0", "0"), ("30", "30"), ("90", "-90"),
                                                                        ("-400", "12.25"))
                 for turn in ("0", "1.5707963267948966", "-3")]
        self.assertFalse(any(case.answer().refused for case in cases))
        self.check(cases)

    def test_text_lines_of_type_three(self):
        """They are those of the boxes of Type 2, which may hold anything."""
        case = plain_case(2)
        others = tuple((box, text) for box, text in zip(PAGES[1].values(), ("1", "2.50", "-3", "4e1", "5", "6", "0")))
        case = replace(case, boxes=case.boxes + others)
        self.assertIn("Top length Y = 2.50", case.answer().labels)
        self.check([case])

    def test_limits(self):
        self.check_limits([sound_case(dtype, rng_of(f"rectangles at {dtype}")) for dtype in TYPES])

    def test_order_of_checks(self):
        self.check_order([sound_case(dtype, rng_of(f"rectangles order {dtype}")) for dtype in TYPES])

    def test_sizes_without_a_shape(self):
        """A corner of the top on that of the base to which it is ruled, and what is out of reach."""
        throat = {"ox": "0", "oy": "0", "ba": "0", "ta": "-90", "tx": "110", "ty": "100", "rotation": "0"}
        cases = [plain_case(1, **throat), plain_case(0, tx="1.1e9"), plain_case(2, oy="-1.1e9"),
                 plain_case(3, rotation="1.1e9"), plain_case(0, ox="1e9"), plain_case(1, ta="1e10")]
        self.check_impossible(cases)
        self.check([plain_case(2, **throat), plain_case(1, **(throat | {"ta": "-89.9999"}))])

    def test_spoilt_transitions(self):
        cases = []
        for dtype in TYPES:
            rng = rng_of(f"rectangles spoilt {dtype}")
            cases += [spoilt_case(sound_case(dtype, rng), rng, BOX_COUNT) for _ in range(25)]
        self.assertGreater(sum(case.answer().refused for case in cases), 40)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
