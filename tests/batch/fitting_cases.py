"""Inputs of korvet-batch for any fitting: seeded random settings, sizes at their limits, spoilt sizes."""

import random
from dataclasses import dataclass, replace

from fitting_maths import Settings

BAD_TEXTS = ["0", "-1", "-0", "1e400", "nan", "inf", "abc", "", "-", ".", "1,5", "0x10", "1 2", "1e-400", "--1"]
NUMBER_FORMS = ("%.17g", "%.6g", "%.3f", "%.4e", "+%.5f", " %.5f ")


@dataclass(frozen=True)
class Case:
    category: str
    dtype: int  # from 0
    boxes: tuple  # (index, text)
    settings: Settings
    options: tuple = ()  # (name, value) of the window's further choices
    select: int = None  # pattern option from 0
    view: str = "pattern"

    def arguments(self):
        settings = self.settings
        values = [(f"box{index}", text) for index, text in self.boxes]
        values += [(name, getattr(settings, name)) for name in settings.__dataclass_fields__]
        values += self.options
        arguments = ["--new", self.category, "--type", str(self.dtype + 1)]
        arguments += [] if self.select is None else ["--select", str(self.select + 1)]
        arguments += [] if self.view == "pattern" else ["--view", self.view]
        return arguments + [part for name, value in values for part in ("--set", f"{name}={value}")]

    def answer(self):
        raise NotImplementedError

    def with_box(self, index, text):
        return replace(self, boxes=tuple((i, text if i == index else old) for i, old in self.boxes))

    def with_boxes(self, **texts):
        """With other texts for box0, box7 and so on."""
        case = self
        for name, text in texts.items():
            case = case.with_box(int(name.removeprefix("box")), text)
        return case

    def value(self, index):
        return float(dict(self.boxes)[index])

    def option(self, name, otherwise):
        return dict(self.options).get(name, otherwise)


def rng_of(name):
    return random.Random("korvet " + name)


def inside(rng, low, high, margin=0.08):
    """A number between two limits, not too near to either."""
    return low + (high - low) * rng.uniform(margin, 1 - margin)


def typed(rng, sizes, forms=NUMBER_FORMS):
    """The boxes for {index: number or text}, number texts in the forms that people type."""
    form = rng.choice(forms)
    return tuple((index, value if isinstance(value, str) else (form % value).replace("+-", "-"))
                 for index, value in sizes.items())


def random_settings(rng, size):
    """Settings for a fitting of about that size."""
    settings = Settings(segs=rng.choice([2, 3, 4, 7, 12, 13, 24, 25, 36, 48]),
                        InOutMean=rng.randrange(3), HalfPattern=rng.random() < 0.3,
                        JoinAngle=rng.choice([0, 0, 30, 90, 180, -45, -720, 57.29577951308232, 271.5, 725.5, -1234]))
    if rng.random() < 0.7:
        settings.Thickness = size * rng.uniform(0.001, 0.02)
    if rng.random() < 0.5:
        settings.JoinType = 1
        for name in ("LapSize0", "LapSize1", "LapSize2"):
            setattr(settings, name, rng.choice([0, 0, -1, size * rng.uniform(0.005, 0.1), size * rng.uniform(0.1, 2)]))
    return settings


def pipe_settings(rng, size):
    """Settings for fittings of round pipes too."""
    settings = random_settings(rng, size)
    if settings.Thickness:
        settings.ThicknessA, settings.ThicknessB = (settings.Thickness * rng.choice([0, 1, 0.7, 1.6]) for _ in "AB")
    settings.TemplateType = rng.randrange(2)
    settings.KerfSpacing = rng.choice([0, size * rng.uniform(0, 0.2)])
    return settings


