"""Tapered bends worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Tapered Bend" and gives back what the window must answer.
"""

import math
from dataclasses import dataclass

from bend_oracle import number_of_segments
from cone_surfaces import Builder, Cone
from fitting_maths import (ORIGIN, PI, QUARTER_TURN, coordinates, deg_to_rad, moved_surface, plan_angle, polar_point,
                           turned_surface)
from window_checks import (PRODUCT, THICKNESS_ROOM, USER_ERROR, Refusal, answer_to, last_lines, require_shape,
                           require_within_reach)

CATEGORY = "Tapered Bend"
BOX_COUNT = 9
BOXES = (range(4), range(4, 9))
MOST_PIECES, MOST_STATIONS = 32767, 2_000_000

NAMES = ("Base diameter = ", "Top diameter = ", "Bend radius = ", "Bend angle = ", "Number of segments = ")
LABELS = (tuple(zip(NAMES, (0, 1, 2, "90", 3))), tuple(zip(NAMES, (4, 5, 6, 7, 8))))


def mitre_height(big, half_angle, tilt, y):
    """Where a mitre crosses the axis of the straight cone, the axes of whose two pieces meet at height y: by the
    sine rule on the wall's distance w from there."""
    w = math.cos(half_angle) * (big - math.tan(half_angle) * y)
    v = w / math.cos(tilt)
    return (math.sin(half_angle) * v) / math.sin(tilt + QUARTER_TURN) + y


class JoinedModel:
    """Pieces of a model put together: each is turned, and its seam taken to the station opposite the seam of the one
    before."""

    def __init__(self, segs):
        self.segs = segs
        self.pieces = []

    def add(self, piece, turn):
        piece = turned_surface(piece, 2, ORIGIN, turn)
        if self.pieces:
            goal, start = self.pieces[-1].List1[self.segs // 2], piece.List2[0]
            piece = moved_surface(piece, *(b - a for a, b in zip(start[:3], goal[:3])))
        self.pieces.append(piece)


@dataclass
class Bend:
    big: float
    small: float
    bend_radius: float
    bend_angle: float
    pieces: int

    def __post_init__(self):
        cuts = (self.pieces - 1) * 2
        self.tilt = self.bend_angle / cuts
        self.length = math.tan(self.tilt) * self.bend_radius * cuts
        self.half_angle = math.atan((self.big - self.small) / self.length)

    def cuts(self):
        """(number, lower height, upper height) of each piece on the straight cone."""
        y = math.tan(self.tilt) * self.bend_radius
        step, below = y + y, 0.0
        for i in range(1, self.pieces + 1):
            above = mitre_height(self.big, self.half_angle, self.tilt, y)
            yield i, below, self.length if i == self.pieces else above
            below = above
            y += step

    def cone(self, lower, upper, lower_tilt, upper_tilt):
        return Cone(0, self.big, self.half_angle, upper, lower, upper_tilt, lower_tilt)

    def model(self, settings, seam):
        joined, turn = JoinedModel(settings.segs), 0.0
        for i, lower, upper in self.cuts():
            if i > 1:
                turn = turn + self.tilt + self.tilt
            cone = self.cone(lower, upper, 0.0 if i == 1 else self.tilt, 0.0 if i == self.pieces else -self.tilt)
            joined.add(Builder(cone, settings, seam).model(), turn)
            seam += PI
        return joined.pieces

    def pattern(self, settings, seam):
        """The flat pieces and their warnings; the mitres lean to and fro, and the seam stays where it is."""
        patterns, warnings, place = [], [], ORIGIN
        for i, lower, upper in self.cuts():
            tilt = self.tilt if i % 2 == 0 else -self.tilt
            cone = self.cone(lower, upper, 0.0 if i == 1 else tilt, 0.0 if i == self.pieces else -tilt)
            builder = Builder(cone, settings, seam)
            model = builder.model()
            flat = builder.pattern(model)
            middle = len(model.List1) // 2
            place = polar_point(place, plan_angle(flat.List1[middle], flat.List2[middle]), -settings.KerfSpacing)
            patterns.append(moved(flat, place))
            warnings += builder.warnings
        return patterns, warnings


def moved(flat, place):
    """The pattern moved by a vector, its reference point with it."""
    result = moved_surface(flat, *place[:3])
    if flat.RefPoint is not None:
        result.RefPoint = tuple(a + b for a, b in zip(flat.RefPoint, place))
    return result


# ------------------------------------------------------------------------------------------------ the window


def end_radii(box, base, top, speaking=None):
    """The mean radii of both ends. Want of room for the material may speak of other boxes."""
    box.positive(base, top)
    allowance = box.settings.Thickness / 2
    radii = [box.mean_radius(box[index] / 2) for index in (base, top)]
    for index, other, radius in zip((base, top), speaking or (None, None), radii):
        if other is None:
            box.room(index, radius, allowance)
        elif radius < allowance:
            raise Refusal(USER_ERROR, THICKNESS_ROOM, other)
    box.below(top, box[base])
    return radii


def right_angled(box):
    big, small = end_radii(box, 0, 1)
    box.at_least(2, big)
    return big, small, box[2], QUARTER_TURN, number_of_segments(box, 3)


def any_angle(box):
    big, small = end_radii(box, 4, 5)
    box.at_least(6, big)
    box.positive(7)
    return big, small, box[6], deg_to_rad(box[7]), number_of_segments(box, 8)


TYPES = (right_angled, any_angle)


def build(case, box, answer):
    settings = case.settings
    sizes = TYPES[case.dtype](box)
    angle, pieces = 90 if case.dtype == 0 else box[7], sizes[-1]
    require_shape(pieces <= MOST_PIECES and pieces * (settings.segs + 1) <= MOST_STATIONS)
    require_shape(angle / (pieces - 1) < 180)
    require_within_reach(box[index] for index in BOXES[case.dtype])
    bend = Bend(*sizes)
    answer.labels = ["", ""] + box.lines(LABELS[case.dtype]) + last_lines(case, settings.HalfPattern)
    seam = deg_to_rad(settings.JoinAngle)
    answer.model = bend.model(settings, seam)
    answer.pattern, warnings = bend.pattern(settings, seam)
    require_within_reach(coordinates(answer.model + answer.pattern))
    answer.messages += [(PRODUCT, text, None) for text in warnings]


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
