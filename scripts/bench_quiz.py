# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""Plays the font quiz in the window on a real X server and reads from the trace how long its frames took."""
import statistics
from pathlib import Path

import bench_window

CONF = """<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig><dir>/usr/share/fonts</dir><cachedir prefix="xdg">fontconfig</cachedir></fontconfig>
"""
CARDS = 30
# A flight and the time that a quick player takes to decide.
CARD_DELAY_S = 0.6


def frames_of(events, stage, begun):
    """What the stages of that name took that began after that."""
    frames = sorted(bench_window.durations_ms(events, stage, begun))
    return {"frames": len(frames), "p50_ms": statistics.median(frames), "p99_ms": frames[int(len(frames) * 0.99)],
            "worst_ms": frames[-1], "over_16_ms": sum(frame > 16 for frame in frames)}


def play(window, hand):
    """From the first choice until the last card has landed."""
    bench_window.settle(window)
    begun = bench_window.now_us()
    for card in range(CARDS):
        hand.do("key", 1 + card % 6, "sleep", CARD_DELAY_S)
    return frames_of(bench_window.settle(window), "frame", begun)


def measure(program, environment):
    """One game over the fonts of this machine, as far as they have no style."""
    home = Path(environment["HOME"])
    conf = home / "quiz-fonts.conf"
    conf.write_text(CONF)
    environment = {**environment, "FONTCONFIG_FILE": str(conf)}
    empty = home / "no-fonts"
    empty.mkdir(exist_ok=True)
    with bench_window.used(program, empty, environment, ("--quiz", "playing")) as (window, hand):
        return play(window, hand)


def add_rows(bench, program, environment):
    games = [measure(program, environment) for _ in range(min(bench.runs, 3))]
    bench.figures["used_quiz"] = games
    for key, what, figure in (
            ("quiz_frame", "half of the frames while 30 cards of the quiz fly", "p50_ms"),
            ("quiz_frame_99", "99 of 100 of them", "p99_ms"),
            ("quiz_frame_worst", "the worst of them", "worst_ms")):
        bench.add_against_bar(key, what, statistics.median(game[figure] for game in games), 16)
