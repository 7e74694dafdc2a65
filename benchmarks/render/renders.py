# SPDX-License-Identifier: GPL-3.0-or-later
"""What the scripts of this folder share: renders by velmoratool that touch no data of the user."""
import os
import subprocess
import time


def make_command(tool, photos, output, size, still, transition, profile, parallel):
    """@p still and @p transition are lengths in seconds; the photos fade into each other."""
    command = [tool, "make", "--photos", *photos, "--output", output, "--size", "%dx%d" % size,
               "--time", str(still), "--transition", "Cross fade",
               "--transition-length", str(transition), "--profile", profile]
    return command + (["--parallel"] if parallel else [])


def environment(data_dir):
    return dict(os.environ, VELMORA_DATA_DIR=data_dir)


def timed(command, **kwargs):
    """Runs a command to its end and returns its seconds."""
    start = time.monotonic()
    subprocess.run(command, check=True, stdin=subprocess.DEVNULL, **kwargs)
    return time.monotonic() - start
