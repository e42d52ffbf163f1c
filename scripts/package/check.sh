#!/usr/bin/env bash
# Installs a package in a fresh Debian root, uses it as its user would, and removes it.
# Usage: check.sh PACKAGE
set -euo pipefail

package=$(realpath "$1")
here=$(realpath "$(dirname "$0")")
root=$(mktemp -d)
trap 'rm -rf --one-file-system -- "$root"' EXIT
chmod 755 "$root"

say() {
    printf '== %s\n' "$*"
}

inside() {
    chroot "$root" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive "$@"
}

# The machine's own sources of packages, which it has the keys of.
sources=$(mktemp -d)
trap 'rm -rf --one-file-system -- "$root" "$sources"' EXIT
cat /etc/apt/sources.list /etc/apt/sources.list.d/*.list >"$sources/list" 2>/dev/null || true
for file in /etc/apt/sources.list.d/*.sources; do
    [[ ! -f $file ]] || cat "$file" >>"$sources/sources"
done

say "A fresh root"
lists=()
[[ ! -s $sources/list ]] || lists+=("$sources/list")
[[ ! -s $sources/sources ]] || lists+=("$sources/sources")
mmdebstrap --quiet --mode=root --variant=minbase bookworm "$root" "${lists[@]}"

say "Installed"
inside find / -xdev \( -path /proc -o -path /sys -o -path /dev -o -path /tmp -o -path /var/cache \
    -o -path /var/lib/apt -o -path /var/lib/dpkg -o -path /var/log \) -prune -o -print |
    sort >"$sources/before"
cp "$package" "$root/tmp/caravel.deb"
inside apt-get -qq update
inside apt-get -qq install -y --no-install-recommends /tmp/caravel.deb >"$sources/apt" 2>&1 || {
    tail -n 20 "$sources/apt" >&2
    exit 1
}
inside caravel --version
inside caravel-helper --version
QT_QPA_PLATFORM=offscreen inside env QT_QPA_PLATFORM=offscreen caravel-window --version

say "Used"
mount --bind /proc "$root/proc"
trap 'umount "$root/proc"; rm -rf --one-file-system -- "$root" "$sources"' EXIT
install -m 755 "$here/use.sh" "$root/tmp/use.sh"
inside useradd --create-home visitor
inside runuser -u visitor -- dbus-run-session -- /tmp/use.sh

say "Removed"
inside apt-get -qq purge -y caravel >"$sources/apt" 2>&1
rm -f "$root/tmp/caravel.deb" "$root/tmp/use.sh"
left=$(inside find / -xdev -iname '*caravel*' ! -path '/proc/*' ! -path '/home/*' ! -path '/var/log/*' \
    ! -path '/var/lib/apt/*' ! -path '/var/cache/*')
if [[ -n $left ]]; then
    printf 'Left behind:\n%s\n' "$left" >&2
    exit 1
fi
entry=$root/home/visitor/.config/autostart/caravel-helper.desktop
grep -q '^TryExec=' "$entry"
program=$(sed -n 's/^TryExec=//p' "$entry")
[[ ! -e $root$program ]]
echo "Nothing is left but the user's own files, and an entry that starts nothing"
