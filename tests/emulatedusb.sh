#!/bin/bash
# Runs a test program whose virtual cameras are on an emulated USB, where it has rows for that. A
# search for cameras on USB is a broadcast as well.
set -euo pipefail

export CAMERAS_ON_USB=1
exec "$(dirname "$0")/loopbackonly.sh" env LD_PRELOAD=libumockdev-preload.so.0 "$@"
