"""Geometry of wire models and flat patterns, by code that shares nothing with the program.

All sizes are those of the middle of the material. Angles are radians. A point is (x, y, z, flag).
"""

import math
import struct
from dataclasses import dataclass, replace

PI = 3.14159265358979
QUARTER_TURN = 1.570796326794895
THREE_QUARTER_TURNS = 4.712388980384685
FULL_TURN = 6.28318530717958
CLOSING_LIMIT = 6.28319530717958
ORIGIN = (0.0, 0.0, 0.0, 0)

SEAM_LAP = "Lap join along seam may be too large"


@dataclass
class Settings:
    segs: int = 24
    Thickness: float = 0.0
    ThicknessA: float = 0.0
    ThicknessB: float = 0.0
    InOutMean: int = 0
    TemplateType: int = 0
    KerfSpacing: float = 0.0
    HalfPattern: bool = False
    JoinType: int = 0
    LapSize0: float = 0.0
    LapSize1: float = 0.0
    LapSize2: float = 0.0
    JoinAngle: float = 0.0  # degrees


@dataclass
class Surface:
    List1: list
    List2: list
    LapList1: list = None
    LapList2: list = None
    RefPoint: tuple = None
    RefPointDisplay: bool = False
    List3: list = None


LISTS = ("List1", "List2", "List3", "LapList1", "LapList2")


def coordinates(surfaces):
    return (c for surface in surfaces for name in LISTS for p in getattr(surface, name) or () for c in p[:3])


# ------------------------------------------------------------------------------------------ angles and points


def deg_to_rad(degrees):
    return degrees * (PI / 180)


def rad_to_deg(radians):
    return (radians * 180) / PI


def arc_cos(x):
    rounded = round(x * 1e8) / 1e8
    if rounded == 1:
        return 0.0
    if rounded == -1:
        return PI
    return math.atan(-x / math.sqrt(-x * x + 1)) + 2 * math.atan(1)


def arc_sin(x):
    if abs(x) == 1:
        return math.copysign(QUARTER_TURN, x)
    return math.atan(x / math.sqrt(-x * x + 1))


def plan_angle(a, b):
    dx, dy = b[0] - a[0], b[1] - a[1]
    if dx == 0:
        return 0.0 if dy == 0 else QUARTER_TURN if dy > 0 else THREE_QUARTER_TURNS
    if dx < 0:
        return math.atan(dy / dx) + PI
    return math.atan(dy / dx) + (FULL_TURN if dy < 0 else 0.0)


def polar_point(p, angle, distance_, flag=0):
    return (p[0] + distance_ * math.cos(angle), p[1] + distance_ * math.sin(angle), p[2], flag)


def distance(a, b):
    dx, dy, dz = b[0] - a[0], b[1] - a[1], b[2] - a[2]
    return math.sqrt(dx * dx + dy * dy + dz * dz)


def ellipse_radius(a, b, t):
    """From the centre of an ellipse to its edge along the ray at t; half length a along x, b along y."""
    if a == 0 or b == 0:
        return 0.0
    if abs(t - QUARTER_TURN) < 1e-8 or abs(t - THREE_QUARTER_TURNS) < 1e-8:
        return abs(b)
    return abs(a * math.cos(math.atan(a * math.tan(t) / b)) / math.cos(t))


# ------------------------------------------------------------------------------------------- whole surfaces


def turned(p, axis, centre, angle):
    """The point turned in the plane of the two other axes, from the first of them towards the second."""
    first, second = ((1, 2), (0, 2), (0, 1))[axis - 1]
    middle, flat = (centre[first], centre[second]), (p[first], p[second])
    radius = math.sqrt((flat[0] - middle[0]) ** 2 + (flat[1] - middle[1]) ** 2)
    new_angle = plan_angle(middle, flat) + angle
    result = list(p)
    result[first] = middle[0] + radius * math.cos(new_angle)
    result[second] = middle[1] + radius * math.sin(new_angle)
    return tuple(result)


def each_point(surface, change):
    """The surface with every point of its lists changed."""
    lists = {name: getattr(surface, name) for name in LISTS}
    return replace(surface, **{name: points and [change(p) for p in points] for name, points in lists.items()})


def turned_surface(surface, axis, centre, angle):
    return each_point(surface, lambda p: turned(p, axis, centre, angle))


