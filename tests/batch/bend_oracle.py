"""Segmented bends worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Segmented Bend" and gives back what the window must answer.
"""

import math
from dataclasses import dataclass

from cylinder_oracle import Cylinder, radius_of
from fitting_maths import PI, QUARTER_TURN, coordinates, deg_to_rad, moved_surface, turned_surface
from window_checks import answer_to, ask_for_pattern, last_lines, require_shape, require_within_reach

CATEGORY = "Segmented Bend"
BOX_COUNT = 11
FULL_LAYOUT, SHORT_LAYOUT = 0, 1
BOXES = (range(5), range(5, 11))

LABELS = (
    (("Base diameter = ", 0), ("Bend radius = ", 1), ("Bend angle = ", "90"), ("Length 1 = ", 3), ("Length 2 = ", 4),
     ("Number of segments = ", 2)),
    (("Base diameter = ", 5), ("Bend radius = ", 6), ("Bend angle = ", 7), ("Length 1 = ", 8), ("Length 2 = ", 9),
     ("Number of segments = ", 10)),
)


@dataclass
class Bend:
    radius: float
    bend_radius: float
    bend_angle: float
    gores: int
    length1: float
    length2: float

    def __post_init__(self):
        self.gore = self.bend_angle / self.gores
        self.tilt = self.gore / 2
        self.half_height = math.tan(self.tilt) * self.bend_radius

    def pieces(self, seam, between):
        """(cylinder, seam, turn about the bend's centre) of the first piece, so many between, and the last."""
        h, tilt = self.half_height, self.tilt
        yield Cylinder(self.radius, h, -self.length1, tilt, 0.0), seam, 0.0
        turn = 0.0
        for _ in range(between):
            seam += PI
            turn += self.gore
            yield Cylinder(self.radius, h, -h, tilt, tilt), seam, turn
        yield Cylinder(self.radius, self.length2, -h, 0.0, tilt), seam + PI, self.bend_angle

    def model(self, segs, seam, half):
        centre = (-self.bend_radius, 0.0, 0.0)
        return [turned_surface(cylinder.model(segs, at, half), 2, centre, turn)
                for cylinder, at, turn in self.pieces(seam, self.gores - 1)]

    def pattern(self, seam, settings, full):
        """The flat pieces one above the other."""
        y, patterns = 0.0, []
        for cylinder, at, _ in self.pieces(seam, self.gores - 1 if full else 1):
            model = cylinder.model(settings.segs, at, settings.HalfPattern)
            patterns.append(moved_surface(cylinder.pattern(model, settings), 0.0, y, 0.0))
            y += self.half_height + self.half_height + settings.KerfSpacing
        return patterns


# ------------------------------------------------------------------------------------------------ the window


def number_of_segments(box, index):
    box.integer(index)
    box.at_least(index, 2)
    return int(box[index])


def right_angled(box):
    radius = radius_of(box, 0)
    box.above(1, radius)
    segments = number_of_segments(box, 2)
    box.at_least(3, 0)
    box.at_least(4, 0)
    return Bend(radius, box[1], QUARTER_TURN, segments - 1, box[3], box[4])


def any_angle(box):
    radius = radius_of(box, 5)
    box.above(6, radius)
    box.at_most(7, 360)
    box.above(7, 0)
    box.at_least(8, 0)
    box.at_least(9, 0)
    segments = number_of_segments(box, 10)
    return Bend(radius, box[6], deg_to_rad(box[7]), segments - 1, box[8], box[9])


TYPES = (right_angled, any_angle)


def build(case, box, answer):
    settings = case.settings
    bend = TYPES[case.dtype](box)
    require_shape(bend.radius != 0 and (90 if case.dtype == 0 else box[7]) / bend.gores < 180)
    require_within_reach(box[index] for index in BOXES[case.dtype])
    answer.labels = ["", ""] + box.lines(LABELS[case.dtype]) + last_lines(case, settings.HalfPattern)
    seam = deg_to_rad(settings.JoinAngle)
    answer.model = bend.model(settings.segs, seam, settings.HalfPattern)
    answer.pattern = bend.pattern(seam, settings, case.select == FULL_LAYOUT)
    require_within_reach(coordinates(answer.model + answer.pattern))
    ask_for_pattern(case, answer)


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
