# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""Uses the window on a real X server as a person would, and reads from its trace how long that took."""
import contextlib
import os
import shutil
import statistics
import subprocess
import time
from pathlib import Path

import bench_start

SCREEN = "1920x1080x24"
# One column more than the wheel needs to reach the end of the generated library.
WHEEL_CLICKS = 7000
# As fast as a free-spinning wheel; faster, and the server would join the events.
WHEEL_DELAY_MS = 2
QUIET_S = 0.4
FONTS_CONF = """<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig>{}<cachedir prefix="xdg">fontconfig</cachedir></fontconfig>
"""
# In the window of 1720×920 that the program opens.
CARDS, BLACK, WHITE, ACTIVE, ALL = (1000, 500), (1239, 26), (1212, 26), (60, 80), (60, 52)


class Server:
    """An X server without a screen."""

    def __init__(self):
        reading, writing = os.pipe()
        self.process = subprocess.Popen(
            [shutil.which("Xvfb") or "Xvfb", "-displayfd", str(writing), "-screen", "0", SCREEN,
             "-nolisten", "tcp"], pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as answer:
            self.display = f":{answer.readline().strip()}"

    def end(self):
        self.process.terminate()
        self.process.wait()


class Hand:
    """Keys, pointer and wheel."""

    def __init__(self, display):
        self.environment = {**os.environ, "DISPLAY": display}

    def do(self, *words):
        subprocess.run(["xdotool", *map(str, words)], env=self.environment, check=True,
                       stdout=subprocess.DEVNULL)

    def focus(self, pid):
        found = subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--pid", str(pid)],
                               env=self.environment, check=True, capture_output=True, text=True)
        self.window = found.stdout.split()[-1]
        self.do("windowfocus", "--sync", self.window)

    def point(self, place):
        """Moves to a place of the window."""
        self.do("mousemove", "--window", self.window, *place)

    def click(self, place):
        self.do("mousemove", "--window", self.window, *place, "click", 1)


def durations_ms(events, name, after_us):
    """How long each stage of that name took that began later than that."""
    begun, took = {}, []
    for event in events:
        if event["name"] != name:
            continue
        if event["ph"] == "B":
            begun[event["tid"]] = event["ts"]
        elif event["ph"] == "E" and event["tid"] in begun:
            if begun[event["tid"]] >= after_us:
                took.append((event["ts"] - begun[event["tid"]]) / 1000)
            del begun[event["tid"]]
    return took


def frames_of(events, stage, after_us):
    """What the stages of that name took that began later than that."""
    frames = sorted(durations_ms(events, stage, after_us))
    return {"frames": len(frames), "p50_ms": statistics.median(frames), "p99_ms": frames[int(len(frames) * 0.99)],
            "worst_ms": frames[-1], "over_16_ms": sum(frame > 16 for frame in frames)}


def home_with_fonts(environment, folders):
    """The environment with these folders as the system's fonts, and a library folder that holds none."""
    home = Path(environment["HOME"])
    conf = home / "fonts.conf"
    conf.write_text(FONTS_CONF.format("".join(f"<dir>{folder}</dir>" for folder in folders)))
    empty = home / "no-fonts"
    empty.mkdir(exist_ok=True)
    return {**environment, "FONTCONFIG_FILE": str(conf)}, empty


def add_frame_rows(bench, key, half, games):
    """Three rows of what frames_of() gave in each game: the median, which `half` names, the 99th percentile and
    the worst."""
    bench.figures[f"used_{key}"] = games
    for suffix, what, figure in zip(("", "_99", "_worst"), (half, "99 of 100 of them", "the worst of them"),
                                    ("p50_ms", "p99_ms", "worst_ms")):
        bench.add_against_bar(f"{key}_frame{suffix}", what, statistics.median(game[figure] for game in games), 16)


def now_us():
    return time.monotonic_ns() / 1000


def settle(window):
    """Waits until nothing is written into the trace any more; gives what stands in it."""
    last = -1
    while True:
        size = window.trace.stat().st_size
        if size == last:
            return bench_start.events_of(window.trace)
        last = size
        time.sleep(QUIET_S)


def until_painted_ms(window, act):
    """From just before the hand moves until the last pixel of the answer: the end of the first frame
    behind the last rendering."""
    begun = now_us()
    act()
    events = settle(window)
    rendered = [event["ts"] for event in events
                if event["name"] == "render" and event["ph"] == "E" and event["ts"] > begun]
    if not rendered:
        raise bench_start.NotStarted("the window did not answer the hand")
    painted = [event["ts"] for event in events
               if event["name"] == "frame" and event["ph"] == "E" and event["ts"] >= rendered[-1]]
    return (painted[0] - begun) / 1000 if painted else (rendered[-1] - begun) / 1000


@contextlib.contextmanager
def used(program, library, environment, options=()):
    """The window over a library, with its scan applied, and a hand that uses it."""
    server = Server()
    try:
        environment = {**environment, "DISPLAY": server.display}
        with bench_start.opened(program, library, environment, "xcb", options) as window:
            window.wait_for(bench_start.PAINTED, bench_start.APPLIED)
            hand = Hand(server.display)
            hand.focus(window.pid)
            settle(window)
            yield window, hand
    finally:
        server.end()


def measure(program, library, environment):
    """Frames of a scroll through the whole library and its memory then; how long a search and the
    switches take until they are painted."""
    with used(program, library, environment) as (window, hand):
        hand.point(CARDS)
        begun = now_us()
        hand.do("click", "--repeat", WHEEL_CLICKS, "--delay", WHEEL_DELAY_MS, 5)
        frames = sorted(durations_ms(settle(window), "frame", begun))
        result = {"frames": len(frames), "frame_median_ms": frames[len(frames) // 2],
                  "frame_p99_ms": frames[int(len(frames) * 0.99)], "frame_worst_ms": frames[-1],
                  "frames_over_16_ms": sum(frame > 16 for frame in frames),
                  "scrolled": window.settled_memory()}

        def timed(*act):
            return until_painted_ms(window, lambda: hand.do(*act))

        hand.do("key", "Home")
        settle(window)
        result["list_ms"], result["grid_ms"] = timed("key", "ctrl+2"), timed("key", "ctrl+1")
        result["black_ms"] = until_painted_ms(window, lambda: hand.click(BLACK))
        result["white_ms"] = until_painted_ms(window, lambda: hand.click(WHITE))
        result["active_ms"] = until_painted_ms(window, lambda: hand.click(ACTIVE))
        result["all_ms"] = until_painted_ms(window, lambda: hand.click(ALL))
        hand.do("key", "ctrl+f")
        result["search_ms"] = [timed("key", key) for key in "face"]
        return result
