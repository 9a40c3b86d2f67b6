"""Imported meshes of korvet-batch against a second computation of them, and meshes that another program has written."""

import math
import unittest
from pathlib import Path

import ezdxf

from batch_program import DONE, REFUSED, WRONG_USAGE, FolderTest, run
from dxf_measure import Drawing
from fitting_cases import rng_of
from fitting_maths import Surface, distance, unfolded
from oracle_test import near

CATEGORY = "Imported Mesh"
EXAMPLE = Path(__file__).resolve().parents[2] / "examples" / "imported-mesh.dxf"
NONE_FOUND = "No suitable mesh found.  (see Help for more information)"


def strip(rng, count):
    """Two rows of points of a hood that is bent, twisted and uneven."""
    size = 10 ** rng.uniform(0, 3)
    turn, lean = rng.uniform(0.5, 6), rng.uniform(-0.4, 0.4)
    rows = []
    for radius, height in ((rng.uniform(0.3, 1), rng.uniform(0.3, 2)), (1, 0)):
        rows.append([(size * (radius * math.cos(turn * i / count) + lean * height),
                      size * radius * rng.uniform(0.95, 1) * math.sin(turn * i / count),
                      size * (height + 0.1 * lean * math.sin(3 * i / count))) for i in range(count)])
    return rows


def mesh_text(rows, line_end="\n", number=repr):
    lines = ["0", "SECTION", "2", "ENTITIES", "0", "POLYLINE", "8", "0", "66", "1", "70", "16", "71", "2", "72",
             str(len(rows[0]))]
    for row in rows:
        for point in row:
            lines += ["0", "VERTEX", "8", "0"]
            for code, value in zip(("10", "20", "30"), point):
                lines += [code, number(value)]
            lines += ["70", "64"]
    return line_end.join([*lines, "0", "SEQEND", "8", "0", "0", "ENDSEC", "0", "EOF", ""])


def flagged(rows):
    return Surface(*([(*point, 5) for point in row] for row in rows))


