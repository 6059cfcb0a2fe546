#!/usr/bin/env python3
"""Runs clang-tidy over the project's sources and keeps clean results.

    tools/tidy.py                      every source in build/dev's compile database
    tools/tidy.py src/shell/Places.h   the named ones; a header stands for the sources that include it
    tools/tidy.py --deep [...]         with the path-sensitive analyzer as well

A source is looked at again only when something that could change the verdict has changed: its own
text, that of a project header it reaches, its compile command, .clang-tidy, clang-tidy itself or
the library packages. Clean verdicts lie in ${XDG_CACHE_HOME:-~/.cache}/pelorin-tidy, one empty file
each, named by a hash, and are dropped when they were not asked for in 30 days. Sources with
findings are never kept. Status 1 when there are findings.
"""

import argparse
import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
TIDY = "clang-tidy-14"
OURS = re.compile(r"(src|tools|tests|fuzz|bench)/([a-z0-9]+/)*[A-Za-z0-9_]+\.cpp")
INCLUDE = re.compile(rb'^[ \t]*#[ \t]*include[ \t]*"([^"]+)"', re.MULTILINE)
LIBRARIES = ["qt6-base-dev", "libfreeimage-dev", "libgtest-dev", "libgmock-dev", "libbenchmark-dev",
             "libstdc++-12-dev"]
KEEP_DAYS = 30


def printed_by(command):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout


class Includes:
    """Which project files a source reaches through #include "..."."""

    def __init__(self):
        self._direct = {}

    def _direct_of(self, file):
        if file not in self._direct:
            found = set()
            for name in INCLUDE.findall(file.read_bytes()):
                for base in (file.parent, ROOT, ROOT / "src", ROOT / "tests", ROOT / "tools", ROOT / "bench"):
                    candidate = base / os.fsdecode(name)
                    if candidate.is_file():
                        found.add(candidate.resolve())
                        break
            self._direct[file] = found
        return self._direct[file]

    def reached_from(self, source):
        seen, waiting = {source}, [source]
        while waiting:
            for file in self._direct_of(waiting.pop()) - seen:
                seen.add(file)
                waiting.append(file)
        return seen


def read_commands(build):
    """The compile database as source -> command text, the project's own sources only."""
    database = build / "compile_commands.json"
    if not database.is_file():
        sys.exit(f"{database} is not there: build the preset \"{build.name}\" first (./test.sh does)")
    commands = {}
    for entry in json.loads(database.read_text()):
        file = pathlib.Path(entry["file"]).resolve()
        if file.is_relative_to(ROOT) and OURS.fullmatch(str(file.relative_to(ROOT))):
            commands.setdefault(file, entry.get("command") or " ".join(entry["arguments"]))
    return commands


def wanted_sources(names, commands, includes):
    if not names:
        return sorted(commands)
    asked = {pathlib.Path(name).resolve() for name in names}
    wanted = [source for source in commands if asked & includes.reached_from(source)]
    unknown = asked - {file for source in wanted for file in includes.reached_from(source)}
    if unknown:
        sys.exit("no source of the build reaches " + ", ".join(sorted(map(str, unknown))))
    return sorted(wanted)


def verdict_key(source, command, includes, surroundings):
    """Names one verdict. The project's own place is left out, so that a clone finds it too."""
    sha = hashlib.sha256(surroundings)
    sha.update(command.replace(str(ROOT), "").encode())
    for file in sorted(includes.reached_from(source)):
        sha.update(str(file.relative_to(ROOT)).encode() + b"\0")
        sha.update(hashlib.sha256(file.read_bytes()).digest())
    return sha.hexdigest()


def drop_old(store):
    limit = time.time() - KEEP_DAYS * 24 * 3600
    for entry in store.iterdir():
        if entry.stat().st_mtime < limit:
            entry.unlink(missing_ok=True)


def check(source, build, more):
    done = subprocess.run(
        [TIDY, "--quiet", "-p", str(build), *more, str(source)],
        stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE,
        stderr=subprocess.PIPE,
        text=True,
    )
    findings = done.stdout.strip()
    if done.returncode != 0 and not findings:
        findings = done.stderr.strip() or f"{TIDY} ended with status {done.returncode}"
    return findings


def main():
    parser = argparse.ArgumentParser(description="clang-tidy with kept results")
    parser.add_argument("files", nargs="*", help="sources or headers; none means all")
    parser.add_argument("--deep", action="store_true", help="the path-sensitive analyzer as well")
    parser.add_argument("-p", "--build", default=ROOT / "build/dev", type=pathlib.Path)
    parser.add_argument("-j", "--jobs", default=os.cpu_count(), type=int)
    options = parser.parse_args()
    build = options.build.resolve()
    more = ["--checks=clang-analyzer-*,-clang-analyzer-cplusplus.NewDeleteLeaks"] if options.deep else []

    commands = read_commands(build)
    includes = Includes()
    sources = wanted_sources(options.files, commands, includes)
    surroundings = b"\0".join(
        [
            *(file.read_bytes() for file in (ROOT / ".clang-tidy", ROOT / "tests/.clang-tidy")),
            printed_by([TIDY, "--version"]),
            " ".join(more).encode(),
            printed_by(["dpkg-query", "-W", "-f=${Package} ${Version}\n"] + LIBRARIES),
        ]
    )
    cache = pathlib.Path(os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache")
    store = cache / "pelorin-tidy"
    store.mkdir(parents=True, exist_ok=True)

    waiting = {}
    for source in sources:
        kept = store / verdict_key(source, commands[source], includes, surroundings)
        if kept.exists():
            kept.touch()
        else:
            waiting[source] = kept

    faulty = 0
    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        running = {pool.submit(check, source, build, more): source for source in waiting}
        for number, future in enumerate(concurrent.futures.as_completed(running), 1):
            source = running[future]
            findings = future.result()
            print(f"[{number}/{len(running)}] {source.relative_to(ROOT)}", flush=True)
            if findings:
                faulty += 1
                print(findings, flush=True)
            else:
                waiting[source].touch()
    drop_old(store)
    print(
        f"clang-tidy: {len(sources)} sources, {len(sources) - len(waiting)} known to be clean,"
        f" {len(waiting)} looked at, {faulty} with findings"
    )
    return 1 if faulty else 0


if __name__ == "__main__":
    sys.exit(main())
