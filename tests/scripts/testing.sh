# Shared by the tests of the scripts: a copy of the tree's scripts in a folder of its own, with
# stand-ins first in PATH. Sourced, never run.
# shellcheck shell=bash
set -u
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT
cp -r "$top/scripts" "$tree/scripts"
mkdir -p "$tree/bin"
PATH=$tree/bin:$PATH
failures=0

# stand_in NAME TEXT: a program of this name that runs the text as a script.
stand_in() {
  printf '#!/usr/bin/env bash\n%s\n' "$2" >"$tree/bin/$1"
  chmod +x "$tree/bin/$1"
}

# expect WHAT EXPECTED ACTUAL
expect() {
  [ "$2" = "$3" ] && return 0
  printf 'FAILED: %s\n  expected: %s\n  actual:   %s\n' "$1" "$2" "$3"
  failures=$((failures + 1))
}

# expect_within WHAT PART ACTUAL
expect_within() {
  [[ $3 == *"$2"* ]] && return 0
  printf 'FAILED: %s\n  expected within: %s\n  actual:          %s\n' "$1" "$2" "$3"
  failures=$((failures + 1))
}

done_testing() { exit $((failures > 0)); }
