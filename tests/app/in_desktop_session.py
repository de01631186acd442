#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""in_desktop_session.py PROGRAM [ARGUMENT…]

Runs a program in a desktop session of its own: a display that nobody sees (Xvfb), a window manager
(openbox) and a session bus (dbus-daemon). Everything ends with the program, whose status is given on.
"""

import contextlib
import os
import shutil
import subprocess
import sys
import tempfile

NEEDED = {"Xvfb": "xvfb", "openbox": "openbox", "dbus-daemon": "dbus-daemon", "xdotool": "xdotool"}


def first_line_of(stack, command, descriptor_option, **options):
    """Starts `command`, which writes its address to a descriptor as soon as it takes clients."""
    read_end, write_end = os.pipe()
    process = subprocess.Popen([*command, descriptor_option(write_end)], pass_fds=[write_end], **options)
    os.close(write_end)
    stack.callback(end, process)
    with os.fdopen(read_end) as stream:
        line = stream.readline().strip()
    if not line:
        sys.exit(f"in_desktop_session: {command[0]} does not start")
    return line


def start_window_manager(stack, folder, options):
    """Returns when it manages windows: one that was mapped before would never get the focus."""
    ready = os.path.join(folder, "window-manager-is-ready")
    os.mkfifo(ready)
    manager = subprocess.Popen(["openbox", "--sm-disable", "--startup", f"sh -c 'echo > {ready}'"],
                               stdout=subprocess.DEVNULL, **options)
    stack.callback(end, manager)
    with open(ready, encoding="ascii") as stream:
        stream.read()


def end(process):
    process.terminate()
    try:
        process.wait(10)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()


def main():
    missing = [package for program, package in NEEDED.items() if not shutil.which(program)]
    if missing:
        sys.exit(f"in_desktop_session: install {' '.join(missing)}, or run scripts/test, which does")
    with contextlib.ExitStack() as stack:
        folder = stack.enter_context(tempfile.TemporaryDirectory())
        environment = {name: value for name, value in os.environ.items()
                       if name not in ("WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "DESKTOP_STARTUP_ID")}
        environment |= {"HOME": folder, "XDG_CONFIG_HOME": folder, "XDG_CACHE_HOME": folder}
        quiet = {"env": environment, "stderr": subprocess.DEVNULL}
        display = first_line_of(stack, ["Xvfb", "-screen", "0", "1920x1080x24", "-nolisten", "tcp",
                                        "-noreset", "-displayfd"], str, **quiet)
        environment["DISPLAY"] = f":{display}"
        environment["DBUS_SESSION_BUS_ADDRESS"] = first_line_of(
            stack, ["dbus-daemon", "--session", "--nofork", "--nopidfile"],
            lambda number: f"--print-address={number}", **quiet)
        start_window_manager(stack, folder, quiet)
        return subprocess.run(sys.argv[1:], env=environment, check=False).returncode


if __name__ == "__main__":
    sys.exit(main())
