"""What pairs of measurements, one of each side taken one after the other, say about the sides."""

import math
import statistics


def bounds(ratios, doubt):
    """The median of `ratios` between the bounds of the true one, each of which is wrong with a chance of at
    most `doubt`. Asks nothing of how noise is distributed: a ratio falls on either side of the true median
    as a coin does. Ratios that are too few for `doubt` are bounded by 0 and infinity."""
    ordered = sorted(ratios)
    count = len(ordered)
    chance, outside = 0, 0
    while chance + math.comb(count, outside) / 2**count <= doubt:
        chance += math.comb(count, outside) / 2**count
        outside += 1
    if outside == 0:
        return 0, statistics.median(ordered), math.inf
    return ordered[outside - 1], statistics.median(ordered), ordered[count - outside]
