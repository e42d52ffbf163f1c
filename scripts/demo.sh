#!/usr/bin/env bash
# Shows the whole road once: a home with music, photos, contacts, bookmarks and a movie, a stick with game
# saves in a folder, the helper on a private session bus, three syncs and an eject. Checks what came to lie
# on the stick and in the backups, and fails if it is wrong.
set -euo pipefail

usage() {
    cat <<'EOF'
Usage: demo.sh [--keep DIR]
Installs what is missing, builds, makes a sample home and a sample Memory Stick, syncs, and shows what
came to lie on the stick. Nothing outside the build folder and the sample is touched.

  --keep DIR   make home and stick in DIR (home, volumes/MEMORYSTICK) and leave them there
  --help       this text
EOF
}

heading() { printf '\n== %s\n' "$*"; }

fail() {
    printf '\ndemo.sh: FAILED: %s\n' "$*" >&2
    if [[ -s ${helper_log:-} ]]; then
        printf 'What the helper wrote:\n' >&2
        sed 's/^/  | /' "$helper_log" >&2
    fi
    exit 1
}

# --- The sample, then the rest on a bus of its own

main() {
    local keep=''
    while (($#)); do
        case $1 in
        --keep)
            [[ -n ${2:-} ]] || { usage >&2; exit 2; }
            keep=$2
            shift
            ;;
        --keep=?*) keep=${1#*=} ;;
        -h | --help) usage; exit 0 ;;
        *) usage >&2; exit 2 ;;
        esac
        shift
    done

    local project sample
    project=$(cd "$(dirname "$0")/.." && pwd)
    if [[ -n $keep ]]; then
        mkdir -p "$keep"
        sample=$(cd "$keep" && pwd)
        if [[ -e $sample/home || -e $sample/volumes ]]; then
            fail "$sample holds a sample already; name another folder"
        fi
    else
        temporary=$(mktemp -d)
        trap 'rm -rf -- "$temporary"' EXIT
        sample=$temporary
    fi

    heading "Build"
    (
        cd "$project"
        scripts/install-dependencies.sh
        cmake --preset release
        cmake --build --preset release --parallel "$(nproc)" \
            --target caravel caravel-helper caravel_resources caravel_translations
    )
    heading "A home full of media, and a stick, in $sample"
    mkdir -p "$sample/home" "$sample/volumes"
    "$project/scripts/demo/make_sample.py" "$sample/home" "$sample/volumes/MEMORYSTICK"
    (cd "$sample/home" && find . -type f -printf '%10s  %P\n' | sort -k 2)

    # Neither the user's own folders nor the user's own bus has a part in this.
    unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME XDG_STATE_HOME CARAVEL_VOLUMES
    mkdir -m 700 "$sample/run"
    HOME=$sample/home XDG_RUNTIME_DIR=$sample/run LC_ALL=C.UTF-8 \
        dbus-run-session -- "$0" --on-private-bus "$project" "$sample"

    if [[ -n $keep ]]; then
        printf '\nKept: %s and %s\n' "$sample/home" "$sample/volumes/MEMORYSTICK"
    fi
}

# --- What the demo looks at

# show_tree: the stick's folders and files with their sizes.
show_tree() {
    (cd "$stick" && find . -mindepth 1 \( -type d -printf '%10s  %P/\n' -o -printf '%10s  %P\n' \)) |
        sed -E 's|^ *[0-9]+  (.*/)$|         -  \1|' | sort -k 2
}

# wait_for SECONDS WHAT COMMAND...: until the command succeeds.
wait_for() {
    local deadline=$((SECONDS + $1)) what=$2
    shift 2
    until "$@"; do
        ((SECONDS < deadline)) || fail "waited in vain for $what"
        sleep 0.05
    done
}

helper_is_on_bus() {
    kill -0 "$helper" 2>/dev/null || fail "the helper ended at its start"
    dbus-send --session --print-reply --dest=org.freedesktop.DBus /org/freedesktop/DBus \
        org.freedesktop.DBus.ListNames |
        grep '"org\.caravel\.CaravelHelper_[0-9]*"' >/dev/null
}

run_caravel() {
    local word shown='$ caravel'
    for word; do
        [[ $word != *[!A-Za-z0-9-]* ]] || word="\"$word\""
        shown+=" $word"
    done
    printf '\n%s\n' "$shown"
    "$caravel" "$@" || fail "caravel $* ended with status $?"
}

