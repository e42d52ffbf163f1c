#!/bin/bash
# Converts one movie to what a PSP plays, and makes a 160x120 JPEG of it. The movie is MPEG-4 video of
# the Simple Profile, or H.264 at the two larger sizes, with AAC, in the PSP's own kind of MP4: brand
# "MSNV", boxes "PROF" and "USMT". The console doesn't list a plain one.
#
# convert.sh SOURCE TITLE MOVIE THUMBNAIL RESOLUTION VIDEO-QUALITY AUDIO-QUALITY UNUSED
#            DEINTERLACE VOLUME UNUSED UNUSED
#
#   RESOLUTION     0 = 320x240, 1 = 368x208, 2 = 480x272, 3 = 720x480: the picture fits inside.
#                  Firmware before 3.30 doesn't show 2 and 3
#   VIDEO-QUALITY  0 = 14.985 frames per second, 1 to 3 = 29.97, at rising rates
#   AUDIO-QUALITY  0 to 3, at rising rates
#   DEINTERLACE    1 = yes
#   VOLUME         per cent, 0 to 1000
#
# Prints "Duration: HH:MM:SS.t, start: ..." and "Output: ..." and then, in writes of their own,
# "frame=N ... q=Q ..." lines that end in carriage returns. Callers count characters back from
# ", start: ", so the duration has exactly one decimal, and nothing that comes from a file or an
# argument is printed before it.
#
# Exits 0 when MOVIE is complete; the thumbnail alone may be missing then, and a line "Warning: ..."
# says where the source had less than it promised. Otherwise it says why in one line that begins
# with "convert.sh: " and exits with another status. MOVIE and THUMBNAIL are written under the name
# "….part" and renamed at the end. TERM, INT and HUP end it at once and leave nothing behind.

set -u
export LC_ALL=C AV_LOG_FORCE_NOCOLOR=1
unset FFREPORT

# By resolution.
readonly widths=(320 368 480 720) heights=(240 208 272 480)
# By resolution and video quality: kbit/s that the rate stays below, H.264 over some seconds. The
# Simple Profile plays up to 768, H.264 to about 2 Mbit/s.
readonly peak_rates=(256 384 576 768 256 384 576 768 384 640 960 1408 768 1216 1600 2000)
# By video quality. 720x480 at 30000/1001 is the most that level 3.0 permits. A key frame every
# three seconds keeps the PSP's seeking quick.
readonly rate_factors=(28 25 22 20) frame_rates=(15000/1001 30000/1001 30000/1001 30000/1001)
readonly rate_names=(14.985 29.97 29.97 29.97) key_intervals=(45 90 90 90)
# By audio quality: kbit/s.
readonly audio_rates=(64 96 128 160)
readonly audio_rate=48000

deinterlace=0
child=
child_output=
last_error=
notes=()
declare -A probe=()

quoted() { printf "'%s'" "${1//[[:cntrl:]]/?}"; }

fail() {
    printf 'convert.sh: %s\n' "${1//[[:cntrl:]]/ }" >&2
    exit 1
}

# Nobody waits for the movie once the output can't be written.
say() {
    # shellcheck disable=SC2059 # the callers give the format
    printf "$@" 2>/dev/null || exit 1
}

# Everything that the child made is thrown away, so there is nothing for it to finish.
end_child() {
    [[ -n $child ]] || return
    kill -KILL "$child" 2>/dev/null
    wait "$child" 2>/dev/null
    child=
}

clean_up() {
    trap '' TERM INT HUP PIPE
    end_child
    rm -f -- "$movie_part" "$thumbnail_part"
}

# Starts a program whose output next_line reads. It runs beside the shell, for the shell takes no
# signal while it waits for a program in front, and it dies with the shell even when that is killed.
start_child() {
    local bind=()
    command -v setpriv >/dev/null && bind=(setpriv --pdeathsig KILL)
    exec {child_output}< <(exec "${bind[@]}" "$@" </dev/null 2>&1)
    child=$!
}

