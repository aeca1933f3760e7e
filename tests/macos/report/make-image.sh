#!/bin/sh
# Makes the small disk with an NTFS volume that scripts/report-on-mac attaches.
# SPDX-License-Identifier: MIT
#
# usage: make-image.sh ARCHIVE, as in make-image.sh scripts/report-on-mac.tar.xz
set -eu
archive=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# One partition of type 7 from sector 64 to the end of 4 MiB, as on a stick.
start=64
count=8128
truncate -s 4M "$work/ntfs.img"
printf '\0\376\377\377\7\376\377\377\100\0\0\0\300\037\0\0' |
    dd of="$work/ntfs.img" bs=1 seek=446 conv=notrunc status=none
printf '\125\252' | dd of="$work/ntfs.img" bs=1 seek=510 conv=notrunc status=none

# -T leaves out times and random numbers.
truncate -s $((count * 512)) "$work/volume"
mkntfs -F -q -Q -T -L Brisel-report -s 512 -p $start -H 255 -S 63 "$work/volume" >/dev/null 2>&1
echo 'A file to read.' >"$work/readme.txt"
ntfscp -q "$work/volume" "$work/readme.txt" readme.txt
dd if="$work/volume" of="$work/ntfs.img" bs=512 seek=$start conv=notrunc status=none

# The delta filter suits $UpCase, a table of rising 16-bit numbers.
tar -C "$work" --owner=0 --group=0 -cf - ntfs.img | xz --delta=dist=2 --lzma2=preset=9e >"$archive"
