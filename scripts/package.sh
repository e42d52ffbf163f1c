#!/usr/bin/env bash
# Builds the Debian package, and tries it in a fresh root.
set -euo pipefail

usage() {
    cat <<'EOF'
Usage: package.sh [--check | --reproducible]
Builds the Debian package of what is committed, in build/package, and has lintian look at it.

  --check         also installs it in a fresh root with nothing else in it, starts the helper there by
                  its service file, syncs a folder as a stick, and removes the package again (as root)
  --reproducible  builds it a second time, in another folder, and compares the two byte by byte
EOF
}

what=${1:-}
case $what in
'' | --check | --reproducible) ;;
-h | --help) usage; exit 0 ;;
*) usage >&2; exit 2 ;;
esac

cd "$(dirname "$0")/.."
scripts/install-dependencies.sh --package
export SOURCE_DATE_EPOCH
SOURCE_DATE_EPOCH=$(git -c safe.directory="$PWD" log -1 --format=%ct)

# Builds in a folder of that name and leaves the package beside it.
build() {
    local folder=build/package/$1/caravel
    rm -rf -- "build/package/$1"
    mkdir -p "$folder"
    git -c safe.directory="$PWD" archive HEAD | tar -x -C "$folder"
    cp -r "$folder/packaging/debian" "$folder/debian"
    (cd "$folder" && dpkg-buildpackage --build=binary --unsigned-changes --unsigned-buildinfo) \
        >"build/package/$1/log" 2>&1 || {
        tail -n 40 "build/package/$1/log" >&2
        return 1
    }
}

built() {
    ls "build/package/$1"/caravel_*.deb
}

build first
package=$(built first)
lintian --pedantic --display-info --fail-on error,warning,info,pedantic "$package"
echo "$package: $(du -h "$package" | cut -f 1), and lintian has nothing to say"

if [[ $what == --reproducible ]]; then
    build second-time
    cmp "$package" "$(built second-time)"
    echo "The second build has the same bytes"
fi
if [[ $what == --check ]]; then
    scripts/package/check.sh "$package"
fi
