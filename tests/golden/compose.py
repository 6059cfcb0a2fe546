#!/usr/bin/env python3
"""A second, independent composer of dosbox.conf.

Usage: compose.py ROOT

Makes a small installation below the existing folder ROOT, with names spelled otherwise than the
texts spell them, and writes ROOT/expected.json: one row a start, with what the start asks for and
the exact bytes of the finished dosbox.conf in both path forms (base64). It shares no code and no
data with the program but the option table, which it reads with a reader of its own.
"""

import base64
import itertools
import json
import os
import sys

CRLF = "\r\n"
GROUPS, ITEMS = 41, 81
MODES = ["RunGame", "RunDosPrompt", "RunNetHost", "RunNetClient", "RunLibraryShell",
         "RunFileWithArgs"]
GUESTS = ["Win31KOR", "Win31ENG", "Win98"]
WIN98_FAMILY = ["Win98", "Win98_LCD"]
MIXER_KEYS = ["MASTER", "SPKR", "GUS", "SB", "FM", "MT32"]

GAME = "별 100% (1995)"
TITLE = '별/똥: "별"? [CD, 편집]'
COMMANDS = ["cd 게임", "play.exe -fast", "REM 100%"]

CDS = {
    "none": (False, 0, False, []),
    "folder": (True, 0, False, ["[the game's folder]"]),
    "one": (True, 1, False, ["Disc 1.iso"]),
    "three on one drive": (True, 1, False, ["Disc 1.iso", "C%3.ISO", "디스크 2.cue"]),
    "three drives": (True, 1, True, ["Disc 1.iso", "C%3.ISO", "디스크 2.cue"]),
    "no image": (True, 1, True, []),
}


# The option table ------------------------------------------------------------------------------

def fields_of(text):
    for line in text.split("\n"):
        rest = line.rstrip("\r")
        while True:
            rest = rest.lstrip(" ")
            if rest.startswith('"'):
                field, _, rest = rest[1:].partition('"')
                _, comma, rest = rest.partition(",")
            else:
                field, comma, rest = rest.partition(",")
            yield field
            if not comma:
                break


def read_table(path):
    """captions, and {(group, item): (key, values, kind)}"""
    captions, cells, item = [], {}, 0
    with open(path, encoding="utf-8") as file:
        text = file.read()
    for field in fields_of(text):
        if field == "end":
            return captions, cells
        if field == "":
            captions.append("temp")
        elif field.startswith("@T"):
            captions[-1] = field[2:].replace("`", ",")
            item = 0
        else:
            names, values, kind = field.split(";")[:3]
            if values.rfind("|") > 0:
                value_list = [v.replace("`", ",") for v in values.split("|")]
            else:
                value_list = [values.replace("`", ",")]
            cells[len(captions) - 1, item] = (names.split("|")[1], value_list, kind)
            item += 1
    raise SystemExit("no end")


# Paths -----------------------------------------------------------------------------------------

class Place:
    """A path in both forms."""

    def __init__(self, windows, posix):
        self.windows, self.posix = windows, posix

    def __truediv__(self, name):
        named, on_disk = name if isinstance(name, tuple) else (name, name)
        return Place(self.windows + "\\" + named, self.posix + "/" + on_disk)


class Text:
    """Pieces: (guest text), (place in a value) or (place in a batch line)."""

    def __init__(self):
        self.pieces = []

    def add(self, *pieces):
        self.pieces += [("guest", p) if isinstance(p, str) else p for p in pieces]
        return self

    def replace(self, old, new):
        joined = []
        for kind, what in self.pieces:
            if kind == "guest" and joined and joined[-1][0] == "guest":
                joined[-1] = (kind, joined[-1][1] + what)
            else:
                joined.append((kind, what))
        self.pieces = [(k, w.replace(old, new) if k == "guest" else w) for k, w in joined]

    def bytes(self, form):
        out = b""
        for kind, what in self.pieces:
            if kind == "guest":
                out += what.encode("cp949")
            elif form == "windows":
                out += what.windows.encode("cp949")
            else:
                posix = what.posix.replace("%", "%%") if kind == "batch" else what.posix
                out += posix.encode("utf-8")
        return out


def value_of(place):
    return ("value", place)


def batch(place):
    return ("batch", place)


