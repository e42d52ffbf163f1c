#!/usr/bin/env bash
# Installs the Debian packages that building, testing and the demo need; only those that are missing,
# and without any network use when none is.
set -euo pipefail

usage() {
    cat <<'EOF'
Usage: install-dependencies.sh [--lint] [--fuzz] [--bench] [--lab] [--package]
Installs the missing ones of the Debian packages that this project needs (as root or through sudo).

  --lint   also what scripts/lint.sh runs: clang-format, clang-tidy, git and the checkers of desktop
           files and man pages
  --fuzz   also what scripts/fuzz.sh builds with: clang, its sanitizers and its symbolizer
  --bench  also what scripts/bench.sh compares with and looks through: rsync, rclone, strace
  --lab    also what scripts/lab.sh boots: qemu, a kernel, and what a desktop mounts sticks with
  --package  also what scripts/package.sh builds, checks and installs the package with
EOF
}

packages=(
    # Building
    g++ cmake ninja-build pkg-config qt6-base-dev qt6-multimedia-dev qt6-tools-dev qt6-l10n-tools
    libglib2.0-dev libexpat1-dev libcli11-dev librsvg2-bin python3
    libebook1.2-dev libssl-dev libtag1-dev libqt6sql6-sqlite
    # Tests and benchmarks
    libgtest-dev libgmock-dev libbenchmark-dev dbus e2fsprogs exfatprogs exfat-fuse mount util-linux xvfb jq procps
    evolution-data-server
    # The demo's sound files, and the helper at run time
    ffmpeg qt6-image-formats-plugins
)
while (($#)); do
    case $1 in
    --lint) packages+=(clang-format clang-tidy git desktop-file-utils appstream groff-base) ;;
    --fuzz) packages+=(clang libclang-rt-dev llvm) ;;
    --bench) packages+=(rsync rclone strace) ;;
    --lab)
        packages+=(qemu-system-x86 linux-image-amd64 busybox-static kmod cpio dosfstools ntfs-3g udev udisks2
            gvfs gvfs-daemons)
        ;;
    --package) packages+=(debhelper dpkg-dev lintian mmdebstrap git) ;;
    -h | --help) usage; exit 0 ;;
    *) usage >&2; exit 2 ;;
    esac
    shift
done

for tool in apt-get dpkg-query; do
    if ! command -v "$tool" >/dev/null; then
        echo "install-dependencies.sh: $tool is missing: this works on Debian 12 (or a relative)" \
            "only. Install what matches these packages by other means:" >&2
        printf '  %s\n' "${packages[@]}" >&2
        exit 1
    fi
done

is_installed() {
    local state
    # shellcheck disable=SC2016 # the braces are dpkg-query's own
    state=$(dpkg-query -W -f '${db:Status-Status}\n' "$1" 2>/dev/null || true)
    grep -qx installed <<<"$state"
}

missing=()
for package in "${packages[@]}"; do
    is_installed "$package" || missing+=("$package")
done
if ((${#missing[@]} == 0)); then
    exit 0
fi

root=()
if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
        echo "install-dependencies.sh: these packages are missing, and neither root nor sudo is at" \
            "hand to install them: ${missing[*]}" >&2
        exit 1
    fi
    root=(sudo)
fi

apt_get() {
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q "$@"
}

# A bare or old machine has no package lists, or ones whose files are gone: then they are fetched anew.
install_missing() {
    apt_get install -y --no-install-recommends "${missing[@]}"
}

echo "Installing ${missing[*]}"
if ! install_missing; then
    echo "Fetching the package lists, then once more"
    apt_get update
    install_missing
fi
