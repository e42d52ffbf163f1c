#!/usr/bin/env bash
# Checks the formatting of the sources, the scripts, the translations, what the desktop is given, and
# what clang-tidy has to say.
set -euo pipefail

usage() {
    cat <<'EOF'
Usage: lint.sh [--format | --scripts | --translations | --desktop | --docs | --clang |
                --tidy [FILE...] | --shares PER-CENT]
Without an option all of them but the last, one after the other.

  --format         clang-format's check of every C++ file
  --scripts        the shell scripts' and Python scripts' syntax, and shellcheck where it is installed
  --translations   the catalogues: each has every text that the sources look up, and no other
  --desktop        the desktop entry, the metadata for software catalogues, and the man pages
  --docs           the documents: what they link to is there, the guide has every setting as it is, and the
                   change logs begin with this release
  --clang          what clang warns of, in every source of the debug build (minutes)
  --tidy           clang-tidy, over the given sources or all of them (minutes)
  --shares         the lines of each room and of its tests; fails where all tests, fuzzers and the lab
                   are more than so many per cent of the product
EOF
}

cd "$(dirname "$0")/.."

# Tracked files and new ones alike, save what .gitignore leaves out and what was deleted.
sources() {
    local file
    git -c safe.directory="$PWD" ls-files --cached --others --exclude-standard -- "$@" | sort -u |
        while IFS= read -r file; do
            [[ ! -f $file ]] || printf '%s\n' "$file"
        done
}

