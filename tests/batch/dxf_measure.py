"""Opens the DXF files of korvet-batch with an independent reader and measures them against the JSON."""

import math

import ezdxf

CUT, FOLD, TEXT, DIMENSION = "CutLayer", "FoldLayer", "TextLayer", "DimensionLayer"
NEAR = 3e-6  # coordinates have six places
RULED = (1, 3, 5, 7)
EDGES = ("List1", "List2", "List3", "LapList1", "LapList2")


def point(vector):
    return (vector[0], vector[1], vector[2])


def same(a, b, tolerance=NEAR):
    return math.dist(a, b) <= tolerance


def same_segment(a, b, tolerance=NEAR):
    return (same(a[0], b[0], tolerance) and same(a[1], b[1], tolerance)) or \
           (same(a[0], b[1], tolerance) and same(a[1], b[0], tolerance))


class Drawing:
    """The entities of one file, sorted by kind."""

    def __init__(self, test, path):
        self.test = test
        self.document = ezdxf.readfile(path)
        audit = self.document.audit()
        test.assertEqual([str(fault.message) for fault in audit.errors], [])
        space = self.document.modelspace()
        self.kinds = {entity.dxftype() for entity in space}
        test.assertLessEqual(self.kinds, {"LINE", "ARC", "POLYLINE", "TEXT"})
        self.lines = [(e.dxf.layer, (point(e.dxf.start), point(e.dxf.end))) for e in space.query("LINE")]
        self.arcs = list(space.query("ARC"))
        self.polylines = [(e.dxf.layer, [point(v.dxf.location) for v in e.vertices])
                          for e in space.query("POLYLINE") if not e.is_polygon_mesh]
        self.meshes = [e for e in space.query("POLYLINE") if e.is_polygon_mesh]
        self.texts = list(space.query("TEXT"))
        for arc in self.arcs:
            test.assertEqual(arc.dxf.layer, CUT)

    def take_line(self, layer, segment, what):
        """Takes out the line that must stand between two points."""
        for index, (own, ends) in enumerate(self.lines):
            if own == layer and same_segment(ends, segment):
                del self.lines[index]
                return
        self.test.fail(f"no {what} from {segment[0]} to {segment[1]} on {layer}")

    def take_rulings(self, surfaces):
        """The seam's two edges are cut, and every ruled station between them is a fold line."""
        for surface in surfaces:
            pairs = [(point(p), point(q)) for p, q in zip(surface["List1"], surface["List2"])]
            self.take_line(CUT, pairs[0], "first edge")
            self.take_line(CUT, pairs[-1], "last edge")
            for pair, p in list(zip(pairs, surface["List1"]))[1:-1]:
                if p[3] in RULED:
                    self.take_line(FOLD, pair, "fold line")

    def check_model(self, *surfaces):
        """A model is straight lines and nothing else, one between every two neighbours and along the rulings."""
        self.test.assertEqual(self.kinds, {"LINE"})
        self.take_rulings(surfaces)
        for p, q in (pair for edge in edges_of(surfaces) for pair in neighbours(edge)):
            if not same(p, q, 0):
                self.take_line(CUT, (p, q), "edge")
        self.test.assertEqual(self.lines, [])

    def check_polylines(self, *surfaces):
        self.take_rulings(surfaces)
        self.test.assertEqual((self.lines, self.arcs), ([], []))
        edges = edges_of(surfaces)
        self.test.assertEqual([(layer, len(points)) for layer, points in self.polylines],
                              [(CUT, len(edge)) for edge in edges])
        for (_, points), edge in zip(self.polylines, edges):
            for p, q in zip(points, edge):
                self.test.assertTrue(same(p, point(q)), f"{p} {q}")

    def check_arcs(self, *surfaces):
        """Arcs and lines join the points of each edge in their order, without a gap; the length they make."""
        self.take_rulings(surfaces)
        self.test.assertEqual({layer for layer, _ in self.lines} - {CUT}, set())
        pieces = [Piece(ends, math.dist(*ends)) for _, ends in self.lines if not same(*ends)]
        pieces += [Piece((point(a.start_point), point(a.end_point)), arc_length(a), a) for a in self.arcs]
        total = 0
        for edge in edges_of(surfaces):
            points = [point(p) for p in edge]
            total += self.take_polyline(points) if len(points) == 2 else self.follow(points, pieces)
        left = [piece.ends for piece in pieces if not piece.used]
        self.test.assertEqual(left, [], "entities that belong to no edge")
        self.test.assertEqual(self.polylines, [])
        return total

    def take_polyline(self, points):
        """Takes out the polyline that an edge of two points is; the length of the edge."""
        for layer, ends in self.polylines:
            if layer == CUT and len(ends) == 2 and same_segment(ends, points):
                self.polylines.remove((layer, ends))
                return math.dist(*points)
        return self.test.fail(f"no polyline from {points[0]} to {points[1]}")

    def follow(self, points, pieces):
        """Walks along an edge piece by piece, each spanning one or two segments; the length walked."""
        at, length = 0, 0
        while at < len(points) - 1:
            if same(points[at], points[at + 1]):
                at += 1
                continue
            for step in (2, 1):
                found = spanning(pieces, points[at:at + step + 1]) if at + step < len(points) else []
                if found:
                    length += found[0].length
                    at += step
                    break
            else:
                self.test.fail(f"an edge is open after point {at + 1} of {len(points)}, {points[at]}")
        # Two segments at a time leave the last one of some edges to stand twice.
        spanning(pieces, points[-2:])
        spanning(pieces, points[-3:-1])
        return length


def spanning(pieces, points):
    """The pieces that run through the points, which are used up by that."""
    found = [piece for piece in pieces if piece.spans(points)]
    for piece in found:
        piece.used = True
    return found


class Piece:
    def __init__(self, ends, length, arc=None):
        self.ends = ends
        self.length = length
        self.arc = arc
        self.used = False

    def spans(self, points):
        # Angles of arcs have six places of a degree, which tells at the end of a long radius.
        radius = self.arc.dxf.radius if self.arc else 0
        if not same_segment(self.ends, (points[0], points[-1]), NEAR + 2e-8 * radius):
            return False
        if self.arc is None:
            # Three points count as straight when the way over the middle one is no longer in six places.
            return len(points) == 2 or math.dist(*points[:2]) + math.dist(*points[1:]) - math.dist(*self.ends) < NEAR
        centre = point(self.arc.dxf.center)
        return all(abs(math.dist(centre, p) - radius) < NEAR + 1e-8 * radius for p in points)


def arc_length(arc):
    return math.radians((arc.dxf.end_angle - arc.dxf.start_angle) % 360) * arc.dxf.radius


def neighbours(edge):
    points = [point(p) for p in edge or ()]
    return list(zip(points, points[1:]))


def edges_of(surfaces):
    """The lines of all surfaces that are there."""
    return [surface[name] for surface in surfaces for name in EDGES if surface[name]]


def edge_length(*surfaces):
    """The length of the edges from point to point, without the seams' edges."""
    return sum(math.dist(p, q) for edge in edges_of(surfaces) for p, q in neighbours(edge))
