"""Round to round and offset cylinders worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Round to Round" or "Offset Cylinder" and gives back what the window
must answer.
"""

import math
from dataclasses import dataclass

from cylinder_oracle import radius_of
from fitting_maths import (FULL_TURN, ORIGIN, QUARTER_TURN, SEAM_LAP, Surface, coordinates, deg_to_rad, distance,
                           first_half, joined, plan_angle, polar_point, snapped, turned)
from offset_cone_oracle import ring_of
from window_checks import USER_ERROR, answer_to, closing_angle, last_lines, require_shape, require_within_reach

ROUND = "Round to Round"
CYLINDER = "Offset Cylinder"
BOX_COUNT = {ROUND: 13, CYLINDER: 6}
TYPES = [(ROUND, 0), (ROUND, 1), (ROUND, 2), (CYLINDER, 0), (CYLINDER, 1)]

BASE, TOP, HEIGHT = "Base diameter = ", "Top diameter = ", "Cutting plane height = "
TILT, OFFSET_X = "Cutting plane angle 1 = ", "Offset X = "
LABELS = {
    (ROUND, 0): ((BASE, 0), (TOP, 1), (HEIGHT, 2), (TILT, 3)),
    (ROUND, 1): ((BASE, 4), (TOP, 5), (HEIGHT, 6), (OFFSET_X, 7), (TILT, 8)),
    (ROUND, 2): ((BASE, 9), (TOP, 10), (HEIGHT, 11), (OFFSET_X, 12)),
    (CYLINDER, 0): ((BASE, 0), (HEIGHT, 1), ("Offset = ", 2)),
    (CYLINDER, 1): ((BASE, 3), ("Length = ", 5), ("Angle = ", 4)),
}


@dataclass
class RoundToRound:
    base_rad: float
    top_rad: float
    height: float
    offset_x: float = 0.0
    tilt: float = 0.0

    def model(self, segs, seam, half):
        centre = (self.offset_x, 0.0, self.height)
        top = [turned(p, 2, centre, self.tilt) for p in ring_of(segs, seam, centre, self.top_rad)]
        surface = Surface(ring_of(segs, seam, ORIGIN, self.base_rad), top)
        return first_half(surface) if half else surface

    def unrolled(self, model, segs):
        """Triangle by triangle, with the arcs of the circles instead of their chords."""
        base_step = snapped((self.base_rad * FULL_TURN) / (2 * segs))
        top_step = snapped((self.top_rad * FULL_TURN) / (2 * segs))
        here, direction = ORIGIN, 0.0
        base, top = [], []
        for i, (a, b) in enumerate(zip(model.List1, model.List2)):
            last = i + 1 == len(model.List1)
            ab = distance(a, b) if last else snapped(distance(a, b))
            base.append(here[:3] + (a[3],))
            top.append(polar_point(here, direction, ab, b[3]))
            if last:
                break
            c, d = model.List1[i + 1], model.List2[i + 1]
            ad, bc = snapped(distance(a, d)), snapped(distance(b, c))
            to_c = closing_angle(bc, base_step, ab)
            to_d = closing_angle(top_step, ab, ad)
            flat_c = polar_point(here, direction - to_c, base_step)
            direction = plan_angle(flat_c, polar_point(here, direction - to_d, ad))
            here = flat_c
        return Surface(base, top)

    def pattern(self, model, settings):
        """The flat pattern and its warnings."""
        result = joined(self.unrolled(model, settings.segs), settings)
        narrow = settings.JoinType > 0 and any(distance(edge[-2], edge[0]) < settings.LapSize1
                                               for edge in (result.List1, result.List2))
        return result, [SEAM_LAP] if narrow else []


# ----------------------------------------------------------------------------------------------- the windows


def tilt_of(box, index):
    box.at_least(index, -90)
    box.at_most(index, 90)
    return -deg_to_rad(box[index])


def over_base(box):
    box.positive(0, 1, 2)
    tilt = tilt_of(box, 3)
    return RoundToRound(radius_of(box, 0), radius_of(box, 1), box[2], 0.0, tilt)


def beside_base(box):
    box.positive(4, 5, 6)
    tilt = tilt_of(box, 8)
    base, top = radius_of(box, 4), radius_of(box, 5)
    box.positive(6)
    return RoundToRound(base, top, box[6], box[7], tilt)


def upright(box):
    box.positive(9, 10, 11)
    base, top = radius_of(box, 9), radius_of(box, 10)
    box.positive(11)
    return RoundToRound(base, top, box[11], box[12], -QUARTER_TURN)


def cylinder_by_offset(box):
    radius = radius_of(box, 0)
    box.positive(1)
    return RoundToRound(radius, radius, box[1], box[2])


def cylinder_by_angle(box):
    radius = radius_of(box, 3)
    box.positive(5, 4)
    box.below(4, 180)
    angle = deg_to_rad(box[4])
    return RoundToRound(radius, radius, math.sin(angle) * box[5], math.cos(angle) * box[5])


BUILDS = dict(zip(TYPES, (over_base, beside_base, upright, cylinder_by_offset, cylinder_by_angle)))


def build(case, box, answer):
    settings, kind = case.settings, (case.category, case.dtype)
    fitting = BUILDS[kind](box)
    require_within_reach(box[index] for _, index in LABELS[kind])
    require_shape(fitting.base_rad != 0 and fitting.top_rad != 0)
    answer.labels = ["", ""] + box.lines(LABELS[kind]) + last_lines(case, settings.HalfPattern)
    answer.model = fitting.model(settings.segs, deg_to_rad(settings.JoinAngle), settings.HalfPattern)
    answer.pattern, warnings = fitting.pattern(answer.model, settings)
    require_within_reach(coordinates([answer.model, answer.pattern]))
    answer.messages += [(USER_ERROR, text, None) for text in warnings]


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT[case.category], build)
