#!/usr/bin/env bash
# Builds the benchmarks without debugging aids and prints their table. Options go to the program
# (for example --benchmark_filter=Copy).
set -euo pipefail

cd "$(dirname "$0")/.."
scripts/install-dependencies.sh >&2
cmake --preset release -DCARAVEL_BUILD_BENCHMARKS=ON >&2
cmake --build --preset release --parallel "$(nproc)" --target caravel_bench >&2
exec build/release/bench/caravel_bench "$@"
