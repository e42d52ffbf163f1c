#!/usr/bin/env bash
# Kills the sync, the restore and the conversion's last step at each of their calls on files, lets each
# of these fail in each way, and looks what the next run makes of it. Minutes; the tests run a few
# points of the same.
set -euo pipefail

usage() {
    cat <<'EOF'
Usage: faults.sh [POINTS]
Builds the tests and runs those of faults, with so many points for each row of their tables; all of
them unless POINTS says otherwise.
EOF
}

case ${1:-0} in
*[!0-9]*) usage; [[ $1 == --help ]] && exit 0 || exit 2 ;;
esac

cd "$(dirname "$0")/.."
scripts/install-dependencies.sh
cmake --preset debug
cmake --build --preset debug --parallel "$(nproc)" --target fault_tests
CARAVEL_FAULT_POINTS=${1:-0} exec build/debug/tests/faults/fault_tests
