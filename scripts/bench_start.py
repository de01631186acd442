# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""Starts the window without a display and reads from its trace when its first screen was painted."""
import contextlib
import json
import os
import shutil
import signal
import time
from pathlib import Path

# A screen on which the window gets the size it wants, 1720×920.
SCREEN = {"screens": [{"name": "screen", "x": 0, "y": 0, "width": 1920, "height": 1080, "logicalDpi": 96,
                       "logicalBaseDpi": 96, "dpr": 1}]}
SHOWN = "snapshot shown"
DRAWN = "specimens drawn"
PAINTED = "first screen painted"
APPLIED = "catalog applied"
SAVES = ("snapshot: save", "parse cache: save")
PATIENCE_S = 120


class NotStarted(Exception):
    """A one-line reason for a person."""


def events_of(trace):
    """The events written so far; the file is an array that nobody has closed."""
    try:
        return json.loads(trace.read_text(encoding="utf-8") + "]")
    except (OSError, ValueError):
        return []


def ended(events, name):
    """True when the moment came, or the stage came to its end."""
    return any(event["name"] == name and event["ph"] in "iE" for event in events)


def stages_ms(events):
    """How long each stage took, by its name; of a repeated one the longest."""
    begun, took = {}, {}
    for event in events:
        key = event["tid"], event["name"]
        if event["ph"] == "B":
            begun[key] = event["ts"]
        elif event["ph"] == "E" and key in begun:
            took[event["name"]] = max(took.get(event["name"], 0), (event["ts"] - begun[key]) / 1000)
    return took


def memory_mb(pid):
    """Resident memory now and at its highest."""
    status = dict(line.split(":", 1) for line in Path(f"/proc/{pid}/status").read_text().splitlines())
    return {name: int(status[key].split()[0]) / 1024 for name, key in (("rss_mb", "VmRSS"), ("peak_mb", "VmHWM"))}


class Window:
    """One start of the program in a home of its own, ended by a signal."""

    def __init__(self, program, library, environment, platform=None, options=()):
        home = Path(environment["HOME"])
        screen = home / "screen.json"
        screen.write_text(json.dumps(SCREEN))
        self.trace = home / "trace.json"
        self.trace.unlink(missing_ok=True)
        # A window that is open on this desktop would take the start over.
        environment = {**environment, "LORVA_TRACE": str(self.trace), "DBUS_SESSION_BUS_ADDRESS": "disabled:",
                       "QT_QPA_PLATFORM": platform or f"offscreen:configfile={screen}"}
        actions = [(os.POSIX_SPAWN_OPEN, fd, os.devnull, os.O_RDWR, 0) for fd in (0, 1)]
        self.started_ns = time.monotonic_ns()
        self.pid = os.posix_spawn(program, [program, "--no-welcome", "--folder", str(library), *options], environment,
                                  file_actions=actions)

    def wait_for(self, *names):
        """Waits until all of these have ended; gives the events so far."""
        patience = time.monotonic() + PATIENCE_S
        while time.monotonic() < patience:
            # A look costs the program processor time, but what is measured stands in the trace.
            time.sleep(0.05)
            events = events_of(self.trace)
            if all(ended(events, name) for name in names):
                return events
            if os.waitpid(self.pid, os.WNOHANG)[0]:
                self.pid = None
                raise NotStarted(f"the window ended before: {', '.join(names)}")
        raise NotStarted(f"the window's trace did not say within {PATIENCE_S} s: {', '.join(names)}")

    def moment_ms(self, events, name):
        """From just before the start of the process."""
        first = min(event["ts"] for event in events if event["name"] == name)
        return first / 1000 - self.started_ns / 1e6

    def settled_memory(self):
        """Its memory once it no longer changes; what a scan used is given back on other threads."""
        last = memory_mb(self.pid)
        for _ in range(20):
            time.sleep(0.2)
            now = memory_mb(self.pid)
            if abs(now["rss_mb"] - last["rss_mb"]) < 0.5:
                break
            last = now
        return now

    def end(self):
        if self.pid:
            os.kill(self.pid, signal.SIGTERM)
            os.waitpid(self.pid, 0)
            self.pid = None


@contextlib.contextmanager
def opened(program, library, environment, platform=None, options=()):
    window = Window(program, library, environment, platform, options)
    try:
        yield window
    finally:
        window.end()


def measure(program, library, environment):
    """One start from its caches: its moments and stages in ms, and its memory at rest."""
    with opened(program, library, environment) as window:
        events = window.wait_for(PAINTED, SHOWN, APPLIED)
        return {"painted_ms": window.moment_ms(events, PAINTED), "drawn_ms": window.moment_ms(events, DRAWN),
                "shown_ms": window.moment_ms(events, SHOWN),
                "applied_ms": window.moment_ms(events, APPLIED), "stages_ms": stages_ms(events),
                **window.settled_memory()}


def make_caches(program, library, environment):
    """A start without caches, which stays until they are written: its moments and stages in ms."""
    with opened(program, library, environment) as window:
        events = window.wait_for(PAINTED, APPLIED, *SAVES)
        return {"painted_ms": window.moment_ms(events, PAINTED),
                "applied_ms": window.moment_ms(events, APPLIED), "stages_ms": stages_ms(events)}


def forget_caches(environment):
    """Makes the next start in this home a first one."""
    shutil.rmtree(Path(environment["XDG_DATA_HOME"]) / "Lorva")
