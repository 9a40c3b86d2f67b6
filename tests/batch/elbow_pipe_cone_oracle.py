"""Elbows of a cone and a pipe worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the windows "Cone to Pipe Elbow" and "Pipe to Cone Elbow" and gives back what the
window must answer. Both parts touch one sphere of the pipe's radius, which lies about the point where the centre lines
meet, and so meet in a plane.
"""

import math
from dataclasses import dataclass, replace
from decimal import Decimal, localcontext

from cone_surfaces import Builder, Cone
from cylinder_oracle import Cylinder
from fitting_maths import ORIGIN, PI, QUARTER_TURN, arc_cos, coordinates, deg_to_rad, turned_surface
from window_checks import (LARGEST, PRODUCT, answer_to, ask_for_pattern, last_lines, require_cut_within_end,
                           require_shape, require_within_reach)

CONE_TO_PIPE, PIPE_TO_CONE = "Cone to Pipe Elbow", "Pipe to Cone Elbow"
BOX_COUNT = 9
CONE, PIPE = 0, 1  # the pattern options
SQUARE, ANY_ANGLE = 0, 1  # the types

LABELS = {
    (CONE_TO_PIPE, SQUARE): (("Cone diameter = ", 0), ("Pipe diameter = ", 1)),
    (CONE_TO_PIPE, ANY_ANGLE): (("Cone diameter = ", 4), ("Pipe diameter = ", 5)),
    (PIPE_TO_CONE, SQUARE): (("Pipe diameter = ", 0), ("Cone diameter = ", 1)),
    (PIPE_TO_CONE, ANY_ANGLE): (("Cone diameter = ", 4), ("Pipe diameter = ", 5)),  # named the wrong way round
}
LENGTHS = ((("Length 1 = ", 2), ("Length 2 = ", 3), ("Angle = ", "90")),
           (("Length 1 = ", 6), ("Length 2 = ", 7), ("Angle = ", 8)))


FULL_PI = Decimal("3.14159265358979323846264338327950288419716939937510582097494459")


def sin(x):
    term = total = x
    n = 1
    while abs(term) > Decimal("1e-58"):
        n += 2
        term *= -x * x / (n * (n - 1))
        total += term
    return total


def cos(x):
    return 1 - 2 * sin(x / 2) ** 2


def tan(x):
    return sin(x) / cos(x)


def arc_tan(x):
    halvings = 6
    for _ in range(halvings):
        x /= 1 + (1 + x * x).sqrt()
    term, total, n = x, x, 1
    while abs(term) > Decimal("1e-58"):
        n += 2
        term *= -x * x
        total += term / n
    return total * 2**halvings


