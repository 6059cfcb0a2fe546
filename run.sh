#!/usr/bin/env bash
# Builds Pelorin, stages it in dist/Pelorin and opens its window.
#   ./run.sh [--language ko|en]
# Without a display it makes one of its own, starts the sample game by keys and leaves a picture of
# the screen in dist/run.png; status 0 then says that the game was seen running.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. tools/packages.sh
. tools/build.sh

language=ko
while [ $# -gt 0 ]; do
    case $1 in
    --language)
        language=${2:?--language takes the name of a folder of data/}
        shift 2 ;;
    *)
        echo "usage: ./run.sh [--language NAME]" >&2
        exit 2 ;;
    esac
done
if [ ! -f "data/$language/Language.dat" ]; then
    echo "run.sh: there is no language \"$language\" (no data/$language/Language.dat)" >&2
    exit 2
fi

groups=(build run)
[ -n "${DISPLAY:-}" ] || groups+=(screen)
need_packages "${groups[@]}" </dev/null
build_preset release -DPELORIN_LANGUAGE="$language"
mkdir -p dist
cmake --install build/release --prefix "$PWD/dist/Pelorin" >dist/stage.log ||
    { cat dist/stage.log >&2; exit 1; }

if [ -n "${DISPLAY:-}" ]; then
    cd dist/Pelorin
    exec ./Pelorin
fi
. tools/headless.sh
start_display
play_sample dist/Pelorin "$(cat samples/star/folder.txt)"
