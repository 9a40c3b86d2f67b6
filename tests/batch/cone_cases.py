"""Seeded random cones for both windows and all their types: sound ones, ones at their limits, spoilt ones."""

import math
from dataclasses import replace

import cone_oracle as oracle
import fitting_cases
from cone_oracle import RIGHT_CONE, TRUNCATED
from fitting_cases import at_and_beside, inside, random_settings, rng_of, typed

TYPES = [(RIGHT_CONE, 0), (RIGHT_CONE, 1), (RIGHT_CONE, 2)] + [(TRUNCATED, k) for k in range(5)]


class Case(fitting_cases.Case):
    answer = oracle.compute


def degrees(radians):
    return radians * 180 / math.pi


def sizes_of_right_cone(dtype, rng):
    base = 10 ** rng.uniform(0.7, 3.3)
    top = inside(rng, 0, base)
    third = base * rng.uniform(0.15, 3) if dtype < 2 else rng.uniform(2, 178)
    return {3 * dtype: base, 3 * dtype + 1: top, 3 * dtype + 2: third}


def sizes_of_truncated_cone(dtype, rng):
    base = 10 ** rng.uniform(0.7, 3.3)
    radius, apex = base / 2, base * rng.uniform(0.15, 3)
    height = inside(rng, 0, apex)

    def tilt(at_height, at_radius=radius):
        return inside(rng, -1, 1) * degrees(math.atan(at_height / at_radius))

    if dtype == 0:
        return {0: base, 1: height, 2: 2 * degrees(math.atan(radius / apex)), 3: tilt(height)}
    if dtype == 1:
        return {4: base, 5: tilt(height), 6: apex, 7: height}
    if dtype == 2:
        # Nothing says which of the planes lies above the other.
        other = inside(rng, 0, apex)
        return {8: base, 9: height, 10: tilt(other), 11: other, 12: tilt(height), 13: apex}
    if dtype == 3:
        ridge = (apex - height) * radius / apex
        offset = rng.choice([0.0, inside(rng, -ridge, ridge)])
        back = degrees(math.atan((apex - height) / offset)) if offset > 0 else 90
        front = degrees(math.atan((apex - height) / -offset)) if offset < 0 else 90
        return {14: inside(rng, -back, degrees(math.atan(height / (radius + offset)))), 15: offset,
                16: inside(rng, -front, degrees(math.atan(height / (radius - offset)))), 17: apex, 18: height,
                19: base}
    top = base * (1 - height / apex)
    lower = inside(rng, 0, height)
    ridge = (apex - lower) * radius / apex
    offset = rng.choice([0.0, inside(rng, -ridge, ridge)])
    steepest = 90 - degrees(math.atan(radius / apex))
    limits = [90 if side * offset >= top / 2 else
              90 - degrees(math.atan((top / 2 - side * offset) / (height - lower))) for side in (-1, 1)]
    return {20: base, 21: top, 22: height, 23: lower, 24: offset,
            **{25 + k: inside(rng, -steepest, limit) for k, limit in enumerate(limits)}}


def sound_case(category, dtype, rng):
    """A case that the window takes; number texts in the forms that people type."""

    def make(rng):
        sizes = (sizes_of_right_cone if category == RIGHT_CONE else sizes_of_truncated_cone)(dtype, rng)
        base = sizes[min(sizes) if dtype < 3 else {3: 19, 4: 20}[dtype]]
        return Case(category, dtype, typed(rng, sizes), random_settings(rng, base))

    return fitting_cases.sound(make, rng)


def limit_cases(case):
    """For every check that the sound case passes: its box at the limit, and a hair to either side."""
    for kind, box, limit in case.answer().checks:
        if kind == "room":
            yield from room_cases(case, box)
            continue
        for value in at_and_beside(limit):
            yield case.with_box(box, "%.17g" % value)


def room_cases(case, box):
    """Material about as thick as the box is wide, outside dimensions: half the size is just taken up or not."""
    angle = case_angle(case)
    for factor in (0.999999, 1.000001):
        thickness = case.value(box) / 2 / math.cos(angle) * factor
        if (case.category, case.dtype) == (TRUNCATED, 0):
            thickness = case.value(box) / (1 + math.cos(angle)) * factor
        yield replace(case, settings=replace(case.settings, InOutMean=2, Thickness=thickness))


def case_angle(case):
    """The half angle of the cone, from the typed sizes."""
    value = case.value
    if case.category == RIGHT_CONE:
        return (lambda: math.atan(value(0) / 2 / value(2)), lambda: math.atan((value(3) - value(4)) / 2 / value(5)),
                lambda: math.radians(value(8) / 2))[case.dtype]()
    return (lambda: math.radians(value(2) / 2), lambda: math.atan(value(4) / 2 / value(6)),
            lambda: math.atan(value(8) / 2 / value(13)), lambda: math.atan(value(19) / 2 / value(17)),
            lambda: math.atan((value(20) - value(21)) / 2 / value(22)))[case.dtype]()


def spoilt_case(case, rng):
    return fitting_cases.spoilt_case(case, rng, oracle.BOX_COUNT[case.category])
