"""Cones of korvet-batch against a second computation of them, and against what geometry demands."""

import unittest
from collections import Counter
from dataclasses import replace

import cone_cases
import window_checks
from batch_program import DONE, REFUSED, cone_file, run
from cone_cases import TYPES, Case
from cone_oracle import BOX_COUNT, RIGHT_CONE, TRUNCATED
from cone_surfaces import TOP_LAP
from fitting_cases import mended_cases
from fitting_maths import SEAM_LAP, Settings
from oracle_test import Comparison, OracleTest, shown


class ConeTest(OracleTest):
    def test_sound_cones(self):
        cases = [cone_cases.sound_case(*kind, cone_cases.rng_of(f"sound {kind} {k}"))
                 for kind in TYPES for k in range(20)]
        self.assertEqual({(case.category, case.dtype) for case in cases}, set(TYPES))
        warnings = Counter(text for case in cases for _, text, _ in case.answer().messages)
        self.assertGreater(min(warnings[TOP_LAP], warnings[SEAM_LAP]), 2)
        self.check_variety(cases, lambda s: s.JoinAngle < 0, lambda s: s.JoinAngle > 360)

    def test_limits(self):
        cases = [limit for kind in TYPES
                 for limit in cone_cases.limit_cases(cone_cases.sound_case(*kind, cone_cases.rng_of(f"at {kind}")))]
        # Every check of every type must be seen to refuse something, or it is not tested here.
        made, refused = set(), set()
        for case in cases:
            answer = case.answer()
            names = [(case.category, case.dtype, kind, box) for kind, box, _ in answer.checks]
            made.update(names)
            if answer.refused:
                refused.add(names[-1])
        self.assertEqual(made - refused, set())
        self.check(cases)

    def test_spoilt_cones(self):
        cases = []
        for kind in TYPES:
            rng = cone_cases.rng_of(f"spoilt {kind}")
            cases += [cone_cases.spoilt_case(cone_cases.sound_case(*kind, rng), rng) for _ in range(12)]
        self.assertGreater(sum(case.answer().refused for case in cases), 60)
        self.check(cases)

    def test_first_fault_speaks(self):
        """All boxes start at fault; mended one by one in the order of the checks, the next one speaks."""
        cases = []
        for kind in TYPES:
            cases += mended_cases(cone_cases.sound_case(*kind, cone_cases.rng_of(f"mended {kind}")))
        self.check(cases)

    def test_odd_seams(self):
        """Seams all round, and with so few segments that a station lies more than a half turn on."""
        cases = [Case(RIGHT_CONE, 0, ((0, "100"), (1, "60"), (2, "90")),
                      Settings(segs=segs, JoinAngle=angle, JoinType=1, LapSize1=5))
                 for segs in (2, 3, 24, 48)
                 for angle in (-725.25, -360, -90, -1e-3, 0, 90, 179.9, 270, 359.9, 360, 400, 720, 1e4)]
        self.check(cases)

    def test_planes_in_either_order(self):
        """The tab of a seam lap leaves the pattern whichever plane lies above at the seam."""
        boxes = ((8, "200"), (9, "40"), (10, "15"), (11, "60"), (12, "20"), (13, "300"))
        cases = [Case(TRUNCATED, 2, tuple((i, text) for i, text in boxes),
                      Settings(JoinType=1, LapSize0=4, LapSize1=8, LapSize2=6, JoinAngle=angle, HalfPattern=half))
                 for angle in (0, 45, 90, 135, 180, 225, 270) for half in (False, True)]
        self.check(cases)

    def test_through_parameter_files(self):
        """The same cones typed into parameter files, all in one run."""
        cases = [cone_cases.sound_case(*kind, cone_cases.rng_of(f"file {kind} {k}"))
                 for kind in TYPES for k in range(25)]
        paths = [self.write(f"cone{k}.Kvt", file_of(case)) for k, case in enumerate(cases)]
        result = run("--json", "-", *paths)
        self.assertEqual((result.status, len(result.json)), (DONE, len(cases)))
        faults = []
        for case, path, report in zip(cases, paths, result.json):
            # A file's lines are trimmed.
            case = replace(case, boxes=tuple((index, text.strip()) for index, text in case.boxes))
            found = Comparison(report, case.answer()).faults
            if report["file"] != str(path) or report["type"] != case.dtype + 1:
                found.append(f"file {report['file']} type {report['type']}")
            if found:
                faults.append("\n  ".join([shown(case), *found[:6]]))
        self.tell(faults, cases)


def file_of(case):
    texts = ["0"] * BOX_COUNT[case.category]
    for index, text in case.boxes:
        texts[index] = text
    settings = case.settings
    laps = [repr(getattr(settings, f"LapSize{k}")) for k in range(3)]
    return cone_file(texts, case.dtype, case.category, angle=repr(settings.JoinAngle), laps=laps,
                     segs=str(settings.segs), Thickness=repr(settings.Thickness),
                     HalfPattern=str(settings.HalfPattern), InOutMean=str(settings.InOutMean),
                     JoinType=str(settings.JoinType), PositionString=window_checks.POSITION[settings.InOutMean])


