#!/usr/bin/env bash
# Installs the Debian packages that building, testing and benchmarking Floatrix need
# (with Qt Linguist's tools for the catalogues and the validators of the installed
# desktop file and metadata).
# Does nothing when they are all present already.
set -euo pipefail

packages=(
  build-essential cmake make pkg-config
  qt6-base-dev qt6-multimedia-dev libqt6multimediawidgets6
  gstreamer1.0-plugins-base gstreamer1.0-plugins-good
  xvfb xauth
  libbenchmark-dev
  qt6-l10n-tools qt6-tools-dev
  desktop-file-utils appstream
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

echo "Installing missing packages: ${missing[*]}"
sudo_cmd=()
if [ "$(id -u)" -ne 0 ]; then
  sudo_cmd=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
