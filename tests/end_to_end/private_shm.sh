#!/usr/bin/env bash
# usage: private_shm.sh COMMAND...
#
# Runs a command that sees a /dev/shm of its own. JACK keeps the list of its servers there, which has
# room for eight and remembers servers that were killed: another test, or one that was broken off,
# would leave no room for this one's.
set -eu

mounted='mount -t tmpfs tmpfs /dev/shm && exec "$@"'
for as_root in '' --map-root-user; do
  # shellcheck disable=SC2086 # no word where it is empty
  if unshare --mount $as_root sh -c 'mount -t tmpfs tmpfs /dev/shm' 2>/dev/null; then
    exec unshare --mount $as_root sh -c "$mounted" sh "$@"
  fi
done
exec "$@"
