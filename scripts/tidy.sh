#!/bin/bash
# Asks clang-tidy about all of the code, as .clang-tidy says, and ends with 1 when it finds something:
#
#   scripts/tidy.sh [FILE...]
#
# Needs build-test as ./test leaves it.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
scripts/install-dependencies.sh test

if [ $# -gt 0 ]; then
  files=("$@")
else
  mapfile -t files < <(git ls-files -- '*.cpp')
fi
# Only what this configuration builds: there is no telling what another one would be told.
database=build-test/compile_commands.json
known=()
for file in "${files[@]}"; do
  if grep --quiet --fixed-strings "\"file\": \"$PWD/$file\"" "$database"; then
    known+=("$file")
  fi
done
if [ ${#known[@]} -eq 0 ]; then
  echo "None of these files is built in build-test." >&2
  exit 2
fi

work=$(mktemp --directory)
trap 'rm -rf "$work"' EXIT
# Without the compiler's cache, and what GCC has precompiled, which means nothing to clang.
sed --regexp-extended 's|"command": "[^"]*/ccache |"command": "|; s/ -fpch-preprocess//; s/ -Winvalid-pch -include [^ ]*cmake_pch.hxx//' \
  "$database" > "$work/compile_commands.json"
# What it says about itself goes to standard error: how many findings it left out in other's headers.
findings=$work/findings
printf '%s\0' "${known[@]}" \
  | xargs --null --max-args=4 --max-procs="$(nproc)" clang-tidy -p "$work" --quiet \
    2> /dev/null > "$findings" || status=$?
cat "$findings"
echo "${#known[@]} files, $(grep --count --extended-regexp ' (warning|error): ' "$findings") findings"
exit $((${status:-0} != 0))
