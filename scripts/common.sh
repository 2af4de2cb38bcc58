# Shared by the scripts beside it; sourced, never run.
# shellcheck shell=bash

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# note TEXT: what is going on, for who watches. Nothing where nobody does, so that logs stay short.
note() {
  if [ -t 2 ]; then printf '%s\n' "$*" >&2; fi
}

# fail TEXT: one sentence on what went wrong; ends the script.
fail() {
  printf '%s: %s\n' "$(basename "$0")" "$*" >&2
  exit 1
}

# quietly LOG COMMAND...: runs a command with its output in a log, which is shown if it fails.
quietly() {
  local log=$1
  shift
  mkdir -p "$(dirname "$log")"
  "$@" >"$log" 2>&1 && return 0
  # A failing build says what is wrong in the middle of its output as often as at the end.
  grep -n -m 20 -E 'error:|FAILED:|undefined reference|CMake Error' "$log" >&2
  tail -n 30 "$log" >&2
  printf '(all of it: %s)\n' "$log" >&2
  return 1
}

# packages_of GROUP...: the names listed for these groups.
packages_of() {
  local group
  for group in "$@"; do
    awk -v group="$group" '$1 == group { print $2 }' "$root/scripts/packages"
  done
}

# missing_packages GROUP...: those of them that are not installed.
missing_packages() {
  local package
  for package in $(packages_of "$@"); do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q '^install ok installed$' ||
      echo "$package"
  done
}

# apt_get ARGUMENTS...: as root, without questions.
apt_get() {
  local become=()
  [ "$(id -u)" -eq 0 ] || become=(sudo)
  "${become[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -y \
    -o DPkg::Lock::Timeout=300 -o Acquire::Retries=3 "$@"
}

# install_packages GROUP...: installs what these groups still miss.
install_packages() {
  local missing log=$root/build/log/install
  if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    printf 'This is no Debian system: nothing is installed. Needed, by their Debian names: %s\n' \
      "$(packages_of "$@" | xargs)" >&2
    return 0
  fi
  mapfile -t missing < <(missing_packages "$@")
  [ ${#missing[@]} -gt 0 ] || return 0
  if [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; then
    fail "these packages are missing, and installing them takes root: ${missing[*]}
As root: apt-get install --no-install-recommends ${missing[*]}"
  fi
  note "Installing ${missing[*]}"
  mkdir -p "$(dirname "$log")"
  # Package lists are fetched only where the ones at hand do not serve.
  apt_get install --no-install-recommends "${missing[@]}" >"$log" 2>&1 && return 0
  quietly "$log.lists" apt_get update || fail "the package lists cannot be fetched"
  quietly "$log" apt_get install --no-install-recommends "${missing[@]}" ||
    fail "these packages cannot be installed: ${missing[*]}"
}

# build PRESET [TARGET...]: configures and builds it.
build() {
  local preset=$1 target targets=()
  shift
  for target in "$@"; do targets+=(--target "$target"); done
  (cd "$root" &&
    quietly "build/log/$preset-configure" cmake --preset "$preset" &&
    quietly "build/log/$preset-build" cmake --build --preset "$preset" -j "$(nproc)" \
      "${targets[@]}")
}

# start_display: starts an X server on the first free display, in the size of the largest window,
# and waits until it has said which. Its process is $xvfb, for the script's end to end it.
start_display() {
  local display
  coproc server { exec Xvfb -displayfd 1 -screen 0 1600x1200x24 -nolisten tcp 2>/dev/null; }
  # shellcheck disable=SC2034,SC2154 # coproc sets it, and the script's end reads it
  xvfb=$server_PID
  read -r -t 30 display <&"${server[0]}" || return 1
  export DISPLAY=:$display QT_QPA_PLATFORM=xcb
}

# at_home COMMAND...: with $home for a home, away from the user's settings and songs.
# shellcheck disable=SC2154 # the script sets it
at_home() (
  export HOME=$home XDG_CONFIG_HOME=$home/config XDG_STATE_HOME=$home/state
  export XDG_DATA_HOME=$home/data XDG_CACHE_HOME=$home/cache XDG_RUNTIME_DIR=$home/run
  [ -d "$XDG_RUNTIME_DIR" ] || mkdir -m 700 "$XDG_RUNTIME_DIR"
  "$@"
)
