#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Prints what failed in a result file of ctest (JUnit's format): of each test program the functions
that failed with what they said last, instead of all that the program wrote.

usage: show_failures.py RESULTS"""
import re
import sys
import xml.etree.ElementTree

# Qt Test's plain form and its TAP form; what ends a program; the reports of sanitizers.
FAILURE = re.compile(r"^(FAIL!|XPASS|QFATAL|not ok )|Received signal|Sanitizer|runtime error:")
LINES_BEFORE, LINES_AFTER, LAST_LINES = 25, 12, 40


def excerpts(lines):
    """The lines around each failure, in their order and each once."""
    wanted = set()
    for number, line in enumerate(lines):
        if FAILURE.search(line):
            wanted.update(range(number - LINES_BEFORE, number + LINES_AFTER + 1))
    if not wanted:
        return lines[-LAST_LINES:]
    return [line for number, line in enumerate(lines) if number in wanted]


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    for case in xml.etree.ElementTree.parse(sys.argv[1]).iter("testcase"):
        if case.get("status") != "fail":
            continue
        problem = case.find("failure")
        reason = problem.get("message") if problem is not None else None
        print("== %s failed after %s s: %s" % (case.get("name"), case.get("time"), reason or "-"))
        lines = (case.findtext("system-out") or "").splitlines()
        print("\n".join(line[:400] for line in excerpts(lines)))


if __name__ == "__main__":
    main()
