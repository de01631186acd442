# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""Manual pages and completions tell what the programs tell of themselves, neither less nor more, and the
completions are asked for in the shells themselves.

The folders of the built programs are in the PATH. Who changes an option changes four places: the help text,
packaging/man/, and the three shells' files in packaging/completions/. The failures say which one is behind.
"""

import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

import help_texts
import shells

ROOT = Path(__file__).resolve().parents[2]
PAGES = ROOT / "packaging/man"
COMPLETIONS = ROOT / "packaging/completions"
SHELLS = {"bash": ("bash/lorva", "bash/lorvactl"), "zsh": ("zsh/_lorva", "zsh/_lorvactl"),
          "fish": ("fish/lorva.fish", "fish/lorvactl.fish")}
FONTS = ("truetype/dejavu/DejaVuSans.ttf", "truetype/dejavu/DejaVuSansMono.ttf",
         "truetype/comfortaa/Comfortaa-Bold.ttf")
ODD_NAME = "Ann's \"big\" $list"
OPTION_LIKE_NAME = "-x"
FONTCONFIG = ('<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd">'
              "<fontconfig><dir>{0}/system</dir><cachedir>{0}/cache</cachedir></fontconfig>")


class Home:
    """A library of three families: two of the system, one in a watched folder; and two collections."""

    def __init__(self):
        self.folder = tempfile.TemporaryDirectory()
        home = Path(self.folder.name)
        for place in ("programs", "system", "trial fonts", "work"):
            (home / place).mkdir()
        # A busy machine may take longer than the completions grant lorvactl.
        patient = home / "programs/timeout"
        patient.write_text('#!/bin/sh\nshift\nexec "$@"\n', encoding="utf-8")
        patient.chmod(0o755)
        for number, font in enumerate(FONTS):
            shutil.copy(Path("/usr/share/fonts", font), home / ("system" if number < 2 else "trial fonts"))
        shutil.copy(Path("/usr/share/fonts", FONTS[0]), home / "work")
        for name in ("notes.txt", "sorted.json", "drawn.png"):
            (home / "work" / name).touch()
        (home / "fonts.conf").write_text(FONTCONFIG.format(home), encoding="utf-8")
        self.environment = {"HOME": str(home), "PATH": f"{patient.parent}:{os.environ['PATH']}", "LC_ALL": "C.UTF-8",
                            "FONTCONFIG_FILE": str(home / "fonts.conf"), "QT_QPA_PLATFORM": "offscreen"}
        self.work = home / "work"
        self.run("folders", "add", str(home / "trial fonts"))
        self.run("collections", "create", ODD_NAME, "DejaVu Sans")
        self.run("collections", "create", "--", OPTION_LIKE_NAME, "Comfortaa")

    def run(self, *words):
        subprocess.run(["lorvactl", *words], check=True, capture_output=True, env=self.environment)


class ManualCase(unittest.TestCase):
    def assert_same(self, told, helped, place, what):
        """Both are {command: words}."""
        for command in sorted(helped.keys() | told.keys()):
            mine, theirs = told.get(command, set()), helped.get(command, set())
            name = command or "the program itself"
            self.assertFalse(theirs - mine, f"{place} lacks {what} of {name} that --help names: add them")
            self.assertFalse(mine - theirs, f"{place} has {what} of {name} that --help does not name: take "
                                            f"them out, or let the help text name them")


class ManualPages(ManualCase):
    def assert_silent(self, command, environment=None):
        done = subprocess.run(command, capture_output=True, text=True, env=os.environ | (environment or {}))
        told = [line for line in done.stderr.splitlines() + done.stdout.splitlines() if "mandoc.db" not in line]
        self.assertEqual(told, [], "the page is not written as man pages are; the lines say where")

    def test_formats_without_warnings(self):
        for program in help_texts.PROGRAMS:
            page = str(PAGES / f"{program}.1")
            with self.subTest(page=page):
                # What is formatted goes nowhere: only warnings are left.
                self.assert_silent(["sh", "-c", 'man --warnings -E UTF-8 -l -Tutf8 -Z "$1" >/dev/null', "sh", page],
                                   {"LC_ALL": "C.UTF-8", "MANROFFSEQ": "", "MANWIDTH": "80"})
                self.assert_silent(["mandoc", "-Tlint", "-Wwarning", page])

    def test_tells_what_help_tells(self):
        for program in help_texts.PROGRAMS:
            page = PAGES / f"{program}.1"
            helped = help_texts.options_by_help(program)
            with self.subTest(page=page.name):
                self.assert_same(help_texts.options_by_page(page, helped), helped, page.name, "options")
                verbs = help_texts.verbs_by_help(program)
                self.assert_same(help_texts.verbs_by_page(page, helped), verbs, page.name, "verbs")

    def test_help_is_read_as_it_is_meant(self):
        """Else all of the above would agree about nothing."""
        self.assertLessEqual({"--folder", "--source", "--screenshot"}, help_texts.options_by_help("lorva")[""])
        helped = help_texts.options_by_help("lorvactl")
        self.assertLessEqual({"-o", "--letter-spacing"}, helped["specimen"])
        self.assertNotIn("-liga", helped["specimen"])
        self.assertEqual(help_texts.verbs_by_help("lorvactl")["folders"], {"list", "add", "remove"})
        self.assertIn("hide", help_texts.verbs_by_help("lorvactl")["foundries"])


# What is typed, and what all shells offer then.
LINES = [
    ("lorvactl sc", {"scan"}),
    ("lorvactl list --script j", {"japanese"}),
    ("lorvactl list --script ", {"latin", "japanese", "korean", "simplifiedChinese", "traditionalChinese"}),
    ("lorvactl list --script=k", {"korean"}),
    ("lorvactl activate --method ", {"copy", "register"}),
    ("lorvactl specimen --direction=", {"ltr", "rtl", "auto"}),
    # Families and groups of the library, wherever a name is asked for
    ("lorvactl collections add ", {ODD_NAME}),
    ("lorvactl collections --json add ", {ODD_NAME}),
    ("lorvactl collections add Ann\\'s\\ \\\"big\\\"\\ \\$list Com", {"Comfortaa"}),
    ("lorvactl collections remove Ann\\'s\\ \\\"big\\\"\\ \\$list ", {"DejaVu Sans"}),
    ("lorvactl collections remove \"Ann's \\\"big\\\" \\$list\" ", {"DejaVu Sans"}),
    ("lorvactl collections remove -- -x ", {"Comfortaa"}),
    ("lorvactl collections list x ", set()),
    ("lorvactl collections create ", set()),
    ("lorvactl collections create new De", {"DejaVu Sans", "DejaVu Sans Mono"}),
    ("lorvactl collections remove - ", set()),
    ("lorvactl collections create --folder . new De", {"DejaVu Sans", "DejaVu Sans Mono"}),
    ("lorvactl styles delete D", {"Display", "Decorative"}),
    ("lorvactl foundries reset ", {"DejaVu Sans", "DejaVu Sans Mono", "Comfortaa"}),
    ("lorvactl status --collection ", {ODD_NAME}),
    # Only what can be switched
    ("lorvactl activate ", {"Comfortaa"}),
    ("lorvactl deactivate ", set()),
    ("lorvactl status ", {"DejaVu Sans", "DejaVu Sans Mono", "Comfortaa"}),
    # Files, by what the command can use
    ("lorvactl info ", {"DejaVuSans.ttf"}),
    ("lorvactl status ./", {"./DejaVuSans.ttf"}),
    ("lorvactl info DejaVuSans.ttf ", set()),
    ("lorvactl list ", set()),
    ("lorvactl folders add ../t", {"../trial fonts"}),
    ("lorva ", {"DejaVuSans.ttf"}),
    # The window's values
    ("lorva --view ", {"grid", "list"}),
    ("lorva --view=g", {"grid"}),
    ("lorva --source in", {"inactive"}),
    ("lorva --source style:d", {"style:display", "style:decorative"}),
    ("lorva --source=collection:", {f"collection:{ODD_NAME}", f"collection:{OPTION_LIKE_NAME}"}),
    ("lorva --image a", {"aurora"}),
    ("lorva --select C", {"Comfortaa"}),
    ("lorva --search ", set()),
]
# What is typed, and what the line becomes with the only name there is, quoted as it was begun.
INSERTIONS = [
    ("lorvactl status Com", "lorvactl status Comfortaa "),
    ("lorvactl collections add A", "lorvactl collections add Ann\\'s\\ \\\"big\\\"\\ \\$list "),
    ("lorvactl collections add 'A", "lorvactl collections add 'Ann'\\''s \"big\" $list' "),
    ("lorvactl status --collection=A", "lorvactl status --collection=Ann\\'s\\ \\\"big\\\"\\ \\$list "),
    ("lorva --source coll", "lorva --source collection:"),
    ("lorva --source collection:A", "lorva --source collection:Ann\\'s\\ \\\"big\\\"\\ \\$list "),
]


def plain(word, line):
    """Shells differ in how much of a word they call the candidate: quoted or not, with what stands before
    an equals sign, a colon or a slash or without."""
    word = word.replace("\\", "").rstrip("/")
    word = word.split("=", 1)[1] if word.startswith("--") and "=" in word else word
    typed = line.split(" ")[-1].split("=")[-1]
    for end in ":/":
        before = typed[:typed.rfind(end) + 1]
        word = word if word.startswith(before) else before + word
    return word


class Completions(ManualCase):
    def setUp(self):
        self.home = Home()
        self.addCleanup(self.home.folder.cleanup)

    def open(self, name):
        shell = shells.open_shell(name, COMPLETIONS, self.home.environment, self.home.work)
        self.addCleanup(shell.close)
        return shell

    def test_files_are_sound(self):
        for name, files in SHELLS.items():
            for file in files:
                done = subprocess.run([name, "-n", COMPLETIONS / file], capture_output=True, text=True)
                self.assertEqual((done.returncode, done.stderr), (0, ""), f"{file} is no {name} that can be read")

    def test_offers_what_help_tells(self):
        for name in SHELLS:
            shell = self.open(name)
            for program in help_texts.PROGRAMS:
                place = f"packaging/completions/{name}/ for {program}"
                helped = help_texts.options_by_help(program)
                commands = sorted(helped.keys() - {""})
                with self.subTest(shell=name, program=program):
                    self.assert_same(help_texts.options_by_shell(shell, program, commands), helped, place, "options")
                    verbs = help_texts.verbs_by_help(program)
                    self.assert_same(help_texts.verbs_by_shell(shell, program, verbs), verbs, place, "verbs")
                    if commands:
                        offered = {word for word in shell.ask(f"{program} ").offered if not word.startswith("-")}
                        self.assert_same({"": offered}, {"": set(commands)}, place, "commands")

    def test_offers_names_values_and_files(self):
        for name in SHELLS:
            shell = self.open(name)
            for line, expected in LINES:
                with self.subTest(shell=name, line=line):
                    offered = {plain(word, line) for word in shell.ask(line).offered}
                    # Options may come along; they have a case of their own.
                    self.assertEqual({word for word in offered if not word.startswith("-")}, expected)

    def test_quotes_as_the_word_was_begun(self):
        for name in ("bash", "zsh"):
            shell = self.open(name)
            for line, expected in INSERTIONS:
                with self.subTest(shell=name, line=line):
                    self.assertEqual(shell.ask(line).line, expected)

    def test_says_nothing_when_lorvactl_fails(self):
        failing = self.home.work.parent / "programs/lorvactl"
        failing.write_text("#!/bin/sh\necho broken >&2\nexit 1\n", encoding="utf-8")
        failing.chmod(0o755)
        for name in SHELLS:
            with self.subTest(shell=name):
                self.assertEqual(self.open(name).ask("lorvactl status ").offered, set())


if __name__ == "__main__":
    unittest.main()
