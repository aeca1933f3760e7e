#!/bin/sh
# Checks the hardening of released programs, and that they link no unused library.
# SPDX-License-Identifier: MIT
#
# usage: hardening.sh COMPILE-COMMANDS FOLDER PROGRAM...
commands=$1
folder=$2
shift 2
failures=0

if [ ! -e "$commands" ]; then
    echo "Skipped: there is no release in $folder; \`make\` builds one."
    exit 77
fi

complain() {
    echo "$1: $2"
    failures=1
}

# must PATTERN COMPLAINT OPTIONS...: readelf OPTIONS prints PATTERN.
must() {
    have=$1
    what=$2
    shift 2
    readelf -W "$@" "$program" | grep -q -- "$have" || complain "$name" "$what"
}

check() {
    must 'Flags:.*PIE' "is at the same address at every start" --dynamic
    must 'GNU_RELRO' "leaves its tables of addresses writable" --segments
    must 'Flags:.*NOW' "looks addresses up when they are first used, in a table that stays writable" --dynamic
    must 'GNU_STACK.* RW ' "has a stack that can be executed" --segments
    must '__stack_chk_fail' "does not notice an overrun of the stack" --dyn-syms
    readelf -W --dynamic "$program" | grep -q 'RPATH\|RUNPATH' && complain "$name" "looks for libraries in a folder of its own"
    unused=$(ldd -u "$program" | sed -n 's/^[[:space:]]\+//p')
    [ -z "$unused" ] || complain "$name" "is linked with what it does not need: $unused"
}

for name; do
    program=$folder/$name
    if [ ! -e "$program" ]; then
        complain "$name" "was not built"
    else
        check
    fi
done

# A program in which every buffer size is known has no checked calls, so check the compiler flags.
for flag in -D_FORTIFY_SOURCE=2 -fstack-protector-strong -flto; do
    without=$(grep '"command":' "$commands" | grep -cv -e "$flag")
    [ "$without" = 0 ] || complain "$commands" "$without sources were compiled without $flag"
done
exit $failures
