"""Cyclones on a cylinder worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Cyclone (Cylinder)" and gives back what the window must answer. The
branch is called A, the main pipe B.
"""

from branch_oracle import (BRANCH, MEAN_TO_MEAN, SET_IN, SET_ON, TOO_LARGE, Branch, angle_of_joint, check_limits,
                           join_of, labelled, make, mean_radii, positive_sizes, require_meeting)
from window_checks import USER_ERROR, Refusal, answer_to

CATEGORY = "Cyclone (Cylinder)"
BOX_COUNT = 11

# (branch diameter, main diameter, branch length, distance to intersection, main length, no offset, angle)
PAGES = ((0, 1, 2, 3, 4, None, None), (5, 6, 7, 8, 9, None, 10))


def check_walls(case, box, page, r, R):
    """Each pipe has an inside, and the branch fits into the main pipe for the pattern that is wanted."""
    half_a, half_b = box.settings.ThicknessA / 2, box.settings.ThicknessB / 2
    box.room(page[0], r, half_a)
    box.room(page[1], R, half_b)
    wanted = "branch" if case.select == BRANCH else "trunk"
    too_large, words = {
        ("branch", SET_IN): (r + half_a > R + half_b, ""),
        ("branch", SET_ON): (r > R + half_b, TOO_LARGE),
        ("branch", MEAN_TO_MEAN): (r > R, ""),
        ("trunk", SET_IN): (r + half_a > R, ""),
        ("trunk", SET_ON): (r - half_a > R, ""),
        ("trunk", MEAN_TO_MEAN): (r > R, ""),
    }[wanted, join_of(case)]
    if too_large:
        raise Refusal(USER_ERROR, words, None)


def cutting_radii(join, r, R, half_a, half_b):
    """(branch pair, trunk pair), each (radius of A, radius of B)."""
    return (r, R + {SET_IN: half_b - half_a, SET_ON: half_b, MEAN_TO_MEAN: 0.0}[join]), \
        (r + {SET_IN: half_a, SET_ON: -half_a, MEAN_TO_MEAN: 0.0}[join], R)


def build(case, box, answer):
    settings, page = case.settings, PAGES[case.dtype]
    _, _, length, to_intersection, main, _, _ = page
    r, R = mean_radii(box, page)
    positive_sizes(box, page)
    check_walls(case, box, page, r, R)
    alpha = check_limits(box, page, r, R)
    pairs = cutting_radii(join_of(case), r, R, settings.ThicknessA / 2, settings.ThicknessB / 2)
    offset = min(rad_b - rad_a for rad_a, rad_b in pairs)
    half = labelled(case, box, answer, page, offset != 0)
    alpha = angle_of_joint(case, r, alpha)
    require_meeting(offset, *pairs)
    make(case, answer, Branch(alpha, offset, box[length], box[main], box[to_intersection], *pairs[0], *pairs[1],
                              short_refused=True), half)


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
