#!/bin/sh
# Runs a command on the display opened by display.sh: on-display.sh FILE COMMAND...
# SPDX-License-Identifier: MIT
set -eu
read -r number server <"$1"
shift
exec env BRISEL_STAGE_DISPLAY=":$number" "$@"