class TypedValuesTest(unittest.TestCase):
    """Messages about what is typed, as against what is built."""

    def messages(self, *options):
        result = run("--new", *options, "--json", "-")
        return [(m["title"], m["text"], m["box"]) for m in result.json["messages"]], result

    def test_bad_number_is_told_typed_and_built(self):
        bad = (window_checks.PRODUCT, "Not a valid number", 4)
        messages, result = self.messages("Right Cone", "--set", "box3=100", "--set", "box4=5x", "--set", "box5=40")
        self.assertEqual((messages, result.status), ([bad, bad], REFUSED))
        self.assertEqual(result.lines, ["Right Cone: box 4: Not a valid number"])

    def test_bad_number_of_another_type(self):
        good = ["--set", "box3=100", "--set", "box4=50", "--set", "box5=40"]
        messages, result = self.messages("Right Cone", *good, "--set", "box0=x")
        self.assertEqual((messages, result.status), ([(window_checks.PRODUCT, "Not a valid number", 0)], DONE))
        good = ["--set", "box0=100", "--set", "box1=50", "--set", "box2=60"]
        messages, result = self.messages("Truncated Right Cone", *good, "--set", "box26=-")
        self.assertEqual((messages, result.status), ([(window_checks.PRODUCT, "Not a valid number", 26)], REFUSED))

    def test_cone_angle_of_zero(self):
        for angle in ("0", "0.0", "-0", "1e-400"):
            messages, result = self.messages("Right Cone", "--type", "3", "--set", "box6=100", "--set", "box7=50",
                                             "--set", f"box8={angle}")
            self.assertEqual((messages, result.status), ([(window_checks.USER_ERROR, window_checks.ABOVE_ZERO, 8)], REFUSED))
            self.assertEqual(result.lines, ["Right Cone: box 8: " + window_checks.ABOVE_ZERO])

    def test_text_size(self):
        good = ["--set", "box0=100", "--set", "box1=50", "--set", "box2=60", "--set", "textsize=x"]
        bad = (window_checks.PRODUCT, "Not a valid number", None)
        messages, result = self.messages("Truncated Right Cone", *good)
        self.assertEqual((messages, result.status), ([bad, bad], REFUSED))
        messages, result = self.messages("Right Cone", "--type", "1", "--set", "box0=100", "--set", "box1=50",
                                         "--set", "box2=60", "--set", "textsize=x")
        self.assertEqual((messages, result.status), ([bad], DONE))

    def test_warnings_come_once(self):
        """A lap warning is one message, whatever view the outputs show."""
        # So flat a cone unrolls to nearly a full turn, and a wide tab runs over its first edge.
        good = ["--set", "box3=100", "--set", "box4=50", "--set", "box5=5", "--set", "JoinType=1"]
        for laps, expected in (({0: 500}, [TOP_LAP]), ({1: 30}, [SEAM_LAP]),
                               ({0: 30, 1: 30}, [TOP_LAP, SEAM_LAP])):
            options = [part for k, size in laps.items() for part in ("--set", f"LapSize{k}={size}")]
            for view in ("pattern", "model"):
                with self.subTest(laps=laps, view=view):
                    messages, result = self.messages("Right Cone", *good, *options, "--view", view)
                    self.assertEqual(messages, [(window_checks.PRODUCT, text, None) for text in expected])
                    self.assertEqual(result.status, DONE)
                    self.assertEqual(result.lines, ["Right Cone: " + text for text in expected])

    def test_sizes_at_the_end_of_arithmetic(self):
        """Sizes beyond what can be worked out are refused in words, and no number leaves that is none."""
        for sizes in (("1e308", "1e307", "1e308"), ("1e-300", "1e-305", "1e-300"), ("1e200", "1e-200", "1e200"),
                      ("1e-320", "1e-322", "1e300"), ("1e154", "1e153", "1e155"), ("1e308", "1", "1e-308")):
            for dtype in range(3):
                options = ["--type", str(dtype + 1)]
                for index, text in enumerate(sizes):
                    options += ["--set", f"box{3 * dtype + index}={text}"]
                with self.subTest(sizes=sizes, dtype=dtype):
                    messages, result = self.messages("Right Cone", *options)
                    self.assertEqual(result.json["refused"], result.status == REFUSED)
                    self.assertEqual(result.json["refused"], bool(messages))
                    for name in ("model", "pattern"):
                        self.assertEqual(result.json[name] == [], result.json["refused"])
                    # The JSON or a drawing: it is the same fitting, and the same words refuse it.
                    drawn = run("--new", "Right Cone", *options, "--dxf", "/dev/null")
                    self.assertEqual((drawn.status, drawn.lines), (result.status, result.lines))


if __name__ == "__main__":
    unittest.main()
