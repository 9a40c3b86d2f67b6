"""Model and pattern of a right cone, worked out by code that shares nothing with the program.

All sizes are those of the middle of the material. Angles are radians. A point is (x, y, z, flag).
"""

import math
from dataclasses import dataclass

PI = 3.14159265358979
QUARTER_TURN = 1.570796326794895
FULL_TURN = 6.28318530717958
CLOSING_LIMIT = 6.28319530717958

TOP_LAP = "Top lap is too large"
SEAM_LAP = "Lap join along seam may be too large"


@dataclass
class Settings:
    segs: int = 24
    Thickness: float = 0.0
    InOutMean: int = 0
    HalfPattern: bool = False
    JoinType: int = 0
    LapSize0: float = 0.0
    LapSize1: float = 0.0
    LapSize2: float = 0.0
    JoinAngle: float = 0.0  # degrees


@dataclass
class Surface:
    List1: list
    List2: list
    LapList1: list = None
    LapList2: list = None
    RefPoint: tuple = None
    RefPointDisplay: bool = False
    List3: list = None


@dataclass
class Cone:
    dtype: int
    base_rad: float = 0.0
    cone_angle: float = 0.0
    height1: float = 0.0
    height2: float = 0.0
    angle1: float = 0.0
    angle2: float = 0.0
    angle3: float = 0.0
    offset: float = 0.0


def deg_to_rad(degrees):
    return degrees * (PI / 180)


def rad_to_deg(radians):
    return (radians * 180) / PI


def arc_cos(x):
    rounded = round(x * 1e8) / 1e8
    if rounded == 1:
        return 0.0
    if rounded == -1:
        return PI
    return math.atan(-x / math.sqrt(-x * x + 1)) + 2 * math.atan(1)


def plan_angle(a, b):
    dx, dy = b[0] - a[0], b[1] - a[1]
    if dx == 0:
        return 0.0 if dy == 0 else QUARTER_TURN if dy > 0 else 4.712388980384685
    if dx < 0:
        return math.atan(dy / dx) + PI
    return math.atan(dy / dx) + (FULL_TURN if dy < 0 else 0.0)


def polar_point(p, angle, distance, flag=0):
    return (p[0] + distance * math.cos(angle), p[1] + distance * math.sin(angle), p[2], flag)


def distance(a, b):
    return math.sqrt((b[0] - a[0]) ** 2 + (b[1] - a[1]) ** 2 + (b[2] - a[2]) ** 2)


