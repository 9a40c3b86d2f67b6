"""Right cylinders worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Right Cylinder" and gives back what the window must answer.
"""

import math
from dataclasses import dataclass

from fitting_maths import (CLOSING_LIMIT, FULL_TURN, ORIGIN, Surface, arc_cos, deg_to_rad, first_half, joined,
                           plan_angle, polar_point, rad_to_deg, turned_surface)
from window_checks import answer_to, last_lines

CATEGORY = "Right Cylinder"
BOX_COUNT = 22
ROOF, OFFSET_ROOF = 3, 5

LABELS = (
    (("Base diameter = ", 0), ("Cutting plane height = ", 1)),
    (("Base diameter = ", 2), ("Cutting plane height = ", 3), ("Cutting plane angle = ", 4)),
    (("Base diameter = ", 5), ("Height 1 = ", 6), ("Height 2  = ", 7)),  # two blanks
    (("Base diameter = ", 8), ("Cutting plane height = ", 9), ("Cutting plane angle 1 = ", 10),
     ("Cutting plane angle 2 = ", 11)),
    (("Base diameter = ", 12), ("Cutting plane height = ", 13), ("Cutting plane angle 1 = ", 14),
     ("Cutting plane angle 2 = ", 15), ("Rotation of base = ", 21)),
    (("Base diameter = ", 16), ("Cutting plane height = ", 17), ("Cutting plane angle 1 = ", 19),
     ("Cutting plane angle 2 = ", 18), ("Offset = ", 20)),
)


@dataclass
class Cylinder:
    radius: float
    height1: float = 0.0
    height2: float = 0.0
    angle1: float = 0.0
    angle2: float = 0.0
    angle3: float = 0.0
    offset: float = 0.0
    rotation: float = 0.0
    dtype: int = 0

    def at(self, t, height, tilt, flag, lean_angle=None):
        """The point of a tilted plane over plan angle t; the tilt may lean another way than along x."""
        z = math.cos(t if lean_angle is None else lean_angle) * math.tan(tilt) * self.radius + height
        return polar_point(ORIGIN, t, self.radius)[:2] + (z, flag)

    def ring(self, segs, seam, point):
        """Two stations to a rule line, point(t, flag) at each; the last one closes the ring."""
        t, points = seam, []
        for i in range(1, 2 * segs + 2):
            points.append(point(t, i % 2))
            t += FULL_TURN / (2 * segs)
        return points

    def roof(self, segs):
        """The stations of two planes that meet in a ridge, from plan angle 0."""
        first = arc_cos(self.offset / self.radius)
        second = FULL_TURN - first
        front = (math.tan(self.angle3) * self.offset + self.height1, -self.angle3)
        back = (self.height1 - math.tan(self.angle1) * self.offset, self.angle1)
        upper, lower = [], []
        t, i = 0.0, 1

        def run(more, plane):
            nonlocal t, i
            while more():
                upper.append(self.at(t, *plane, i % 2))
                lower.append(self.at(t, self.height2, 0.0, i % 2))
                t += FULL_TURN / (2 * segs)
                i += 1

        def end_of_ridge(angle):
            upper.append(self.at(angle, self.height1, 0.0, 5))
            lower.append(self.at(angle, self.height2, 0.0, 1))

        run(lambda: t < first, front)
        end_of_ridge(first)
        run(lambda: t < second, back)
        end_of_ridge(second)
        run(lambda: t <= CLOSING_LIMIT, front)
        return upper, lower

    def model(self, segs, seam, half):
        if self.dtype in (ROOF, OFFSET_ROOF):
            upper, lower = self.roof(segs)
        else:
            upper, lower = self.ring(segs, seam, lambda t, flag: self.at(t, self.height1, self.angle1, flag)), []
        if self.dtype != OFFSET_ROOF:
            # Of the level roof the lower edge runs round once more.
            lower += self.ring(segs, seam, lambda t, flag: self.at(t, self.height2, -self.angle2, flag,
                                                                   self.rotation + t))
        surface = Surface(upper, lower)
        return first_half(surface) if half else surface

    def pattern(self, model, settings):
        radius = self.radius if settings.TemplateType == 0 else settings.Thickness / 2 + self.radius
        circumference = FULL_TURN * radius
        opened = turned_surface(model, 3, ORIGIN, -plan_angle(ORIGIN, model.List1[0]))
        upper, lower = [], []
        for i, (top, bottom) in enumerate(zip(opened.List1, model.List2)):
            a = plan_angle(ORIGIN, top)
            if i > 0 and a < 0.0001:
                a = FULL_TURN
            x = (a / FULL_TURN) * circumference
            upper.append((x, top[2], 0.0, top[3]))
            lower.append((x, bottom[2], 0.0, bottom[3]))
        return joined(Surface(upper, lower), settings)


