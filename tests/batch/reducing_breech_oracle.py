"""Reducing breeches worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Reducing Breech" and gives back what the window must answer.
"""

import math
from dataclasses import dataclass, replace

from cone_surfaces import Builder, Cone
from cylinder_oracle import OFFSET_ROOF, Cylinder
from fitting_maths import ORIGIN, PI, QUARTER_TURN, deg_to_rad, distance, plan_angle, polar_point, turned_surface
from window_checks import (LARGEST, PRODUCT, answer_to, ask_for_pattern, last_lines, require_cut_within_end,
                           require_shape)

CATEGORY = "Reducing Breech"
BOX_COUNT = 18
TRUNK, LEFT, RIGHT = 0, 1, 2  # the pattern options
LOWER_ROOF = 4

NAMES = ("Pipe diameter = ", "Cone diameter = ", "Main pipe length = ", "Branch lengths = ")
ANGLES = ("Angle from centerline 1 = ",) * 2
LABELS = (tuple(zip(NAMES + ("Included Angle of branch = ",), range(5))),
          tuple(zip(NAMES + ANGLES, range(5, 11))),
          tuple(zip(NAMES[:1] + ("Cone diameter 1 = ", "Cone diameter 2 = ") + NAMES[2:] + ANGLES, range(11, 18))))


def crossing(a, b, c, d):
    """Where the straight lines a b and c d cross on the plan."""
    ab, cd, ac = (b[0] - a[0], b[1] - a[1]), (d[0] - c[0], d[1] - c[1]), (c[0] - a[0], c[1] - a[1])
    t = (ac[0] * cd[1] - ac[1] * cd[0]) / (ab[0] * cd[1] - ab[1] * cd[0])
    return a[0] + t * ab[0], a[1] + t * ab[1], 0.0, 0


def tangent_cone_angle(p, radius, length):
    """Half the angle of the cone through a circle that touches a sphere of radius p."""
    rim = math.sqrt(radius * radius + length * length)
    require_shape(rim >= p)
    return QUARTER_TURN - (math.acos(p / rim) + math.atan(radius / length))


@dataclass
class Breech:
    pipe: float
    length: float
    cone_a: float
    cone_b: float
    branch: float  # length of both branches
    angle_a: float
    angle_b: float

    def __post_init__(self):
        """The planes of the cuts, found in the plane of the axes: the pipe comes from below."""
        p = self.pipe
        self.half_a, self.half_b = (tangent_cone_angle(p, cone, self.branch) for cone in (self.cone_a, self.cone_b))
        for half in (self.half_a, self.half_b):
            require_shape(p <= LARGEST * math.sin(half))
        # Where the walls touch the circle of the sphere: a quarter turn from the axis, less what the cone narrows.
        self.axis_a, self.axis_b = QUARTER_TURN + self.angle_a, QUARTER_TURN - self.angle_b
        outer_a, inner_a = (self.axis_a + sign * (QUARTER_TURN - self.half_a) for sign in (1, -1))
        inner_b, outer_b = (self.axis_b + sign * (QUARTER_TURN - self.half_b) for sign in (1, -1))
        self.low_left, high_left = self.meeting(PI, outer_a), self.meeting(PI, inner_b)
        self.low_right, high_right = self.meeting(0.0, outer_b), self.meeting(0.0, inner_a)
        self.crotch = crossing(self.low_left, high_right, self.low_right, high_left)
        if (self.cone_a, self.angle_a) == (self.cone_b, self.angle_b):
            self.crotch = (0.0, *self.crotch[1:])  # by symmetry, to the last digit
        self.top = self.meeting(inner_a, inner_b)

    def meeting(self, first, second):
        """Where two walls cross that touch the circle there: x cos + y sin = p for both."""
        over = math.sin(second - first)
        return (self.pipe * (math.sin(second) - math.sin(first)) / over,
                self.pipe * (math.cos(first) - math.cos(second)) / over, 0.0, 0)

    def trunk(self):
        return Cylinder(self.pipe, self.crotch[1], -self.length, angle1=plan_angle(self.low_left, self.crotch),
                        angle3=-plan_angle(self.crotch, self.low_right), offset=self.crotch[0], dtype=OFFSET_ROOF)

    def cones(self):
        to_crotch, reach = plan_angle(ORIGIN, self.crotch), distance(ORIGIN, self.crotch)
        seam = plan_angle(self.crotch, self.top)
        for half, to_seam, to_trunk, aside in (
                (self.half_a, self.axis_a - seam, plan_angle(self.crotch, self.low_left) - self.axis_a,
                 self.axis_a - to_crotch),
                (self.half_b, seam - self.axis_b, self.axis_b - plan_angle(self.low_right, self.crotch),
                 to_crotch - self.axis_b)):
            to_apex = self.pipe / math.sin(half)
            yield Cone(LOWER_ROOF, math.tan(half) * to_apex, half, self.branch, math.cos(aside) * reach, 0.0,
                       to_seam - QUARTER_TURN, QUARTER_TURN - to_trunk, math.sin(aside) * reach)

    def model(self, settings):
        trunk = self.trunk().model(settings.segs, 0.0, settings.HalfPattern)
        require_cut_within_end(trunk.List1, trunk.List2, (0, 0, -1))
        cones = [Builder(cone, settings, 0.0).model() for cone in self.cones()]
        for cone in cones:
            require_cut_within_end(cone.List2, cone.List1, (0, 0, 1))
        return [trunk, turned_surface(cones[0], 2, ORIGIN, self.angle_a),
                turned_surface(turned_surface(cones[1], 3, ORIGIN, PI), 2, ORIGIN, -self.angle_b)]

    def pattern(self, settings, select, answer):
        if select is None:
            return []
        if select == TRUNK:
            trunk = self.trunk()
            model = trunk.model(settings.segs, 0.0, settings.HalfPattern)
            return [trunk.pattern(model, replace(settings, TemplateType=0))]
        builder = Builder(list(self.cones())[select - LEFT], settings, 0.0)
        flat = builder.pattern(builder.model())
        answer.messages += [(PRODUCT, text, None) for text in builder.warnings]
        return [flat]


