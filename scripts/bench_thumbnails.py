# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""The rows of the thumbnails: every font of a folder drawn as file managers ask for it, beside the thumbnailer of
another desktop program and `hb-view`. All are whole processes; ours reads the font in a second, confined one."""
import os
import pathlib
import statistics
import time

SIDE_PX = 256


class Unreadable(Exception):
    pass


def draw(command, environment):
    """Wall time in ms and the most memory in MB, that of processes which it started included."""
    actions = [(os.POSIX_SPAWN_OPEN, stream, os.devnull, os.O_RDWR, 0) for stream in (0, 1, 2)]
    started = time.perf_counter()
    pid = os.posix_spawn(command[0], command, environment, file_actions=actions)
    _, status, used = os.wait4(pid, 0)
    took = (time.perf_counter() - started) * 1000
    if os.waitstatus_to_exitcode(status) != 0:
        raise Unreadable(command[0])
    return took, used.ru_maxrss / 1024


def best(command, environment, runs):
    """The quickest of some runs, the files warm: what other work on the machine adds says nothing here."""
    draws = [draw(command, environment) for _ in range(max(2, runs))]
    return min(took for took, _ in draws), max(memory for _, memory in draws)


def measure(commands, environment, files, runs):
    """For each font that all of them draw, the best time of each; and fonts that ours cannot draw."""
    drawn, refused = [], []
    for font in files:
        results = []
        for command in commands:
            try:
                results.append(best(command(font), environment, runs))
            except Unreadable:
                break
        if not results:
            refused.append(font)
        if len(results) == len(commands):
            drawn.append((font, results))
    return drawn, refused


def add_rows(bench, files, tool):
    picture = os.path.join(bench.home, "thumbnail.png")
    hb_view, other = tool("hb-view"), tool("gnome-thumbnail-font")
    commands = (
        lambda font: [bench.lorvactl, "thumbnail", "--size", str(SIDE_PX), font, picture],
        lambda font: [other, "--size", str(SIDE_PX), pathlib.Path(font).as_uri(), picture],
        lambda font: [hb_view, "--font-size=150", "--output-format=png", f"--output-file={picture}", font, "Aa"])
    drawn, refused = measure(commands, bench.environment(True), files, min(bench.runs, 3))
    ours, others, views = ([results[side][0] for _, results in drawn] for side in range(3))
    memory = [max(results[side][1] for _, results in drawn) for side in range(3)]
    bench.figures["thumbnails"] = {"fonts": len(drawn), "refused": refused, "most_memory_mb": memory}
    bench.add("thumbnail", f"thumbnail of {SIDE_PX} pixels, whole process, {len(drawn)} fonts",
              statistics.median(ours), "`gnome-thumbnail-font`", statistics.median(others), "–")
    bench.add("thumbnail_worst", "the slowest of them", max(ours), "its slowest", max(others), "–")
    bench.add("thumbnail_hb_view", "the same, median", statistics.median(ours), "`hb-view`, \"Aa\" without a sheet",
              statistics.median(views), "–")
    bench.notes.append(
        f"Thumbnails take at most {memory[0]:.0f} MB ({memory[1]:.0f} MB with `gnome-thumbnail-font`, "
        f"{memory[2]:.0f} MB with `hb-view`). Both of those read the font in a process that may do anything.")
