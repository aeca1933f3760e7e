#!/bin/sh
# Checks that the status images equal those that the program asks for.
# SPDX-License-Identifier: MIT
#
# usage: icon-names.sh ROOT FOLDER
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT

grep -o 'brisel-status-[a-z]*-[a-z]*' "$1/src/platform/common/Bundle.cpp" | sort >"$work/wanted"
if [ "$(wc -l <"$work/wanted")" -ne 10 ]; then
    echo "The program does not list ten images."
    exit 1
fi
ls "$2" | sed 's/\.svg$//' | sort >"$work/made"
diff "$work/wanted" "$work/made"
