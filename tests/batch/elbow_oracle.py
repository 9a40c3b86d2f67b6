"""Elbows worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Elbow" and gives back what the window must answer.
"""

import math
from dataclasses import dataclass, replace

from cylinder_oracle import Cylinder, radius_of
from fitting_maths import LISTS, PI, QUARTER_TURN, coordinates, deg_to_rad, moved_surface, turned_surface
from window_checks import answer_to, last_lines, require_shape, require_within_reach

CATEGORY = "Elbow"
BOX_COUNT = 10

BOXES = ((0, 1, 2, 3), (4, 5, 6), (7, 8, 9))
LABELS = (
    (("Pipe diameter = ", 0), ("Length 1 = ", 1), ("Length 2 = ", 2), ("Angle = ", 3)),
    (("Pipe diameter = ", 4), ("Length 1 = ", 5), ("Length 2 = ", 6), ("Angle = ", "90")),
    (("Pipe diameter = ", 7), ("Bend radius = ", 8), ("Angle = ", 9)),
)


def halved(surface):
    """The first half of the stations of every line that has more than one."""
    kept = len(surface.List1) // 2 + 1
    lines = {name: getattr(surface, name) for name in LISTS}
    return replace(surface, **{name: line[:kept] if line and len(line) > 1 else None for name, line in lines.items()})


@dataclass
class Elbow:
    radius: float
    length1: float
    length2: float
    bend_angle: float

    def __post_init__(self):
        self.turn = PI - self.bend_angle
        tilt = self.turn / 2
        self.first = Cylinder(self.radius, self.length1, 0.0, tilt, 0.0)
        self.second = Cylinder(self.radius, 0.0, -self.length2, 0.0, tilt)

    def model(self, segs, first_seam, second_seam, half):
        """Each piece with its own seam: the first one keeps that of the build before."""
        upright = moved_surface(self.second.model(segs, second_seam, False), 0.0, 0.0, self.length1 + self.length2)
        pieces = [self.first.model(segs, first_seam, False),
                  turned_surface(upright, 2, (0.0, 0.0, self.length1), self.turn)]
        return [halved(piece) for piece in pieces] if half else pieces

    def pattern(self, seam, settings):
        """The flat pieces, the second above the first; a half keeps half the stations of what is laid out, the tab
        counted."""
        pieces = []
        for cylinder, at, y in ((self.first, seam, 0.0),
                                (self.second, seam + PI, self.length2 + self.length1 + settings.KerfSpacing)):
            flat = cylinder.pattern(cylinder.model(settings.segs, at, False), settings)
            pieces.append(moved_surface(flat, 0.0, y, 0.0))
        return [halved(piece) for piece in pieces] if settings.HalfPattern else pieces


# ------------------------------------------------------------------------------------------------ the window


def between_legs(box):
    box.positive(0)
    bend_angle = -deg_to_rad(box[3])
    radius = radius_of(box, 0)
    box.positive(3)
    box.below(3, 180)
    shortest = radius if box[3] == 90 else -(radius / math.tan(bend_angle / 2))
    box.at_least(1, shortest)
    box.at_least(2, shortest)
    return Elbow(radius, box[1], box[2], bend_angle)


def right_angled(box):
    radius = radius_of(box, 4)
    box.at_least(5, radius)
    box.at_least(6, radius)
    return Elbow(radius, box[5], box[6], QUARTER_TURN)


def on_bend_radius(box):
    radius = radius_of(box, 7)
    box.at_least(8, radius)
    box.positive(9)
    box.below(9, 180)
    turn = deg_to_rad(box[9])
    length = math.tan(turn / 2) * box[8]
    return Elbow(radius, length, length, -(PI - turn))


TYPES = (between_legs, right_angled, on_bend_radius)


def build(case, box, answer):
    settings = case.settings
    elbow = TYPES[case.dtype](box)
    require_shape(elbow.radius != 0)
    require_within_reach(box[index] for index in BOXES[case.dtype])
    answer.labels = ["", ""] + box.lines(LABELS[case.dtype]) + last_lines(case, settings.HalfPattern)
    seam = deg_to_rad(settings.JoinAngle)
    # The model is the first build of a new window, which has no build before it: a seam at 0.
    answer.model = elbow.model(settings.segs, 0.0, seam + PI, settings.HalfPattern)
    answer.pattern = elbow.pattern(seam, settings)
    require_within_reach(coordinates(answer.model + answer.pattern))


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
