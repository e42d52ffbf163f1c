#!/usr/bin/env bash
# The verbs of the stories, and what plays them: runs in the guest as root. A story is stories/NAME.txt:
# what stands before its first "## SCENARIO" belongs to all of its scenarios, each of which has a home and
# a helper of its own. A command that fails ends its scenario as failed.
#
# The sticks' disks go by name ("stick", "other"); each is 8 GiB, whatever its file system takes of it.
# shellcheck disable=SC2119,SC2120,SC2153 # the stories call with arguments, machine.py sets LAB_…
set -uo pipefail
export PATH=/project/$LAB_BUILD/Caravel/Contents/bin:/project/lab:/usr/sbin:/usr/bin:/sbin:/bin
export LC_ALL=C.UTF-8 SYSTEMD_IGNORE_CHROOT=1 GIO_USE_VFS=local GIO_USE_VOLUME_MONITOR=unix
helper=/project/$LAB_BUILD/Caravel/Contents/Helpers/CaravelHelper/Contents/bin/caravel-helper
bus_name=org.caravel.CaravelHelper_1
place=/media/PSP # where the stick is mounted

say() { echo "lab: $*"; }

# Has the machine do something: plug DISK, pull DISK and so on, see machine.py.
machine() {
    echo "lab! $*"
    read -r </dev/console
}

fail() {
    echo "$*" >/tmp/reason
    exit 1
}
skip() {
    echo "$*" >/tmp/reason
    exit 77
}

# Waits for a command to succeed, two minutes unless LIMIT says otherwise (seconds).
until_() {
    local end=$((SECONDS + ${LIMIT:-120}))
    until "$@" >/dev/null 2>&1; do
        ((SECONDS < end)) || fail "never: $*"
        sleep 0.05
    done
}

# So many rounds; fewer in the short form.
rounds() { echo "${LAB_ROUNDS:-$([[ -n ${LAB_SHORT:-} ]] && echo "$2" || echo "$1")}"; }

# --- Sticks

# The block device of a disk that is plugged in; fails where there is none.
device() {
    local block
    for block in /sys/block/sd?; do
        if grep -qsx "${1:-stick}" "$(realpath -q "$block/device")/../../../../serial"; then
            echo "/dev/${block##*/}"
            return
        fi
    done
    return 1
}

plug() {
    machine plug "$@"
    until_ device "$1"
    until_ dd if="$(device "$1")" of=/dev/null bs=4096 count=1
}

pull() {
    machine pull "${1:-stick}"
    until_ eval "! device '${1:-stick}'"
}

# new_stick KIND [KIBIBYTES [MKFS-OPTION…]]: an empty stick, as a PSP leaves it when it has formatted one.
new_stick() {
    local kind=$1 size=${2:-262144}
    filesystem=$kind
    shift $(($# > 1 ? 2 : 1))
    device >/dev/null || plug stick
    case $kind in
    fat16) mkfs.vfat -F 16 -n PSP "$@" "$(device)" "$size" ;;
    fat32) mkfs.vfat -F 32 -n PSP "$@" "$(device)" "$size" ;;
    exfat*) mkfs.exfat -L PSP "$@" "$(device)" ;;
    ntfs) mkntfs --fast --quiet --force --label PSP "$(device)" ;;
    esac >/tmp/mkfs 2>&1 || fail "mkfs: $(tail -n 1 /tmp/mkfs)"
    mount_stick
    touch $place/MEMSTICK.IND
    mkdir -p $place/PSP
    unmount_stick
}

# As a desktop's mount service does it. mount_stick [DISK [OPTIONS]]
mount_stick() {
    local options=nosuid,nodev,relatime,uid=0,gid=0${2:+,$2} dev
    local fat=fmask=0022,dmask=0022
    dev=$(device "${1:-stick}")
    mkdir -p $place
    case $filesystem in
    fat*) mount -t vfat -o "$options,$fat,codepage=437,iocharset=ascii,shortname=mixed,utf8,${FLUSH-flush,}errors=remount-ro" \
        "$dev" $place ;;
    exfat) mount -t exfat -o "$options,$fat,iocharset=utf8,errors=remount-ro" "$dev" $place ;;
    # Without it each reading of a file is noted on the stick, O_NOATIME or not.
    exfat-fuse) mount.exfat-fuse -o noatime "$dev" $place >/dev/null ;;
    ntfs) ntfs-3g -o "windows_names,$options" "$dev" $place ;;
    esac
}

unmount_stick() { until_ umount $place; }

remount_stick() {
    unmount_stick
    mount_stick
}

# The writes that the disk has had, and their bytes.
writes() { awk '{ print $5 }' "/sys/block/$(basename "$(device)")/stat"; }
written_bytes() { awk '{ print $7 * 512 }' "/sys/block/$(basename "$(device)")/stat"; }

# until_written WRITES COMMAND: when the disk has had so many more of them, but no later than the command ends.
until_written() {
    local goal fields=() counts
    goal=$(($(writes) + $1))
    counts=/sys/block/$(basename "$(device)")/stat
    while ((${fields[4]:-0} < goal)) && kill -0 "$2" 2>/dev/null; do
        read -ra fields <"$counts"
    done
}

# moment_of_round ROUND ROUNDS FROM TO: rolled in the round's own part of the way between the two, the same
# at each time.
moment_of_round() {
    local part=$((($4 - $3) / $2))
    RANDOM=$1
    echo $(($3 + ($1 - 1) * part + RANDOM % part))
}

# Every name on the stick's media folders, and what lies there.
names_on_stick() { { find $place/MP_ROOT $place/PSP/MUSIC $place/PSP/PHOTO 2>/dev/null || true; } | sort; }
# "SUM  PATH" of each file.
sums_in() { { find "$@" -type f -exec sha1sum -- {} + 2>/dev/null || true; } | sed 's/^\\//' | sort; }

