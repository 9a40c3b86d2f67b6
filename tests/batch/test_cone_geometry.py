"""Cones of korvet-batch against closed forms: what any true development of a cone must fulfil."""

import math
import unittest

import cone_cases
from batch_program import run_all
from cone_cases import TYPES, Case
from cone_oracle import RIGHT_CONE, TRUNCATED
from fitting_maths import Settings


def length(p, q):
    return math.dist(p[:3], q[:3])


def tangent(degrees):
    return math.tan(math.radians(degrees))


class Shape:
    """The cone that the typed sizes mean, of the middle of its material: radius at height 0, half angle, and the
    heights z(x) of the two cuts."""

    def __init__(self, case):
        value = case.value
        self.angle = cone_cases.case_angle(case)
        leaning = 1 if (case.category, case.dtype) == (TRUNCATED, 0) else math.cos(self.angle)
        self.shift = (0, 1, -1)[case.settings.InOutMean] * case.settings.Thickness / 2 * leaning
        base = {RIGHT_CONE: (0, 3, 6), TRUNCATED: (0, 4, 8, 19, 20)}[case.category][case.dtype]
        self.radius = value(base) / 2 + self.shift
        self.apex = self.radius / math.tan(self.angle)
        upper, lower = getattr(self, f"_{'right' if case.category == RIGHT_CONE else 'cut'}{case.dtype}")(value)
        self.upper, self.lower = upper, lower

    def _level(self, base, top):
        return (base - top) / 2 / math.tan(self.angle)

    def _right0(self, value):
        return (lambda x: self._level(value(0), value(1))), (lambda x: 0.0)

    def _right1(self, value):
        return (lambda x: value(5)), (lambda x: 0.0)

    def _right2(self, value):
        return (lambda x: self._level(value(6), value(7))), (lambda x: 0.0)

    def _cut0(self, value):
        return (lambda x: value(1) - x * tangent(value(3))), (lambda x: 0.0)

    def _cut1(self, value):
        return (lambda x: value(7) - x * tangent(value(5))), (lambda x: 0.0)

    def _cut2(self, value):
        return (lambda x: value(9) - x * tangent(value(12))), (lambda x: value(11) + x * tangent(value(10)))

    def _cut3(self, value):
        """A roof on top: it falls away from the ridge at the offset on both sides."""
        def upper(x):
            away = x - value(15)
            return value(18) - abs(away) * tangent(value(16 if away > 0 else 14))
        return upper, lambda x: 0.0

    def _cut4(self, value):
        """A roof below: it rises from the ridge at the offset on both sides."""
        def lower(x):
            away = x - value(24)
            return value(23) + abs(away) * tangent(value(26 if away > 0 else 25))
        return (lambda x: value(22)), lower


class CaseTest(unittest.TestCase):
    """Tests that go through cases: a failure tells of the one at hand."""

    case = None

    def _formatMessage(self, msg, standardMsg):
        return f"{super()._formatMessage(msg, standardMsg)}\nin {self.case}"


