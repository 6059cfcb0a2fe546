#!/usr/bin/env python3
"""seeds.py ROOT OUT: gives each fuzz target the files to begin with, below OUT/<target>.

The texts of data/ and samples/ as they are staged (code page 949, CR LF), what the program itself
once wrote (fuzz/corpus), and the configuration files of all three layouts.
"""

import pathlib
import shutil
import struct
import sys


def staged(path):
    return path.read_text("utf-8").replace("\n", "\r\n").encode("cp949")


def lines(mark, count):
    values = [mark] if mark else []
    values += [str(n % 7) for n in range(count)]
    return "\r\n".join(values + [""]).encode()


def configurations():
    yield "current", lines("ver.15.02.01", 41 * 81)
    yield "groups21", lines("ver.10.11.21", 11 * 21)
    yield "groups11", lines("", 11 * 11)
    yield "short", lines("ver.15.02.01", 100)
    yield "none", b""


def icon(pictures):
    """A .ico file of (side, bits) pictures, all zeros; bits 0 is a PNG file's beginning."""
    entries, data = b"", b""
    for side, bits in pictures:
        if bits:
            picture = struct.pack("<IiiHHIIiiII", 40, side, 2 * side, 1, bits, 0, 0, 0, 0, 0, 0)
            picture += bytes(side * side * bits // 8 + side * 4)
        else:
            picture = b"\x89PNG\r\n\x1a\n\0\0\0\rIHDR" + struct.pack(">II", side, side) + bytes(9)
        offset = 6 + 16 * len(pictures) + len(data)
        entries += struct.pack("<BBBBHHII", side % 256, side % 256, 0, 0, 1, bits, len(picture), offset)
        data += picture
    return struct.pack("<HHH", 0, 1, len(pictures)) + entries + data


def seeds(root):
    for language in sorted((root / "data").glob("*/Language.dat")):
        yield "Language", language.parent.name, staged(language)
    for table in sorted((root / "data").glob("*/option.dat")):
        yield "Options", table.parent.name, staged(table)
    for folder in sorted((root / "samples").glob("*/files/*")):
        for number, name in enumerate(["info.txt", "ExtraInfo.txt", "GenreK.dat", "GenreE.dat"]):
            for path in sorted(folder.glob(name)):
                yield "GameInfo", f"{folder.parts[-3]}_{name}", bytes([number]) + staged(path)
        for path in sorted(folder.glob("autoexec.conf")):
            yield "Autoexec", folder.parts[-3], staged(path)
    yield "Autoexec", "typed", b'cd GAME\r\n\r\nstar.com /x "a b"\r\nrem \xba\xb0\r\n'
    for code in ["@ACT", "@SHT", "@SLG", "@???"]:
        yield "GameInfo", "old_" + code.strip("@?"), b"\4" + code.encode()
    for name, conf in configurations():
        yield "Conf", "default_" + name, b"D" + conf
        yield "Conf", "edit_" + name, b"E" + conf
        yield "GameInfo", "conf_" + name, b"\5" + conf[:40]
    yield "Ico", "two", icon([(16, 4), (32, 32)])
    yield "Ico", "three", icon([(48, 8), (16, 24), (256, 0)])
    yield "Ico", "none", icon([])


def main():
    root, out = map(pathlib.Path, sys.argv[1:3])
    shutil.copytree(root / "fuzz/corpus", out, dirs_exist_ok=True)
    for target, name, content in seeds(root):
        (out / target).mkdir(parents=True, exist_ok=True)
        (out / target / name).write_bytes(content)


main()
