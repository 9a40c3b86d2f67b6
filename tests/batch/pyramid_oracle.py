"""Pyramids worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Pyramid" and gives back what the window must answer.
"""

import math
from dataclasses import dataclass

from fitting_maths import FULL_TURN, ORIGIN, PI, QUARTER_TURN, Surface, coordinates, deg_to_rad, distance, joined
from fitting_maths import polar_point, rad_to_deg
from sides_cases import checked_sides, sides_of
from window_checks import NO_HALF, USER_ERROR, answer_to, last_lines, require_within_reach

CATEGORY = "Pyramid"
BOX_COUNT = 16
BOXES = (range(3), range(3, 7), range(7, 12), range(12, 16))

BASE, TOP, APEX = "Base diameter = ", "Top diameter = ", "Apex height = "
PLANE, ANGLE, SIDES = "Cutting plane height = ", "Cutting plane angle = ", "Number of sides = "
LABELS = (((BASE, 0), (APEX, 1), (SIDES, 2)), ((BASE, 3), (APEX, 4), (PLANE, 5), (SIDES, 6)),
          ((BASE, 7), (APEX, 8), (PLANE, 9), (ANGLE, 10), (SIDES, 11)),
          ((BASE, 12), (TOP, 13), (PLANE, 14), (SIDES, 15)))


@dataclass
class Pyramid:
    radius: float
    apex: float
    height: float
    tilt: float
    sides: int

    def on_edge(self, t, tilt, height):
        """The corner of a plane on the edge at plan angle t, by the sine rule in the section through the axis."""
        half_angle = math.atan(self.radius / self.apex)
        section = math.atan(math.cos(t) * self.radius / self.apex)
        b = tilt + QUARTER_TURN
        slant = ((self.apex - height) * math.sin(b) / math.sin(PI - (b + section)) * math.cos(section)
                 / math.cos(half_angle))
        out = math.sin(half_angle) * slant
        return math.cos(t) * out, math.sin(t) * out, self.apex - math.cos(half_angle) * slant, 5

    def model(self, seam):
        top, base, t = [], [], seam
        for _ in range(self.sides + 1):
            top.append(self.on_edge(t, self.tilt, self.height))
            base.append(self.on_edge(t, 0.0, 0.0))
            t += FULL_TURN / self.sides
        return Surface(top, base)

    def pattern(self, model):
        slant = math.hypot(self.radius, self.apex)
        apex, angle = (0.0, 0.0, self.apex), 0.0
        flat = Surface([], [])
        for top, base in zip(model.List1, model.List2):
            angle += (self.radius * FULL_TURN / self.sides) / slant
            flat.List1.append(polar_point(ORIGIN, angle, distance(apex, top), 5))
            flat.List2.append(polar_point(ORIGIN, angle, distance(apex, base), 5))
        return flat


# ------------------------------------------------------------------------------------------------ the window


def whole(box):
    box.positive(0, 1)
    checked_sides(box, 2)
    return Pyramid(box[0] / 2, box[1], box[1], 0.0, sides_of(box, 2))


def level_cut(box):
    box.positive(3, 4, 5)
    box.below(5, box[4])
    checked_sides(box, 6)
    return Pyramid(box[3] / 2, box[4], box[5], 0.0, sides_of(box, 6))


def tilted_cut(box):
    box.positive(7, 8, 9)
    box.below(9, box[8])
    checked_sides(box, 11)
    box.between(10, rad_to_deg(math.atan(box[9] / (box[7] / 2))))
    return Pyramid(box[7] / 2, box[8], box[9], deg_to_rad(box[10]), sides_of(box, 11))


def two_diameters(box):
    box.positive(12, 13, 14)
    box.below(13, box[12])
    checked_sides(box, 15)
    big, small = box[12] / 2, box[13] / 2
    return Pyramid(big, (big * box[14]) / (big - small), box[14], 0.0, sides_of(box, 15))


TYPES = (whole, level_cut, tilted_cut, two_diameters)


def build(case, box, answer):
    settings = case.settings
    pyramid = TYPES[case.dtype](box)
    require_within_reach(box[index] for index in BOXES[case.dtype])
    answer.labels = ["", ""] + box.lines(LABELS[case.dtype]) + last_lines(case, False)
    answer.model = pyramid.model(case.seam())
    answer.pattern = joined(pyramid.pattern(answer.model), settings)
    require_within_reach(coordinates([answer.model, answer.pattern]))
    if settings.HalfPattern:
        answer.messages.append((USER_ERROR, NO_HALF, None))


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
