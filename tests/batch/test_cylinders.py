"""Right cylinders of korvet-batch against a second computation of them."""

import math
import unittest
from functools import partial
from dataclasses import replace

import cylinder_oracle
import fitting_cases
from cylinder_oracle import BOX_COUNT, CATEGORY
from fitting_cases import inside, pipe_settings, rng_of, sound_sizes, spoilt_case, thick_settings
from fitting_maths import Settings, rad_to_deg
from oracle_test import OracleTest

TYPES = range(6)


class Case(fitting_cases.Case):
    answer = cylinder_oracle.compute


def sizes(dtype, rng):
    base = 10 ** rng.uniform(0.7, 3.3)
    radius, height = base / 2, base * rng.uniform(0.15, 3)

    def tilt(at_height, at_radius=radius, least=None):
        limit = rad_to_deg(math.atan(at_height / at_radius))
        return inside(rng, -limit if least is None else least, limit)

    if dtype == 0:
        return {0: base, 1: height}
    if dtype == 1:
        return {2: base, 3: height, 4: tilt(height)}
    if dtype == 2:
        return {5: base, 6: height, 7: base * rng.uniform(0.15, 3)}
    if dtype == 3:
        return {8: base, 9: height, 10: tilt(height, least=-85), 11: tilt(height, least=-85)}
    if dtype == 4:
        upper = tilt(height)
        lowest = height - radius * abs(math.tan(math.radians(upper)))
        return {12: base, 13: height, 14: upper, 15: tilt(lowest), 21: rng.choice([0, 45, -90, 200, 400.5])}
    offset = rng.choice([0.0, inside(rng, -radius, radius)])
    return {16: base, 17: height, 18: tilt(height, radius - offset, -85), 19: tilt(height, radius + offset, -85),
            20: offset}


def sound_case(dtype, rng, settings=pipe_settings):
    return sound_sizes(partial(Case, CATEGORY, dtype), partial(sizes, dtype), settings, rng)


def thick_case(dtype, rng):
    return sound_case(dtype, rng, thick_settings)


class CylinderTest(OracleTest):
    def test_sound_cylinders(self):
        cases = [sound_case(dtype, rng_of(f"cylinder {dtype} {k}")) for dtype in TYPES for k in range(25)]
        self.check_variety(cases, lambda s: s.JoinAngle < 0, lambda s: s.JoinAngle > 360,
                           lambda s: s.TemplateType and s.Thickness)

    def test_plain_sizes(self):
        boxes = ({0: "100", 1: "50"}, {2: "100", 3: "80", 4: "30"}, {5: "100", 6: "40", 7: "90"},
                 {8: "100", 9: "80", 10: "20", 11: "35"}, {12: "100", 13: "150", 14: "25", 15: "-30", 21: "90"},
                 {16: "100", 17: "120", 18: "15", 19: "40", 20: "20"})
        cases = [Case(CATEGORY, dtype, tuple(boxes[dtype].items()),
                      Settings(segs=segs, Thickness=3, InOutMean=place, HalfPattern=half, JoinType=join, LapSize0=4,
                               LapSize1=10, LapSize2=6, TemplateType=template))
                 for dtype in TYPES for segs, place, half, join, template in
                 ((12, 0, False, 0, 0), (24, 1, True, 0, 1), (13, 2, False, 1, 1), (24, 0, True, 1, 0))]
        self.check(cases)

    def test_ridges_among_the_stations(self):
        """Ridges whose ends fall on a station or a hair beside it, and roofs that fall or rise."""
        boxes = {16: "200", 17: "150", 18: "10", 19: "-20"}
        cases = [Case(CATEGORY, 5, tuple({**boxes, 20: offset}.items()), Settings(segs=segs, HalfPattern=half))
                 for offset in ("0", "50", "-50", "86.6025403784439", "99.9", "-99.9", "1e-7")
                 for segs in (2, 3, 12) for half in (False, True)]
        boxes = {8: "200", 9: "150"}
        cases += [Case(CATEGORY, 3, tuple({**boxes, 10: one, 11: other}.items()), Settings(segs=segs, HalfPattern=half))
                  for one, other in (("30", "30"), ("-30", "45"), ("0", "0"), ("-80", "-80"))
                  for segs in (2, 5, 12) for half in (False, True)]
        self.check(cases)

    def test_seams_all_round(self):
        """Only the types without a ridge heed the seam angle."""
        good = {dtype: sound_case(dtype, rng_of(f"seam {dtype}")) for dtype in (1, 3, 4, 5)}
        cases = [replace(case, settings=Settings(segs=segs, JoinAngle=angle, JoinType=1, LapSize1=5))
                 for case in good.values() for segs in (2, 24)
                 for angle in (-725.25, -360, -90, -1e-3, 1e-9, 90, 179.9, 270, 359.9, 360, 400, 1e4)]
        self.check(cases)

    def test_limits(self):
        self.check_limits([thick_case(dtype, rng_of(f"cylinder at {dtype}")) for dtype in TYPES])

    def test_order_of_checks(self):
        self.check_order([thick_case(dtype, rng_of(f"cylinder order {dtype}")) for dtype in TYPES])

    def test_thick_material(self):
        """Half the material against the radius of inside, outside and mean sizes."""
        cases = [Case(CATEGORY, 0, ((0, size), (1, "50")), Settings(Thickness=10, InOutMean=place))
                 for place in range(3) for size in ("-1", "0", "1e-9", "9.999", "10", "19.999", "20", "20.001")]
        self.check(cases)

    def test_spoilt_cylinders(self):
        cases = []
        for dtype in TYPES:
            rng = rng_of(f"cylinder spoilt {dtype}")
            cases += [spoilt_case(sound_case(dtype, rng), rng, BOX_COUNT) for _ in range(15)]
        self.assertGreater(sum(case.answer().refused for case in cases), 50)
        self.check(cases)


if __name__ == "__main__":
    unittest.main()
