#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks that long slideshows cost no more memory, and no more time per slide, than short ones.

  memory  the largest resident memory, at 1920x1080, of velmoratool itself and of its encoders, for
          50 and 500 slides: at most 350 MB for velmoratool, and the same for both
  time    400 slides / 200 slides, at most 2.1; with small pictures, so that what each slide costs
          beside its pixels shows

The peaks are the kernel's high-water marks, read while the processes run. The rounds of the short
and the long show alternate. The exit code is 0 if all limits hold, else 1. Takes hours: --rounds,
--memory-slides and --time-slides make it shorter.

usage: render_growth.py --tool build/bench/bin/velmoratool [--rounds 3] PHOTO...
"""
import argparse
import glob
import os
import re
import statistics
import subprocess
import sys
import tempfile
import time

from renders import environment, make_command, timed

MEMORY_SIZE = (1920, 1080)
TIME_SIZE = (640, 360)
STILL_SECONDS = 1
TRANSITION_SECONDS = 1
MEMORY_LIMIT = 350  # MB
SAME = 1.2  # The peaks of one and the same show differ by up to a sixth from run to run.
TIME_LIMIT = 2.1
POLL_SECONDS = 0.02


def content(path):
    try:
        with open(path, encoding="utf-8", errors="replace") as file:
            return file.read()
    except OSError:  # The process has ended.
        return ""


def peak_of(pid):
    """Of a running process, in MB."""
    found = re.search(r"^VmHWM:\s+(\d+) kB", content("/proc/%s/status" % pid), re.MULTILINE)
    return int(found.group(1)) * 1024 / 1e6 if found else 0


def encoders_of(pid):
    for children in glob.glob("/proc/%d/task/*/children" % pid):
        for child in content(children).split():
            # Before it has begun, a child is a copy of its parent.
            if content("/proc/%s/comm" % child).strip() == "ffmpeg":
                yield child


def peaks(command, env):
    """Runs a render; the peaks of its own process and of the largest encoder."""
    process = subprocess.Popen(command, env=env, stdin=subprocess.DEVNULL,
                               stdout=subprocess.DEVNULL)
    own = encoder = 0
    while process.poll() is None:
        own = max(own, peak_of(process.pid))
        encoder = max([encoder, *map(peak_of, encoders_of(process.pid))])
        time.sleep(POLL_SECONDS)
    if process.returncode:
        sys.exit("The render failed: %s" % " ".join(command[:2]))
    return own, encoder


class Shows:
    """Slideshows of a given number of slides, made of the photos over and over."""

    def __init__(self, arguments, work):
        self.arguments = arguments
        self.work = work

    def command(self, slides, size):
        photos = [os.path.abspath(p) for p in self.arguments.photos]
        repeated = (photos * (slides // len(photos) + 1))[:slides]
        return make_command(self.arguments.tool, repeated, os.path.join(self.work, "show.mp4"),
                            size, STILL_SECONDS, TRANSITION_SECONDS, self.arguments.profile,
                            not self.arguments.sequential)

    def environment(self):
        return environment(os.path.join(self.work, "data"))


def holds(what, value, limit, unit=""):
    kept = value <= limit
    print("  %-38s %7.2f%s, limit %g: %s" %
          (what, value, unit, limit, "ok" if kept else "EXCEEDED"))
    return kept


def shown(values, form="%.0f"):
    return ", ".join(form % value for value in values)


def check_memory(shows, counts, rounds):
    own = {count: [] for count in counts}
    encoder = {count: [] for count in counts}
    for _ in range(rounds):
        for count in counts:
            mine, theirs = peaks(shows.command(count, MEMORY_SIZE), shows.environment())
            own[count].append(mine)
            encoder[count].append(theirs)
    print("memory at %dx%d, MB" % MEMORY_SIZE)
    for count in counts:
        print("  %4d slides: velmoratool %.0f (runs: %s), encoder %.0f (runs: %s)" %
              (count, max(own[count]), shown(own[count]),
               max(encoder[count]), shown(encoder[count])))
    usual = [statistics.median(own[count]) for count in counts]
    kept = holds("velmoratool's peak", max(map(max, own.values())), MEMORY_LIMIT, " MB")
    return holds("%d slides / %d slides" % (counts[1], counts[0]),
                 usual[1] / usual[0], SAME) and kept


def check_time(shows, counts, rounds):
    times = {count: [] for count in counts}
    for _ in range(rounds):
        for count in counts:
            times[count].append(timed(shows.command(count, TIME_SIZE), env=shows.environment(),
                                      stdout=subprocess.DEVNULL))
    print("time at %dx%d, s" % TIME_SIZE)
    for count in counts:
        print("  %4d slides: %.2f (runs: %s)" %
              (count, statistics.median(times[count]), shown(times[count], "%.2f")))
    limit = TIME_LIMIT * counts[1] / counts[0] / 2  # for other numbers than 200 and 400
    return holds("%d slides / %d slides" % (counts[1], counts[0]),
                 statistics.median(times[counts[1]]) / statistics.median(times[counts[0]]), limit)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--tool", required=True)
    parser.add_argument("--rounds", type=int, default=3)
    parser.add_argument("--memory-slides", type=int, nargs=2, default=[50, 500])
    parser.add_argument("--time-slides", type=int, nargs=2, default=[200, 400])
    parser.add_argument("--profile", default="original")
    parser.add_argument("--sequential", action="store_true",
                        help="work on one slide at a time, which takes less memory")
    parser.add_argument("photos", nargs="+")
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory() as work:
        shows = Shows(arguments, work)
        kept = [check_memory(shows, arguments.memory_slides, arguments.rounds)]
        sys.stdout.flush()
        kept.append(check_time(shows, arguments.time_slides, arguments.rounds))
    sys.exit(0 if all(kept) else 1)


if __name__ == "__main__":
    main()
