"""Bent plates of korvet-batch against a second computation of them."""

import math
import unittest

import ezdxf
import fitting_cases
import plate_bends_oracle
from batch_program import DONE, run
from fitting_cases import inside, random_settings, rng_of, sound, spoilt_case, typed
from fitting_maths import Settings
from oracle_test import OracleTest
from plate_bends_oracle import BOX_COUNT, CATEGORY, CORNERS
from window_checks import AT_LEAST, AT_MOST, IMPOSSIBLE, PRODUCT, USER_ERROR

# A channel of three right turns: legs of 100, 200 and 100.
PLAIN = {0: "500", 1: "10", 2: "20", 4: "10", 5: "120", 6: "30", 7: "210", 8: "120", 9: "40", 10: "210", 11: "20"}


class Case(fitting_cases.Case):
    answer = plate_bends_oracle.compute


def sizes(rng, count):
    """A line of so many corners that turns any way, with arcs that fit on their legs one beside the other."""
    size = 10 ** rng.uniform(0.7, 3.3)
    boxes = {0: size * rng.uniform(0.5, 4)}
    x, y, heading = (rng.uniform(-3, 3) * size for _ in "xyh")
    legs = [size * rng.uniform(0.5, 2) for _ in range(count)]
    for k in range(count):
        turn = rng.choice([-math.pi / 2, inside(rng, -math.pi, 0), inside(rng, 0, math.pi), 0.0])
        room = min(legs[k - 1], legs[k]) * math.tan((math.pi - abs(turn)) / 2) if abs(turn) > 1e-3 else size
        boxes.update({3 * k + 1: x, 3 * k + 2: y, 3 * k + 3: min(room, 9 * size) * rng.choice([0, rng.uniform(0, 0.49)])})
        heading += turn
        x, y = x + legs[k] * math.cos(heading), y + legs[k] * math.sin(heading)
    return boxes


def sound_case(rng, counts=range(2, CORNERS + 1)):
    def make(rng):
        boxes = sizes(rng, rng.choice(counts))
        return Case(CATEGORY, 0, typed(rng, boxes), random_settings(rng, boxes[0]))

    return sound(make, rng)


def plain_case(settings=None, **boxes):
    changed = {int(name.removeprefix("box")): text for name, text in boxes.items()}
    return Case(CATEGORY, 0, tuple({**PLAIN, **changed}.items()), settings or Settings(segs=6))


class PlateBendsTest(OracleTest):
    def test_sound_plates(self):
        cases = [sound_case(rng_of(f"plate {k}")) for k in range(120)]
        for count in range(2, CORNERS + 1):
            self.assertGreater(sum(1 for case in cases if len(case.boxes) == 3 * count + 1), 5)
        self.check(cases)

    def test_plain_plate(self):
        self.check([plain_case(Settings(segs=segs, Thickness=2, InOutMean=place))
                    for segs, place in ((1, 0), (2, 1), (7, 2), (24, 0), (100, 1))])

    def test_plate_without_bends(self):
        """Two corners are a flat plate; the radius of an end is never read."""
        flat = {0: "50", 1: "10", 2: "20", 4: "300", 5: "20"}
        cases = [Case(CATEGORY, 0, tuple({**flat, 3: radius, 6: radius}.items()), Settings(segs=6))
                 for radius in ("0", "-5", "1e6")]
        for case in cases:
            self.assertEqual(len(case.answer().model.List1), 2)
        self.check(cases)

    def test_corners_behind_the_last_one(self):
        """Corners of which all three numbers are 0 are none at the end of the line, but they are in the middle of it; at
        the end a radius makes one count."""
        corners = {"box13": "0", "box14": "0", "box15": "0", "box16": "0", "box17": "0", "box18": "0"}
        counts = []
        cases = [plain_case(**{**corners, **change}) for change in
                 ({}, {"box13": "5"}, {"box15": "1"}, {"box16": "5"}, {"box13": "5", "box18": "-1"}, {"box14": "-0", "box17": "0.0"})]
        for case in cases:
            counts.append((len(case.answer().model.List1) - 2) // 7)
        self.assertEqual(counts, [2, 3, 3, 4, 4, 2])
        self.check(cases)

    def test_limits(self):
        self.check_limits([sound_case(rng_of(f"plate at {k}"), [CORNERS]) for k in range(6)])

    def test_order_of_checks(self):
        self.check_order([sound_case(rng_of(f"plate order {k}"), [CORNERS]) for k in range(3)])

    def test_neighbours_share_a_leg(self):
        """On the leg of 200, radii of 90 and 110 touch; each one's limit is what the other leaves."""
        cases = [plain_case(box2="-200", box11="-200", box6=first, box9=second) for first, second in
                 (("90", "110"), ("90.001", "110"), ("90", "110.001"), ("250", "40"), ("0", "200"), ("10", "500"))]
        messages = [case.answer().messages for case in cases]
        self.assertEqual(messages, [[], [(USER_ERROR, AT_MOST + "90", 6)], [(USER_ERROR, AT_MOST + "90", 6)],
                                    [(USER_ERROR, AT_MOST + "160", 6)], [], [(USER_ERROR, AT_MOST + "0", 6)]])
        self.check(cases)

    def test_sizes_without_a_shape(self):
        one = {f"box{index}": "7" for index in (1, 2, 4, 5, 7, 8, 10, 11)}
        cases = [plain_case(**one), plain_case(**{f"box{index}": "0" for index in range(1, 12)})]
        for case in cases:
            self.assertEqual(case.answer().messages, [(PRODUCT, IMPOSSIBLE, 4)])
        others = [plain_case(box0="0"), plain_case(box4="10", box5="20"), plain_case(box7="10", box8="50", box9="0"),
                  plain_case(box7="10", box8="120"), plain_case(box10="210", box11="120"), plain_case(box0="1.1e9"),
                  plain_case(box10="210", box11="-1.1e9"), plain_case(box3="2e9"),
                  plain_case(box10="110", box11="120")]
        self.check_impossible(others)
        below = [plain_case(box6="-0.001"), plain_case(box9="-1", box6="1e6")]
        for case, box in zip(below, (6, 9)):
            self.assertEqual(case.answer().messages, [(USER_ERROR, AT_LEAST + "0", box)])
        self.check(cases + below)

    def test_spoilt_plates(self):
        rng = rng_of("plate spoilt")
        cases = [spoilt_case(sound_case(rng), rng, BOX_COUNT) for _ in range(60)]
        self.assertGreater(sum(case.answer().refused for case in cases), 25)
        self.check(cases)

    def test_outputs_of_a_pattern_are_empty(self):
        """There is nothing to lay flat: a drawing without an entity, a picture and a table without a point."""
        paths = [self.folder / f"plate.{kind}" for kind in ("dxf", "png", "svg", "txt", "Kvt")]
        options = [part for kind, path in zip(("dxf", "png", "svg", "table", "save"), paths) for part in (f"--{kind}", path)]
        for view in ("pattern", "model"):
            result = run(*plain_case().arguments(), "--view", view, *options, "--set", "FrameRequested=True",
                         "--set", "CoordGridRequested=True", "--set", "TrueLengthsRequested=True")
            self.assertEqual((result.status, result.errors), (DONE, ""))
            self.assertTrue(all(path.is_file() for path in paths))
            entities = list(ezdxf.readfile(paths[0]).modelspace())
            self.assertEqual(bool(entities), view == "model")


if __name__ == "__main__":
    unittest.main()
