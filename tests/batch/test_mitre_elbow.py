"""Mitre elbows of korvet-batch against a second computation of them."""

import unittest

import ezdxf
import fitting_cases
import mitre_elbow_oracle
from batch_program import run
from fitting_cases import inside, pipe_settings, rng_of, sound, spoilt_case, typed
from fitting_maths import Settings, distance
from mitre_elbow_oracle import BOX_COUNT, CATEGORY
from oracle_test import OracleTest

PLAIN = {0: "100", 1: "300", 2: "210.5", 3: "120", 4: "80"}


class Case(fitting_cases.Case):
    answer = mitre_elbow_oracle.compute


def sizes(rng):
    width = 10 ** rng.uniform(0.7, 3.3)
    angle = rng.choice([90.0, 180.0, 270.0, inside(rng, 0, 180), inside(rng, 180, 360), -inside(rng, 0, 180), 450.0])
    reach = abs(mitre_elbow_oracle.MitreElbow(width, 0.0, 0.0, mitre_elbow_oracle.deg_to_rad(angle), 1.0).reach)
    lengths = [reach * rng.uniform(1.01, 2) + width * rng.uniform(0, 5) for _ in "12"]
    return {0: width * rng.choice([1, 1, 1, -1]), 1: lengths[0], 2: lengths[1], 3: angle,
            4: width * rng.uniform(0.2, 4) * rng.choice([1, 1, 1, -1])}


def sound_case(rng):
    def make(rng):
        boxes = sizes(rng)
        return Case(CATEGORY, 0, typed(rng, boxes), pipe_settings(rng, abs(boxes[4])))

    return sound(make, rng)


def plain_case(**boxes):
    return Case(CATEGORY, 0, tuple(PLAIN.items()), Settings(segs=6)).with_boxes(**boxes)


class MitreElbowTest(OracleTest):
    def test_sound_elbows(self):
        """No choice of half, laps, seam, kerf or material changes a piece."""
        cases = [sound_case(rng_of(f"mitre elbow {k}")) for k in range(80)]
        for wanted in (lambda c: c.value(0) < 0, lambda c: c.value(4) < 0, lambda c: c.value(3) > 180,
                       lambda c: c.value(3) < 0, lambda c: c.value(3) == 90):
            self.assertGreater(sum(1 for case in cases if wanted(case)), 3)
        self.check_variety(cases, lambda s: s.KerfSpacing > 0)

    def test_angles(self):
        self.check([plain_case(box3=str(angle)) for angle in (36, 60, 89.999, 90, 135, 179.99, 180, 181, 225, 270, 323)])

    def test_lengths_as_short_as_the_mitre(self):
        """A right angle takes lengths of just half the width."""
        shortest = [plain_case(box3=angle, **{box: length}) for angle in ("90", "270") for box in ("box1", "box2")
                    for length in ("50", "49.9999999", "50.0000001", "0", "-300")]
        self.assertEqual([case.answer().refused for case in shortest], [False, True, False, True, True] * 4)
        self.check(shortest)

    def test_sizes_without_a_shape(self):
        cases = [plain_case(**{box: size}) for box, size in
                 (("box0", "0"), ("box4", "0"), ("box3", "0"), ("box3", "360"), ("box3", "1e-7"), ("box3", "10"),
                  ("box0", "900"), ("box1", "1.1e9"), ("box4", "-1.1e9"), ("box3", "1e10"))]
        cases.append(plain_case(box1="9.9e8", box2="9.9e8", box3="180"))  # laid flat it is twice as long
        self.check_impossible(cases)

    def test_spoilt_elbows(self):
        rng = rng_of("mitre elbow spoilt")
        cases = [spoilt_case(sound_case(rng), rng, BOX_COUNT) for _ in range(60)]
        self.assertGreater(sum(case.answer().refused for case in cases), 25)
        self.check(cases)

    def test_cut_files_keep_the_corners(self):
        """Every edge of every piece is cut straight from corner to corner; nothing is rounded."""
        cases = [plain_case(), plain_case(box3="90"), plain_case(box3="250"), plain_case(box3="90", box1="50")]
        cases += [sound_case(rng_of(f"mitre elbow cut {k}")) for k in range(12)]
        for number, case in enumerate(cases):
            with self.subTest(case=case):
                path = self.folder / f"{number}.dxf"
                run(*case.arguments(), "--dxf", path)
                space = ezdxf.readfile(path).modelspace()
                self.assertEqual({entity.dxftype() for entity in space}, {"LINE"})
                lines = [(line.dxf.start, line.dxf.end) for line in space if line.dxf.layer == "CutLayer"]
                edges = [(a[:3], b[:3]) for piece in case.answer().pattern for side in (piece.List1, piece.List2)
                         for a, b in zip(side, side[1:])]
                for a, b in edges:
                    self.assertTrue(self.is_cut(a, b, lines), f"{a} {b}")

    def is_cut(self, a, b, lines):
        """Whether a line runs from a to b, or past one of them straight on."""
        reach = distance(a, b)
        return any(abs(distance(a, p) + reach + distance(b, q) - distance(p, q)) < 1e-5 or
                   abs(distance(a, q) + reach + distance(b, p) - distance(p, q)) < 1e-5 for p, q in lines)


if __name__ == "__main__":
    unittest.main()
