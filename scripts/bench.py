# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""Measures Lorva against the tools one would run instead, and prints a Markdown table of ratios.

Started by scripts/bench, which builds first. A ratio holds across machines where a time does not, so both
sides are measured in one run, in turns, with warm files, and medians are compared. Nothing here passes or
fails: a timed test would fail on a busy machine.
"""
import argparse
import json
import os
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import bench_detail
import bench_quiz
import bench_start
import bench_text
import bench_thumbnails
import bench_welcome
import bench_window

EXTENSIONS = {".otf", ".ttf", ".ttc", ".otc", ".dfont"}
# As many files as the libraries of designers hold; the fonts of the machine are linked this often.
LARGE_LIBRARY = 7000
# The generated libraries, by their families of ten faces each.
MANY_FAMILIES, FEW_FAMILIES = 10000, 1000
START_BAR_MS = 400
# Starts before those that are measured: the first ones make caches and warm files.
SETTLED_STARTS = 1
SAMPLE_TEXT = "Aa 123"
SAMPLE_SIZE_PX = 48
SAMPLE_FONTS = 60
# What the main thread does at a person's hand, and a worker at a load: benchmark, row, bar in ms.
MODEL_BARS = (
    ("searchKeyPress", "key press of a search", 5),
    ("switchSource", "switch to another source", 5),
    ("answerQuizCard", "one family into a style category, with its write", 10),
    ("addToCollection", "one family into a collection, with its write", 10),
    ("moveToFoundry", "one family to another foundry, with its write", 10),
    ("foundriesAndSearchTexts", "foundries and search texts, on a worker", 100),
    ("classifyLibrary/watched", "what is switched on, of watched fonts, on a worker", 200),
    ("classifyLibrary/others", "the same of fonts that are not watched", 200),
)
PAGE_MARKS = ("<!-- bench:begin -->", "<!-- bench:end -->")
FC_FORMAT = "%{family}|%{style}|%{postscriptname}|%{weight}|%{slant}\n"
NO_FONTS = '<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd"><fontconfig></fontconfig>'


class Failed(Exception):
    """A one-line reason for a person."""


def font_files(folder):
    """The font files below a folder, as the scan picks them: by extension, nothing hidden."""
    found = []
    for path, folders, files in os.walk(folder, followlinks=True):
        folders[:] = sorted(name for name in folders if not name.startswith("."))
        found += [os.path.join(path, name) for name in sorted(files)
                  if not name.startswith(".") and os.path.splitext(name)[1].lower() in EXTENSIONS
                  and os.path.isfile(os.path.join(path, name))]
    return found


def large_library(files, folder):
    """A folder with LARGE_LIBRARY files: each font copied once, then linked under further names."""
    stamp = json.dumps([LARGE_LIBRARY, [[f, os.path.getsize(f)] for f in files]])
    stamp_file = folder / ".stamp"
    if not stamp_file.exists() or stamp_file.read_text() != stamp:
        shutil.rmtree(folder, ignore_errors=True)
        for number in range(LARGE_LIBRARY):
            round_, index = divmod(number, len(files))
            name = f"{index:05}{os.path.splitext(files[index])[1]}"
            target = folder / f"{round_:03}" / name
            target.parent.mkdir(parents=True, exist_ok=True)
            if round_ == 0:
                shutil.copyfile(files[index], target)
            else:
                os.link(folder / "000" / name, target)
        stamp_file.write_text(stamp)
    return font_files(folder)


def generated_library(build, families):
    """A folder of generated fonts; made once, and anew when the generator has changed."""
    folder = build / f"library-{families}"
    run_ms([str(build / "bench/lorva_generate_library"), str(folder), str(families)])
    return folder


def run_ms(command, environment=None, output=os.devnull):
    """Runs a program with its output to a file (nowhere, if none is named) and gives its wall time in ms.

    The process is spawned directly: Python's own subprocess costs as much as the small programs timed.
    """
    actions = [(os.POSIX_SPAWN_OPEN, 0, os.devnull, os.O_RDONLY, 0),
               (os.POSIX_SPAWN_OPEN, 1, output, os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o600),
               (os.POSIX_SPAWN_OPEN, 2, os.devnull, os.O_WRONLY, 0)]
    started = time.perf_counter()
    pid = os.posix_spawn(command[0], command, environment or os.environ, file_actions=actions)
    _, status = os.waitpid(pid, 0)
    took = (time.perf_counter() - started) * 1000
    code = os.waitstatus_to_exitcode(status)
    # fc-scan reports one unreadable file among thousands by its exit status.
    if code != 0 and not command[0].endswith("fc-scan"):
        raise Failed(f"exit status {code} from: {' '.join(command)[:300]}")
    return took


def in_turns(runs, *sides):
    """Calls each side once unmeasured, then all in turns; gives each side's times in ms."""
    for side in sides:
        side()
    times = [[] for _ in sides]
    for _ in range(runs):
        for taken, side in zip(times, sides):
            taken.append(side())
    return times


