#!/usr/bin/env python3
"""Checks that the rooms of src/ include only what they may: no upward include, no Qt below platform."""
import pathlib
import re
import sys

# What each room may include besides itself and the standard library.
MAY_USE = {
    "core": set(),
    "display": {"core"},
    "form": {"core", "display"},
    "exchange": {"core", "display"},
    "fittings": {"core", "form"},
    "shell": {"core", "display", "form", "exchange", "fittings"},
    "sketch": {"core", "form"},
    "platform": {"core", "display", "form", "shell", "Qt"},
    "desktop": {"core", "display", "form", "exchange", "fittings", "shell", "sketch", "platform", "Qt"},
    "batch": {"core", "display", "form", "exchange", "fittings", "shell", "platform", "CLI"},
}
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)
# Only the catalogue knows the windows of single fittings.
FITTING_HEADERS = re.compile(r"^fittings/")
MAY_NAME_FITTINGS = {"shell/catalogue.cpp"}


def faults(root):
    files = sorted(root.rglob("*.h")) + sorted(root.rglob("*.cpp"))
    if not files:
        yield f"no sources below {root}"
    for path in files:
        name = path.relative_to(root).as_posix()
        room = name.split("/")[0]
        if room not in MAY_USE:
            yield f"{name}: room {room} is not known"
            continue
        for bracket, target in INCLUDE.findall(path.read_text(encoding="utf-8")):
            other = target.split("/")[0]
            if bracket == "<":
                other = "Qt" if re.match(r"Q[A-Z]|Qt", target) else other if "/" in target else ""
                if other == "sys":
                    other = ""
            if other and other != room and other not in MAY_USE[room]:
                yield f"{name} includes {target}, which {room} may not use"
            if FITTING_HEADERS.match(target) and room == "shell" and name not in MAY_NAME_FITTINGS:
                yield f"{name} includes {target}: only the catalogue names fittings"


def main():
    found = list(faults(pathlib.Path(sys.argv[1])))
    print("\n".join(found) or "every include points down")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
