#!/bin/sh
# SPDX-License-Identifier: MIT
# with_display.sh COMMAND...: runs a command on an X server of its own, with a window manager, and gives its
# exit code. 77 when there is no X server to start: the test is skipped.
command -v Xvfb >/dev/null && command -v openbox >/dev/null && command -v xdotool >/dev/null || {
    echo "with_display.sh: needs Xvfb, openbox and xdotool" >&2
    exit 77
}
dir=$(mktemp -d) || exit 1
trap 'kill $wm $server 2>/dev/null; rm -rf "$dir"' EXIT
trap 'exit 143' INT TERM
mkfifo "$dir/number"
Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$dir/number" 2>"$dir/log" &
server=$!
read -r number <"$dir/number" || {
    echo "with_display.sh: Xvfb did not start" >&2
    cat "$dir/log" >&2
    exit 1
}
export DISPLAY=":$number"
# A desktop has a message bus; looking for one where there is none starts programs.
export DBUS_SESSION_BUS_ADDRESS="${DBUS_SESSION_BUS_ADDRESS:-disabled:}"
openbox >/dev/null 2>&1 &
wm=$!
# The window manager is there when it answers for the desktop.
tries=0
until xdotool get_desktop >/dev/null 2>&1 || [ $tries -ge 100 ]; do
    tries=$((tries + 1))
    sleep 0.05
done
"$@"
