#!/usr/bin/env python3
"""Checks that the rooms of src/ include only what they may: no upward include, no Qt below platform."""
import pathlib
import re
import sys

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)
# Only the catalogue knows the windows of single fittings.
MAY_NAME_FITTINGS = "frame/catalogue.cpp"


def read_rooms(table):
    """What each room may include besides itself and the standard library."""
    may_use = {}
    for line in table.read_text(encoding="utf-8").splitlines():
        if line and not line.startswith("#"):
            room, used = line.split(":")
            may_use[room] = set(used.replace("|", " ").split())
    return may_use


def faults(root, may_use):
    files = sorted(root.rglob("*.h")) + sorted(root.rglob("*.cpp"))
    if not files:
        yield f"no sources below {root}"
    for path in files:
        name = path.relative_to(root).as_posix()
        room = name.split("/")[0]
        if room not in may_use:
            yield f"{name}: room {room} is not known"
            continue
        for bracket, target in INCLUDE.findall(path.read_text(encoding="utf-8")):
            other = target.split("/")[0]
            if bracket == "<":
                other = "Qt" if re.match(r"Q[A-Z]|Qt", target) else other if "/" in target else ""
                if other == "sys":
                    other = ""
            if other and other != room and other not in may_use[room]:
                yield f"{name} includes {target}, which {room} may not use"
            if other == "fittings" and room == "frame" and name != MAY_NAME_FITTINGS:
                yield f"{name} includes {target}: only the catalogue names fittings"


def main():
    root = pathlib.Path(sys.argv[1])
    found = list(faults(root / "src", read_rooms(root / "cmake/rooms.txt")))
    print("\n".join(found) or "every include points down")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
