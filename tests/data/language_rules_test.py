#!/usr/bin/env python3
"""language_rules_test.py ROOT: checks Language.dat and option.dat of each language in data/.

The program reads both by position: line n is text n, and cell (group, item) is an option. So the
checks are for what a slip in an editor breaks without a word: a line lost or moved, a placeholder
dropped, a mark that the titles can't lose again, a row that shifts the fixed cells, a list that is
too short for a stored index. And for what drifts apart: one language from the other, the files
from the English that is built in. Ends with 0, or with 1 after a line for each fault.
"""

import pathlib
import re
import sys

sys.dont_write_bytecode = True
import optionfile

COUNT = 339

# Numbers that no caller uses; only these lines may be empty.
UNUSED = {68, 69, 70, *range(78, 86), *range(102, 106), 110, 116, 139, *range(145, 149), 150, 162,
          *range(180, 184), 186, 206}  # fmt: skip

# Texts that the program compares, appends, or shows in two places with one sense: the line, and
# its wording in each language. None is free.
LANGUAGES = ("ko", "en")
FIXED = {
    1: ("펠로린", "Pelorin"),  # the name decides the language
    2: ("잠시만 기다려 주세요.", "Please wait."),
    3: ("전체 <1> 수 : ", "Games: "),
    4: ("작업 중입니다. 잠시만 기다려 주세요.", "Working. Please wait."),
    11: ("폴더 열기 메뉴", None), 12: ("게임 폴더", None), 14: ("설정 폴더", None),
    15: ("게임 전체 폴더", None), 16: ("내보내기 폴더", None),
    13: ("장르(영문)", "Genre (English)"), 30: ("장르", "Genre (Korean)"),
    18: ("게임 정보", None), 19: ("시작 명령", None), 20: ("전역 설정", None),
    21: ("게임 설정", None), 22: ("환경 설정", None), 256: ("도구 내려받기", None),
    26: ("그림", None), 27: ("녹화/녹음", None), 28: ("매뉴얼", None), 29: ("설명", None),
    37: ("게임 제목", None), 38: ("게임 전체 폴더 열기", None), 39: ("목록 새로 고침", None),
    204: ("내보내기 폴더 열기", None),
    40: ("압축 상태", None), 41: ("압축된 게임", "Packed"), 42: ("압축되지 않은 게임", "Not packed"),
    60: ("REM", "REM"),  # goes into the start commands as it stands
    106: ("폴더 :", "Folder:"),
    113: (r"<1> 게임 폴더가 이미 있습니다.\n예/아니요를 묻는 경우 [예]를 누르면 기존 내용이 "
          r"지워지거나 바뀝니다.",
          r"The game folder <1> already exists.\nIf you are asked Yes or No, Yes deletes or "
          r"replaces what is in it."),
    114: ("명령이 입력되지 않았습니다.", "No command was typed."),
    118: ("폴더를 옮기는 중입니다.", "Moving the folder."),
    218: ("폴더를 옮기는 중입니다.", "Moving the folder."),
    119: ("<1> : 게임에 추가합니다.", "<1>: adding to the library."),
    121: ("<1> : 추가하지 않았습니다.", "<1>: not added."),
    151: ("내보내기 작업이 끝났습니다.", "The export job has ended."),
    154: ("전체 <1>개 중 <3>개의 게임", "<3> of <1> games"),
    160: ("압축을 푸는 중입니다. 잠시만 기다려 주세요.", "Unpacking. Please wait."),
    163: ("[CD]", "[CD]"), 164: ("[편집]", "[Ed]"), 257: (" [압축]", " [Packed]"),
    173: ("기존 아이콘은 바뀝니다. 계속할까요?", None),
    174: ("이 그림을 게임의 아이콘으로 저장합니다.", None),
    175: ("아이콘 저장", None),
    221: ("설정만 처리했습니다. 실행된 프로그램은 없습니다.",
          "Only the configuration was processed. No program was started."),
    222: ("게임 설정", "Game configuration"),
    223: ("파일을 실행하지 않았습니다", "The file was not run"),
    258: (r"이 게임은 압축되어 있습니다.\n실행하려면 먼저 압축을 풀어야 합니다. (예 = 지금 풀기)",
          r"This game is packed.\nIt has to be unpacked before it can run. (Yes = unpack now)"),
    259: ("압축된 게임", "Packed game"),
    272: ("대기 중", "Waiting"),
    287: ("압축할 게임이 없습니다. 이미 압축되어 있습니다.", "Nothing to pack: already packed."),
    291: ("압축을 풀 게임이 없습니다. 압축된 상태가 아닙니다.", "Nothing to unpack: not packed."),
    307: ("제작사", None), 308: ("발매 시기", None), 309: ("언어", None), 310: ("제작 국가", None),
    311: ("삭제하지 못함 : ", "Not deleted: "),
    317: ("[<1>]의 세부설정", "Details of [<1>]"),
}  # fmt: skip

