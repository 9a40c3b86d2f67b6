"""Cases of fittings of equal sides, whose seam starts anew with the number of sides."""

from dataclasses import dataclass, replace

import fitting_cases
from batch_program import DONE, run, sets
from fitting_maths import deg_to_rad
from oracle_test import OracleTest
from window_checks import require_shape


@dataclass(frozen=True)
class Case(fitting_cases.Case):
    """Of a new window, or of a file that was saved from it. The first build of a new window is one with another number
    of sides, and puts the seam at 0; that of a file is not."""

    file: str = None

    def arguments(self):
        if self.file is None:
            return super().arguments()
        return [self.file, *sets(vars(self.settings).items())]

    def seam(self):
        return 0.0 if self.file is None else deg_to_rad(self.settings.JoinAngle)


def checked_sides(box, number):
    """The checks of a box with a number of sides."""
    box.integer(number)
    box.at_least(number, 3)


def sides_of(box, number):
    require_shape(box[number] <= 32767)
    return int(box[number])


class SidesTest(OracleTest):
    def check_opened(self, cases):
        """The fittings of new windows again, saved and opened, now with the seam of the settings. A file has no blanks
        round its texts."""
        opened = [replace(case, file=str(self.folder / f"{number}.Kvt"),
                          boxes=tuple((index, text.strip()) for index, text in case.boxes))
                  for number, case in enumerate(cases)]
        for new, old in zip(cases, opened):
            self.assertEqual(run(*new.arguments(), "--save", old.file).status, DONE)
        self.assertGreater(sum(case.seam() != 0 for case in opened), len(opened) // 2)
        self.check(opened)
