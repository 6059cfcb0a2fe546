"""Reads an option.dat of data/ for the tests of the data, and holds the factory defaults.

The file is a row of fields, each ended by a comma or a line end, leading blanks dropped:
an empty field opens a group, "@T" gives the group's caption, "end" ends the table, and any
other field is "title|key;values;kind". A backtick in a caption or a value stands for a comma.
"""

import collections

Row = collections.namedtuple("Row", "title key values kind line")
Group = collections.namedtuple("Group", "caption rows line")


class OptionFileError(ValueError):
    """The text is no option table; the message names the line."""


# The value index of each key in a fresh configuration; keys that are not named have 0.
FACTORY = {
    "DirectX": 1, "fullscreen": 1, "windowresolution": 3, "output": 5, "autolock": 1,
    "sensitivity": 1, "waitonerror": 1, "priority": 1, "pixelshader": 15, "machine": 6,
    "memsize": 4, "aspect": 1, "scaler": 1, "cycles": 1, "cycleup": 2, "cycledown": 1,
    "nosound": 1, "rate": 3, "blocksize": 2, "mididevice": 6, "sbtype": 4, "irq": 2, "dma": 1,
    "hdma": 3, "oplrate": 3, "gusrate": 3, "gusbase": 1, "gusirq": 1, "gusdma": 2,
    "samplerate": 3, "sidbase": 3, "pcrate": 3, "tandyrate": 3, "ps1audiorate": 3,
    "autofire": 1, "swap34": 1, "buttonwrap": 1,
}  # fmt: skip

# Rows that never become "key=value": volumes make the MIXER line, log and glide are switches.
PSEUDO_KEYS = {"log", "glide", "MASTER", "SPKR", "GUS", "SB", "FM", "MT32"}


def _fields(text):
    for number, line in enumerate(text.split("\n"), 1):
        for field in line.split(","):
            yield number, field.lstrip(" ")


def _row(field, number):
    pieces = field.split(";")
    names = pieces[0].split("|")
    if len(pieces) != 3 or len(names) != 2:
        raise OptionFileError(f"line {number}: not title|key;values;kind: {field}")
    values = pieces[1].split("|") if "|" in pieces[1][1:] else [pieces[1]]
    values = [value.replace("`", ",") for value in values]
    return Row(names[0], names[1], values, pieces[2], number)


def parse(text):
    """The groups of the table in file order."""
    groups = []
    for number, field in _fields(text):
        if field == "end":
            return groups
        if field == "":
            groups.append(Group("", [], number))
        elif not groups:
            raise OptionFileError(f"line {number}: stands before the first group")
        elif field.startswith("@T"):
            if groups[-1].caption or groups[-1].rows:
                raise OptionFileError(f"line {number}: a second caption without an empty line")
            groups[-1] = Group(field[2:].replace("`", ","), [], number)
        else:
            groups[-1].rows.append(_row(field, number))
    raise OptionFileError('the field "end" is missing')


def factory_value(row):
    """What a fresh configuration writes for the row, or None where it writes no such line."""
    if row.key in PSEUDO_KEYS:
        return None
    index = FACTORY.get(row.key, 0)
    if row.kind == "<INDEX>":
        return row.values[index]
    if row.kind == "<CPUCYCLE>":
        return {1: "max", 2: "auto"}.get(index, str(index) if index > 2 else None)
    if row.kind == "<TEXT>":
        return str(index)
    return None


def read(root, language="ko"):
    """The groups of the repository's own file."""
    with open(root / "data" / language / "option.dat", encoding="utf-8", newline="") as file:
        return parse(file.read())
