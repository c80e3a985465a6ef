"""Statistics of paired measurements: one of each side, taken one after the other."""

import math
import statistics


def bounds(ratios, doubt):
    """The median of `ratios`, between a lower and an upper bound of the true median. Each bound is wrong with
    a probability of at most `doubt`. Assumes no distribution of the noise: a ratio falls on either side of the
    true median with equal probability. With too few ratios for `doubt`, the bounds are 0 and infinity."""
    ordered = sorted(ratios)
    count = len(ordered)
    chance, outside = 0, 0
    while chance + math.comb(count, outside) / 2**count <= doubt:
        chance += math.comb(count, outside) / 2**count
        outside += 1
    if outside == 0:
        return 0, statistics.median(ordered), math.inf
    return ordered[outside - 1], statistics.median(ordered), ordered[count - outside]
