#!/usr/bin/env bash
# Builds Pelorin for testing and runs all its tests. Arguments go to ctest:
#   ./test.sh                 everything
#   ./test.sh -L unit         only what needs no window
#   ./test.sh -R Catalogue    only what the name tells
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. tools/packages.sh
. tools/build.sh

need_packages build run test </dev/null
build_preset dev
ctest --preset dev -j "$(nproc)" "$@"
