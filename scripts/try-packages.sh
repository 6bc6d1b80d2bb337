#!/bin/bash
# Tries the packages in FOLDER, which is packages/ when it is not given, in a bare Debian 12 that it makes for that:
# installs them, uses them as a user without rights, builds a plug-in against them, replaces them by a later
# version, removes them, and looks for what is left behind:
#
#   scripts/try-packages.sh [FOLDER]
#
# Needs root, and a mirror of Debian.
set -euo pipefail

source=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
if [ $# -gt 1 ] || [[ ${1:-} == -* ]]; then
  echo "usage: $0 [FOLDER]" >&2
  exit 2
fi
if [ "$(id -u)" -ne 0 ]; then
  echo "$0 needs root, for a Debian of its own." >&2
  exit 2
fi
packages=$(realpath "${1:-$source/packages}")
"$source/scripts/install-dependencies.sh" package

root=$(mktemp --directory --tmpdir try-packages.XXXXXX)
cleanup() {
  for mounted in dev/shm proc; do
    ! mountpoint --quiet "$root/$mounted" || umount "$root/$mounted"
  done
  rm --recursive --force --one-file-system "$root"
}
trap cleanup EXIT

section() {
  printf '\n== %s (after %d s)\n' "$1" "$SECONDS"
}
fail() {
  echo "FAIL: $*" >&2
  exit 1
}
as_root() {
  chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 \
    DEBIAN_FRONTEND=noninteractive "$@"
}
as_user() {
  chroot --userspec=tester:tester "$root" env -i --chdir=/home/tester PATH=/usr/bin:/bin HOME=/home/tester \
    LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen ${debug:-} "$@"
}
# install PACKAGE...: a shell in there sees to the patterns.
install() {
  as_root sh -c "apt-get install --quiet=2 --yes --no-install-recommends -o Dpkg::Use-Pty=0 $*" \
    > "$root/tmp/apt.log" 2>&1 || { cat "$root/tmp/apt.log" >&2; fail "these cannot be installed: $*"; }
}
# demonstrate ARGUMENT...: the viewer updates six simulated cameras by its own wizard.
demonstrate() {
  as_user nuvexviewer --reset-cameras --speed 100 --demo pictures "$@" > "$root/tmp/demo.log" 2>&1 \
    || { cat "$root/tmp/demo.log" >&2; fail "the demonstration ended with $?"; }
  grep 'cameras have version' "$root/tmp/demo.log"
}
# The names of all files but those that apt and dpkg keep for themselves, and those of the user.
list_files() {
  (cd "$root" && find . -xdev \( -path ./home -o -path ./proc -o -path ./dev -o -path ./tmp -o -path ./run \
    -o -path ./var/cache -o -path ./var/log -o -path ./var/lib/apt -o -path ./var/lib/dpkg \) -prune \
    -o -print | sort)
}

section "A bare Debian 12"
# Nobody minds a Debian that does not outlive a power cut.
mmdebstrap --quiet --variant=minbase --dpkgopt=force-unsafe-io bookworm "$root"
mount -t proc proc "$root/proc"
mkdir --parents "$root/dev/shm"
mount -t tmpfs -o mode=1777 shm "$root/dev/shm"
printf '#!/bin/sh\nexit 101\n' > "$root/usr/sbin/policy-rc.d"
chmod 755 "$root/usr/sbin/policy-rc.d"
as_root useradd --create-home tester
as_root apt-get update --quiet=2
mkdir "$root/tmp/packages" "$root/tmp/later"
cp "$packages"/*.deb "$root/tmp/packages"
chmod -R go+rX "$root/tmp"
list_files > "$root/tmp/before"

section "The tools alone"
install '/tmp/packages/nuvexviewer-tools_*.deb /tmp/packages/nuvexviewer-common_*.deb' \
  '/tmp/packages/libnuvexviewerhostapi6.2_*.deb'
as_root dpkg-query --show 'libqt5widgets5*' 2> /dev/null && fail "tools for command lines brought widgets"
as_user nuvexupdate list
as_user nuvexupdate update /usr/share/nuvexviewer/samples/vx-1400m_2.0.0.guf --model VX-1400M --speed 100 --yes \
  | tail --lines=1
as_user guftool verify /usr/share/nuvexviewer/samples/vx-1400m_2.0.0.guf
as_user guftool --help > /dev/null
as_user virtualcamera --help > /dev/null

section "The viewer"
install '/tmp/packages/nuvexviewer_*.deb /tmp/packages/nuvexviewer-doc_*.deb'
demonstrate
for program in guftool nuvexupdate nuvexviewer virtualcamera; do
  [ -f "$root/usr/share/man/man1/$program.1.gz" ] || fail "$program has no man page"
  as_user bash -c "source /usr/share/bash-completion/completions/$program && complete -p $program"
done
for file in applications/nuvexviewer.desktop mime/packages/nuvexviewer.xml doc/nuvexviewer/html/index.html \
  doc/nuvexviewer/html/nuvexupdate.schema.json \
  icons/hicolor/48x48/apps/nuvexviewer.png metainfo/example.nuvex.viewer.metainfo.xml; do
  [ -f "$root/usr/share/$file" ] || fail "there is no $file"
done

section "A plug-in"
install '/tmp/packages/libnuvexviewerhostapi-dev_*.deb' cmake g++ make
as_user cp -r /usr/share/doc/libnuvexviewerhostapi-dev/examples/plugin .
as_user sh -c 'cmake -S plugin -B plugin-build && cmake --build plugin-build' > "$root/tmp/build.log" 2>&1 \
  || { cat "$root/tmp/build.log" >&2; fail "the example cannot be built"; }
as_user chmod -R go-w plugin-build
debug=QT_DEBUG_PLUGINS=1 demonstrate --plugins plugin-build
! grep '^nuvexviewer:' "$root/tmp/demo.log" || fail "a plug-in is not available"
grep 'loaded library.*CameraCount.so' "$root/tmp/demo.log" || fail "the example is not loaded"

section "A later version"
for package in "$packages"/*nuvexviewer*.deb; do
  unpacked=$(mktemp --directory --tmpdir="$root/tmp")
  version=$(dpkg-deb --field "$package" Version)
  dpkg-deb --raw-extract "$package" "$unpacked"
  sed --in-place "s/^Version: .*/&+later/; s/(= ${version//./\\.})/(= $version+later)/g" "$unpacked/DEBIAN/control"
  dpkg-deb --root-owner-group --build "$unpacked" "$root/tmp/later" > /dev/null
  rm --recursive "$unpacked"
done
chmod -R go+rX "$root/tmp/later"
install '/tmp/later/*.deb'
as_root dpkg-query --show '*nuvexviewer*'
demonstrate

section "Nothing is left"
# shellcheck disable=SC2046 # one word for each package
as_root apt-get purge --quiet=2 --yes -o Dpkg::Use-Pty=0 \
  $(as_root dpkg-query --show --showformat '${Package}\n' '*nuvexviewer*') cmake g++ make > /dev/null
as_root apt-get autoremove --purge --quiet=2 --yes -o Dpkg::Use-Pty=0 > /dev/null
list_files > "$root/tmp/after"
diff "$root/tmp/before" "$root/tmp/after" || fail "purging left these files (>), or took these (<)"

section "Done"
