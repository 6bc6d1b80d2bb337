#!/bin/bash
# Builds Debian packages from the commit that is checked out, lets lintian look at them, and leaves them in
# OUTDIR, which is packages/ when it is not given:
#
#   scripts/make-packages.sh [--twice] [OUTDIR]
#
# --twice builds them once more, in another folder and without a compiler's cache, and ends with 1 where a
# byte differs.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
twice=no
if [ "${1:-}" = --twice ]; then
  twice=yes
  shift
fi
if [ $# -gt 1 ] || [[ ${1:-} == -* ]]; then
  echo "usage: $0 [--twice] [OUTDIR]" >&2
  exit 2
fi
out=$(realpath --canonicalize-missing "${1:-$root/packages}")

"$root/scripts/install-dependencies.sh" package
cd "$root"
git diff --quiet HEAD || echo "Changes that are not committed are not in the packages." >&2

version=$(dpkg-parsechangelog --show-field Version)
if ! grep --quiet "^project(.* VERSION $version " CMakeLists.txt; then
  echo "CMakeLists.txt has another version than debian/changelog, which has $version." >&2
  exit 1
fi

SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH
export DEB_BUILD_OPTIONS="nocheck noautodbgsym parallel=$(nproc)"
# With these a cache changes the folders in what debuggers read, and so the packages.
unset CCACHE_BASEDIR CCACHE_NOHASHDIR
# debhelper gives a build a home of its own, in which a cache would be of no use to the next one.
if command -v ccache > /dev/null; then
  CCACHE_DIR=$(ccache --get-config cache_dir)
  export CCACHE_DIR
fi

# build FOLDER: the packages in FOLDER, from an export of the commit below it.
build() {
  rm -rf "$1"
  mkdir -p "$1/nuvexviewer"
  git archive HEAD | tar --extract --directory "$1/nuvexviewer"
  if ! (cd "$1/nuvexviewer" && umask 022 && dpkg-buildpackage --build=binary --no-sign > ../build.log 2>&1); then
    tail --lines=50 "$1/build.log" >&2
    echo "The packages could not be built, see $1/build.log" >&2
    exit 1
  fi
}

work=$root/build-packages
build "$work/first"
# Whatever it says is a fault of ours; tags that only inform are not asked for.
lintian --fail-on error,warning "$work"/first/*.changes

if [ $twice = yes ]; then
  CCACHE_DISABLE=1 TZ=Asia/Seoul build "$work/second-in-a-longer-folder"
  for package in "$work"/first/*.deb; do
    cmp "$package" "$work/second-in-a-longer-folder/$(basename "$package")"
  done
  echo "Built twice, without a difference:"
  (cd "$work/first" && sha256sum -- *.deb)
fi

mkdir -p "$out"
rm -f "$out"/*nuvexviewer*.deb
cp "$work"/first/*.deb "$out"
ls --size --human-readable "$out"