def tool(name):
    path = shutil.which(name)
    if not path:
        raise Failed(f"{name} is missing; scripts/bench installs it")
    return path


def percentile(values, share):
    return sorted(values)[min(len(values) - 1, int(len(values) * share))]


def ms(value):
    return f"{value:.0f} ms" if value >= 20 else f"{value:.1f} ms" if value >= 1 else f"{value:.2f} ms"


class Bench:
    """One run: the rows of the table, and all figures behind them."""

    def __init__(self, build, runs, home):
        self.lorvactl = str(build / "src/cli/lorvactl")
        self.build = build
        self.runs = runs
        self.home = home
        self.rows = []
        self.notes = []
        self.figures = {}

    def environment(self, system_fonts):
        """A fresh home, so that no cache and no watched folder of this user takes part. Without the system's
        fonts fontconfig knows none at all, and a scan reads exactly the folder it is given. With them
        fontconfig is the system's own; what it caches for this home is warm after a first run."""
        fresh = Path(tempfile.mkdtemp(dir=self.home))
        conf = fresh / "fonts.conf"
        conf.write_text(NO_FONTS)
        result = {**os.environ, "HOME": str(fresh), "LC_ALL": "C.UTF-8",
                  "XDG_DATA_HOME": str(fresh / "data"), "XDG_CACHE_HOME": str(fresh / "cache"),
                  "XDG_CONFIG_HOME": str(fresh / "config")}
        if not system_fonts:
            result["FONTCONFIG_FILE"] = str(conf)
        return result

    def add(self, key, what, ours, instead, theirs, bar):
        self.figures[key] = {"ours_ms": ours, "theirs_ms": theirs, "instead": instead}
        ratio = f"{ours / theirs:.3f}" if theirs else "–"
        compared = f"{instead}: {ms(theirs)}" if theirs else "–"
        self.rows.append((what, ms(ours), compared, ratio, bar))

    def add_against_bar(self, key, what, ours, bar_ms):
        """A row that stands against what is allowed, for want of another program that does the same."""
        self.figures[key] = {"ours_ms": ours, "bar_ms": bar_ms}
        self.rows.append((what, ms(ours), f"the bar: {ms(bar_ms)}", f"{ours / bar_ms:.3f}", "1 ×"))

    # The scan, whole process against whole process.

    def count_faces(self, folder, files):
        output = os.path.join(self.home, "list.json")
        run_ms([self.lorvactl, "list", "--json", "--folder", str(folder)], self.environment(False), output)
        with open(output, encoding="utf-8") as text:
            ours = sum(len(family["styles"]) for family in json.load(text))
        fc = subprocess.run([tool("fc-scan"), "--format", "%{family}\n", *files],
                            capture_output=True, check=False).stdout.count(b"\n")
        return ours, fc

    def scan(self, key, folder, files, bar):
        fc_scan = [tool("fc-scan"), "--format", FC_FORMAT, *files]

        def ours():
            environment = self.environment(False)
            return run_ms([self.lorvactl, "list", "--json", "--folder", str(folder)], environment)

        mine, theirs = in_turns(self.runs, ours, lambda: run_ms(fc_scan))
        self.add(key, f"scan of {len(files):,} files with no cache, whole process", statistics.median(mine),
                 "`fc-scan`", statistics.median(theirs), bar)

    def scan_generated(self, library):
        """No cache, over so many faces with so little in them that the work is all in the counting."""
        # fc-scan takes a quarter of a minute for it.
        runs = min(self.runs, 3)
        files = len(font_files(library))

        def ours():
            return run_ms([self.lorvactl, "list", "--json", "--folder", str(library)],
                          self.environment(False))

        fc_scan = [tool("fc-scan"), "--format", FC_FORMAT, str(library)]
        mine, theirs = in_turns(runs, ours, lambda: run_ms(fc_scan))
        self.add("scan_generated", f"scan of {files:,} small generated files with no cache, whole process",
                 statistics.median(mine), "`fc-scan`", statistics.median(theirs), "–")

    def scan_unchanged(self, key, folder, files, what):
        """The second scan of a home, whole process, against what looks at the same files."""
        environment = self.environment(False)
        command = [self.lorvactl, "scan", "--json", "--folder", str(folder)]
        find = [tool("find"), "-L", str(folder), "-type", "f", "-printf", "%s %T@\\n"]
        output = os.path.join(self.home, "scan.json")
        run_ms(command, environment)
        mine, theirs = in_turns(self.runs, lambda: run_ms(command, environment, output), lambda: run_ms(find))
        report = json.loads(Path(output).read_text())
        if report["filesRead"] != 0 or report["filesReused"] != files:
            raise Failed(f"of {files} unchanged files the scan read {report['filesRead']} again")
        self.figures[f"{key}_steps_ms"] = report["milliseconds"]
        self.add(key, f"scan of {what} with nothing changed, whole process", statistics.median(mine),
                 "`find -printf '%s %T@'`", statistics.median(theirs), "3 ×")

    def fontconfig_load(self):
        """What a scan of the system's fonts spends in fontconfig before it reads its first file."""
        def empty():
            return run_ms([self.lorvactl, "list", "--json"], self.environment(False))

        times, = in_turns(self.runs, empty)
        listing, = in_turns(self.runs, lambda: run_ms([tool("fc-list"), ":", "file"]))
        self.figures["start"] = {"lorvactl_without_fonts_ms": statistics.median(times),
                                 "fc_list_ms": statistics.median(listing)}
        self.notes.append(
            f"In the scans fontconfig is given no fonts of its own. Loading its list of this machine's fonts "
            f"is apart: {ms(statistics.median(listing))} for `fc-list` as a process. "
            f"`lorvactl list` with nothing to scan takes {ms(statistics.median(times))}.")

    # One specimen.

    def specimen_processes(self, files):
        picked = files[::max(1, len(files) // SAMPLE_FONTS)][:SAMPLE_FONTS]
        picture = os.path.join(self.home, "specimen.png")
        environment = self.environment(True)
        hb_view, mine, theirs = tool("hb-view"), [], []
        for font in picked:
            def ours():
                return run_ms([self.lorvactl, "specimen", font, "-o", picture, "--text", SAMPLE_TEXT,
                               "--size", str(SAMPLE_SIZE_PX), "--width", "430", "--height", "220"],
                              environment)

            def view():
                return run_ms([hb_view, f"--font-size={SAMPLE_SIZE_PX}", "--output-format=png",
                               f"--output-file={picture}", font, SAMPLE_TEXT])

            try:
                a, b = in_turns(3, ours, view)
            except Failed as failed:
                print(f"bench: left out of the specimens: {failed}", file=sys.stderr)
                continue
            mine.append(statistics.median(a))
            theirs.append(statistics.median(b))
        if not mine:
            raise Failed("no font gave a specimen in both programs")
        self.figures["specimen_fonts"] = len(mine)
        self.add("specimen_process", f"specimen written as PNG, whole process, {len(mine)} fonts",
                 statistics.median(mine), "`hb-view`", statistics.median(theirs), "–")
        return theirs

    # The start, from just before the process to the first screen with its specimens.

    def start(self, many, few):
        program = str(self.build / "src/app/lorva")
        libraries = many, few
        homes = [self.environment(True) for _ in libraries]
        for library, home in zip(libraries, homes):
            # Also warms fontconfig and the files, so that the later first starts measure only ours.
            bench_start.make_caches(program, library, home)
        starts = [[], []]
        for turn in range(SETTLED_STARTS + self.runs):
            for taken, library, home in zip(starts, libraries, homes):
                result = bench_start.measure(program, library, home)
                if turn >= SETTLED_STARTS:
                    taken.append(result)
        for home in homes:
            bench_start.forget_caches(home)
        first = [bench_start.make_caches(program, library, home) for library, home in zip(libraries, homes)]
        self.figures["start_window"] = {"many": starts[0], "few": starts[1], "without_snapshot": first}
        self.add_start_rows(*starts, first)

    def add_start_rows(self, many, few, first):
        def median(starts, key):
            return statistics.median(start[key] for start in starts)

        painted = median(many, "painted_ms")
        self.add_against_bar("start_many", f"start to the first screen, {MANY_FAMILIES:,} families, "
                             f"{MANY_FAMILIES * 10:,} faces", painted, START_BAR_MS)
        self.add("start_ratio", "the same", painted, f"with {FEW_FAMILIES:,} families",
                 median(few, "painted_ms"), "1.5 ×")
        # A part of both that does not grow with the library, so that it flatters the ratio.
        self.add("start_drawn", "the same, without the fading in", median(many, "drawn_ms"),
                 f"with {FEW_FAMILIES:,} families", median(few, "drawn_ms"), "–")
        self.figures["memory_mb"] = {key: median(many, key) for key in ("rss_mb", "peak_mb")}
        self.notes.append(
            f"The start is of the window at 1720×920 without a display, from before the process to the last "
            f"specimen on the screen, fade-in included; the library is known after "
            f"{ms(median(many, 'shown_ms'))} ({FEW_FAMILIES:,} families: {ms(median(few, 'shown_ms'))}). "
            f"The scan behind it has been applied after {ms(median(many, 'applied_ms'))}; the program then "
            f"holds {median(many, 'rss_mb'):.0f} MB, at its highest {median(many, 'peak_mb'):.0f} MB. The "
            f"very first start, without snapshot and parse cache, shows its specimens after "
            f"{ms(first[0]['painted_ms'])} ({FEW_FAMILIES:,} families: {ms(first[1]['painted_ms'])}).")

    # The window at a person's hand, on an X server without a screen.

    def use(self, many):
        environment = self.environment(True)
        program = str(self.build / "src/app/lorva")
        bench_start.make_caches(program, many, environment)
        uses = [bench_window.measure(program, many, environment) for _ in range(min(self.runs, 3))]
        self.figures["used_window"] = uses

        def median(key):
            return statistics.median(statistics.median(use[key]) if isinstance(use[key], list) else use[key]
                                     for use in uses)

        for key, what, bar in (("frame_p99_ms", "99 of 100 frames of a scroll through the window", 16),
                               ("frame_worst_ms", "the worst of them", 16),
                               ("search_ms", "key press in the search field until it is painted", 50),
                               ("list_ms", "grid to list until it is painted", 50),
                               ("black_ms", "white to black until it is painted", 50),
                               ("active_ms", "all to active fonts until it is painted", 50)):
            self.add_against_bar(key, f"{MANY_FAMILIES:,} families: {what}", median(key), bar)
        memory = statistics.median(use["scrolled"]["rss_mb"] for use in uses)
        over = statistics.median(use["frames_over_16_ms"] for use in uses)
        self.notes.append(
            f"The window was used at 1720×920 on Xvfb with `xdotool`, whose own time is in the figures. The scroll "
            f"through all {MANY_FAMILIES:,} families took {median('frames'):.0f} frames, {over:.0f} of them over "
            f"16 ms, half of them under {ms(median('frame_median_ms'))}; the program then holds {memory:.0f} MB "
            f"(at most: 180).")

    def use_detail(self):
        bench_detail.add_rows(self, str(self.build / "src/app/lorva"), self.environment(True))
        bench_quiz.add_rows(self, str(self.build / "src/app/lorva"), self.environment(True))
        bench_welcome.add_rows(self, str(self.build / "src/app/lorva"), self.environment(True))

    # The Google Benchmark programs.

    def programs(self, library, generated):
        """Runs them all; gives each benchmark's figures by its bare name."""
        results = {}
        for program in sorted((self.build / "bench").glob("*_benchmark")):
            out = Path(self.home) / f"{program.name}.json"
            print(f"bench: {program.name} …", file=sys.stderr)
            # The whole processes are timed above, in turns and over the same list of files.
            run_ms([str(program), f"--benchmark_out={out}", "--benchmark_out_format=json",
                    "--benchmark_filter=-lorvactlList|fcScan"],
                   {**os.environ, "QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C.UTF-8",
                    "LORVA_BENCH_FONTS": str(library), "LORVA_BENCH_LIBRARY": str(generated)})
            for result in json.loads(out.read_text())["benchmarks"]:
                scale = {"ns": 1e-6, "us": 1e-3, "ms": 1, "s": 1e3}[result.get("time_unit", "ns")]
                if result.get("error_occurred"):
                    raise Failed(f"{result['name']}: {result['error_message']}")
                if "real_time" in result:
                    result["ms"] = result["real_time"] * scale
                    # "lorva::scan/generated/real_time" is known as "scan/generated".
                    results[re.match(r"(?:.*::)?([^/]+(?:/(?:real|generated|watched|others)\b)?)", result["name"])[1]] = result
        self.figures["programs"] = results
        return results

    def from_programs(self, results, hb_view):
        """Rows out of the programs' figures; a benchmark that is gone is an error, not a missing row."""
        try:
            specimen = results["pathToPixels"]
            records = [results[f"decode 100k faces, {reader}"]["ms"]
                       for reader in ("ours", "QJsonDocument", "RapidJSON")]
            again = [results[f"{name}/real"]["ms"] for name in ("scanWithNothingChanged", "walkAndStat")]
            caches = [results[name] for name in ("readParseCache", "readSnapshot")]
            cold = results["scanWithoutCache/generated"]
            model = [(key, what, results[key]["ms"], bar) for key, what, bar in MODEL_BARS]
            walk, find, register, copy = [results[key]["ms"] for key in (
                "walkFolder", "findFiles", "registerThousand", "copyThousand")]
        except KeyError as missing:
            raise Failed(f"no benchmark is called {missing}") from None
        self.add("scan_unchanged", f"scan of {LARGE_LIBRARY:,} files with nothing changed", again[0],
                 "walk and `stat`", again[1], "3 ×")
        for key, share, bar in (("median", 0.5, "0.3 ms"), ("p95", 0.95, "1 ms")):
            self.add(f"specimen_{key}", f"never-seen specimen, path to pixels, {key}",
                     specimen[f"{key}_us"] / 1000, f"`hb-view`, {key}", percentile(hb_view, share), bar)
        try:
            bench_text.add_rows(self, results)
        except KeyError as missing:
            raise Failed(f"no benchmark is called {missing}") from None
        for key, what, figures in zip(("parse_cache", "snapshot"), ("parse cache", "snapshot"), caches):
            self.add_against_bar(key, f"{what} of {figures['faces']:,.0f} faces read", figures["ms"], 100)
        self.add("records", "100,000 faces read from JSON", records[0], "`QJsonDocument`", records[1],
                 "100 ms")
        self.add("records_rapidjson", "the same", records[0], "RapidJSON", records[2], "100 ms")
        for key, what, ms_each, bar in model:
            self.add_against_bar(key, f"{MANY_FAMILIES:,} families: {what}", ms_each, bar)
        self.add("walk_folder", "walk of a watched folder of 20,000 files", walk,
                 "`find DIR -type f`", find, "1.5 ×")
        self.add("register", "1,000 files registered until `fc-list` sees them", register,
                 "`cp` and `fc-list`", copy, "500 ms")
        self.notes.append(
            f"Of {cold['faces']:,.0f} generated faces a scan with no cache adds {cold['peak_mb']:.0f} MB at "
            f"its highest, reading the parse cache {caches[0]['peak_mb']:.0f} MB and the snapshot "
            f"{caches[1]['peak_mb']:.0f} MB.")

    def table(self):
        lines = ["| what | Lorva | instead | ratio | at most |", "|---|--:|--:|--:|--:|"]
        lines += ["| " + " | ".join(row) + " |" for row in self.rows]
        return "\n".join(lines + [""] + self.notes)


def machine():
    model = re.search(r"model name\s*:\s*(.*)", Path("/proc/cpuinfo").read_text())
    return f"{os.cpu_count()} cores{f' of {model[1]}' if model else ''}"


def put_into_page(text):
    path = Path(__file__).parent.parent / "docs/benchmarks.md"
    page = path.read_text(encoding="utf-8")
    begin, end = (page.find(mark) for mark in PAGE_MARKS)
    if begin < 0 or end < begin:
        raise Failed(f"docs/benchmarks.md lacks the marks {' '.join(PAGE_MARKS)}")
    begin += len(PAGE_MARKS[0])
    path.write_text(page[:begin] + "\n" + text + "\n" + page[end:], encoding="utf-8")


def main():
    parser = argparse.ArgumentParser(prog="scripts/bench", description=__doc__.splitlines()[0])
    parser.add_argument("--build", type=Path, required=True, help=argparse.SUPPRESS)
    parser.add_argument("--folder", default="/usr/share/fonts", help="the fonts to measure with")
    parser.add_argument("--runs", type=int, default=7, help="runs of each side (default: 7)")
    parser.add_argument("--json", type=Path, metavar="FILE", help="write every figure to FILE")
    parser.add_argument("--write", action="store_true", help="put the table into docs/benchmarks.md")
    options = parser.parse_args()

    files = font_files(options.folder)
    if not files:
        raise Failed(f"no font files below {options.folder}")

    with tempfile.TemporaryDirectory(prefix="lorva-bench-") as home:
        bench = Bench(options.build, max(1, options.runs), home)
        library = options.build / "library"
        many = large_library(files, library)
        generated, few = (generated_library(options.build, families)
                          for families in (MANY_FAMILIES, FEW_FAMILIES))
        print("bench: start …", file=sys.stderr)
        bench.start(generated, few)
        print("bench: window …", file=sys.stderr)
        bench.use(generated)
        bench.use_detail()
        print("bench: scan …", file=sys.stderr)
        bench.scan("scan_large", library, many, "0.15 ×")
        bench.scan("scan_installed", options.folder, files, "–")
        bench.scan_generated(generated)
        bench.scan_unchanged("scan_unchanged_process", library, len(many), f"{len(many):,} files")
        generated_files = len(font_files(generated))
        bench.scan_unchanged("scan_unchanged_generated", generated, generated_files,
                             f"{generated_files:,} small generated files")
        ours, theirs = bench.count_faces(options.folder, files)
        bench.fontconfig_load()
        print("bench: specimens …", file=sys.stderr)
        hb_view = bench.specimen_processes(files)
        print("bench: thumbnails …", file=sys.stderr)
        bench_thumbnails.add_rows(bench, files, tool)
        bench.from_programs(bench.programs(library, generated), hb_view)
        bench.notes.insert(0, f"Medians of {bench.runs} runs in turns, files warm, on {machine()}. The "
                              f"{len(many):,} files are this machine's {len(files):,} fonts linked under "
                              f"more names: {ours:,} styles after joining equal ones, {theirs:,} patterns "
                              f"of `fc-scan`.")
        text = bench.table()
        if options.json:
            options.json.write_text(json.dumps(bench.figures, indent=1))
    print(text)
    if options.write:
        put_into_page(text)


if __name__ == "__main__":
    try:
        main()
    except (Failed, bench_start.NotStarted, OSError) as failed:
        sys.exit(f"bench: {failed}")
