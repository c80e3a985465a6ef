#!/usr/bin/python3
"""Runs the benchmark programs of a build and prints the results as one table.

bench/report.py BUILD [--table | --readme] [--quick]
"""

import json
import pathlib
import re
import shutil
import statistics
import subprocess
import sys

from programs import Build

HEAD = ("what", "ours", "peer", "ratio (peer ÷ ours)", "aim")
COUNT_AIMS = ((25, 30_000), (60, 75_000), (110, 185_000))  # allocations, instructions
PAGE = "docs/benchmarks.md"  # has the whole table
IN_README = ("builder to painted row, a window's frame", "memory of a live row, of 10 000",
             "cold start: process start to a window's first frame, a row in it")
MARK = re.compile(r"(<!-- bench -->\n).*?(\n<!-- /bench -->)", re.DOTALL)


def nanoseconds(value):
    return f"{value:.0f} ns"


def microseconds(value):
    return f"{value:.1f} µs" if value < 100 else f"{value:.0f} µs"


def milliseconds(value):
    return f"{value:.1f} ms" if value < 100 else f"{value:.0f} ms"


def millions(value):
    return f"{value / 1e6:.1f} million"


def kilobytes(value):
    return f"{value / 1000:.1f} kB" if value < 100_000 else f"{value / 1000:.0f} kB"


class Table:
    def __init__(self):
        self.rows = []

    def add(self, what, ours, peer, peer_name, aim, text):
        """`aim`: the ratio (peer ÷ ours) to reach; None without one."""
        ratio = peer / ours
        met = "" if aim is None else f"{aim:.2g}" if ratio >= aim else f"{aim:.2g}, missed"
        self.rows.append((what, text(ours), f"{text(peer)}, {peer_name}",
                          f"{ratio:.1f}" if ratio >= 1 else f"{ratio:.2f}", met))

    def note(self, what, ours, met=""):
        self.rows.append((what, ours, "", "", met))

    def markdown(self, only=None):
        rows = [row for row in self.rows if only is None or row[0] in only]
        return "\n".join("| " + " | ".join(row) + " |" for row in (HEAD, ("---",) * len(HEAD), *rows))

    def text(self):
        rows = (HEAD, *self.rows)
        widths = [max(len(row[i]) for row in rows) for i in range(len(HEAD))]
        return "\n".join("  ".join(cell.ljust(width) for cell, width in zip(row, widths)).rstrip()
                         for row in rows)


def counted(table, build):
    found = list(build.counts().items())
    for (name, amount), aim in zip(found, [aim for pair in COUNT_AIMS for aim in pair] if len(found) == 6 else
                                   [pair[0] for pair in COUNT_AIMS]):
        table.note(name, f"{amount:,.0f}", f"{aim:,}" if amount <= aim else f"{aim:,}, missed")


def tokens(table, build, quick):
    times = build.google_benchmark("token_benchmark", "cpu_time", statistics.median, "small", 5 if quick else 15)
    table.add("token to figures", times["ours/small"], times["withQt/small"], "Qt's base64 and JSON", 3,
              nanoseconds)


def painting(table, build, quick):
    times = build.google_benchmark("paint_benchmark", "real_time", statistics.median,
                                   "ours|labels|LeanScoreRow|InfoWidget|bareImage", 5 if quick else 15)
    row, info = "builder to painted row", "builder to painted info widget"
    qml, labels = ("QML", 10), ("labels in a layout", 5)
    for what, ours, peer, (name, aim) in (
            (f"{row}, a picture", "oursInPicture/same", "LeanScoreRow/same", qml),
            ("the same", "oursInPicture/same", "labels/same", labels),
            ("… each row another shopper's", "oursInPicture/different", "LeanScoreRow/different", qml),
            ("the same", "oursInPicture/different", "labels/different", labels),
            (f"{row}, a window's frame", "oursInWindow/same", "LeanScoreRow/same", qml),
            ("the same", "oursInWindow/same", "bareImage/same", ("an image item alone", 1 / 3.5)),
            ("… each row another shopper's", "oursInWindow/different", "LeanScoreRow/different", qml),
            ("the same", "oursInWindow/different", "bareImage/different", ("an image item alone", 1 / 8)),
            (f"{info}, a picture", "oursInPicture/declarative", "InfoWidget/info", qml),
            ("the same", "oursInPicture/declarative", "labels/info", labels),
            ("… the imperative one", "oursInPicture/imperative", "InfoWidget/info", qml),
            (f"{info}, a window's frame", "oursInWindow/declarative", "InfoWidget/info", qml),
            ("… the imperative one", "oursInWindow/imperative", "InfoWidget/info", qml)):
        table.add(what, times[ours], times[peer], name, aim, microseconds)


def memory(table, build, quick):
    kinds = (("row", "ours", 10000), ("row", "LeanScoreRow", 10000), ("row", "ours", 1000),
             ("declarative", "ours", 1000), ("imperative", "ours", 1000), ("declarative", "InfoWidget", 1000))
    # Alternate the kinds, so that other work of the machine affects all of them.
    runs = {}
    for _ in range(1 if quick else 3):
        for kind in kinds:
            runs.setdefault(kind, []).append(build.live_widgets(*kind))

    def median(kind):
        return statistics.median(run["heap"] for run in runs[kind])

    many, peer, few, declarative, imperative, info = kinds
    table.add("memory of a live row, of 10 000", median(many), median(peer), "QML", 5, kilobytes)
    table.add("memory of a live info widget, of 1000", median(declarative), median(info), "QML", 5,
              kilobytes)
    table.add("… the imperative one", median(imperative), median(info), "QML", 5, kilobytes)

    def last_to_first(run):
        tenth = len(run["chunks"]) // 10
        return statistics.median(run["chunks"][-tenth:]) / statistics.median(run["chunks"][:tenth])

    growth, slowing = median(many) / median(few), statistics.median(map(last_to_first, runs[many]))
    met = growth <= 1.1 and slowing <= 1.25
    table.note("10 000 rows to 1000: memory of each; the last thousand's time to the first's",
               f"{growth:.2f}; {slowing:.2f}", "1.1; 1.25" if met else "1.1; 1.25, missed")