class World:
    def __init__(self, root):
        self.root = root
        top = Place("Z:" + root.replace("/", "\\"), root)
        self.app = top / "app dir"
        self.games = top / "게임 50%"
        self.export = top / "export"
        self.game = self.games / GAME
        self.meta = self.game / ("dosbox", "DOSBox")
        self.cd = self.meta / ("CD", "cd")
        self.mapper = self.app / ("mapper", "Mapper")
        self.util = Place("..\\..\\Dos\\Util", "../../dos/UTIL")
        self.gus = Place("..\\..\\DOS\\GUS", "../../dos/Gus")

    def make(self, table_text):
        for folder in [self.app.posix + "/dos/UTIL", self.app.posix + "/dos/Gus",
                       self.mapper.posix, self.export.posix, self.cd.posix]:
            os.makedirs(folder)
        with open(self.app.posix + "/option.dat", "wb") as file:
            file.write(table_text.replace("\n", CRLF).encode("cp949"))
        for name in [self.mapper.posix + "/Mapper_A.TXT", self.meta.posix + "/Mapper.txt",
                     *(self.cd.posix + "/" + n for n in CDS["three drives"][3])]:
            open(name, "wb").close()


# The text --------------------------------------------------------------------------------------

def safe(title):
    return "".join(c for c in title if c not in '\\|:"<>/?*')


def value_text(cell, selected):
    values = cell[1]
    return values[selected] if 0 <= selected < len(values) else ""


def write_row(world, row, cell, text, state):
    key, values, kind = cell
    selected = row["sets"].get(key, 0)
    value = value_text(cell, selected)
    if kind == "<INDEX>":
        if key == "log":
            if value == "false":
                state["skip"] = True
            else:
                text.replace("waitonerror=false", "waitonerror=true")
        elif key == "MT32":
            state["mixer"] += key + " " + value
        elif key in MIXER_KEYS:
            state["mixer"] += key + " " + value + " "
        elif key == "glide":
            state["glide"] = state["glide"] or value == "true"
        else:
            text.add(key + "=" + value + CRLF)
    elif kind in ("<CAPTURE>", "<DOCPATH>"):
        text.add(key + "=", value_of(world.meta), CRLF)
    elif kind == "<NONE>":
        text.add(key + "=" + values[0] + CRLF)
    elif kind == "<CPUCYCLE>":
        if row["build"] == "Win98":
            text.add(key + "=max 105%" + CRLF)
        elif selected == 1:
            text.add(key + "=max" + CRLF)
        elif selected == 2:
            text.add(key + "=auto" + CRLF)
        elif selected >= 3:
            text.add(key + "=" + str(selected) + CRLF)
    elif kind == "<TEXT>":
        text.add(key + "=" + str(selected) + CRLF)
    elif kind == "<LOGFILE>":
        text.add(key + "=", value_of(world.export / (safe(TITLE) + ".txt")), CRLF)
    elif kind == "<GUSULTRA>":
        text.add(key + " = " + values[0] + CRLF)
    elif kind == "<MAPPER>":
        if value == "mapper_user.txt":
            place = world.meta / ("mapper.txt", "Mapper.txt")
        else:
            on_disk = "Mapper_A.TXT" if value == "mapper_a.txt" else value
            place = world.mapper / (value, on_disk)
        text.add(key + "=", value_of(place), CRLF)


def write_sections(world, table, row, text, state):
    captions, cells = table
    for group in range(1, GROUPS):
        if (group, 0) in cells:
            text.add("[" + captions[group] + "]" + CRLF)
        state["skip"] = False
        for item in range(ITEMS):
            if (group, item) in cells:
                if state["skip"]:
                    state["skip"] = False
                else:
                    write_row(world, row, cells[group, item], text, state)
        text.add(CRLF)


def write_autoexec(world, row, text, mixer):
    text.add("[autoexec]" + CRLF, "SET SOUND=X:\\SB16" + CRLF, "SET MIDI=SYNTH:1 MAP:E" + CRLF)
    text.add("SET GAMEROOT=", batch(world.game), CRLF)
    text.add("Mount x ", batch(world.util), CRLF)
    text.add("PATH X:\\MDIR;Y:\\ULTRASND;Z:\\" + CRLF)
    text.add("X:\\SB16\\DIAGNOSE /S" + CRLF, "X:\\SB16\\MIXERSET /P /Q" + CRLF)
    text.add(mixer + CRLF)
    if row["mode"] == "RunLibraryShell":
        text.add('Mount c "', batch(world.games), CRLF)
    else:
        text.add('Mount c "', batch(world.game), '"' + CRLF)
    text.add("Mount Y ", batch(world.gus), CRLF, "SET PROPATS=Y:\\PPL161" + CRLF, "c:")


