"""What pairs of measurements, one of each side taken one after the other, say about the sides."""

import math
import statistics


def bounds(ratios, doubt):
    """The median of `ratios`, and between what the true one lies: that it lies below the first has a
    chance of at most `doubt`, and that it lies above the last. Asks nothing of how noise is distributed:
    a ratio falls on either side of the true median as a coin does. Too few say nothing: 0 and infinity."""
    ordered = sorted(ratios)
    count = len(ordered)
    chance, outside = 0, 0
    while chance + math.comb(count, outside) / 2**count <= doubt:
        chance += math.comb(count, outside) / 2**count
        outside += 1
    if outside == 0:
        return 0, statistics.median(ordered), math.inf
    return ordered[outside - 1], statistics.median(ordered), ordered[count - outside]
