#!/bin/sh
# Runs a program on an X server of its own, which takes a free display number and ends with it:
#   with-xvfb.sh PROGRAM [ARGUMENT...]
# XVFB_OPTIONS are further options of the server.
set -u

folder=$(mktemp -d)
mkfifo "$folder/number"
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset ${XVFB_OPTIONS:-} \
  3>"$folder/number" 2>"$folder/log" &
server=$!
trap 'kill "$server" 2>/dev/null; wait "$server" 2>/dev/null; rm -rf "$folder"' EXIT
trap 'exit 130' INT TERM

if ! read -r number <"$folder/number"; then
  cat "$folder/log" >&2
  echo "with-xvfb.sh: Xvfb did not start" >&2
  exit 1
fi

DISPLAY=":$number" WEXA_DISPLAY=x11 "$@"