# ------------------------------------------------------------------------------------------------ the window


def check_pipes(box, pipe, cones, main, before_cones=lambda radius: None):
    """Mean radii of pipe and cones."""
    box.positive(pipe, *cones, main)
    radii = [box.mean_radius(box[index] / 2) for index in (pipe, *cones)]
    for index, radius in zip((pipe, *cones), radii):
        box.room(index, radius, box.settings.Thickness / 2)
    before_cones(radii[0])
    for index in cones:
        box.below(index, box[pipe])
    return radii


def check_branch(box, branch, cones, angles):
    opening = math.tan(sum(angles) / 2)
    require_shape(opening != 0)
    box.above(branch, max(cone / opening for cone in cones))


def forked(box):
    pipe, cone = check_pipes(box, 0, (1,), 2, lambda radius: box.at_least(3, radius))
    box.above(4, 0)
    box.at_most(4, 180)
    half = deg_to_rad(box[4]) / 2
    check_branch(box, 3, (cone,), (half, half))
    return Breech(pipe, box[2], cone, cone, box[3], half, half)


def leaning(box):
    pipe, cone = check_pipes(box, 5, (6,), 7)
    for index in (9, 10):
        box.at_least(index, 0)
        box.at_most(index, 90)
    angles = [deg_to_rad(box[index]) for index in (9, 10)]
    check_branch(box, 8, (cone,), angles)
    return Breech(pipe, box[7], cone, cone, box[8], *angles)


def unequal(box):
    pipe, *cones = check_pipes(box, 11, (12, 13), 14)
    for index in (16, 17):
        box.above(index, 0)
        box.at_most(index, 90)
    angles = [deg_to_rad(box[index]) for index in (16, 17)]
    check_branch(box, 15, cones, angles)
    return Breech(pipe, box[14], *cones, box[15], *angles)


TYPES = (forked, leaning, unequal)


def build(case, box, answer):
    breech = TYPES[case.dtype](box)
    answer.labels = ["", ""] + box.lines(LABELS[case.dtype]) + last_lines(case, case.settings.HalfPattern)
    answer.model = breech.model(case.settings)
    answer.pattern = breech.pattern(case.settings, case.select, answer)
    ask_for_pattern(case, answer)


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
