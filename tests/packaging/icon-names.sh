#!/bin/sh
# Checks that the icon theme has the status images that the program asks for, in each size.
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
status=0
for size in 16x16 scalable; do
    ls "$2/$size/status" | sed 's/\.svg$//' | sort >"$work/made"
    diff "$work/wanted" "$work/made" || status=1
done
exit $status
