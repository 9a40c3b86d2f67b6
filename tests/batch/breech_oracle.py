"""Breeches of equal pipes worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Breech" and gives back what the window must answer.
"""

import math

from cylinder_oracle import ROOF, Cylinder
from fitting_maths import FULL_TURN, QUARTER_TURN, deg_to_rad, moved_surface, turned_surface
from window_checks import answer_to, ask_for_pattern, last_lines, require_cut_within_end, require_shape

CATEGORY = "Breech"
BOX_COUNT = 15
FIRST_BOX = (0, 4, 9)  # of each page: the diameter, then the length, then the angles
IN_A_ROW, IN_A_COLUMN = 0, 1


def angle_boxes(dtype):
    first = FIRST_BOX[dtype] + 2
    return range(first, first + 2 + dtype)


def labels(dtype):
    first = FIRST_BOX[dtype]
    lines = [("Pipe diameter = ", first), ("Pipe length = ", first + 1), ("Number of pipes = ", str(dtype + 3))]
    return lines + [(f"Angle {k} = ", box) for k, box in enumerate(angle_boxes(dtype), start=1)]


def cutting_angle(between):
    return QUARTER_TURN - between / 2


class Breech:
    """`angles` are those between each pipe and the next one, all round."""

    def __init__(self, radius, length, angles):
        self.radius = radius
        self.length = length
        self.angles = angles

    def pipes(self):
        """Each with what it is turned by, from the first one on."""
        turn = 0.0
        for before, after in zip([self.angles[-1]] + self.angles, self.angles):
            yield Cylinder(self.radius, self.length, angle1=cutting_angle(before), angle3=cutting_angle(after),
                           dtype=ROOF), turn
            turn += after

    def model(self, settings):
        pieces = []
        for pipe, turn in self.pipes():
            piece = pipe.model(settings.segs, 0.0, settings.HalfPattern)
            require_cut_within_end(piece.List1, piece.List2, (0, 0, -1))
            pieces.append(turned_surface(piece, 2, (0.0, 0.0, self.length), turn))
        return pieces

    def pattern(self, settings, layout):
        pieces, x, y = [], 0.0, 0.0
        for pipe, _ in self.pipes():
            flat = pipe.pattern(pipe.model(settings.segs, 0.0, settings.HalfPattern), settings)
            pieces.append(moved_surface(flat, x, y, 0.0))
            if layout == IN_A_ROW:
                x = settings.KerfSpacing + pieces[-1].List1[len(pieces[0].List1) - 1][0]
            elif layout == IN_A_COLUMN:
                y = settings.KerfSpacing + max(p[1] for p in pieces[-1].List1)
        return pieces


def build(case, box, answer):
    settings, first = case.settings, FIRST_BOX[case.dtype]
    radius = box.mean_radius(box[first] / 2)
    box.room(first, radius, settings.Thickness / 2)
    box.above(first + 1, 0)
    degrees_left, angles = 360.0, []
    for index in angle_boxes(case.dtype):
        box.above(index, 0)
        box.below(index, degrees_left)
        degrees_left -= box[index]
        angles.append(deg_to_rad(box[index]))
    last = FULL_TURN
    for angle in angles:
        last -= angle
    require_shape(last > 0)
    angles.append(last)
    box.at_least(first + 1, max(radius * math.tan(cutting_angle(angle)) for angle in angles))
    require_shape(radius != 0)
    answer.labels = ["", ""] + box.lines(labels(case.dtype)) + last_lines(case, settings.HalfPattern)
    breech = Breech(radius, box[first + 1], angles)
    answer.model = breech.model(settings)
    answer.pattern = breech.pattern(settings, case.select)
    ask_for_pattern(case, answer)


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
