# shellcheck shell=bash
# Completion of tarnwick-run's options, and of what follows some of them.

_tarnwick_run() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    local options='-h --help --version --list-ports --list-hid --json --check --dry-run -p --port -b --baud
        --frame-format --hid --report-id --report-size --sim --wait-link --start --no-start --length --no-length --settings
        --crc --no-crc --gap --selected --all --rows -n --repeat --interval --cycle-delay -t
        --reply-timeout --strict --fail-fast --retries --total-timeout --format --junit --record --convert -q --quiet -v
        --verbose --color --pipe'
    COMPREPLY=()
    case $before in
        -p | --port) mapfile -t COMPREPLY < <(compgen -W "$("${COMP_WORDS[0]}" --list-ports 2>/dev/null)" -- "$word") ;;
        --format) mapfile -t COMPREPLY < <(compgen -W 'text tap jsonl' -- "$word") ;;
        --color) mapfile -t COMPREPLY < <(compgen -W 'auto always never' -- "$word") ;;
        --junit | --record | --convert | --settings) mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
        -b | --baud | --frame-format | --hid | --report-id | --report-size | --wait-link | --start | --gap | \
            --rows | -n | --repeat | --interval | --cycle-delay | -t | --reply-timeout | --retries | \
            --total-timeout) ;;
        *)
            if [[ $word == -* || -z $word ]]; then
                mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
            else
                mapfile -t COMPREPLY < <(compgen -f -- "$word")
            fi
            ;;
    esac
}

complete -o filenames -F _tarnwick_run tarnwick-run
