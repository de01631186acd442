# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""Shows the welcome in a window on a real X server and reads from the trace how long its frames took."""
import statistics
from pathlib import Path

import bench_quiz
import bench_window


def measure(program, environment):
    """From the first letter until all lie still and the card is there, with the fonts of this machine."""
    home = Path(environment["HOME"])
    conf = home / "welcome-fonts.conf"
    conf.write_text(bench_quiz.CONF)
    environment = {**environment, "FONTCONFIG_FILE": str(conf)}
    empty = home / "no-fonts"
    empty.mkdir(exist_ok=True)
    with bench_window.used(program, empty, environment, ("--welcome", "scene")) as (window, _):
        return bench_quiz.frames_of(bench_window.settle(window), "welcome: frame", 0)


def add_rows(bench, program, environment):
    shown = [measure(program, environment) for _ in range(min(bench.runs, 3))]
    bench.figures["used_welcome"] = shown
    for key, what, figure in (
            ("welcome_frame", "half of the frames while the letters of the welcome fall", "p50_ms"),
            ("welcome_frame_99", "99 of 100 of them", "p99_ms"),
            ("welcome_frame_worst", "the worst of them", "worst_ms")):
        bench.add_against_bar(key, what, statistics.median(one[figure] for one in shown), 16)