# ------------------------------------------------------------------------------------------------ the window


def angle_limit(height, radius):
    return rad_to_deg(math.atan(height / radius))


def radius_of(box, diameter):
    radius = box.mean_radius(box[diameter] / 2)
    box.room(diameter, radius, box.settings.Thickness / 2)
    return radius


def level(box):
    box.positive(0, 1)
    return Cylinder(radius_of(box, 0), box[1])


def tilted(box):
    box.positive(2, 3)
    cylinder = Cylinder(radius_of(box, 2), box[3], angle1=-deg_to_rad(box[4]))
    box.between(4, angle_limit(cylinder.height1, cylinder.radius))
    return cylinder


def two_heights(box):
    box.positive(5, 6, 7)
    radius = radius_of(box, 5)
    return Cylinder(radius, (box[7] + box[6]) / 2, angle1=-math.atan((box[6] - box[7]) / (radius + radius)))


def level_roof(box):
    box.positive(8, 9)
    cylinder = Cylinder(radius_of(box, 8), box[9], angle1=deg_to_rad(box[10]), angle3=deg_to_rad(box[11]))
    for angle in (10, 11):
        box.above(angle, -90)
        box.below(angle, angle_limit(cylinder.height1, cylinder.radius))
    return cylinder


def cut_twice(box):
    box.positive(12, 13)
    cylinder = Cylinder(radius_of(box, 12), box[13], angle1=-deg_to_rad(box[14]), angle2=-deg_to_rad(box[15]),
                        rotation=deg_to_rad(box[21]))
    box.between(14, angle_limit(cylinder.height1, cylinder.radius))
    lowest = cylinder.height1 - cylinder.radius * abs(math.tan(cylinder.angle1))
    box.between(15, angle_limit(lowest, cylinder.radius))
    return cylinder


def offset_roof(box):
    box.positive(16, 17)
    radius = radius_of(box, 16)
    cylinder = Cylinder(radius, box[17], angle1=deg_to_rad(box[19]), angle3=deg_to_rad(box[18]), offset=box[20])
    box.between(20, radius)
    box.above(18, -90)
    box.below(18, angle_limit(cylinder.height1, radius - cylinder.offset))
    box.above(19, -90)
    box.below(19, angle_limit(cylinder.height1, radius + cylinder.offset))
    return cylinder


TYPES = (level, tilted, two_heights, level_roof, cut_twice, offset_roof)


def build(case, box, answer):
    settings = case.settings
    cylinder = TYPES[case.dtype](box)
    cylinder.dtype = case.dtype
    answer.labels = ["", ""] + box.lines(LABELS[case.dtype]) + last_lines(case, settings.HalfPattern)
    # The ends of a ridge are measured from 0, so a roofed pipe is cut open there.
    seam = 0.0 if case.dtype in (ROOF, OFFSET_ROOF) else deg_to_rad(settings.JoinAngle)
    answer.model = cylinder.model(settings.segs, seam, settings.HalfPattern)
    answer.pattern = cylinder.pattern(answer.model, settings)


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
