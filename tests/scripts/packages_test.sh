#!/usr/bin/env bash
# Which packages are installed, and how.
# shellcheck source=tests/scripts/testing.sh
. "$(dirname "${BASH_SOURCE[0]}")/testing.sh"

cat >"$tree/scripts/packages" <<'LIST'
# a comment
run   one
run   two
test  three
LIST
# shellcheck disable=SC2016 # the stand-in expands it
# "one" is installed, "two" was removed, "three" was never there.
stand_in dpkg-query 'case "${*: -1}" in
  one) echo "install ok installed" ;;
  two) echo "deinstall ok config-files" ;;
  *) exit 1 ;;
esac'
stand_in apt-get 'echo "$*" >>"'"$tree"'/apt-calls"'
stand_in sudo '"$@"'

in_scripts() { bash -c '. "$0/scripts/common.sh"; "$@"' "$tree" "$@" 2>&1; }

expect "the packages of a group" "one two" "$(in_scripts packages_of run | xargs)"
expect "the packages of two groups" "one two three" "$(in_scripts packages_of run test | xargs)"
expect "only what is missing" "two three" "$(in_scripts missing_packages run test | xargs)"

in_scripts install_packages run test
expect_within "missing packages are asked for in one call" "two three" "$(cat "$tree/apt-calls")"
expect "package lists that serve are not fetched again" 1 "$(wc -l <"$tree/apt-calls")"

rm "$tree/apt-calls"
stand_in apt-get 'echo "$*" >>"'"$tree"'/apt-calls"; [[ $* == *update* || -f "'"$tree"'/lists" ]] || exit 100
touch "'"$tree"'/lists"'
in_scripts install_packages run
expect "lists are fetched after a failure" 3 "$(wc -l <"$tree/apt-calls")"
expect_within "between the two tries" "update" "$(sed -n 2p "$tree/apt-calls")"

stand_in apt-get 'echo "E: no network"; exit 100'
expect_within "a failure says what it is" "the package lists cannot be fetched" \
  "$(in_scripts install_packages run)"
expect_within "and shows the machine's own words" "E: no network" "$(in_scripts install_packages run)"

stand_in dpkg-query 'echo "install ok installed"'
expect "nothing is done where all is installed" "" "$(in_scripts install_packages run test)"

done_testing
