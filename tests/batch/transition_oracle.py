"""Transitions worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into one of the five windows and gives back what the window must answer.
"""

from dataclasses import dataclass

from fitting_maths import (FULL_TURN, PI, QUARTER_TURN, SEAM_LAP, Surface, distance, ellipse_radius, first_half, joined,
                           plan_angle, polar_point, turned, unfolded)
from window_checks import IMPOSSIBLE, NO_AXIS, NO_HALF, PRODUCT, USER_ERROR, Refusal, answer_to, last_lines

ROUND1 = "Rectangle to Round"
ROUND2 = "Rectangle (Radius) to Round"
ELLIPSE = "Rectangle to Ellipse"
FOLDED = "Rectangle to Rectangle (folded)"
OVAL = "Oval to Oval"

BOX_COUNT = {ROUND1: 12, ROUND2: 14, ELLIPSE: 16, FOLDED: 16, OVAL: 12}
X_AXIS, Y_AXIS, NO_CHOICE = 0, 1, "none"

# What stands in which box. d: diameter; tx, ty: top; bx, by: base; ox, oy: offset; h: height; r: corner radius, tr
# that of the top; ta, ba: angle of top and base.
PAGES = {
    (ROUND1, 0): {"d": 0, "bx": 1, "by": 2, "h": 3},
    (ROUND1, 1): {"d": 4, "bx": 5, "by": 6, "ox": 7, "oy": 8, "h": 9, "ta": 10, "ba": 11},
    (ROUND2, 0): {"d": 0, "bx": 1, "by": 2, "h": 3, "r": 10},
    (ROUND2, 1): {"d": 4, "bx": 5, "by": 6, "ox": 7, "oy": 8, "h": 9, "r": 11, "ta": 12, "ba": 13},
    (ELLIPSE, 0): {"tx": 0, "ty": 12, "bx": 1, "by": 2, "h": 3, "r": 10},
    (ELLIPSE, 1): {"tx": 4, "ty": 13, "bx": 5, "by": 6, "ox": 7, "oy": 8, "h": 9, "r": 11, "ta": 14, "ba": 15},
    (FOLDED, 0): {"tx": 0, "ty": 1, "bx": 4, "by": 2, "h": 3, "tr": 13, "r": 10},
    (FOLDED, 1): {"tx": 6, "ty": 5, "bx": 7, "by": 8, "ox": 12, "oy": 14, "h": 9, "tr": 15, "r": 11},
    (OVAL, 0): {"tx": 2, "ty": 3, "bx": 0, "by": 1, "h": 10},
    (OVAL, 1): {"tx": 6, "ty": 7, "bx": 4, "by": 5, "ox": 8, "oy": 9, "h": 11},
}
NAMES = {"d": "Diameter = ", "ox": "Offset X = ", "oy": "Offset Y = ", "h": "Height = "}
RECTANGLE = {"bx": "Rectangle length X = ", "by": "Rectangle length Y = ", "r": "Radius = "}
LABELS = {
    ROUND1: NAMES | RECTANGLE,
    ROUND2: NAMES | RECTANGLE,
    ELLIPSE: NAMES | RECTANGLE | {"tx": "Ellipse length X = ", "ty": "Ellipse length Y = "},
    FOLDED: NAMES | {"tx": "Top length X = ", "ty": "Top length Y = ", "bx": "Base length X = ",
                     "by": "Base length Y = ", "tr": "Top radius = ", "r": "Base radius = "},
}
LABELS[OVAL] = LABELS[FOLDED]
LINES = {
    ROUND1: ("d", "bx", "by", "ox", "oy", "h"),
    ROUND2: ("d", "bx", "by", "ox", "oy", "h", "r"),
    ELLIPSE: ("tx", "ty", "bx", "by", "ox", "oy", "h", "r"),
    FOLDED: ("tx", "ty", "bx", "by", "ox", "oy", "h", "tr", "r"),
    OVAL: ("tx", "ty", "bx", "by", "ox", "oy", "h"),
}


# ---------------------------------------------------------------------------------------------- the geometry


