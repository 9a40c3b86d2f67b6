"""Checks the help pages: well-formed, every link and picture leads somewhere, every page stands in the
contents, every fitting's page in the catalogue and the index, and every message is one that the program says.

check_help.py HELP_FOLDER SOURCE_FOLDER
"""

import re
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path

COLOURED = re.compile(r"\b(color|background(-color)?|bgcolor)\s*[:=]")
LITERAL = r'"((?:[^"\\]|\\.)*)"'


def plain(text):
    return re.sub(r"\s+", " ", text).strip()


def said_by_program(sources):
    """All texts of the sources, neighbouring literals put together, without their line breaks."""
    texts = set()
    for path in (*sources.rglob("*.cpp"), *sources.rglob("*.h")):
        for run in re.finditer(rf"{LITERAL}(?:\s*{LITERAL})*", path.read_text(encoding="utf-8")):
            text = "".join(re.findall(LITERAL, run[0]))
            texts.add(plain(text.replace("\\r", "").replace("\\n", " ").replace('\\"', '"').replace("\\\\", "\\")))
    return texts


class Pages:
    def __init__(self, folder):
        self.folder = folder
        self.faults = []
        self.trees = {}
        for path in sorted(folder.glob("*.html")):
            try:
                self.trees[path.name] = ElementTree.fromstring(path.read_text(encoding="utf-8"))
            except ElementTree.ParseError as error:
                self.fault(path.name, f"not well-formed: {error}")
        self.anchors = {
            name: {e.get("name") or e.get("id") for e in tree.iter() if e.get("name") or e.get("id")}
            for name, tree in self.trees.items()
        }

    def fault(self, name, text):
        self.faults.append(f"{name}: {text}")

    def check_address(self, name, address):
        file, _, anchor = address.partition("#")
        file = file or name
        if file not in self.trees:
            self.fault(name, f"link to {address}: no such page")
        elif anchor and anchor not in self.anchors[file]:
            self.fault(name, f"link to {address}: no such place on the page")

    def check_page(self, name, tree, texts):
        titles = [plain("".join(e.itertext())) for e in tree.iter("title")]
        headings = [plain("".join(e.itertext())) for e in tree.iter("h1")]
        if len(titles) != 1 or titles != headings or not titles[0]:
            self.fault(name, "needs one title and the same text as its one main heading")
        for link in tree.iter("a"):
            if link.get("href") is not None:
                self.check_address(name, link.get("href"))
        for sheet in tree.iter("link"):
            if not (self.folder / sheet.get("href", "")).is_file():
                self.fault(name, f"no style sheet {sheet.get('href')}")
        for picture in tree.iter("img"):
            self.check_picture(name, picture)
        for said in (e for e in tree.iter() if e.get("class") == "message"):
            if plain("".join(said.itertext())) not in texts:
                self.fault(name, f"the program never says: {plain(''.join(said.itertext()))}")
        for element in tree.iter():
            if any(COLOURED.search(f"{key}={value}") for key, value in element.items()):
                self.fault(name, f"<{element.tag}> fixes a colour")

    def check_picture(self, name, picture):
        source = picture.get("src", "")
        if not re.fullmatch(r"sketch:[^/]+/[1-9]\d*", source) and not (self.folder / source).is_file():
            self.fault(name, f"no picture {source}")
        if not picture.get("alt"):
            self.fault(name, f"picture {source} has no words for those who can't see it")

    def check_fittings(self):
        """A page that tells a shape is that of a fitting, with a context number or without."""
        project = ElementTree.parse(self.folder / "korvet.qhp").getroot()
        words = {(k.get("name"), k.get("ref"), k.get("id")) for k in project.iter("keyword")}
        listed = [link.get("href") for row in self.trees["catalogue.html"].iter("tr") for link in row.iter("a")]
        for name, tree in self.trees.items():
            told = {meta.get("name"): meta.get("content") for meta in tree.iter("meta")}
            if "description" not in told:
                if "help-context" in told:
                    self.fault(name, "has a context number, but tells no shape")
                continue
            if (plain(tree.findtext(".//title")), name, told.get("help-context")) not in words:
                self.fault("korvet.qhp", f"{name} does not stand in the index under its title")
            if listed.count(name) != 1:
                self.fault("catalogue.html", f"{name} stands {listed.count(name)} times in the catalogue")

    def check_project(self):
        project = ElementTree.parse(self.folder / "korvet.qhp").getroot()
        contents = [section.get("ref", "") for section in project.iter("section")]
        for reference in contents + [keyword.get("ref", "") for keyword in project.iter("keyword")]:
            self.check_address("korvet.qhp", reference)
        for name in self.trees:
            if name not in contents:
                self.fault("korvet.qhp", f"{name} does not stand in the contents")
        identifiers = [k.get("id") for k in project.iter("keyword") if k.get("id")]
        for identifier in identifiers:
            if identifiers.count(identifier) > 1:
                self.fault("korvet.qhp", f"two pages for context {identifier}")
        sheet = (self.folder / "style.css").read_text(encoding="utf-8")
        if COLOURED.search(re.sub(r"/\*.*?\*/", "", sheet, flags=re.S)):
            self.fault("style.css", "fixes a colour; colours come from the desktop")


def main():
    pages = Pages(Path(sys.argv[1]))
    texts = said_by_program(Path(sys.argv[2]))
    if not pages.trees or not texts:
        sys.exit("no help pages or no sources found")
    for name, tree in pages.trees.items():
        pages.check_page(name, tree, texts)
    pages.check_project()
    pages.check_fittings()
    print(f"{len(pages.trees)} help pages")
    if pages.faults:
        sys.exit("\n".join(pages.faults))


main()
