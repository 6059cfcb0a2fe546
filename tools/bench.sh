#!/usr/bin/env bash
# Measures Pelorin on a library of 32,767 games that it makes in a temporary folder, each figure
# beside the least that any program would have to do, and prints the table of their ratios.
#   tools/bench.sh              about five minutes; 3 GB of disk meanwhile
#   tools/bench.sh --write      puts the table into docs/performance.md too
#   BENCH_SEED=7 tools/bench.sh another library
#   BENCH_FILTER='scan.*' tools/bench.sh
#                               only figures whose names match
# The figures of Google Benchmark stay in build/bench/figures/*.json. Windows are drawn offscreen.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/packages.sh
. tools/build.sh

readonly games=32767 few=500
seed=${BENCH_SEED:-1}
filter=${BENCH_FILTER:-.}
figures=build/bench/figures
write=()
case ${1-} in
'') ;;
--write) write=(--write docs/performance.md) ;;
*)
    echo "usage: tools/bench.sh [--write]" >&2
    exit 2 ;;
esac

folder=
trap '[ -z "$folder" ] || rm -rf "$folder"' EXIT
trap 'exit 130' INT TERM

# make_installation NAME GAMES: an AppDir with a library; its Pelorin tells when its list is painted.
make_installation() {
    cmake --install build/bench --prefix "$folder/$1" >>"$figures/stage.log"
    rm -rf "$folder/$1/Games"
    mkdir "$folder/$1/Games"
    build/bench/bench/bench_library "$folder/$1/Games" "$2" "$seed" data/ko/option.dat
    cp build/bench/bench/bench_pelorin "$folder/$1/Pelorin"
}

# measure NAME ARGUMENTS...: runs bench_NAME. What is measured and its floor take turns, so that
# another program's work falls on both.
measure() {
    local name=$1
    shift
    "build/bench/bench/bench_$name" "$@" --benchmark_filter="$filter" \
        --benchmark_enable_random_interleaving=true \
        --benchmark_out="$figures/$name.json" --benchmark_out_format=json \
        >"$figures/$name.log" 2>&1 || { tail -n 20 "$figures/$name.log" >&2; return 1; }
}

need_packages build run bench </dev/null
build_preset bench
rm -rf "$figures"
mkdir -p "$figures"
folder=$(mktemp -d)
export QT_QPA_PLATFORM=offscreen XDG_CONFIG_HOME="$folder/config"

echo "Making the libraries of $few and $games games, seed $seed"
SECONDS=0
make_installation few $few
make_installation many $games
echo "Made in $SECONDS s; measuring"
measure core "$folder/many"
measure window "$folder/many"
measure start "$folder/few" "$folder/many" build/bench/bench/bench_bare_window
bench/table.py "$figures" --seed "$seed" --games $games "${write[@]}"