# The mark of each build index that has one.
BUILD_MARKS = {8: 54, 9: 165, 10: 63, 12: 239, 13: 284, 14: 285, 15: 286, 16: 300, 17: 339}
PACKS = ["0.65", "0.70", "0.71", "0.72", "0.72_CVS", "0.73", "0.74", "0.74_SVN", "0.74_SVN_new",
         "Win31KOR", "Win31ENG", "Win98", "Tools", "0.74_3DFX"]  # fmt: skip
MARK = re.compile(r"\[[^\[\], ](?:[^\[\],]*[^\[\], ])?\]")

ONE = [3, 111, 112, 113, 115, 119, 120, 121, 125, 126, 131, 132, 133, 136, 140, 141, 142, 143, 144,
       153, 155, 157, 158, 161, 172, 207, 208, 209, 226, 247, 252, 253, 255, 260, 261, 273, 274,
       313, 316, 317]  # fmt: skip
# <1> of 3 is a Korean word.
PLACEHOLDERS = {
    **{number: {"<1>"} for number in ONE},
    **{number: {"<1>", "<2>"} for number in (122, 124, 128, 130, 276)},
    154: {"<1>", "<3>"},
}

BUILDS = ["0.74_SVN", "0.74", "0.73", "0.72", "0.71", "0.70", "0.65", "0.72_CVS", "Windows",
          "Win31KOR", "Win31ENG", "0.74_SVN_new", "Win98", "ANEX86", "SNES9X", "FUSION", "NP21",
          "0.74_3DFX", "M88", "Win98_LCD"]  # fmt: skip
# The rows that the program reaches by position, as runs from an item on.
FIXED_RUNS = {
    (0, 0): ["version", "DirectX", "Menu", "SavePath"],
    (1, 0): ["fullscreen", "fulldouble", "fullresolution", "windowresolution", "output", "autolock",
             "sensitivity", "waitonerror", "priority", "mapperfile", "usescancodes", "overscan",
             "pixelshader"],
    (2, 0): ["log", "logfile"],
    (19, 0): ["glide", "grport", "lfb", "splash"],
}  # fmt: skip
VOCABULARY = """
    machine captures memsize vmemsize frameskip aspect scaler linewise char9 multiscan doublescan
    vsyncmode vsyncrate autofit core cputype cycles cycleup cycledown forcerate cgasnow isapnpbios
    aux_ auxdevice voodoo nosound rate blocksize prebuffer swapstereo MASTER SPKR GUS SB FM MT32
    mpu401 mididevice midiconfig mt32 mt32.thread Mmt32.dac mt32reverb.mode mt32reverb.time
    mt32reverb.level mt32.partials sbtype sbbase irq dma hdma sbmixer oplmode oplemu oplrate
    hardwarebase goldplay gus gusrate gusbase gusirq gusdma innova samplerate sidbase quality
    pcspeaker pcrate tandy tandyrate disney ps1audio ps1audiorate xms ems umb keyboardlayout
    joysticktype timed autofire swap34 buttonwrap printer dpi width height printoutput multipage
    timeout
""".split()
KINDS = {"<INDEX>", "<MAPPER>", "<CPUCYCLE>", "<TEXT>", "<NONE>", "<SAVEPATH>", "<CAPTURE>",
         "<DOCPATH>", "<LOGFILE>", "<GUSULTRA>"}  # fmt: skip
FIXED_KINDS = {"version": "<INDEX>", "SavePath": "<SAVEPATH>", "mapperfile": "<MAPPER>",
               "logfile": "<LOGFILE>", "captures": "<CAPTURE>", "docpath": "<DOCPATH>",
               "cycles": "<CPUCYCLE>", "ultradir": "<GUSULTRA>"}  # fmt: skip
# Old configurations are translated to indexes that go beyond the defaults.
SHORTEST = {"version": 20, "priority": 12, "sensitivity": 11}
# Rows whose value the program compares with a word, and the word of a fresh configuration.
SWITCHES = {"DirectX": "false", "Menu": "true", "fullscreen": "false", "waitonerror": "false",
            "log": "false", "glide": "false", "splash": "true"}  # fmt: skip
NOT_IN_A_FILE_NAME = re.compile(r'[\\/:*?"<>|]')


