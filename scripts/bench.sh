#!/usr/bin/env bash
# Builds the benchmarks without debugging aids and prints their table, ours beside others', then what
# the helper as a whole asks of the system. Rows on a mounted image need root.
# Options go to the benchmarks' program (for example --benchmark_filter=copy), which then runs alone.
set -euo pipefail

case ${1:-} in
-h | --help)
    sed -n '2,/^set/{/^set/d;s/^# //p}' "$0"
    exit 0
    ;;
esac

cd "$(dirname "$0")/.."
scripts/install-dependencies.sh --bench >&2
cmake --preset release -DCARAVEL_BUILD_BENCHMARKS=ON >&2
cmake --build --preset release --parallel "$(nproc)" \
    --target caravel_bench caravel caravel-helper caravel_resources caravel_translations >&2
build/release/bench/caravel_bench "$@"
if (($# == 0)); then
    if [[ -w /dev/shm ]]; then
        export TMPDIR=/dev/shm
    fi
    exec dbus-run-session -- scripts/bench/whole_helper.py build/release/Caravel/Contents 2>/dev/null
fi
