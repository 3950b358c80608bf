#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# start_test.sh KORVANE FILE.kvn: the program comes up on a display with the project in its title,
# and ends well when its window is closed.
set -u
own=$(mktemp -d)
# Without -noreset the server starts anew, and refuses clients, when the first one asking leaves.
exec 7<>"$own/number"
Xvfb -displayfd 7 -noreset -screen 0 1600x1000x24 -nolisten tcp >/dev/null 2>&1 &
display=$!
trap 'kill $display 2>/dev/null; rm -rf "$own"' EXIT
for _ in $(seq 100); do [ -s "$own/number" ] && break; sleep 0.1; done
DISPLAY=:$(tr -d '\n' <"$own/number")
export DISPLAY
# The number comes before the server answers.
for _ in $(seq 100); do xdotool getdisplaygeometry >/dev/null 2>&1 && break; sleep 0.1; done
QT_QPA_PLATFORM=xcb XDG_CONFIG_HOME=$own XDG_DATA_HOME=$own XDG_RUNTIME_DIR=$own "$1" "$2" &
program=$!
window=
for _ in $(seq 100); do
  window=$(xdotool search --onlyvisible --name "^KORVANE-NS3472: .*$(basename "$2")\$" 2>/dev/null |
    head -n 1)
  [ -n "$window" ] && break
  sleep 0.1
done
[ -n "$window" ] || { echo "no window"; kill $program; exit 1; }
# Ctrl+Q ends the program as its command does; a key before the window has the focus is lost.
for _ in $(seq 50); do
  xdotool windowfocus "$window" key --window "$window" ctrl+q 2>/dev/null
  sleep 0.2
  kill -0 $program 2>/dev/null || break
done
kill $program 2>/dev/null && { echo "did not end"; exit 1; }
wait $program
status=$?
[ $status -eq 0 ] || echo "ended with $status"
exit $status
