#!/usr/bin/env python3
"""Gives 주는 대로 적기 (Tell) texts, files and keys: tell_test.py <staged folder>"""

import shutil

from real_dosbox import Dosbox, Screen, note_level, run_in_temporary_folder, wait_until

CONF = """[sdl]
output=surface

[autoexec]
Mount c "{drive}"
Mount d "{disc}" -t cdrom
c:
{commands}
"""

LONGEST = "1234567890" * 12 + "abcde"  # and a blank before it: 126
DISC_BYTES = bytes(range(256)) * 300 + b"end\x1a"  # more than one turn of the copying

# Each case: commands before, the command, the errorlevel, the lines of TELL.TXT, what was copied.
# DOSBox parts a switch from the name before it by a blank, and drops blanks at the end.
CASES = [
    ("", "tell one", 0, ["C:\\TOOL", " one"], None),
    ("", "tell   two  words,100; ", 0, ["C:\\TOOL", "   two  words,100;"], None),
    ("", 'tell "in quotes" and "so" on', 0, ["C:\\TOOL", ' "in quotes" and "so" on'], None),
    ("", "tell.com/x=+[]!", 0, ["C:\\TOOL", " /x=+[]!"], None),
    ("", "tell 받은 말", 0, ["C:\\TOOL", " 받은 말"], None),
    ("", f"tell {LONGEST}", 0, ["C:\\TOOL", " " + LONGEST], None),
    ("cd \\\n", "tool\\tell from the root", 0, ["C:\\", " from the root"], None),
    ("d:\ncd DEEP\n", "c:tell from the disc", 0, ["D:\\DEEP", " from the disc"], None),
    ("", "tell /copy d:\\disc.dat", 0, ["C:\\TOOL", " /copy d:\\disc.dat"], DISC_BYTES),
    ("", 'tell /COPY  "D:\\EMPTY" ', 0, ["C:\\TOOL", ' /COPY  "D:\\EMPTY"'], b""),
    ("d:\ncd DEEP\n", "c:tell /COPY BELOW.TXT", 0, ["D:\\DEEP", " /COPY BELOW.TXT"], b"below"),
    ("", "tell /COPYING d:\\disc.dat", 0, ["C:\\TOOL", " /COPYING d:\\disc.dat"], b"below"),
    ("", "tell /COPY", 0, ["C:\\TOOL", " /COPY"], b"below"),
    ("", "tell /COPY D:\\GONE.DAT", 2, ["C:\\TOOL", " /COPY D:\\GONE.DAT"], None),
    ("", "tell /COPY E:\\DISC.DAT", 2, ["C:\\TOOL", " /COPY E:\\DISC.DAT"], None),
    ("", "d:\\tell on a disc that can't be written", 1, None, None),
]
WRITTEN = ("TELL.TXT", "COPIED.TXT", "READY.TXT")


def batch():
    """Runs all cases and keeps what each left, its number before the name."""
    lines = ["@echo off"]
    for number, (before, command, *_) in enumerate(CASES):
        lines += ["c:", "cd \\TOOL", *before.splitlines(), command]
        lines += note_level(number, f"C:\\LEVEL{number}.TXT") + ["c:", "cd \\TOOL"]
        for name in WRITTEN:
            lines.append(f"if exist {name} copy {name} C:\\{number}{name} > nul")
            if name != "COPIED.TXT":  # that one stays until a copy is asked for
                lines.append(f"if exist {name} del {name}")
    return "\r\n".join(lines + ["echo done > C:\\DONE.TXT", ""])


def bytes_of(path):
    return path.read_bytes() if path.exists() else None


def check_cases(drive):
    wrong = []
    for number, (_, command, level, lines, copied) in enumerate(CASES):
        got = [bytes_of(drive / f"{number}{name}") for name in WRITTEN]
        got.append(bytes_of(drive / f"LEVEL{number}.TXT").strip())
        told = "".join(line + "\r\n" for line in lines).encode("cp949") if lines else None
        ready = b"READY\r\n" if lines else None
        if got != [told, copied, ready, str(level).encode()]:
            wrong.append(f"{command}: {got}"[:400])
    assert not wrong, "\n".join(wrong)


def check_screen(screen, dosbox, tool):
    """Without text a screen asks; Esc leaves it, and nothing is written."""
    ready = tool / "READY.TXT"
    wait_until(ready.exists, 15, "READY.TXT, that is, the screen that asks")
    assert not (tool / "TELL.TXT").exists(), "TELL.TXT before the line"
    window = dosbox.window()
    wait_until(lambda: len(screen.colours(window)) >= 6, 5, "paper, panel, field and three inks")
    screen.key("Escape")
    wait_until((tool / "LEFT.TXT").exists, 5, "Esc leaves")
    assert not (tool / "TELL.TXT").exists(), "Esc writes"


def check_line(screen, dosbox, tool):
    """Types more than there is room for, takes a character back, and gives the line."""
    wait_until((tool / "READY.TXT").exists, 15, "the screen that asks once more")
    dosbox.window()
    screen.key("BackSpace", "a", "space", *["b"] * 130, "BackSpace", "shift+c", "Return")
    wait_until(dosbox.ended, 10, "the line is taken, and DOSBox ends")
    told = bytes_of(tool / "TELL.TXT")
    assert told == b"C:\\TOOL\r\na " + b"b" * 123 + b"C\r\n", told


def run(root, staged):
    drive, disc = root / "drive", root / "disc"
    tool = drive / "TOOL"
    shutil.copytree(staged, tool)
    (disc / "DEEP").mkdir(parents=True)
    (disc / "DISC.DAT").write_bytes(DISC_BYTES)
    (disc / "EMPTY").write_bytes(b"")
    shutil.copy(tool / "TELL.COM", disc)
    (disc / "DEEP/BELOW.TXT").write_bytes(b"below")
    (drive / "RUN.BAT").write_text(batch(), "cp949", newline="")
    commands = "call RUN.BAT\ntell.com  \ndel READY.TXT\necho left > LEFT.TXT\ntell.com\nexit"
    conf = CONF.format(drive=drive, disc=disc, commands=commands)
    (root / "dosbox.conf").write_text(conf, "utf-8", newline="\r\n")
    with Screen(root) as screen:
        dosbox = Dosbox(screen, root)
        wait_until((drive / "DONE.TXT").exists, 30, "the batch file ends")
        check_cases(drive)
        check_screen(screen, dosbox, tool)
        check_line(screen, dosbox, tool)


if __name__ == "__main__":
    run_in_temporary_folder(run)
