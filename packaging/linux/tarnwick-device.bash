# shellcheck shell=bash
# Completion of tarnwick-device's options, of the folder that --ports takes, and of --play's file.

_tarnwick_device() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    local options='-h --help --header --crc --delay --split --garbage --chatter --mute --seed --play --speed --ports --name'
    COMPREPLY=()
    case $before in
        --ports) mapfile -t COMPREPLY < <(compgen -d -- "$word") ;;
        --play) mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
        --header | --delay | --garbage | --chatter | --seed | --speed | --name) ;;
        *) mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word") ;;
    esac
}

complete -o filenames -F _tarnwick_device tarnwick-device
