#!/usr/bin/env bash
# Installs what is missing, builds and runs the tests. The last line is ctest's.
set -euo pipefail

usage() {
    cat <<'EOF'
Usage: test.sh [OPTION]... [-- CTEST-OPTION...]
Builds everything in build/<preset> and runs the tests there.

  --sanitize address|thread   with that sanitizer (presets asan and tsan)
  --rooms "ROOM..."           only the tests of these rooms: the folders in tests, as sync or programs
  --ci                        check the formatting first and take warnings as errors; also on when
                              CARAVEL_CI=1 is set
  --help                      this text

What follows -- goes to ctest, for example: test.sh -- -R Cleans
EOF
}

cd "$(dirname "$0")/.."
preset=debug
ci=${CARAVEL_CI:-0}
targets=()
ctest_options=()
while (($#)); do
    case $1 in
    --sanitize | --sanitize=*)
        if [[ $1 == --sanitize ]]; then
            kind=${2:-}
            shift $(($# > 1 ? 1 : 0))
        else
            kind=${1#*=}
        fi
        case $kind in
        address) preset=asan ;;
        thread) preset=tsan ;;
        *) echo "test.sh: --sanitize takes address or thread" >&2; exit 2 ;;
        esac
        ;;
    --rooms)
        rooms=${2:?test.sh: --rooms takes names}
        shift
        for room in $rooms; do
            [[ -d tests/$room ]] || { echo "test.sh: there is no tests/$room" >&2; exit 2; }
            targets+=("tests/$room/all")
        done
        ctest_options+=(-R "^(${rooms// /|})\\.")
        ;;
    --ci) ci=1 ;;
    -h | --help) usage; exit 0 ;;
    --) shift; ctest_options+=("$@"); break ;;
    *) usage >&2; exit 2 ;;
    esac
    shift
done

configure_options=(-DCARAVEL_WERROR=OFF)
if [[ $ci == 1 ]]; then
    scripts/install-dependencies.sh --lint
    scripts/lint.sh --format
    configure_options=(-DCARAVEL_WERROR=ON)
else
    scripts/install-dependencies.sh
fi
if command -v ccache >/dev/null; then
    configure_options+=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi

cmake --preset "$preset" "${configure_options[@]}"
cmake --build --preset "$preset" --parallel "$(nproc)" ${targets[@]:+--target "${targets[@]}"}
ctest --preset "$preset" --parallel 2 --output-on-failure "${ctest_options[@]}"
