# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""Opens families in the window on a real X server, scrolls through their characters and drags an axis, and
reads from the trace how long that took."""
import statistics

import bench_window

FONTS = "/usr/share/fonts"
CJK = "Noto Sans CJK JP"
VARIABLE = "Inter"
TEXT = ("Sphinx of black quartz, judge my vow. Pack my box with five dozen liquor jugs. How vexingly quick daft "
        "zebras jump! The five boxing wizards jump quickly; bright vixens jump, dozy fowl quack at all of it.")
# Of fonts that the tests install: the one with most characters, a variable one, one for the interface.
FOLDERS = ("opentype/noto", "truetype/inter-vf", "truetype/dejavu")
# In the window of 1720×920 that the program opens: the page, and the first axis of the inspector.
PAGE, AXIS_Y, AXIS_FROM, AXIS_TO = (800, 700), 160, 1452, 1700
WHEEL_CLICKS, WHEEL_DELAY_MS = 3000, 2
DRAG_STEP, DRAG_DELAY_S = 2, 0.012


def open_family(window, hand):
    """From just before the key until the page's first frame, and until the last of what it shows."""
    begun = bench_window.now_us()
    hand.do("key", "Return")
    ends = [event["ts"] for event in bench_window.settle(window)
            if event["name"] == "frame" and event["ph"] == "E" and event["ts"] > begun]
    rendered = [event["ts"] for event in bench_window.settle(window)
                if event["name"] == "render" and event["ph"] == "E" and event["ts"] > begun]
    first = next(end for end in ends if end > rendered[0])
    return {"preview_ms": (first - begun) / 1000, "all_ms": (ends[-1] - begun) / 1000}


def measure(program, environment):
    """One use of a large face and one of a variable one."""
    environment, empty = bench_window.home_with_fonts(environment, (f"{FONTS}/{folder}" for folder in FOLDERS))
    result = {}
    with bench_window.used(program, empty, environment, ("--select", CJK)) as (window, hand):
        result["cjk"] = open_family(window, hand)
        hand.point(PAGE)
        begun = bench_window.now_us()
        hand.do("click", "--repeat", WHEEL_CLICKS, "--delay", WHEEL_DELAY_MS, 5)
        result["scroll"] = bench_window.frames_of(bench_window.settle(window), "frame", begun)
    with bench_window.used(program, empty, environment, ("--select", VARIABLE, "--text", TEXT)) as (window, hand):
        result["variable"] = open_family(window, hand)
        hand.do("mousemove", "--window", hand.window, AXIS_FROM, AXIS_Y, "mousedown", 1)
        begun = bench_window.now_us()
        steps = [word for x in range(AXIS_FROM, AXIS_TO, DRAG_STEP)
                 for word in ("mousemove", "--window", hand.window, x, AXIS_Y, "sleep", DRAG_DELAY_S)]
        hand.do(*steps, "mouseup", 1)
        result["drag"] = bench_window.frames_of(bench_window.settle(window), "frame", begun)
        result["drag"]["moves"] = len(range(AXIS_FROM, AXIS_TO, DRAG_STEP))
    return result


def add_rows(bench, program, environment):
    uses = [measure(program, environment) for _ in range(min(bench.runs, 3))]
    bench.figures["used_detail"] = uses

    def median(part, key):
        return statistics.median(use[part][key] for use in uses)

    for key, what, value, bar in (
            ("detail_open", "a family opened until its preview is painted", median("cjk", "preview_ms"), 50),
            ("detail_grid", "the same, until its 44,805 characters are there", median("cjk", "all_ms"), 200),
            ("detail_scroll", "99 of 100 frames of a scroll through them", median("scroll", "p99_ms"), 16),
            ("detail_scroll_worst", "the worst of them", median("scroll", "worst_ms"), 16),
            ("detail_drag", "99 of 100 frames while an axis is dragged, 200 characters", median("drag", "p99_ms"), 16)):
        bench.add_against_bar(key, what, value, bar)
