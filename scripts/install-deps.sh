#!/usr/bin/env bash
# Installs the Debian packages the build, the tests and the benchmarks need,
# and nothing when they are all there already. Root runs apt-get directly,
# anyone else through sudo.
set -euo pipefail

packages=(
  cmake make g++ pkg-config
  qt6-base-dev libsdl2-mixer-dev libcurl4-openssl-dev
  libgtest-dev libgmock-dev libbenchmark-dev libcli11-dev
  clang libclang-rt-14-dev clang-format clang-tidy
  xvfb xauth xdotool xclip strace
  fonts-wine imagemagick librsvg2-bin
  dpkg-dev desktop-file-utils appstream groff-base bash-completion
  g++-mingw-w64-x86-64-posix wine wine64 gstreamer1.0-plugins-base gstreamer1.0-plugins-good
)
[ $# -gt 0 ] && packages+=("$@")

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
sudo=""
[ "$(id -u)" -eq 0 ] || sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