# expect_music: the stick's music is exactly what standard input lists, one "place on the
# stick|source below home" per line, each a true copy.
expect_music() {
    local wanted=() place source
    while IFS='|' read -r place source; do
        wanted+=("$place")
        [[ -f $stick/PSP/MUSIC/$place ]] || fail "$place did not arrive"
        cmp -- "$stick/PSP/MUSIC/$place" "$HOME/$source" || fail "$place is no true copy of $source"
    done
    diff <(printf '%s\n' "${wanted[@]}" | sort) \
        <(cd "$stick/PSP/MUSIC" && find . -type f -printf '%P\n' | sort) ||
        fail "the stick's music is not what the selection wants (< wanted, > found)"
    diff <(printf '%s\n' "${wanted[@]}" | sed 's|/[^/]*$||' | sort -u) \
        <(cd "$stick/PSP/MUSIC" && find . -mindepth 1 -type d -printf '%P\n' | sort) ||
        fail "the stick's music folders are not those of its files (< wanted, > found)"
}

# expect_files FOLDER: the files below it on the stick are what standard input lists.
expect_files() {
    diff <(sort) <(cd "$stick/$1" && find . -type f -printf '%P\n' | sort) ||
        fail "$1 on the stick is not what the selection wants (< wanted, > found)"
}

# The page, and a picture of 64 by 64 pixels for each contact that has one.
expect_contacts() {
    local ada joao picture
    ada=$(printf ada | md5sum | cut -c 1-32).JPG
    joao=$(printf joao | md5sum | cut -c 1-32).JPG
    expect_files Caravel/Contacts < <(printf '%s\n' index.html "$ada" "$joao")
    for picture in "$ada" "$joao"; do
        [[ $(ffprobe -v error -show_entries stream=width,height -of csv=p=0 \
            "$stick/Caravel/Contacts/$picture") == 64,64 ]] || fail "$picture is no picture of 64 by 64"
    done
    grep -q 'Ada Quill.*João Conceição.*The Mill & Sons' <(tr -d '\n' <"$stick/Caravel/Contacts/index.html") ||
        fail "the contacts page lacks somebody"
}

expect_bookmarks() {
    local file=$stick/PSP/SYSTEM/BROWSER/bookmarks.html
    heading "The browser's bookmarks"
    cat "$file" && echo
    diff <(sed -n 's/.*<A HREF="\([^"]*\)".*>\(.*\)<\/A>$/\1 \2/p' "$file") - <<'EOF' ||
file:///Caravel/Contacts/index.html Caravel Contacts
http://tides.example.org/?port=7&unit=m Tides
http://news.example.org/ Harbour News
http://weather.example.org/ 海の天気
EOF
        fail "the bookmarks are not those of the chosen folders (> wanted, < found)"
}

# stick_save SAVE: a digest of the save's files on the stick.
stick_save() { (cd "$stick/PSP/SAVEDATA/$1" && find . -type f | sort | xargs sha256sum | sha256sum); }

movie_is_synced() {
    [[ -f $stick/MP_ROOT/100MNV01/M4V00001.MP4 ]] && "$caravel" status | grep -q 'Sync Successful'
}

foreign_files() {
    (cd "$stick" && sha256sum MEMSTICK.IND PSP/GAME/PUZZLE/EBOOT.PBP)
}

expect_icon() {
    local icons=$bundle/Helpers/CaravelHelper/Contents/Resources
    cmp -- "$stick/.VolumeIcon.icns" "$icons/PSP$(date +%-m).icns" || fail "the stick has another icon"
}

# --- On the private bus

start_helper() {
    "$bundle/Helpers/CaravelHelper/Contents/bin/caravel-helper" \
        --volumes-folder "$1" 2>>"$helper_log" &
    helper=$!
    trap 'kill -TERM "$helper" 2>/dev/null && wait "$helper" || true' EXIT
    wait_for 20 "the helper's name on the bus" helper_is_on_bus
}

stop_helper() {
    local status=0
    kill -TERM "$helper"
    wait "$helper" || status=$?
    ((status == 0)) || fail "the helper ended with status $status"
}

