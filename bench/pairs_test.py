"""Checks of pairs.py with made-up numbers."""

import random
import unittest

from pairs import bounds


def ratios(slowdown, noise, rounds=16):
    chance = random.Random(5)
    return [slowdown * chance.lognormvariate(0, noise) for _ in range(rounds)]


class Bounds(unittest.TestCase):
    def test_what_is_found_and_what_is_noise(self):
        for slowdown, noise, found in ((1, 0, False), (1, 0.2, False), (1.1, 0.01, True),
                                       (1.3, 0.1, True), (1.04, 0.1, False), (1.02, 0.001, False)):
            low, _, high = bounds(ratios(slowdown, noise), 0.003)
            self.assertEqual(low > 1.03, found, (slowdown, noise))
            self.assertTrue(low <= slowdown <= high)

    def test_an_odd_run_changes_nothing(self):
        self.assertLess(bounds([1] * 14 + [9, 9], 0.003)[0], 1.03)
        self.assertGreater(bounds([1.2] * 14 + [0.1, 0.1], 0.003)[0], 1.03)

    def test_too_few_rounds_say_nothing(self):
        self.assertEqual(bounds([2] * 8, 0.003)[0], 0)

    def test_faults_found_without_cause_are_as_rare_as_asked(self):
        chance = random.Random(7)
        wrong = sum(bounds([chance.lognormvariate(0, 0.1) for _ in range(16)], 0.05)[0] > 1
                    for _ in range(2000))
        self.assertLess(wrong / 2000, 0.06)


if __name__ == "__main__":
    unittest.main()
