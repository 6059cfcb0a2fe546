#!/usr/bin/env python3
"""Plays the first night of the sample game in the real DOSBox, from its title to the DOS prompt.

    play_star_test.py <folder with GAME.COM> [--keys FILE] [--dos FOLDER] [--mapper FILE]

The game runs on a copy in a temporary folder, with a dosbox.conf such as the launcher writes. The
recorded keys are sent by the clock; what came of them is read from the files that the game leaves.
--dos names the folder of the DOS tools; without it the one of the installation that the game's
folder lies in is taken, and without that the game starts all the same.
"""

import argparse
import pathlib
import re
import shutil
import sys
import tempfile
import time

from real_dosbox import REPOSITORY, Dosbox, Screen, wait_until

FOLDER_NAME = (REPOSITORY / "samples/star/folder.txt").read_text("utf-8").strip()
KEYS = REPOSITORY / "samples/star/level1.keys"
MAPPER = REPOSITORY / "mapper/mapper_default.txt"

CONF = """[sdl]
fullscreen=false
output=surface
mapperfile={mapper}

[cpu]
cycles=auto

[autoexec]
SET SOUND=X:\\SB16
SET MIDI=SYNTH:1 MAP:E
SET GAMEROOT={game}
Mount x ../../Dos/Util
PATH X:\\MDIR;Y:\\ULTRASND;Z:\\
X:\\SB16\\DIAGNOSE /S
X:\\SB16\\MIXERSET /P /Q
MIXER MASTER 100:100 SPKR 100:100 SB 100:100 FM 100:100
Mount c "{game}"
Mount Y ../../DOS/GUS
SET PROPATS=Y:\\PPL161
c:
game.com
exit
"""


def read_keys(path):
    """Rows of milliseconds, key and "down" or "up"."""
    rows = []
    for line in path.read_text("utf-8").splitlines():
        if line.strip() and not line.startswith("#"):
            milliseconds, key, direction = line.split()
            assert direction in ("down", "up"), line
            rows.append((int(milliseconds), key, direction))
    return rows


def install(root, options):
    """Lays out the installation; the game's folder and that of dosbox.conf."""
    game = root / "Games" / FOLDER_NAME
    shutil.copytree(options.folder, game)
    for left_over in ("READY.TXT", "LAST.TXT", "SCORES.DAT"):
        (game / left_over).unlink(missing_ok=True)
    conf = root / "DOSBox" / "0.74"
    conf.mkdir(parents=True)
    if options.dos.is_dir():
        shutil.copytree(options.dos, root / "Dos")
        (root / "DOS").symlink_to("Dos")
    text = CONF.format(mapper=options.mapper.resolve(), game=game)
    (conf / "dosbox.conf").write_bytes(text.replace("\n", "\r\n").encode("utf-8"))
    return game, conf


def text_of(path):
    return path.read_text("ascii") if path.exists() else ""


def check_title(screen, window):
    """The title is a picture, not a few letters: eight colours besides black at least."""
    wait_until(lambda: len(screen.colours(window) - {0}) >= 8, 3, "the title in eight colours")


def play(screen, rows, is_done):
    """Sends the keys by the clock until all are sent or the night is done; none stays down."""
    start = time.monotonic()
    held = set()
    for milliseconds, key, direction in rows:
        while time.monotonic() - start < milliseconds / 1000 and not is_done():
            time.sleep(0.02)
        if is_done():
            break
        screen.run(["xdotool", "key" + direction, key])
        held = held | {key} if direction == "down" else held - {key}
    for key in held:
        screen.run(["xdotool", "keyup", key])


def leave(screen, dosbox, game):
    """Gives up the second night, enters initials, and leaves by the title to DOS."""

    def press_until(condition, keys, what):
        def press():
            if not condition():
                screen.key(*keys)
                time.sleep(0.8)
            return condition()

        wait_until(press, 20, what)

    log = game / "LAST.TXT"
    press_until(lambda: "GAME OVER" in text_of(log), ["Escape"], "Esc ends the game")
    scores = game / "SCORES.DAT"
    press_until(scores.exists, ["s", "s", "s", "Return"], "the initials are taken")
    press_until(dosbox.ended, ["Escape"], "Esc leaves the game, and DOSBox ends")
    assert dosbox.process.returncode == 0, f"DOSBox ended with {dosbox.process.returncode}"


def check_scores(game):
    """The table has five sound lines, the best first, and among them the game just played."""
    lines = text_of(game / "SCORES.DAT").splitlines()
    rows = [re.fullmatch(r"([A-Z ]{3}) (\d{6}) (\d\d)", line) for line in lines]
    assert len(rows) == 5 and all(rows), lines
    points = [row[2] for row in rows]
    assert points == sorted(points, reverse=True), lines
    own = re.search(r"GAME OVER LEVEL (\d\d) SCORE (\d{6})", text_of(game / "LAST.TXT"))
    assert any(row[1][0] == "S" and row[2] == own[2] and row[3] == own[1] for row in rows), lines


def run(root, options):
    game, conf = install(root, options)
    log = game / "LAST.TXT"
    rows = read_keys(options.keys)

    def is_done():
        return "LEVEL 01 DONE" in text_of(log)

    with Screen(root) as screen:
        dosbox = Dosbox(screen, conf)
        try:
            wait_until((game / "READY.TXT").exists, 10, "READY.TXT, that is, the title")
            check_title(screen, dosbox.window())
            play(screen, rows, is_done)
            wait_until(is_done, 5, f"the first night is counted; the log: {text_of(log)!r}")
            leave(screen, dosbox, game)
            check_scores(game)
        except AssertionError:
            print(dosbox.output.read_text("utf-8", "replace"), file=sys.stderr)
            raise
    print(text_of(log), end="")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("--keys", type=pathlib.Path, default=KEYS)
    parser.add_argument("--dos", type=pathlib.Path)
    parser.add_argument("--mapper", type=pathlib.Path, default=MAPPER)
    options = parser.parse_args()
    if options.dos is None:
        options.dos = options.folder.resolve().parents[1] / "Dos"
    with tempfile.TemporaryDirectory() as folder:
        run(pathlib.Path(folder), options)


if __name__ == "__main__":
    main()
