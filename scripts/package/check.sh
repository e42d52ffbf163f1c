#!/usr/bin/env bash
# Installs a package in a fresh Debian root, uses it as its user would, upgrades and removes it.
# Usage: check.sh PACKAGE
set -euo pipefail

package=$(realpath "$1")
here=$(realpath "$(dirname "$0")")
root=$(mktemp -d)
scratch=$(mktemp -d)
session=
clean_up() {
    [[ -z $session ]] || kill -- "-$session" 2>/dev/null || true
    ! mountpoint -q "$root/proc" || umount "$root/proc"
    rm -rf --one-file-system -- "$root" "$scratch"
}
trap clean_up EXIT
chmod 755 "$root"

say() {
    printf '== %s\n' "$*"
}

inside() {
    chroot "$root" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive "$@"
}

apt_get() {
    inside apt-get -qq -y --no-install-recommends "$@" >"$scratch/apt" 2>&1 || {
        tail -n 20 "$scratch/apt" >&2
        return 1
    }
}

# Of the machine's own sources Debian's: the root has no keys of others.
debian_sources() {
    local file
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
        [[ ! -f $file ]] || grep -E '^deb .*/debian(-security)?/? ' "$file" || true
    done >"$scratch/list"
    for file in /etc/apt/sources.list.d/*.sources; do
        [[ ! -f $file ]] || awk -v RS= -v ORS='\n\n' '/\/debian(-security)?\/?(\n| )/' "$file"
    done >"$scratch/sources"
}

files_of_root() {
    inside find / -xdev \( -path /proc -o -path /sys -o -path /dev -o -path /run -o -path /tmp \
        -o -path /home -o -path /var/cache -o -path /var/lib/apt -o -path /var/lib/dpkg \
        -o -path /var/log \) -prune -o -print | sort
}

# The same package as a later build, which therefore has another name on the bus.
make_newer() {
    local tree=$scratch/newer service
    dpkg-deb -R "$package" "$tree"
    sed -i 's/^Version: .*/&+newer/' "$tree/DEBIAN/control"
    find "$tree" -name Info.plist -exec sed -i '/CFBundleVersion/{n;s/>[0-9]*</>999</}' {} +
    service=$(echo "$tree"/usr/share/dbus-1/services/org.caravel.CaravelHelper_*.service)
    sed -i 's/^\(Name=.*_\)[0-9]*$/\1999/' "$service"
    mv "$service" "${service%_*}_999.service"
    dpkg-deb --build --root-owner-group "$tree" "$root/tmp/newer.deb" >"$scratch/apt"
}

wait_for() {
    local tries=600
    until [[ -e $1 ]]; do
        kill -0 "$session" 2>/dev/null || { wait "$session"; return 1; }
        ((tries-- > 0)) || { echo "check.sh: $1 doesn't come" >&2; return 1; }
        sleep 0.1
    done
}

say "A fresh root"
debian_sources
lists=()
for file in "$scratch/list" "$scratch/sources"; do
    [[ ! -s $file ]] || lists+=("$file")
done
mmdebstrap --quiet --mode=root --variant=minbase bookworm "$root" "${lists[@]}"
cp --remove-destination -L /etc/resolv.conf "$root/etc/resolv.conf"
mount -t proc proc "$root/proc"
inside useradd --create-home visitor
apt_get update
apt_get satisfy "$(dpkg-deb -f "$package" Depends)"
files_of_root >"$scratch/before"

say "Installed"
cp "$package" "$root/tmp/caravel.deb"
apt_get install /tmp/caravel.deb
inside caravel --version
inside caravel-helper --version
inside caravel-window --version

say "Used"
make_newer
install -m 755 "$here/use.sh" "$root/tmp/use.sh"
set -m # a process group of its own, to be ended as a whole
inside runuser -u visitor -- /tmp/use.sh &
session=$!
set +m
wait_for "$root/home/visitor/used"

say "Upgraded under the running helper"
apt_get install /tmp/newer.deb
touch "$root/home/visitor/upgraded"
wait "$session"
session=

say "Removed"
apt_get purge caravel
files_of_root >"$scratch/after"
diff "$scratch/before" "$scratch/after"
program=$(sed -n 's/^TryExec=//p' "$root/home/visitor/.config/autostart/caravel-helper.desktop")
[[ -n $program && ! -e $root$program ]]
echo "Nothing is left but the user's own files, and an entry that starts nothing"
