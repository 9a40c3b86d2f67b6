#!/usr/bin/python3
"""Opens drawing files with ezdxf, measures them and prints what they hold as JSON.

    check_dxf.py [--outline LAYER] [--expect FILE.json] FILE.dxf ...

Every file must open and its audit must find nothing. Per file it prints "counts" (entities by type and layer),
"lengths" (of lines, arcs and polylines, by layer), "outline" (the length on the outline layer, CUT unless
told) and "texts" (in their order).

The expectations are one object per file, by its base name, with any of: "counts", compared exactly;
"outline", compared within "tolerance" (1e-6 unless given); "texts", compared exactly. They must name exactly
the files given.

Exit status: 0 all well, 1 a file is faulty or not as expected, 2 wrong usage, 77 ezdxf is not installed.
"""

import argparse
import json
import math
import pathlib
import sys

try:
    import ezdxf
    from ezdxf import recover
except ImportError:
    sys.exit(77)


def whole(text):
    """A text in which the two units of a character above U+FFFF are one character."""
    return text.encode("utf-16", "surrogatepass").decode("utf-16")


def kind_of(entity):
    """The entity's type; a polygon mesh is told from a polyline."""
    if entity.dxftype() == "POLYLINE" and entity.is_polygon_mesh:
        return "MESH"
    return entity.dxftype()


def length_of(entity):
    """Length of a line, an arc or a polyline; 0 of anything else."""
    kind = kind_of(entity)
    if kind == "LINE":
        return entity.dxf.start.distance(entity.dxf.end)
    if kind == "ARC":
        sweep = (entity.dxf.end_angle - entity.dxf.start_angle) % 360
        return entity.dxf.radius * math.radians(sweep)
    if kind == "POLYLINE":
        points = list(entity.points())
        return sum(a.distance(b) for a, b in zip(points, points[1:]))
    return 0.0


def measure(path, outline_layer):
    """What the file holds, and a list of its faults."""
    ezdxf.readfile(path)  # forgives nothing in how the file is built
    document, auditor = recover.readfile(path)  # reads \U+XXXX, in names of layers too
    faults = [error.message for error in list(auditor.errors) + list(auditor.fixes)]
    counts, lengths, texts = {}, {}, []
    for entity in document.modelspace():
        kind, layer = kind_of(entity), entity.dxf.layer
        by_layer = counts.setdefault(kind, {})
        by_layer[layer] = by_layer.get(layer, 0) + 1
        lengths[layer] = lengths.get(layer, 0.0) + length_of(entity)
        if kind == "TEXT":
            texts.append(whole(entity.dxf.text))
        if kind == "MESH" and entity.dxf.m_count * entity.dxf.n_count != len(entity.vertices):
            faults.append("a mesh with a wrong count of vertices")
    found = {
        "counts": counts,
        "lengths": lengths,
        "outline": lengths.get(outline_layer, 0.0),
        "texts": texts,
    }
    return found, faults


def differences(found, expected):
    """Where a file is not as expected, one line each."""
    lines = []
    for key, value in expected.items():
        if key == "tolerance":
            continue
        if key == "outline":
            if abs(found["outline"] - value) > expected.get("tolerance", 1e-6):
                lines.append(f"outline is {found['outline']!r}, not {value!r}")
        elif found.get(key) != value:
            lines.append(f"{key} is {found.get(key)!r}, not {value!r}")
    return lines


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("files", nargs="+", metavar="FILE.dxf")
    parser.add_argument("--outline", default="CUT", metavar="LAYER")
    parser.add_argument("--expect", metavar="FILE.json")
    arguments = parser.parse_args()

    expectations = None
    if arguments.expect:
        expectations = json.loads(pathlib.Path(arguments.expect).read_text(encoding="utf-8"))
    report, faults = {}, []
    for path in arguments.files:
        name = pathlib.Path(path).name
        try:
            found, file_faults = measure(path, arguments.outline)
        except (OSError, ezdxf.DXFError) as error:
            faults.append(f"{name}: {error}")
            continue
        report[name] = found
        if expectations is not None and name in expectations:
            file_faults += differences(found, expectations[name])
        faults += [f"{name}: {fault}" for fault in file_faults]
    names = {pathlib.Path(path).name for path in arguments.files}
    if expectations is not None and names != set(expectations):
        faults.append(f"files {sorted(names)} where {sorted(expectations)} are expected")
    print(json.dumps(report, indent=2, ensure_ascii=False))
    for fault in faults:
        print(fault, file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
