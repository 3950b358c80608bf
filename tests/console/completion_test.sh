#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# What the completion offers for words typed so far. Argument: the completion's file.
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

expect 'batch|catalogue|design|new|optimise|session' korvane-cli ''
expect 'design' korvane-cli d
expect '--help|--version' korvane-cli -
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

exit $((failures > 0))
