#!/usr/bin/env python3
"""option_values_test.py ROOT: asks the real DOSBox 0.74-3 about every value that option.dat offers.

One start for each value of each option that 0.74-3 knows, with a configuration that holds this one
value alone. What the emulator says against a value is compared with the table in docs/options.md:
a complaint that the table lacks fails, and so does a row of the table that draws no complaint.
Ends with 0 when all agree, 1 when not, 77 when there is no dosbox to ask.
"""

import collections
import concurrent.futures
import os
import pathlib
import pty
import re
import select
import shutil
import signal
import subprocess
import sys
import tempfile
import time

VERSION = "0.74-3"
TIMEOUT_SECONDS = 15
CUT_TIMEOUT_SECONDS = 3
PROCESSES = 2
# A number that the user may type for cycles, the smallest one that is not a word, and the form
# that guest Windows is started with.
CYCLES = ["max", "auto", "3", "12000", "max 105%"]

REFUSED = re.compile(r'".*" is not a valid value for variable: .*')
NOT_AS_GIVEN = re.compile(
    r"Maximum memory size is|Error loading keyboard layout|lies outside the range"
)
# The last line before the splash screen, which DOSBox shows for 600 ms in a busy loop.
BEFORE_SPLASH = b"Please edit the configuration file if this value is wrong."

Start = collections.namedtuple("Start", "section key value")
Answer = collections.namedtuple("Answer", "output status reached_shell seconds")


class Emulator:
    """Starts DOSBox in a folder of its own; each start has a HOME and a drive C: of its own."""

    def __init__(self, program, folder):
        self.program = program
        self.folder = pathlib.Path(folder)
        self.starts = 0
        self.again = 0

    def start(self, name, config, commands=()):
        """The answer to one start, and the folder that was its drive C:."""
        home = self.folder / name
        home.mkdir()
        (home / "one.conf").write_text(config, encoding="ascii")
        lines = [f"mount c {home}", "c:", *commands, "echo here>shell.txt", "exit"]
        arguments = [self.program, "-conf", str(home / "one.conf")]
        for line in lines:
            arguments += ["-c", line]
        answer = self._run(arguments, home, CUT_TIMEOUT_SECONDS, cut_splash=True)
        if answer.status != 0 or not answer.reached_shell:
            # SDL 1.2 queues the event inside the signal handler and hangs where that finds the
            # queue's lock held (none to three times in 450 starts). So only a plain start, with
            # the splash screen sat out, can fail.
            self.again += 1
            answer = self._run(arguments, home, TIMEOUT_SECONDS, cut_splash=False)
        return answer, home

    def _run(self, arguments, home, seconds, cut_splash):
        self.starts += 1
        environment = {
            "PATH": os.environ.get("PATH", ""),
            "HOME": str(home),
            "SDL_VIDEODRIVER": "dummy",
            "SDL_AUDIODRIVER": "dummy",
            "TERM": "dumb",
        }
        # A terminal, so that lines come out one by one and not in one block at the end.
        ours, theirs = pty.openpty()
        began = time.monotonic()
        process = subprocess.Popen(
            arguments,
            cwd=home,
            env=environment,
            stdin=subprocess.DEVNULL,
            stdout=theirs,
            stderr=theirs,
        )
        os.close(theirs)
        try:
            output, late = self._read(ours, process, began + seconds, cut_splash)
            if late:
                process.kill()
            status = process.wait(TIMEOUT_SECONDS)
        finally:
            os.close(ours)
        text = output.decode("utf-8", "replace").replace("\r\n", "\n")
        shell = any(entry.name.lower() == "shell.txt" for entry in home.iterdir())
        return Answer(text, "timeout" if late else status, shell, time.monotonic() - began)

    @staticmethod
    def _read(terminal, process, deadline, cut_splash):
        """All output, and whether the deadline passed before its end."""
        output = b""
        while (left := deadline - time.monotonic()) > 0:
            if not select.select([terminal], [], [], left)[0]:
                break
            try:
                output += os.read(terminal, 65536)
            except OSError:  # the other end is closed: the process has ended
                return output, False
            if cut_splash and BEFORE_SPLASH in output:
                # SDL makes it a quit event, and the splash loop takes that as "seen enough".
                process.send_signal(signal.SIGINT)
                cut_splash = False
        return output, True


def known_options(emulator):
    """The (section, key) pairs of the configuration file that DOSBox itself writes."""
    answer, home = emulator.start("known", "", ["config -writeconf all.conf"])
    written = [entry for entry in home.iterdir() if entry.name.lower() == "all.conf"]
    if not written or VERSION not in answer.output:
        sys.exit(f"no configuration file from DOSBox {VERSION}:\n{answer.output}")
    pairs, section = [], ""
    for line in written[0].read_text(encoding="ascii", errors="replace").splitlines():
        if line.startswith("["):
            section = line.strip().strip("[]")
        elif section != "autoexec" and "=" in line and not line.startswith("#"):
            pairs.append((section, line.split("=")[0].strip()))
    return pairs


