"""Right cones worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Right Cone" or "Truncated Right Cone" and gives back what
the window must answer: the messages of a refusal, or the text block, the model and the flat pattern.
"""

import math
import re
from dataclasses import dataclass, field

from cone_surfaces import QUARTER_TURN, Builder, Cone, Surface, deg_to_rad, rad_to_deg

PRODUCT = "Korvet Development"
USER_ERROR = "User Error"
LESS_THAN = "This dimension must be less than "
GREATER_THAN = "This dimension must be greater than "
AT_LEAST = "This dimension must be equal to or greater than "
ABOVE_ZERO = "This dimension must be greater than 0"
THICKNESS_ROOM = "This dimension must be increased to allow for material thickness"
NOT_A_NUMBER = "Not a valid number"

RIGHT_CONE = "Right Cone"
TRUNCATED = "Truncated Right Cone"
BOX_COUNT = {RIGHT_CONE: 9, TRUNCATED: 27}
POSITION = ("mean", "inside", "outside")

LABELS = {
    (RIGHT_CONE, 0): (("Base diameter = ", 0), ("Top diameter = ", 1), ("Apex height = ", 2)),
    (RIGHT_CONE, 1): (("Base diameter = ", 3), ("Top diameter = ", 4), ("Cutting plane height = ", 5)),
    (RIGHT_CONE, 2): (("Base diameter = ", 6), ("Top diameter = ", 7), ("Cone angle = ", 8)),
    # In the first type of the truncated cone the two angles are named the wrong way round, and stay so.
    (TRUNCATED, 0): (("Base diameter = ", 0), ("Cone angle = ", 3), ("Cutting plane angle = ", 2),
                     ("Cutting plane height = ", 1)),
    (TRUNCATED, 1): (("Base diameter = ", 4), ("Apex height = ", 6), ("Cutting plane angle = ", 5),
                     ("Cutting plane height = ", 7)),
    (TRUNCATED, 2): (("Base diameter = ", 8), ("Apex height = ", 13), ("Cutting plane angle 1 = ", 12),
                     ("Cutting plane angle 2 = ", 10), ("Cutting plane height 1 = ", 9),
                     ("Cutting plane height 2 = ", 11)),
    (TRUNCATED, 3): (("Base diameter = ", 19), ("Apex height = ", 17), ("Cutting plane angle 1 = ", 14),
                     ("Cutting plane angle 2 = ", 16), ("Cutting plane height 1 = ", 18), ("Offset = ", 15)),
    (TRUNCATED, 4): (("Base diameter = ", 20), ("Top diameter = ", 21), ("Cutting plane angle 1 = ", 25),
                     ("Cutting plane angle 2 = ", 26), ("Cutting plane height 1 = ", 22),
                     ("Cutting plane height 2 = ", 23), ("Offset = ", 24)),
}


@dataclass
class Answer:
    messages: list = field(default_factory=list)  # (title, text, box)
    refused: bool = False
    labels: list = field(default_factory=list)  # without the date at the end of the last one
    model: Surface = None
    pattern: Surface = None
    checks: list = field(default_factory=list)  # (kind, box, limit) of every check that was made


class Refusal(Exception):
    def __init__(self, title, text, box):
        super().__init__(text)
        self.message = (title, text, box)


def parse_number(text):
    """The number in a text, or None. A point is the decimal mark; no words for infinity, nothing too large."""
    if not re.fullmatch(r"[ \t\r\n]*[+-]?([0-9]+\.?[0-9]*|\.[0-9]+)([eE][+-]?[0-9]+)?[ \t\r\n]*", text):
        return None
    value = float(text)
    return value if math.isfinite(value) else None


def number_text(value):
    text = "%.15g" % value
    return "0" if text == "-0" else text


def limit_text(value, decimals=1):
    power = 10.0**decimals
    return number_text(round(value * power) / power)


