#!/usr/bin/env bash
# The installation as a packager and a new user meet it: install into a fresh prefix, check the
# desktop entry and the AppStream data with their validators, make the prefix read-only, start
# the program (its command line, then its windows, headless) as a user with an empty data
# folder, and check that the user's folder was seeded and nothing under the prefix changed.
#   usage: install.sh BUILD_FOLDER EXPECTED_VERSION
set -euo pipefail
build=${1:?build folder}; version=${2:?version}
tmp=$(mktemp -d)
cleanup() { chmod -R u+w "$tmp" 2>/dev/null || true; rm -rf "$tmp"; }
trap cleanup EXIT
prefix=$tmp/prefix
fail() { echo "install.sh: $*" >&2; exit 1; }

cmake --install "$build" --prefix "$prefix" > "$tmp/install.log"
[ -L "$prefix/bin/velloro" ] || fail "no bin/velloro"
[ -f "$prefix/lib/velloro/installed" ] || fail "the application folder is not marked as an installation"
for size in 16x16 32x32 48x48 64x64 128x128 256x256 scalable; do
  ls "$prefix/share/icons/hicolor/$size/apps/velloro."* > /dev/null || fail "no $size icon"
done
desktop-file-validate "$prefix/share/applications/org.velloro.Velloro.desktop"
appstreamcli validate --no-net "$prefix/share/metainfo/org.velloro.Velloro.metainfo.xml" > "$tmp/appstream.log" ||
  { cat "$tmp/appstream.log"; fail "AppStream data refused"; }

chmod -R a-w "$prefix"
(cd "$prefix" && find . -type f -exec sha1sum {} + | sort) > "$tmp/before"
export XDG_DATA_HOME=$tmp/data HOME=$tmp/home
mkdir -p "$HOME"
unset DISPLAY WAYLAND_DISPLAY

[ "$("$prefix/bin/velloro" --version)" = "Velloro $version" ] || fail "wrong --version"
printf 'A sentense.\r\n' > "$tmp/note.txt"
out=$("$prefix/bin/velloro" --spell "$tmp/note.txt" || true)
[ "$out" = "$tmp/note.txt:1:3: sentense" ] || fail "--spell gave: $out"
[ -f "$XDG_DATA_HOME/velloro/dictionary.txt" ] || fail "the spelling list was not seeded"

# The windows, headless, twice: the first start seeds the settings, the second reads them.
for start in 1 2; do
  status=0
  QT_QPA_PLATFORM=offscreen QTWEBENGINE_DISABLE_SANDBOX=1 timeout 8 "$prefix/bin/velloro" > "$tmp/run$start.log" 2>&1 || status=$?
  [ "$status" = 124 ] || { cat "$tmp/run$start.log"; fail "start $start ended by itself with $status"; }
  [ -s "$XDG_DATA_HOME/velloro/Options/Details.dat" ] || fail "start $start: no settings in the user's folder"
done
(cd "$prefix" && find . -type f -exec sha1sum {} + | sort) > "$tmp/after"
diff "$tmp/before" "$tmp/after" || fail "files under the prefix changed"
echo "install.sh: ok"
