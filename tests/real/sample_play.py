"""Plays a sample game in the real DOSBox, from its title to the DOS prompt.

The game runs on a copy in a temporary folder, with a dosbox.conf such as the launcher writes. The
recorded keys are sent by the clock, from screen to screen; what came of them is read from the files
that the game leaves.
A test names what is its game's own in a Game and calls play_sample.
"""

import dataclasses
import pathlib
import shutil
import sys
import time
import typing

from real_dosbox import (
    MAPPER,
    REPOSITORY,
    Dosbox,
    Screen,
    run_in_temporary_folder,
    wait_until,
)

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

COMMANDS = {"down": "keydown", "up": "keyup", "tap": "key"}


@dataclasses.dataclass
class Game:
    """What differs from one sample to the next."""

    sample: str  # its folder below samples/
    keys: str  # the recorded keys there
    done: str  # what LAST.TXT holds when they did their work
    leave: typing.Callable  # (Playing): goes from there to the DOS prompt
    check: typing.Callable  # (folder of the game): looks at the files that it left


@dataclasses.dataclass
class Playing:
    screen: Screen
    dosbox: Dosbox
    game: pathlib.Path

    def log(self):
        return text_of(self.game / "LAST.TXT")

    def press_until(self, condition, keys, what):
        """Presses the keys again and again until the condition holds."""

        def press():
            if not condition():
                self.screen.key(*keys)
                time.sleep(0.8)
            return condition()

        wait_until(press, 20, what)


def read_keys(path):
    """Scenes, each a list of rows of milliseconds, key and "down", "up" or "tap"."""
    scenes = [[]]
    for line in path.read_text("utf-8").splitlines():
        if line == "screen":
            scenes.append([])
        elif line.strip() and not line.startswith("#"):
            milliseconds, key, direction = line.split()
            assert direction in COMMANDS, line
            scenes[-1].append((int(milliseconds), key, direction))
    return scenes


def install(root, sample, staged, dos):
    """Lays out the installation; the game's folder and that of dosbox.conf."""
    folder_name = (REPOSITORY / "samples" / sample / "folder.txt").read_text("utf-8").strip()
    game = root / "Games" / folder_name
    shutil.copytree(staged, game)
    for left_over in ("READY.TXT", "LAST.TXT", "SCORES.DAT"):
        (game / left_over).unlink(missing_ok=True)
    conf = root / "DOSBox" / "0.74"
    conf.mkdir(parents=True)
    shutil.copytree(dos, root / "Dos")
    (root / "DOS").symlink_to("Dos")
    text = CONF.format(mapper=MAPPER, game=game)
    (conf / "dosbox.conf").write_bytes(text.replace("\n", "\r\n").encode("utf-8"))
    return game, conf


def text_of(path):
    return path.read_text("ascii") if path.exists() else ""


def check_title(screen, window):
    """The title is a picture, not a few letters: eight colours besides black at least."""
    wait_until(lambda: len(screen.colours(window) - {0}) >= 8, 3, "the title in eight colours")


def wait_for_another_screen(screen, window, before):
    """Until most of the picture is another one in full light: a game forgets keys while it fades."""
    lights = []

    def stands():
        now = screen.pixels(window)
        lights.append(max(max(colour.to_bytes(3, "big")) for colour in set(now)) if now else 0)
        changed = sum(a != b for a, b in zip(before, now, strict=False))
        full = len(lights) > 3 and len(set(lights[-4:])) == 1 and lights[-1] > 150
        return full and changed > len(before) / 4

    wait_until(stands, 20, "another screen in full light")


def play(screen, rows, is_done):
    """Sends the keys by the clock until all are sent or the night is done; none stays down."""
    start = time.monotonic()
    held = set()
    for milliseconds, key, direction in rows:
        while time.monotonic() - start < milliseconds / 1000 and not is_done():
            time.sleep(0.02)
        if is_done():
            break
        screen.run(["xdotool", COMMANDS[direction], key])
        held = held | {key} if direction == "down" else held - {key}
    for key in held:
        screen.run(["xdotool", "keyup", key])


def run(root, sample, staged, dos):
    game, conf = install(root, sample.sample, staged, dos)
    scenes = read_keys(REPOSITORY / "samples" / sample.sample / sample.keys)
    with Screen(root) as screen:
        playing = Playing(screen, Dosbox(screen, conf), game)
        dosbox = playing.dosbox

        def is_done():
            return sample.done in playing.log()

        try:
            wait_until((game / "READY.TXT").exists, 10, "READY.TXT, that is, the title")
            window = dosbox.window()
            check_title(screen, window)
            for number, rows in enumerate(scenes):
                before = screen.pixels(window)
                play(screen, rows, is_done)
                if number + 1 < len(scenes):
                    wait_for_another_screen(screen, window, before)
            wait_until(is_done, 5, f"{sample.done!r} in the log, which is {playing.log()!r}")
            sample.leave(playing)
            assert dosbox.process.returncode == 0, f"DOSBox: {dosbox.process.returncode}"
            sample.check(game)
        except AssertionError:
            print(dosbox.output.read_text("utf-8", "replace"), file=sys.stderr)
            raise
    print(playing.log(), end="")


def play_sample(sample):
    """The main program of a test; its arguments: the game's staged folder, that of the DOS tools."""
    run_in_temporary_folder(lambda root, staged, dos: run(root, sample, staged, dos))
