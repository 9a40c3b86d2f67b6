"""Cyclones on a cone worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Cyclone (Cone)" and gives back what the window must answer. It is a
pipe to a cone turned over: the base of that cone is what stands at the top.
"""

from pipe_to_cone_oracle import SIDE, Shape, make, mean_sizes, side_limit
from window_checks import answer_to

CATEGORY = "Cyclone (Cone)"
BOX_COUNT = 6

LABELS = (("Top diameter = ", 0), ("Base diameter = ", 1), ("Branch pipe diameter = ", 2), ("Branch pipe length = ", 4),
          ("Distance to intersection = ", 5), ("Cutting plane height = ", 3))


def build(case, box, answer):
    box.positive(0, 1, 2)
    box.below(1, box[0])
    # The height of the apex stays that of the typed cone.
    s = mean_sizes(case, box, 0, 1, 2, 3)
    H, C = box[3], box[5]
    box.at_least(5, s.p)
    box.at_least(3, C + s.p)
    box.at_least(4, s.R)
    shape = Shape(SIDE, s.R, s.theta, H, s.p, -box[4], 0.0, C, side_limit(s, C), invert=True)
    make(case, box, answer, shape, LABELS)


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
