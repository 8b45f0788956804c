#!/bin/sh
# SPDX-License-Identifier: MIT
# with_wine.sh <Qt folder> <build folder> <test.exe> [arguments...]: runs a QtTest program for Windows under Wine
# and prints its report. On a display of its own, unless KELPA_WINE_DISPLAY says that there is one.
set -u
here=$(cd "$(dirname "$0")" && pwd) || exit 1
if [ -z "${KELPA_WINE_DISPLAY:-}" ]; then
    export KELPA_WINE_DISPLAY=1 XDG_CONFIG_HOME="$here/wine"
    exec "$here/with_display.sh" "$0" "$@"
fi
qt=$1 build=$2 test=$3
shift 3

windows_path() { printf 'Z:%s' "$1" | tr / '\\'; }

export WINEPREFIX="$build/wine" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
WINEPATH="$(windows_path "$qt/bin");$(windows_path "$build/kelpastudio");$(windows_path "$build/kelpastudio/plugins")"
QT_PLUGIN_PATH=$(windows_path "$qt/plugins")
export WINEPATH QT_PLUGIN_PATH
# Wine keeps Qt's variables from the program unless they come with its own prefix.
for name in $(env | sed -n 's/^\(QT_[A-Z0-9_]*\)=.*/\1/p'); do
    eval "export WINE$name=\"\$$name\""
done
[ -f "$WINEPREFIX/system.reg" ] || wineboot -i >/dev/null 2>&1 || exit 1

# Standard output is lost on the way, and with it the result unless it is in the file.
report=$test.txt
rm -f "$report"
wine "$test" -o "$(windows_path "$report"),txt" "$@" >/dev/null 2>&1
status=$?
wineserver -k
# What Wine lacks is said for each window.
grep -v 'EnableNonClientDpiScaling() failed' "$report" && grep -q '^Totals: ' "$report" && exit $status
echo "$test ended with $status and without a result" >&2
exit 1