next_line() { IFS= read -r -u "$child_output" line || [[ -n $line ]]; }

# Answers with the child's exit status.
end_of_child() {
    local status=0
    exec {child_output}<&-
    wait "$child" || status=$?
    child=
    return "$status"
}

remember_error() {
    case $1 in
        '' | 'Conversion failed!' | *'Last message repeated'*) ;;
        *) last_error=${1#\[*@ 0x*\] } ;; # without which of ffmpeg's parts says it
    esac
}

# Fills probe with what ffprobe knows, as "streams.stream.0.width" and so on. The further
# arguments are ffprobe's own. Reading is confined to local files: a playlist could name others.
# An error that repeats a file's own text could look like a value, and the shell would run what stands in
# one that it counts with: only what names, numbers and ratios are made of counts.
probe_file() {
    local file=$1 line key value harmless='[a-zA-Z0-9_.,:/+-]'
    shift
    probe=()
    start_child ffprobe -v error -protocol_whitelist file,crypto,data -of flat "$@" "file:$file"
    while next_line; do
        if [[ $line =~ ^((streams|format)\.[a-z0-9_.]+)=\"?($harmless*)\"?$ ]]; then
            key=${BASH_REMATCH[1]} value=${BASH_REMATCH[3]}
            probe[$key]=$value
        else
            remember_error "$line"
        fi
    done
    end_of_child
}

stream_value() { printf '%s' "${probe[streams.stream.$1.$2]-}"; }

# Sets the named variable to the value where it is a valid one, else to the default, to be noted
# once the duration is out.
set_checked() {
    local name=$2 value=$3 pattern=$4 default=$5
    printf -v "$1" '%s' "$value"
    [[ $value =~ ^($pattern)$ ]] && return
    printf -v "$1" '%s' "$default"
    notes+=("the $name $(quoted "$value") is unknown, $default is used")
}

read_arguments() {
    (($# >= 4)) || fail 'needs a source, a title, a movie to write and a thumbnail to write'
    source_path=$1 title=$2 movie=$3 thumbnail=$4
    set_checked resolution 'resolution' "${5-}" '[0-3]' 0
    set_checked video_quality 'video quality' "${6-}" '[0-3]' 2
    set_checked audio_quality 'audio quality' "${7-}" '[0-3]' 2
    set_checked deinterlace 'deinterlacing' "${9-}" '[01]' 0
    set_checked volume 'volume' "${10-}" '[0-9]{1,3}|1000' 100
    volume=$((10#$volume))
    movie_part=$movie.part thumbnail_part=$thumbnail.part
}

folder_of() {
    case $1 in
        */*) printf '%s/' "${1%/*}" ;;
        *) printf '.' ;;
    esac
}

check_surroundings() {
    local program output folder
    for program in ffmpeg ffprobe; do
        command -v "$program" >/dev/null || fail "$program is not installed"
    done
    [[ -e $source_path ]] || fail "there is no source $(quoted "$source_path")"
    [[ -f $source_path ]] || fail "the source $(quoted "$source_path") is no file"
    [[ -r $source_path ]] || fail "the source $(quoted "$source_path") can't be read"
    for output in "$movie" "$movie_part" "$thumbnail" "$thumbnail_part"; do
        [[ ! $source_path -ef $output ]] || fail "$(quoted "$output") is the source itself"
    done
    [[ -n $movie && -n $thumbnail ]] || fail 'the names of the movie and the thumbnail are empty'
    folder=$(folder_of "$movie")
    [[ -d $folder ]] || fail "there is no output folder $(quoted "$folder")"
    [[ -w $folder ]] || fail "the output folder $(quoted "$folder") can't be written to"
    [[ ! -d $movie ]] || fail "$(quoted "$movie") is a folder"
}

# Cover pictures are video streams too, but none that moves.
find_streams() {
    local number type
    video='' audio=''
    for ((number = 0; ; ++number)); do
        type=$(stream_value "$number" codec_type)
        [[ -n $type ]] || break
        case $type in
            video)
                [[ -z $video && $(stream_value "$number" disposition.attached_pic) != 1 ]] || continue
                (($(stream_value "$number" width) > 0)) && video=$number
                ;;
            audio)
                (($(stream_value "$number" channels) > 0)) || continue
                [[ $(stream_value "$number" codec_name) != unknown ]] || continue
                [[ -z $audio || ($audio_is_default != 1 && $(stream_value "$number" disposition.default) == 1) ]] || continue
                audio=$number audio_is_default=$(stream_value "$number" disposition.default)
                ;;
        esac
    done
}

probe_source() {
    local name
    name=$(quoted "$source_path")
    probe_file "$source_path" -show_entries \
        'stream=codec_type,codec_name,width,height,channels,sample_aspect_ratio,duration,start_time,avg_frame_rate:stream_disposition=default,attached_pic:stream_side_data=rotation:format=format_name,duration,start_time' ||
        fail "the source $name can't be read as a movie: ${last_error:-no reason given}"
    format=${probe[format.format_name]-}
    case $format in
        image2 | *_pipe | tty) fail "the source $name is no movie" ;;
    esac
    find_streams
    [[ -n $video ]] || fail "the source $name has no video"
}

# Sets width and height to the largest even size inside the chosen one, in square pixels.
fit_picture() {
    local box_width=${widths[resolution]} box_height=${heights[resolution]}
    local across down key swap
    across=$(stream_value "$video" width) down=$(stream_value "$video" height)
    if [[ $(stream_value "$video" sample_aspect_ratio) =~ ^([1-9][0-9]*):([1-9][0-9]*)$ ]]; then
        across=$((across * BASH_REMATCH[1])) down=$((down * BASH_REMATCH[2]))
    fi
    for key in "${!probe[@]}"; do
        [[ $key == "streams.stream.$video.side_data_list."*.rotation ]] || continue
        [[ ${probe[$key]#-} =~ ^(89|90|91|269|270|271)$ ]] || continue
        swap=$across across=$down down=$swap
    done
    width=$box_width height=$box_height
    if ((across * box_height >= box_width * down)); then
        height=$((2 * ((box_width * down + across) / (2 * across))))
    else
        width=$((2 * ((box_height * across + down) / (2 * down))))
    fi
    # Pictures like banners would vanish; they get bars instead.
    ((width >= 16)) || width=16
    ((height >= 16)) || height=16
}

# Prints a count of seconds in tenths, rounded; fails on anything that is no number.
tenths() {
    [[ $1 =~ ^([0-9]{1,9})(\.([0-9]{1,2}))? ]] || return
    local hundredths=${BASH_REMATCH[3]}00
    printf '%d' $((10#${BASH_REMATCH[1]} * 10 + (10#${hundredths:0:2} + 5) / 10))
}

# Sets duration for files that don't say how long they are: reads them once, without decoding.
count_duration() {
    local line last='' count=0 rate
    duration=0
    rate=$(stream_value "$video" avg_frame_rate)
    start_child ffprobe -v quiet -protocol_whitelist file,crypto,data -of csv=p=0 \
        -select_streams "$video" -show_entries packet=pts_time "file:$source_path"
    while next_line; do
        [[ $line =~ ^[0-9]+\.[0-9] ]] && last=$line
        count=$((count + 1))
    done
    end_of_child
    if [[ -n $last ]]; then
        duration=$(tenths "$last")
    elif [[ $rate =~ ^([1-9][0-9]*)/([1-9][0-9]*)$ ]]; then
        duration=$((count * 10 * BASH_REMATCH[2] / BASH_REMATCH[1]))
    fi
}

# Sets duration to the movie's length in tenths of a second. Bare streams are measured: what they
# are said to last is guessed from a bit rate.
find_duration() {
    local start offset
    case $format in
        h264 | hevc | m4v | mpegvideo | mjpeg | vc1 | obu | av1 | cavsvideo | dirac | h263 | h261)
            count_duration
            return
            ;;
    esac
    if duration=$(tenths "$(stream_value "$video" duration)"); then
        start=$(tenths "${probe[format.start_time]-}") || return 0
        offset=$(tenths "$(stream_value "$video" start_time)") || return 0
        ((offset <= start)) || duration=$((duration + offset - start))
    else
        duration=$(tenths "${probe[format.duration]-}") || count_duration
    fi
}

announce() {
    local seconds=$((duration / 10)) note
    say 'Duration: %02d:%02d:%02d.%d, start: 0.000000\n' \
        $((seconds / 3600)) $((seconds / 60 % 60)) $((seconds % 60)) $((duration % 10))
    say 'Output: %dx%d at %s frames per second, %s to %d kbit/s, AAC %d kbit/s\n' "$width" "$height" \
        "${rate_names[video_quality]}" "$codec" "$peak_rate" "${audio_rates[audio_quality]}"
    for note in ${notes[@]+"${notes[@]}"}; do
        say 'Note: %s\n' "$note"
    done
}

# The size is fitted again for every frame and padded to the fixed one, since a recording's shape
# may change on the way. Frames and samples start at 0, for the PSP doesn't honour an offset.
video_filters() {
    ((deinterlace)) && printf 'bwdif=mode=send_frame:deint=all,'
    fitted "$width" "$height"
    printf ',fps=%s:start_time=0,format=yuv420p' "${frame_rates[video_quality]}"
}

fitted() {
    printf '%s' "scale=w='max(2,2*round(min($1,$2*dar)/2))':h='max(2,2*round(min($2,$1/dar)/2))'," \
        "pad=$1:$2:-1:-1,setsar=1"
}

audio_filters() {
    printf 'aresample=async=1:first_pts=0,aformat=sample_rates=%d:channel_layouts=stereo' "$audio_rate"
    ((volume == 100)) || printf ',volume=%d/100' "$volume"
    ((volume <= 100)) || printf ',alimiter=limit=0.98:level=disabled'
}

# Sets codec and encoder. Neither has B frames, and Main profile without weighted prediction decodes
# in order on every firmware.
choose_codec() {
    peak_rate=${peak_rates[resolution * 4 + video_quality]}
    if ((resolution <= 1)); then
        codec=MPEG-4
        encoder=(-c:v mpeg4 -tag:v mp4v -profile:v 0 -level:v 3 -mbd rd -b:v "$((peak_rate * 7 / 8))k"
            -bufsize "$((peak_rate / 2))k" -rc_init_occupancy "$((peak_rate / 8))k")
    else
        codec=H.264
        encoder=(-c:v libx264 -tag:v avc1 -preset fast -profile:v main -level:v 3.0 -refs 2
            -x264-params weightp=0 -crf "${rate_factors[video_quality]}" -bufsize "${peak_rate}k")
    fi
}

# Sets command. A source without sound gets a silent track, of 2 kbit/s: the PSP's player is made
# for movies with sound and runs by its clock.
build_command() {
    # shellcheck disable=SC2054 # the comma is part of a word
    command=(ffmpeg -hide_banner -nostdin -loglevel error -nostats -progress pipe:1 -stats_period 0.2 -y
        -protocol_whitelist file,crypto,data -i "file:$source_path")
    if [[ -n $audio ]]; then
        command+=(-map "0:$video" -map "0:$audio" -filter:a "$(audio_filters)")
    else
        command+=(-f lavfi -i "anullsrc=channel_layout=stereo:sample_rate=$audio_rate"
            -map "0:$video" -map 1:a -shortest)
    fi
    command+=(-map_metadata -1 -map_chapters -1 -metadata "title=$title" -filter:v "$(video_filters)"
        "${encoder[@]}" -bf 0 -slices 1 -g "${key_intervals[video_quality]}" -maxrate "${peak_rate}k"
        -c:a aac -profile:a aac_low -b:a "${audio_rates[audio_quality]}k" -ar "$audio_rate" -ac 2
        -f psp "file:$movie_part")
}

# ffmpeg's progress comes as "key=value" lines, a block at a time, each closed by "progress=". They
# are put together here rather than passed on, so that an error in between can't spoil a line.
convert() {
    local line frame=0 quality=0.0 time=''
    start_child "${command[@]}"
    while next_line; do
        case $line in
            frame=*) frame=${line#frame=} ;;
            stream_0_0_q=*) quality=${line#*=} ;;
            out_time=*) time=${line#*=} ;;
            progress=end) say 'frame=%5d q=%s time=%s\n' "$frame" "$quality" "$time" ;;
            progress=*) say 'frame=%5d q=%s time=%s\r' "$frame" "$quality" "$time" ;;
            fps=* | bitrate=* | total_size=* | out_time_*=* | dup_frames=* | drop_frames=* | speed=*) ;;
            *) note_error "$line" ;;
        esac
    done
    end_of_child
}

note_error() {
    remember_error "$1"
    case $1 in
        *'No space left on device'* | *'Disk quota exceeded'*) disk_is_full=1 ;;
    esac
}

# Every frame that the index names is read back. Edit lists would hide the ones that they cut off.
check_movie() {
    local number frames
    probe_file "$movie_part" -count_packets -ignore_editlist 1 \
        -show_entries stream=nb_frames,nb_read_packets,duration || return
    for number in 0 1; do
        frames=$(stream_value "$number" nb_frames)
        ((frames > 0)) && [[ $frames == "$(stream_value "$number" nb_read_packets)" ]] || return
    done
}

make_movie() {
    local status=0
    disk_is_full=0
    convert || status=$?
    ((disk_is_full == 0)) || fail "the disk is full: $(quoted "$movie")"
    ((status == 0)) || fail "the conversion of $(quoted "$source_path") failed: ${last_error:-ffmpeg ended with status $status}"
    check_movie || fail "the conversion of $(quoted "$source_path") gave no whole movie: ${last_error:-no reason given}"
    note_early_end
}

# A source that was cut off still gives a movie of what there is.
note_early_end() {
    made=$(tenths "$(stream_value 0 duration)") || made=0
    ((made + 20 >= duration || made * 20 >= duration * 19)) ||
        say 'Warning: the source ends after %d of %d seconds%s\n' $((made / 10)) $((duration / 10)) \
            "${last_error:+: $last_error}"
}

# Takes the most telling of some frames after the given second.
grab_thumbnail() {
    local line
    start_child ffmpeg -hide_banner -nostdin -loglevel error -y -ss "$1" -i "file:$movie_part" -map 0:v:0 \
        -vf "thumbnail=50,$(fitted 160 120),format=yuvj420p" -frames:v 1 -c:v mjpeg -q:v 3 \
        -f mjpeg "file:$thumbnail_part"
    while next_line; do remember_error "$line"; done
    end_of_child && [[ -s $thumbnail_part ]]
}

make_thumbnail() {
    grab_thumbnail "$((made / 100)).$((made / 10 % 10))" || grab_thumbnail 0 || {
        rm -f -- "$thumbnail_part"
        say 'Note: no thumbnail could be made: %s\n' "${last_error:-no reason given}"
    }
}

# From here on the movie is whole: a signal no longer stops it half-way between two renames. An
# earlier movie's thumbnail must not pass for this one's.
put_in_place() {
    trap '' TERM INT HUP PIPE
    if [[ -e $thumbnail_part ]]; then
        mv -fT -- "$thumbnail_part" "$thumbnail"
    else
        rm -f -- "$thumbnail"
    fi
    mv -fT -- "$movie_part" "$movie" || fail "$(quoted "$movie") can't be written"
}

main() {
    read_arguments "$@"
    check_surroundings
    trap clean_up EXIT
    trap 'exit 143' TERM
    trap 'exit 130' INT
    trap 'exit 129' HUP
    trap 'exit 141' PIPE
    rm -f -- "$movie_part" "$thumbnail_part"
    probe_source
    fit_picture
    find_duration
    choose_codec
    announce
    build_command
    make_movie
    make_thumbnail
    put_in_place
}

main "$@"
