"""Elliptical holes worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Elliptical Hole" and gives back what the window must answer.
"""

import math
from dataclasses import dataclass

from fitting_maths import FULL_TURN, ORIGIN, Surface, deg_to_rad, ellipse_radius, polar_point
from window_checks import answer_to, last_lines, require_shape, require_within_reach

CATEGORY = "Elliptical Hole"
BOX_COUNT = 6
LABELS = (("Pipe diameter = ", 0), ("Angle = ", 1))


@dataclass
class Plate:
    radius: float
    tilt: float
    length_x: float
    length_y: float
    centre_x: float
    centre_y: float  # the axis from the edge that is List1

    def angles(self, segs):
        t = 0.0
        for i in range(1, 2 * segs + 2):
            yield t, i % 2
            t += FULL_TURN / (2 * segs)

    def edge(self, y, z, flag):
        return [(x, y, z, flag) for x in (-self.centre_x, self.length_x - self.centre_x)]

    def model(self, segs):
        def edge(across):
            y = math.cos(self.tilt) * across
            return self.edge(y, math.tan(self.tilt) * y, 0)

        hole = [polar_point(ORIGIN, t, self.radius, flag) for t, flag in self.angles(segs)]
        return Surface(edge(-self.centre_y), edge(self.length_y - self.centre_y),
                       List3=[(x, y, math.tan(self.tilt) * y, flag) for x, y, _, flag in hole])

    def pattern(self, segs):
        across = self.radius / math.cos(self.tilt) if self.tilt else self.radius
        return Surface(self.edge(self.centre_y, 0.0, 1), self.edge(self.centre_y - self.length_y, 0.0, 1),
                       List3=[polar_point(ORIGIN, t, ellipse_radius(self.radius, across, t), flag)
                              for t, flag in self.angles(segs)])


# ------------------------------------------------------------------------------------------------ the window


def build(case, box, answer):
    box.positive(0)
    require_within_reach(box[index] for index in range(BOX_COUNT))
    tilt = -deg_to_rad(box[1])
    require_shape(abs(math.cos(tilt)) >= 1e-12)
    plate = Plate(box[0] / 2, tilt, box[2], box[3], box[4], box[3] - box[5])
    answer.labels = ["", ""] + box.lines(LABELS) + last_lines(case, case.settings.HalfPattern)
    answer.model = plate.model(case.settings.segs)
    answer.pattern = plate.pattern(case.settings.segs)


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
