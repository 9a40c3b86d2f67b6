"""Oval pipes, bends and elbows worked out a second time, by code that shares nothing with the program.

`compute` takes what a user types into the window "Oval Right Cylinder", "Oval Segmented Bend" or "Oval Elbow" and
gives back what the window must answer.
"""

import math
from dataclasses import dataclass

from fitting_maths import (FULL_TURN, ORIGIN, PI, QUARTER_TURN, Surface, coordinates, deg_to_rad, joined, moved_surface,
                           polar_point, rad_to_deg, turned_surface)
from window_checks import answer_to, ask_for_pattern, last_lines, require_shape, require_within_reach

PIPE, BEND, ELBOW = "Oval Right Cylinder", "Oval Segmented Bend", "Oval Elbow"
FULL_LAYOUT, SHORT_LAYOUT = 0, 1
BOX_COUNT = {PIPE: 16, BEND: 13, ELBOW: 13}

LABELS = {
    PIPE: (
        (("Base diameter = ", 0), ("Base length = ", 2), ("Cutting plane height = ", 1)),
        (("Base diameter = ", 5), ("Base length = ", 15), ("Cutting plane height = ", 3), ("Cutting plane angle = ", 4)),
        (("Base diameter = ", 12), ("Base Length = ", 14), ("Height 1 = ", 6), ("Height 2  = ", 7)),
        (("Base diameter = ", 13), ("Base diameter = ", 11), ("Cutting plane height = ", 9),
         ("Cutting plane angle 1 = ", 8), ("Cutting plane angle 2 = ", 10)),
    ),
    BEND: (
        (("Base diameter = ", 0), ("Base length = ", 11), ("Bend radius = ", 1), ("Bend angle = ", "90"),
         ("Length 1 = ", 3), ("Length 2 = ", 4), ("Number of segments = ", 6)),
        (("Base diameter = ", 5), ("Base length = ", 12), ("Bend radius = ", 6), ("Bend angle = ", 7),
         ("Length 1 = ", 8), ("Length 2 = ", 9), ("Number of segments = ", 10)),
    ),
    ELBOW: (
        (("Base diameter = ", 0), ("Base length = ", 10), ("Length 1 = ", 1), ("Length 2 = ", 2), ("Angle = ", 3)),
        (("Base diameter = ", 4), ("Base length = ", 11), ("Length 1 = ", 5), ("Length 2 = ", 6), ("Angle = ", "90")),
        (("Base diameter = ", 7), ("Base length = ", 12), ("Bend radius = ", 8), ("Angle = ", 9)),
    ),
}
BOXES = {
    PIPE: ((0, 1, 2), (3, 4, 5, 15), (6, 7, 12, 14), (8, 9, 10, 11, 13)),
    BEND: ((0, 1, 2, 3, 4, 11), (5, 6, 7, 8, 9, 10, 12)),
    ELBOW: ((0, 1, 2, 3, 10), (4, 5, 6, 11), (7, 8, 9, 12)),
}


@dataclass
class Section:
    radius: float
    straight: float  # between the centres of the half circles

    def round_the_edge(self, segs, seam):
        """(x, y, plan angle, flag) of the stations: half a ring about either centre, and the first point again."""
        step = FULL_TURN / (2 * segs)
        t, stations = seam, []
        for i in range(1, 2 * segs + 2):
            for side, here in ((1, i <= segs + 1), (-1, i >= segs + 1)):
                if here:
                    x, y = polar_point((0.0, side * self.straight / 2, 0.0), t, self.radius)[:2]
                    stations.append((x, y, t, i % 2))
            t += step
        return stations + stations[:1]

    def along_the_edge(self, segs):
        """The x of every station in the stretch-out."""
        step = ((self.radius + self.radius) * PI) / (segs * 2)
        x, places = 0.0, []
        for _ in range(2):
            for _ in range(segs + 1):
                places.append(x)
                x += step
            x = self.straight + x - step
        return places + [x]