class Builder:
    """Model and pattern of one cone. The seam angle is in radians here."""

    def __init__(self, cone, settings, seam):
        self.cone = cone
        self.settings = settings
        self.seam = seam
        self.apex_height = math.tan(QUARTER_TURN - cone.cone_angle) * cone.base_rad
        self.step = FULL_TURN / settings.segs
        self.base_ring = []
        self.warnings = []

    def ring_point(self, t, tilt, height, flag):
        """Where the generator at plan angle t meets a plane: by the sine rule in the section through the axis."""
        cone, apex = self.cone, self.apex_height
        d = math.atan(cone.base_rad * math.cos(t) / apex)
        b = tilt + QUARTER_TURN
        along = (apex - height) * math.sin(b) / math.sin(PI - (b + d))
        r = along * math.cos(d) / math.cos(cone.cone_angle)
        q = math.sin(cone.cone_angle) * r
        return (math.cos(t) * q, math.sin(t) * q, apex - math.cos(cone.cone_angle) * r, flag)

    def base_point(self, t, flag):
        return polar_point((0.0, 0.0, 0.0), t, self.cone.base_rad, flag)

    def plane_cut(self):
        cone = self.cone
        t = self.seam
        upper, lower = [], []
        for i in range(1, self.settings.segs + 2):
            upper.append(self.ring_point(t, cone.angle1, cone.height1, i % 2))
            lower.append(self.ring_point(t, cone.angle2, cone.height2, i % 2))
            self.base_ring.append(self.base_point(t, i % 2))
            t += self.step
        return upper, lower

    def roof_stations(self, ridge_height):
        """(plan angle, whether behind the ridge, flag) of each station; flag is None where the ridge ends."""
        cone = self.cone
        ridge_radius = ((self.apex_height - ridge_height) * cone.base_rad) / self.apex_height
        first = arc_cos(cone.offset / ridge_radius)
        second = FULL_TURN - first
        t, i = self.seam, 1
        for limit, behind in ((first, False), (second, True), (CLOSING_LIMIT, False)):
            while t < limit:
                yield t, behind, i % 2
                t += self.step
                i += 1
            if limit != CLOSING_LIMIT:
                yield limit, behind, None

    def at_axis(self, tilt, ridge_height):
        return math.tan(tilt) * self.cone.offset + ridge_height

    def upper_roof(self):
        cone = self.cone
        front = (cone.angle1, self.at_axis(cone.angle1, cone.height1))
        back = (cone.angle3, self.at_axis(cone.angle3, cone.height1))
        upper, lower = [], []
        for t, behind, flag in self.roof_stations(cone.height1):
            upper.append(self.ring_point(t, *(back if behind else front), 5 if flag is None else flag))
            lower.append(self.base_point(t, 1 if flag is None else flag))
        self.base_ring = list(lower)
        return upper, lower

    def lower_roof(self):
        cone = self.cone
        front = (cone.angle2, self.at_axis(cone.angle2, cone.height2))
        back = (cone.angle3, self.at_axis(cone.angle3, cone.height2))
        upper, lower = [], []
        for t, behind, flag in self.roof_stations(cone.height2):
            upper.append(self.ring_point(t, cone.angle1, cone.height1, 1 if flag is None else flag))
            lower.append(self.ring_point(t, *(back if behind else front), 5 if flag is None else flag))
            self.base_ring.append(self.base_point(t, 0 if flag is None else flag))
        return upper, lower

    def model(self):
        make = {3: self.upper_roof, 4: self.lower_roof}.get(self.cone.dtype, self.plane_cut)
        upper, lower = make()
        if self.settings.HalfPattern:
            kept = len(upper) // 2 + 1
            upper, lower = upper[:kept], lower[:kept]
        return Surface(upper, lower)

    def pattern(self, model):
        apex, centre = (0.0, 0.0, self.apex_height), (0.0, 0.0, 0.0)
        radius = self.cone.base_rad
        circumference, slant = radius * FULL_TURN, math.sqrt(radius * radius + self.apex_height**2)
        angle = 0.0
        inner, outer = [], []
        for p, q, base in zip(model.List1, model.List2, self.base_ring):
            before, angle = angle, plan_angle(centre, base)
            # Seen from a first station a hair before the x axis, the last one is two turns on.
            while angle < before:
                angle += FULL_TURN
            f = ((angle / FULL_TURN) * circumference) / slant
            inner.append(polar_point(centre, f, distance(apex, p), p[3]))
            outer.append(polar_point(centre, f, distance(apex, q), q[3]))
        surface = Surface(inner, outer, RefPoint=centre, RefPointDisplay=True)
        return self.lapped(surface) if self.settings.JoinType > 0 else surface

    def lapped(self, surface):
        settings, flat_apex = self.settings, (0.0, 0.0, 0.0)
        inner, outer = surface.List1, surface.List2
        if any(distance(flat_apex, p) < settings.LapSize0 for p in inner):
            self.warnings.append(TOP_LAP)
        if settings.LapSize1 > 0:
            add_seam_tab(inner, outer, settings.LapSize1)
        result = Surface(inner, outer, [], [])
        if settings.LapSize0 > 0:
            result.LapList1 = list(inner)
            result.List1 = moved_out(inner, outer, settings.LapSize0)
        if settings.LapSize2 > 0:
            result.LapList2 = list(outer)
            result.List2 = moved_out(outer, result.List1, settings.LapSize2)
        if plan_angle(flat_apex, result.List1[-2]) > plan_angle(flat_apex, result.List1[-1]):
            self.warnings.append(SEAM_LAP)
        return result


def add_seam_tab(inner, outer, width):
    """Adds the tab past the seam edge, off the pattern, and turns the edge into a corner."""
    p, q = inner[-1], outer[-1]
    turn = QUARTER_TURN
    middle = ((p[0] + q[0]) / 2, (p[1] + q[1]) / 2)
    for a, b in zip(reversed(inner[:-1]), reversed(outer[:-1])):
        away = ((a[0] + b[0]) / 2 - middle[0], (a[1] + b[1]) / 2 - middle[1])
        if math.hypot(*away) > 1e-6:
            if (q[0] - p[0]) * away[1] - (q[1] - p[1]) * away[0] > 0:
                turn = -QUARTER_TURN
            break
    angle = plan_angle(p, q) + turn
    inner[-1], outer[-1] = p[:3] + (p[3] + 4,), q[:3] + (q[3] + 4,)
    inner.append(polar_point(p, angle, width, 8))
    outer.append(polar_point(q, angle, width, 8))


def moved_out(edge, other, width):
    """The points of an edge moved away from the other edge, along the rulings."""
    return [polar_point(p, plan_angle(q, p), width)[:2] + p[2:] for p, q in zip(edge, other)]
