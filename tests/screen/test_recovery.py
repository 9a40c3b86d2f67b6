"""The program is killed at random moments while somebody types, and started again: what was typed comes back.

    KORVET=PROGRAM [KORVET_KILLS=12] tests/screen/on_a_screen /usr/bin/python3 tests/screen/test_recovery.py
"""
import os
import random
import time
import unittest

from korvet_screen import BASE, HEIGHT, TITLE, TOP, ScreenTest

KILLS = int(os.environ.get("KORVET_KILLS", 12))
MOST_LOST = 10.0  # seconds of typing


class Recovery(ScreenTest):
    def begin_again(self):
        """A start after a bad end, up to its offer."""
        screen = self.start_again()
        screen.find("What was not saved")
        return screen

    def start_again(self):
        self.stop()
        self.screen = self.another()
        self.screen.pass_splash()
        return self.screen

    def choose(self, button):
        self.screen.click(button, "push button")
        self.screen.wait_gone("What was not saved")
        self.screen.wait_active("Main window")

    def kill(self):
        self.screen.process.kill()
        self.screen.process.wait()

    def type_until_killed(self, box):
        """Types one number after the other; the times at which each stood in its box. The kill comes at random."""
        screen = self.screen
        typed = []
        end = time.monotonic() + random.uniform(0.2, 5)
        number = random.randrange(100, 900)
        while time.monotonic() < end:
            screen.fill(box, str(number))
            typed.append((time.monotonic(), str(number)))
            number += 1
            screen.settle(random.uniform(0, 0.4))
        self.kill()
        return time.monotonic(), typed

    def check_box(self, box, before, killed, typed):
        """What stands in the box was typed, or stood there before. Returns how long ago what is missing was typed."""
        found = self.screen.read(box)
        if found == before:
            lost = typed
        else:  # the copy may be of the moment at which only a part of a number was there
            places = [i for i, (_, text) in enumerate(typed) if text.startswith(found)]
            self.assertTrue(found and places, f"{found!r} was never typed")
            lost = typed[places[-1]:] if typed[places[-1]][1] != found else typed[places[-1] + 1:]
        return killed - lost[0][0] if lost else 0.0

    def test_kills_at_random_moments(self):
        screen = self.run_to_frame()
        screen.new_cone()
        screen.fill_cone("300", "150", "250")
        screen.settle(5)  # the first copy is made within this time
        lost = []
        for kill in range(KILLS):
            box = random.choice((BASE, TOP, HEIGHT))
            before = self.screen.read(box)
            others = [name for name in (BASE, TOP, HEIGHT) if name != box]
            others_were = [self.screen.read(name) for name in others]
            killed, typed = self.type_until_killed(box)
            screen = self.begin_again()
            self.choose("Open All")
            screen.wait(lambda: len(screen.children()) == 1, "window as it was")
            with self.subTest(kill=kill, typed=typed[-5:]):
                lost.append(self.check_box(box, before, killed, typed))
                self.assertEqual([screen.read(name) for name in others], others_were)
        self.assertLess(max(lost), MOST_LOST)
        print(f"{KILLS} kills: at most {max(lost):.1f} s of typing lost, on average {sum(lost) / len(lost):.1f} s")
        # A window as it was is a window as any other.
        screen.fill_cone("300", "150", "250")
        screen.key("ctrl+0")
        screen.wait_drawing("Flat pattern")
        screen.picture("recovered")

    def test_the_offer(self):
        screen = self.run_to_frame()
        screen.new_cone()
        screen.fill_cone("300", "150", "250")
        screen.settle(5)
        self.kill()
        screen = self.begin_again()
        screen.picture("recovery-offer")
        self.choose("Later")
        self.assertEqual(screen.children(), [])
        screen.key("alt+f", "x")
        self.assertEqual(screen.wait_end(), 0)
        self.begin_again()
        self.choose("Open All")
        self.screen.wait(lambda: len(self.screen.children()) == 1, "window as it was")
        self.assertEqual(self.screen.cone_boxes(), ["300", "150", "250"])
        self.screen.picture("recovery-opened")
        self.kill()
        self.begin_again()
        self.choose("Open None and Delete")
        self.assertEqual(self.screen.children(), [])
        self.screen.key("alt+f", "x")
        self.assertEqual(self.screen.wait_end(), 0)
        self.start_again()
        self.screen.wait_active("Main window")
        kept = self.folder / "state" / TITLE / "recovery"
        self.assertEqual(list(kept.iterdir()), [])


if __name__ == "__main__":
    unittest.main()
