#!/bin/bash
# Builds all fuzzers and runs each of them for SECONDS, two at a time:
#
#   scripts/fuzz.sh SECONDS [NAME...]
#
# Prints how many inputs were tried and how much of the code they reached. Ends with 1 when one of
# them is a finding; the input is kept, and becomes a seed in tests/fuzz/seeds when it is understood.
# What was learned is kept in build-fuzz/corpus for the next run.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$root/build-fuzz

if ! [[ ${1:-} =~ ^[1-9][0-9]*$ ]]; then
  echo "usage: $0 SECONDS [NAME...]" >&2
  exit 2
fi
export FUZZ_SECONDS=$1
shift

"$root/scripts/install-dependencies.sh" fuzz
cd "$root"
export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1
cmake --preset fuzz
cmake --build --preset fuzz

# fuzz NAME SEEDS: what the fuzzer says goes to logs/NAME, its inputs to corpus/NAME, and each input
# that is a finding to findings/NAME-...
fuzz() {
  mkdir -p "corpus/$1" logs findings
  # An input that takes very long or much memory is a finding, too.
  "bin/$1_fuzz" -max_total_time="$FUZZ_SECONDS" -timeout=10 -rss_limit_mb=1024 \
    -print_final_stats=1 -artifact_prefix="findings/$1-" "corpus/$1" "$2" > "logs/$1" 2>&1 \
    && echo 0 > "logs/$1.status" || echo $? > "logs/$1.status"
}
export -f fuzz
export UBSAN_OPTIONS=print_stacktrace=1
export LSAN_OPTIONS=suppressions=$root/tests/lsan.supp:print_suppressions=0

cd "$build"
names=" $* "
list=()
while read -r name seeds; do
  [ $# -gt 0 ] && [[ $names != *" $name "* ]] || list+=("$name" "$seeds")
done < fuzzers.txt
if [ ${#list[@]} -eq 0 ]; then
  echo "There are these fuzzers: $(cut -d ' ' -f 1 fuzzers.txt | xargs)" >&2
  exit 2
fi
printf '%s\0' "${list[@]}" | xargs -0 -n 2 -P 2 bash -c 'fuzz "$@"' fuzz

result=0
printf '%-20s %12s %10s %10s\n' target executions coverage features
for ((i = 0; i < ${#list[@]}; i += 2)); do
  log=logs/${list[i]}
  # Nothing to be read where the first input was a finding.
  read -r coverage features <<< "$(grep -oP 'cov: \d+ ft: \d+' "$log" | tail -n 1 | tr -dc '0-9 ')"
  executions=$(grep -oP 'number_of_executed_units: \K\d+' "$log" || echo '?')
  printf '%-20s %12s %10s %10s\n' "${list[i]}" "$executions" "${coverage:-?}" "${features:-?}"
  if [ "$(cat "$log.status")" != 0 ]; then
    result=1
    echo "  a finding, see $build/$log"
    grep -oP 'Test unit written to \K.*' "$log" | sed "s|^|  $build/|" || true
  fi
done
exit $result