def starts(table, build, quick):
    times = {"start_ours": [], "start_qml": [], "start_bare": []}
    for _ in range(7 if quick else 25):
        for program, taken in times.items():
            taken.append(build.start(program)[0])
    ours, qml, bare = (statistics.median(taken) for taken in times.values())
    table.add("cold start: process start to a window's first frame, a row in it", ours, qml, "QML", 2,
              milliseconds)
    table.add("… the row's share, without an empty window and Qt's list of fonts", ours - bare, qml - bare,
              "QML", None, milliseconds)
    if shutil.which("valgrind"):
        row, texts = (build.instructions(program) for program in ("start_ours", "start_texts"))
        table.add("… its instructions, from process start", row, texts, "the three texts by Qt alone", 1 / 1.15,
                  millions)


def turns(count, runs):
    """Runs all of `runs`, each a name and a function, `count` times in turns."""
    taken = {name: [] for name in runs}
    for _ in range(count):
        for name, run in runs.items():
            taken[name].append(run())
    return lambda name, state, what: statistics.median(run[state][what] for run in taken[name])


def sheets(table, build, quick):
    median = turns(3 if quick else 9, {
        "motion": lambda: build.sheet("ours", "motion"), "still": lambda: build.sheet("ours", "still"),
        "peer": lambda: build.sheet("qml", "still")})
    for kind, what in (("motion", "tap to the sheet's first frame"),
                       ("still", "tap to the sheet at rest, without motion")):
        for state, when in (("cold", f"{what}, first time"), ("warm", "… every later time")):
            table.add(when, median(kind, state, "first"), median("peer", state, "first"), "a popup in QML",
                      None, milliseconds)


def lists(table, build, quick):
    """Scrolls 500 rows from end to end on a display, with the GPU renderer (here in software) on its own thread."""
    if not shutil.which("Xvfb"):
        table.note("a list of 500, scrolled", "no display here")
        return
    median = turns(1 if quick else 5, {
        rows: lambda rows=rows: {"list": build.frames(rows)} for rows in ("ours", "peer", "empty")})
    ours, peer, empty = (median(rows, "list", "over") for rows in ("ours", "peer", "empty"))
    table.note(f"a list of 500 scrolled, its {median('ours', 'list', 'frames')} frames: over 8 ms",
               f"{ours}; an empty list {empty}; QML {peer}", "the empty list's" if ours <= empty else
               "the empty list's, missed")
    requests = median("ours", "list", "requests")
    table.note("… requests in all, after `prefetch`", f"{requests}", "1" if requests == 1 else "1, missed")


def overlays(table, build, quick):
    """The first overlay compared with a bare web view. Without the engine there is nothing to compare."""
    try:
        median = turns(3 if quick else 9, {
            name: lambda name=name: json.loads(build.run(f"overlay_{name}")) for name in ("ours", "bare")})
    except subprocess.CalledProcessError:
        table.note("tap to the overlay's first frame", "no web engine here")
        return
    for what, state, shown in (("tap to the overlay's first frame, first time", "cold", "overlay"),
                               ("tap to the frame with its page, first time", "cold", "page"),
                               ("… every later time", "warm", "page")):
        table.add(what, median("ours", state, shown), median("bare", state, "page"), "a bare web view", None,
                  milliseconds)


def sizes(table, build):
    names = {"core": "size of the core, stripped, fonts and pictures in it", "engine": "… of the Qt engine",
             "quick": "… of the Qt Quick surface", "widgets": "… of the Qt Widgets surface",
             "qml": "… of the QML module", "web quick": "… of the web engine's component for Qt Quick",
             "web widgets": "… of that for Qt Widgets"}
    found = build.sizes()
    for name, what in names.items():
        table.note(what, kilobytes(found[name]) if name in found else "not built here")


def updates_stay_put(build):
    """Whether the update of one row among a thousand changes only that row."""
    try:
        build.run("update_check")
    except subprocess.CalledProcessError as failure:
        print(f"One row's update touched others:\n{failure.stdout}", file=sys.stderr)
        return False
    return True


def write(path, markdown):
    text, places = MARK.subn(lambda found: found[1] + markdown + found[2], path.read_text())
    if places != 1:
        sys.exit(f"bench: {path} has no place for the table")
    path.write_text(text)


def main():
    build, quick = Build(sys.argv[1]), "--quick" in sys.argv
    pages = pathlib.Path("README.md").resolve(), pathlib.Path(PAGE).resolve()
    table = Table()
    contained = updates_stay_put(build)
    counted(table, build)
    tokens(table, build, quick)
    painting(table, build, quick)
    memory(table, build, quick)
    starts(table, build, quick)
    sheets(table, build, quick)
    lists(table, build, quick)
    overlays(table, build, quick)
    sizes(table, build)
    if "--readme" in sys.argv:
        write(pages[0], table.markdown(IN_README))
        write(pages[1], table.markdown())
    else:
        print(table.markdown() if "--table" in sys.argv else table.text())
    return 0 if contained else 1


if __name__ == "__main__":
    sys.exit(main())