class MeshTest(FolderTest):
    def new(self, path, *arguments):
        return run("--new", CATEGORY, "--mesh-file", path, "--json", "-", *arguments)

    def check_points(self, got, expected, tolerance=0):
        self.assertEqual(len(got), len(expected))
        for p, q in zip(got, expected):
            self.assertEqual(p[3], q[3])
            for a, b in zip(p[:3], q[:3]):
                self.assertTrue(abs(a - b) <= tolerance or near(a, b), (p, q))

    def check(self, rows, result, tolerance=0):
        self.assertEqual((result.status, result.errors), (DONE, ""))
        report, model = result.json, flagged(rows)
        pattern = unfolded(model)
        self.assertEqual((report["category"], report["window"], report["type"]), (CATEGORY, "frmImportMesh", 1))
        self.assertEqual([len(report[part]) for part in ("model", "pattern")], [1, 1])
        for name in ("List1", "List2"):
            self.check_points(report["model"][0][name], getattr(model, name), tolerance)
            self.check_points(report["pattern"][0][name], getattr(pattern, name), 100 * tolerance)
        for name in ("List3", "LapList1", "LapList2", "RefPoint"):
            self.assertIsNone(report["pattern"][0][name])

    def test_meshes(self):
        rng = rng_of("mesh")
        for count in (2, 2, 3, 4, 7, 13, 50, 400):
            rows = strip(rng, count)
            path = self.write("in.dxf", mesh_text(rows, rng.choice(("\n", "\r\n", "\r"))))
            with self.subTest(count=count):
                self.check(rows, self.new(path))

    def test_settings_change_nothing(self):
        rows = strip(rng_of("mesh settings"), 9)
        path = self.write("in.dxf", mesh_text(rows))
        options = [part for name, value in (("segs", 3), ("Thickness", 5), ("InOutMean", 1), ("JoinAngle", 40),
                                            ("JoinType", 1), ("LapSize1", 20), ("KerfSpacing", 3), ("HalfPattern", True))
                   for part in ("--set", f"{name}={value}")]
        result = self.new(path, *options)
        self.check(rows, result)
        self.assertTrue(result.json["labels"][-1].startswith("Imported Mesh  Full pattern  "))
        self.assertEqual(result.json["labels"][:-1], ["", "", "Thickness = 5"])

    def test_meshes_of_another_program(self):
        """Among other entities, and in the forms of several versions."""
        for version in ("R12", "R2000", "R2010"):
            rows = strip(rng_of(f"mesh {version}"), 11)
            document = ezdxf.new(version)
            space = document.modelspace()
            space.add_line((0, 0), (10, 10))
            space.add_polyline3d([(0, 0, 0), (1, 2, 3), (4, 5, 6)])
            for size in ((3, 4), (2, 4)):
                mesh = space.add_polymesh(size)
                if size == (2, 4):
                    mesh.m_close()
            mesh = space.add_polymesh((2, 11))
            for m, row in enumerate(rows):
                for n, point in enumerate(row):
                    mesh.set_mesh_vertex((m, n), point)
            path = self.folder / f"{version}.dxf"
            document.saveas(path)
            with self.subTest(version=version):
                self.check(rows, self.new(path), 1e-9)

    def test_own_meshes_come_back(self):
        """A model of flat fields goes out as a mesh and comes back: its pattern keeps all true lengths."""
        own = self.folder / "cone.dxf"
        cone = run("--new", "Truncated Right Cone", "--sample", "--view", "model", "--mesh", "--dxf", own, "--json", "-")
        model = cone.json["model"][0]
        report = self.new(own).json
        for name in ("List1", "List2"):
            self.check_points([[*p[:3], 5] for p in model[name]], report["model"][0][name], 1e-6)
        pattern = report["pattern"][0]
        upper, lower = pattern["List1"][::-1], pattern["List2"][::-1]
        for i, (p, q) in enumerate(zip(model["List1"], model["List2"])):
            self.assertAlmostEqual(distance(p, q), distance(upper[i], lower[i]), delta=1e-5)
            if i:
                for flat, solid in ((upper, model["List1"]), (lower, model["List2"])):
                    self.assertAlmostEqual(distance(solid[i - 1], solid[i]), distance(flat[i - 1], flat[i]), delta=1e-4)

    def test_example(self):
        sample = run("--new", CATEGORY, "--sample", "--json", "-").json
        read = self.new(EXAMPLE).json
        self.assertEqual((sample["model"], sample["pattern"]), (read["model"], read["pattern"]))
        self.assertEqual(len(sample["model"][0]["List1"]), 13)

    def test_all_outputs(self):
        outputs = {option: self.folder / f"out{option[1:]}" for option in ("--dxf", "--png", "--svg", "--table", "--save")}
        result = run("--new", CATEGORY, "--mesh-file", EXAMPLE, *(part for pair in outputs.items() for part in pair))
        self.assertEqual((result.status, result.errors), (DONE, ""))
        self.assertTrue(all(path.stat().st_size > 0 for path in outputs.values()))
        drawing = Drawing(self, outputs["--dxf"])
        self.assertEqual(len(drawing.lines), 13 + 2 * 12)  # bend lines and seams, and edges between corners

    def test_saved_mesh(self):
        """It opens again with the same points, in a country with another decimal mark too."""
        rows = strip(rng_of("saved mesh"), 30)
        path, saved, again = self.write("in.dxf", mesh_text(rows)), self.folder / "a.Kvt", self.folder / "b.Kvt"
        first = self.new(path, "--save", saved).json
        second = run(saved, "--save", again, "--json", "-").json
        self.assertEqual((first["model"], first["pattern"]), (second["model"], second["pattern"]))
        self.assertEqual(saved.read_bytes(), again.read_bytes())
        saved.write_bytes(saved.read_bytes().replace(b".", b",").replace(b"3,3,3", b"3.3.3"))
        self.assertEqual(run(saved, "--json", "-").json["model"], first["model"])

    def test_files_without_a_mesh(self):
        saved = self.folder / "a.Kvt"
        run("--new", CATEGORY, "--sample", "--save", saved)
        saved.write_bytes(saved.read_bytes().split(b"Start Imported Mesh")[0])
        for arguments in ((saved,), ("--new", CATEGORY)):
            result = run(*arguments, "--json", "-")
            self.assertEqual(result.status, REFUSED)
            self.assertEqual([message["text"] for message in result.json["messages"]], ["The item has no extents"])
            self.assertEqual((result.json["refused"], result.json["model"]), (True, []))

    def test_unsuitable_drawings(self):
        good = mesh_text(strip(rng_of("bad mesh"), 4))
        for text in (good[:-200], good.replace("\n72\n4\n", "\n72\n1000000000\n"), good.replace("\n71\n2\n", "\n71\n3\n"),
                     good.replace("\n70\n16\n", "\n70\n17\n"), good.replace("\n20\n", "\n20\nx", 1), "0\nSECTION\n2\nENTITIES\n"):
            result = self.new(self.write("bad.dxf", text))
            self.assertEqual(result.status, REFUSED)
            self.assertEqual([message["text"] for message in result.json["messages"]], [NONE_FOUND])
            self.assertEqual(len(result.lines), 1)
        result = self.new(self.write("bad.dxf", "0\nEOF\n"))
        self.assertEqual([message["text"] for message in result.json["messages"]],
                         ["Unsuitable DXF: No ENTITIES Section", NONE_FOUND])
        result = self.new(self.folder / "missing.dxf")
        self.assertIn("missing.dxf does not exist", result.errors)

    def test_usage(self):
        for arguments, says in ((("--new", "Right Cone", "--mesh-file", EXAMPLE), "Right Cone takes no mesh"),
                                (("a.Kvt", "--mesh-file", EXAMPLE), "--new"),
                                (("--new", CATEGORY, "--sample", "--mesh-file", EXAMPLE), "--sample"),
                                (("--new", CATEGORY, "--mesh-file", ""), "--mesh-file"),
                                (("--new", CATEGORY, "--mesh-file", EXAMPLE, "--dxf", EXAMPLE), "mesh file")):
            result = run(*arguments)
            self.assertEqual(result.status, WRONG_USAGE, arguments)
            self.assertIn(says, result.errors)


if __name__ == "__main__":
    unittest.main()
