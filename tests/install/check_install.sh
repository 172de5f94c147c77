#!/usr/bin/env bash
# Installs the build into a fresh prefix and checks what a school's desktop gets:
# every file in place, the desktop file and metadata valid, and the installed
# program answering, finding its pictures under share/floatrix and starting.
# Usage: check_install.sh <build folder>
set -euo pipefail

build=$1
prefix=$(cd "$(mktemp -d)" && pwd -P)
trap 'rm -rf "$prefix"' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

cmake --install "$build" --prefix "$prefix" > /dev/null

id=org.floatrix.Floatrix
expected=(bin/floatrix libexec/floatrix/floatrix-film
  share/floatrix/pot_t1.bmp share/floatrix/pot_t2.bmp share/floatrix/floatrixo.avi
  share/floatrix/floatrix.png share/floatrix/floatrix_banner.png
  share/floatrix/pot_t1@2x.png share/floatrix/pot_t2@3x.png share/floatrix/floatrix_banner@2x.png
  share/applications/$id.desktop share/metainfo/$id.metainfo.xml
  share/icons/hicolor/scalable/apps/$id.svg)
for size in 16 22 24 32 48 64 128 256; do
  expected+=("share/icons/hicolor/${size}x${size}/apps/$id.png")
done
for file in "${expected[@]}"; do
  [ -f "$prefix/$file" ] || fail "$file was not installed"
done
[ -x "$prefix/bin/floatrix" ] || fail "bin/floatrix is not executable"
[ -x "$prefix/libexec/floatrix/floatrix-film" ] || fail "libexec/floatrix/floatrix-film is not executable"

if command -v desktop-file-validate > /dev/null; then
  desktop-file-validate "$prefix/share/applications/$id.desktop" || fail "the desktop file is not valid"
else
  echo "desktop-file-validate is not installed (scripts/install-deps.sh installs it): not checked"
fi
if command -v appstreamcli > /dev/null; then
  appstreamcli validate --no-net "$prefix/share/metainfo/$id.metainfo.xml" > /dev/null ||
    fail "the AppStream metadata is not valid"
else
  echo "appstreamcli is not installed (scripts/install-deps.sh installs it): not checked"
fi

program="$prefix/bin/floatrix"
"$program" --version | grep -q '^Floatrix [0-9]' || fail "--version"
help=$("$program" --help)
grep -qF "read from $prefix/share/floatrix" <<< "$help" ||
  fail "the installed program does not read its files from share/floatrix: $help"

# The installed film player plays the installed film: it reports the film's length
# and sends frames while its input stays open.
# (A message may follow a frame's pixels on the same line, so none is anchored.)
news=$( (echo play; sleep 4) | timeout 10 "$prefix/libexec/floatrix/floatrix-film" \
  "$prefix/share/floatrix/floatrixo.avi" 2> /dev/null | head -c 3000000 |
  grep -a -o -E '(duration [1-9][0-9]*|frame 320 224)' | cut -d' ' -f1 | sort -u | tr '\n' ' ' || true)
[ "$news" = "duration frame " ] || fail "the installed film player did not play the film (it sent: $news)"

# A start in each language: the splash and then the main frame come up, and the
# program keeps running until it is told to end.
export QT_QPA_PLATFORM=offscreen
for language in "" el en; do
  "$program" ${language:+--lang "$language"} &
  pid=$!
  sleep 3
  kill -0 "$pid" 2> /dev/null || fail "the installed program ended by itself (language '${language}')"
  kill "$pid"
  wait "$pid" 2> /dev/null || true
done
echo "installed and started from $prefix"
