# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""What an installation consists of, and whether the desktop can read it.

packaging_test.py BUILD-FOLDER [CASE…]
"""

import configparser
import contextlib
import fnmatch
import json
import os
import pathlib
import select
import shlex
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

SOURCE = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(sys.argv.pop(1)).resolve()
LIST = SOURCE / "tests/checks/installed-files.txt"
PREFIX = "/opt/fonts"
ID = "vantrel.lorva"


def run(*command, **options):
    """What it says, with its status if that is not 0."""
    done = subprocess.run([str(word) for word in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          timeout=120, **options)
    return done.stdout + (f"\nended with {done.returncode}" if done.returncode else "")


def install(root, prefix):
    return run("cmake", "--install", BUILD, "--prefix", prefix, env={**os.environ, "DESTDIR": str(root)})


def end(process):
    """Ends a process that is not our child, and waits until it has."""
    handle = os.pidfd_open(process)
    os.kill(process, signal.SIGTERM)
    select.select([handle], [], [], 30)
    os.close(handle)


def entries(path):
    parser = configparser.ConfigParser(interpolation=None, strict=True)
    parser.optionxform = str
    parser.read_string(path.read_text(encoding="utf-8"))
    return parser


class Installed(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.root = pathlib.Path(cls.enterClassContext(tempfile.TemporaryDirectory()))
        cls.said = install(cls.root, PREFIX)
        cls.prefix = pathlib.Path(str(cls.root) + PREFIX)
        cls.share = cls.prefix / "share"

    def test_every_file_is_where_it_belongs_and_nothing_else(self):
        wanted = [line for line in LIST.read_text(encoding="utf-8").splitlines() if line and line[0] != "#"]
        there = {str(file.relative_to(self.root)) for file in self.root.rglob("*") if not file.is_dir()}
        patterns = [PREFIX[1:] + "/" + line for line in wanted]
        lacking = [pattern for pattern in patterns if not fnmatch.filter(there, pattern)]
        strange = [file for file in there if not any(fnmatch.fnmatchcase(file, pattern) for pattern in patterns)]
        how = f"mend the install() rules in packaging/, or {LIST.relative_to(SOURCE)}\n{self.said}"
        self.assertEqual(([], []), (lacking, sorted(strange)), "not installed, and not expected; " + how)

    def test_everybody_may_read_it_and_start_the_programs(self):
        for file in self.root.rglob("*"):
            mode = file.stat().st_mode & 0o777
            program = file.is_dir() or file.parent.name == "bin"
            self.assertEqual(0o755 if program else 0o644, mode, f"{file}: {mode:o}")

    def test_pictures_have_the_size_of_their_folder_and_are_not_empty(self):
        for file in self.share.rglob("*.png"):
            data = file.read_bytes()
            size = int(file.parts[-3].split("x")[0])
            self.assertEqual((size, size), struct.unpack(">II", data[16:24]), file)
            self.assertGreater(len(data), 300, f"{file} shows nothing")

    def test_desktop_entry(self):
        file = self.share / f"applications/{ID}.desktop"
        self.assertEqual("", run("desktop-file-validate", file))
        parser = entries(file)
        answered = (SOURCE / "src/platform/linux/InstanceAdaptors.cpp").read_text(encoding="utf-8")
        for name in parser["Desktop Entry"]["Actions"].strip(";").split(";"):
            # With D-Bus activation an action is only a word, which the program must know.
            self.assertIn(f'"{name}"', answered)
            self.assertIn(f"Desktop Action {name}", parser)
        for key in ["GenericName", "Comment", "Keywords"]:
            for language in ["de", "ja", "ko", "zh_CN", "zh_TW"]:
                self.assertIn(f"{key}[{language}]", parser["Desktop Entry"])

    def test_thumbnailer_draws_what_the_program_opens(self):
        entry = entries(self.share / f"thumbnailers/{ID}.thumbnailer")["Thumbnailer Entry"]
        opened = entries(self.share / f"applications/{ID}.desktop")["Desktop Entry"]
        self.assertEqual(opened["MimeType"], entry["MimeType"])
        programs = {**os.environ, "PATH": f"{self.prefix}/bin", "LC_ALL": "C.UTF-8"}
        self.assertTrue(shutil.which(entry["TryExec"], path=programs["PATH"]))
        folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        font, picture = folder / "a font's 100%.ttf", folder / "new.png"
        shutil.copy("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf", font)
        given = {"%s": "128", "%i": font, "%o": picture}
        command = [given.get(word, word) for word in shlex.split(entry["Exec"])]
        self.assertLessEqual(set(given.values()), set(command))
        self.assertEqual("", run(*command, env=programs))
        self.assertEqual((128, 128), struct.unpack(">II", picture.read_bytes()[16:24]))

    def test_metainfo(self):
        file = self.share / f"metainfo/{ID}.lorva.metainfo.xml"
        said = run("appstreamcli", "validate", "--no-net", "--no-color", file)
        self.assertNotRegex(said, r"(?m)^[EW]:|ended with", said)
        component = ElementTree.parse(file).getroot()
        types = entries(self.share / f"applications/{ID}.desktop")["Desktop Entry"]["MimeType"].split(";")
        for provided in component.findall("provides/mediatype"):
            self.assertIn(provided.text, types, "the desktop entry must open what the metainfo promises")
        for provided in component.findall("provides/binary"):
            self.assertTrue((self.prefix / "bin" / provided.text).is_file(), provided.text)
        version = project_version()
        self.assertEqual(version, component.find("releases/release").get("version"), "the newest release is this one")

    def test_file_types(self):
        data = self.enterContext(tempfile.TemporaryDirectory())
        shutil.copytree(self.share / "mime", f"{data}/mime")
        dirs = {**os.environ, "XDG_DATA_HOME": f"{data}/none", "XDG_DATA_DIRS": f"{data}:/usr/share"}
        self.assertEqual("", run("update-mime-database", f"{data}/mime", env=dirs))
        # The first bytes of a resource fork, which are those of a well-known kind of icon file, too.
        fork = struct.pack(">IIII", 256, 300, 44, 50)
        for name, content, wanted in [("A.dfont", fork, "application/x-lorva-font-suitcase"),
                                      ("b.DFONT", fork, "application/x-lorva-font-suitcase"),
                                      ("c.ttf", b"\0\1\0\0", "font/ttf"), ("d.ttc", b"ttcf", "font/collection"),
                                      ("e.ico", b"\0\0\1\0\1\0", "image/vnd.microsoft.icon")]:
            file = pathlib.Path(data, name)
            file.write_bytes(content)
            said = run("gio", "info", "-a", "standard::content-type", file, env=dirs)
            self.assertIn(f"content-type: {wanted}\n", said, name)

    @contextlib.contextmanager
    def bus(self, home):
        config = pathlib.Path(home, "bus.conf")
        config.write_text(f"""<busconfig><type>session</type><listen>unix:dir={home}</listen>
            <servicedir>{home}/services</servicedir>
            <policy context="default"><allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/></policy>
            </busconfig>""",
                          encoding="utf-8")
        environment = {"HOME": home, "PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8", "QT_QPA_PLATFORM": "offscreen",
                       "XDG_RUNTIME_DIR": home}
        daemon = subprocess.Popen(["dbus-daemon", f"--config-file={config}", "--nofork", "--print-address"],
                                  stdout=subprocess.PIPE, text=True, env=environment)
        try:
            yield daemon.stdout.readline().strip()
        finally:
            daemon.terminate()
            daemon.wait()
            daemon.stdout.close()

    def test_the_bus_starts_the_program(self):
        home = self.enterContext(tempfile.TemporaryDirectory())
        service = (self.share / f"dbus-1/services/{ID}.service").read_text(encoding="utf-8")
        self.assertIn(f"\nExec={PREFIX}/bin/lorva\n", service)
        pathlib.Path(home, "services").mkdir()
        pathlib.Path(home, "services", f"{ID}.service").write_text(
            service.replace(f"Exec={PREFIX}", f"Exec={self.prefix}"), encoding="utf-8")
        with self.bus(home) as address:
            call = ["gdbus", "call", "--address", address, "--timeout", "60", "--dest"]
            said = run(*call, ID, "--object-path", "/vantrel/lorva",
                       "--method", "org.freedesktop.Application.Activate", "{}")
            process = run(*call, "org.freedesktop.DBus", "--object-path", "/",
                          "--method", "org.freedesktop.DBus.GetConnectionUnixProcessID", ID)
            self.assertRegex(process, r"^\(uint32 \d+,\)", said)
            end(int(process.split()[1].rstrip(",)\n")))
            self.assertEqual("()\n", said)


def project_version():
    for line in (BUILD / "CMakeCache.txt").read_text(encoding="utf-8").splitlines():
        if line.startswith("CMAKE_PROJECT_VERSION:"):
            return line.split("=")[1]
    return None


class Debian(unittest.TestCase):
    """What was built for the tests is no package for users (unoptimised, not hardened), but it shows whether
    the rules make a sound one. scripts/package makes the real one and lets lintian's warnings fail as well."""

    def test_package_is_sound(self):
        with tempfile.TemporaryDirectory() as folder:
            said = run("cpack", "--config", BUILD / "CPackConfig.cmake", "-B", folder,
                       "-D", "CPACK_DEBIAN_COMPRESSION_TYPE=gzip")
            packages = list(pathlib.Path(folder).glob("*.deb"))
            self.assertEqual(1, len(packages), said)
            version = run("dpkg-deb", "-f", packages[0], "Version").strip()
            changelog = (SOURCE / "packaging/debian/changelog").read_text(encoding="utf-8")
            self.assertEqual(project_version() + "-1", version)
            self.assertIn(f"lorva ({version})", changelog.splitlines()[0], "the newest entry is this version's")
            self.assertRegex(run("dpkg-deb", "-f", packages[0], "Depends"), "librsvg2-2, .*libqt6widgets6")
            faults = run("lintian", "--allow-root", "--fail-on", "error", packages[0])
            self.assertNotRegex(faults, r"(?m)^E:|ended with", faults)


