#!/usr/bin/env python3
"""Works with the file manager M in the real DOSBox, by keys: file_manager_test.py <folder Dos>

A start of the DOS prompt ends with M, which finds it on X:. The batch file in a folder below writes a
line each time it runs, and DOS tells at the end which folder M has left it in.
"""

from real_dosbox import MAPPER, Dosbox, Screen, run_in_temporary_folder, wait_until

CONF = """[sdl]
output=surface
mapperfile={mapper}

[autoexec]
Mount x "{dos}/Util"
PATH X:\\MDIR;Z:\\
Mount c "{drive}"
c:
M
"""

FILES = 300  # several pages of them


def run(root, dos):
    drive = root / "drive"
    sub = drive / "SUB"
    sub.mkdir(parents=True)
    for number in range(FILES):
        (drive / f"F{number}.DAT").touch()
    (sub / "GO.BAT").write_bytes(b"@echo off\r\necho ran >> RAN.TXT\r\n")
    text = CONF.format(mapper=MAPPER, dos=dos, drive=drive)
    (root / "dosbox.conf").write_text(text, "utf-8", newline="\r\n")
    with Screen(root) as screen:
        dosbox = Dosbox(screen, root)
        window = dosbox.window()
        bar = 0x00AAAA
        wait_until(lambda: bar in screen.colours(window), 10, "M shows its bars")

        def lines():
            path = sub / "RAN.TXT"
            return path.read_text("ascii").count("ran") if path.exists() else 0

        def stands():
            return bar in screen.colours(window)

        # Down the pages and back, into the folder, and the program there.
        screen.key("Next", "End", "Left", "Up", "s", "Return", "g", "Return")
        wait_until(lambda: lines() == 1, 5, "GO.BAT ran")
        wait_until(lambda: not stands(), 5, "its screen stands until a key is pressed")
        screen.key("space")
        wait_until(stands, 5, "M is back")
        # Up, where the folder that we come from is chosen, so that Enter leads back.
        screen.key("BackSpace", "Return", "g", "Return")
        wait_until(lambda: lines() == 2, 5, "GO.BAT ran again")
        screen.key("space")
        wait_until(stands, 5, "M is back again")
        # A file that is no program does nothing.
        screen.key("r", "Return", "Escape")
        wait_until(lambda: not stands(), 5, "Esc leaves M")
        screen.key(*"echo", "space", *"end", "space", "shift+period", *"left", "Return")
        wait_until((sub / "LEFT").exists, 5, "DOS stands in the folder that M showed")


if __name__ == "__main__":
    run_in_temporary_folder(run)
