#!/usr/bin/env bash
# What scripts/run makes of its arguments, with a display and without one.
# shellcheck source=tests/scripts/testing.sh
. "$(dirname "${BASH_SOURCE[0]}")/testing.sh"

stand_in dpkg-query 'echo "install ok installed"'
stand_in cmake 'exit 0'
mkdir -p "$tree/build/release/app" "$tree/examples"
stand_in lunavox 'echo "lunavox $*"'
mv "$tree/bin/lunavox" "$tree/build/release/app/lunavox"

with_display() { env -u WAYLAND_DISPLAY DISPLAY=:9 "$tree/scripts/run" "$@" 2>&1; }
without_display() { env -u WAYLAND_DISPLAY -u DISPLAY "$tree/scripts/run" "$@" 2>&1; }

expect "a song opens" "lunavox my song.lvx" "$(with_display "my song.lvx")"
expect "an example opens where no song is named" "lunavox $tree/examples/mountain-king.lvx" "$(with_display)"
expect "a Wayland display is one too" "lunavox a.lvx" \
  "$(env -u DISPLAY WAYLAND_DISPLAY=wayland-0 "$tree/scripts/run" a.lvx 2>&1)"
expect_within "no display: it says so" "There is no display here" "$(without_display my.lvx)"
expect_within "and renders" "lunavox --render $tree/build/my.wav dir/my.lvx" \
  "$(without_display dir/my.lvx)"
expect_within "the example too" "lunavox --render $tree/build/mountain-king.wav $tree/examples/mountain-king.lvx" \
  "$(without_display)"
expect "options need no display" "lunavox --list-devices" "$(without_display --list-devices)"

stand_in cmake 'echo "error: broken"; exit 1'
expect_within "a failed build is told" "Lunavox could not be built" "$(with_display my.lvx)"
with_display my.lvx >/dev/null
expect "and is status 1" 1 $?

done_testing
