"""Reducing breeches of two pieces worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into one of the two windows and gives back what the window must answer.
"""

import math
from dataclasses import dataclass, replace

from fitting_maths import (FULL_TURN, ORIGIN, PI, Surface, deg_to_rad, first_half, joined, polar_point, turned,
                           unfolded)
from window_checks import NO_HALF, USER_ERROR, answer_to, last_lines, require_shape

ANGLE_TOP = "Reducing Breech - Two Piece - Angle Top"
PARALLEL_TOP = "Reducing Breech - Two Piece - Parallel Top"
BOX_COUNT = 4
CENTER_LINE, FLUSH_SIDE = 0, 1

LABELS = {ANGLE_TOP: ("Pipe diameter = ", "Cone diameter = ", "Cone length = ", "Included Angle of branch = "),
          PARALLEL_TOP: ("Pipe diameter = ", "Cone diameter = ", "Cone Height = ", "Center distance = ")}


@dataclass
class Breech:
    pipe: float
    outlet: float
    length: float
    angle: float  # of the first outlet's centre line against the pipe's axis
    face: float  # tilt of the first outlet's circle
    offset: float

    def piece(self, settings, side):
        """That on the side of x above or below 0."""
        seam = deg_to_rad(settings.JoinAngle) + (PI if side > 0 else 0.0)
        centre = (math.sin(side * self.angle) * self.length, self.offset, math.cos(side * self.angle) * self.length)
        upper, lower = [], []
        t = seam
        for i in range(1, 2 * settings.segs + 2):
            top = turned(polar_point(centre, t, self.outlet, i % 2), 2, centre, side * self.face)
            foot = polar_point(ORIGIN, t, self.pipe, i % 2)
            upper.append(top)
            lower.append(self.on_its_side(top, foot, side))
            t += FULL_TURN / (2 * settings.segs)
        surface = Surface(upper, lower)
        return first_half(surface) if settings.HalfPattern else surface

    @staticmethod
    def on_its_side(top, foot, side):
        """A rule from beyond the plane between the pieces begins on it."""
        x, y, z, flag = foot
        across = round(x, 5)
        if across * side < 0:
            part = top[0] / (top[0] - x)
            x, y, z = 0.0, top[1] - part * (top[1] - y), top[2] - part * top[2]
            across = 0.0
        return x, y, z, flag + (4 if across == 0 else 0)


# ------------------------------------------------------------------------------------------------ the window


def radii(box):
    box.positive(0, 1, 2)
    found = [box.mean_radius(box[index] / 2) for index in (0, 1)]
    for index, radius in enumerate(found):
        box.room(index, radius, box.settings.Thickness / 2)
    return found


def angle_top(box, offset_of):
    pipe, outlet = radii(box)
    box.above(1, 0)
    box.below(1, box[0])
    box.at_least(2, pipe)
    box.above(3, 0)
    box.at_most(3, 180)
    angle = deg_to_rad(box[3]) / 2
    return Breech(pipe, outlet, box[2], angle, -angle, offset_of(pipe, outlet))


def parallel_top(box, offset_of):
    pipe, outlet = radii(box)
    box.above(0, 0)
    box.above(1, 0)
    box.below(1, box[0])
    box.above(3, box[1])
    aside, height = box[3] / 2, box[2]
    return Breech(pipe, outlet, math.sqrt(aside * aside + height * height), math.atan(aside / height), 0.0,
                  offset_of(pipe, outlet))


WINDOWS = {ANGLE_TOP: angle_top, PARALLEL_TOP: parallel_top}


def build(case, box, answer):
    settings = case.settings
    flush = case.option("optFlushSide", CENTER_LINE) == FLUSH_SIDE
    breech = WINDOWS[case.category](box, lambda pipe, outlet: -(pipe - outlet) if flush else 0.0)
    half = settings.HalfPattern
    if half and flush:
        answer.messages.append((USER_ERROR, NO_HALF, None))
        half = False
        settings = replace(settings, HalfPattern=False)
    answer.labels = ["", ""] + box.lines(zip(LABELS[case.category], range(4))) + last_lines(case, half)
    try:
        answer.model = [breech.piece(settings, side) for side in (1, -1)]
        answer.pattern = [joined(unfolded(answer.model[0]), settings)]
    except (ArithmeticError, ValueError):
        require_shape(False)


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
