#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""bench_welcome.py PROGRAM [--runs N] [--bound MS]: from the painted window to the painted home page.

Needs a display; the program has to be built with its plug-ins.
"""
import re
import sys
from pathlib import Path

sys.path.append(str(Path(__file__).parent.parent))
import starts

LINE = re.compile(r"^([0-9.]+) kelpa\.welcome: (Window|Page) painted$")
ENVIRONMENT = {
    "QT_FORCE_STDERR_LOGGING": "1",
    "QT_LOGGING_RULES": "kelpa.welcome.debug=true",
    "QT_MESSAGE_PATTERN": "%{time process} %{category}: %{message}",
}


def measure(program):
    times = {}
    for match in map(LINE.match, starts.log_of(program, environment=ENVIRONMENT)):
        if match:
            times[match[2]] = float(match[1]) * 1000
        if "Page" in times:
            return times["Page"] - times["Window"]


if __name__ == "__main__":
    starts.check({"window to page": measure})
