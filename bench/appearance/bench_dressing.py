#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""bench_dressing.py PROGRAM [--runs N] [--bound MS]: how long the program takes to dress itself at the start.

Starts the program N times in each theme, after one start that warms the caches, and takes the time of the
appearance plug-in's initialisation from the start-up profile. Fails when a median exceeds the bound, if one is
given. Works off screen; the program has to be built with its plug-ins and sheets.
"""
import argparse
import os
import re
import statistics
import subprocess
import sys
import tempfile
from pathlib import Path

LINE = re.compile(r"([0-9.]+) ms  appearance initialize$")
LIMIT = 60  # seconds for the end of one start


def measure(program, theme):
    """One start: milliseconds for theme and style."""
    with tempfile.TemporaryDirectory() as home:
        Path(home, "KelpaStudio.ini").write_text(f"[Kelpa]\nTheme={theme}\n", encoding="utf-8")
        process = subprocess.Popen(
            [program, "--profile", "--no-welcome", "--new-instance", "--settings-path", home],
            env=os.environ | {"HOME": home, "XDG_CONFIG_HOME": home, "XDG_RUNTIME_DIR": home},
            stderr=subprocess.PIPE, stdout=subprocess.DEVNULL, text=True)
        try:
            for line in process.stderr:
                if match := LINE.search(line.rstrip()):
                    return float(match[1])
        finally:
            process.terminate()
            process.wait(LIMIT)
    sys.exit(f"{program} ended without a profile of the appearance")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("--runs", type=int, default=7)
    parser.add_argument("--bound", type=float)
    options = parser.parse_args()
    slow = []
    for theme in ("Dark", "Light"):
        measure(options.program, theme)
        times = [measure(options.program, theme) for _ in range(options.runs)]
        median = statistics.median(times)
        print(f"{theme}:", " ".join(f"{time:.1f}" for time in times), f"ms; median {median:.1f} ms")
        if options.bound and median > options.bound:
            slow.append(f"{theme} takes more than {options.bound:g} ms")
    sys.exit("; ".join(slow) or 0)


if __name__ == "__main__":
    main()