def write_cd(world, row, text):
    checked, mode, each, images = CDS[row["cd"]]
    win98 = row["build"] in WIN98_FAMILY
    if not checked:
        return
    letter = "E" if win98 else "D"
    if mode == 0:
        if not win98:
            text.add(CRLF + "Mount " + letter + ': "', batch(world.game), '" -t cdrom')
        return
    rounds = [[i] for i in images] if each else ([images] if images else [])
    for mounted in rounds:
        text.add(CRLF + "imgmount " + letter + ("" if win98 else ":"))
        for image in mounted:
            text.add(' "', batch(world.cd / image), '"')
        text.add(" -t iso")
        if win98:
            text.add(" -fs iso -ide " + {"E": "2m", "F": "2s"}.get(letter, ""))
        text.add(CRLF)
        letter = chr(ord(letter) + 1)


def write_network(row, text):
    if row["mode"] == "RunNetHost":
        port = "" if row["port"] == 213 else " " + str(row["port"])
        text.add(CRLF + "ipxnet startserver" + port + CRLF)
    elif row["mode"] == "RunNetClient":
        text.add(CRLF + "ipxnet connect " + row["address"] + CRLF)


# Guests: in the place of {guest} and {disk} stand paths of the host.
KOREAN = """
Mount W {guest}

CALL VESPRA.BAT
PATH %PATH%;W:\\WINDOWS;W:\\WINDOWS\\SYSTEM32
SET TEMP=W:\\WINDOWS\\TEMP
copy W:\\WINDOWS\\aaa W:\\WINDOWS\\시작프로.GRP
copy W:\\WINDOWS\\bbb W:\\WINDOWS\\IMEINFO.INI
copy c:\\DosBox\\시작프로.GRP W:\\WINDOWS\\
copy c:\\DosBox\\SYSTEM.INI W:\\WINDOWS\\
copy c:\\DosBox\\WIN.INI W:\\WINDOWS\\
copy c:\\DosBox\\IMEINFO.INI W:\\WINDOWS\\
SHARE.EXE
ADDKEY p500 enter
W:\\WINDOWS\\WIN
COPY W:\\WINDOWS\\시작프로.GRP C:\\DosBox\\
COPY W:\\WINDOWS\\SYSTEM.INI C:\\DosBox\\
COPY W:\\WINDOWS\\WIN.INI C:\\DosBox\\
COPY W:\\WINDOWS\\IMEINFO.INI C:\\DosBox\\
exit

"""
ENGLISH = """
Mount W {guest}

CALL VESPRA.BAT
PATH %PATH%;W:\\WINDOWS;W:\\WINDOWS\\SYSTEM32
SET TEMP=W:\\WINDOWS\\TEMP
copy W:\\WINDOWS\\aaa W:\\WINDOWS\\STARTUP.GRP
copy c:\\DosBox\\STARTUP.GRP W:\\WINDOWS\\
copy c:\\DosBox\\SYSTEM.INI W:\\WINDOWS\\
copy c:\\DosBox\\WIN.INI W:\\WINDOWS\\
SHARE.EXE
W:\\WINDOWS\\WIN
COPY W:\\WINDOWS\\STARTUP.GRP C:\\DosBox\\
COPY W:\\WINDOWS\\SYSTEM.INI C:\\DosBox\\
COPY W:\\WINDOWS\\WIN.INI C:\\DosBox\\
exit

"""
WIN98 = """
imgmount 2 {guest} -t hdd -fs none -size 512,63,64,520 -ide 1m
imgmount 3 "{disk}" -t hdd -fs none -size {size} -ide 1s
boot -l c
"""
WIN98_PROMPT = """
imgmount 0 {floppy} -t floppy -fs none

imgmount 2 {guest} -t hdd -fs none -size 512,63,64,520 -ide 1m
[imgmount 3 "{disk}" -t hdd -fs none -size {size} -ide 1s
]boot -l a

"""


def guest_lines(row):
    """The template of a guest's start; the prompt brings nothing of the game and takes nothing back."""
    template = {"Win31KOR": KOREAN, "Win31ENG": ENGLISH, "Win98": WIN98}[row["build"]]
    if row["mode"] != "RunDosPrompt":
        return template
    if row["build"] == "Win98":
        with_disk = WIN98_PROMPT.replace("[", "").replace("]", "")
        without = WIN98_PROMPT[:WIN98_PROMPT.index("[")] + WIN98_PROMPT[WIN98_PROMPT.index("]") + 1:]
        return with_disk if row["commands"] else without
    lines = template.split("\n")
    del lines[2:4]
    return "\n".join(line for line in lines
                     if not line.startswith("COPY ") and not line.startswith("copy c:")
                     or line.startswith("copy c:") and not line.split()[1].endswith(".GRP"))


