# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""What the documents point at is there, and the commands that they show are ones that lorvactl knows.

The folder of the built lorvactl is in the PATH.
"""

import re
import shlex
import unittest
from pathlib import Path

import help_texts

ROOT = Path(__file__).resolve().parents[2]
DOCUMENTS = [ROOT / "README.md", ROOT / "CONTRIBUTING.md", *sorted((ROOT / "docs").glob("*.md"))]
LINK = re.compile(r'\]\(([^)\s]+)\)|(?:src|href)="([^"]+)"')
README_LINES = 55


def anchor(heading):
    """As the usual viewers of Markdown name a heading."""
    return re.sub(r"[^\w\- ]", "", heading.strip().lower()).replace(" ", "-")


def anchors(path):
    return {anchor(heading) for heading in re.findall(r"^#+ (.*)$", path.read_text(encoding="utf-8"), re.MULTILINE)}


def shown_commands(text):
    """Each `lorvactl …` of a shell block, as words."""
    for line in re.findall(r"lorvactl [^|\n]+", "\n".join(re.findall(r"```sh\n(.*?)```", text, re.DOTALL))):
        yield shlex.split(line, comments=True)


class Documents(unittest.TestCase):
    def test_links_lead_somewhere(self):
        for document in DOCUMENTS:
            for link in (a or b for a, b in LINK.findall(document.read_text(encoding="utf-8"))):
                if "://" in link:
                    continue
                file, _, place = link.partition("#")
                target = (document.parent / file).resolve() if file else document
                with self.subTest(document=document.name, link=link):
                    self.assertTrue(target.exists(), "the file is not there; pictures are made by scripts/screenshots")
                    if place:
                        self.assertIn(place, anchors(target), "no heading has that name")

    def test_commands_are_known(self):
        options = help_texts.options_by_help("lorvactl")
        verbs = help_texts.verbs_by_help("lorvactl")
        shown = 0
        for document in DOCUMENTS:
            for words in shown_commands(document.read_text(encoding="utf-8")):
                shown += 1
                with self.subTest(document=document.name, line=shlex.join(words)):
                    self.assertIn(words[1], options)
                    used = {word.split("=")[0] for word in words[2:] if help_texts.OPTION.fullmatch(word)}
                    self.assertLessEqual(used, options[words[1]])
                    if words[1] in verbs:
                        self.assertIn(words[2], verbs[words[1]])
        self.assertGreater(shown, 20, "the examples are not where this check looks for them")

    def test_readme_says_it_within_a_screen(self):
        lines = (ROOT / "README.md").read_text(encoding="utf-8").count("\n")
        self.assertLessEqual(lines, README_LINES, "what is longer belongs into docs/guide.md")


if __name__ == "__main__":
    unittest.main()
