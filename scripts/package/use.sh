#!/bin/sh
# What a first visitor does with the installed package, in a session of their own.
set -eu

if [ -z "${DBUS_SESSION_BUS_ADDRESS-}" ]; then
    export HOME=/home/visitor CARAVEL_VOLUMES=/home/visitor/volumes
    exec dbus-run-session -- "$0"
fi
cd "$HOME"
mkdir -p volumes/STICK/PSP Documents/Caravel/Dropboxes/Music
: >volumes/STICK/MEMSTICK.IND
printf 'no real song, but a file' >Documents/Caravel/Dropboxes/Music/Song.mp3

# The bus starts the helper, by its service file.
name=$(sed -n 's/^Name=//p' /usr/share/dbus-1/services/org.caravel.CaravelHelper_*.service)
dbus-send --session --print-reply --dest="$name" /CaravelHelper \
    org.caravel.CaravelHelperProtocol.isFirstSync >/dev/null
helper=$(pidof caravel-helper)
helper=${helper##* } # the first: one of its own children may be on the way
caravel sources
caravel status
caravel sync
cmp Documents/Caravel/Dropboxes/Music/Song.mp3 volumes/STICK/PSP/MUSIC/Song.mp3
caravel report
test -f .config/autostart/caravel-helper.desktop

printf 'another' >Documents/Caravel/Dropboxes/Music/Other.mp3
touch used
until [ -e upgraded ]; do
    sleep 0.1
done
kill -0 "$helper"
caravel status >/dev/null
while kill -0 "$helper" 2>/dev/null; do
    sleep 0.1
done
# The new one syncs the stick, which it knows, by itself.
until cmp -s Documents/Caravel/Dropboxes/Music/Other.mp3 volumes/STICK/PSP/MUSIC/Other.mp3; do
    sleep 0.1
done
caravel --version
echo "The helper of the upgrade took over"
