#!/usr/bin/env bash
# Runs one window test on an X server of its own. The server picks a free
# display number itself (-displayfd), so suites of several build trees, and
# the tests of one suite, never race for a number.
set -u
dir=$(mktemp -d)
mkfifo "$dir/display"
Xvfb -displayfd 3 -screen 0 1600x1000x24 -nolisten tcp 3>"$dir/display" 2>"$dir/log" &
server=$!
trap 'kill $server 2>/dev/null; wait $server 2>/dev/null; rm -rf "$dir"' EXIT
# The number arrives once the server takes clients; nothing if it failed.
read -r number <"$dir/display" || true
if [ -z "${number:-}" ]; then
  echo "The virtual X server didn't start:" >&2
  cat "$dir/log" >&2
  exit 1
fi
DISPLAY=":$number" "$@"