class GeometryTest(CaseTest):
    @classmethod
    def setUpClass(cls):
        cases = [cone_cases.sound_case(*kind, cone_cases.rng_of(f"geometry {kind} {k}"))
                 for kind in TYPES for k in range(12)]
        runs = run_all([case.arguments() + ["--json", "-"] for case in cases])
        cls.cones = [(case, Shape(case), run.json["model"][0], run.json["pattern"][0])
                     for case, run in zip(cases, runs)]

    def each(self, wanted=lambda case: True):
        found = 0
        for case, shape, model, pattern in self.cones:
            if wanted(case):
                found += 1
                self.case = case
                yield case, shape, model, pattern
        self.assertGreater(found, 5)

    def edges(self, case, pattern):
        """The two true edges of a pattern, without laps."""
        settings = case.settings
        laps = settings.JoinType > 0
        count = -1 if laps and settings.LapSize1 > 0 else None
        first = pattern["LapList1" if laps and settings.LapSize0 > 0 else "List1"]
        second = pattern["LapList2" if laps and settings.LapSize2 > 0 else "List2"]
        return first[:count], second[:count]

    def test_true_lengths_of_rulings(self):
        for case, _, model, pattern in self.each():
            first, second = self.edges(case, pattern)
            self.assertEqual(len(first), len(model["List1"]))
            size = max(length(p, (0, 0, 0)) for p in second + first)
            for a, b, p, q in zip(model["List1"], model["List2"], first, second):
                self.assertAlmostEqual(length(a, b), length(p, q), delta=1e-9 * size)

    def test_distances_from_the_apex_are_kept(self):
        for case, shape, model, pattern in self.each():
            for name, edge in zip(("List1", "List2"), self.edges(case, pattern)):
                for p, q in zip(model[name], edge):
                    far = length(p, (0, 0, shape.apex))
                    self.assertAlmostEqual(length(q, (0, 0, 0)), far, delta=1e-9 * max(far, shape.apex))

    def test_patterns_are_flat(self):
        for _, _, _, pattern in self.each():
            self.assertEqual({p[2] for name in ("List1", "List2") for p in pattern[name]}, {0})

    def test_model_lies_on_the_cone(self):
        for _, shape, model, _ in self.each():
            for p in model["List1"] + model["List2"]:
                radius = (shape.apex - p[2]) * math.tan(shape.angle)
                self.assertAlmostEqual(math.hypot(p[0], p[1]), radius, delta=2e-9 * shape.radius)

    def test_model_lies_on_the_cuts(self):
        for case, shape, model, _ in self.each():
            size = max(shape.apex, shape.radius)
            tolerance = 1e-9 * size
            for name, cut in (("List1", shape.upper), ("List2", shape.lower)):
                for p in model[name]:
                    self.assertAlmostEqual(p[2], cut(p[0]), delta=tolerance, msg=f"{name} {p}")

    def test_stations_are_evenly_spaced(self):
        """Regular stations lie a step apart in plan, from the seam on; a roofed cone starts at 0."""
        for case, _, model, _ in self.each():
            roofed = case.category == TRUNCATED and case.dtype > 2
            start = 0 if roofed else math.radians(case.settings.JoinAngle)
            step = 2 * math.pi / case.settings.segs
            regular = [(p, q) for p, q in zip(model["List1"], model["List2"]) if 5 not in (p[3], q[3])]
            for index, (p, _) in enumerate(regular):
                turn = math.atan2(p[1], p[0]) - start - index * step
                self.assertAlmostEqual(math.sin(turn / 2), 0, delta=1e-9, msg=f"station {index + 1}")
                self.assertEqual(p[3], (index + 1) % 2)
            whole = case.settings.segs + 1
            if not case.settings.HalfPattern:
                self.assertEqual(len(regular), whole)
                self.assertEqual(len(model["List1"]), whole + (2 if roofed else 0))
            elif not roofed:
                self.assertEqual(len(model["List1"]), whole // 2 + 1)

    def test_ridge_ends_on_the_ridge(self):
        for case, shape, model, _ in self.each(lambda case: case.category == TRUNCATED and case.dtype > 2):
            roof = case.dtype == 3
            offset, height, base = (case.value(k) for k in ((15, 18, 19) if roof else (24, 23, 20)))
            own, other = ("List1", "List2") if roof else ("List2", "List1")
            ends = [(p, q) for p, q in zip(model[own], model[other]) if p[3] == 5]
            self.assertEqual(len(ends), 1 if case.settings.HalfPattern else 2)
            for p, q in ends:
                self.assertEqual(q[3], 1)
                # The ends are found to eight places of a cosine.
                self.assertAlmostEqual(p[0], offset, delta=1e-7 * base)
                self.assertAlmostEqual(p[2], height, delta=1e-7 * base * max(1, shape.apex / shape.radius))

    def test_seam_edges_are_equal(self):
        for case, _, model, pattern in self.each(lambda case: not case.settings.HalfPattern):
            first, second = self.edges(case, pattern)
            size = max(length(p, (0, 0, 0)) for p in second + first)
            for name in ("List1", "List2"):
                self.assertAlmostEqual(length(model[name][0], model[name][-1]), 0, delta=1e-9 * size)
            for edge in (first, second):
                self.assertAlmostEqual(length(edge[0], (0, 0, 0)), length(edge[-1], (0, 0, 0)), delta=1e-9 * size)

    def test_laps_lie_along_the_rulings(self):
        def has_laps(case):
            settings = case.settings
            return settings.JoinType > 0 and max(settings.LapSize0, settings.LapSize2) > 0

        for case, _, _, pattern in self.each(has_laps):
            settings = case.settings
            inner, outer = pattern["LapList1"] or pattern["List1"], pattern["LapList2"] or pattern["List2"]
            for moved, edge, other, width in ((pattern["List1"], inner, outer, settings.LapSize0),
                                              (pattern["List2"], outer, inner, settings.LapSize2)):
                for p, q, r in zip(moved, edge, other) if width > 0 else ():
                    size = max(length(q, r), width)
                    self.assertAlmostEqual(length(p, q), width, delta=1e-9 * size)
                    self.assertAlmostEqual(length(p, r), length(q, r) + width, delta=1e-7 * size)

    def test_seam_tab_leaves_the_pattern(self):
        def has_tab(case):
            return case.settings.JoinType > 0 and case.settings.LapSize1 > 0

        for case, _, _, pattern in self.each(has_tab):
            first = pattern["LapList1"] or pattern["List1"]
            second = pattern["LapList2"] or pattern["List2"]
            edge, tab = (first[-2], second[-2]), (first[-1], second[-1])
            size = length(*edge)
            self.assertEqual([(p[3], q[3]) for p, q in (edge, tab)], [(edge[0][3], edge[1][3]), (8, 8)])
            self.assertGreaterEqual(min(edge[0][3], edge[1][3]), 4)
            along = [(b - a) / size for a, b in zip(edge[0][:2], edge[1][:2])]
            for p, q in zip(edge, tab):
                out = [(b - a) / case.settings.LapSize1 for a, b in zip(p[:2], q[:2])]
                rounding = 1e-9 * max(1, math.hypot(*p[:2]) / case.settings.LapSize1)
                self.assertAlmostEqual(math.hypot(*out), 1, delta=rounding)
                self.assertAlmostEqual(out[0] * along[0] + out[1] * along[1], 0, delta=1e-6)
                # Away from the apex's turn: the pattern unrolls counter-clockwise, so the tab goes on that way.
                self.assertGreater(edge[1][0] * out[1] - edge[1][1] * out[0], 0)


class PlainConeTest(CaseTest):
    """Level cones, whose patterns are sectors of rings."""

    def setUp(self):
        self.cases = []
        for k in range(20):
            rng = cone_cases.rng_of(f"plain {k}")
            base, top, height = rng.uniform(10, 1000), rng.uniform(0.1, 0.9), rng.uniform(0.2, 3)
            sizes = ("%.4f" % base, "%.4f" % (base * top), "%.4f" % (base * height))
            self.cases.append(Case(RIGHT_CONE, 0, tuple(enumerate(sizes)), Settings(
                segs=rng.choice([2, 3, 12, 24, 25, 144]), JoinAngle=rng.choice([0, 33.3, 90, -100, 200]))))
        # A seam a whole turn on is a seam at 0.
        self.cases += [Case(RIGHT_CONE, 0, ((0, "100"), (1, "60"), (2, "90")), Settings(segs=segs, JoinAngle=angle))
                       for angle in (360, 720, -360) for segs in (12, 24, 48, 72, 96, 144)]
        runs = run_all([case.arguments() + ["--json", "-"] for case in self.cases])
        self.patterns = [run.json["pattern"][0] for run in runs]

    def sectors(self):
        for case, pattern in zip(self.cases, self.patterns):
            self.case = case
            half = math.atan(case.value(0) / 2 / case.value(2))
            outer = case.value(0) / 2 / math.sin(half)
            yield case, pattern, half, outer, outer * case.value(1) / case.value(0)

    def test_developed_angle(self):
        for case, pattern, half, _, _ in self.sectors():
            step = 2 * math.pi * math.sin(half) / case.settings.segs
            for name in ("List1", "List2"):
                points = pattern[name]
                for p, q in zip(points, points[1:]):
                    turn = math.atan2(p[0] * q[1] - p[1] * q[0], p[0] * q[0] + p[1] * q[1])
                    self.assertAlmostEqual(math.remainder(turn - step, 2 * math.pi), 0, delta=1e-12)

    def test_radii(self):
        for _, pattern, _, outer, inner in self.sectors():
            for name, radius in (("List1", inner), ("List2", outer)):
                for p in pattern[name]:
                    self.assertAlmostEqual(math.hypot(p[0], p[1]), radius, delta=1e-11 * outer)

    def test_area(self):
        for case, pattern, half, outer, inner in self.sectors():
            ring = pattern["List2"] + pattern["List1"][::-1]
            area = sum(p[0] * q[1] - p[1] * q[0] for p, q in zip(ring, ring[1:] + ring[:1])) / 2
            step = 2 * math.pi * math.sin(half) / case.settings.segs
            expected = case.settings.segs * math.sin(step) * (outer**2 - inner**2) / 2
            self.assertAlmostEqual(area, expected, delta=1e-10 * outer**2)


class SymmetryTest(CaseTest):
    def test_cuts_along_x_give_patterns_alike_on_both_sides(self):
        """The cuts tilt along x, so with the seam on the x axis the pattern's halves mirror each other."""
        cases = []
        for k in range(4):
            for dtype in range(5):
                rng = cone_cases.rng_of(f"mirror {dtype} {k}")
                case = cone_cases.sound_case(TRUNCATED, dtype, rng)
                segs = rng.choice([6, 13, 24, 36])
                cases.append(Case(TRUNCATED, dtype, case.boxes,
                                  Settings(segs=segs, JoinAngle=rng.choice([0, 180, -180]))))
        for case, run in zip(cases, run_all([case.arguments() + ["--json", "-"] for case in cases])):
            self.case = case
            pattern = run.json["pattern"][0]
            size = max(math.hypot(*p[:2]) for p in pattern["List1"] + pattern["List2"])
            first, last = (math.atan2(p[1], p[0]) for p in (pattern["List2"][0], pattern["List2"][-1]))
            for points in (pattern["List1"], pattern["List2"]):
                for p, q in zip(points, reversed(points)):
                    self.assertAlmostEqual(math.hypot(*p[:2]), math.hypot(*q[:2]), delta=2e-8 * size)
                    turn = math.atan2(p[1], p[0]) + math.atan2(q[1], q[0]) - first - last
                    self.assertAlmostEqual(math.remainder(turn, 2 * math.pi), 0, delta=1e-8)


if __name__ == "__main__":
    unittest.main()
