"""Prisms worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Prism" and gives back what the window must answer.
"""

import math
from dataclasses import dataclass

from fitting_maths import FULL_TURN, Surface, coordinates, deg_to_rad, joined, rad_to_deg
from sides_cases import checked_sides, sides_of
from window_checks import NO_HALF, USER_ERROR, answer_to, last_lines, require_shape, require_within_reach

CATEGORY = "Prism"
BOX_COUNT = 17
BOXES = (range(3), range(3, 7), range(7, 12), range(12, 17))

BASE, PLANE, SIDES = "Base diameter = ", "Cutting plane height = ", "Number of sides = "
ANGLE, ANGLE1, ANGLE2 = (f"Cutting plane angle{number} = " for number in ("", " 1", " 2"))
LABELS = (((BASE, 0), (PLANE, 1), (SIDES, 2)), ((BASE, 3), (PLANE, 4), (ANGLE, 5), (SIDES, 6)),
          ((BASE, 7), (PLANE, 8), (ANGLE1, 9), (ANGLE2, 10), (SIDES, 11)),
          ((BASE, 12), (PLANE, 13), (ANGLE1, 14), (ANGLE2, 15), (SIDES, 16)))


@dataclass
class Prism:
    """Slopes count upwards along +x."""

    radius: float
    height: float
    sides: int
    slope: float = 0.0
    base_slope: float = 0.0
    second_slope: float = None  # of the corners in the first and the last quarter of the numbers

    def slope_at(self, number):
        quarter, last_quarter = self.sides / 4, self.sides * 3 / 4
        if self.second_slope is not None and (number <= quarter or number > last_quarter):
            return self.second_slope
        return self.slope

    def model(self, seam):
        walls, t = Surface([], []), seam
        for number in range(1, self.sides + 2):
            x, y = self.radius * math.cos(t), self.radius * math.sin(t)
            walls.List1.append((x, y, self.height + self.slope_at(number) * x, 5))
            walls.List2.append((x, y, self.base_slope * x, 5))
            t += FULL_TURN / self.sides
        return walls

    def pattern(self, model):
        width = self.radius * FULL_TURN / self.sides

        def heights(corners):
            return [(number * width, z, 0.0, 5) for number, (_, _, z, _) in enumerate(corners)]

        return Surface(heights(model.List1), heights(model.List2))


# ------------------------------------------------------------------------------------------------ the window


def walls(box, diameter, height, number):
    """The checks that all types begin with."""
    checked_sides(box, number)
    sides = sides_of(box, number)
    allowance = (box.settings.Thickness / 2) / math.cos((FULL_TURN / sides) / 2)
    radius = box.mean(box[diameter] / 2, allowance)
    box.room(diameter, radius, allowance)
    box.positive(height)
    return Prism(radius, box[height], sides)


def steepest(height, radius):
    """In degrees, of a plane that meets level 0 no nearer than the corners."""
    return rad_to_deg(math.atan(height / radius if radius else math.inf))


def falling(box, number):
    """The slope of a plane that falls towards +x by the angle in a box."""
    return math.tan(-deg_to_rad(box[number]))


def square(box):
    return walls(box, 0, 1, 2)


def tilted_top(box):
    prism = walls(box, 3, 4, 6)
    box.between(5, steepest(prism.height, prism.radius))
    prism.slope = falling(box, 5)
    return prism


def tilted_ends(box):
    prism = walls(box, 7, 8, 11)
    box.between(9, steepest(prism.height, prism.radius))
    prism.slope = falling(box, 9)
    box.between(10, steepest(prism.slope * prism.radius + prism.height, prism.radius))
    prism.base_slope = math.tan(deg_to_rad(box[10]))
    return prism


def two_planes(box):
    prism = walls(box, 12, 13, 16)
    for number in (14, 15):
        box.above(number, -90)
        box.below(number, steepest(prism.height, prism.radius))
    prism.second_slope, prism.slope = falling(box, 14), math.tan(deg_to_rad(box[15]))
    return prism


TYPES = (square, tilted_top, tilted_ends, two_planes)


def build(case, box, answer):
    settings = case.settings
    prism = TYPES[case.dtype](box)
    require_shape(prism.radius != 0)
    require_within_reach(box[index] for index in BOXES[case.dtype])
    answer.labels = ["", ""] + box.lines(LABELS[case.dtype]) + last_lines(case, False)
    answer.model = prism.model(case.seam())
    answer.pattern = joined(prism.pattern(answer.model), settings)
    require_within_reach(coordinates([answer.model, answer.pattern]))
    if settings.HalfPattern:
        answer.messages.append((USER_ERROR, NO_HALF, None))


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
