#!/usr/bin/env bash
# Spell check throughput beside hunspell, timed in the same run by the shared anchor script:
# the whole filter (start, dictionary load, walk, output) on the anchor's 1 MB English corpus.
#   usage: bench/spelling.sh [build folder]      env: RUNS=7
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=$(realpath "${1:-$here/../build}")
anchors=${ANCHORS:-$here/../../shared/anchors}
[ -x "$anchors/spell.sh" ] || { echo "no anchor scripts at $anchors" >&2; exit 1; }
exec "$anchors/spell.sh" "$build/bench/velloro_spell" "$build/dictionary.txt"
