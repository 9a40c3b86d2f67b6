"""The pages of a PDF as another program unpacks them: sizes, lines and pens in millimetres, texts.

qpdf takes the file apart and pdftotext reads the words; the few drawing operators of a sheet are followed here.
"""

import math
import re
import subprocess

POINT = 25.4 / 72  # millimetres


class Line:
    """A straight line from one place to another, in millimetres from the lower left corner of its page."""

    def __init__(self, start, end, width):
        self.start, self.end, self.width = start, end, width

    @property
    def length(self):
        return math.dist(self.start, self.end)


class Page:
    def __init__(self, width, height, lines):
        self.width, self.height, self.lines = width, height, lines


def times(first, then):
    """The matrix that works as `first` and after it as `then`."""
    a, b, c, d, e, f = first
    p, q, r, s, t, u = then
    return (a * p + b * r, a * q + b * s, c * p + d * r, c * q + d * s, e * p + f * r + t, e * q + f * s + u)


def lines_of(content, form, outer=(1, 0, 0, 1, 0, 0)):
    """Every stroked line of a content, with those of the forms that it draws: `form` gives their lines by name."""
    lines, stack, numbers, path = [], [], [], []
    matrix, width, here, name = outer, 1.0, None, ""
    text = re.sub(r"\((?:\\.|[^\\()])*\)|<[0-9A-Fa-f\s]*>", " ", content)

    def place(x, y):
        a, b, c, d, e, f = matrix
        return ((a * x + c * y + e) * POINT, (b * x + d * y + f) * POINT)

    for word in text.split():
        try:
            numbers.append(float(word))
            continue
        except ValueError:
            pass
        if word.startswith("/"):
            name = word[1:]
        elif word == "Do":
            lines += form(name, matrix)
        elif word == "q":
            stack.append((matrix, width))
        elif word == "Q":
            matrix, width = stack.pop()
        elif word == "cm":
            matrix = times(tuple(numbers[-6:]), matrix)
        elif word == "w":
            width = numbers[-1]
        elif word == "m":
            here = place(*numbers[-2:])
        elif word == "l":
            there = place(*numbers[-2:])
            path.append((here, there))
            here = there
        elif word in ("S", "s"):
            scale = math.sqrt(abs(matrix[0] * matrix[3] - matrix[1] * matrix[2])) * POINT
            lines += [Line(start, end, width * scale) for start, end in path]
            path = []
        elif word in ("n", "f", "f*", "B", "W", "h"):
            path = [] if word in ("n", "f", "f*") else path
        numbers = []
    return lines


class Document:
    """The objects of an unpacked file, by number."""

    def __init__(self, plain):
        self.objects = {int(number): body for number, body in
                        re.findall(r"^(\d+) 0 obj\n(.*?)^endobj", plain, flags=re.M | re.S)}

    def lines(self, body, content, matrix=(1, 0, 0, 1, 0, 0)):
        """The lines of an object's content, whose resources stand in `body`."""
        named = re.search(r"/XObject <<(.*?)>>", body, flags=re.S)
        forms = dict(re.findall(r"/(\w+) (\d+) 0 R", named[1])) if named else {}

        def form(name, outer):
            if name not in forms or "/Subtype /Form" not in self.objects[int(forms[name])]:
                return []
            inner = self.objects[int(forms[name])]
            own = re.search(r"/Matrix \[(.*?)\]", inner.split("stream\n")[0], flags=re.S)
            placed = times(tuple(map(float, own[1].split())), outer) if own else outer
            return self.lines(inner.split("stream\n")[0], stream_of(inner), placed)

        return lines_of(content, form, matrix)


def stream_of(body):
    return re.search(r"stream\n(.*)\nendstream", body, flags=re.S)[1]


def pages_of(path):
    """The pages in their order."""
    plain = subprocess.run(["qpdf", "--qdf", "--object-streams=disable", str(path), "-"], check=True,
                           stdout=subprocess.PIPE).stdout.decode("latin-1")
    document = Document(plain)
    objects = document.objects
    kids = next(body for body in objects.values() if "/Type /Pages" in body)
    pages = []
    for number in re.findall(r"(\d+) 0 R", re.search(r"/Kids \[(.*?)\]", kids, flags=re.S)[1]):
        body = objects[int(number)]
        box = re.search(r"/MediaBox \[(.*?)\]", body, flags=re.S) or re.search(r"/MediaBox \[(.*?)\]", kids, flags=re.S)
        left, bottom, right, top = map(float, box[1].split())
        content = stream_of(objects[int(re.search(r"/Contents (\d+) 0 R", body)[1])])
        pages.append(Page((right - left) * POINT, (top - bottom) * POINT, document.lines(body, content)))
    return pages


def words_of(path, page):
    """The words on a page, from 1."""
    return subprocess.run(["pdftotext", "-raw", "-f", str(page), "-l", str(page), str(path), "-"], check=True,
                          stdout=subprocess.PIPE).stdout.decode("utf-8").split()


def sheet_names(path):
    """What "[SHEET ...]" says on each page, in order."""
    names = []
    for page in range(1, len(pages_of(path)) + 1):
        found = re.findall(r"\[SHEET (\S+)\]", " ".join(words_of(path, page)))
        names.append(found[0] if len(found) == 1 else found)
    return names
