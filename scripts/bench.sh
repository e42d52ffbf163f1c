#!/usr/bin/env bash
# Builds the benchmarks without debugging aids and prints their table, ours beside others', with the last
# release's figures and the goals, then the window's figures and what the helper as a whole asks of the system.
# Rows on a mounted image need root.
# With --keep first, what was measured becomes the last release's figures (bench/figures.tsv).
# Options go to the benchmarks' program (for example --benchmark_filter=copy), which then runs alone.
set -euo pipefail

case ${1:-} in
-h | --help)
    sed -n '2,/^set/{/^set/d;s/^# //p}' "$0"
    exit 0
    ;;
esac

keep=()
if [[ ${1:-} == --keep ]]; then
    keep=(--keep)
    shift
fi

cd "$(dirname "$0")/.."
scripts/install-dependencies.sh --bench >&2
cmake --preset release -DCARAVEL_BUILD_BENCHMARKS=ON >&2
cmake --build --preset release --parallel "$(nproc)" \
    --target caravel_bench load_tests caravel_resources caravel_translations >&2
result=build/release/bench/result.json
build/release/bench/caravel_bench --benchmark_out=$result --benchmark_out_format=json "$@"
scripts/bench/table.py $result "${keep[@]}"
if (($# == 0)); then
    if [[ -w /dev/shm ]]; then
        export TMPDIR=/dev/shm
    fi
    # What it is held to is in the test.
    CARAVEL_LOAD=100 build/release/bench/load_tests --gtest_filter='*Window*' | grep 'first paint'
    exec dbus-run-session -- scripts/bench/whole_helper.py build/release/Caravel/Contents 2>/dev/null
fi
