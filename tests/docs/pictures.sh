#!/bin/sh
# Checks that the guide's pictures can be made anew: the PNGs of docs/pictures but real desktops'.
# SPDX-License-Identifier: MIT
#
# usage: pictures.sh ROOT PROGRAMS FOLDER, which is emptied
root=$1
rm -rf "$3"
"$root/scripts/guide-pictures" --mocked --programs "$2" "$3" || exit
# scripts/try-desktops makes the others.
(cd "$root/docs/pictures" && ls -- *.png | grep -v '^desktop-') >"$3/expected"
(cd "$3" && ls -- *.png) | diff "$3/expected" - || {
    echo "scripts/guide-pictures makes other pictures (>) than docs/pictures has (<)."
    exit 1
}