@dataclass
class Section:
    """A rectangle with elliptical corners, of half lengths rad1 along x and rad2 along y."""

    length_x: float
    length_y: float
    rad1: float
    rad2: float
    tilt_x: float = 0.0
    tilt_y: float = 0.0

    def start(self, centre, offset_y, upper_y, lower_y):
        """The seam, on the side of +x. The offset counts twice, once through the centre."""
        y = centre[1] + offset_y
        if y >= upper_y or y <= lower_y:
            y = centre[1]
        return centre[0] + self.length_x / 2, y, centre[2], 1

    def points(self, centre, offset_y, segs, opposite):
        dx, dy = self.length_x / 2 - self.rad1, self.length_y / 2 - self.rad2
        corners = [(centre[0] + sx * dx, centre[1] + sy * dy, centre[2])
                   for sx, sy in ((1, 1), (-1, 1), (-1, -1), (1, -1))]
        start = self.start(centre, offset_y, corners[0][1], corners[3][1])
        count = round(2 * segs / 4 + 1)
        points = [start]
        for number, corner in enumerate(corners):
            if number == 2 and opposite:
                points.append(polar_point(centre, plan_angle(centre, start) + PI, distance(centre, start), 1))
            angle = number * QUARTER_TURN
            for i in range(1, count + 1):
                flag = i % 2 + (4 if i in (1, count) else 0)
                points.append(polar_point(corner, angle, ellipse_radius(self.rad1, self.rad2, angle), flag))
                angle += FULL_TURN / (2 * segs)
        return points + [start]


def tilted(points, section, centre):
    for axis, angle in ((1, section.tilt_x), (2, section.tilt_y)):
        if angle != 0:
            points = [turned(p, axis, centre, angle) for p in points]
    return points


@dataclass
class Transition:
    base: Section
    top: Section
    height: float
    offset_x: float = 0.0
    offset_y: float = 0.0

    def model(self, segs, half):
        half = half and self.offset_y == 0
        base_centre, top_centre = (0.0, 0.0, 0.0), (self.offset_x, self.offset_y, self.height)
        base = self.base.points(base_centre, 0.0, segs, half)
        top = self.top.points(top_centre, self.offset_y, segs, half)
        surface = Surface(tilted(top, self.top, top_centre), tilted(base, self.base, base_centre))
        return first_half(surface) if half else surface


def pattern_of(model, settings, warnings):
    pattern = joined(unfolded(model), settings)
    if settings.JoinType > 0:
        if any(distance(edge[-2], edge[0]) < settings.LapSize1 for edge in (pattern.List1, pattern.List2)):
            warnings.append((USER_ERROR, SEAM_LAP, None))
    return pattern


# ------------------------------------------------------------------------------------------------ the checks


class Page:
    """The boxes of one page by what stands in them."""

    def __init__(self, case, box):
        self.case = case
        self.box = box
        self.index = PAGES[case.category, case.dtype]
        self.thickness = case.settings.Thickness

    def __getattr__(self, name):
        return self.index[name]

    def value(self, name):
        return self.box[self.index[name]] if name in self.index else 0.0

    def room_by_text(self, *names, of=1):
        """The typed size itself is held against the thickness, or its half."""
        for name in names:
            self.box.room(self.index[name], self.value(name), self.thickness / of, scale=1)

    def right_angles(self):
        for name in ("ta", "ba"):
            self.box.at_most(self.index[name], 90)
            self.box.at_least(self.index[name], -90)

    def axis(self):
        for name, option in (("ta", "optTopAngle"), ("ba", "optBaseAngle")):
            if self.value(name) != 0 and self.case.option(option, Y_AXIS) == NO_CHOICE:
                raise Refusal(USER_ERROR, NO_AXIS, None)

    def radius_within(self, name, x, y):
        self.box.at_most(self.index[name], x / 2)
        self.box.at_most(self.index[name], y / 2)

    def mean_length(self, name):
        return self.box.mean_length(self.value(name))


def check_round1_short(page, box):
    box.positive(page.d, page.bx, page.by)
    page.room_by_text("bx", "by")
    box.not_equal(page.h, 0)


def check_round1_long(page, box):
    box.positive(page.d, page.bx, page.by)
    box.not_equal(page.h, 0)
    page.right_angles()
    page.axis()
    box.positive(page.d, page.bx, page.by)
    box.not_equal(page.h, 0)


def check_round2_short(page, box):
    box.positive(page.d, page.bx, page.by)
    page.room_by_text("r", of=2)
    page.radius_within("r", page.value("bx"), page.value("by"))
    page.room_by_text("bx", "by")
    box.not_equal(page.h, 0)


def check_round2_long(page, box):
    box.positive(page.d, page.bx, page.by)
    page.right_angles()
    page.axis()
    box.not_equal(page.h, 0)
    page.room_by_text("r", of=2)
    page.radius_within("r", page.value("bx"), page.value("by"))


def check_ellipse_short(page, box):
    box.positive(page.tx, page.ty, page.bx, page.by, page.h)
    page.room_by_text("r", of=2)
    page.radius_within("r", page.value("bx"), page.value("by"))


