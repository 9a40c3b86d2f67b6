"""Offset cones worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Offset Cone" and gives back what the window must answer.
"""

from dataclasses import dataclass

from cone_surfaces import TOP_LAP
from cylinder_oracle import radius_of
from fitting_maths import (FULL_TURN, ORIGIN, PI, SEAM_LAP, Surface, coordinates, deg_to_rad, distance, first_half,
                           joined, plan_angle, polar_point)
from window_checks import PRODUCT, answer_to, closing_angle, last_lines, require_shape, require_within_reach

CATEGORY = "Offset Cone"
BOX_COUNT = 7
BOXES = (range(4), range(4, 7))

NAMES = ("Base diameter = ", "Top diameter = ", "Cutting plane height = ", "Offset = ")
LABELS = tuple(tuple(zip(NAMES, boxes)) for boxes in BOXES)


def ring_of(segs, seam, centre, radius):
    """Two stations to a rule line; the last one closes the ring."""
    t, points = seam, []
    for i in range(1, 2 * segs + 2):
        points.append(polar_point(centre, t, radius, i % 2))
        t += FULL_TURN / (2 * segs)
    return points


@dataclass
class OffsetCone:
    base_rad: float
    apex: tuple
    height: float

    def ring(self, segs, seam, h):
        if h == 0:
            return ring_of(segs, seam, ORIGIN, self.base_rad)
        k = h / self.apex[2]
        return ring_of(segs, seam, tuple(c * k for c in self.apex), (1 - k) * self.base_rad)

    def model(self, segs, seam, half):
        surface = Surface(self.ring(segs, seam, self.height), self.ring(segs, seam, 0.0))
        return first_half(surface) if half else surface

    def flat_ring(self, ring, segs):
        """Generator by generator: the angle between two lies opposite the step between them."""
        step = (distance(ring[0], ring[segs - 1]) * PI) / (2 * segs)
        angle, slant = 0.0, distance(ring[0], self.apex)
        flat = [polar_point(ORIGIN, angle, slant, 1)]
        for i, point in enumerate(ring[1:], start=2):
            if slant != 0:
                before, slant = slant, distance(point, self.apex)
                angle += closing_angle(step, before, slant)
            flat.append(polar_point(ORIGIN, angle, slant, i % 2))
        return flat

    def pattern(self, model, settings):
        """The flat pattern and its warnings."""
        # Station 1 and station segs are the same one.
        require_shape(settings.segs > 1)
        flat = Surface(*(self.flat_ring(ring, settings.segs) for ring in (model.List1, model.List2)), RefPoint=ORIGIN,
                       RefPointDisplay=True)
        warnings = [TOP_LAP] if any(distance(ORIGIN, p) < settings.LapSize0 for p in flat.List1) else []
        result = joined(flat, settings)
        if settings.JoinType > 0 and plan_angle(ORIGIN, result.List1[-2]) > plan_angle(ORIGIN, result.List1[-1]):
            warnings.append(SEAM_LAP)
        return result, warnings


# ------------------------------------------------------------------------------------------------ the window


def cone_of(R, r, h, o):
    require_shape(R != r)
    return OffsetCone(R, ((o * R) / (R - r), 0.0, (R * h) / (R - r)), h)


def by_offset(box):
    box.positive(0, 1)
    box.not_equal(2, 0)
    box.not_equal(3, 0)
    R, r = radius_of(box, 0), radius_of(box, 1)
    box.below(1, box[0])
    return R, r, box[2], box[3]


def flush(box):
    box.positive(4, 5)
    box.not_equal(6, 0)
    R, r = radius_of(box, 4), radius_of(box, 5)
    box.below(5, box[4])
    return R, r, box[6], R - r


TYPES = (by_offset, flush)


def build(case, box, answer):
    settings = case.settings
    sizes = TYPES[case.dtype](box)
    require_within_reach(box[index] for index in BOXES[case.dtype])
    cone = cone_of(*sizes)
    answer.labels = ["", ""] + box.lines(LABELS[case.dtype]) + last_lines(case, settings.HalfPattern)
    answer.model = cone.model(settings.segs, deg_to_rad(settings.JoinAngle), settings.HalfPattern)
    answer.pattern, warnings = cone.pattern(answer.model, settings)
    require_within_reach(coordinates([answer.model, answer.pattern]))
    answer.messages += [(PRODUCT, text, None) for text in warnings]


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