class Boxes:
    """The texts of a window's boxes with the checks that a build makes of them."""

    def __init__(self, texts, settings, checks):
        self.texts = texts
        self.settings = settings
        self.checks = checks

    def __getitem__(self, box):
        value = parse_number(self.texts[box])
        if value is None:
            raise Refusal(PRODUCT, NOT_A_NUMBER, box)
        return value

    def _check(self, kind, box, limit, good, text):
        self.checks.append((kind, box, limit))
        if not good:
            raise Refusal(USER_ERROR, text, box)

    def positive(self, *boxes):
        for box in boxes:
            self._check("positive", box, 0.0, self[box] > 0, ABOVE_ZERO)

    def below(self, box, limit):
        self._check("below", box, limit, self[box] < limit, LESS_THAN + limit_text(limit))

    def above(self, box, limit):
        self._check("above", box, limit, self[box] > limit, GREATER_THAN + limit_text(limit))

    def at_least(self, box, limit):
        self._check("at least", box, limit, self[box] >= limit, AT_LEAST + limit_text(limit))

    def room(self, box, mean, cone_angle):
        allowance = math.cos(cone_angle) * self.settings.Thickness / 2
        self._check("room", box, allowance, not allowance > mean, THICKNESS_ROOM)

    def mean(self, size, angle):
        """The size of the middle of the material for a typed radius; angle is how far the wall leans."""
        amount = (self.settings.Thickness / 2) * math.cos(angle)
        return size + (0, amount, -amount)[self.settings.InOutMean]


# ------------------------------------------------------------------------------------------- the two windows


def plain_cone(dtype, box):
    base, top, third = ((0, 1, 2), (3, 4, 5), (6, 7, 8))[dtype]
    box.positive(base, top)
    if dtype < 2:
        box.positive(third)
    big, small, size = box[base] / 2, box[top] / 2, box[third]
    if dtype == 2:
        angle = deg_to_rad(size / 2)
    box.below(top, box[base])
    if dtype == 0:
        height = size - (small * size) / big
        angle = math.atan(big / size)
    elif dtype == 1:
        height = size
        angle = math.atan(big / ((size * big) / (big - small)))
    else:
        box.positive(third)
        box.below(third, 180)
        height = (big - small) / math.tan(angle)
    big, small = box.mean(big, angle), box.mean(small, angle)
    box.room(base, big, angle)
    box.room(top, small, angle)
    return Cone(dtype, big, angle, height)


def cone_limit(height, radius):
    return rad_to_deg(math.atan(height / radius))


def between(box, index, limit):
    box.above(index, -limit)
    box.below(index, limit)


def cut_by_cone_angle(box):
    box.positive(0, 1, 2)
    box.below(2, 180)
    # The wall's lean is not yet known here, so the whole half thickness counts.
    radius = box.mean(box[0] / 2, 0.0)
    cone = Cone(0, radius, deg_to_rad(box[2] / 2), box[1], angle1=deg_to_rad(box[3]))
    box.room(0, radius, cone.cone_angle)
    box.below(1, radius / math.tan(cone.cone_angle))
    between(box, 3, cone_limit(cone.height1, radius))
    return cone


def cut_by_apex_height(box):
    box.positive(4, 6, 7)
    cone = Cone(1, height1=box[7], angle1=deg_to_rad(box[5]), cone_angle=math.atan((box[4] / 2) / box[6]))
    cone.base_rad = box.mean(box[4] / 2, cone.cone_angle)
    box.room(4, cone.base_rad, cone.cone_angle)
    box.below(7, cone.base_rad / math.tan(cone.cone_angle))
    between(box, 5, cone_limit(cone.height1, cone.base_rad))
    return cone


def cut_twice(box):
    box.positive(8, 9, 11, 13)
    cone = Cone(2, height1=box[9], height2=box[11], angle1=deg_to_rad(box[12]), angle2=-deg_to_rad(box[10]),
                cone_angle=math.atan((box[8] / 2) / box[13]))
    cone.base_rad = box.mean(box[8] / 2, cone.cone_angle)
    box.room(8, cone.base_rad, cone.cone_angle)
    apex = cone.base_rad / math.tan(cone.cone_angle)
    box.below(9, apex)
    box.below(11, apex)
    between(box, 12, cone_limit(cone.height1, cone.base_rad))
    between(box, 10, cone_limit(cone.height2, cone.base_rad))
    return cone


