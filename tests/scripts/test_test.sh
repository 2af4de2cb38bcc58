#!/usr/bin/env bash
# What scripts/test counts, and when it fails.
# shellcheck source=tests/scripts/testing.sh
. "$(dirname "${BASH_SOURCE[0]}")/testing.sh"

stand_in dpkg-query 'echo "install ok installed"'
stand_in cmake 'exit 0'
stand_in setarch 'exit 1'
# shellcheck disable=SC2016 # the stand-in expands it
stand_in Xvfb 'echo 99 >&"$2"; exec sleep 60'
mkdir -p "$tree"/build/fuzz/fuzz
for reader in banks config fields song; do
  stand_in fuzz_$reader 'exit 0'
  mv "$tree/bin/fuzz_$reader" "$tree/build/fuzz/fuzz/"
done

# tests_are ATTRIBUTES [STATUS]: each run of ctest ends so, its report beginning with these counts.
tests_are() {
  # shellcheck disable=SC2016 # the stand-in expands it
  stand_in ctest 'while [ "$1" != --output-junit ]; do shift; done
echo "<testsuite name=\"all\" '"${1//\"/\\\"}"' hostname=\"\">" >"$2"; exit '"${2:-0}"
}

# last_line ARGUMENTS...: what scripts/test says last.
last_line() { "$tree/scripts/test" "$@" 2>/dev/null | tail -n 1; }
status() {
  "$tree/scripts/test" >/dev/null 2>&1
  echo $?
}

tests_are 'tests="10" failures="0" disabled="0" skipped="0"'
expect "three runs are counted together" "30 passed, 0 failed" "$(last_line)"
expect "and are status 0" 0 "$(status)"

tests_are 'tests="10" failures="2" disabled="0" skipped="0"' 8
expect "failed tests are counted" "24 passed, 6 failed" "$(last_line)"
expect "and are status 1" 1 "$(status)"

tests_are 'tests="10" failures="0" disabled="0" skipped="1"'
expect "a test that is skipped has not passed" "27 passed, 0 failed" "$(last_line)"
expect_within "and it is said" "1 tests of preset asan were skipped" "$("$tree/scripts/test" 2>&1)"
stand_in gcovr 'exit 1'
expect_within "nor is the program proven end to end with it" "31 passed, 2 failed" "$(last_line --all)"

tests_are 'tests="10" failures="0" disabled="0" skipped="0"' 8
expect "a test program that is not there is a failure" "30 passed, 3 failed" "$(last_line)"

stand_in ctest 'exit 8'
expect "so are tests that did not run" "0 passed, 3 failed" "$(last_line)"
expect "and are status 1" 1 "$(status)"

stand_in cmake 'exit 1'
expect "and a build that failed, of which no test runs" "0 passed, 2 failed" "$(last_line)"

done_testing
