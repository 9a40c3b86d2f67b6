"""Murok mitres worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Murok Mitre" and gives back what the window must answer.
"""

import math
from dataclasses import dataclass

from cylinder_oracle import Cylinder
from fitting_maths import (ORIGIN, PI, QUARTER_TURN, THREE_QUARTER_TURNS, Settings, Surface, moved_surface,
                           turned_surface)
from window_checks import answer_to, last_lines, require_within_reach

CATEGORY = "Murok Mitre"
BOX_COUNT = 5

LABELS = (("Radius = ", 0), ("Offset Length = ", 1), ("Length 1 = ", 2), ("Length 2 = ", 3), ("Offset Distance = ", 4))


def quarter(surface):
    kept = len(surface.List1) // 4 + 1
    return Surface(surface.List1[:kept], surface.List2[:kept])


def moved_to(surface, grip, place):
    return moved_surface(surface, *(to - at for at, to in zip(grip[:3], place[:3])))


@dataclass
class MurokMitre:
    radius: float
    offset_length: float
    length1: float
    length2: float
    offset: float

    def __post_init__(self):
        r = self.radius
        a1, self.b1 = math.atan(self.offset / self.length1), math.atan(self.length1 / self.offset)
        a2, self.b2 = math.atan(self.offset / self.length2), math.atan(self.length2 / self.offset)
        self.first = Cylinder(r, math.tan(self.b1) * r + math.tan(a1 / 2) * r + math.hypot(self.offset, self.length1),
                              0.0, -a1 / 2, -self.b1)
        self.second = Cylinder(r, math.tan(self.b2) * r + math.tan(a2 / 2) * r + math.hypot(self.offset, self.length2),
                               0.0, a2 / 2, self.b2)
        self.middle = Cylinder(r, math.tan(a2 / 2) * r + math.tan(a1 / 2) * r + self.offset_length, 0.0, -a2 / 2, -a1 / 2)

    def rings(self, segs):
        return [piece.model(segs, seam, False) for piece, seam in
                ((self.first, THREE_QUARTER_TURNS), (self.second, PI), (self.middle, THREE_QUARTER_TURNS))]

    def model(self, segs):
        def laid_down(surface, place, turn):
            return turned_surface(turned_surface(surface, 1, place, QUARTER_TURN), 3, place, turn)

        first, second, middle = self.rings(segs)
        first = laid_down(first, ORIGIN, self.b1)
        m = round(len(first.List1) / 4 + 1) - 1
        x, y, z, _ = first.List1[m]
        place = (x + self.offset_length, y, z)
        second = laid_down(second, place, -self.b2)
        middle = laid_down(middle, place, QUARTER_TURN)
        return [quarter(first), quarter(moved_to(second, second.List1[0], place)),
                quarter(moved_to(middle, middle.List1[m], place))]

    def pattern(self, segs):
        """The quarters of the flat rings, with no choice of laps or template."""
        plain = Settings(segs=segs)
        first, second, middle = (piece.pattern(ring, plain) for piece, ring in
                                 zip((self.first, self.second, self.middle), self.rings(segs)))
        second = moved_to(second, second.List2[0], first.List1[0])
        place = second.List1[0]
        middle = turned_surface(middle, 3, place, PI)
        m = round(len(middle.List1) / 4 + 1) - 1
        return [quarter(first), quarter(second), quarter(moved_to(middle, middle.List1[m], place))]


# ------------------------------------------------------------------------------------------------ the window


def build(case, box, answer):
    box.positive(0)
    radius = box.mean_radius(box[0])
    box.room(0, radius, case.settings.Thickness / 2, 1)
    box.positive(1, 2, 3, 4)
    require_within_reach(box[index] for index in range(BOX_COUNT))
    answer.labels = ["", ""] + box.lines(LABELS) + last_lines(case, case.settings.HalfPattern)
    mitre = MurokMitre(radius, box[1], box[2], box[3], box[4])
    answer.model = mitre.model(case.settings.segs)
    answer.pattern = mitre.pattern(case.settings.segs)


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
