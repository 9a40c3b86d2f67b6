"""Sharp transitions between two rectangles worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Rectangle to Rectangle" and gives back what the window must answer.
"""

from dataclasses import dataclass

from fitting_maths import Surface, deg_to_rad, distance, turned, unfolded
from window_checks import answer_to, last_lines, require_shape, require_within_reach

CATEGORY = "Rectangle to Rectangle"
BOX_COUNT = 33

# What stands in which box. tx, ty: top; bx, by: base; ox, oy: offset; h: height; ba, ta: angle of base and top;
# rotation: of the top, the one angle in radians.
PAGES = (
    {"tx": 3, "ty": 0, "bx": 4, "by": 1, "ox": 5, "oy": 2, "h": 6},
    {"tx": 10, "ty": 7, "bx": 11, "by": 8, "ox": 12, "oy": 9, "h": 13, "ba": 14, "ta": 15},
    {"tx": 19, "ty": 16, "bx": 20, "by": 17, "ox": 22, "oy": 18, "h": 21, "ba": 23, "ta": 24},
    {"tx": 25, "ty": 26, "bx": 27, "by": 28, "ox": 29, "oy": 30, "h": 32, "ba": 23, "ta": 24, "rotation": 31},
)
CENTRED_OFFSETS = 3
LABELS = {"tx": "Top length X = ", "ty": "Top length Y = ", "bx": "Base length X = ", "by": "Base length Y = ",
          "ox": "Offset X = ", "oy": "Offset Y = ", "h": "Height = ", "ta": "Top angle = ", "ba": "Base angle = ",
          "rotation": "Top rotation = "}
LINES_OF_PAGE = (0, 1, 1, 3)  # the page whose boxes the text lines read

# The corners of base and top in the order in which they are ruled, counted from the front left one.
RULES = (
    ("12341", "12341"),
    ("111234441", "122233341"),
    ("122233341", "111234441"),
    ("1112222222341", "1222333333341"),
)


@dataclass
class Rectangles:
    base: tuple  # lengths along x and y
    top: tuple
    offset: tuple
    height: float
    base_tilt: float = 0.0
    top_tilt: float = 0.0
    rotation: float = 0.0

    def model(self, page):
        centre = [-offset for offset in self.offset] + [self.height]
        if page != CENTRED_OFFSETS:
            for axis in (0, 1):
                centre[axis] += (self.top[axis] - self.base[axis]) / 2
        base = tilted(corners((0.0, 0.0, 0.0), self.base), self.base_tilt)
        top = tilted(corners(centre, self.top), self.top_tilt)
        top = [turned(p, 3, centre, self.rotation) for p in top]
        of_base, of_top = RULES[page]
        return Surface([base[int(n) - 1] for n in of_base], [top[int(n) - 1] for n in of_top])


def corners(centre, lengths):
    x, y, z = centre
    left, front = x - lengths[0] / 2, y - lengths[1] / 2
    return [(left + along * lengths[0], front + deep * lengths[1], z, 5)
            for along, deep in ((0, 0), (1, 0), (1, 1), (0, 1))]


def tilted(rectangle, angle):
    return [turned(p, 2, rectangle[0], angle) for p in rectangle] if angle != 0 else rectangle


def build(case, box, answer):
    page = PAGES[case.dtype]
    value = {name: box[index] for name, index in page.items()}
    box.positive(page["ty"], page["by"], page["tx"], page["bx"])
    box.not_equal(page["h"], 0)
    require_within_reach(value.values())
    lines = PAGES[LINES_OF_PAGE[case.dtype]]
    answer.labels = ["", ""] + box.lines((LABELS[name], lines[name]) for name in LABELS if name in lines)
    answer.labels += last_lines(case, False)
    rectangles = Rectangles((value["bx"], value["by"]), (value["tx"], value["ty"]), (value["ox"], value["oy"]),
                            value["h"], deg_to_rad(value.get("ba", 0.0)), deg_to_rad(value.get("ta", 0.0)),
                            value.get("rotation", 0.0))
    answer.model = rectangles.model(case.dtype)
    # A rule without a length has no direction to turn from.
    require_shape(min(distance(a, b) for a, b in zip(answer.model.List1, answer.model.List2)) >= 1e-8)
    answer.pattern = unfolded(answer.model)


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT, build)
