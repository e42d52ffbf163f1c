#!/usr/bin/env bash
# Syncs a home of 100,000 tracks (10,000 selected), 20,000 photos and 10,000 movies with the real helper
# while front-ends ask it 500 times a second, then mounts and syncs a stick for a day of the helper's
# clock. Minutes, and 400 MB in memory; the tests run a fiftieth of the first.
set -euo pipefail

usage() {
    cat <<'EOF'
Usage: load.sh [PERCENT]
Builds the tests and runs those of load; PERCENT of that home (100 unless told), a whole number.
EOF
}

case ${1:-100} in
*[!0-9]*) usage; [[ $1 == --help ]] && exit 0 || exit 2 ;;
esac

cd "$(dirname "$0")/.."
scripts/install-dependencies.sh
cmake --preset debug
cmake --build --preset debug --parallel "$(nproc)" --target program_tests app_tests
if [[ -w /dev/shm ]]; then
    export TMPDIR=/dev/shm
fi
CARAVEL_LOAD=${1:-100} build/debug/tests/programs/program_tests --gtest_filter='LoadTest.*'
exec build/debug/tests/app/app_tests --gtest_filter='Soak.*'
