# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""What the programs say of themselves, their manual pages, and their completions, each as the same sets:
{"": options of the program, "list": options of its command list, …}, and {"collections": its verbs, …}.
"""

import os
import re
import subprocess

OPTION = re.compile(r"(?<![\w,-])(--[a-z][a-z-]*|-[a-z](?![\w-]))")
# Both stand for the same, and are told of once.
EVERYWHERE = {"--help", "-h"}
PROGRAMS = ("lorva", "lorvactl")


def help_text(program, *words):
    done = subprocess.run([program, *words, "--help"], check=True, capture_output=True, text=True,
                          env=os.environ | {"LC_ALL": "C", "LANGUAGE": ""})
    return done.stdout


def commands_of(text):
    """The commands that a help text lists, each on a line with what it does."""
    return re.findall(r"^  ([a-z]+)  ", text, re.MULTILINE)


def options_in(text):
    return set(OPTION.findall(text)) - EVERYWHERE


def options_by_help(program):
    text = help_text(program)
    found = {command: options_in(help_text(program, command)) for command in commands_of(text)}
    return found | {"": options_in(text)}


def verbs_by_help(program):
    found = {}
    for command in commands_of(help_text(program)):
        usage = help_text(program, command).split("\n\n")[0]
        verbs = set()
        for words in re.findall(rf"(?:{program} {command} |\| )\[?([a-z|]+)\b(?=[ \]]|$)", usage):
            verbs |= set(words.split("|"))
        if verbs:
            found[command] = verbs
    return found


def sections_of_page(page, commands):
    """The source of a page by command: each has a subsection, and what is left belongs to the program."""
    sections, current = {"": []}, ""
    for line in page.read_text(encoding="utf-8").splitlines():
        heading = re.match(r"\.S([sh]) (\S+)", line)
        if heading:
            current = heading[2] if heading[1] == "s" and heading[2] in commands else ""
            sections.setdefault(current, [])
        sections[current].append(line)
    return sections


def options_by_page(page, commands):
    """Of an option only its entry counts, not that it is mentioned."""
    found = {}
    for command, lines in sections_of_page(page, commands).items():
        entries = " ".join(line for line in lines if line.startswith(".It "))
        long_ones = {"--" + name for name in re.findall(r"Fl -([a-z][a-z-]*)", entries)}
        short_ones = {"-" + name for name in re.findall(r"Fl ([a-z])\b", entries)}
        found[command] = (long_ones | short_ones) - EVERYWHERE
    return found


def verbs_by_page(page, commands):
    found = {}
    for command, lines in sections_of_page(page, commands).items():
        entries = [line for line in lines if line.startswith(".It Cm ")]
        verbs = set(re.findall(r"Cm ([a-z]+)", " ".join(entries)))
        if verbs and command:
            found[command] = verbs
    return found


def options_by_shell(shell, program, commands):
    found = {}
    for command in ["", *commands]:
        words = [program, command, "-"] if command else [program, "-"]
        offered = {word.rstrip("=") for word in shell.ask(" ".join(words)).offered}
        found[command] = {word for word in offered if word.startswith("-")} - EVERYWHERE
    return found


def verbs_by_shell(shell, program, commands):
    return {command: shell.ask(f"{program} {command} ").offered for command in commands}