# make_plain_home PROJECT: songs with tags and a list, pictures, and the bookmarks of a browser of today.
make_plain_home() {
    local media=$1/tests/modules/sources
    mkdir -p "$HOME/Music/Band/First" "$HOME/Pictures/Sea" "$HOME/.config/chromium/Default"
    local name
    for name in "Band/First/tagged.mp3" "Band/First/tagged.m4a" "Band/tagged.wav"; do
        unpack "$media/${name##*/}.z" >"$HOME/Music/$name"
    done
    printf '#EXTM3U\nBand\\First\\tagged.m4a\nhttp://radio.example/stream\n' >"$HOME/Music/Evening.m3u"
    cp "$(find "$sample/home/Pictures" -iname '*.jp*g' | sort | head -n 1)" "$HOME/Pictures/Sea/beach.jpg"
    unpack "$media/Bookmarks.z" >"$HOME/.config/chromium/Default/Bookmarks"
}

# unpack FILE: what tests/modules/sources/make_data.py packed.
unpack() {
    python3 -c 'import sys, zlib; sys.stdout.buffer.write(zlib.decompress(open(sys.argv[1], "rb").read()[4:]))' "$1"
}

# plain_home PROJECT: what another user has, who never had a library of the old programs.
plain_home() {
    heading "Another home, without any of these libraries: its media are found, chosen and synced"
    export HOME=$sample/plain/home
    stick=$sample/plain/volumes/MEMORYSTICK
    mkdir -p "$HOME" "$stick/PSP"
    touch "$stick/MEMSTICK.IND"
    make_plain_home "$1"
    (cd "$HOME" && find . -type f -printf '%10s  %P\n' | sort -k 2)
    start_helper "$sample/plain/volumes"
    run_caravel list music
    run_caravel sources
    run_caravel prefs musicSource 1
    run_caravel prefs photosSource 1
    run_caravel prefs bookmarkSource 5
    run_caravel list music
    run_caravel select music Evening Band/First/
    run_caravel select photos --all
    run_caravel select bookmarks "Bookmarks Bar/News"
    run_caravel sync
    show_tree
    local album=$'Re\u0301cord' song=$'So\u0302ng'
    expect_music <<EOF
$album/207. Four.MP4|Music/Band/First/tagged.m4a
$album/207. Four.1.MP4|Music/Band/First/tagged.m4a
$album/207. $song.mp3|Music/Band/First/tagged.mp3
EOF
    grep -q 'https://news.example/' "$stick/PSP/SYSTEM/BROWSER/bookmarks.html" ||
        fail "the browser's bookmarks did not arrive"
    stop_helper
    trap - EXIT
}

