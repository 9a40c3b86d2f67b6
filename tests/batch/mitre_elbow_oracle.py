"""Mitre elbows of rectangular duct worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Mitre Elbow" and gives back what the window must answer. The pieces are
laid flat by the plane geometry of the duct: nothing is unfolded.
"""

import math
from dataclasses import dataclass

from fitting_maths import ORIGIN, PI, Surface, deg_to_rad
from window_checks import answer_to, last_lines, require_shape, require_within_reach

CATEGORY = "Mitre Elbow"
BOX_COUNT = 5
ROUNDING = 1e-12  # of a length against the mitre


def between(a, b):
    return math.hypot(b[0] - a[0], b[1] - a[1])


@dataclass
class MitreElbow:
    width: float
    length1: float
    length2: float
    angle: float  # radians, from the first limb counter-clockwise to the second
    depth: float

    @property
    def reach(self):
        """How far the mitre lies before the crossing of the centre lines on the right side; on the left, behind it."""
        return self.width / 2 * math.cos(self.angle / 2) / math.sin(self.angle / 2)

    def has_shape(self):
        if self.width == 0 or self.depth == 0 or math.sin(self.angle / 2) == 0:
            return False
        return min(self.length1, self.length2) >= abs(self.reach) * (1 - ROUNDING)

    def outline(self):
        """The corners of both sides, each from the end of the first limb to that of the second."""
        along = (math.cos(PI + self.angle), math.sin(PI + self.angle))  # the second limb
        beside = (-along[1], along[0])  # to its left
        end = (along[0] * self.length2, along[1] * self.length2)

        def side(hand):
            away = hand * self.width / 2
            return [(-self.length1, away), (hand * self.reach, away), (end[0] + beside[0] * away, end[1] + beside[1] * away)]

        return side(-1), side(1)

    def model(self):
        right, left = self.outline()
        corners = right + left[::-1] + right[:1]
        return [Surface(*([(x, y, z, 1) for x, y in corners] for z in (0.0, self.depth)))]

    def wall(self, side, y):
        """A wall laid flat, the last of its corners first: it stands at x 0."""
        far = between(side[1], side[2])
        xs = (0.0, -far, -far - between(side[0], side[1]))
        return Surface(*([(x, edge, 0.0, 1) for x in xs] for edge in (y, y + abs(self.depth))))

    def cheek(self, y):
        """The plan, turned over when the width is typed below 0, with the right side's far end at x 0."""
        right, left = self.outline()
        over = 1 if self.width > 0 else -1
        corner = right[2]

        def laid(side):
            return [(px - corner[0], y + over * (py - corner[1]), 0.0, flag) for (px, py), flag in
                    zip(side[::-1], (0, 4, 0))]

        return Surface(laid(right), laid(left))

    def pattern(self):
        right, left = self.outline()
        step = self.depth * 1.5
        return [self.wall(right, ORIGIN[1]), self.wall(left[::-1], -step), self.cheek(-2 * step)]


# ------------------------------------------------------------------------------------------------ the window


def build(case, box, answer):
    width, length1, length2, angle, depth = (box[index] for index in range(BOX_COUNT))
    require_within_reach((width, length1, length2, angle, depth))
    elbow = MitreElbow(width, length1, length2, deg_to_rad(angle), depth)
    require_shape(elbow.has_shape())
    answer.labels = ["", ""] + last_lines(case, case.settings.HalfPattern)
    answer.model = elbow.model()
    answer.pattern = elbow.pattern()


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
