#!/usr/bin/env bash
# Start-up time and resident memory of the program on a desktop: runs
# desktop_figures under a virtual X server with the default xcb platform (OpenGL
# available), five launches for the start-up time (the median is reported), then
# one launch for the memory figures.
#   bench/desktop_figures.sh [build folder]
set -euo pipefail
build=${1:-build}
program="$build/bin/desktop_figures"
[ -x "$program" ] || { echo "desktop_figures: build it first (make bench)"; exit 1; }
runtime="$build/xdg-runtime"
mkdir -p "$runtime" && chmod 700 "$runtime"

xvfb-run -a -s "-screen 0 1280x1024x24" env -u QT_QPA_PLATFORM XDG_RUNTIME_DIR="$runtime" \
  QT_LOGGING_RULES="qt.multimedia*=false" bash -c '
  program=$1
  times=()
  for i in 1 2 3 4 5; do
    line=$("$program" --since-ns=$(date +%s%N) --startup-only | grep startup_to_first_window_s)
    times+=("${line#*=}")
  done
  printf "%s\n" "${times[@]}" | sort -n | sed -n 3p | sed "s/^/startup_to_first_window_median_s=/"
  "$program" --since-ns=$(date +%s%N) | grep -v startup_to_first_window_s
' desktop_figures "$program"
