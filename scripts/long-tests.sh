#!/usr/bin/env bash
# The tests that take long: those whose length can be chosen, of which the suite runs a short form, and
# those of load.
set -euo pipefail

usage() {
    cat <<'EOF'
Usage: long-tests.sh [faults|load|model]...
Builds the tests and runs those that are named, or all:

  faults  kills the sync, the restore and the conversion's last step at each of their calls on files,
          and lets each of these fail in each way (CARAVEL_FAULT_POINTS points a row; 0: all).
          Ten minutes
  load    syncs 100,000 tracks (10,000 selected), 20,000 photos and 10,000 movies while front-ends ask
          500 times a second (CARAVEL_LOAD per cent of it; 100), then days of mounting and unmounting.
          A minute, and 400 MB in memory
  model   holds the plan and the sync against a second working out of it, over random homes and sticks
          (CARAVEL_MODEL_ROUNDS homes; 20,000). Three minutes
EOF
}

run_faults() {
    CARAVEL_FAULT_POINTS=${CARAVEL_FAULT_POINTS:-0} build/debug/tests/faults/fault_tests
}

run_load() {
    build/debug/bench/load_tests
}

run_model() {
    CARAVEL_MODEL_ROUNDS=${CARAVEL_MODEL_ROUNDS:-20000} \
        build/debug/tests/sync/sync_tests --gtest_filter='PlanModel.*'
}

for kind; do
    case $kind in
    faults | load | model) ;;
    -h | --help) usage; exit 0 ;;
    *) usage >&2; exit 2 ;;
    esac
done
if (($# == 0)); then
    set -- faults load model
fi

cd "$(dirname "$0")/.."
scripts/install-dependencies.sh
cmake --preset debug -DCARAVEL_BUILD_BENCHMARKS=ON
cmake --build --preset debug --parallel "$(nproc)" --target fault_tests load_tests modules_tests
if [[ -w /dev/shm ]]; then
    export TMPDIR=/dev/shm
fi
for kind; do
    "run_$kind"
done
