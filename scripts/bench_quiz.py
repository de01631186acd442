# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""Plays the font quiz in the window on a real X server and reads from the trace how long its frames took."""
import bench_window

FONTS = "/usr/share/fonts"
CARDS = 30
# A flight and the time that a quick player takes to decide.
CARD_DELAY_S = 0.6


def measure(program, environment):
    """One game over the fonts of this machine, as far as they have no style, until the last card has landed."""
    environment, empty = bench_window.home_with_fonts(environment, [FONTS])
    with bench_window.used(program, empty, environment, ("--quiz", "playing")) as (window, hand):
        bench_window.settle(window)
        begun = bench_window.now_us()
        for card in range(CARDS):
            hand.do("key", 1 + card % 6, "sleep", CARD_DELAY_S)
        return bench_window.frames_of(bench_window.settle(window), "frame", begun)


def add_rows(bench, program, environment):
    bench_window.add_frame_rows(bench, "quiz", "half of the frames while 30 cards of the quiz fly",
                                [measure(program, environment) for _ in range(min(bench.runs, 3))])
