"""Right cones worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Right Cone" or "Truncated Right Cone" and gives back what
the window must answer: the messages of a refusal, or the text block, the model and the flat pattern.
"""

import math

from cone_surfaces import Builder, Cone
from fitting_maths import QUARTER_TURN, deg_to_rad, rad_to_deg
from window_checks import POSITION, PRODUCT, answer_to, last_lines

RIGHT_CONE = "Right Cone"
TRUNCATED = "Truncated Right Cone"
BOX_COUNT = {RIGHT_CONE: 9, TRUNCATED: 27}

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


def room(box, index, radius, angle):
    """Whether the material fits under a wall that leans by `angle`."""
    box.room(index, radius, math.cos(angle) * box.settings.Thickness / 2)


def mean(box, size, angle):
    """The size of the middle of the material for a typed radius; angle is how far the wall leans."""
    return box.mean(size, (box.settings.Thickness / 2) * math.cos(angle))


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
    big, small = mean(box, big, angle), mean(box, small, angle)
    room(box, base, big, angle)
    room(box, top, small, angle)
    return Cone(dtype, big, angle, height)


def cone_limit(height, radius):
    return rad_to_deg(math.atan(height / radius))


def cut_by_cone_angle(box):
    box.positive(0, 1, 2)
    box.below(2, 180)
    # The wall's lean is not yet known here, so the whole half thickness counts.
    radius = mean(box, box[0] / 2, 0.0)
    cone = Cone(0, radius, deg_to_rad(box[2] / 2), box[1], angle1=deg_to_rad(box[3]))
    room(box, 0, radius, cone.cone_angle)
    box.below(1, radius / math.tan(cone.cone_angle))
    box.between(3, cone_limit(cone.height1, radius))
    return cone


def cut_by_apex_height(box):
    box.positive(4, 6, 7)
    cone = Cone(1, height1=box[7], angle1=deg_to_rad(box[5]), cone_angle=math.atan((box[4] / 2) / box[6]))
    cone.base_rad = mean(box, box[4] / 2, cone.cone_angle)
    room(box, 4, cone.base_rad, cone.cone_angle)
    box.below(7, cone.base_rad / math.tan(cone.cone_angle))
    box.between(5, cone_limit(cone.height1, cone.base_rad))
    return cone


def cut_twice(box):
    box.positive(8, 9, 11, 13)
    cone = Cone(2, height1=box[9], height2=box[11], angle1=deg_to_rad(box[12]), angle2=-deg_to_rad(box[10]),
                cone_angle=math.atan((box[8] / 2) / box[13]))
    cone.base_rad = mean(box, box[8] / 2, cone.cone_angle)
    room(box, 8, cone.base_rad, cone.cone_angle)
    apex = cone.base_rad / math.tan(cone.cone_angle)
    box.below(9, apex)
    box.below(11, apex)
    box.between(12, cone_limit(cone.height1, cone.base_rad))
    box.between(10, cone_limit(cone.height2, cone.base_rad))
    return cone


def roofed_above(box):
    box.positive(19, 18, 17)
    height, offset = box[18], box[15]
    cone = Cone(3, height1=height, offset=offset, angle3=-deg_to_rad(box[14]), angle1=deg_to_rad(box[16]),
                cone_angle=math.atan((box[19] / 2) / box[17]))
    radius = cone.base_rad = mean(box, box[19] / 2, cone.cone_angle)
    room(box, 19, radius, cone.cone_angle)
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
    radius = cone.base_rad = mean(box, big, cone.cone_angle)
    room(box, 20, radius, cone.cone_angle)
    apex = radius / math.tan(cone.cone_angle)
    box.below(22, apex)
    box.below(23, upper)
    small = mean(box, small, cone.cone_angle)
    room(box, 21, small, cone.cone_angle)
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


def build(case, box, answer):
    category, dtype, settings = case.category, case.dtype, case.settings
    cone = plain_cone(dtype, box) if category == RIGHT_CONE else TRUNCATED_TYPES[dtype](box)
    lines = last_lines(case, settings.HalfPattern)
    lines.insert(1, "Dimensions are based on the " + POSITION[settings.InOutMean])
    answer.labels = ["", ""] + box.lines(LABELS[category, dtype]) + lines
    # The ends of a ridge are measured from 0, so a roofed cone is cut open there.
    seam = 0.0 if category == TRUNCATED and dtype > 2 else deg_to_rad(settings.JoinAngle)
    builder = Builder(cone, settings, seam)
    answer.model = builder.model()
    answer.pattern = builder.pattern(answer.model)
    answer.messages += [(PRODUCT, text, None) for text in builder.warnings]


def compute(case):
    """The answer of a new window to a case with good settings. The boxes of the other types of Right Cone
    need not hold numbers."""
    return answer_to(case, ["0"] * BOX_COUNT[case.category], build, all_boxes=case.category == TRUNCATED)
