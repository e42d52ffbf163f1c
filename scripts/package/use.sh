#!/bin/sh
# What a first visitor does with the installed package, in a session of their own.
set -eu

export HOME=/home/visitor LANG=C.UTF-8 CARAVEL_VOLUMES=/home/visitor/volumes
cd "$HOME"
mkdir -p volumes/STICK/PSP Documents/Caravel/Dropboxes/Music
: >volumes/STICK/MEMSTICK.IND
printf 'no real song, but a file' >Documents/Caravel/Dropboxes/Music/Song.mp3

caravel sources # which the bus starts the helper for
caravel status
caravel sync
cmp Documents/Caravel/Dropboxes/Music/Song.mp3 volumes/STICK/PSP/MUSIC/Song.mp3
caravel report
test -f .config/autostart/caravel-helper.desktop
