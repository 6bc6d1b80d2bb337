#!/bin/bash
# Installs the Debian packages that the project needs and that are missing.
#
#   scripts/install-dependencies.sh run       to build and to start the viewer
#   scripts/install-dependencies.sh test      to build, to test and to check the format as well
#   scripts/install-dependencies.sh test-qt6  the same with Qt 6
#   scripts/install-dependencies.sh fuzz      to build and to run the fuzzers
#   scripts/install-dependencies.sh pictures  to renew the pictures of the README
#   scripts/install-dependencies.sh package   to build and to try Debian packages
set -euo pipefail

run_packages=(
  cmake
  g++
  libaravis-dev
  libopencv-core-dev
  libopencv-imgproc-dev
  libssl-dev
  libudev-dev
  libusb-1.0-0-dev
  libzip-dev
  ninja-build
  pkg-config
  qtbase5-dev
  qttools5-dev
  qttools5-dev-tools
  qttranslations5-l10n
  zlib1g-dev
  # A display where there is none, and letters to put on it.
  fonts-dejavu-core
  fonts-liberation
  fonts-noto-cjk
  xauth
  xvfb
)
test_packages=(
  ansible-core
  appstream
  aravis-tools
  aravis-tools-cli
  ccache
  clang-format
  clang-tidy
  cmark-gfm
  dbus
  desktop-file-utils
  git
  iproute2
  libumockdev-dev
  mandoc
  openssl
  procps
  python3-dbusmock
  python3-jsonschema
  reuse
  shared-mime-info
  unzip
  # The address and thread sanitizers' libraries come with the compiler.
)

qt6_packages=(
  qt6-base-dev
  qt6-l10n-tools
  # The state machine.
  qt6-scxml-dev
  qt6-tools-dev
  qt6-tools-dev-tools
  qt6-translations-l10n
)
fuzz_packages=(
  ccache
  clang
  # The fuzzer's and the sanitizers' libraries, and what puts names to addresses.
  libclang-rt-14-dev
  llvm
)
picture_packages=(
  imagemagick
)
package_packages=(
  ccache
  cmark-gfm
  debhelper
  dpkg-dev
  git
  lintian
  mmdebstrap
)

case "${1:-}" in
  run) packages=("${run_packages[@]}") ;;
  test) packages=("${run_packages[@]}" "${test_packages[@]}") ;;
  test-qt6) packages=("${run_packages[@]}" "${test_packages[@]}" "${qt6_packages[@]}") ;;
  fuzz) packages=("${run_packages[@]}" "${fuzz_packages[@]}") ;;
  pictures) packages=("${run_packages[@]}" "${picture_packages[@]}") ;;
  package) packages=("${run_packages[@]}" "${package_packages[@]}") ;;
  *)
    echo "usage: $0 run|test|test-qt6|fuzz|pictures|package" >&2
    exit 2
    ;;
esac

if ! command -v dpkg-query > /dev/null; then
  echo "This is no Debian system. Install what corresponds to these packages: ${packages[*]}" >&2
  echo "Going on in the hope that they are there." >&2
  exit 0
fi

missing=()
for package in "${packages[@]}"; do
  # Without word of an architecture: a package counts under whatever architecture it is installed.
  status=$(dpkg-query --show --showformat='${db:Status-Status}\n' "$package" 2> /dev/null || true)
  grep --quiet --line-regexp installed <<< "$status" || missing+=("$package")
done
if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

echo "Missing Debian packages: ${missing[*]}" >&2
if [ "$(id -u)" -eq 0 ]; then
  as_root=()
elif command -v sudo > /dev/null && { [ -t 0 ] || sudo --non-interactive true 2> /dev/null; }; then
  as_root=(sudo)
else
  echo "Neither root nor sudo: have an administrator type" >&2
  echo "  apt-get update && apt-get install --yes ${missing[*]}" >&2
  echo "and start this again." >&2
  exit 1
fi

# With sudo in front, an assignment would be taken for the command.
install=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install --yes
  --no-install-recommends "${missing[@]}")
# The package lists may be absent or too old for what they name: fetch them, but do not insist.
"${as_root[@]}" apt-get update >&2 || echo "The package lists could not be brought up to date." >&2
if ! "${install[@]}" >&2; then
  echo "The packages could not be installed. Type this yourself and see why:" >&2
  echo "  ${as_root[*]:+sudo }apt-get install ${missing[*]}" >&2
  exit 1
fi
