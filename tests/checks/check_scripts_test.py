# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""The house checks must find what they are there for: each case is a tree with one fault."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

SCRIPTS = pathlib.Path(__file__).resolve().parents[2] / "scripts"


class CheckCase(unittest.TestCase):
    def run_on(self, script, files):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in files.items():
                file = pathlib.Path(folder, name)
                file.parent.mkdir(parents=True, exist_ok=True)
                file.write_text(text, encoding="utf-8")
            done = subprocess.run([sys.executable, SCRIPTS / script, folder], capture_output=True, text=True)
            return done.returncode, done.stdout

    def assert_found(self, script, files, *words):
        code, output = self.run_on(script, files)
        self.assertEqual(code, 1, output)
        for word in words:
            self.assertIn(word, output)

    def assert_clean(self, script, files):
        self.assertEqual(self.run_on(script, files), (0, ""))


HOUSE = {
    "base/Base.h": "#include <QString>\n",
    "platform/linux/Fonts.h": '#include "base/Base.h"\n#include <fontconfig/fontconfig.h>\n',
    "text/Face.h": "#include <hb.h>\n",
    "model/records/Record.h": "",
    "model/Model.h": '#include "model/records/Record.h"\n',
    "model/Model.cpp": '#include "model/Model.h"\n#include "Model.moc"\n#include <sqlite3.h>\n',
    "ui/style/Style.h": '#include "model/Model.h"\n#include <QWidget>\n',
    "app/main.cpp": '#include "ui/style/Style.h"\n#include <QApplication>\n',
    "cli/main.cpp": '#include "base/Base.h"\n#include <QTextLayout>\n',
    "text/CMakeLists.txt": "lorva_add_module(lorva_text LINK lorva_base)\n",
}


class CheckLayers(CheckCase):
    def assert_breaks(self, path, line, *words):
        files = dict(HOUSE)
        files[path] = files.get(path, "") + line + "\n"
        self.assert_found("check-layers", files, "src/" + path, *words)

    def test_sound_house_passes(self):
        self.assert_clean("check-layers", HOUSE)

    def test_upward_includes(self):
        for path, included in [("base/Base.h", "platform/linux/Fonts.h"), ("text/Face.h", "model/records/Record.h"),
                               ("model/records/Record.h", "model/Model.h"), ("model/Model.cpp", "ui/style/Style.h"),
                               ("platform/linux/Fonts.h", "text/Face.h")]:
            self.assert_breaks(path, f'#include "{included}"', "may not see")

    def test_neighbours_do_not_see_each_other(self):
        files = dict(HOUSE, **{"app/App.h": ""})
        files["cli/main.cpp"] += '#include "app/App.h"\n'
        self.assert_found("check-layers", files, "src/cli may not see src/app")

    def test_evasive_paths(self):
        self.assert_breaks("base/Base.h", '#include "../model/Model.h"', "path from src/")
        self.assert_breaks("base/Base.h", '  #  include "Model.h"', "path from src/")
        self.assert_breaks("base/Base.h", '#include "base/Missing.h"', "there is no")
        self.assert_breaks("extra/Extra.h", "", "no folder of the house")

    def test_widgets_below_the_interface(self):
        for header in ["QWidget", "QtWidgets/QLabel", "QtWidgets", "QApplication", "QListView"]:
            self.assert_breaks("model/Model.cpp", f"#include <{header}>", "without widgets")
        self.assert_breaks("cli/main.cpp", "#include <QMessageBox>", "without widgets")

    def test_c_libraries_in_headers(self):
        for header in ["sqlite3.h", "hb-ot.h", "fontconfig/fontconfig.h", "unicode/ubidi.h"]:
            self.assert_breaks("model/Model.h", f"#include <{header}>", "C library")

    def test_upward_links(self):
        self.assert_breaks("text/CMakeLists.txt", "target_link_libraries(lorva_text PRIVATE lorva_model)", "may not link")

    def test_an_empty_tree_is_no_success(self):
        self.assertEqual(self.run_on("check-layers", {})[0], 2)


class CheckSleeps(CheckCase):
    def test_sleeps_are_found(self):
        for line in ["std::this_thread::sleep_for(1ms);", "QTest::qWait(50);", "usleep(10);", "::sleep(1);",
                     "QThread::msleep(5);", "nanosleep(&t, nullptr);", "sleep_until(later);"]:
            self.assert_found("check-sleeps", {"ui/Test.cpp": f"void f() {{ {line} }}\n"}, "ui/Test.cpp:1")

    def test_waiting_is_not_sleeping(self):
        self.assert_clean("check-sleeps", {"Test.cpp": "// no sleep_for( here\nwaitFor(done); QTest::qWaitFor(done);\n"
                                                       "fox.sleep(); asleep();\n"})


