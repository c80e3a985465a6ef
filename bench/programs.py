"""Runs the benchmark programs of one build and returns their results as numbers."""

import json
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import time

# The files that a host links or ships, as built: archives, and libraries that are loaded.
COMPONENTS = {"core": "libQuorixWidgets.a", "engine": "libQuorixQt.a", "quick": "libQuorixQuick.a",
              "widgets": "libQuorixQtWidgets.a", "qml": "libQuorixQml.a",
              "web quick": "quorix/libQuorixWebQuick.so", "web widgets": "quorix/libQuorixWebWidgets.so"}

ON_DISPLAY = pathlib.Path(__file__).resolve().parent.parent / "tests/qt/on_display.sh"

# Programs that repeat one operation, for counting.
COUNTED = {"the core's pass over a row": ("core_pass",),
           "builder to a row's picture": ("counted_picture", "same"),
           "… each row another shopper's": ("counted_picture", "different")}
COUNTED_CALLS = 500


class Build:
    """The programs in `folder`/bench. They run there under a short name, because the length of the path moves a
    program's stack and changes its speed."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder).resolve()

    def has(self, program):
        return (self.folder / "bench" / program).exists()

    def run(self, program, *arguments):
        return subprocess.run([f"./{program}", *arguments], cwd=self.folder / "bench", check=True,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True).stdout

    def google_benchmark(self, program, time_name, pick, only=".", repetitions=15, seconds=0.05):
        """For each benchmark of `program`, the result of `pick` on its times. They run in random order."""
        out = self.run(program, "--benchmark_format=json", "--benchmark_enable_random_interleaving=true",
                       f"--benchmark_filter={only}", f"--benchmark_repetitions={repetitions}",
                       f"--benchmark_min_time={seconds}")
        found = {}
        for row in json.loads(out)["benchmarks"]:
            if row["run_type"] == "iteration":
                found.setdefault(row["run_name"].removesuffix("/manual_time"), []).append(row[time_name])
        return {name: pick(taken) for name, taken in found.items()}

    def live_widgets(self, of, made, count):
        return json.loads(self.run("live_widgets", of, made, str(count)))

    def sheet(self, made, motion):
        """Openings "cold" and "warm", each with the milliseconds of the "first" frame and of the "work"."""
        return json.loads(self.run("sheet_open", made, motion))

    def frames(self, rows):
        """A list of rows "ours", "peer" or "empty", scrolled: its "frames", those "over" 8 ms, and "requests"."""
        shown = {**os.environ, "QT_QPA_PLATFORM": "xcb", "QT_QUICK_BACKEND": "rhi", "QSG_RENDER_LOOP": "threaded",
                 "LIBGL_ALWAYS_SOFTWARE": "1"}
        return json.loads(subprocess.run([ON_DISPLAY, "./list_frames", rows], cwd=self.folder / "bench", check=True,
                                         env=shown, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                         text=True).stdout)

    def start(self, program):
        """Milliseconds from the start of the process to its first frame, and its processor time."""
        os.chdir(self.folder / "bench")
        read, write = os.pipe()
        begin = time.clock_gettime_ns(time.CLOCK_MONOTONIC)
        child = os.posix_spawn(f"./{program}", [program], os.environ,
                               file_actions=[(os.POSIX_SPAWN_DUP2, write, 1), (os.POSIX_SPAWN_CLOSE, read)])
        os.close(write)
        with os.fdopen(read) as pipe:
            moment = int(pipe.read())
        used = os.wait4(child, 0)[2]
        return (moment - begin) / 1e6, (used.ru_utime + used.ru_stime) * 1e3

    def counts(self):
        """Counts of one call that do not depend on the machine's load: allocations and, with valgrind,
        instructions."""
        found = {}
        for name, program in COUNTED.items():
            found[f"{name}, allocations"] = json.loads(self.run(*program, str(COUNTED_CALLS)))["allocations"]
            if shutil.which("valgrind"):
                few, many = (self.instructions(*program, str(calls)) for calls in (0, COUNTED_CALLS))
                found[f"{name}, instructions"] = (many - few) / COUNTED_CALLS
        return found

    def instructions(self, program, *arguments):
        told = subprocess.run(["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", f"./{program}",
                               *arguments], cwd=self.folder / "bench", check=True, stdout=subprocess.DEVNULL,
                              stderr=subprocess.PIPE, text=True).stderr
        return int(re.search(r"Collected : (\d+)", told)[1])

    def sizes(self):
        """Bytes of each component as a stripped shared library. An archive is linked whole."""
        found = {}
        for name, file in COMPONENTS.items():
            built = self.folder / file
            if not built.exists():
                continue
            with tempfile.TemporaryDirectory() as scratch:
                library = pathlib.Path(scratch) / "library.so"
                if built.suffix == ".a":
                    subprocess.run(["c++", "-shared", "-o", library, "-Wl,--whole-archive", built,
                                    "-Wl,--no-whole-archive"], check=True)
                else:
                    shutil.copy(built, library)
                subprocess.run(["strip", library], check=True)
                found[name] = library.stat().st_size
        return found
