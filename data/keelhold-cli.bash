# bash completion for keelhold-cli: its commands, their options, their values,
# and the event ids of the drive or Vault folder named on the line. Commands and options are
# read from keelhold-cli's own help, so they follow the installed version.

# The help of keelhold-cli ($1), or of one of its commands ($2). Kept for the
# shell's life: every Tab would otherwise start the program once more.
declare -gA _keelhold_cli_help_cache
_keelhold_cli_help()
{
    local key="$1 $2"
    if [[ ! -v _keelhold_cli_help_cache[$key] ]]; then
        # Read in English whatever the user's language: the words parsed here are the tool's own.
        if [[ $2 ]]; then
            _keelhold_cli_help_cache[$key]=$(LANGUAGE=en LC_ALL=C.UTF-8 "$1" help "$2" 2>/dev/null) || return
        else
            _keelhold_cli_help_cache[$key]=$(LANGUAGE=en LC_ALL=C.UTF-8 "$1" --help 2>/dev/null) || return
        fi
    fi
    printf '%s\n' "${_keelhold_cli_help_cache[$key]}"
}

# The values the help of option $2 lists as "One of: a, b, c." or "any of: a, b, c."
# in the help text $1; the list may run over several lines.
_keelhold_cli_choices()
{
    awk -v opt="$2" '
        /^  -/ { inopt = ($1 == opt || $2 == opt) }
        /^$/ { inopt = 0 }
        inopt { text = text " " $0 }
        END {
            gsub(/[ \t]+/, " ", text)
            if (match(text, /[Oo]ne of: [^.;]*|[Aa]ny of: [^.;]*/)) {
                list = substr(text, RSTART + 8, RLENGTH - 8)
                gsub(/,/, "", list)
                print list
            }
        }' <<<"$1"
}

_keelhold_cli_commands()
{
    _keelhold_cli_help "$1" | sed -n '/^Commands:$/,/^$/s/^  \([a-z][a-z-]*\) .*/\1/p'
}

# Event ids (kind|folder) from the JSON of a keelhold-cli command. Its keys come
# sorted, so every event reads "folderName":…,"folderURL":…,"kind":….
# A slow or unreadable drive gives no ids rather than a stuck prompt.
_keelhold_cli_event_ids()
{
    timeout 5 "$@" 2>/dev/null |
        grep -o '"folderName":"[^"]*","folderURL":"[^"]*","kind":"[^"]*"' |
        sed 's/^"folderName":"\([^"]*\)",.*,"kind":"\([^"]*\)"$/\2|\1/'
}

# Offers the ids that start with what is typed; a "|" has to be quoted.
_keelhold_cli_reply_ids()
{
    local typed=$cur quote= id
    if [[ $cur == [\'\"]* ]]; then
        quote=${cur:0:1}
        typed=${cur:1}
    else
        typed=${cur//\\/}
    fi
    COMPREPLY=()
    while IFS= read -r id; do
        [[ $id == "$typed"* ]] || continue
        if [[ $quote ]]; then
            COMPREPLY+=("$id")
        else
            COMPREPLY+=("$(printf '%q' "$id")")
        fi
    done
}

_keelhold_cli()
{
    local cur prev words cword split
    _init_completion -s -n '|' || return

    local cli=${words[0]} command= at i
    for ((i = 1; i < cword; i++)); do
        if [[ ${words[i]} != -* ]]; then
            command=${words[i]}
            at=$i
            break
        fi
    done

    if [[ -z $command ]]; then
        if [[ $cur == -* ]]; then
            COMPREPLY=($(compgen -W '--help --version' -- "$cur"))
        else
            COMPREPLY=($(compgen -W "$(_keelhold_cli_commands "$cli")" -- "$cur"))
        fi
        return
    fi
    if [[ $command == help ]]; then
        ((cword == at + 1)) && COMPREPLY=($(compgen -W "$(_keelhold_cli_commands "$cli" | grep -vx help)" -- "$cur"))
        return
    fi

    local help
    help=$(_keelhold_cli_help "$cli" "$command") || return
    # Options that take a value show it as "--name <value>" in the help.
    local valued
    valued=" $(sed -n 's/^  \(-[A-Za-z], \)\{0,1\}\(--[a-z-]*\) <.*/\1\2/p' <<<"$help" | tr ',\n' '  ') "

    # The words that are neither options nor their values: the folders, and
    # for vault the action first.
    local positional=() j
    for ((j = at + 1; j < cword; j++)); do
        if [[ ${words[j]} == -* ]]; then
            [[ ${words[j]} != *=* && $valued == *" ${words[j]} "* ]] && ((j++))
        else
            positional+=("$(dequote "${words[j]}")")
        fi
    done

    case $prev in
        --event)
            [[ ${positional[0]} ]] || return
            if [[ $command == telemetry || $command == decrypt || $command == report || $command == moments ]]; then
                # Its folder may be a drive's or a Vault's.
                _keelhold_cli_reply_ids < <(_keelhold_cli_event_ids "$cli" scan "${positional[0]}"
                    _keelhold_cli_event_ids "$cli" vault list "${positional[0]}")
            else
                _keelhold_cli_reply_ids < <(_keelhold_cli_event_ids "$cli" scan "${positional[0]}")
            fi
            return
            ;;
        --format)
            if [[ $command == moments ]]; then
                COMPREPLY=($(compgen -W 'csv json' -- "$cur"))
            else
                COMPREPLY=($(compgen -W 'csv json gpx' -- "$cur"))
            fi
            return
            ;;
        --vault)
            _filedir -d
            return
            ;;
        -o | --output)
            if [[ $command == decrypt ]]; then
                _filedir -d
            else
                _filedir
            fi
            return
            ;;
        --token-file)
            _filedir
            return
            ;;
    esac
    if [[ $valued == *" $prev "* ]]; then
        # A value from the option's own list; in a list joined by commas
        # (--overlay time,names), the part after the last comma.
        local choices before=
        choices=$(_keelhold_cli_choices "$help" "$prev")
        [[ $cur == *,* ]] && before=${cur%,*},
        [[ $choices ]] && COMPREPLY=($(compgen -P "$before" -W "$choices" -- "${cur##*,}"))
        return
    fi
    $split && return

    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W "$(sed -n 's/^  \(-[A-Za-z], \)\{0,1\}\(--[a-z-]*\).*/\2/p' <<<"$help" | grep -vx -- --help-all)" -- "$cur"))
        return
    fi

    if [[ $command == vault ]]; then
        case ${#positional[@]} in
            0) COMPREPLY=($(compgen -W 'list remove verify' -- "$cur")) ;;
            1) _filedir -d ;;
            2) [[ ${positional[0]} == remove ]] &&
                _keelhold_cli_reply_ids < <(_keelhold_cli_event_ids "$cli" vault list "${positional[1]}") ;;
        esac
        return
    fi
    ((${#positional[@]} == 0)) && _filedir -d
} &&
    complete -F _keelhold_cli keelhold-cli