def roofed_above(box):
    box.positive(19, 18, 17)
    height, offset = box[18], box[15]
    cone = Cone(3, height1=height, offset=offset, angle3=-deg_to_rad(box[14]), angle1=deg_to_rad(box[16]),
                cone_angle=math.atan((box[19] / 2) / box[17]))
    radius = cone.base_rad = box.mean(box[19] / 2, cone.cone_angle)
    box.room(19, radius, cone.cone_angle)
    apex = radius / math.tan(cone.cone_angle)
    box.below(18, apex)
    ridge_radius = ((apex - height) * radius) / apex
    box.at_least(15, -ridge_radius)
    box.below(15, ridge_radius)
    box.below(14, cone_limit(height, radius + offset))
    box.above(14, -(cone_limit(apex - height, offset) if offset > 0 else 90.0))
    box.below(16, cone_limit(height, radius - offset))
    box.above(16, -(90.0 if offset >= 0 else -cone_limit(apex - height, offset)))
    cone.cone_angle = math.atan(radius / apex)
    return cone


def roofed_below(box):
    box.positive(20, 21, 22, 23)
    upper, lower, offset = box[22], box[23], box[24]
    cone = Cone(4, height1=upper, height2=lower, offset=offset, angle3=deg_to_rad(box[25]),
                angle2=-deg_to_rad(box[26]))
    box.below(21, box[20])
    big, small = box[20] / 2, box[21] / 2
    cone.cone_angle = math.atan(big / ((upper * big) / (big - small)))
    radius = cone.base_rad = box.mean(big, cone.cone_angle)
    box.room(20, radius, cone.cone_angle)
    apex = radius / math.tan(cone.cone_angle)
    box.below(22, apex)
    box.below(23, upper)
    small = box.mean(small, cone.cone_angle)
    box.room(21, small, cone.cone_angle)
    ridge_radius = ((apex - lower) * radius) / apex
    box.above(24, -ridge_radius)
    box.below(24, ridge_radius)
    steepest = -rad_to_deg(QUARTER_TURN - cone.cone_angle)
    box.below(26, 90.0 if offset >= small else 90 - cone_limit(small - offset, upper - lower))
    box.above(26, steepest)
    box.below(25, 90.0 if offset <= -small else 90 - cone_limit(small + offset, upper - lower))
    box.above(25, steepest)
    return cone


TRUNCATED_TYPES = (cut_by_cone_angle, cut_by_apex_height, cut_twice, roofed_above, roofed_below)


# ------------------------------------------------------------------------------------------------ the whole


def typing_messages(boxes):
    """What is said while the texts are typed, one box after the other. Every box starts as "0"."""
    return [(PRODUCT, NOT_A_NUMBER, box) for box, text in boxes
            if text not in ("", "-", ".", ",") and parse_number(text) is None]


def build(category, dtype, texts, settings, answer):
    box = Boxes(texts, settings, answer.checks)
    if category == RIGHT_CONE:
        return plain_cone(dtype, box)
    for index in range(BOX_COUNT[category]):
        box[index]  # every box of every type must hold a number
    return TRUNCATED_TYPES[dtype](box)


def compute(category, dtype, boxes, settings, comments=("", "")):
    """The answer of a new window to `boxes`, [(index, text)] in the order typed, and good settings.

    dtype is counted from 0.
    """
    answer = Answer(messages=typing_messages(boxes))
    texts = ["0"] * BOX_COUNT[category]
    for index, text in boxes:
        texts[index] = text
    try:
        cone = build(category, dtype, texts, settings, answer)
    except Refusal as refusal:
        answer.messages.append(refusal.message)
        answer.refused = True
        return answer
    answer.labels = list(comments) + [label + texts[box] for label, box in LABELS[category, dtype]] + [
        "Thickness = " + number_text(settings.Thickness),
        "Dimensions are based on the " + POSITION[settings.InOutMean],
        category + "  " + ("Half pattern" if settings.HalfPattern else "Full pattern") + "  "]
    # The ends of a ridge are measured from 0, so a roofed cone is cut open there.
    seam = 0.0 if category == TRUNCATED and dtype > 2 else deg_to_rad(settings.JoinAngle)
    builder = Builder(cone, settings, seam)
    answer.model = builder.model()
    answer.pattern = builder.pattern(answer.model)
    answer.messages += [(PRODUCT, text, None) for text in builder.warnings]
    return answer