def piece_settings():
    """Settings for fittings of several pieces with seam laps: odd, even and few fold lines, whole and half."""
    rows = ((12, 0, False, 0, 0), (24, 1, True, 0, 0), (13, 2, False, 1, 90), (24, 0, True, 1, -30),
            (13, 1, True, 1, 15), (3, 0, True, 0, 0), (2, 0, False, 1, 400), (1, 0, True, 1, 0), (1, 0, False, 0, 0))
    return [Settings(segs=segs, Thickness=3, InOutMean=place, HalfPattern=half, JoinType=join, LapSize1=10,
                     KerfSpacing=25, JoinAngle=seam) for segs, place, half, join, seam in rows]


def thick_settings(_, size):
    """Settings with which every check can be made to refuse, that for the room of the material too."""
    return Settings(Thickness=size / 40, ThicknessA=size / 50, ThicknessB=size / 45, InOutMean=2)


def sound(make, rng):
    """The first case that `make` gives and the window takes."""
    for _ in range(1000):
        case = make(rng)
        if not case.answer().refused:
            return case
    raise AssertionError("no sound case")


def sound_sizes(case, sizes, settings, rng, selects=()):
    """A sound case of the sizes that `sizes(rng)` gives, {index: number}: the settings go by the first of them. `case` takes
    boxes and settings, and one of the pattern options if there are some."""
    def make(rng):
        boxes = sizes(rng)
        texts, chosen = typed(rng, boxes), settings(rng, boxes[min(boxes)])
        return case(texts, chosen, select=rng.choice(selects) if selects else None)

    return sound(make, rng)


# ----------------------------------------------------------------------------------------- limits and faults


def at_and_beside(limit):
    hair = max(1e-9, abs(limit) * 1e-9)
    return limit, limit - hair, limit + hair


def limit_cases(case):
    """For every check that the sound case passes: its box at the limit, and a hair to either side."""
    checks = case.answer().checks
    whole = {box for kind, box, _ in checks if kind == "integer"}
    for kind, box, limit in checks:
        if kind == "integer":
            yield case.with_box(box, "%.17g" % (case.value(box) + 0.5))
            continue
        for value in (limit, limit - 1, limit + 1) if box in whole else at_and_beside(limit):
            yield case.with_box(box, "%.17g" % value)


def beyond(kind, value, limit):
    """A number that a check of this kind refuses."""
    far = abs(limit) * 0.01 + 1e-3
    if kind == "integer":
        return value + 0.5
    if kind == "not equal":
        return limit
    return limit + (far if kind in ("below", "at most") else -far)


def pair_cases(case):
    """For every two checks in a row that the sound case passes: both boxes at fault."""
    checks = case.answer().checks
    for (kind, box, limit), (kind2, box2, limit2) in zip(checks, checks[1:]):
        if box != box2:
            first = case.with_box(box, "%.17g" % beyond(kind, case.value(box), limit))
            yield first.with_box(box2, "%.17g" % beyond(kind2, case.value(box2), limit2))


def mended_cases(case):
    """All boxes start at fault; they are mended one by one in the order in which they are refused."""
    good = dict(case.boxes)
    case = replace(case, boxes=tuple((index, "-1e5") for index in good))
    while (answer := case.answer()).refused:
        yield case
        box = answer.messages[-1][2]
        if box not in good or dict(case.boxes)[box] == good[box]:
            return
        case = case.with_box(box, good[box])
    yield case


def spoilt_case(case, rng, box_count):
    """The sound case with one to four of its boxes, or a box of another type, spoilt."""
    for index, text in rng.sample(case.boxes, rng.randint(1, min(4, len(case.boxes)))):
        value = float(text)
        case = case.with_box(index, rng.choice(BAD_TEXTS + ["%.9g" % (value * 50), "%.9g" % (-value * 50), "89.5",
                                                            "180", "181", "-89.5"]))
    if rng.random() < 0.25:
        other = rng.randrange(box_count)
        if other not in dict(case.boxes):
            case = replace(case, boxes=case.boxes + ((other, rng.choice(BAD_TEXTS)),))
    return case