def finish_guest(row, text):
    commands = row["commands"]
    disk, size = (commands + ["", ""])[:2]
    folder = Place("..\\..\\DOSBOX", "../../DOSBOX") / row["build"]
    places = {
        "{guest}": folder / "Win98.img" if row["build"] == "Win98" else folder,
        "{floppy}": folder / "dos6.ima",
        "{disk}": Place("%gameroot%", "%gameroot%") / disk,
    }
    if row["mode"] == "RunDosPrompt" and row["addkey"]:
        text.add(CRLF + "addkey 62")
    rest = guest_lines(row).replace("{size}", size).replace("\n", CRLF)
    while rest:
        name = min(places, key=lambda n: rest.find(n) if n in rest else len(rest))
        before, found, rest = rest.partition(name)
        text.add(before)
        if found:
            text.add(value_of(places[name]))


def finish(row, text):
    mode = row["mode"]
    if row["build"] in GUESTS and mode != "RunLibraryShell":
        finish_guest(row, text)
        return
    if mode in ("RunDosPrompt", "RunLibraryShell"):
        if row["addkey"]:
            text.add(CRLF + "addkey 62")
        text.add(CRLF + "M" + CRLF, CRLF)
    elif mode == "RunFileWithArgs":
        text.add(CRLF + row["typed"], CRLF, CRLF)
    else:
        text.add(CRLF)
        for command in row["commands"]:
            text.add(command + CRLF)
        if mode == "RunGame" and not row["commands"]:
            text.add("M" + CRLF, CRLF)


def mode_starts_guests(mode):
    return mode != "RunFileWithArgs"


def compose(world, table, row):
    text, state = Text(), {"mixer": "MIXER ", "glide": False, "skip": False}
    write_sections(world, table, row, text, state)
    ipx = row["mode"] in ("RunNetHost", "RunNetClient")
    text.add("[ipx]" + CRLF + "ipx=" + ("true" if ipx else "false") + CRLF, CRLF)
    write_autoexec(world, row, text, state["mixer"])
    write_cd(world, row, text)
    write_network(row, text)
    row["finished"] = row["build"] not in GUESTS or mode_starts_guests(row["mode"])
    if row["finished"]:
        finish(row, text)
    row["glide"] = state["glide"]
    for form in ("windows", "posix"):
        row[form] = base64.b64encode(text.bytes(form)).decode("ascii")
    return row


# The rows --------------------------------------------------------------------------------------

def settings(number, log):
    """A different mixture of settings for each row; indexes off the lists are among them."""
    def pick(values):
        return values[number % len(values)]
    return {
        "log": log, "waitonerror": pick([0, 1]), "mapperfile": pick([0, 1, 2, 3, 9]),
        "cycles": pick([-1, 0, 1, 2, 3, 12000, 2147483647]), "glide": pick([0, 1, 2]),
        "scaler": pick([1, 2, 0]), "overscan": pick([0, -5, 10]), "SPKR": pick([0, 1]),
        "MT32": pick([0, 1, 7]), "machine": pick([6, 100, -1]), "barred": 0, "timeout": 500,
        "gus": pick([0, 1]), "serial1": pick([2, 1]), "memsize": 4, "SavePath": 1,
    }


def rows(builds):
    for number, (build, log, cd, mode) in enumerate(itertools.product(
            builds, (0, 1, 2), CDS, MODES)):
        yield {
            "build": build, "cd": cd, "mode": mode, "folder": GAME, "title": TITLE,
            "chkCD": CDS[cd][0], "CdMountMode": CDS[cd][1], "chkMountCD": CDS[cd][2],
            "lstCD": CDS[cd][3], "sets": settings(number + number // 6 + number // 36, log),
            "port": 19900 if number % 4 == 2 else 213, "address": "host 19900",
            "typed": "게임.exe -x 50%", "addkey": number % 5 < 2,
            "commands": [] if number % 7 == 0 else COMMANDS,
        }


def main():
    root = sys.argv[1]
    source = os.path.join(os.path.dirname(os.path.abspath(__file__)), "option.dat")
    table = read_table(source)
    world = World(root)
    with open(source, encoding="utf-8") as file:
        world.make(file.read())
    expected = [compose(world, table, row) for row in rows(table[1][0, 0][1])]
    with open(os.path.join(root, "expected.json"), "w", encoding="utf-8") as file:
        json.dump({"appDir": world.app.posix, "gamesRoot": world.games.posix,
                   "exportRoot": world.export.posix, "rows": expected}, file)


if __name__ == "__main__":
    main()
