#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# What the completion offers for words typed so far. Arguments: the completion's file, the program,
# whose help tells commands, options and their values, and the manual, which has to name them all.
set -u
source "$1" || exit 1
folder=$(mktemp -d) || exit 1
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 1
touch 'a.kvn' 'with blank.kvn' 'notes.txt'
mkdir 'projects'
compopt() { :; } # means something during a completion only
failures=0

# expect WANTED WORD...: the offers for the last word, sorted and joined by |
expect() {
    local wanted=$1 offered
    shift
    COMP_WORDS=("$@")
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    COMPREPLY=()
    _korvane_cli
    offered=$(printf '%s\n' "${COMPREPLY[@]}" | LC_ALL=C sort | paste -sd '|')
    if [[ $offered != "$wanted" ]]; then
        printf 'words: %s\n  wanted:  %s\n  offered: %s\n' "$*" "$wanted" "$offered"
        failures=$((failures + 1))
    fi
}

expect 'batch|catalogue|design|draw|interaction|new|optimise|report|sections|session|solve|table|vary' korvane-cli ''
expect 'design|draw' korvane-cli d
expect 'a.kvn|projects|with blank.kvn' korvane-cli design ''
expect 'with blank.kvn' korvane-cli optimise w
expect 'projects' korvane-cli batch a.kvn p
expect '--criterion' korvane-cli optimise --c
expect '--csv' korvane-cli batch --c
expect 'sls' korvane-cli optimise a.kvn --criterion s
expect 'sls|uls|uls-sls' korvane-cli optimise a.kvn --criterion ''
expect 'CFRHS|CFSHS' korvane-cli optimise --families C
expect 'HEA,IPE,HEA|HEA,IPE,HEB|HEA,IPE,HEM' korvane-cli optimise --families HEA,IPE,H
expect 'U|UNP|UPE' korvane-cli catalogue U
expect 'comma|point' korvane-cli session --decimal ''
expect 'projects' korvane-cli design --data ''
expect '' korvane-cli optimise --limit ''

touch 'page.pdf'
expect 'page.pdf|projects' korvane-cli report a.kvn -o p

# options: the options that a help on the standard input tells, sorted and joined by |
options() {
    sed -n '/^Options:/,$p' | grep -oE '^  (-[a-z],)?--[a-z-]+' | tr -d ' ' | tr , '\n' |
        LC_ALL=C sort | paste -sd '|'
}

# named WORD...: the manual names each word
named() {
    local word
    for word in "$@"; do
        if ! grep -qw -- "$word" <<<"$manual"; then
            printf 'the manual lacks %s\n' "$word"
            failures=$((failures + 1))
        fi
    done
}

program=$2
whole_manual=$(tr -d '\\' <"$3")
commands=$("$program" --help | sed -n '/^Subcommands:/,$p' | grep -oE '^  [a-z]+' | tr -d ' ')
expect "$(LC_ALL=C sort <<<"$commands" | paste -sd '|')" korvane-cli ''
expect "$("$program" --help | options)" korvane-cli -
manual=$whole_manual
named --help --version -h
for command in $commands; do
    help=$("$program" "$command" --help)
    expect "$(options <<<"$help")" korvane-cli "$command" -
    # The manual's section of the command, and that of the options of all.
    manual=$(sed -n "/^\.SS $command$/,/^\.S[SH] /p;/^\.SH OPTIONS/,/^\.SH EXIT/p" <<<"$whole_manual")
    named $(options <<<"$help" | tr '|' ' ')
    while read -r option values; do
        expect "$(tr , '\n' <<<"$values" | LC_ALL=C sort | paste -sd '|')" \
            korvane-cli "$command" "$option" ''
        named ${values//,/ }
    done < <(sed -nE 's/^.*(--[a-z-]+) TEXT:\{([^}]*)\}.*/\1 \2/p' <<<"$help")
done

exit $((failures > 0))
