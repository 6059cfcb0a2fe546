#!/usr/bin/env python3
"""Turns the pages of 빛의 그림첩 (Album): show_album_test.py <staged folder>"""

import shutil
import time

from real_dosbox import Dosbox, Screen, run_in_temporary_folder, wait_until

PICTURES = 7
PICTURE_BYTES = 768 + 320 * 200
OWN_COLOURS = 240  # from here on the palette and the pixels are the program's
LEAST_COLOURS = 64
SHOWN_SECONDS = 12  # then the next picture comes by itself

CONF = """[sdl]
output=surface

[autoexec]
Mount c "{folder}"
c:
{commands}
exit
"""


def check_pictures(folder):
    """Each picture has colours of its own, six bits a part, and leaves those of the text alone."""
    held = (folder / "PICTURES.DAT").read_bytes()
    assert len(held) == PICTURES * PICTURE_BYTES, len(held)
    palettes = set()
    for number in range(PICTURES):
        picture = held[number * PICTURE_BYTES :][:PICTURE_BYTES]
        palette, pixels = picture[:768], picture[768:]
        assert max(palette) <= 63, f"picture {number}: {max(palette)} in the palette"
        assert max(pixels) < OWN_COLOURS, f"picture {number}: pixel {max(pixels)}"
        assert len(set(pixels)) >= LEAST_COLOURS, f"picture {number}: {len(set(pixels))} colours"
        palettes.add(palette)
    assert len(palettes) == PICTURES, "two pictures with the same palette"


class Album:
    """The album on the screen."""

    def __init__(self, screen, root, folder, commands):
        (folder / "READY.TXT").unlink(missing_ok=True)
        conf = root / "dosbox.conf"
        conf.write_text(CONF.format(folder=folder, commands=commands), "utf-8")
        self.screen = screen
        self.dosbox = Dosbox(screen, root)

    def picture(self, what, other_than=(), seconds=8):
        """Waits for another picture in full light: in many colours, the same for a while."""
        window, looks = self.dosbox.window(), []

        def stands():
            looks.append(self.screen.pixels(window))
            return (
                looks[-4:] == looks[-1:] * 4
                and looks[-1] != other_than
                and len(set(looks[-1])) >= LEAST_COLOURS
            )

        wait_until(stands, seconds, what)
        return looks[-1]

    def again(self, what, pixels):
        """Waits for what was seen before."""
        window = self.dosbox.window()
        wait_until(lambda: self.screen.pixels(window) == pixels, 8, what)


def check_keys(screen, root, folder):
    album = Album(screen, root, folder, "album.com")
    wait_until((folder / "READY.TXT").exists, 15, "READY.TXT, that is, the first picture")
    shown = album.picture("the first picture")
    screen.key("p")
    with_help = album.picture("the pause is told", shown)
    screen.key("h")
    first = album.picture("the help goes", with_help)
    screen.key("Right")
    second = album.picture("the second picture", first)
    screen.key("Left")
    album.again("the first picture", first)
    screen.key("Page_Up")
    last = album.picture("the last picture before the first", first)
    assert last != second
    screen.key("space")
    album.again("the first picture behind the last", first)
    screen.key("c")
    album.picture("the caption goes", first)
    screen.key("c")
    album.again("the caption comes back", first)
    time.sleep(SHOWN_SECONDS + 1)
    assert screen.pixels(album.dosbox.window()) == first, "the pause does not hold"
    screen.key("p")
    number = album.picture("the number stands in place of the pause", first)
    album.picture("the next picture by itself", number, SHOWN_SECONDS + 8)
    screen.key("Escape")
    wait_until(album.dosbox.ended, 8, "Esc leaves the album, and DOSBox ends")
    assert album.dosbox.process.returncode == 0, album.dosbox.process.returncode


def check_cut_file(screen, root, folder):
    """Without whole pictures it says so and ends with 1, without a screen of its own."""
    pictures = folder / "PICTURES.DAT"
    pictures.write_bytes(pictures.read_bytes()[:-1])
    commands = "album.com > SAID.TXT\nif errorlevel 1 exit\necho zero > LEVEL.TXT"
    album = Album(screen, root, folder, commands)
    wait_until(album.dosbox.ended, 15, "the album ends by itself")
    assert "PICTURES.DAT" in (folder / "SAID.TXT").read_text("ascii")
    assert not (folder / "LEVEL.TXT").exists(), "it ends with 0"
    assert not (folder / "READY.TXT").exists(), "READY.TXT"


def run(root, staged):
    folder = root / "Album [3]"
    shutil.copytree(staged, folder)
    check_pictures(folder)
    with Screen(root) as screen:
        check_keys(screen, root, folder)
        check_cut_file(screen, root, folder)


if __name__ == "__main__":
    run_in_temporary_folder(run)
