"""Pipes on a bend worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Pipe to Bend" and gives back what the window must answer.
"""

import math
from dataclasses import dataclass

from bend_oracle import Bend
from cylinder_oracle import radius_of
from fitting_maths import FULL_TURN, QUARTER_TURN, Surface, arc_sin, distance, first_half, joined
from window_checks import answer_to, last_lines, require_shape, require_within_reach

CATEGORY = "Pipe to Bend"
BOX_COUNT = 5
GORES = 12
MOST_STATIONS = 2_000_000

LABELS = (("Pipe diameter = ", 0), ("Bend diameter = ", 1), ("Bend center line radius = ", 2),
          ("Pipe center height = ", 3), ("Pipe length = ", 4))


@dataclass
class PipeToBend:
    pipe_radius: float
    bend_radius: float
    bend_centre_line: float
    height: float
    length: float

    def meeting_x(self, y, z):
        a = arc_sin(y / self.bend_radius)
        rho = math.cos(a) * self.bend_radius + self.bend_centre_line
        return (math.sqrt(rho * rho - z * z) if rho - z > 0 else 0.0) - self.bend_centre_line

    def pipe(self, segs, half):
        corners = ()
        if self.pipe_radius == self.bend_radius:
            corners = (segs // 4 + 1, (segs // 4) * 3 + 1)
        t, free_end, edge = -QUARTER_TURN, [], []
        for i in range(1, segs + 2):
            flag = i % 2 + (4 if i in corners else 0)
            y, z = math.cos(t) * self.pipe_radius, math.sin(t) * self.pipe_radius + self.height
            free_end.append((self.length - self.bend_centre_line, y, z, flag))
            edge.append((self.meeting_x(y, z), y, z, flag))
            t += FULL_TURN / segs
        surface = Surface(free_end, edge)
        return first_half(surface) if half else surface

    def model(self, segs, half):
        bend = Bend(self.bend_radius, self.bend_centre_line, QUARTER_TURN, GORES, 0.0, 0.0)
        return bend.model(segs, 0.0, half) + [self.pipe(segs, half)]

    def pattern(self, settings):
        wrap = settings.Thickness if settings.TemplateType else 0.0
        circumference = (wrap / 2 + self.pipe_radius) * FULL_TURN
        x, upper, lower = 0.0, [], []
        pipe = self.pipe(settings.segs, settings.HalfPattern)
        for p, q in zip(pipe.List1, pipe.List2):
            lower.append((x, 0.0, 0.0, p[3]))
            upper.append((x, distance(p, q), 0.0, q[3]))
            x += circumference / settings.segs
        return [joined(Surface(lower, upper), settings)]


# ------------------------------------------------------------------------------------------------ the window


def build(case, box, answer):
    settings = case.settings
    radius = radius_of(box, 0)
    bend_radius, centre_line, height, length = box[1] / 2, box[2], box[3], box[4]
    box.at_least(1, radius + radius)
    box.at_least(3, radius)
    box.at_least(2, bend_radius)
    box.at_most(3, (centre_line + bend_radius) - radius)
    lowest, reach = height - radius, centre_line + bend_radius
    box.above(4, math.sqrt(reach * reach - lowest * lowest))
    require_shape(radius != 0 and (GORES + 1) * (2 * settings.segs + 1) + settings.segs + 1 <= MOST_STATIONS)
    require_within_reach(box[index] for index in range(BOX_COUNT))
    answer.labels = ["", ""] + box.lines(LABELS) + last_lines(case, settings.HalfPattern)
    fitting = PipeToBend(radius, bend_radius, centre_line, height, length)
    answer.model = fitting.model(settings.segs, settings.HalfPattern)
    answer.pattern = fitting.pattern(settings)


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
