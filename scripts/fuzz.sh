#!/usr/bin/env bash
# Builds the fuzzers and runs each on its seeds, after the inputs that once found a fault.
set -euo pipefail

usage() {
    cat <<'EOF'
Usage: fuzz.sh [SECONDS] [TARGET...]
Runs every fuzzer (or those named, as PSF) for so many seconds (30 unless told), and prints how many
inputs each has tried. As many run at a time as there are processors, or as CARAVEL_JOBS says. An
input that finds a fault is kept in build/fuzz/found/<target>; move it to fuzz/regressions/<target>
once the fault is mended. The status is 1 when any fuzzer has found a fault.
EOF
}

case ${1:-} in
-h | --help) usage; exit 0 ;;
esac
seconds=${1:-30}
if [[ ! $seconds =~ ^[1-9][0-9]*$ ]]; then
    usage >&2
    exit 2
fi
if (($#)); then
    shift
fi

jobs=${CARAVEL_JOBS:-$(nproc)}
if [[ ! $jobs =~ ^[1-9][0-9]*$ ]]; then
    echo "fuzz.sh: CARAVEL_JOBS takes a number from 1, not \"$jobs\"" >&2
    exit 2
fi

cd "$(dirname "$0")/.."
for target in "$@"; do
    if [[ ! -f fuzz/${target}Fuzzer.cpp ]]; then
        echo "fuzz.sh: there is no fuzzer $target" >&2
        exit 2
    fi
done
scripts/install-dependencies.sh --fuzz >&2
options=()
if command -v ccache >/dev/null; then
    options+=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
cmake --preset fuzz "${options[@]}" >&2
cmake --build --preset fuzz --parallel "$jobs" >&2

targets=("$@")
if ((${#targets[@]} == 0)); then
    for source in fuzz/*Fuzzer.cpp; do
        targets+=("$(basename "$source" Fuzzer.cpp)")
    done
fi

# In memory where that is possible: some readers take files, one an input.
scratch=$(TMPDIR=$([[ -w /dev/shm ]] && echo /dev/shm || echo "${TMPDIR:-/tmp}") mktemp -d)

# Each fuzzer is a process group of its own, which an interruption ends with this script.
set -m
# shellcheck disable=SC2317 # the traps come here
clean_up() {
    trap '' INT TERM
    for group in $(jobs -p); do
        kill -TERM -- "-$group" 2>/dev/null || true
    done
    wait
    rm -rf -- "$scratch"
}
trap clean_up EXIT
trap 'exit 130' INT
trap 'exit 143' TERM
export TMPDIR=$scratch
export ASAN_OPTIONS=detect_leaks=1:allocator_may_return_null=1
export LSAN_OPTIONS=print_suppressions=0
export UBSAN_OPTIONS=print_stacktrace=1
if symbolizer=$(command -v llvm-symbolizer llvm-symbolizer-14 | head -n 1); then
    export ASAN_SYMBOLIZER_PATH=$symbolizer
fi
# Scheduling by entropy costs more than the larger targets' inputs themselves.
limits=(-max_len=65536 -rss_limit_mb=2048 -timeout=20 -entropic=0)

# Prints the reason's first line of a fuzzer's log.
reason_in() {
    grep -m 1 -E 'broken promise|ERROR: |runtime error|SUMMARY' "$1" || tail -n 1 "$1"
}

fuzz() {
    local target=$1 program=build/fuzz/fuzz/$1Fuzzer log=$scratch/$1.log found=build/fuzz/found/$1
    local corpus=$scratch/corpus-$1 runs
    mkdir -p "$corpus" "$found"
    cp -r "fuzz/corpus/$target/." "$corpus"
    if [[ -d fuzz/regressions/$target ]] &&
        ! find "fuzz/regressions/$target" -type f -print0 | sort -z |
            xargs -0 -r "$program" "${limits[@]}" -artifact_prefix="$found/" >"$log" 2>&1; then
        echo "$target: a mended fault is back: $(reason_in "$log")"
        cp "$log" "$found/log"
        return 1
    fi
    if ! "$program" "${limits[@]}" -max_total_time="$seconds" -print_final_stats=1 \
        -artifact_prefix="$found/" "$corpus" >"$log" 2>&1; then
        echo "$target: a fault: $(reason_in "$log") (see $found)"
        cp "$log" "$found/log"
        return 1
    fi
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
    echo "$target: ${runs:?the fuzzer gave no count} executions, no fault"
    touch "$scratch/passed-$target"
}

for target in "${targets[@]}"; do
    while (($(jobs -rp | wc -l) >= jobs)); do
        wait -n || true
    done
    fuzz "$target" &
done
wait

status=0
for target in "${targets[@]}"; do
    [[ -e $scratch/passed-$target ]] || status=1
done
exit $status
