#!/usr/bin/env bash
# What scripts/coverage prints of what was measured, and when it fails.
# shellcheck source=tests/scripts/testing.sh
. "$(dirname "${BASH_SOURCE[0]}")/testing.sh"

stand_in dpkg-query 'echo "install ok installed"'
stand_in cmake 'exit 0'
stand_in ctest 'exit 0'
mkdir -p "$tree/build/coverage"

# measured LINES: lets the core be what this table says, one file a line: its name, how many lines
# it has and how many of them were run, and the same of branches.
measured() {
  printf '%s\n' "$1" >"$tree/measured"
  # shellcheck disable=SC2016 # the stand-in expands it
  stand_in gcovr 'while [ "$1" != --csv ]; do shift; done
{
  echo "filename,line_total,line_covered,line_percent,branch_total,branch_covered"
  while read -r name lines run branches taken; do
    echo "$name,$lines,$run,0.5,$branches,$taken"
  done <"'"$tree"'/measured"
} >"$2"'
}

measured 'grid/song.cpp 100 100 10 9
build/coverage/rooms/midi/midi/notes.h 300 297 20 15
midi/notes.cpp 100 99 0 0
edit/keys.cpp 50 49 4 4
files/song.cpp 200 200 30 30
app/editor.cpp 50 50 6 3'
expect "room by room, and all of it" \
  'grid      100 lines  100.0 %      10 branches   90.0 %
midi      400 lines   99.0 %      20 branches   75.0 %
edit       50 lines   98.0 %       4 branches  100.0 %
files     200 lines  100.0 %      30 branches  100.0 %
app        50 lines  100.0 %       6 branches   50.0 %
all       800 lines   99.4 %      70 branches   87.1 %' "$("$tree/scripts/coverage" 2>&1)"

measured 'grid/song.cpp 100 97 10 9
midi/notes.cpp 100 99 9 9
edit/keys.cpp 50 49 4 4
files/song.cpp 2000 2000 30 30
app/editor.cpp 50 50 6 3'
expect_within "a room with too few lines" "a room has fallen below 98 % of its lines" \
  "$("$tree/scripts/coverage" 2>&1)"
"$tree/scripts/coverage" >/dev/null 2>&1
expect "is status 1" 1 $?

stand_in ctest 'echo "3 tests failed"; exit 8'
expect_within "and so is a failed test" "a test failed" "$("$tree/scripts/coverage" 2>&1)"

done_testing
