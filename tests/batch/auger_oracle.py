"""Augers worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Auger" and gives back what the window must answer.
"""

import math
from dataclasses import dataclass

from fitting_maths import FULL_TURN, ORIGIN, PI, Surface, deg_to_rad, moved_surface, polar_point, unfolded
from window_checks import (NO_HALF, USER_ERROR, answer_to, category_line, number_text, require_shape,
                           require_within_reach)

CATEGORY = "Auger"
BOX_COUNT = 15
MOST_STATIONS = 2_000_000

PARALLEL, TAPERED, FROM_INSIDE, FROM_OUTSIDE = range(4)
BOXES = ((0, 1, 2, 3), (4, 5, 6, 7, 8), (9, 10, 11), (12, 13, 14))
LABELS = (
    (("Outside diameter = ", 0), ("Pitch = ", 1), ("Fight width = ", 3), ("Length = ", 2)),
    (("Outside diameter 1 = ", 4), ("Outside diameter 2 = ", 5), ("Pitch = ", 6), ("Fight width = ", 8),
     ("Length = ", 7)),
    (("Single plate type - based on ID", ""), ("Inside diameter = ", 9), ("Pitch = ", 10), ("Fight width = ", 11),
     ("Length = Pitch", "")),
    (("Single plate type - based on OD", ""), ("Outside diameter = ", 12), ("Pitch = ", 13), ("Fight width = ", 14),
     ("Length = Pitch", "")))


@dataclass
class Auger:
    dtype: int
    outside: tuple  # diameters at the start and at the end
    inside: tuple
    pitch: float
    length: float
    thickness: float

    def turns(self):
        """The fractions of a turn that the surfaces make, one behind the other."""
        turns = self.length / self.pitch
        if abs(turns - round(turns)) <= 1e-9:
            return [1.0] * round(turns)
        return [1.0] * int(turns) + [turns - int(turns)]

    def edge(self, diameters):
        """Radius at the start, and what a turn adds to it."""
        start, end = diameters[0] / 2, diameters[1] / 2
        if self.dtype == TAPERED:
            start -= (start - end) * (self.thickness / 2) / self.length
            return start, (end - start) * self.pitch / self.length
        return start, 0.0

    def spiral(self, count, fraction, bottom, radius, growth):
        angle, height, points = 0.0, 0.0, []
        for i in range(1, count + 2):
            x, y, _, flag = polar_point(ORIGIN, angle, radius, i % 2)
            points.append((x, y, bottom + height, flag))
            angle += FULL_TURN / count * fraction
            radius += growth / count * fraction
            height += self.pitch / count * fraction
        return points

    def model(self, segs):
        (inner, inner_growth), (outer, outer_growth) = self.edge(self.inside), self.edge(self.outside)
        surfaces, bottom = [], 0.0
        for fraction in self.turns():
            surfaces.append(Surface(self.spiral(2 * segs, fraction, bottom, inner, inner_growth),
                                    self.spiral(2 * segs, fraction, bottom, outer, outer_growth)))
            inner, outer, bottom = inner + inner_growth, outer + outer_growth, bottom + self.pitch
        return surfaces

    def flat_radii(self):
        width = (self.outside[0] - self.inside[0]) / 2
        if self.dtype == FROM_INSIDE:
            radius = math.hypot(self.inside[0] * PI, self.pitch) / FULL_TURN
            return radius, radius + width
        radius = math.hypot(self.outside[0] * PI, self.pitch) / FULL_TURN
        return radius - width, radius

    def plate(self, segs, seam):
        angles = [seam]
        while len(angles) <= 2 * segs:
            angles.append(angles[-1] + FULL_TURN / (2 * segs))
        edges = [[polar_point(ORIGIN, t, radius, i % 2) for i, t in enumerate(angles, start=1)]
                 for radius in self.flat_radii()]
        return [Surface(*edges, RefPoint=ORIGIN[:3], RefPointDisplay=True)]

    def pattern(self, segs, seam):
        if self.dtype in (FROM_INSIDE, FROM_OUTSIDE):
            return self.plate(segs, seam)
        surfaces, x = [], 0.0
        for turn in self.model(segs):
            flat = unfolded(turn)
            surfaces.append(moved_surface(flat, x, 0, 0))
            across = [p[0] for p in flat.List2]
            x += max(across) - min(across)
        return surfaces


# ------------------------------------------------------------------------------------------------ the window


def auger_of(case, box):
    """The auger of the typed sizes, which are checked on the way."""
    page = BOXES[case.dtype]
    box.positive(*page)
    sizes = [box[index] for index in page]
    if case.dtype == FROM_INSIDE:
        inside, pitch, width = sizes
        ends = ((2 * width + inside, inside),) * 2
        length = pitch
    elif case.dtype == FROM_OUTSIDE:
        outside, pitch, width = sizes
        ends = ((outside, outside - 2 * width),) * 2
        length = pitch
    else:
        *outside, pitch, length, width = sizes if case.dtype == TAPERED else (sizes[0], *sizes)
        box.at_most(page[-1], min(outside) / 2)
        ends = tuple((diameter, diameter - 2 * width) for diameter in outside)
    (outside1, inside1), (outside2, inside2) = ends
    return Auger(case.dtype, (outside1, outside2), (inside1, inside2), pitch, length, case.settings.Thickness)


def build(case, box, answer):
    auger = auger_of(case, box)
    segs = case.settings.segs
    turns = auger.length / auger.pitch
    require_shape(1e-9 < turns and turns * (2 * segs + 1) < 2 * MOST_STATIONS)
    require_shape(len(auger.turns()) * (2 * segs + 1) <= MOST_STATIONS)
    require_shape(min(*auger.inside, auger.edge(auger.inside)[0]) >= 0)
    require_shape(auger.dtype < FROM_INSIDE or auger.flat_radii()[0] >= 0)
    require_within_reach(box[index] for index in BOXES[case.dtype])
    answer.labels = (["", ""] + box.lines(LABELS[case.dtype]) +
                     ["Thickness = " + number_text(case.settings.Thickness), category_line(case, False)])
    answer.model = auger.model(segs)
    answer.pattern = auger.pattern(segs, deg_to_rad(case.settings.JoinAngle))
    if case.settings.HalfPattern:
        answer.messages.append((USER_ERROR, NO_HALF, None))


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
