"""The cone that the walks through the program type, by its own geometry, and what a drawing file of it must hold."""
import math

import ezdxf

R, SMALL_R, H = 150.0, 60.0, 250.0
SLANT = math.hypot(R, H * R / (R - SMALL_R))  # of the whole cone, to its apex
TOP_SLANT = SLANT * SMALL_R / R


def straight_cuts(test, path):
    """Holds the arcs of a drawing file to the true lengths of both rims; the lengths of its straight cut edges."""
    document = ezdxf.readfile(path)
    test.assertFalse(document.audit().errors)
    space = document.modelspace()
    swept = {}
    for arc in space.query("ARC"):
        turn = (arc.dxf.end_angle - arc.dxf.start_angle) % 360
        radius = round(arc.dxf.radius, 2)
        swept[radius] = swept.get(radius, 0) + math.radians(turn) * arc.dxf.radius
    test.assertAlmostEqual(swept[round(SLANT, 2)], math.pi * 2 * R, delta=1e-3)
    test.assertAlmostEqual(swept[round(TOP_SLANT, 2)], math.pi * 2 * SMALL_R, delta=1e-3)
    return [math.dist(line.dxf.start, line.dxf.end) for line in space.query("LINE[layer=='CutLayer']")]