# Each file that is wanted lies on the stick once, byte for byte, and nothing else does.
stick_holds_all() {
    sums_in "$@" >/tmp/wanted
    sums_in $place/MP_ROOT $place/PSP/MUSIC $place/PSP/PHOTO >/tmp/held
    join -v 1 /tmp/wanted /tmp/held >/tmp/missing
    join -v 2 /tmp/wanted /tmp/held >/tmp/strange
    head -n 20 /tmp/missing /tmp/strange | cut -c 42-
    [[ ! -s /tmp/missing && ! -s /tmp/strange && $(wc -l </tmp/wanted) == $(wc -l </tmp/held) ]] ||
        fail "of $(wc -l </tmp/wanted) files $(wc -l </tmp/missing) are missing or damaged," \
            "$(wc -l </tmp/strange) are strangers; $(wc -l </tmp/held) lie on the stick"
}

# --- The home and the helper

home_is() {
    export HOME=$1
    dropboxes=$HOME/Documents/Caravel/Dropboxes
    mkdir -p "$dropboxes"/{Music,Photos,Movies}
}

helper_is_there() {
    dbus-send --session --print-reply --dest=org.freedesktop.DBus / org.freedesktop.DBus.NameHasOwner \
        "string:$bus_name" | grep -q true
}

helper_starts() {
    "$helper" "$@" >>/tmp/helper.log 2>&1 &
    helper_pid=$!
    until_ helper_is_there
}

helper_quits() {
    kill "$helper_pid"
    wait "$helper_pid" || fail "the helper ended with $?"
}

# Asks the helper by one of the protocol's methods.
ask() {
    dbus-send --session --print-reply=literal --dest=$bus_name /CaravelHelper \
        "org.caravel.CaravelHelperProtocol.$1" | sed 's/^ *//'
}
status_is() { [[ $(ask statusText) == "$*" ]]; }
status_is_not() { ! status_is "$@"; }
stick_is_known() { ask pspIsMounted | grep -q true; }
run_is_over() { ask isSyncing | grep -q false; }

sync_now() {
    busctl --user call $bus_name /CaravelHelper org.caravel.CaravelHelperProtocol syncNow 'a{sv}' 0
}

# Has the helper start one and goes on when it is at work, its pause before that over.
sync_begins() {
    sync_now
    until_ status_is 'Preparing to Sync...'
    until_ status_is_not 'Preparing to Sync...'
}

# Syncs by hand; what is said stays in /tmp/said. sync_says TEXT [EXIT-STATUS]
sync_says() {
    until_ stick_is_known
    local status=0
    caravel sync >/tmp/said 2>&1 || status=$?
    says "$1"
    [[ $status == "${2:-0}" ]] || fail "caravel sync ended with $status, not ${2:-0}"
}
says() { grep -qF -- "$1" /tmp/said || fail "not said: $1; but: $(tail -n 3 /tmp/said | tr '\n' ' ')"; }
never_says() { ! grep -qF -- "$1" /tmp/said || fail "said: $1"; }
logged() { caravel log | grep -F -- "$1" >/dev/null || fail "not in the log: $1"; }

# at_most VALUE LIMIT WHAT
at_most() {
    echo "$3: $1 (at most $2)"
    awk -v value="$1" -v limit="$2" 'BEGIN { exit !(value != "" && value <= limit) }' ||
        fail "$3: $1, more than $2"
}

# --- Playing

scenarios() { sed -n 's/^## //p' "$story"; }
part() { awk -v name="$1" '/^## / { found = substr($0, 4); next } found == name' "$story"; }

play() {
    rm -rf /tmp/reason /tmp/*.log /tmp/said
    (
        set -eE
        trap 'echo "$BASH_COMMAND" >>/tmp/reason; exit 1' ERR
        home_is "/tmp/home-${1// /-}"
        eval "$(part '')"
        eval "$(part "$1")"
        ! helper_is_there || helper_quits
    )
    local status=$?
    case $status in
    0) say passed ;;
    77) say skipped "$(head -n 1 /tmp/reason)" ;;
    *)
        tail -n 40 /tmp/said /tmp/*.log 2>/dev/null
        dmesg | tail -n 8
        grep " $place " /proc/mounts
        say failed "$(head -n 1 /tmp/reason 2>/dev/null)"
        ;;
    esac
    pkill -x caravel-helper
    umount -l /media/PSP /media/root/* 2>/dev/null
}

stty -echo </dev/console
story=/project/lab/stories/$LAB_STORY.txt
# A bus that starts no services of the desktop's.
cat >/run/bus.conf <<'CONF'
<busconfig><type>session</type><listen>unix:path=/run/bus</listen><auth>EXTERNAL</auth>
<policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/>
<allow own="*"/></policy></busconfig>
CONF
mkdir -m 700 /run/user
dbus-daemon --config-file=/run/bus.conf --fork
export DBUS_SESSION_BUS_ADDRESS=unix:path=/run/bus XDG_RUNTIME_DIR=/run/user
while read -r scenario; do
    [[ -z ${LAB_SHORT:-} || $scenario != *+ ]] || continue # those with a "+" belong to the long form
    [[ -z ${LAB_ONLY:-} || ${scenario% +} == "$LAB_ONLY" ]] || continue
    [[ $LAB_BOOT == 1 || $scenario == "$LAB_SCENARIO" || -n ${reached:-} ]] || continue
    reached=yes
    say begins "$scenario"
    play "$scenario" </dev/null
done < <(scenarios)
