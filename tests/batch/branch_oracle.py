"""Branches worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Branch" and gives back what the window must answer. The branch
is called A, the trunk B.
"""

import math
from dataclasses import dataclass

from cylinder_oracle import Cylinder
from fitting_maths import (FULL_TURN, ORIGIN, PI, QUARTER_TURN, Surface, arc_cos, arc_sin, deg_to_rad, distance,
                           first_half, joined, moved_surface, plan_angle)
from window_checks import (NO_HALF, USER_ERROR, Refusal, answer_to, ask_for_pattern, category_line, number_text,
                           require_cut_within_end, require_shape)

CATEGORY = "Branch"
BOX_COUNT = 13
TRUNK, BRANCH = 0, 1  # the pattern options
SET_IN, SET_ON, MEAN_TO_MEAN = 0, 1, 2
JOIN_LINES = ("Branch type is Set IN", "Branch type is Set ON", "Branch type is Mean to Mean")
TOO_LARGE = ("\r\n Either the branch pipe diameter or the offset distance is too large. "
             "\r\n This may also be due to the values for material thickness and Set-In/Set-On.")

# (branch diameter, main diameter, branch length, distance to intersection, main length, offset, angle)
PAGES = ((0, 1, 2, 3, 4, 11, None), (5, 6, 7, 8, 9, 12, 10))


# ---------------------------------------------------------------------------------------------- the geometry


