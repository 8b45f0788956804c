# SPDX-License-Identifier: MIT
"""What the benchmarks of the program's start share: the log of one start, and the verdict on the times."""
import argparse
import os
import statistics
import subprocess
import sys
import tempfile
from pathlib import Path

LIMIT = 60  # seconds for the end of one start
TRIES = 6  # other programs on the machine must not matter


def log_of(program, arguments=(), environment=(), settings=""):
    """The lines of the log of one start, which is ended when the caller has read enough."""
    with tempfile.TemporaryDirectory() as home:
        Path(home, "KelpaStudio.ini").write_text(settings, encoding="utf-8")
        process = subprocess.Popen(
            [program, "--new-instance", "--settings-path", home, *arguments],
            env=os.environ | {"HOME": home, "XDG_CONFIG_HOME": home, "XDG_RUNTIME_DIR": home} | dict(environment),
            stderr=subprocess.PIPE, stdout=subprocess.DEVNULL, text=True)
        try:
            yield from map(str.strip, process.stderr)
        finally:
            process.terminate()
            process.wait(LIMIT)
    sys.exit(f"{program} ended too early")


def check(measures):
    """Each measure, by its name, takes the program and gives the milliseconds of one start. The first of them
    warms the caches; the median of the others fails when it exceeds the bound, if one is given, in each try.
    KELPA_BENCH_SLACK in the environment is a factor of the bound; 0 is none."""
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("--runs", type=int, default=7)
    parser.add_argument("--bound", type=float, default=0, help="milliseconds")
    options = parser.parse_args()
    bound = options.bound * float(os.environ.get("KELPA_BENCH_SLACK", "1"))
    for name, measure in measures.items():
        measure(options.program)
        for _ in range(TRIES):
            times = [measure(options.program) for _ in range(options.runs)]
            median = statistics.median(times)
            print(f"{name}:", " ".join(f"{time:.1f}" for time in times), f"ms; median {median:.1f} ms")
            if not bound or median <= bound:
                break
        else:
            sys.exit(f"{name} takes more than {bound:g} ms")
