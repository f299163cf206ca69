# shellcheck shell=bash
# Completion of tarnwick-device's options, and of the folder that --ports takes.

_tarnwick_device() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    local options='-h --help --header --crc --delay --split --garbage --chatter --mute --seed --ports --name'
    COMPREPLY=()
    case $before in
        --ports) mapfile -t COMPREPLY < <(compgen -d -- "$word") ;;
        --header | --delay | --garbage | --chatter | --seed | --name) ;;
        *) mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word") ;;
    esac
}

complete -o filenames -F _tarnwick_device tarnwick-device
