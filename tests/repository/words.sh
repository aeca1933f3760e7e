#!/bin/sh
# Checks that no file names a path of the machine it was written on, or a text kept elsewhere.
# SPDX-License-Identifier: MIT
#
# usage: words.sh ROOT
cd "$1" || exit 2

# Written so that this file itself does not match.
paths='(^|[^[:alnum:]_.])/(work|workspace|root)/'
references='([Ss]ee|[Ii]n|of|by|to) [Pp]arts? [0-9]|\(Parts? [0-9]|[Pp]art [0-9]+\.[0-9]'
references="$references"'|the specificatio[n]|[Ii]ssue #?[0-9]'

found=$(find . \( -name .git -o -name build -o -name .cache \) -prune -o -type f -print |
    sort | xargs -d '\n' grep -InE "$paths|$references")
[ -z "$found" ] && exit 0
echo "$found"
exit 1
