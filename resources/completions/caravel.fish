# Completion of caravel for fish.

set -l commands status watch log sync plan report cancel eject estimate sources list select movies saves prefs

complete -c caravel -f
complete -c caravel -n "not __fish_seen_subcommand_from $commands" -a status -d 'Show the PSP, the sync and the size of the selection'
complete -c caravel -n "not __fish_seen_subcommand_from $commands" -a watch -d 'Show the state and every change of it'
complete -c caravel -n "not __fish_seen_subcommand_from $commands" -a log -d 'Show the log of the helper'
complete -c caravel -n "not __fish_seen_subcommand_from $commands" -a sync -d 'Sync now'
complete -c caravel -n "not __fish_seen_subcommand_from $commands" -a plan -d 'Show what a sync would do'
complete -c caravel -n "not __fish_seen_subcommand_from $commands" -a report -d 'Show how the last sync ended'
complete -c caravel -n "not __fish_seen_subcommand_from $commands" -a cancel -d 'Cancel the running sync'
complete -c caravel -n "not __fish_seen_subcommand_from $commands" -a eject -d 'Eject the PSP'
complete -c caravel -n "not __fish_seen_subcommand_from $commands" -a estimate -d 'Estimate how much of the PSP the selection takes'
complete -c caravel -n "not __fish_seen_subcommand_from $commands" -a sources -d 'List the media found on this computer'
complete -c caravel -n "not __fish_seen_subcommand_from $commands" -a list -d 'List what can be selected'
complete -c caravel -n "not __fish_seen_subcommand_from $commands" -a select -d 'Select what is synced'
complete -c caravel -n "not __fish_seen_subcommand_from $commands" -a movies -d 'Add, remove and rename movies'
complete -c caravel -n "not __fish_seen_subcommand_from $commands" -a saves -d 'Show, restore and delete the backups of game saves'
complete -c caravel -n "not __fish_seen_subcommand_from $commands" -a prefs -d 'Show and set the preferences'

complete -c caravel -n "__fish_seen_subcommand_from status watch log plan report estimate sources list saves prefs" -l json -d 'Print JSON'
complete -c caravel -n "__fish_seen_subcommand_from list select plan" -a "music photos bookmarks movies saves"
complete -c caravel -n "__fish_seen_subcommand_from plan" -a contacts
complete -c caravel -n "__fish_seen_subcommand_from plan" -l all -d 'List every file'
complete -c caravel -n "__fish_seen_subcommand_from select" -l add -d 'Select the names too'
complete -c caravel -n "__fish_seen_subcommand_from select" -l remove -d 'Deselect the names'
complete -c caravel -n "__fish_seen_subcommand_from select" -l all -d 'Select everything'
complete -c caravel -n "__fish_seen_subcommand_from select" -l none -d 'Select nothing'
complete -c caravel -n "__fish_seen_subcommand_from sync" -l no-wait -d 'Return at once'
complete -c caravel -n "__fish_seen_subcommand_from sync" -l dry-run -d 'Only say what it would do'
complete -c caravel -n "__fish_seen_subcommand_from log" -l follow -d 'Go on with new lines'
complete -c caravel -n "__fish_seen_subcommand_from log" -l clear -d 'Empty the log'
complete -c caravel -n "__fish_seen_subcommand_from movies" -a "add remove rename"
complete -c caravel -n "__fish_seen_subcommand_from movies; and __fish_seen_subcommand_from add" -F
complete -c caravel -n "__fish_seen_subcommand_from saves" -a "restore delete"
complete -c caravel -n "__fish_seen_subcommand_from saves" -l yes -d 'Delete without asking'
complete -c caravel -n "__fish_seen_subcommand_from prefs" -a "(caravel prefs 2>/dev/null | string replace -r ' = .*' '')"