def moved_surface(surface, dx, dy, dz):
    return each_point(surface, lambda p: (p[0] + dx, p[1] + dy, p[2] + dz, p[3]))


def first_half(surface):
    kept = len(surface.List1) // 2 + 1
    return Surface(surface.List1[:kept], surface.List2[:kept], List3=surface.List3 and surface.List3[:kept])


# ------------------------------------------------------------------------------------------------------ laps


def add_seam_tab(inner, outer, width):
    """Adds the tab past the seam edge, off the pattern, and turns the edge into a corner."""
    p, q = inner[-1], outer[-1]
    turn = QUARTER_TURN
    middle = ((p[0] + q[0]) / 2, (p[1] + q[1]) / 2)
    for a, b in zip(reversed(inner[:-1]), reversed(outer[:-1])):
        away = ((a[0] + b[0]) / 2 - middle[0], (a[1] + b[1]) / 2 - middle[1])
        if math.hypot(*away) > 1e-6:
            if (q[0] - p[0]) * away[1] - (q[1] - p[1]) * away[0] > 0:
                turn = -QUARTER_TURN
            break
    angle = plan_angle(p, q) + turn
    inner[-1], outer[-1] = p[:3] + (p[3] + 4,), q[:3] + (q[3] + 4,)
    inner.append(polar_point(p, angle, width, 8))
    outer.append(polar_point(q, angle, width, 8))


def moved_out(edge, other, width):
    """The points of an edge moved away from the other edge, along the rulings."""
    return [polar_point(p, plan_angle(q, p), width)[:2] + p[2:] for p, q in zip(edge, other)]


def lapped(surface, settings):
    """The pattern with the material for its laps; its reference point is gone."""
    inner, outer = list(surface.List1), list(surface.List2)
    if settings.LapSize1 > 0:
        add_seam_tab(inner, outer, settings.LapSize1)
    result = Surface(inner, outer, [], [], List3=surface.List3)
    if settings.LapSize0 > 0:
        result.LapList1 = list(inner)
        result.List1 = moved_out(inner, outer, settings.LapSize0)
    if settings.LapSize2 > 0:
        result.LapList2 = list(outer)
        result.List2 = moved_out(outer, result.List1, settings.LapSize2)
    return result


def joined(surface, settings):
    return lapped(surface, settings) if settings.JoinType > 0 else surface


# ------------------------------------------------------------------------------------------- unfolding a strip


def snapped(side):
    single = struct.unpack("f", struct.pack("f", side))[0]
    return 0.0 if -1e-8 < single < 1e-8 else side


def triangle_angle(a, b, c):
    """The angle opposite side a; a side of length 0 makes it 0."""
    if a == 0 or b == 0 or c == 0:
        return 0.0
    return arc_cos((b * b + c * c - a * a) / ((b + b) * c))


def unfolding_angle(a, b, c):
    """The same, but an angle whose cosine rounds to 1 or -1 by the half-angle formula."""
    if a == 0 or b == 0 or c == 0:
        return 0.0
    cosine = round((b * b + c * c - a * a) / ((b + b) * c), 8)
    if abs(cosine) != 1:
        return triangle_angle(a, b, c)
    whole = a + b + c
    beyond_b, beyond_c, left = (0.0 if part < 1e-12 * whole else part for part in (a - b + c, a + b - c, b + c - a))
    return 2 * math.atan2(math.sqrt(beyond_b * beyond_c), math.sqrt(whole * left)) if left else PI


def unfolded(model):
    """The strip laid flat triangle by triangle, the last station of the model first."""
    count = len(model.List1)
    here, direction = ORIGIN, 0.0
    upper, lower = [], []
    for i in range(count):
        a, b = model.List1[i], model.List2[i]
        after = (i + 1) % count
        c, d = model.List1[after], model.List2[after]
        ab, ac, bd, ad, bc = (snapped(distance(*pair)) for pair in ((a, b), (a, c), (b, d), (a, d), (b, c)))
        to_c = unfolding_angle(bc, ac, ab)
        to_d = unfolding_angle(bd, ab, ad)
        upper.append(here[:3] + (a[3],))
        lower.append(polar_point(here, direction, ab, b[3]))
        flat_c = polar_point(here, direction - to_c, ac)
        flat_d = polar_point(here, direction - to_d, ad)
        direction = plan_angle(flat_c, flat_d)
        here = flat_c
    return Surface(upper[::-1], lower[::-1])