@dataclass
class Pipe:
    section: Section
    height1: float = 0.0
    height2: float = 0.0
    angle1: float = 0.0
    angle2: float = 0.0

    def edge(self, segs, seam, height, tilt):
        return [(x, y, math.cos(t) * math.tan(tilt) * self.section.radius + height, flag)
                for x, y, t, flag in self.section.round_the_edge(segs, seam)]

    def model(self, segs, seam):
        return Surface(self.edge(segs, seam, self.height1, self.angle1),
                       self.edge(segs, seam, self.height2, -self.angle2))

    def pattern(self, seam, settings):
        model = self.model(settings.segs, seam)
        places = self.section.along_the_edge(settings.segs)

        def laid_out(edge):
            flags = [p[3] for p in edge[:-1]] + [edge[-2][3]]  # the closing point has that of the one before
            return [(x, p[2], 0.0, flag) for x, p, flag in zip(places, edge, flags)]

        return joined(Surface(laid_out(model.List1), laid_out(model.List2)), settings)


def section_of(box, diameter, length):
    radius = box.mean_radius(box[diameter] / 2)
    return Section(radius, box.mean_length(box[length]) - (radius + radius))


def room(box, diameter, section):
    box.room(diameter, section.radius, box.settings.Thickness / 2)


def checked_section(box, diameter, length):
    section = section_of(box, diameter, length)
    room(box, diameter, section)
    box.at_least(length, box[diameter])
    return section


# ------------------------------------------------------------------------------------------------ the pipe


def tilt_limit(pipe):
    return rad_to_deg(math.atan(pipe.height1 / pipe.section.radius))


def square_pipe(box):
    box.positive(0, 1)
    section = checked_section(box, 0, 2)
    return Pipe(section, box[1])


def tilted_pipe(box):
    box.positive(5, 3)
    section = checked_section(box, 5, 15)
    pipe = Pipe(section, box[3], angle1=-deg_to_rad(box[4]))
    box.between(4, tilt_limit(pipe))
    return pipe


def two_height_pipe(box):
    box.positive(12, 6, 7)
    section = checked_section(box, 12, 14)
    return Pipe(section, (box[6] + box[7]) / 2,
                angle1=-math.atan((box[6] - box[7]) / (section.radius + section.radius)))


def twice_tilted_pipe(box):
    box.positive(13, 9)
    section = checked_section(box, 13, 11)
    pipe = Pipe(section, box[9], angle1=-deg_to_rad(box[8]), angle2=-deg_to_rad(box[10]))
    for angle in (8, 10):
        box.above(angle, -90)
        box.below(angle, tilt_limit(pipe))
    return pipe


def build_pipe(case, box, answer):
    pipe = (square_pipe, tilted_pipe, two_height_pipe, twice_tilted_pipe)[case.dtype](box)
    seam = 0.0 if case.dtype == 3 else deg_to_rad(case.settings.JoinAngle)
    answer.model = pipe.model(case.settings.segs, seam)
    answer.pattern = pipe.pattern(seam, case.settings)


# ------------------------------------------------------------------------------------------------ the bend


@dataclass
class Bend:
    section: Section
    bend_radius: float
    bend_angle: float
    gores: int
    length1: float
    length2: float

    def pieces(self, between):
        """(pipe, turn about the bend's centre) of the first piece, so many between, and the last."""
        gore = self.bend_angle / self.gores
        tilt = gore / 2
        self.half_height = h = math.tan(tilt) * self.bend_radius
        yield Pipe(self.section, h, -self.length1, tilt, 0.0), 0.0
        turn = 0.0
        for _ in range(between):
            turn += gore
            yield Pipe(self.section, h, -h, tilt, tilt), turn
        yield Pipe(self.section, self.length2, -h, 0.0, tilt), self.bend_angle

    def model(self, segs):
        centre = (-self.bend_radius, 0.0, 0.0)
        return [turned_surface(pipe.model(segs, 0.0), 2, centre, turn) for pipe, turn in self.pieces(self.gores - 1)]

    def pattern(self, settings, full):
        """One above the other, cut open on the one side and on the other in turn."""
        y, seam, patterns = 0.0, 0.0, []
        for pipe, _ in self.pieces(self.gores - 1 if full else 1):
            patterns.append(moved_surface(pipe.pattern(seam, settings), 0.0, y, 0.0))
            y += self.half_height + self.half_height + settings.KerfSpacing
            seam += PI
        return patterns


