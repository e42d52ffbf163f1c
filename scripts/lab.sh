#!/usr/bin/env bash
# Plays the lab's stories: the programs in a virtual machine with a real kernel and a real USB stick.
set -euo pipefail

usage() {
    cat <<'EOF'
Usage: lab.sh [--short] [STORY | "STORY SCENARIO"]...
Builds, boots Debian's kernel with what was built, plays every story in lab/stories (or those named) and
prints how long each scenario took and how it ended. The status is 1 when one failed.

  --short   fewer rounds, and without the scenarios marked "+"

CARAVEL_PRESET names the build (release unless told), CARAVEL_JOBS how many machines run at a time,
LAB_ROUNDS how often a seeded scenario is played. What was said is kept in build/lab/STORY-SCENARIO/log.
EOF
}

cd "$(dirname "$0")/.."
stories=()
while (($#)); do
    case $1 in
    --short) export LAB_SHORT=yes ;;
    -h | --help) usage; exit 0 ;;
    *)
        if [[ $1 == -* || ! -f lab/stories/${1%% *}.txt ]]; then
            usage >&2
            exit 2
        fi
        stories+=("$1")
        ;;
    esac
    shift
done
if ((${#stories[@]} == 0)); then
    for file in lab/stories/*.txt; do
        stories+=("$(basename "$file" .txt)")
    done
fi

skip_all() {
    echo "lab: skipped: $1"
    echo "0 passed, 0 failed, ${#stories[@]} skipped"
    exit 0
}

scripts/install-dependencies.sh --lab || skip_all "what it needs can't be installed"
release=$(find /lib/modules -mindepth 1 -maxdepth 1 -printf '%f\n' 2>/dev/null | sort -V | tail -n 1)
LAB_KERNEL=/boot/vmlinuz-$release
[[ -r $LAB_KERNEL ]] || skip_all "there is no kernel in /boot that can be read"
command -v qemu-system-x86_64 >/dev/null || skip_all "there is no qemu-system-x86_64"

preset=${CARAVEL_PRESET:-release}
options=()
if command -v ccache >/dev/null; then
    options+=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
mkdir -p build/lab
build() {
    cmake --preset "$preset" "${options[@]}" &&
        cmake --build --preset "$preset" --parallel "$(nproc)" --target caravel-helper caravel caravel_resources
}
if ! build >build/lab/build.log 2>&1; then
    tail -n 20 build/lab/build.log >&2
    exit 1
fi

# The first files of the guest: what it takes to reach this machine's own and its disks.
make_initrd() {
    local root=build/lab/root
    rm -rf $root
    mkdir -p $root/{bin,modules,proc,sys,dev,host,overlay,new}
    cp /bin/busybox $root/bin/
    cp lab/init $root/init
    for module in 9p 9pnet_virtio virtio_pci virtio_blk overlay vfat nls_cp437 nls_ascii nls_utf8 \
        nls_iso8859-1 exfat ext4 usb-storage xhci-pci sd_mod sr_mod fuse loop; do
        /sbin/modprobe -S "$release" --show-depends "$module" | awk '$1 == "insmod" { print $2 }'
    done | awk '!seen[$0]++' | while read -r file; do
        cp "$file" $root/modules/
        basename "$file" >>$root/order
    done
    (cd $root && find . | cpio -o -H newc --quiet | gzip -1) >"$LAB_INITRD"
}

LAB_PROJECT=$PWD
LAB_BUILD=build/$preset
LAB_INITRD=$PWD/build/lab/initrd.gz
make_initrd
export LAB_KERNEL LAB_INITRD LAB_PROJECT LAB_BUILD

play() {
    local story=${1%% *} folder=build/lab/${1// /-} scenario=
    [[ $1 != *" "* ]] || scenario=${1#* }
    mkdir -p "$folder"
    rm -f -- "$folder"/*
    LAB_ONLY=$scenario lab/machine.py "$story" "$folder" >"$folder/rows" || true
    rm -f -- "$folder"/*.img
    awk -F '\t' '{ printf "%-36s %7d  %s%s\n", $1, $2, $3, ($4 == "" ? "" : ": " $4) }' "$folder/rows"
    cat "$folder/rows" >&3
}

rows=$(mktemp)
trap 'rm -f -- "$rows"' EXIT
exec 3>>"$rows"
printf '%-36s %7s  %s\n' scenario seconds outcome
for story in "${stories[@]}"; do
    while (($(jobs -rp | wc -l) >= ${CARAVEL_JOBS:-1})); do
        wait -n || true
    done
    play "$story" &
done
wait
awk -F '\t' '{ ++count[$3] }
    END { printf "%d passed, %d failed, %d skipped\n", count["passed"], count["failed"], count["skipped"]
          exit count["failed"] > 0 || NR == 0 }' "$rows"