def read_text(root, language, name):
    path = root / "data" / language / name
    name = f"{language}/{name}"
    data = path.read_bytes()
    text = data.decode("utf-8")
    if b"\r" in data:
        raise ValueError(f"{name}: CR in it; the repository keeps LF")
    if text.startswith("\ufeff"):
        raise ValueError(f"{name}: starts with a byte order mark")
    if not text.endswith("\n"):
        raise ValueError(f"{name}: the last line has no end")
    return text


def code_page_faults(name, lines):
    for number, line in enumerate(lines, 1):
        lost = [sign for sign in line if sign.encode("cp949", "ignore").decode("cp949") != sign]
        if lost:
            yield f"{name}:{number}: code page 949 has no {''.join(lost)}"


def fixed(number, language):
    """The wording that a line must have in a language; None where it is free."""
    return FIXED.get(number, (None,) * len(LANGUAGES))[LANGUAGES.index(language)]


def placeholders(number, language):
    return set() if (number, language) == (3, "en") else PLACEHOLDERS.get(number, set())


def line_faults(lines, language):
    for number, line in enumerate(lines, 1):
        if not line and number not in UNUSED:
            yield f"Language.dat:{number}: empty, but in use"
        if "\\" in line.replace("\\n", ""):
            yield f"Language.dat:{number}: a backslash that makes no line break"
        if line != line.strip() and fixed(number, language) != line:
            yield f"Language.dat:{number}: a blank at its start or end"
        held = set(re.findall(r"<[^>]*>", line))
        if number <= COUNT and held != placeholders(number, language):
            wanted = " ".join(sorted(placeholders(number, language))) or "none"
            yield f"Language.dat:{number}: placeholders are not {wanted}: {line}"


def mark_faults(lines):
    marks = [163, 164, *BUILD_MARKS.values()]
    for number in marks:
        if not MARK.fullmatch(lines[number - 1]):
            yield f"Language.dat:{number}: a mark is [word]: {lines[number - 1]}"
    if len({lines[number - 1] for number in marks}) != len(marks):
        yield "Language.dat: two marks are the same"
    if len(lines[163 - 1]) != len(lines[164 - 1]):
        yield "Language.dat:163: not as long as 164, by whose length it is cut"
    for build, number in BUILD_MARKS.items():
        if lines[number - 1] != f"[{BUILDS[build]}]":
            yield f"Language.dat:{number}: is the mark of {BUILDS[build]}: {lines[number - 1]}"
    for offset, pack in enumerate(PACKS):
        if lines[326 + offset - 1] != f"[{pack}]":
            yield f"Language.dat:{326 + offset}: is the button of the pack {pack}"


def read_lines(root, language):
    return read_text(root, language, "Language.dat").split("\n")[:-1]


def language_faults(root, language):
    lines = read_lines(root, language)
    if len(lines) < COUNT:
        yield f"Language.dat: {len(lines)} lines, {COUNT} are in use"
        return
    yield from code_page_faults("Language.dat", lines)
    yield from line_faults(lines, language)
    yield from mark_faults(lines)
    for number in FIXED:
        text = fixed(number, language)
        if text is not None and lines[number - 1] != text:
            yield f'Language.dat:{number}: must be "{text}": "{lines[number - 1]}"'
    for left, right in ((71, 72), (73, 74)):
        if lines[left - 1] == lines[right - 1]:
            yield f"Language.dat:{left}: the same as {right}, and the program tells them apart"
    for number in (5, 6, 7, 299):
        if lines[number - 1].endswith("."):
            yield f"Language.dat:{number}: points follow by themselves"


def cell_faults(groups):
    for (group, item), keys in FIXED_RUNS.items():
        found = [row.key for row in groups[group].rows[item : item + len(keys)]]
        if found != keys:
            yield f"option.dat: cells ({group},{item}) on hold {found}, not {keys}"
    captions = [group.caption for group in groups]
    if captions[1:3] != ["sdl", "log"] or captions[19] != "glide":
        yield f"option.dat: groups 1, 2 and 19 are {captions[1:3]} and {captions[19]}"
    for section in {"ipx", "autoexec"} & {caption.lower() for caption in captions}:
        yield f"option.dat: the section [{section}] is made by the program"
    if "" in captions or len(set(captions)) != len(captions):
        yield "option.dat: a caption is missing or comes twice"