def planned_starts(groups, known):
    starts = []
    for group in groups[1:]:
        for row in group.rows:
            if (group.caption, row.key) not in known:
                continue
            values = {"<INDEX>": row.values, "<CPUCYCLE>": CYCLES, "<TEXT>": ["1", "100"]}
            starts += [Start(group.caption, row.key, value) for value in values.get(row.kind, [])]
    return starts


def misplaced(groups, known):
    """Keys that 0.74-3 knows, but in another section than ours, where it would pass them over."""
    home = {key: section for section, key in known}
    return [
        f"{row.key} stands in [{group.caption}], DOSBox reads it in [{home[row.key]}]"
        for group in groups[1:]
        for row in group.rows
        if row.key in home and home[row.key] != group.caption
    ]


def table_rows(root):
    """{(section, key): (refused values, values not used as given)} of docs/options.md."""
    rows = {}
    for line in (root / "docs" / "options.md").read_text(encoding="utf-8").splitlines():
        cells = [cell.strip() for cell in line.split("|")[1:-1]]
        if len(cells) < 4 or not re.fullmatch(r"`[^`]+`", cells[1]):
            continue
        names = (cells[0].strip("`"), cells[1].strip("`"))
        if names in rows:
            sys.exit(f"docs/options.md names {names} twice")
        rows[names] = tuple(frozenset(re.findall(r"`([^`]*)`", cell)) for cell in cells[2:4])
    return rows


def ask_all(emulator, starts):
    def ask(numbered):
        number, start = numbered
        config = f"[{start.section}]\n{start.key}={start.value}\n"
        answer, home = emulator.start(f"s{number}", config)
        shutil.rmtree(home)
        return start, answer

    with concurrent.futures.ThreadPoolExecutor(PROCESSES) as pool:
        return list(pool.map(ask, enumerate(starts)))


def broken_start(start, answer):
    if answer.status != 0 or not answer.reached_shell:
        name = f"{start.section}/{start.key}={start.value}"
        return [f"{name}: status {answer.status}, the shell was not reached:\n{answer.output}"]
    return []


def compare(answers, table):
    faults = []
    said = collections.defaultdict(lambda: (set(), set()))
    for start, answer in answers:
        faults += broken_start(start, answer)
        entry = said[(start.section, start.key)]
        if REFUSED.search(answer.output):
            entry[0].add(start.value)
        if NOT_AS_GIVEN.search(answer.output):
            entry[1].add(start.value)
    for names, entry in said.items():
        if names not in table:
            faults.append(f"docs/options.md has no row for {names[0]}/{names[1]}")
            continue
        for column, word in enumerate(("refused", "not used as given")):
            for value in sorted(entry[column] - table[names][column]):
                faults.append(f'{names[0]}/{names[1]}: "{value}" is {word}, the table lacks it')
            for value in sorted(table[names][column] - entry[column]):
                faults.append(f'{names[0]}/{names[1]}: the table calls "{value}" {word}, it is not')
    return faults


def factory_faults(emulator, groups, optionfile):
    lines = []
    for group in groups[1:]:
        lines.append(f"[{group.caption}]")
        for row in group.rows:
            value = optionfile.factory_value(row)
            if value is not None:
                lines.append(f"{row.key}={value}")
    answer, _ = emulator.start("factory", "\n".join(lines) + "\n")
    faults = broken_start(Start("all", "factory", "defaults"), answer)
    for pattern in (REFUSED, NOT_AS_GIVEN):
        said = pattern.findall(answer.output)
        faults += [f"factory configuration: {message}" for message in said]
    return faults


def main():
    root = pathlib.Path(sys.argv[1]).resolve()
    sys.path.insert(0, str(root / "tests" / "data"))
    sys.dont_write_bytecode = True
    import optionfile

    program = shutil.which("dosbox")
    if program is None:
        print("no dosbox on PATH")
        return 77
    groups, table = optionfile.read(root), table_rows(root)
    began = time.monotonic()
    with tempfile.TemporaryDirectory() as folder:
        emulator = Emulator(program, folder)
        known = known_options(emulator)
        faults = misplaced(groups, known)
        ours = {(group.caption, row.key) for group in groups[1:] for row in group.rows}
        strangers = [names for names in table if names not in ours or names not in known]
        faults += [f"docs/options.md: no option {section}/{key}" for section, key in strangers]
        starts = planned_starts(groups, set(known))
        answers = ask_all(emulator, starts)
        faults += compare(answers, table)
        faults += factory_faults(emulator, groups, optionfile)
    slowest = max(answers, key=lambda pair: pair[1].seconds)
    print(f"{emulator.starts} starts, {emulator.again} of them a second try, "
          f"in {time.monotonic() - began:.1f} s; the slowest took {slowest[1].seconds:.2f} s "
          f"({slowest[0].key}={slowest[0].value})")  # fmt: skip
    for fault in faults:
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