@dataclass
class Elbow:
    category: str
    cone: float  # radii
    pipe: float
    length1: float
    length2: float
    angle: float

    def half_angle(self):
        h = math.sqrt(self.cone**2 + self.length1**2)
        require_shape(h > 0 and self.pipe <= h and self.length1 != 0)
        c = math.atan(self.cone / self.length1) + arc_cos(self.pipe / h) - QUARTER_TURN
        require_shape(abs(c) * LARGEST >= self.cone)  # the apex is within reach
        return c

    def cuts(self):
        """(half angle, tilt and height of the cone's cut, tilt and height of the pipe's): by the crossings of the two
        outlines with each other and with the centre lines. Where these are nearly parallel, digits are lost: there must
        be enough of them, of half a turn too."""
        half_angle = self.half_angle()
        with localcontext() as context:
            context.prec = 60
            A, r, c, length1 = map(Decimal, (self.angle, self.pipe, half_angle, self.length1))
            pi, quarter = FULL_PI, FULL_PI / 2
            H = Decimal(self.cone) / tan(c)
            g = pi - (A + c)
            d = r / sin(A)
            u = (H - length1) - d
            e = (sin(A) * u) / sin(g)
            w = (A - c) / 2
            k = r / sin(w)
            v = (quarter - A) + w
            m = cos(v) * k
            s = m / sin(c) - e
            b = arc_tan((cos(c) * s) / ((m + m) - sin(c) * s))
            cone_height = H - (m / tan(c) - tan(b) * m)
            t = (pi - b) - A
            pipe_height = (tan(t) * r - ((sin(c) * e) / sin(A) + cos(A) * d)) + length1
            return half_angle, *map(float, (b, cone_height, t, pipe_height))

    def parts(self):
        c, b, cone_height, t, pipe_height = self.cuts()
        return (Cone(0, self.cone, c, cone_height, angle1=-b),
                Cylinder(self.pipe, self.length2 + self.length1, pipe_height, angle2=t))

    def seam(self, settings):
        return deg_to_rad(settings.JoinAngle) + (0.0 if self.category == PIPE_TO_CONE else PI)

    def model(self, settings):
        """[cone, pipe] in their places."""
        cone, pipe = self.parts()
        seam = self.seam(settings)
        flat_cone = Builder(cone, settings, seam).model()
        upright = pipe.model(settings.segs, seam, settings.HalfPattern)
        apex = self.cone / math.tan(cone.cone_angle)
        require_shape(all((apex - p[2]) * apex > 0 for p in flat_cone.List1))
        require_cut_within_end(flat_cone.List1, flat_cone.List2, (0.0, 0.0, -1.0))
        require_cut_within_end(upright.List2, upright.List1, (0.0, 0.0, 1.0))
        placed = [flat_cone, turned_surface(upright, 2, (0.0, 0.0, self.length1), PI - self.angle)]
        if self.category == PIPE_TO_CONE:
            placed = [turned_surface(part, 2, ORIGIN, self.angle) for part in placed]
        return placed

    def pattern(self, settings, of_cone):
        """The flat part and its warnings. There is no lap but that of the seam."""
        settings = replace(settings, LapSize0=0.0, LapSize2=0.0, TemplateType=0)
        cone, pipe = self.parts()
        if of_cone:
            builder = Builder(cone, settings, self.seam(settings))
            return builder.pattern(builder.model()), builder.warnings
        upright = pipe.model(settings.segs, self.seam(settings), settings.HalfPattern)
        return pipe.pattern(upright, settings), []


# --------------------------------------------------------------------------------------------- the two windows


def checked(case, box):
    first = 0 if case.dtype == SQUARE else 4
    wide, narrow, length1, length2 = range(first, first + 4)
    cone_first = case.category == CONE_TO_PIPE
    box.positive(*((wide, narrow) if cone_first else (wide, narrow, length1, length2)))
    radii = []
    for diameter in (wide, narrow):
        radii.append(box.mean_radius(box[diameter] / 2))
        box.room(diameter, radii[-1], box.settings.Thickness / 2)
    box.below(narrow, box[wide])
    angle = QUARTER_TURN
    if case.dtype == ANY_ANGLE:
        box.at_least(8, 90)
        box.below(8, 180)
        angle = deg_to_rad(box[8])
    cone, pipe = radii if cone_first else reversed(radii)
    if cone_first or case.dtype == SQUARE:
        box.at_least(length1, pipe)
        box.at_least(length2, cone)
    return Elbow(case.category, cone, pipe, box[length1], box[length2], angle)


def build(case, box, answer):
    elbow = checked(case, box)
    settings = case.settings
    require_within_reach(box[index] for index in (range(4), range(4, 9))[case.dtype])
    answer.labels = ["", ""] + box.lines(LABELS[case.category, case.dtype] + LENGTHS[case.dtype])
    answer.labels += last_lines(case, settings.HalfPattern)
    answer.model = elbow.model(settings)
    flat, warnings = elbow.pattern(settings, case.select == CONE)
    answer.pattern = [flat]
    require_within_reach(coordinates(answer.model + answer.pattern))
    answer.messages += [(PRODUCT, text, None) for text in warnings]
    ask_for_pattern(case, answer)


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
