#!/bin/bash
# Installs the build into a folder of its own, moves that, and uses what is there as its users do:
#
#   installation.sh BUILD WORK
set -euo pipefail

build=$1
work=$2
fail() {
  echo "FAIL: $*" >&2
  exit 1
}
# Whether the tool that checks something is there.
has() {
  command -v "$1" > /dev/null || { echo "skipped: there is no $1"; return 1; }
}

rm -rf "$work"
mkdir -p "$work/home"
DESTDIR=$work/stage cmake --install "$build" --prefix /opt/nuvex > "$work/install.log"
root=$work/moved
mv "$work/stage/opt/nuvex" "$root"
[ -z "$(find "$work/stage" -type f)" ] || fail "files outside the prefix: $(find "$work/stage" -type f)"
export HOME=$work/home
unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_STATE_HOME
cd "$work"

# run WANTED-STATUS SENTENCE COMMAND...
run() {
  local wanted=$1 sentence=$2 status=0 output
  shift 2
  output=$("$@" 2>&1) || status=$?
  [ $status = "$wanted" ] && [[ $output == *"$sentence"* ]] \
    || fail "ended with $status: $*"$'\n'"$output"
}

for program in bin/nuvexviewer bin/nuvexupdate libexec/nuvexviewer/nuvexcameraworker \
  lib*/nuvexviewer/plugins/FirmwareUpdater.so; do
  library=$(ldd "$root"/$program | grep -oP 'libnuvexviewerhostapi\S* => \K\S+' || true)
  [[ $(realpath "$library") == "$root"/* ]] || fail "$program takes $library"
done

# Plug-in, worker and samples are its own: without them it has none.
run 0 "Successful updates: 6" "$root/bin/nuvexviewer" --speed 100 --demo pictures
update=("$root/bin/nuvexupdate" update "$root/share/nuvexviewer/samples/vx-1400m_1.1.0.guf"
  --camera 40012345 --allow-downgrade --speed 100 --yes)
run 0 "1 updated" "${update[@]}"
mv "$root"/libexec/nuvexviewer/nuvexcameraworker aside
run 1 "nuvexcameraworker" "${update[@]}" --allow-reinstall
mv "$root"/lib*/nuvexviewer/plugins aside-plugins
run 1 "Tools has no entry for the wizard" "$root/bin/nuvexviewer" --speed 100 --demo pictures

# A man page has the options that the program has, no more and no fewer.
options() {
  grep --only-matching --extended-regexp -e '(^|[^a-z-])--[a-z][a-z-]*' | grep -oP -e '--[a-z-]+' | sort -u
}
# What the program $1 prints as its help; a camera on USB has some options of its own.
help() {
  "$root/bin/$1" --help
  [ "$1" != virtualcamera ] || "$root/bin/$1" usb --help
}
for program in guftool nuvexupdate nuvexviewer virtualcamera; do
  page=$root/share/man/man1/$program.1
  diff <(help "$program" | { options; echo --help; } | sort -u) \
    <(sed -n '/^\.SH OPTIONS/,/^\.SH EX/p' "$page" | grep '^\.[BI]' | sed 's/\\-/-/g' | options) \
    || fail "$program: --help (<) and man page (>) differ"
  ! has mandoc || mandoc -T lint -W warning "$page" || fail "$page"
  # What a completion offers is what the program has, too.
  offered=$(bash -c "source $root/share/bash-completion/completions/$program
    COMP_WORDS=($root/bin/$program --) COMP_CWORD=1
    \$(complete -p $program | grep -oP -e '-F \K\S+') $root/bin/$program -- ''
    printf '%s\n' \"\${COMPREPLY[@]}\"")
  unknown=$(comm -23 <(sort -u <<< "$offered") <("$root/bin/$program" --help | { options; echo --help; } | sort -u))
  [[ $offered == *--* && -z $unknown ]] || fail "the completion of $program offers: $offered"
done

! has desktop-file-validate || desktop-file-validate "$root"/share/applications/*.desktop || fail "menu entry"
! has appstreamcli || appstreamcli validate --no-net "$root"/share/metainfo/*.xml || fail "metainfo"
if has update-mime-database; then
  update-mime-database "$root/share/mime"
  grep --quiet --line-regexp '50:application/x-guf:\*\.guf' "$root/share/mime/globs2" || fail "no type for *.guf"
fi
[[ $(basename "$root"/lib/udev/rules.d/*.rules) < 73-seat-late.rules ]] || fail "the rule for udev comes too late"

# Every link of the manual that stays on this computer leads somewhere.
manual=$root/share/doc/nuvexviewer/html
if [ -d "$manual" ]; then
  for page in "$manual"/*.html; do
    while read -r link; do
      file=$manual/${link%%#*}
      [ "${link%%#*}" ] || file=$page
      [ -f "$file" ] || fail "$page leads to $link"
      [[ $link != *#* ]] || grep --quiet "id=\"${link#*#}\"" "$file" || fail "$page leads to $link"
    done < <(grep -oP '(href|src)="\K[^":]+(?=")' "$page")
  done
  [ -f "$manual/index.html" ] || fail "the manual has no first page"
else
  echo "skipped: the manual was not made"
fi
