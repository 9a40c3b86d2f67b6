"""Pipes into cones worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Pipe to Cone" and gives back what the window must answer. The cone
has the radii R below and r above and the height H, the pipe the radius p.
"""

import math
from dataclasses import dataclass

from cone_surfaces import Builder, Cone
from cylinder_oracle import Cylinder
from fitting_maths import (FULL_TURN, ORIGIN, PI, QUARTER_TURN, Surface, deg_to_rad, distance, first_half, joined,
                           moved_surface, plan_angle, polar_point, turned_surface)
from window_checks import (NO_HALF, USER_ERROR, answer_to, ask_for_pattern, last_lines, require_cut_within_end,
                           require_shape)

CATEGORY = "Pipe to Cone"
BOX_COUNT = 22
CONE, PIPE = 0, 1  # the pattern options
SIDE, TOP, SLANT = 0, 1, 2  # the types

# (base, top and pipe diameter, height, pipe length, center distance, offset, angle)
PAGES = ((0, 1, 2, 3, 4, 5, 19, None), (6, 7, 8, 9, 10, 11, 20, None), (12, 13, 14, 15, 16, 17, 21, 18))
NAMES = ("Base diameter = ", "Top diameter = ", "Pipe diameter = ", "Cutting plane height = ", "Pipe length = ",
         "Center distance = ", "Offset = ", "Pipe angle = ")

CAP, TOLERANCE = 20_000, 1e-5


# ---------------------------------------------------------------------------------------------- the geometry


def point_along(a, b, d):
    whole = distance(a, b)
    return tuple(p + (q - p) * d / whole for p, q in zip(a[:3], b[:3]))


@dataclass
class Shape:
    dtype: int
    base: float
    cone_angle: float
    height: float
    pipe: float
    length: float
    angle: float
    center: float
    offset: float
    invert: bool = False

    def meeting(self, a, b):
        """Where the rule from a to b comes out of the cone: by steps that halve, from the inside."""
        rule, slope = distance(a, b), math.tan(math.atan(self.apex / self.base))

        def probe(d):
            p = point_along(a, b, d)
            plan = math.hypot(p[0], p[1])
            rim = polar_point(ORIGIN, plan_angle(ORIGIN, p), self.base)
            height = slope * distance((p[0], p[1], 0.0), rim)
            return p, height, plan

        step, d, count = self.height * 0.01, 0.0, 0
        require_shape(step > TOLERANCE and rule > 0)
        p, height, plan = probe(d)
        before = d, p, height, plan
        slack = 1e-9 * self.base
        require_shape(p[2] - height <= slack and plan - self.base <= slack)
        while step > TOLERANCE:
            while p[2] < height and p[0] ** 2 + p[1] ** 2 <= self.base**2:
                require_shape(count < CAP)
                before = d, p, height, plan
                d += step
                p, height, plan = probe(d)
                count += 1
            step *= 0.5
            if p[2] > height or math.sqrt(p[0] ** 2 + p[1] ** 2 + p[2] ** 2) > self.base:
                d, p, height, plan = before
        return p

    def pieces(self, segs):
        """Cone and pipe before they are turned over and halved, the hole in the cone's List3."""
        frustum = Builder(Cone(0, self.base, self.cone_angle, self.height), Whole(segs), PI)
        self.apex = frustum.apex_height
        cone = frustum.model()
        pipe = Cylinder(self.pipe, self.length).model(segs, PI if self.dtype == TOP else 0.0, False)
        if self.dtype != TOP:
            pipe = turned_surface(pipe, 2, ORIGIN, -QUARTER_TURN if self.dtype == SIDE else self.angle)
        pipe = moved_surface(pipe, *((self.center, self.offset, 0.0) if self.dtype == TOP else
                                     (0.0, self.offset, self.center)))
        met = [self.meeting(a, b) + ((i + 1) % 2,) for i, (a, b) in enumerate(zip(pipe.List2, pipe.List1))]
        towards = tuple(q - p for p, q in zip(pipe.List2[0][:3], pipe.List1[0]))
        require_cut_within_end(met, pipe.List1, towards)
        slack = 1e-9 * self.height
        require_shape(all(-slack <= p[2] <= self.height + slack for p in met))
        # On the plate, cut open at -x, the hole is one line from station to station.
        around = [math.atan2(p[1], p[0]) for p in met]
        require_shape(all(abs(b - a) <= math.pi for a, b in zip(around, around[1:])))
        pipe.List2 = met
        cone.List3 = list(met)
        return cone, pipe

    def model(self, segs, half):
        """(upright cone for its pattern, [cone, pipe] as they stand)."""
        require_shape(self.height * 0.01 > TOLERANCE)
        cone, pipe = self.pieces(segs)
        if half:
            hole = cone.List3
            middle = len(hole) // 2
            cone, pipe = first_half(cone), first_half(pipe)
            # The half plate has y below 0; round an upright pipe that is the first half of the hole.
            cone.List3 = hole[:middle + 1] if self.dtype == TOP else hole[middle:]
        stand = [cone, pipe]
        if self.invert:
            stand = [turned_surface(surface, 2, ORIGIN, PI) for surface in stand]
        return cone, stand

    def flat_cone(self, cone, settings):
        apex = (0.0, 0.0, self.apex)
        circumference, slant = self.base * FULL_TURN, math.sqrt(self.base**2 + self.apex**2)
        cone = turned_surface(cone, 3, ORIGIN, plan_angle(ORIGIN, cone.List2[0]))
        top, bottom = distance(apex, cone.List1[0]), distance(apex, cone.List2[0])

        def flat_angle(a):
            return (a / FULL_TURN) * circumference / slant

        upper, lower, before = [], [], 0.0
        for i, (p, q) in enumerate(zip(cone.List1, cone.List2)):
            a = plan_angle(ORIGIN, q) if i else 0.0
            if a < before:
                a += FULL_TURN
            before = a
            upper.append(polar_point(ORIGIN, flat_angle(a), top, p[3]))
            lower.append(polar_point(ORIGIN, flat_angle(a), bottom, q[3]))
        hole = [polar_point(ORIGIN, flat_angle(plan_angle(ORIGIN, p)), distance(apex, p), p[3]) for p in cone.List3]
        return joined(Surface(upper, lower, RefPoint=ORIGIN[:3], RefPointDisplay=True, List3=hole), settings)

    def flat_pipe(self, pipe, settings):
        spacing = self.pipe * FULL_TURN / (2 * settings.segs)
        x, upper, lower = 0.0, [], []
        for i, (end, met) in enumerate(zip(pipe.List1, pipe.List2), start=1):
            upper.append((x, distance(end, met), 0.0, i % 2))
            lower.append((x, 0.0, 0.0, i % 2))
            x += spacing
        return joined(Surface(upper, lower), settings)


