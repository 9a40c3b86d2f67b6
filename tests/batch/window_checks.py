"""What a window says to what is typed: the checks of its boxes, their messages, the text block.

Shares nothing with the program.
"""

import math
import re
from dataclasses import dataclass, field

from fitting_maths import coordinates, distance, snapped, unfolding_angle

PRODUCT = "Korvet Development"
USER_ERROR = "User Error"
LESS_THAN = "This dimension must be less than "
GREATER_THAN = "This dimension must be greater than "
AT_LEAST = "This dimension must be equal to or greater than "
AT_MOST = "This dimension must be equal to or less than "
NOT_EQUAL = "This dimension cannot be equal to "
ABOVE_ZERO = "This dimension must be greater than 0"
THICKNESS_ROOM = "This dimension must be increased to allow for material thickness"
WHOLE_NUMBER = "This dimension must be an integer (whole number)"
NOT_A_NUMBER = "Not a valid number"
NO_HALF = "Half pattern not applicable to this item"
NO_AXIS = "X or Y axis of rotation must be selected"
NO_PATTERN = "A pattern must be selected"
IMPOSSIBLE = "This fitting cannot be made with these sizes"

POSITION = ("mean", "inside", "outside")
LARGEST = 1e9  # of a typed size and of a coordinate


@dataclass
class Answer:
    messages: list = field(default_factory=list)  # (title, text, box)
    refused: bool = False
    labels: list = field(default_factory=list)  # without the date at the end of the last one
    model: list = None  # a Surface or a list of them
    pattern: list = None
    checks: list = field(default_factory=list)  # (kind, box, limit) of every check that was made


class Refusal(Exception):
    def __init__(self, title, text, box):
        super().__init__(text)
        self.message = (title, text, box)


def require_shape(is_one):
    """What sizes that pass every check may still lead to."""
    if not is_one:
        raise Refusal(PRODUCT, IMPOSSIBLE, None)


def closing_angle(a, b, c):
    """The angle opposite side a of a triangle of the flat pattern, which must close."""
    try:
        return unfolding_angle(*map(snapped, (a, b, c)))
    except ValueError:
        return require_shape(False)


def require_cut_within_end(cut, free_end, towards):
    """No rule leads from its cut away from the free end, but for the rounding of one without a length. `towards` is the
    direction of the free end along the axis."""
    band = 1e-9 * max(distance(free_end[0], point) for point in (*cut, *free_end))
    for p, q in zip(cut, free_end):
        along = sum((b - a) * t for a, b, t in zip(p, q, towards))
        require_shape(math.copysign(distance(p, q), along) >= -band)


def as_list(surfaces):
    return [] if surfaces is None else surfaces if isinstance(surfaces, list) else [surfaces]


def require_within_reach(values):
    require_shape(all(abs(value) <= LARGEST for value in values))


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

    def at_most(self, box, limit):
        self._check("at most", box, limit, self[box] <= limit, AT_MOST + limit_text(limit))

    def not_equal(self, box, limit):
        self._check("not equal", box, limit, self[box] != limit, NOT_EQUAL + limit_text(limit))

    def integer(self, box):
        self._check("integer", box, 0.0, self[box] == math.trunc(self[box]), WHOLE_NUMBER)

    def room(self, box, value, allowance, scale=2):
        """The material fits into `value`, which grows by one when the box grows by `scale`."""
        limit = self[box] + (allowance - value) * scale
        self._check("room", box, limit, value >= allowance, THICKNESS_ROOM)

    def between(self, box, limit):
        self.above(box, -limit)
        self.below(box, limit)

    def mean(self, size, amount):
        """The size of the middle of the material for a typed one that is off it by `amount`."""
        return size + (0, amount, -amount)[self.settings.InOutMean]

    def mean_radius(self, size):
        return self.mean(size, self.settings.Thickness / 2)

    def mean_length(self, size):
        """Of a length across two walls."""
        return self.mean(size, self.settings.Thickness)

    def lines(self, labels):
        """The text block's lines for [(label, box or text)]."""
        return [label + (what if isinstance(what, str) else self.texts[what]) for label, what in labels]


def typing_messages(boxes):
    """What is said while the texts are typed, one box after the other. Every box starts as a number."""
    return [(PRODUCT, NOT_A_NUMBER, box) for box, text in boxes
            if text not in ("", "-", ".", ",") and parse_number(text) is None]


def answer_to(case, first_texts, build, all_boxes=True):
    """The answer of a new window to a case. `build(case, boxes, answer)` fills it in or raises a Refusal;
    `all_boxes` tells whether the boxes of the other types must hold numbers too."""
    answer = Answer(messages=typing_messages(case.boxes))
    texts = list(first_texts)
    for index, text in case.boxes:
        texts[index] = text
    boxes = Boxes(texts, case.settings, answer.checks)
    try:
        for index in range(len(texts) if all_boxes else 0):
            boxes[index]
        build(case, boxes, answer)
        require_within_reach(coordinates(as_list(answer.model) + as_list(answer.pattern)))
    except Refusal as refusal:
        answer.messages.append(refusal.message)
        answer.refused = True
        answer.model = answer.pattern = None
    return answer


def last_lines(case, half):
    return ["Thickness = " + number_text(case.settings.Thickness), category_line(case, half)]


def category_line(case, half):
    return case.category + "  " + ("Half pattern" if half else "Full pattern") + "  "


def ask_for_pattern(case, answer):
    """A pattern view needs a choice of pattern. The numbers are worked out before there is any view, so what
    they led to has been said by then."""
    if case.view == "pattern" and case.select is None:
        raise Refusal(USER_ERROR, NO_PATTERN, None)
