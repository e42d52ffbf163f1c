#!/usr/bin/env bash
# Takes the pictures of the guide and of the software centre: the real window and the real helper, with a
# home and a stick of sample media that lie where a user's would, in name spaces of their own.
set -euo pipefail

usage() {
    cat <<'EOT'
Usage: pictures.sh [--into DIR] [--look light|dark] [-- OPTION...]
Installs what is missing, builds, and takes the pictures anew. Needs no display.

  --into DIR   writes them there instead of docs/guide/pictures
  --look LOOK  light or dark ones only
  --help       this text

What follows "--" are options of the toolkit, as -reverse; CARAVEL_LOCALE (de_DE.UTF-8) has another language,
QT_SCALE_FACTOR another size.
EOT
}

project=$(cd "$(dirname "$0")/.." && pwd)
preset=${CARAVEL_PRESET:-release}

# In the name spaces: a user "robin", whose stick has 1 GB. What lies below the real /home stays in reach.
take() {
    local look=$2
    mount --bind "$1" /srv
    mount --bind "$project" /mnt
    export HOME=/home/robin XDG_RUNTIME_DIR=/home/.run CARAVEL_VOLUMES=/media/robin
    export LC_ALL=${CARAVEL_LOCALE:-C.UTF-8} QT_QPA_PLATFORM=offscreen
    unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME XDG_STATE_HOME DISPLAY WAYLAND_DISPLAY
    mount -t tmpfs none /home
    mount -t tmpfs none /media
    mkdir -p "$HOME" "$CARAVEL_VOLUMES"
    mkdir -m 700 "$XDG_RUNTIME_DIR"
    mount -t tmpfs -o size=983m none "$CARAVEL_VOLUMES"
    /mnt/scripts/pictures/make_media.py "$HOME" "$CARAVEL_VOLUMES/.waiting"
    cd "$HOME"
    dbus-run-session -- "/mnt/build/$preset/Caravel/Contents/tests/pictures" /srv "$look" "${@:3}"
}

if [[ ${1:-} == --inside ]]; then
    take "${@:2}"
    exit
fi

into=$project/docs/guide/pictures
looks=(light dark)
while (($#)); do
    case $1 in
    --into) into=$(mkdir -p "$2" && cd "$2" && pwd) && shift ;;
    --look) looks=("$2") && shift ;;
    -h | --help) usage && exit 0 ;;
    --) shift && break ;;
    *) usage >&2 && exit 2 ;;
    esac
    shift
done
"$project/scripts/install-dependencies.sh"
cd "$project"
cmake --preset "$preset"
cmake --build --preset "$preset" --parallel "$(nproc)" \
    --target pictures caravel-helper caravel_resources caravel_translations
mkdir -p "$into"
for look in "${looks[@]}"; do
    unshare --map-root-user --user --mount --mount-proc --pid --fork --kill-child "$0" --inside "$into" "$look" "$@"
done
