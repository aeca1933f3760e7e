#!/bin/sh
# Checks that the login item starts the application around it: starts-application.sh PROGRAM
# SPDX-License-Identifier: MIT
set -eu

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# expect FOLDER TEXT: the login item in FOLDER prints TEXT and exits with 0.
expect() {
    bundle="$work/$1/BriselHelper.app"
    mkdir -p "$bundle" "$work/home"
    cp "$program" "$bundle/BriselHelper"
    said=$(HOME=$work/home TMPDIR=$work ASAN_OPTIONS="${ASAN_OPTIONS:-}:detect_leaks=0" "$bundle/BriselHelper")
    [ "$said" = "$2" ] && return
    echo "in $1 it said: $said"
    echo "and not: $2"
    exit 1
}

program=$1
expect "Brisel.app/Contents/Library/LoginItems" "open: file://$work/Brisel.app/"
expect "My Programs/Brisel.app/Contents/Library/LoginItems" "open: file://$work/My%20Programs/Brisel.app/"
expect "elsewhere" "log: This login item lies in no application, so there is nothing to start: $work/elsewhere/BriselHelper.app"