def check_ellipse_long(page, box):
    box.positive(page.tx, page.ty, page.bx, page.by, page.h)
    page.room_by_text("r", of=2)
    page.right_angles()
    page.axis()
    page.room_by_text("r", of=2)
    page.radius_within("r", page.value("bx"), page.value("by"))


def check_folded(page, box):
    positive, room = (("tx", "ty", "bx", "by"),) * 2 if page.case.dtype == 0 else (
        ("tx", "ty", "bx", "by"), ("ty", "tx", "bx", "by"))
    box.positive(*(page.index[name] for name in positive))
    box.not_equal(page.h, 0)
    page.room_by_text(*room)
    for radius, x, y in (("r", "bx", "by"), ("tr", "tx", "ty")):
        box.at_least(page.index[radius], page.thickness / 2)
        page.radius_within(radius, page.mean_length(x), page.mean_length(y))


def check_oval(page, box):
    box.positive(page.bx, page.by, page.tx, page.ty)
    box.not_equal(page.h, 0)
    for name in ("by", "ty"):
        box.room(page.index[name], page.mean_length(name), page.thickness, scale=1)
    box.at_least(page.bx, page.value("by"))
    box.at_least(page.tx, page.value("ty"))


CHECKS = {
    (ROUND1, 0): check_round1_short, (ROUND1, 1): check_round1_long,
    (ROUND2, 0): check_round2_short, (ROUND2, 1): check_round2_long,
    (ELLIPSE, 0): check_ellipse_short, (ELLIPSE, 1): check_ellipse_long,
    (FOLDED, 0): check_folded, (FOLDED, 1): check_folded,
    (OVAL, 0): check_oval, (OVAL, 1): check_oval,
}


# ------------------------------------------------------------------------------------------------ the window


def base_section(page):
    x, y = page.mean_length("bx"), page.mean_length("by")
    if page.case.category == ROUND1:
        return Section(x - page.thickness, y - page.thickness, 0.0, 0.0)
    radius = y / 2 if page.case.category == OVAL else page.box.mean_radius(page.value("r"))
    return Section(x, y, radius, radius)


def top_section(page):
    category = page.case.category
    if category in (ROUND1, ROUND2, ELLIPSE):
        a, b = (page.box.mean_radius(page.value(name) / 2)
                for name in (("tx", "ty") if category == ELLIPSE else ("d", "d")))
        return Section(2 * a, 2 * b, a, b)
    x, y = page.mean_length("tx"), page.mean_length("ty")
    radius = y / 2 if category == OVAL else page.box.mean_radius(page.value("tr"))
    return Section(x, y, radius, radius)


def tilt(page, section, name, option):
    angle = page.value(name) * (PI / 180)
    if page.case.option(option, Y_AXIS) == X_AXIS:
        section.tilt_x = angle
    else:
        section.tilt_y = angle


def lines_of(page, category, dtype):
    for name in LINES[category]:
        label = LABELS[category][name]
        if (category, dtype) == (FOLDED, 0):
            label = label.replace("radius", "Radius")
        if name in page.index:
            yield label, page.index[name]
        elif category != OVAL:
            yield label, "0"


def build(case, box, answer):
    settings, page = case.settings, Page(case, box)
    CHECKS[case.category, case.dtype](page, box)
    base, top = base_section(page), top_section(page)
    for section in (base, top):
        if min(section.length_x, section.length_y, section.rad1, section.rad2) < 0:
            raise Refusal(PRODUCT, IMPOSSIBLE, None)  # the material takes more than there is of a size
    if base.length_x == base.length_y == top.length_x == top.length_y == 0:
        raise Refusal(PRODUCT, IMPOSSIBLE, None)  # a line has no area
    tilt(page, top, "ta", "optTopAngle")
    tilt(page, base, "ba", "optBaseAngle")
    half = settings.HalfPattern
    uneven = page.value("oy") != 0 or base.tilt_x != 0 or top.tilt_x != 0
    if half and uneven and case.category != OVAL:
        answer.messages.append((USER_ERROR, NO_HALF, None))
        half = False
    answer.labels = ["", ""] + box.lines(lines_of(page, case.category, case.dtype)) + last_lines(case, half)
    sign = 1 if case.category == OVAL else -1
    transition = Transition(base, top, page.value("h"), page.value("ox"), sign * page.value("oy"))
    answer.model = transition.model(settings.segs, half)
    answer.pattern = pattern_of(answer.model, settings, answer.messages)


def compute(case):
    texts = ["0"] * BOX_COUNT[case.category]
    if case.category == FOLDED:
        texts[2] = "00"
    return answer_to(case, texts, build)
