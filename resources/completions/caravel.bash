# Completion of caravel for bash; read when it is first asked for.

_caravel()
{
    local word=${COMP_WORDS[COMP_CWORD]} command=${COMP_WORDS[1]-} words=
    if ((COMP_CWORD == 1)); then
        words='status watch log sync plan report cancel eject estimate sources list select movies saves
               prefs --help --version'
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
        return
    fi
    case $command in
    status | watch | report | estimate | sources) words=--json ;;
    log) words='--follow --clear --json' ;;
    sync) words='--no-wait --dry-run' ;;
    plan) words='music photos movies bookmarks contacts saves --all --json' ;;
    list) words='music photos bookmarks movies saves --json' ;;
    select)
        words='--add --remove --all --none'
        ((COMP_CWORD > 2)) || words='music photos bookmarks movies saves'
        ;;
    movies)
        words='add remove rename'
        if ((COMP_CWORD > 2)); then
            words=
            if [[ ${COMP_WORDS[2]} == add ]]; then
                compopt -o default
            fi
        fi
        ;;
    saves)
        words='restore delete --json'
        ((COMP_CWORD == 2)) || words=--yes
        ;;
    prefs)
        words="--json $(caravel prefs 2>/dev/null | sed 's/ = .*//')"
        ((COMP_CWORD == 2)) || words=
        ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words --help" -- "$word")
}
complete -F _caravel caravel