@dataclass
class Whole:
    """Settings for a whole cone."""

    segs: int
    HalfPattern: bool = False
    JoinType: int = 0


# ------------------------------------------------------------------------------------------------ the window


@dataclass
class Sizes:
    R: float
    r: float
    p: float
    A: float
    theta: float


def apex_height(R, r, H):
    return H * R / (R - r)


def mean_sizes(case, box, base, top, pipe, height):
    """The sizes of the middle of the material: the cone's when its pattern is wanted, else the pipe's. Of a window with
    no choice yet the cone is meant."""
    R, r, p, H, half = box[base] / 2, box[top] / 2, box[pipe] / 2, box[height], box.settings.Thickness / 2
    A = apex_height(R, r, H)
    theta = math.atan(R / A) if A else QUARTER_TURN
    if case.select == PIPE:
        p = box.mean(p, half)
        box.room(pipe, p, half)
    else:
        lean = math.cos(theta) * half
        R, r = box.mean(R, lean), box.mean(r, lean)
        box.room(base, R, lean)
        box.room(top, r, lean)
    return Sizes(R, r, p, A, theta)


def side_limit(s, C):
    return ((s.A - C) * s.R / s.A) - s.p / math.cos(s.theta)


def pipe_to_cone(case, box):
    base, top, pipe, height, length, center, offset, angle = PAGES[case.dtype]
    box.positive(base, top, pipe)
    if case.dtype == SLANT:
        box.positive(height, length)
    box.below(top, box[base])
    s = mean_sizes(case, box, base, top, pipe, height)
    H, C, b = box[height], box[center], 0.0
    s.A = apex_height(s.R, s.r, H)
    if case.dtype == SIDE:
        box.above(center, s.p)
        box.below(center, H - s.p)
    elif case.dtype == TOP:
        box.above(center, s.r + s.p)
        box.below(center, s.R - s.p)
    else:
        b = deg_to_rad(box[angle])
        E = s.p / math.cos(b - s.theta)
        box.above(center, -(math.tan(b) * (s.R - math.sin(s.theta) * E) - math.cos(s.theta) * E))
    if case.dtype == TOP:
        L = math.sqrt((s.R - s.p) ** 2 - C * C)
    else:
        L = side_limit(s, C)
        box.below(pipe, 2 * math.sin(s.theta) * (s.A - C) * 0.99)
    box.below(offset, L)
    box.above(offset, -L)
    lean = (0.0, 90.0, b - QUARTER_TURN)[case.dtype]
    return Shape(case.dtype, s.R, s.theta, H, s.p, box[length], lean, C, -box[offset])


def labels(dtype):
    boxes = list(PAGES[dtype])
    if boxes[-1] is None:
        boxes[-1] = ("0", "90")[dtype]
    return tuple(zip(NAMES, boxes))


def make(case, box, answer, shape, lines):
    """The text block of these lines, the model and the pattern."""
    settings = case.settings
    half = settings.HalfPattern
    if half and shape.offset != 0:
        answer.messages.append((USER_ERROR, NO_HALF, None))
        half = False
    answer.labels = ["", ""] + box.lines(lines) + last_lines(case, half)
    upright, answer.model = shape.model(settings.segs, half)
    answer.pattern = [shape.flat_pipe(answer.model[1], settings) if case.select == PIPE else
                      shape.flat_cone(upright, settings)]
    ask_for_pattern(case, answer)


def build(case, box, answer):
    make(case, box, answer, pipe_to_cone(case, box), labels(case.dtype))


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
