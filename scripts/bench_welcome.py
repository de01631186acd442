# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""Shows the welcome in a window on a real X server and reads from the trace how long its frames took."""
import bench_window

FONTS = "/usr/share/fonts"


def measure(program, environment):
    """From the first letter until all lie still and the card is there, with the fonts of this machine."""
    environment, empty = bench_window.home_with_fonts(environment, [FONTS])
    with bench_window.used(program, empty, environment, ("--welcome", "scene")) as (window, _):
        return bench_window.frames_of(bench_window.settle(window), "welcome: frame", 0)


def add_rows(bench, program, environment):
    bench_window.add_frame_rows(bench, "welcome", "half of the frames while the letters of the welcome fall",
                                [measure(program, environment) for _ in range(min(bench.runs, 3))])