# Diameter, length, bend radius, both straight lengths, number of pieces, angle.
BEND_BOXES = ((0, 11, 1, 3, 4, 2, None), (5, 12, 6, 8, 9, 10, 7))


def bend_of(box, dtype):
    diameter, length, radius, length1, length2, number, angle = BEND_BOXES[dtype]
    box.positive(diameter)
    section = section_of(box, diameter, length)
    room(box, diameter, section)
    (box.at_least, box.above)[dtype](length, box[diameter])
    box.at_least(radius, section.radius)
    box.at_least(length1, 0)
    box.at_least(length2, 0)
    box.at_least(number, 2)
    box.integer(number)
    if angle is not None:
        box.positive(angle)
        box.below(angle, 360)
    turn = QUARTER_TURN if angle is None else deg_to_rad(box[angle])
    return Bend(section, box[radius], turn, int(box[number]) - 1, box[length1], box[length2])


def build_bend(case, box, answer):
    bend = bend_of(box, case.dtype)
    require_shape((90 if case.dtype == 0 else box[7]) / bend.gores < 180)
    answer.model = bend.model(case.settings.segs)
    answer.pattern = bend.pattern(case.settings, case.select == FULL_LAYOUT)


# ----------------------------------------------------------------------------------------------- the elbow


@dataclass
class Elbow:
    section: Section
    angle: float  # between the pieces
    length1: float
    length2: float

    def __post_init__(self):
        self.tilt = QUARTER_TURN - self.angle / 2

    def model(self, segs, seam_before, seam):
        first = Pipe(self.section, 0.0, -self.length1, -self.tilt, 0.0).model(segs, seam_before)
        second = Pipe(self.section, 0.0, -self.length2, self.tilt, 0.0).model(segs, seam)
        return [first, turned_surface(second, 2, ORIGIN, self.angle)]

    def pattern(self, seam, settings):
        first = Pipe(self.section, 0.0, -self.length1, -self.tilt, 0.0)
        second = Pipe(self.section, self.length2, 0.0, 0.0, self.tilt)
        return [first.pattern(seam, settings),
                moved_surface(second.pattern(seam, settings), 0.0, settings.KerfSpacing, 0.0)]


def change_of_direction(box, index):
    box.positive(index)
    box.below(index, 180)
    return deg_to_rad(box[index])


def elbow_of_legs(box):
    box.positive(0)
    section = section_of(box, 0, 10)
    room(box, 0, section)
    box.at_least(10, section.radius)
    angle = change_of_direction(box, 3)
    for length in (1, 2):
        box.at_least(length, -(section.radius / math.tan(angle / 2)))
    return Elbow(section, angle, box[1], box[2])


def square_elbow(box):
    box.positive(4)
    section = checked_section(box, 4, 11)
    box.at_least(5, section.radius)
    box.at_least(6, section.radius)
    return Elbow(section, QUARTER_TURN, box[5], box[6])


def elbow_on_radius(box):
    box.positive(7)
    section = checked_section(box, 7, 12)
    box.at_least(8, section.radius)
    angle = change_of_direction(box, 9)
    length = math.tan(angle / 2) * box[8]
    return Elbow(section, PI - angle, length, length)


def build_elbow(case, box, answer):
    elbow = (elbow_of_legs, square_elbow, elbow_on_radius)[case.dtype](box)
    seam = deg_to_rad(case.settings.JoinAngle)
    answer.model = elbow.model(case.settings.segs, 0.0, seam)
    answer.pattern = elbow.pattern(seam, case.settings)


# ------------------------------------------------------------------------------------------------ the windows


BUILDS = {PIPE: build_pipe, BEND: build_bend, ELBOW: build_elbow}


def build(case, box, answer):
    BUILDS[case.category](case, box, answer)
    require_within_reach(box[index] for index in BOXES[case.category][case.dtype])
    answer.labels = ["", ""] + box.lines(LABELS[case.category][case.dtype]) + last_lines(case, False)
    shown = answer.model + answer.pattern if isinstance(answer.model, list) else [answer.model, answer.pattern]
    require_within_reach(coordinates(shown))
    if case.category == BEND:
        ask_for_pattern(case, answer)


def compute(case):
    return answer_to(case, ["0"] * BOX_COUNT[case.category], build)
