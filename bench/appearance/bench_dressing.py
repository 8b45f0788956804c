#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""bench_dressing.py PROGRAM [--runs N] [--bound MS]: how long the program takes to dress itself at the start.

Takes the time of the appearance plug-in's initialisation in each theme from the start-up profile. Works off
screen; the program has to be built with its plug-ins and sheets.
"""
import re
import sys
from pathlib import Path

sys.path.append(str(Path(__file__).parent.parent))
import starts

LINE = re.compile(r"([0-9.]+) ms  appearance initialize$")


def dressing(theme):
    def measure(program):
        log = starts.log_of(program, ["--profile", "--no-welcome"], settings=f"[Kelpa]\nTheme={theme}\n")
        return next(float(match[1]) for match in map(LINE.search, log) if match)
    return measure


if __name__ == "__main__":
    starts.check({theme: dressing(theme) for theme in ("Dark", "Light")})
