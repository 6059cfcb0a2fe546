#!/usr/bin/env bash
# Builds Pelorin for testing and runs all its tests. Arguments go to ctest:
#   ./test.sh                 everything
#   ./test.sh -L unit         only what needs no window
#   ./test.sh -R Catalogue    only what the name tells
#   ./test.sh --sanitize ...  the same under AddressSanitizer and UndefinedBehaviorSanitizer
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. tools/packages.sh
. tools/build.sh

preset=dev
if [ "${1-}" = --sanitize ]; then
    shift
    preset=asan
    # No strict_string_checks: the keyboard library under Qt copies strings that are not terminated.
    export ASAN_OPTIONS=detect_stack_use_after_return=1
    export UBSAN_OPTIONS=print_stacktrace=1
    export LSAN_OPTIONS=suppressions=$PWD/tests/lsan.supp:print_suppressions=0
fi
need_packages build run screen test </dev/null
build_preset "$preset"
ctest --preset "$preset" -j "$(nproc)" "$@"