@dataclass
class Branch:
    angle: float
    offset: float
    length_a: float
    length_b: float
    to_intersection: float
    branch_a: float  # the radii that the branch is cut by
    branch_b: float
    trunk_a: float  # the radii that the hole is cut by
    trunk_b: float
    short_refused: bool = False  # a branch whose cut runs past its free end

    def intersection(self, rad_a, rad_b, segs):
        """The line in which the two pipes meet, round the branch's axis."""
        alpha, beta = self.angle, arc_sin(self.offset / rad_b)
        slope = math.tan(QUARTER_TURN - alpha)
        corners = (2 * segs * 3 // 4 + 1, 2 * segs // 4 + 1)
        theta, points = 0.0, []
        for i in range(1, 2 * segs + 2):
            u = math.cos(theta) * rad_a
            y = self.offset + math.sin(theta) * rad_a
            x = math.sqrt(max(0.0, rad_b * rad_b - y * y))
            z = slope * (rad_b - x) + u / math.sin(alpha) - slope * (1 - math.cos(beta)) * rad_b
            points.append((x, y, z, i % 2 + (4 if i in corners else 0)))
            theta += FULL_TURN / (2 * segs)
        return points

    def free_end(self, meeting, segs):
        """The circle at the end of the branch; its points lie straight along the branch from those of the cut."""
        rad_a, rad_b, alpha = self.branch_a, self.branch_b, self.angle
        reach = math.cos(arc_sin(self.offset / rad_b)) * rad_b
        along = self.length_a - reach / math.sin(alpha)
        centre_x, centre_z = math.sin(alpha) * along, -math.cos(alpha) * along
        theta, points = 0.0, []
        for i, met in enumerate(meeting, start=1):
            u = math.cos(theta) * rad_a
            points.append((math.cos(alpha) * u + centre_x + reach, met[1], math.sin(alpha) * u + centre_z, i % 2))
            theta += FULL_TURN / (2 * segs)
        return points

    def branch_surface(self, segs, half):
        meeting = self.intersection(self.branch_a, self.branch_b, segs)
        surface = Surface(self.free_end(meeting, segs), meeting)
        if self.short_refused:
            require_cut_within_end(meeting, surface.List1, (math.sin(self.angle), 0.0, -math.cos(self.angle)))
        return first_half(surface) if half else surface

    def trunk_surface(self, segs, half):
        shift = self.trunk_b / math.tan(self.angle)
        pipe = Cylinder(self.trunk_b, self.length_b - self.to_intersection + shift, -(self.to_intersection - shift))
        surface = pipe.model(segs, PI, False)
        surface.List3 = self.intersection(self.trunk_a, self.trunk_b, segs)
        if not half:
            return surface
        # From its seam the half trunk runs round the side on which the second half of the hole lies.
        hole = surface.List3[len(surface.List3) // 2:]
        surface = first_half(surface)
        surface.List3 = hole
        return surface

    def model(self, segs, half):
        """Branch and trunk, standing on height 0, and the height of the trunk's lower end before."""
        surfaces = [self.branch_surface(segs, half), self.trunk_surface(segs, half)]
        lift = surfaces[1].List2[0][2]
        return [moved_surface(surface, 0.0, 0.0, 0.0 - lift) for surface in surfaces], lift


def stretch_out(radius, thickness, template):
    return FULL_TURN * (radius if template == 0 else thickness / 2 + radius)


def flat_branch(branch, model, settings):
    spacing = stretch_out(branch.branch_a, settings.ThicknessA, settings.TemplateType) / (2 * settings.segs)
    x, upper, lower = 0.0, [], []
    for end, met in zip(model.List1, model.List2):
        upper.append((x, distance(end, met), 0.0, met[3]))
        lower.append((x, 0.0, 0.0, met[3]))
        x += spacing
    return joined(Surface(upper, lower), settings)


def flat_trunk(branch, model, lift, settings):
    round_about = stretch_out(branch.trunk_b, settings.ThicknessB, settings.TemplateType)
    x, upper, lower, hole = 0.0, [], [], []
    for top, bottom in zip(model.List1, model.List2):
        upper.append((x, distance(top, bottom), 0.0, top[3]))
        lower.append((x, 0.0, 0.0, bottom[3]))
        x += round_about / (2 * settings.segs)
    for point in model.List3:
        a = plan_angle(ORIGIN, point)
        if a > PI:
            a -= FULL_TURN
        hole.append((round_about / 2 + (a / FULL_TURN) * round_about, point[2], 0.0, point[3]))
    flat = Surface(upper, lower, RefPoint=(hole[0][0], -lift, 0.0), RefPointDisplay=True, List3=hole)
    return joined(flat, settings)


# ------------------------------------------------------------------------------------------------ the window


def positive_sizes(box, page):
    box.positive(*page[:3])


def check_limits(box, page, r, R):
    """The checks behind those for sizes above 0. Gives the angle between the axes."""
    _, _, length, to_intersection, main, offset, angle = page

    def offset_has_room():
        if offset is not None and box[offset] != 0:
            box.at_most(offset, R - r)
            box.at_least(offset, -(R - r))

    def length_reaches_out():
        box.at_least(length, box.settings.ThicknessB / 2 + R)

    if angle is None:
        length_reaches_out()
        box.at_least(to_intersection, r)
        box.at_least(main, r + box[to_intersection])
        offset_has_room()
        return QUARTER_TURN
    offset_has_room()
    length_reaches_out()
    box.above(angle, 0)
    box.at_most(angle, 90)
    alpha = deg_to_rad(box[angle])
    box.at_least(to_intersection, r / math.sin(alpha) + R / math.tan(alpha))
    box.at_least(main, r / math.tan(alpha) + R / math.sin(alpha))
    return alpha


def heel_angle(r, alpha, thickness):
    """How much flatter a set-on branch stands, so that its heel touches."""
    b = QUARTER_TURN - alpha
    p = (2 * (r - thickness) + thickness) / math.sin(alpha)
    q = math.sqrt(thickness * thickness + p * p - 2 * thickness * p * math.cos(b))
    return arc_cos((p * p + q * q - thickness * thickness) / (2 * q * p))


def cutting_radii(join, r, R, thick_a, thick_b):
    """(branch pair, trunk pair), each (radius of A, radius of B)."""
    if join == SET_ON:
        return (r, R + thick_b / 2), (r - thick_a / 2, R)
    if join == MEAN_TO_MEAN:
        return (r, R), (r, R)
    if r <= R - thick_b / 2:
        cut_by = R - thick_b / 2
    elif r <= R or thick_a >= thick_b:
        cut_by = R
    else:
        cut_by = R + thick_b / 2 - thick_a / 2
    return (r, cut_by), (r + thick_a / 2, R)


def text_block(case, box, page, join):
    dA, dB, length, distance_, main, offset, angle = page
    lines = [("Branch pipe diameter = ", dA), ("Main pipe diameter = ", dB), ("Branch pipe length = ", length),
             ("Distance to intersection = ", distance_), ("Main pipe length = ", main), ("Branch angle = ", angle),
             ("Offset = ", offset)]
    lines = [line for line in lines if line[1] is not None]
    lines += [("Thickness of branch pipe = ", number_text(case.settings.ThicknessA)),
              ("Thickness of trunk pipe = ", number_text(case.settings.ThicknessB)), (JOIN_LINES[join], "")]
    return ["", ""] + box.lines(lines)


def join_of(case):
    return case.option("optInOrOn", MEAN_TO_MEAN)


def mean_radii(box, page):
    thickness = box.settings
    return box.mean(box[page[0]] / 2, thickness.ThicknessA / 2), box.mean(box[page[1]] / 2, thickness.ThicknessB / 2)


def angle_of_joint(case, r, alpha):
    if join_of(case) == SET_ON and case.option("chkHeelCompensation", False) and alpha < QUARTER_TURN:
        alpha -= heel_angle(r, alpha, case.settings.ThicknessA)
        require_shape(alpha > 0)
    return alpha


def labelled(case, box, answer, page, beside_axis):
    """The text block; and whether there is a half pattern."""
    half = case.settings.HalfPattern
    if half and beside_axis:
        answer.messages.append((USER_ERROR, NO_HALF, None))
        half = False
    answer.labels = text_block(case, box, page, join_of(case)) + [category_line(case, half)]
    return half


def require_meeting(offset, *pairs):
    for rad_a, rad_b in pairs:
        require_shape(rad_a > 0)  # the material is thicker than the pipe
        if rad_a + abs(offset) > rad_b * (1 + 1e-13):
            raise Refusal(USER_ERROR, TOO_LARGE, None)


def make(case, answer, branch, half):
    answer.model, lift = branch.model(case.settings.segs, half)
    if case.select == BRANCH:
        answer.pattern = [flat_branch(branch, answer.model[0], case.settings)]
    else:
        answer.pattern = [flat_trunk(branch, answer.model[1], lift, case.settings)]
    ask_for_pattern(case, answer)


def build(case, box, answer):
    settings, page = case.settings, PAGES[case.dtype]
    _, _, length, to_intersection, main, offset, _ = page
    r, R = mean_radii(box, page)
    positive_sizes(box, page)
    alpha = check_limits(box, page, r, R)
    half = labelled(case, box, answer, page, box[offset] != 0)
    alpha = angle_of_joint(case, r, alpha)
    branch_radii, trunk_radii = cutting_radii(join_of(case), r, R, settings.ThicknessA, settings.ThicknessB)
    require_meeting(box[offset], branch_radii, trunk_radii)
    make(case, answer, Branch(alpha, -box[offset], box[length], box[main], box[to_intersection], *branch_radii,
                              *trunk_radii), half)


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