check_format() {
    local files
    mapfile -t files < <(sources '*.cpp' '*.h')
    if ((${#files[@]} == 0)); then
        echo "lint.sh: git lists no C++ files here" >&2
        return 1
    fi
    clang-format --dry-run -Werror "${files[@]}"
    echo "Formatting: ${#files[@]} files are in order"
}

check_scripts() {
    local shell python file
    mapfile -t shell < <(sources 'scripts/*.sh' 'lab/*.sh' 'resources/*.sh' '.ci/run')
    mapfile -t python < <(sources '*.py')
    for file in "${shell[@]}"; do
        bash -n "$file"
    done
    for file in "${python[@]}"; do
        python3 -c 'import ast, sys; ast.parse(open(sys.argv[1]).read(), sys.argv[1])' "$file"
    done
    for file in "${shell[@]}" "${python[@]}"; do
        if [[ ! -x $file ]]; then
            echo "lint.sh: $file is not executable" >&2
            return 1
        fi
    done
    if command -v shellcheck >/dev/null; then
        shellcheck "${shell[@]}"
    fi
    echo "Scripts: $((${#shell[@]} + ${#python[@]})) files are in order"
}

# Runs a checker that may say nothing at all.
silently() {
    local said
    if ! said=$("$@" 2>&1) || [[ -n $said ]]; then
        printf '%s\n' "lint.sh: $* complains:" "$said" >&2
        return 1
    fi
}

# As the build makes it: the release and the build number are filled in.
check_metainfo() {
    local build release file
    build=$(sed -n 's/^set(CARAVEL_BUILD \([0-9]*\))$/\1/p' CMakeLists.txt)
    release=$(sed -n 's/^project(Caravel VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)
    file=$1/$(basename "$2" .in)
    local picture
    while read -r picture; do
        [[ -f docs/guide/pictures/$picture ]] || { echo "$2: there is no picture $picture" && return 1; }
    done < <(sed -n 's|.*@CARAVEL_PICTURES@/\(.*\)</image>.*|\1|p' "$2")
    sed "s/@CARAVEL_BUILD@/${build:?not found in CMakeLists.txt}/
         s|@CARAVEL_PICTURES@|https://caravel.example/pictures|
         s/@PROJECT_VERSION@/${release:?not found in CMakeLists.txt}/" "$2" >"$file"
    appstreamcli validate --no-net "$file"
}

check_desktop() {
    local files file
    scratch=$(mktemp -d)
    trap 'rm -rf -- "$scratch"' EXIT
    mapfile -t files < <(sources 'resources/desktop/*.desktop' 'resources/desktop/*.metainfo.xml.in' \
        'docs/man/*.1')
    if ((${#files[@]} == 0)); then
        echo "lint.sh: git lists no files for the desktop here" >&2
        return 1
    fi
    for file in "${files[@]}"; do
        case $file in
        *.desktop) silently desktop-file-validate "$file" ;;
        *.in) check_metainfo "$scratch" "$file" ;;
        *) silently groff -man -Tutf8 -ww -z "$file" ;;
        esac
    done
    echo "Desktop: ${#files[@]} files are in order"
}

# The generated files that the sources' compilation needs are made by the build.
build_debug() {
    [[ -e build/debug/build.ninja ]] || cmake --preset debug >/dev/null
    cmake --build --preset debug --parallel "$(nproc)"
}

check_clang() {
    build_debug
    # shellcheck disable=SC2016 # the inner shell's own
    jq -r '.[].command' build/debug/compile_commands.json |
        sed 's/^[^ ]* /clang++ -fsyntax-only -Werror /' |
        xargs -d '\n' -n 1 -P "$(nproc)" sh -c 'cd build/debug && eval "$0"'
    echo "clang: nothing to warn of"
}

check_tidy() {
    local files=("$@")
    if ((${#files[@]} == 0)); then
        mapfile -t files < <(sources '*.cpp')
    fi
    build_debug
    printf '%s\0' "${files[@]}" |
        xargs -0 -n 1 -P "$(nproc)" clang-tidy --quiet --warnings-as-errors='*' -p build/debug 2> >(
            grep -v -E '^[0-9]+ warnings? generated|^Suppressed [0-9]+|^Use -header-filter' >&2
        )
}

# Lines that are neither blank nor a comment (nor an include).
counted() {
    sources "$@" 2>/dev/null | tr '\n' '\0' | xargs -0 -r cat |
        grep -cvE '^[[:space:]]*(//.*|#.*|\*.*|/\*.*)?$' || true
}

check_shares() {
    local limit=$1 room code tests product=0 checks=0
    if [[ ! $limit =~ ^[0-9]+$ ]]; then
        usage >&2
        return 2
    fi
    printf '%-12s %8s %8s\n' room product tests
    for room in app cli frontend protocol modules sync platform util window; do
        code=$(counted "$room/*."{cpp,h})
        tests=$(counted "tests/$room/*."{cpp,h,py,sh})
        printf '%-12s %8d %8d\n' "$room" "$code" "$tests"
        product=$((product + code))
    done
    for room in tests/{programs,faults,support} fuzz lab; do
        printf '%-12s %8s %8d\n' "${room#*/}" '' "$(counted "$room/*."{cpp,h,py,sh})"
    done
    checks=$(counted {tests,fuzz,lab}/'*.'{cpp,h,py,sh})
    printf '%-12s %8d %8d  %d%% (at most %d%%)\n' all "$product" "$checks" \
        $((100 * checks / product)) "$limit"
    ((100 * checks <= limit * product))
}

what=${1:-all}
if (($#)); then
    shift
fi
case $what in
-h | --help) usage; exit 0 ;;
--format) check_format ;;
--scripts) check_scripts ;;
--translations) resources/tools/check_translations.py ;;
--docs) scripts/lint/check_docs.py ;;
--desktop) scripts/install-dependencies.sh --lint; check_desktop ;;
--clang) scripts/install-dependencies.sh --fuzz; check_clang ;;
--tidy) scripts/install-dependencies.sh --lint; check_tidy "$@" ;;
--shares) check_shares "${1-}" ;;
all)
    scripts/install-dependencies.sh --lint
    check_format
    check_scripts
    resources/tools/check_translations.py
    scripts/lint/check_docs.py
    check_desktop
    scripts/install-dependencies.sh --fuzz
    check_clang
    check_tidy
    ;;
*) usage >&2; exit 2 ;;
esac
