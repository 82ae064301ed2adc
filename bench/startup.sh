#!/usr/bin/env bash
# Start-up time (exec to the main window mapped, with its first page) and resident memory,
# side by side with geany timed in the same run by the same event-based method.
#   usage: bench/startup.sh [path/to/velloro]      env: RUNS=10
# The main window is matched by its caption "... [ New Page ]", so neither the splash nor
# the start screen (which map earlier) end the measurement.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
bin=$(realpath "${1:-$here/../build/velloro}")
anchors=${ANCHORS:-$here/../../shared/anchors}
[ -x "$anchors/startup.sh" ] || { echo "no anchor scripts at $anchors" >&2; exit 1; }
# Chromium's sandbox cannot run as root; the browser is not started at start-up anyway.
export QTWEBENGINE_DISABLE_SANDBOX=1
exec "$anchors/startup.sh" "$bin:New Page" geany
