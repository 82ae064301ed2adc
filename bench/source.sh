#!/bin/bash
# source.sh — a fetch of a large page by the source grabber's engine beside `curl -o`, in one run,
# from the same private `python3 -m http.server` on loopback: wall time and peak memory of each.
#
# usage: bench/source.sh BENCH_SOURCE_FETCH [--size 50M]      env: RUNS=3
# Everything it starts is stopped by its process id.
set -euo pipefail
prog=${1:?usage: bench/source.sh BENCH_SOURCE_FETCH [--size 50M]}; shift
size=50M
[ "${1:-}" = --size ] && size=${2:?--size needs a value}
RUNS=${RUNS:-3}
bytes=$(numfmt --from=iec "$size")
for tool in curl /usr/bin/time python3 awk; do
  command -v "$tool" > /dev/null || { echo "source.sh: $tool missing (scripts/install-deps)" >&2; exit 1; }
done
tmp=$(mktemp -d)
server=
cleanup() {
  if [ -n "$server" ]; then kill "$server" 2>/dev/null || true; wait "$server" 2>/dev/null || true; fi
  rm -rf "$tmp"
}
trap cleanup EXIT
mkdir "$tmp/www"
# A page of text lines, as a long page is.
python3 -c "
import sys
line = b'<p>The quick brown fox jumps over the lazy dog, again and again.</p>\r\n'
n = int(sys.argv[1])
with open(sys.argv[2], 'wb') as f:
    f.write((line * (n // len(line) + 1))[:n])
" "$bytes" "$tmp/www/page.html"
port=$(python3 -c 'import socket; s = socket.socket(); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])')
python3 -m http.server --bind 127.0.0.1 --directory "$tmp/www" "$port" > "$tmp/server.out" 2>&1 & server=$!
url=http://127.0.0.1:$port/page.html
for i in $(seq 50); do
  curl -sS --max-time 2 -o /dev/null "$url" 2>/dev/null && break
  sleep 0.1
done
measure() {  # name command...
  local name=$1; shift
  for r in $(seq "$RUNS"); do
    rm -f "$tmp/out"
    /usr/bin/time -f "%e %M" -o "$tmp/time" "$@" > /dev/null
    cmp -s "$tmp/out" "$tmp/www/page.html" || { echo "source.sh: $name fetched different bytes" >&2; exit 1; }
    read -r secs kib < "$tmp/time"
    printf '%-8s run %d  %6.2f s  %7.1f MB/s  peak %6d MiB\n' "$name" "$r" "$secs" \
      "$(awk -v b="$bytes" -v s="$secs" 'BEGIN { print b / 1000000 / (s + 0.001) }')" $((kib / 1024))
  done
}
echo "page: $size ($bytes bytes) from $url"
measure velloro "$prog" "$url" "$tmp/out"
measure curl curl -sS -o "$tmp/out" "$url"
