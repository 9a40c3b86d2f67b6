"""Rectangular tees of korvet-batch against a second computation of them, and their empty patterns."""

import unittest

import fitting_cases
import rectangular_tee_oracle
from batch_program import DONE, run
from dxf_measure import Drawing
from fitting_cases import pipe_settings, rng_of, spoilt_case, typed
from fitting_maths import Settings
from oracle_test import OracleTest
from rectangular_tee_oracle import ANGLE_BOX, BOX_COUNT, BOXES, CATEGORY

EMPTY_DXF = b"0\r\nSECTION\r\n2\r\nENTITIES\r\n0\r\nENDSEC\r\n0\r\nEOF\r\n"
PLAIN = ({0: "200", 1: "420", 2: "260", 3: "300", 4: "150", 5: "180", 6: "240"},
         {7: "190", 8: "350", 9: "310", 10: "280", 11: "140", 12: "100", 13: "220"})


class Case(fitting_cases.Case):
    answer = rectangular_tee_oracle.compute


def random_case(rng, dtype, settings=pipe_settings):
    size = 10 ** rng.uniform(0, 4)
    boxes = {index: size * rng.choice([rng.uniform(0.1, 3), rng.uniform(0.1, 3), 0, rng.uniform(-2, 0)])
             for index in BOXES[dtype]}
    if dtype:
        boxes[ANGLE_BOX] = rng.choice([45, 60, 90, 120, rng.uniform(-720, 720)])
    return Case(CATEGORY, dtype, typed(rng, boxes), settings(rng, size))


def plain_case(dtype, settings, **boxes):
    return Case(CATEGORY, dtype, tuple(PLAIN[dtype].items()), settings).with_boxes(**boxes)


class RectangularTeeTest(OracleTest):
    def test_any_sizes(self):
        """Nothing is refused: widths and lengths of 0, below 0, longer than what they are cut from."""
        cases = [random_case(rng_of(f"rectangular tee {dtype} {k}"), dtype) for dtype in range(2) for k in range(60)]
        self.assertFalse(any(case.answer().refused for case in cases))
        self.check_variety(cases, lambda s: s.Thickness)

    def test_plain_sizes(self):
        self.check([plain_case(dtype, Settings(segs=segs)) for dtype in range(2) for segs in (1, 24)] +
                   [plain_case(1, Settings(), box12=angle) for angle in ("90", "180", "179.9", "1", "-100", "270")] +
                   [plain_case(1, Settings(), box11=width) for width in ("0", "190", "-140")])

    def test_new_window(self):
        """All sizes 0: every corner lies in one place."""
        cases = [Case(CATEGORY, dtype, (), Settings()) for dtype in range(2)]
        self.assertEqual({p[:3] for p in cases[0].answer().model.List2}, {(0.0, 0.0, 0.0)})
        self.check(cases[:1])

    def test_sizes_without_a_shape(self):
        settings = Settings()
        cases = [plain_case(0, settings, box0="1.1e9"), plain_case(0, settings, box6="-1e300"),
                 plain_case(0, settings, box1="6e8", box5="-6e8"),
                 plain_case(1, settings, box12="0"), plain_case(1, settings, box12="360"),
                 plain_case(1, settings, box12="1.1e9"), plain_case(1, settings, box9="9e8", box10="9e8", box12="10")]
        self.check_impossible(cases)

    def test_spoilt_tees(self):
        rng = rng_of("rectangular tee spoilt")
        cases = [spoilt_case(random_case(rng, k % 2), rng, BOX_COUNT) for k in range(40)]
        self.assertGreater(sum(case.answer().refused for case in cases), 15)
        self.check(cases)

    def test_its_pattern_is_an_empty_drawing(self):
        """It has none, and says nothing of it; the model is a drawing as any other."""
        for dtype in range(2):
            arguments = plain_case(dtype, Settings()).arguments()
            for view, empty in (("pattern", True), ("model", False)):
                paths = [self.folder / f"{view}{dtype}.{kind}" for kind in ("dxf", "svg", "png", "Kvt")]
                outputs = [part for name, path in zip(("--dxf", "--svg", "--png", "--save"), paths)
                           for part in (name, path)]
                result = run(*arguments, "--view", view, "--json", "-", *outputs)
                self.assertEqual((result.status, result.errors, result.json["pattern"]), (DONE, "", []))
                self.assertEqual(Drawing(self, paths[0]).kinds, set() if empty else {"LINE"})
                self.assertEqual(paths[0].read_bytes() == EMPTY_DXF, empty)
                self.assertTrue(all(path.stat().st_size for path in paths))
                saved = run(paths[3], "--json", "-").json
                self.assertEqual((saved["model"], saved["labels"]), (result.json["model"], result.json["labels"]))


if __name__ == "__main__":
    unittest.main()
