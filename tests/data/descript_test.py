#!/usr/bin/env python3
"""descript_test.py ROOT: checks the help texts data/<language>/Descript/<title of an option>.txt.

The editor finds a text by the title of the option's row in that language's option.dat, and shows
nothing where there is no file. So the checks are for a title and a file that have parted, for a
list that has changed without its text, and for texts that could stand anywhere.
Ends with 0, or with 1 after a line for each fault.
"""

import difflib
import pathlib
import re
import sys

sys.dont_write_bytecode = True
import optionfile

LANGUAGES = ("ko", "en")
SENTENCES = range(2, 7)

# Measured over all pairs, word by word: the two most alike reach 0.34 in either language, a text
# with one word swapped has more than 0.95, one with half of its sentences from another 0.5.
MOST_ALIKE = 0.42

# Families of names (normal2x to normal5x), which are told by what they have in common.
NAMED_BY_FAMILY = {"scaler", "pixelshader"}
# Ports with the same devices: the first tells what they are, the others name the first.
TOLD_UNDER = {"serial2": "serial1", "serial3": "serial1", "serial4": "serial1",
              "parallel2": "parallel1"}  # fmt: skip

SENTENCE_END = re.compile(r"[.!?](?=\s|$)")
NUMBER = re.compile(r"[0-9][0-9a-fx:]*")
REFERENCE = re.compile(r"\[([^\[\]]*)\]")


def names(text, word):
    """Whether the word stands in the text by itself; a Korean particle may follow it."""
    return re.search(rf"(?<![\w:\\.-]){re.escape(word)}(?![A-Za-z0-9_])", text) is not None


def devices(row):
    return {value.split()[0] for value in row.values}


def factory_choice(row):
    """What a fresh configuration shows for the row."""
    listed = row.kind in ("<INDEX>", "<MAPPER>")
    return row.values[optionfile.FACTORY.get(row.key, 0) if listed else 0]


def form_faults(data):
    text = data.decode("utf-8")
    if b"\r" in data or text.startswith("\ufeff"):
        yield "CR or a byte order mark in it"
    if not text.endswith("\n"):
        yield "the last line has no end"
    for line in text.split("\n")[:-1]:
        if not line or line != " ".join(line.split()):
            yield f'a line is empty or has blanks too many: "{line}"'
    lost = {sign for sign in text if sign.encode("cp949", "ignore").decode("cp949") != sign}
    if lost:
        yield f"code page 949 has no {''.join(sorted(lost))}"
    count = len(SENTENCE_END.findall(text))
    if count not in SENTENCES or not SENTENCE_END.search(text.rstrip("\n")[-1:]):
        yield f"{count} sentences, or no end to the last"


def value_faults(row, text):
    if factory_choice(row).strip() and not names(text, factory_choice(row)):
        yield f"does not name {factory_choice(row)}, which a fresh configuration has"
    if row.key in NAMED_BY_FAMILY or row.key in TOLD_UNDER:
        return
    for word in {word for value in row.values for word in re.split("[, ]", value) if word}:
        if not NUMBER.fullmatch(word) and not names(text, word):
            yield f"does not name the value {word}"


def reference_faults(row, text, rows):
    found = REFERENCE.findall(text)
    for title in found:
        if title == row.title or title not in {other.title for other in rows.values()}:
            yield f"names [{title}], which is no other option"
    if row.key in TOLD_UNDER:
        told = rows[TOLD_UNDER[row.key]]
        if told.title not in found or devices(told) != devices(row):
            yield f"does not send the reader to [{told.title}] for its values"


def alike_faults(texts):
    matcher = difflib.SequenceMatcher(autojunk=False)
    earlier = []
    for title, text in texts.items():
        words = text.split()
        matcher.set_seq2(words)
        for other, other_words in earlier:
            matcher.set_seq1(other_words)
            if matcher.ratio() > MOST_ALIKE:
                yield f"{title}: {matcher.ratio():.2f} of it is {other}"
        earlier.append((title, words))


def faults(folder):
    table = (folder / "option.dat").read_bytes().decode("utf-8")
    rows = {row.key: row for group in optionfile.parse(table) for row in group.rows}
    files = {file.name: file for file in (folder / "Descript").iterdir()}
    texts = {}
    for row in rows.values():
        file = files.pop(f"{row.title}.txt", None)
        if file is None:
            yield f"{row.title}: no text"
            continue
        data = file.read_bytes()
        texts[row.title] = data.decode("utf-8")
        for check in (
            form_faults(data),
            value_faults(row, texts[row.title]),
            reference_faults(row, texts[row.title], rows),
        ):
            yield from (f"{row.title}: {fault}" for fault in check)
    yield from (f"{name}: no option has this title" for name in files)
    yield from alike_faults(texts)


def main():
    found = [
        f"{language}: {fault}"
        for language in LANGUAGES
        for fault in faults(pathlib.Path(sys.argv[1]) / "data" / language)
    ]
    for fault in found:
        print(fault)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