class Flatpak(unittest.TestCase):
    def test_manifest_fits_the_program(self):
        folder = SOURCE / "packaging/flatpak"
        component = ElementTree.parse(SOURCE / f"packaging/desktop/{ID}.lorva.metainfo.xml").getroot()
        name = component.find("id").text
        manifest = json.loads((folder / f"{name}.json").read_text(encoding="utf-8"))
        self.assertEqual(name, manifest["id"])
        self.assertGreaterEqual(len(name.split(".")), 3)
        self.assertIn(f"--own-name={ID}", manifest["finish-args"])
        ours = manifest["modules"][-1]
        self.assertEqual((ID, f"{ID}.desktop"), (manifest["rename-icon"], manifest["rename-desktop-file"]))
        self.assertIn(manifest["command"], " ".join(ours["post-install"]))
        for source in ours["sources"]:
            self.assertTrue((folder / source["path"]).exists(), source)
        # Only what begins with the application's id reaches the host.
        moves = [shlex.split(step)[1:] for step in ours["post-install"] if step.startswith("mv ")]
        moved = {old.removeprefix("${FLATPAK_DEST}/"): pathlib.PurePath(new).name for old, new in moves}
        self.assertEqual({f"share/mime/packages/{ID}.xml": f"{name}.xml"}, moved)
        self.assertLessEqual(moved.keys(), set(LIST.read_text(encoding="utf-8").splitlines()))


if __name__ == "__main__":
    unittest.main()
