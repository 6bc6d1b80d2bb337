#!/bin/bash
# Prints how many lines of C++ are tests, beside the rest; blank lines and comment lines left out.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."

count() {
  git ls-files -z -- "$@" | xargs -0 -r cat | grep --count --invert-match --extended-regexp \
    '^\s*(//.*)?$'
}

tests=$(count 'tests/*.h' 'tests/*.cpp')
all=$(count '*.h' '*.cpp')
rest=$((all - tests))
echo "Tests: $tests lines beside $rest lines of code, $((100 * tests / rest)) per cent."
