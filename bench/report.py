#!/usr/bin/python3
"""Runs the benchmark programs in the folder given and prints what they say as one table of ratios."""

import json
import os
import pathlib
import shutil
import statistics
import subprocess
import sys
import tempfile
import time


def google_benchmark(program, repetitions, time_name):
    """The medians of `program`'s benchmarks by name, from runs in random order."""
    out = subprocess.run(
        [program, "--benchmark_format=json", "--benchmark_enable_random_interleaving=true",
         f"--benchmark_repetitions={repetitions}", "--benchmark_min_time=0.05",
         "--benchmark_report_aggregates_only=true"],
        check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout
    return {row["run_name"].removesuffix("/manual_time"): row[time_name]
            for row in json.loads(out)["benchmarks"] if row["aggregate_name"] == "median"}


class Table:
    def __init__(self):
        self.rows = []

    def add(self, what, ours, peer, peer_name, goal, text):
        """`goal`: how many times less than the peer's ours is to be; None where there is none."""
        ratio = peer / ours
        if goal is None:
            verdict = ""
        else:
            verdict = "ok" if ratio >= goal else "missed"
        self.rows.append((what, text(ours), f"{text(peer)} ({peer_name})", f"{ratio:.1f}",
                          "" if goal is None else f"{goal:g}", verdict))

    def note(self, what, ours, verdict=""):
        self.rows.append((what, ours, "", "", "", verdict))

    def print(self, markdown):
        head = ("what", "ours", "peer", "times less", "goal", "")
        if markdown:
            for row in (head, ("---",) * len(head), *self.rows):
                print("| " + " | ".join(row) + " |")
            return
        widths = [max(len(row[i]) for row in (head, *self.rows)) for i in range(len(head))]
        for row in (head, *self.rows):
            print("  ".join(cell.ljust(width) for cell, width in zip(row, widths)).rstrip())


def nanoseconds(value):
    return f"{value:.0f} ns"


def microseconds(value):
    return f"{value:.1f} µs"


def milliseconds(value):
    return f"{value:.1f} ms"


def kilobytes(value):
    return f"{value / 1000:.1f} kB"


def tokens(table, folder, quick):
    times = google_benchmark(folder / "token_benchmark", 5 if quick else 15, "cpu_time")
    for kind, name in (("small", "token to figures"), ("full", "… with the usual other claims")):
        table.add(name, times[f"ours/{kind}"], times[f"withQt/{kind}"], "Qt base64 + JSON", 3, nanoseconds)


def painting(table, folder, quick):
    times = google_benchmark(folder / "paint_benchmark", 5 if quick else 15, "real_time")
    row_peers = (("ScoreRow", "QML, RowLayout", 10), ("LeanScoreRow", "QML, anchors", 10),
                 ("labels", "labels in a layout", 5))
    info_peers = (("InfoWidget", "QML, anchors", 10), ("labels", "labels in a layout", 5))
    kinds = (("same", "row", "one shopper's rows", "same", row_peers),
             ("different", "row", "each row another shopper's", "different", row_peers),
             ("declarative", "info widget", "declarative", "info", info_peers),
             ("imperative", "info widget", "imperative", "info", info_peers))
    for kind, widget, which, peers_kind, peers in kinds:
        for surface, where in (("oursInPicture", "a picture"), ("oursInWindow", "a window's frame")):
            for peer, name, goal in peers:
                table.add(f"builder to painted {widget}, {where}, {which}", times[f"{surface}/{kind}"],
                          times[f"{peer}/{peers_kind}"], name, goal, microseconds)


def live_widgets(folder, kind, count):
    out = subprocess.run([folder / "live_widgets", *kind, str(count)], check=True, capture_output=True)
    return json.loads(out.stdout)


def memory(table, folder, quick):
    row, counts = ("row", "ours"), (1000, 10000)
    peers = {row: ((("row", "ScoreRow"), "QML, RowLayout", 5), (("row", "LeanScoreRow"), "QML, anchors", 5),
                   (("row", "labels"), "labels in a layout", None))}
    for form in ("declarative", "imperative"):
        peers[form, "ours"] = ((("declarative", "InfoWidget"), "QML, anchors", 5),
                               (("declarative", "labels"), "labels in a layout", None))
    kinds = dict.fromkeys(kind for ours in peers for kind in (ours, *(peer[0] for peer in peers[ours])))
    # The kinds take turns, so that what else the machine does meets all of them.
    runs = {}
    for _ in range(1 if quick else 3):
        for kind in kinds:
            for count in counts if kind[0] == "row" else counts[:1]:
                runs.setdefault((kind, count), []).append(live_widgets(folder, kind, count))

    def median(kind, count, what):
        return statistics.median(run[what] for run in runs[kind, count])

    for ours, those in peers.items():
        name = "row" if ours == row else f"{ours[0]} info widget"
        for count in counts if ours == row else counts[:1]:
            for peer, peer_name, goal in those:
                for what in ("heap", "resident"):
                    table.add(f"memory of a live {name}, of {count}, {what}", median(ours, count, what),
                              median(peer, count, what), peer_name, goal, kilobytes)

    def growth(kind):
        return median(kind, 10000, "heap") / median(kind, 1000, "heap")

    def last_to_first(kind):
        ratios = []
        for run in runs[kind, 10000]:
            tenth = len(run["chunks"]) // 10
            ratios.append(statistics.median(run["chunks"][-tenth:])
                          / statistics.median(run["chunks"][:tenth]))
        return statistics.median(ratios)

    qml = ("row", "ScoreRow")
    table.note("memory of a row among 10000 to one among 1000",
               f"{growth(row):.2f} (QML {growth(qml):.2f})", "ok" if growth(row) < 1.1 else "missed")
    table.note("time of the last thousand rows made to the first, of 10000",
               f"{last_to_first(row):.2f} (QML {last_to_first(qml):.2f})",
               "ok" if last_to_first(row) < 1.25 else "missed")


def updates(table, folder):
    """One row's update among a thousand. Returns whether it stayed with that row."""
    run = subprocess.run([folder / "update_check"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                         text=True)
    for line in run.stdout.splitlines():
        row = json.loads(line)
        own, others = row["own"], row["others"]
        counts = (f"own row {own[0]} evaluated, {own[2]} painted; the other {row['rows'] - 1} rows "
                  f"{others[0]}, {others[2]}; at rest nothing" if row["idle"] else "not idle")
        table.note(f"one row's update among {row['rows']}, {row['surface']}", counts,
                   "ok" if run.returncode == 0 else "missed")
    return run.returncode == 0


def first_frame(program):
    """Milliseconds from the start of the process to its first frame."""
    read, write = os.pipe()
    start = time.clock_gettime_ns(time.CLOCK_MONOTONIC)
    child = os.posix_spawn(program, [program], os.environ,
                           file_actions=[(os.POSIX_SPAWN_DUP2, write, 1), (os.POSIX_SPAWN_CLOSE, read)])
    os.close(write)
    with os.fdopen(read) as pipe:
        moment = int(pipe.read())
    os.waitpid(child, 0)
    return (moment - start) / 1e6


def starts(table, folder, quick):
    times = {"start_ours": [], "start_qml": [], "start_bare": []}
    for _ in range(7 if quick else 25):
        for program, taken in times.items():
            taken.append(first_frame(folder / program))
    ours, qml, bare = (statistics.median(taken) for taken in times.values())
    table.add("process start to first painted row, item in a window", ours, qml, "QML window", 2,
              milliseconds)
    table.note("… of which an empty window and Qt's list of the fonts", f"{milliseconds(bare)} for both")


def overlays(table, folder, quick):
    """The first overlay beside a bare web view. Without the engine there is nothing to compare."""
    runs = {"overlay_ours": [], "overlay_bare": []}
    for _ in range(3 if quick else 9):
        for program, taken in runs.items():
            out = subprocess.run([folder / program], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
            if out.returncode != 0:
                table.note("tap to the overlay's first frame", "no web engine here")
                return
            taken.append(json.loads(out.stdout))

    def median(program, state, what):
        return statistics.median(run[state][what] for run in runs[program])

    for state in ("cold", "warm"):
        for what, name in (("overlay", "the sheet's first frame"), ("page", "the first frame with its page")):
            table.add(f"tap to {name}, engine {state}", median("overlay_ours", state, what),
                      median("overlay_bare", state, "page"), "bare web view", None, milliseconds)


def size(table, folder):
    """What the core adds to a program: a stripped one that builds a row and prints its tree."""
    with tempfile.TemporaryDirectory() as scratch:
        stripped = pathlib.Path(shutil.copy(folder / "core_only", scratch))
        subprocess.run(["strip", stripped], check=True)
        sections = subprocess.run(["size", "--format=sysv", stripped], check=True, capture_output=True,
                                  text=True).stdout
        file = stripped.stat().st_size
    text = next(int(line.split()[1]) for line in sections.splitlines() if line.startswith(".text"))
    table.note("a stripped program that links the core alone",
               f"{kilobytes(file)}, {kilobytes(text)} of it code; fonts and pictures are in it")


def main():
    folder = pathlib.Path(sys.argv[1])
    quick = "--quick" in sys.argv
    table = Table()
    tokens(table, folder, quick)
    painting(table, folder, quick)
    memory(table, folder, quick)
    contained = updates(table, folder)
    starts(table, folder, quick)
    overlays(table, folder, quick)
    size(table, folder)
    table.print("--table" in sys.argv)
    return 0 if contained else 1


if __name__ == "__main__":
    sys.exit(main())
