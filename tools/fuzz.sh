#!/usr/bin/env bash
# Runs the fuzz targets, each for a minute, and tells how much of its reader each one reached.
#   tools/fuzz.sh                     all of them
#   tools/fuzz.sh Catalogue Sheet     these
#   FUZZ_SECONDS=600 tools/fuzz.sh    for ten minutes each
# What they found on the way is kept in build/fuzz/corpus and is where the next run begins. An input
# that breaks a promise lies in build/fuzz/crashes afterwards, and the status is 1; it is also when a
# target reached less than 80 % of its reader's lines. A name that no target has ends it with status 2.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/packages.sh
. tools/build.sh

seconds=${FUZZ_SECONDS:-60}

# The sources that a target is about, and the longest input worth trying.
readers='
Language   16384  src/shell/LangTable.cpp
Options    16384  src/dosboxconf/OptionTable.cpp
Settings   600    src/shell/LauncherCfg.cpp src/shell/SettingsFile.cpp
Recent     2000   src/shell/RecentFile.cpp
Conf       20000  src/dosboxconf/StoredConf.cpp src/dosboxconf/ConfUpgrade.cpp src/dosboxconf/ConfFiles.cpp
Catalogue  2000   src/library/CatalogueCache.cpp
Sheet      30000  src/library/IconSheetFile.cpp
GameInfo   4000   src/library/GameInfo.cpp
Cd         200    src/dosboxconf/CdFile.cpp src/dosboxconf/CdPanel.cpp
Autoexec   4000   src/dosboxconf/AutoexecFile.cpp src/dosboxconf/StartList.cpp
Ico        20000  src/library/IcoDirectory.cpp
'

# run_target NAME LONGEST: fuzzes, then runs once more over all that was found, for the coverage.
run_target() {
    local program=build/fuzz/fuzz/fuzz_$1 corpus=build/fuzz/corpus/$1 log=build/fuzz/$1.log
    mkdir -p "$corpus"
    LLVM_PROFILE_FILE=/dev/null "$program" "$corpus" "build/fuzz/seeds/$1" \
        -max_total_time="$seconds" -max_len="$2" -timeout=10 -print_final_stats=1 \
        -artifact_prefix="build/fuzz/crashes/$1-" >"$log" 2>&1 ||
        { tail -n 40 "$log" >&2; echo "$1: FAILED, see build/fuzz/crashes" >&2; return 1; }
    LLVM_PROFILE_FILE=build/fuzz/$1.profraw "$program" "$corpus" "build/fuzz/seeds/$1" \
        -runs=0 >>"$log" 2>&1
    llvm-profdata-14 merge -sparse "build/fuzz/$1.profraw" -o "build/fuzz/$1.profdata"
}

# tell_target NAME SOURCE...: runs, inputs kept, and the share of the sources' lines.
tell_target() {
    local name=$1 runs inputs
    shift
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "build/fuzz/$name.log" | head -n 1)
    inputs=$(find "build/fuzz/corpus/$name" -type f | wc -l)
    llvm-cov-14 report -instr-profile "build/fuzz/$name.profdata" "build/fuzz/fuzz/fuzz_$name" |
        awk -v head="$(printf '%-10s %8d runs %5d inputs kept' "$name" "$runs" "$inputs")" -v sources=" $* " '
            index(sources, " " $1 " ") { lines += $8; missed += $9 }
            END {
                share = 100 * (lines - missed) / lines
                printf "%s %6.1f %% of %d lines\n", head, share, lines
                exit share < 80
            }'
}

targets=$(awk 'NF { print $1 }' <<<"$readers")
for name in "$@"; do
    if ! grep -qxF -- "$name" <<<"$targets"; then
        echo "fuzz.sh: there is no target \"$name\"; there are: ${targets//$'\n'/ }" >&2
        exit 2
    fi
done
need_packages build fuzz </dev/null
build_preset fuzz
rm -rf build/fuzz/seeds
fuzz/seeds.py . build/fuzz/seeds
mkdir -p build/fuzz/crashes
# Memory instead of a disk for the files that the readers are given.
[ ! -w /dev/shm ] || export TMPDIR=/dev/shm

status=0
while read -r name longest sources; do
    [ -n "$name" ] || continue
    [ $# -eq 0 ] || [[ " $* " == *" $name "* ]] || continue
    if run_target "$name" "$longest"; then
        tell_target "$name" $sources || { echo "$name: reached too little" >&2; status=1; }
    else
        status=1
    fi
done <<<"$readers"
exit $status
