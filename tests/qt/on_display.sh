#!/usr/bin/env bash
# Runs a program with its own display: on_display.sh PROGRAM ARGUMENT...
set -euo pipefail
command -v Xvfb >/dev/null || { echo "on_display: needs Xvfb: skipped"; exit 77; }
exec 3< <(exec Xvfb -displayfd 1 -screen 0 1280x1024x24 -nolisten tcp 2>/dev/null)
trap 'kill $!' EXIT
read -r number <&3
DISPLAY=:$number "$@"