SOURCE = """#include <QCoreApplication>
struct Texts { Q_DECLARE_TR_FUNCTIONS(Texts) };
QString text(int n) { return Texts::tr("&Open %1…") + Texts::tr("%n fonts", nullptr, n); }
QString lines() { return Texts::tr("<b>One</b>\\ntwo\\nthree"); }
"""
TS = """<?xml version="1.0" encoding="utf-8"?><!DOCTYPE TS><TS version="2.1" language="{0}" sourcelanguage="en">
<context><name>Texts</name>{1}<message numerus="yes"><source>%n fonts</source>
<translation>{2}</translation></message></context></TS>"""
LINES = "<message><source>&lt;b&gt;One&lt;/b&gt;\ntwo\nthree</source><translation>{}</translation></message>"
FORM = "<numerusform>{}</numerusform>"
OPEN = "<message><source>&amp;Open %1…</source><translation>{}</translation></message>"


class CheckTranslations(CheckCase):
    def tree(self, **changed):
        """A sound tree but for the German translations that are given."""
        files = {f"scripts/{name}": (SCRIPTS / name).read_text(encoding="utf-8") for name in ("lib.sh", "translations")}
        files["src/a.cpp"] = changed.get("source", SOURCE)
        opening = {"de": changed.get("opening", "&amp;Öffnen: %1…")}
        lines = {"de": changed.get("lines", "&lt;b&gt;Eins&lt;/b&gt;\nzwei\ndrei")}
        plural = {"en": FORM.format("1 font") + FORM.format("%n fonts"), "ja": changed.get("only", FORM.format("%n")),
                  "de": changed.get("plural", FORM.format("Eine Schrift") + FORM.format("%n Schriften"))}
        for language in ("en", "de", "ja", "ko", "zh_CN", "zh_TW"):
            first = "" if language == "en" else (OPEN.format(opening.get(language, "%1(&amp;O)…")) +
                                                 LINES.format(lines.get(language, "&lt;b&gt;1&lt;/b&gt;\n2\n3")))
            files[f"resources/translations/lorva_{language}.ts"] = TS.format(
                language, first, plural.get(language, FORM.format("%n")))
        return files

    def test_sound_translations_pass(self):
        self.assert_clean("check-translations", self.tree())

    def test_faults_of_translations(self):
        for changed, words in [({"opening": ""}, "no translation"), ({"opening": "&amp;Öffnen…"}, "places"),
                               ({"opening": "Öffnen: %1…"}, "mnemonics"), ({"opening": "&amp;Öffnen: %1"}, "ellipsis"),
                               ({"opening": "&amp;Öffnen: %1… "}, "white space"),
                               ({"lines": "&lt;b&gt;Eins&lt;/b&gt;\nzwei, drei"}, "line breaks"),
                               ({"lines": "Eins\nzwei\ndrei"}, "markup"),
                               ({"plural": FORM.format("%n Schriften")}, "1 forms"),
                               ({"plural": FORM.format("1") + FORM.format("Schriften")}, "places")]:
            with self.subTest(words=words):
                self.assert_found("check-translations", self.tree(**changed), "lorva_de.ts: Texts", words)

    def test_only_a_singular_may_do_without_its_number(self):
        self.assert_clean("check-translations", self.tree(plural=FORM.format("Eine") + FORM.format("%n Schriften")))
        tree = self.tree(only=FORM.format("フォント"))
        self.assert_found("check-translations", tree, "lorva_ja.ts: Texts", "places")

    def test_texts_that_are_not_translated(self):
        more = SOURCE + 'QString more() { return Texts::tr("More"); }\n'
        self.assert_found("check-translations", self.tree(source=more), "“More” is not in it")
        self.assert_found("check-translations", self.tree(source=SOURCE.replace("Open", "Show")), "is not in the code")
        lost = "namespace lorva { class Lost { QString text() { return tr(\"Lost\"); } }; }\n"
        self.assert_found("check-translations", self.tree(source=SOURCE + lost), "lacks Q_OBJECT")

    def test_a_context_that_nothing_declares(self):
        template = """#include <QCoreApplication>
        namespace lorva { namespace {
        struct Others { Q_DECLARE_TR_FUNCTIONS(Menu) };
        template <class T> void show(T object) {
            QObject::connect(add(Others::tr("More")), object);
        }
        }}
        """
        files = dict(self.tree(), **{"src/b.cpp": template})
        self.assert_found("check-translations", files, "Others: “More” is filed under a context that nothing declares")


if __name__ == "__main__":
    unittest.main()
