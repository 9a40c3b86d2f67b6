"""Model and pattern of a right cone, worked out by code that shares nothing with the program.

All sizes are those of the middle of the material. Angles are radians. A point is (x, y, z, flag).
"""

import math
from dataclasses import dataclass

from fitting_maths import (CLOSING_LIMIT, FULL_TURN, ORIGIN, PI, QUARTER_TURN, SEAM_LAP, Surface, arc_cos, distance,
                           first_half, lapped, plan_angle, polar_point)

TOP_LAP = "Top lap is too large"


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
        surface = Surface(*make())
        return first_half(surface) if self.settings.HalfPattern else surface

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
        settings = self.settings
        if any(distance(ORIGIN, p) < settings.LapSize0 for p in surface.List1):
            self.warnings.append(TOP_LAP)
        result = lapped(surface, settings)
        if plan_angle(ORIGIN, result.List1[-2]) > plan_angle(ORIGIN, result.List1[-1]):
            self.warnings.append(SEAM_LAP)
        return result