def row_faults(row):
    where = f"option.dat:{row.line}: {row.key}"
    if row.kind not in KINDS or FIXED_KINDS.get(row.key, row.kind) != row.kind:
        yield f"{where}: kind {row.kind}"
    if not row.title or NOT_IN_A_FILE_NAME.search(row.title):
        yield f"{where}: the title names a file: {row.title}"
    if "ide" in row.title or "fdc" in row.title:
        yield f"{where}: a title with ide or fdc in it loses its values: {row.title}"
    if row.kind in ("<INDEX>", "<MAPPER>"):
        index = optionfile.FACTORY.get(row.key, 0)
        if "" in row.values:
            yield f"{where}: an empty value ends the list"
        if len(set(row.values)) != len(row.values):
            yield f"{where}: a value comes twice"
        if not max(SHORTEST.get(row.key, 0), index + 1) <= len(row.values) <= 101:
            yield f"{where}: {len(row.values)} values"
        elif SWITCHES.get(row.key, row.values[index]) != row.values[index]:
            yield f"{where}: a fresh configuration has {row.values[index]}"
    if row.key in SWITCHES and not {"true", "false"} <= set(row.values):
        yield f"{where}: lacks true or false"


def option_faults(root, language):
    text = read_text(root, language, "option.dat")
    yield from code_page_faults("option.dat", text.split("\n"))
    groups = optionfile.parse(text)
    if '"' in text or "," in text:
        yield "option.dat: a comma or a quotation mark splits a row; a backtick stands for a comma"
    if not 20 <= len(groups) <= 41 or any(len(group.rows) > 81 for group in groups):
        yield f"option.dat: {len(groups)} groups, 20 to 41 go, of 81 rows at most"
        return
    yield from cell_faults(groups)
    rows = [row for group in groups for row in group.rows]
    keys = [row.key for row in rows]
    titles = [row.title for row in rows]
    for names in (keys, [title.lower() for title in titles]):
        for name in sorted({name for name in names if names.count(name) > 1}):
            yield f"option.dat: {name} comes twice"
    for key in sorted(set(VOCABULARY) - set(keys)):
        yield f"option.dat: the key {key} is missing"
    for row in rows:
        yield from row_faults(row)
    if [row.values for row in rows if row.key == "version"] != [BUILDS]:
        yield "option.dat: the builds, which stored configurations name by place, have changed"
    if not any(row.key == "mapperfile" and "mapper_user.txt" in row.values for row in rows):
        yield "option.dat: mapperfile lacks mapper_user.txt"


def shape(line, number):
    """What a line has to share with its like in another language."""
    named = [] if number == 3 else sorted(re.findall(r"<[^>]*>", line))
    return (line == "", line[:1] == " ", line[-1:] == " ", line.count("\\n"), named)


def agreement_faults(root, language):
    """Another language says the same: only the words differ."""
    first = LANGUAGES[0]
    ours, theirs = read_lines(root, language), read_lines(root, first)
    if len(ours) != len(theirs):
        yield f"Language.dat: {len(ours)} lines, {first} has {len(theirs)}"
    for number, (our, their) in enumerate(zip(ours, theirs), 1):
        if shape(our, number) != shape(their, number):
            yield f'Language.dat:{number}: "{our}" is not built like "{their}"'
    table, model = (optionfile.read(root, name) for name in (language, first))
    if [group.caption for group in table[1:]] != [group.caption for group in model[1:]]:
        yield f"option.dat: not the sections of {first}"
        return
    for our, their in zip(table, model):
        rows, wanted = ([row._replace(title="", line=0) for row in g.rows] for g in (our, their))
        if rows != wanted:
            yield f"option.dat:{our.line}: {our.caption}: not the rows of {first}"


# OwnText(340, u"..."_s and OwnEntry kOwnYes{355, u"..."}
BUILT_IN = re.compile(r'(?:OwnText\(|OwnEntry \w+\{|Wording\{)\s*(\d+),\s*u"((?:[^"\\]|\\.)*)"')


def built_in_faults(root):
    """English that the program falls back on says what the English file says."""
    lines = read_lines(root, "en")
    found = set()
    for path in sorted((root / "src").rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        for number, text in BUILT_IN.findall(path.read_text(encoding="utf-8")):
            number = int(number)
            found.add(number)
            if not COUNT < number <= len(lines):
                yield f"{path.name}: line {number} is not in the language files"
            elif lines[number - 1] != text:
                yield f'{path.name}: line {number} is "{text}", in the file "{lines[number - 1]}"'
    unused = set(range(COUNT + 1, len(lines) + 1)) - found
    if unused:
        yield f"Language.dat: no source uses {sorted(unused)}"


def faults_of(root):
    checks = [(check, name) for name in LANGUAGES for check in (language_faults, option_faults)]
    checks += [(agreement_faults, name) for name in LANGUAGES[1:]]
    for check, name in checks:
        try:
            yield from (f"{name}/{fault}" for fault in check(root, name))
        except ValueError as error:  # no text, or no table
            yield str(error)
    yield from built_in_faults(root)


def main():
    faults = list(faults_of(pathlib.Path(sys.argv[1])))
    for fault in faults:
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
