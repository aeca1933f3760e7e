#!/bin/sh
# Runs a test program on real volumes; after a timeout, detaches the volumes that it left.
# SPDX-License-Identifier: MIT
#
# usage: with-volumes.sh SECONDS PROGRAM [ARGUMENT...]
limit=$1
shift
folder=$(mktemp -d) || exit 1
chmod 755 "$folder"
TMPDIR=$folder timeout "$limit" "$@"
status=$?
if [ "$status" = 124 ]; then
    echo "$1 did not end within $limit seconds." >&2
    losetup --list --noheadings --raw --output NAME,BACK-FILE |
        while read -r device image; do
            case $image in "$folder"/*) ;; *) continue ;; esac
            losetup --detach "$device"
            umount --quiet --lazy --all-targets "$device"
        done
    "$(dirname "$0")/../../scripts/disk-services" stop
fi
rm -rf --one-file-system "$folder"
exit "$status"
