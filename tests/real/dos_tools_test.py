#!/usr/bin/env python3
"""Runs the DOS tools of every start in the real DOSBox, and types through the shipped key map.

    dos_tools_test.py <folder Dos of an installation>

DIAGNOSE and MIXERSET run at each start of a game, so with their switches they must print nothing,
whatever they find; the errorlevel tells what it was.
"""

import time

from real_dosbox import MAPPER, Dosbox, Screen, note_level, run_in_temporary_folder, wait_until

# DOSBox sets BLASTER=A220 I7 D1 H5 T6 by itself. Each case: that variable from here on (None: as it
# is), command, errorlevel, what must be printed; an empty text: nothing may be.
CASES = [
    (None, "DIAGNOSE /S", 0, ""),
    (None, "DIAGNOSE", 0, "The sound card answers."),
    (None, "MIXERSET", 0, "Master"),
    (None, "MIXERSET /P /Q", 0, ""),
    (None, "MIXERSET", 0, "Voice   15 15"),
    (None, "mixerset /q", 0, ""),
    ("I7 D1 a220", "diagnose /s", 0, ""),
    ("A240 I7 D1", "DIAGNOSE /S", 2, ""),
    ("A240 I7 D1", "DIAGNOSE", 2, "No sound card answers"),
    ("A240 I7 D1", "MIXERSET /P /Q", 2, ""),
    ("A2200 I7", "DIAGNOSE /S", 1, ""),
    ("I7 D1", "DIAGNOSE /S", 1, ""),
    ("", "DIAGNOSE", 1, "BLASTER names no base port"),
    ("", "DIAGNOSE /S", 1, ""),
    ("", "MIXERSET /P /Q", 1, ""),
]

CONF = """[sdl]
output=surface
mapperfile={mapper}

[autoexec]
Mount x "{dos}/Util"
Mount c "{drive}"
c:
RUN.BAT
"""

LETTERS = "abcdefghijklmnopqrstuvwxyz 0123456789"


def batch():
    lines = ["@echo off"]
    for number, (blaster, command, _, _) in enumerate(CASES):
        if blaster is not None:
            lines.append(f"SET BLASTER={blaster}")
        lines.append(f"X:\\SB16\\{command} > OUT{number}.TXT")
        lines += note_level(number, f"LEVEL{number}.TXT")
    return "\r\n".join(lines + ["echo done > DONE.TXT", ""])


def check_cases(drive):
    wrong = []
    for number, (blaster, command, level, text) in enumerate(CASES):
        got_level = (drive / f"LEVEL{number}.TXT").read_text("ascii").strip()
        got = (drive / f"OUT{number}.TXT").read_text("ascii")
        if got_level != str(level) or (text not in got if text else got):
            wrong.append(f"BLASTER={blaster!r} {command}: errorlevel {got_level}, {got!r}")
    assert not wrong, "\n".join(wrong)


def check_keys(screen, dosbox, drive):
    """All letters, digits, the blank, Shift, Backspace and Enter reach DOS through the key map."""
    dosbox.window()
    time.sleep(0.3)
    names = ["space" if letter == " " else letter for letter in f"echo {LETTERS}x"]
    screen.key(*names, "BackSpace", "shift+period", "k", "Return")
    wait_until((drive / "K").exists, 5, "the typed line makes the file K")
    typed = (drive / "K").read_text("ascii").strip()
    assert typed == LETTERS, typed
    screen.key("e", "x", "i", "t", "Return")
    wait_until(dosbox.ended, 5, "DOSBox ends")


def run(root, dos):
    drive = root / "drive"
    drive.mkdir()
    (drive / "RUN.BAT").write_text(batch(), "ascii", newline="")
    text = CONF.format(mapper=MAPPER, dos=dos, drive=drive)
    (root / "dosbox.conf").write_text(text, "utf-8", newline="\r\n")
    with Screen(root) as screen:
        dosbox = Dosbox(screen, root)
        wait_until((drive / "DONE.TXT").exists, 15, "the batch file ends")
        check_cases(drive)
        check_keys(screen, dosbox, drive)
    output = dosbox.output.read_text("utf-8", "replace")
    told = [line for line in output.splitlines() if "mapper" in line.lower()]
    assert told == [f"MAPPER: Loading mapper settings from {MAPPER}"], output


if __name__ == "__main__":
    run_in_temporary_folder(run)
