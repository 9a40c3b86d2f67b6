"""Compares what korvet-batch says of a case, number by number, with what was worked out a second time."""

import datetime
import os

import fitting_cases
from batch_program import DONE, REFUSED, FolderTest, run_all
from fitting_maths import LISTS, Settings
from window_checks import IMPOSSIBLE, PRODUCT, as_list

TOLERANCE = 1e-9


def shown(case):
    extra = [str(part) for part in (case.options, case.select, case.view) if part not in ((), None, "pattern")]
    chosen = [f"{name}={value}" for name, value in vars(case.settings).items() if value != vars(Settings())[name]]
    return " ".join([f"{case.category} type {case.dtype + 1} {dict(case.boxes)}", *chosen, *extra])


def near(a, b):
    return abs(a - b) <= TOLERANCE * max(1.0, abs(a), abs(b))


class Comparison:
    """What differs between the program's JSON for one input and the expected answer."""

    def __init__(self, report, answer):
        self.faults = []
        self.equal("refused", report["refused"], answer.refused)
        self.equal("messages", [(m["title"], m["text"], m["box"]) for m in report["messages"]], answer.messages)
        for name in ("model", "pattern"):
            expected = as_list(getattr(answer, name))
            if len(report[name]) != len(expected):
                self.faults.append(f"{name}: {len(report[name])} surfaces instead of {len(expected)}")
                continue
            for number, pair in enumerate(zip(report[name], expected), start=1):
                self.surface(f"{name} {number}", *pair)
        if not answer.refused:
            self.labels(report["labels"], answer.labels)

    def equal(self, what, got, expected):
        if got != expected:
            self.faults.append(f"{what}: {got} instead of {expected}")

    def labels(self, got, expected):
        self.equal("labels", got[:-1], expected[:-1])
        dates = [datetime.date.today() - datetime.timedelta(days=days) for days in (0, 1)]
        ends = {expected[-1] + f"{date.day} {date:%b} {date.year}" for date in dates}
        if got[-1:] == [] or got[-1] not in ends:
            self.faults.append(f"last label {got[-1:]} instead of {ends}")

    def surface(self, name, got, expected):
        for part in LISTS:
            self.points(f"{name} {part}", got[part], getattr(expected, part))
        self.equal(f"{name} RefPointDisplay", got["RefPointDisplay"], expected.RefPointDisplay)
        reference, point = expected.RefPoint, got["RefPoint"]
        if reference is None or point is None or not all(near(a, b) for a, b in zip(point, reference)):
            self.equal(f"{name} RefPoint", point, reference)

    def points(self, name, got, expected):
        if got is None or expected is None or len(got) != len(expected):
            self.equal(name, None if got is None else len(got), None if expected is None else len(expected))
            return
        for number, (p, q) in enumerate(zip(got, expected), start=1):
            if p[3] != q[3] or not all(near(a, b) for a, b in zip(p[:3], q[:3])):
                self.faults.append(f"{name} point {number}: {p} instead of {q}")
                return


class OracleTest(FolderTest):
    def check(self, cases):
        """Runs new windows for the cases and compares all that they say. With KORVET_SHARE=N for every N-th of them: where
        the program is slow, and every case has been compared with a quick one."""
        cases = cases[::int(os.environ.get("KORVET_SHARE", "1"))]
        faults = []
        for case, result in zip(cases, run_all([case.arguments() + ["--json", "-"] for case in cases])):
            answer = case.answer()
            found = Comparison(result.json, answer).faults
            if result.status != (REFUSED if answer.refused else DONE):
                found.append(f"status {result.status}")
            if found:
                faults.append("\n  ".join([shown(case), *found[:6]]))
        self.tell(faults, cases)

    def tell(self, faults, cases):
        if faults:
            self.fail(f"{len(faults)} of {len(cases)} differ\n" + "\n".join(faults[:8]))

    def check_variety(self, cases, *wanted):
        """Random cases, among which every kind of settings must be: the common ones and what else is wanted."""
        common = (lambda s: s.HalfPattern, lambda s: s.JoinType and s.LapSize1 > 0, lambda s: s.segs % 2,
                  lambda s: s.JoinAngle != 0, lambda s: s.InOutMean == 1, lambda s: s.InOutMean == 2)
        for number, is_wanted in enumerate(common + wanted):
            self.assertGreater(sum(1 for case in cases if is_wanted(case.settings)), 5, f"kind {number}")
        self.check(cases)

    def check_impossible(self, cases):
        """They pass every check, and then there is no shape or none that could be made."""
        for case in cases:
            self.assertEqual(case.answer().messages, [(PRODUCT, IMPOSSIBLE, None)], shown(case))
        self.check(cases)

    def check_limits(self, cases, never=()):
        """The boxes of sound cases at every limit and beside it. Every check must be seen to refuse something,
        or it is not tested here; only the checks (category, dtype, kind, box) of `never` cannot."""
        made, refused, limits = set(), set(), []
        for case in cases:
            limits += fitting_cases.limit_cases(case)
        for case in limits:
            answer = case.answer()
            names = [(case.category, case.dtype, kind, box) for kind, box, _ in answer.checks]
            made.update(names)
            if answer.refused and names:
                refused.add(names[-1])
        self.assertEqual(made - refused, set(never))
        self.check(limits)

    def check_order(self, cases):
        """Where two boxes are at fault, the one whose check comes first speaks."""
        faulty = []
        for case in cases:
            faulty += fitting_cases.mended_cases(case)
            faulty += fitting_cases.pair_cases(case)
        self.assertGreater(sum(case.answer().refused for case in faulty), 3 * len(cases))
        self.check(faulty)
