"""Reducing elbows worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Reducing Elbow" and gives back what the window must answer.
"""

import math
from dataclasses import dataclass

from cone_surfaces import Builder, Cone
from fitting_maths import ORIGIN, PI, QUARTER_TURN, coordinates, deg_to_rad, plan_angle, polar_point, turned_surface
from tapered_bend_oracle import JoinedModel, end_radii, mitre_height, moved
from window_checks import PRODUCT, answer_to, last_lines, require_within_reach

CATEGORY = "Reducing Elbow"
BOX_COUNT = 9
BOXES = (range(4), range(4, 9))

NAMES = ("Large diameter = ", "Small diameter = ", "Length 1 = ", "Length 2 = ", "Angle = ")
LABELS = (tuple(zip(NAMES, (0, 1, 2, 3, "90"))), tuple(zip(NAMES, (4, 5, 6, 7, 8))))


@dataclass
class Elbow:
    big: float
    small: float
    length1: float
    length2: float
    bend_angle: float

    def __post_init__(self):
        self.tilt = QUARTER_TURN - self.bend_angle / 2
        length = self.length2 + self.length1
        half_angle = math.atan((self.big - self.small) / length)
        mitre = mitre_height(self.big, half_angle, self.tilt, self.length1)
        self.first = Cone(0, self.big, half_angle, mitre, 0.0, -self.tilt, 0.0)
        self.second = Cone(0, self.big, half_angle, length, mitre, 0.0, self.tilt)

    def model(self, settings, seam):
        joined = JoinedModel(settings.segs)
        joined.add(Builder(self.first, settings, seam).model(), 0.0)
        joined.add(Builder(self.second, settings, seam + PI).model(), self.tilt + self.tilt)
        return joined.pieces

    def pattern(self, settings, seam):
        """The two flat pieces and their warnings. The first ruling of the second one is laid along +x."""
        builders = Builder(self.first, settings, seam), Builder(self.second, settings, seam + PI)
        first, second = (builder.pattern(builder.model()) for builder in builders)
        second = turned_surface(second, 3, ORIGIN, -plan_angle(second.List1[0], second.List2[0]))
        middle = len(first.List1) // 2
        along = plan_angle(second.List1[middle], second.List2[middle])
        pieces = [first, moved(second, polar_point(ORIGIN, along, -settings.KerfSpacing))]
        return pieces, builders[0].warnings + builders[1].warnings


# ------------------------------------------------------------------------------------------------ the window


def right_angled(box):
    big, small = end_radii(box, 0, 1)
    box.at_least(2, small)
    box.at_least(3, big)
    return Elbow(big, small, box[2], box[3], -QUARTER_TURN)


def any_angle(box):
    # The tests of the material speak of the diameters of the other type.
    big, small = end_radii(box, 4, 5, speaking=(0, 1))
    box.at_least(8, 90)
    box.below(8, 180)
    box.at_least(6, small)
    box.at_least(7, big)
    return Elbow(big, small, box[6], box[7], -deg_to_rad(box[8]))


TYPES = (right_angled, any_angle)


def build(case, box, answer):
    settings = case.settings
    elbow = TYPES[case.dtype](box)
    require_within_reach(box[index] for index in BOXES[case.dtype])
    answer.labels = ["", ""] + box.lines(LABELS[case.dtype]) + last_lines(case, settings.HalfPattern)
    seam = deg_to_rad(settings.JoinAngle)
    answer.model = elbow.model(settings, seam)
    answer.pattern, warnings = elbow.pattern(settings, seam)
    require_within_reach(coordinates(answer.model + answer.pattern))
    answer.messages += [(PRODUCT, text, None) for text in warnings]


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
