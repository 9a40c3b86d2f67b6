"""Rectangular tees worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Rectangular Tee" and gives back what the window must answer.
"""

import cmath
import math
from dataclasses import dataclass

from fitting_maths import Surface
from window_checks import answer_to, last_lines, require_within_reach

CATEGORY = "Rectangular Tee"
BOX_COUNT = 14
# In both pages: widths of end 1, left and right outlet, their lengths, the depth, and the angle of the centre lines.
BOXES = ((0, 4, 5, 1, 2, 3, 6), (7, 11, 11, 8, 9, 10, 13))
ANGLE_BOX = 12


@dataclass
class Tee:
    """Corners are complex numbers, x + iy."""

    width: float
    left_width: float
    right_width: float
    length: float
    left_length: float
    right_length: float

    def square(self):
        """The inlet's end stands at x = 0; the wall opposite is its length away."""
        far, left, right = self.length, self.length - self.left_width, self.length - self.right_width
        w, up, down = self.width / 2, self.left_length, -self.right_length
        return [complex(*p) for p in ((0, w), (left, w), (left, up), (far, up), (far, down), (right, down),
                                      (right, -w), (0, -w), (0, w))]

    def angled(self, degrees):
        """The centre is the origin. Nothing of it depends on the width of the right outlet."""
        angle = math.radians(degrees)
        along = cmath.rect(1, math.pi - angle)  # of the left outlet, out from the centre
        end, across = along * self.left_length, along * 1j * (self.left_width / 2)
        inlet, w = -self.length, self.width / 2
        right_end = end - across + cmath.rect(self.left_length + self.right_length, angle - math.pi)
        throat = complex(inlet + (self.length - w * math.tan((math.pi - angle) / 2)), w)
        return [complex(inlet, -w), right_end, end - across, end + across, throat, complex(inlet, w),
                complex(inlet, -w)]


# ------------------------------------------------------------------------------------------------ the window


def build(case, box, answer):
    page = BOXES[case.dtype]
    *sizes, depth = (box[index] for index in page)
    require_within_reach(box[index] for index in (*page, ANGLE_BOX)[:7 + case.dtype])
    tee = Tee(*sizes)
    corners = tee.angled(box[ANGLE_BOX]) if case.dtype else tee.square()
    answer.labels = ["", ""] + last_lines(case, case.settings.HalfPattern)
    answer.model = Surface([(c.real, c.imag, 0.0, 1) for c in corners], [(c.real, c.imag, depth, 1) for c in corners])


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
