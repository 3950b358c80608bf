#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# window_manager_test.sh TEST_DESKTOP: message boxes and the focus after them where a window
# manager gives the focus to windows, and takes its time.
set -u
own=$(mktemp -d)
exec 7<>"$own/number"
Xvfb -displayfd 7 -screen 0 1920x1080x24 -nolisten tcp >/dev/null 2>&1 &
display=$!
manager=
trap 'kill $manager $display 2>/dev/null; rm -rf "$own"' EXIT
for _ in $(seq 100); do [ -s "$own/number" ] && break; sleep 0.1; done
DISPLAY=:$(tr -d '\n' <"$own/number")
export DISPLAY XDG_CONFIG_HOME=$own XDG_DATA_HOME=$own
openbox --sm-disable >/dev/null 2>&1 &
manager=$!
for _ in $(seq 50); do
  xdotool get_desktop >/dev/null 2>&1 && break # answers once a window manager is there
  sleep 0.1
done
QT_QPA_PLATFORM=xcb "$1" --gtest_brief=1 \
  --gtest_filter='*Refusal*:*MessageBox*:*Refused*:*Search*:*Mnemonic*'
