#!/usr/bin/env python3
"""Stages a build as `cmake --install` does and looks at what lies there, first and after changes.

    tests/staging_test.py BUILD CMAKE    the build folder, whose "all" is built; the cmake to call
"""

import os
import pathlib
import stat
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent
STAR = (ROOT / "samples/star/folder.txt").read_text(encoding="utf-8").strip()


class Staging(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        # Blanks, brackets and Hangul are what a user's folder may be called.
        self.app = pathlib.Path(folder.name, "내 게임 [Pelorin] {1}")
        self.game = self.app / "Games" / STAR

    def stage(self, *more):
        done = subprocess.run(
            [CMAKE, "--install", BUILD, "--prefix", self.app, *more],
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            env={**os.environ, "LC_ALL": "C"},
        )
        self.assertEqual(done.returncode, 0, done.stdout.decode(errors="replace"))

    def snapshot(self):
        """Everything below the AppDir: what a name is, and what it holds."""
        found = {}
        for path in self.app.rglob("*"):
            name = str(path.relative_to(self.app))
            if path.is_symlink():
                found[name] = "-> " + os.readlink(path)
            else:
                found[name] = path.read_bytes() if path.is_file() else "folder"
        return found

    def write(self, name, data):
        path = self.app / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data)

    def test_a_new_installation_is_whole(self):
        self.stage()
        self.assertTrue(os.access(self.app / "Pelorin", os.X_OK))
        for build in ("0.74", "0.74_SVN"):
            folder = self.app / "DOSBox" / build
            self.assertFalse(folder.is_symlink(), "a linked folder would break ..\\..\\Dos")
            self.assertEqual(os.readlink(folder / "dosbox"), "/usr/bin/dosbox")
            self.assertEqual(os.readlink(folder / "dosbox_debug"), "/usr/bin/dosbox-debug")
        language = (self.app / "Language.dat").read_bytes()
        self.assertTrue(language.startswith("펠로린\r\n".encode("cp949")))
        self.assertEqual(language.count(b"\n"), language.count(b"\r\n"))
        for name in ("Dos/Util/SB16/MIXERSET.COM", "mapper/mapper_default.txt", "option.dat"):
            self.assertGreater((self.app / name).stat().st_size, 0, name)
        self.assertGreater((self.game / "GAME.COM").stat().st_size, 0)
        info = next(self.game.glob("*/info.txt")).read_bytes()
        self.assertIn("별".encode("cp949"), info)
        self.assertIn(b"\r\n", info)

    def test_what_the_user_changed_and_made_stays(self):
        self.stage()
        metadata = next(self.game.glob("*/info.txt")).parent.relative_to(self.app)
        for name in (
            f"{metadata}/info.txt",
            f"Games/{STAR}/SCORES.DAT",
            f"Games/{STAR}/GAME.COM",
            "Games/옛 게임 [2]/GAME.EXE",
            "Dos/Util/SB16/MIXERSET.COM",
            "mapper/mapper_default.txt",
            "mapper/mine.txt",
            "DOSBox/0.74/dosbox.conf",
            "Launcher.cfg",
            "Default.conf",
            "Gamelist.lst",
            "IconList.bmp",
            "recent.sav",
            "noupdate",
            "preset/fast.conf",
        ):
            self.write(name, b"the user's " + name.encode())
        link = self.app / "DOSBox/0.74/dosbox"
        link.unlink()
        link.symlink_to("/opt/not/there/dosbox")
        (self.app / "DOSBox/0.74_SVN/dosbox").unlink()
        self.write("DOSBox/0.74_SVN/dosbox", b"a program of its own")
        self.app.chmod(0o700)
        before = self.snapshot()
        self.stage()
        self.assertEqual(self.snapshot(), before)
        self.assertEqual(stat.S_IMODE(self.app.stat().st_mode), 0o700)

    def test_program_and_data_are_replaced_and_what_is_missing_comes_back(self):
        self.stage()
        before = self.snapshot()
        for name in ("Pelorin", "option.dat"):
            self.write(name, b"of another version")
        for name in (
            f"Games/{STAR}/GAME.COM",
            "Dos/Util/SB16/MIXERSET.COM",
            "mapper/mapper_default.txt",
            "DOSBox/0.74/dosbox_debug",
            "Language.dat",
        ):
            (self.app / name).unlink()
        self.stage()
        self.assertEqual(self.snapshot(), before)
        self.assertTrue(os.access(self.app / "Pelorin", os.X_OK))

    def test_other_cases_of_names_and_a_packed_sample_are_left_alone(self):
        self.stage()
        (self.game / "GAME.COM").unlink()
        (self.game / "store.7z").write_bytes(b"7z")
        crocks = next(path for path in (self.app / "Games").glob("*/GAME.COM"))
        crocks.rename(crocks.with_name("game.com"))
        (self.app / "Games").rename(self.app / "GAMES")
        (self.app / "Dos").rename(self.app / "DOS")
        (self.app / "DOSBox").rename(self.app / "dosbox")
        before = self.snapshot()
        self.stage()
        self.assertEqual(self.snapshot(), before)

    def test_other_words_drop_the_cached_titles(self):
        self.stage()
        self.write("Gamelist.lst", b"titles with Korean marks")
        self.write("IconList.bmp", b"icons")
        before = self.snapshot()
        self.write("Language.dat", b"Pelorin\r\n")
        self.stage()
        del before["Gamelist.lst"]
        self.assertEqual(self.snapshot(), before)

    def test_another_language_goes_over_an_installation_and_back(self):
        self.stage()
        self.write("Descript/of the user.txt", b"kept")
        self.write("Launcher.cfg", b"kept")
        korean = self.snapshot()
        self.write("Gamelist.lst", b"titles with Korean marks")
        self.stage("--component", "language_en")
        english = self.snapshot()
        self.assertTrue(english["Language.dat"].startswith(b"Pelorin\r\n"))
        self.assertIn(b"|version;", english["option.dat"])
        texts = {language: texts_of(language) for language in ("ko", "en")}
        here, gone = texts["en"], texts["ko"] - texts["en"]
        self.assertEqual(gone & set(english), set(), "texts of the other language stay")
        self.assertEqual(here - set(english), set())
        same = {name: held for name, held in korean.items() if name not in texts["ko"]}
        self.assertEqual({n: h for n, h in english.items() if n not in here}, same)

        self.write("Gamelist.lst", b"titles with English marks")
        self.stage("--component", "language_en")
        self.assertIn("Gamelist.lst", self.snapshot(), "the same words again")
        self.stage("--component", "language_ko")
        self.assertEqual(self.snapshot(), korean)

    def test_a_language_brings_nothing_but_its_texts(self):
        self.stage("--component", "language_en")
        names = {name for name, held in self.snapshot().items() if held != "folder"}
        self.assertEqual(names, texts_of("en"))


def texts_of(language):
    """The names that data/<language> has below an AppDir."""
    folder = ROOT / "data" / language
    return {str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_file()}


if __name__ == "__main__":
    BUILD, CMAKE = sys.argv[1:3]
    unittest.main(argv=sys.argv[:1])
