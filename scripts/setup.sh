#!/usr/bin/env bash
# Installs what the build and the tests need and this machine lacks, from Debian's packages.
set -euo pipefail

packages=(
  # tools
  g++ cmake ninja-build pkg-config ccache python3
  # drawing, text, regions
  libglib2.0-dev libcairo2-dev libpango1.0-dev libfontconfig-dev libpixman-1-dev fonts-dejavu-core
  # scripts that DejaVu lacks: Devanagari, Chinese, Japanese and Korean, emoji
  fonts-lohit-deva fonts-wqy-microhei fonts-noto-color-emoji
  # pictures
  libgdk-pixbuf-2.0-dev
  # the X display
  libxcb1-dev libxcb-shm0-dev libxcb-icccm4-dev libxcb-cursor-dev libxcb-render0-dev libxcb-randr0-dev
  libxcb-xrm-dev libxcb-xkb-dev libxkbcommon-dev libxkbcommon-x11-dev
  # reading forms; the tools' options and JSON
  librapidxml-dev libutfcpp-dev libcli11-dev nlohmann-json3-dev
  # tests and benchmarks
  libgtest-dev libgmock-dev libbenchmark-dev libssl-dev xvfb libxcb-xtest0-dev
)

if ! command -v dpkg-query >/dev/null; then
  echo "setup: not a Debian system; these packages' counterparts are needed: ${packages[*]}" >&2
  exit 0
fi

installed=" $(dpkg-query -W -f='${db:Status-Status}:${Package} ' "${packages[@]}" 2>/dev/null || true)"
missing=()
for package in "${packages[@]}"; do
  [[ $installed == *" installed:$package "* ]] || missing+=("$package")
done
[[ ${#missing[@]} -gt 0 ]] || exit 0

as_root=()
[[ $(id -u) -eq 0 ]] || as_root=(sudo)
echo "setup: installing ${missing[*]}" >&2
"${as_root[@]}" apt-get update -q >&2
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
  apt-get install -q -y --no-install-recommends "${missing[@]}" >&2
