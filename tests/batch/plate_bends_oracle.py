"""Bent plates worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Bends" and gives back what the window must answer.
"""

import math

from fitting_maths import PI, Surface, arc_cos
from window_checks import IMPOSSIBLE, POSITION, PRODUCT, Refusal, answer_to, last_lines, require_shape, require_within_reach

CATEGORY = "Bends"
BOX_COUNT = 19
CORNERS = 6
ROUNDING = 1e-12  # of a radius that just fits


def minus(a, b):
    return a[0] - b[0], a[1] - b[1]


def along(p, direction, length):
    return p[0] + direction[0] * length, p[1] + direction[1] * length


class Corner:
    """A corner between two others: its legs, the angle between them, and what its arc takes of both."""

    def __init__(self, before, at, after, radius):
        leg1, leg2 = minus(before, at), minus(after, at)
        self.lengths = [math.hypot(*leg) for leg in (leg1, leg2)]
        self.radius = radius
        self.at = at
        self.angle = 0.0
        if 0.0 not in self.lengths:
            self.to_before = leg1[0] / self.lengths[0], leg1[1] / self.lengths[0]
            self.angle = arc_cos((leg1[0] * leg2[0] + leg1[1] * leg2[1]) / (self.lengths[0] * self.lengths[1]))

    @property
    def has_limit(self):
        """Neither straight on nor back."""
        return 0 < self.angle < PI

    @property
    def tangent(self):
        return self.radius / math.tan(self.angle / 2) if self.has_limit else 0.0

    def largest_radius(self, tangents):
        """The radius that fits on the legs beside what the neighbours take of them."""
        room = min(length - taken for length, taken in zip(self.lengths, tangents))
        return max(0.0, room * math.tan(self.angle / 2)) * (1 + ROUNDING)

    def arc(self, segs):
        """From where it touches the first leg, turning to the right, through as much as the legs enclose."""
        right = -self.to_before[1], self.to_before[0]
        centre = along(along(self.at, self.to_before, self.tangent), right, self.radius)
        for k in range(segs + 1):
            turned = self.angle * k / segs
            # The arm of the arc points to the left at first, and turns towards the way the line goes.
            arm = (-right[0] * math.cos(turned) - self.to_before[0] * math.sin(turned),
                   -right[1] * math.cos(turned) - self.to_before[1] * math.sin(turned))
            yield along(centre, arm, self.radius)


def typed_corners(box):
    """(x, y, radius) of the corners up to the last one that has a number other than 0, but at least two."""
    corners = [(box[3 * k + 1], box[3 * k + 2], box[3 * k + 3]) for k in range(CORNERS)]
    while len(corners) > 2 and corners[-1] == (0, 0, 0):
        corners.pop()
    return corners


def check_radii(box, bends):
    for k in range(len(bends)):
        box.at_least(3 * k + 6, 0)
    tangents = [0.0, *(bend.tangent for bend in bends), 0.0]
    for k, bend in enumerate(bends):
        if bend.has_limit:
            box.at_most(3 * k + 6, bend.largest_radius((tangents[k], tangents[k + 2])))


def build(case, box, answer):
    corners = typed_corners(box)
    points = [corner[:2] for corner in corners]
    if len(set(points)) < 2:
        raise Refusal(PRODUCT, IMPOSSIBLE, 4)
    bends = [Corner(*three, corner[2]) for *three, corner in zip(points, points[1:], points[2:], corners[1:])]
    check_radii(box, bends)
    width = box[0]
    require_shape(width != 0 and all(bend.angle > 0 for bend in bends))
    require_within_reach(box[index] for index in range(BOX_COUNT))
    thickness, category = last_lines(case, case.settings.HalfPattern)
    position = "Dimensions are based on the " + POSITION[case.settings.InOutMean]
    answer.labels = ["", "", *box.lines((("Plate width = ", 0),)), thickness, position, category]
    edge = [points[0], *(point for bend in bends for point in bend.arc(case.settings.segs)), points[-1]]
    answer.model = Surface(*([(x, y, z, 1) for x, y in edge] for z in (0.0, width)))


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
