#!/usr/bin/python3
"""Runs the benchmark programs of two builds in turns. Fails if the second build is significantly worse.

bench/compare.py BUILD-BEFORE BUILD-NOW [--quick]
"""

import os
import statistics
import sys

from pairs import bounds
from programs import Build

SLOWER = 1.03  # tolerated ratio of times: a different order of the code alone changes times that much
LARGER = 1.02  # tolerated ratio of counts
DOUBT = 0.05   # probability that any bound of the times is wrong although the times are equal


def times(build):
    """Processor times by benchmark: the minimum of a few short runs, which contains the least of other work.
    Short runs keep the two builds of a pair close in time, and allow many pairs."""
    found = {f"token, {name.removeprefix('ours/')}": value / 1000 for name, value in
             build.google_benchmark("token_benchmark", "cpu_time", min, "^ours", 10, 0.005).items()}
    found |= {name.replace("oursIn", "").lower().replace("/", ", "): value for name, value in
              build.google_benchmark("paint_benchmark", "real_time", min, "^ours", 10, 0.005).items()}
    found["cold start"] = 1000 * min(build.start("start_ours")[1] for _ in range(3))
    if build.has("sheet_open"):
        sheet = build.sheet("ours", "still")
        found |= {f"sheet, {state}": 1000 * sheet[state]["work"] for state in ("cold", "warm")}
    return found


def amounts(build):
    found = {f"heap, {of}": build.live_widgets(of, "ours", 1000)["heap"]
             for of in ("row", "declarative", "imperative")}
    return found | {f"size, {name}": size for name, size in build.sizes().items()}


def counts(build):
    """Empty for a revision that has no counting program yet."""
    return build.counts() if build.has("counted_picture") else {}


def compare_times(before, now, rounds):
    taken = {before: [], now: []}
    for number in range(rounds):
        print(f"round {number + 1} of {rounds}", file=sys.stderr)
        for build in (before, now) if number % 2 == 0 else (now, before):
            taken[build].append(times(build))
    names = sorted(taken[now][0].keys() & taken[before][0].keys())
    for name in names:
        pairs = [(one[name], other[name]) for one, other in zip(taken[before], taken[now])]
        low, middle, high = bounds([new / old for old, new in pairs], DOUBT / len(names))
        verdict = "slower" if low > SLOWER else "faster" if high < 1 / SLOWER else ""
        old, new = (statistics.median(values) for values in zip(*pairs))
        yield name, f"{old:.2f} µs", f"{new:.2f} µs", middle, f"{low:.3f} to {high:.3f}", verdict


def compare_amounts(before, now, amounts, unit):
    old, new = amounts(before), amounts(now)
    for name in (name for name in new if name in old):
        ratio = new[name] / old[name]
        verdict = "larger" if ratio > LARGER else "smaller" if ratio < 1 / LARGER else ""
        yield name, f"{old[name]:.0f}{unit}", f"{new[name]:.0f}{unit}", ratio, "", verdict


def main():
    before, now = Build(sys.argv[1]), Build(sys.argv[2])
    os.environ["QT_HASH_SEED"] = "0"
    os.sched_setaffinity(0, {max(os.sched_getaffinity(0))})
    # Start with the counts, because the machine's load does not change them.
    rows = [*compare_amounts(before, now, counts, ""), *compare_amounts(before, now, amounts, " B"),
            *compare_times(before, now, 16 if "--quick" in sys.argv else 40)]
    for name, old, new, ratio, spread, verdict in (("", "before", "now", "ratio", "surely", ""), *rows):
        ratio = ratio if isinstance(ratio, str) else f"{ratio:.3f}"
        print(f"{name:44} {old:>12} {new:>12} {ratio:>6}  {spread:16} {verdict}".rstrip())
    worse = [row for row in rows if row[-1] in ("slower", "larger")]
    for name, old, new, ratio, _, verdict in worse:
        print(f"bench: {name} is {verdict}: {old} before, {new} now, {ratio:.3f} times", file=sys.stderr)
    return 1 if worse else 0


if __name__ == "__main__":
    sys.exit(main())