on_private_bus() {
    local project=$1 sample=$2
    bundle=$project/build/release/Caravel/Contents
    caravel=$bundle/bin/caravel
    stick=$sample/volumes/MEMORYSTICK
    helper_log=$sample/helper.log
    local music="Music/iTunes/iTunes Music" before foreign kept_file
    # The stick's names are in canonical decomposition.
    local cafe=$'Cafe\u0301 at Seven'

    heading "The stick as it was"
    show_tree
    foreign=$(foreign_files)

    heading "The helper starts"
    start_helper "$sample/volumes"

    run_caravel list music
    run_caravel select music "Road Trip" "AC/DC: Live?"
    run_caravel list photos
    run_caravel select photos "Holiday" "Trip / 2006"
    run_caravel list bookmarks
    run_caravel select bookmarks "News" "Bookmarks Bar"
    run_caravel estimate
    run_caravel sync

    heading "The stick after the first sync"
    show_tree
    # Road Trip's lossless track and its stream are not among these.
    expect_music <<EOF
Harbour Lights/001. Casting Off.mp3|$music/The Paper Lanterns/Harbour Lights/01 Casting Off.mp3
Harbour Lights/002. Who's at the Helm_.mp3|$music/The Paper Lanterns/Harbour Lights/02 Who's at the Helm_.mp3
Slow Mornings/101. $cafe.MP4|$music/Ada Quill/Slow Mornings/01 Café at Seven.m4a
Live at the Mill/201. Sawdust.wav|$music/Northbound Trio/Live at the Mill/01 Sawdust.wav
Live at the Mill/202. The Wheel Turns.mp3|$music/Northbound Trio/Live at the Mill/02 The Wheel Turns.mp3
Live/Encore.MP4|Documents/Caravel/Dropboxes/Music/Live/Encore.m4a
EOF
    # Two pictures of one caption, a movie that is none, and a name that no FAT file system takes.
    expect_files PSP/PHOTO <<'EOF'
Cards/front.png
Holiday/Beach.1.JPG
Holiday/Beach.JPG
Trip _ 2006/Beach.JPG
Trip _ 2006/Map_ harbour_bay.png
EOF
    expect_contacts
    expect_bookmarks
    [[ $(foreign_files) == "$foreign" ]] || fail "another program's files were touched"
    [[ -f $stick/.caravel/MusicSyncIndex.plist && -f $stick/.caravel/LastSyncSize ]] ||
        fail "the stick has no record of the sync"
    expect_icon

    before=$(show_tree)
    kept_file="$stick/PSP/MUSIC/Harbour Lights/002. Who's at the Helm_.mp3"
    local kept_inode
    kept_inode=$(stat -c %i "$kept_file")
    local save=ULUS10001SLOT0 older
    older=$(stick_save "$save")
    printf 'night 4' | dd of="$stick/PSP/SAVEDATA/$save/DATA.BIN" conv=notrunc status=none
    run_caravel select music --remove "Road Trip"
    run_caravel select music --add "Recently Added"
    run_caravel sync

    heading "What the second sync changed (- went, + came)"
    diff --unchanged-line-format='' --old-line-format='- %L' --new-line-format='+ %L' \
        <(printf '%s\n' "$before") <(show_tree) || (($? == 1))
    expect_music <<EOF
Harbour Lights/002. Who's at the Helm_.mp3|$music/The Paper Lanterns/Harbour Lights/02 Who's at the Helm_.mp3
Harbour Lights/003. Night _ Day.mp3|$music/The Paper Lanterns/Harbour Lights/03 Night _ Day.mp3
Slow Mornings/102. Second Cup.MP4|$music/Ada Quill/Slow Mornings/02 Second Cup.m4a
Live at the Mill/201. Sawdust.wav|$music/Northbound Trio/Live at the Mill/01 Sawdust.wav
Live at the Mill/202. The Wheel Turns.mp3|$music/Northbound Trio/Live at the Mill/02 The Wheel Turns.mp3
Live/Encore.MP4|Documents/Caravel/Dropboxes/Music/Live/Encore.m4a
EOF
    [[ $(stat -c %i "$kept_file") == "$kept_inode" ]] || fail "a file that was in place was copied again"
    [[ $(foreign_files) == "$foreign" ]] || fail "another program's files were touched"

    heading "Both states of the game that was played on are kept; the older one comes back"
    run_caravel list saves
    run_caravel saves "$save"
    local newer backups
    newer=$(stick_save "$save")
    [[ $newer != "$older" ]] || fail "the game save didn't change"
    mapfile -t backups < <("$caravel" saves "$save" | awk '{print $1}')
    ((${#backups[@]} == 2)) || fail "there are ${#backups[@]} backups of $save instead of two"
    run_caravel saves restore "${backups[1]}"
    [[ $(stick_save "$save") == "$older" ]] || fail "the older game save did not come back"
    run_caravel saves "$save"
    (cd "$HOME/Documents/Caravel/Backup/Game Saves" && find . -type f -printf '%10s  %P\n' | sort -k 2)

    heading "A movie is converted, and synced when it is ready"
    run_caravel movies add "$HOME/Movies/Sailing Day.avi"
    "$caravel" watch >"$sample/watch.log" &
    local watch=$!
    wait_for 120 "the converted movie to reach the stick" movie_is_synced
    kill -INT "$watch"
    wait "$watch" || true
    sed 's/^/  | /' "$sample/watch.log"
    run_caravel list movies
    expect_files MP_ROOT <<'EOF'
100MNV01/M4V00001.MP4
100MNV01/M4V00001.THM
EOF
    ffprobe -v error -show_entries stream=codec_name,profile,width,height -of compact \
        "$stick/MP_ROOT/100MNV01/M4V00001.MP4"

    run_caravel status
    run_caravel log
    run_caravel eject
    wait_for 10 "the stick to be ejected" test -d "$sample/volumes/.ejected/MEMORYSTICK"

    heading "The helper stops"
    stop_helper
    trap - EXIT
    # Back into the slot, for whoever kept the sample.
    mv "$sample/volumes/.ejected/MEMORYSTICK" "$stick"
    rmdir "$sample/volumes/.ejected"
    plain_home "$project"
    [[ ! -s $helper_log ]] || sed 's/^/  | /' "$helper_log"
    printf '\nAll is as it should be: the selection is on the stick, and nothing else was touched.\n'
}

if [[ ${1:-} == --on-private-bus ]]; then
    on_private_bus "$2" "$3"
else
    main "$@"
fi
