#!/bin/sh
# SPDX-License-Identifier: MIT
# with_display.sh <command...>: runs the command on an X display of its own with a window manager.
set -u
folder=$(mktemp -d) || exit 1
xvfb= openbox=
end() {
    status=$?
    for pid in $openbox $xvfb; do
        kill "$pid" 2>/dev/null
        wait "$pid" 2>/dev/null
    done
    rm -rf "$folder"
    exit $status
}
trap end EXIT
trap 'exit 1' HUP INT TERM

mkfifo "$folder/number"
Xvfb -displayfd 3 -screen 0 1600x1000x24 -nolisten tcp 3>"$folder/number" 2>/dev/null &
xvfb=$!
read -r number <"$folder/number" || exit 1
export DISPLAY=":$number"
openbox >/dev/null 2>&1 3>&- &
openbox=$!
timeout 60 sh -c 'until wmctrl -m; do sleep 0.1; done' >/dev/null 2>&1 || exit 1
"$@"
