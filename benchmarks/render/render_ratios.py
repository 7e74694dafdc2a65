#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Times whole renders against what encoding alone costs, and against MLT's melt.

Every figure is a ratio of wall times measured in one run, because machines differ and are noisy:

  floor       one ffmpeg process encoding the very frames of the finished video, with the options
              of the profile, from raw video in the page cache. "Plays everywhere" spares the search
              for motion in stills and fades, which the floor and melt do only with --motionless
  sequential  velmoratool make                      / floor
  parallel    velmoratool make --parallel           / floor
  melt        melt with dissolves and the same x264 options, same length / floor

usage: render_ratios.py --tool build/bench/bin/velmoratool [--slides 8] [--rounds 3] PHOTO...
"""
import argparse
import os
import shutil
import statistics
import subprocess
import sys
import tempfile

from renders import environment, make_command, timed

FPS = 25
SIZE = (1920, 1080)
STILL_SECONDS = 3
TRANSITION_SECONDS = 2
# The picture options of the two profiles for .mp4 at 1080 lines, as the renderer passes them;
# velmoratool's log shows them ("Starting ffmpeg.exe ...").
OPTIONS = {
    "original": ["-b:v", "10M", "-crf", "0", "-vcodec", "h264", "-threads", "4"],
    "everywhere": None,  # read from the log of the render that was measured
}

# What the renderer adds where nothing moves, as all through this show, which has fades only.
MOTIONLESS = {"-subq", "-me_method", "-chromaoffset"}


def make(tool, photos, output, profile, parallel, data_dir):
    command = make_command(tool, photos, output, SIZE, STILL_SECONDS, TRANSITION_SECONDS, profile,
                           parallel)
    return timed(command, env=environment(data_dir), stdout=subprocess.DEVNULL)


def options_from_log(data_dir, motionless):
    """The picture options of the newest sequence segment in the tool's log."""
    folder = os.path.join(data_dir, "log")
    newest = max((os.path.join(folder, name) for name in os.listdir(folder)), key=os.path.getmtime)
    with open(newest, encoding="utf-8", errors="replace") as log:
        lines = [line for line in log if "Starting ffmpeg.exe" in line and "%05d.jpg" in line]
    words = lines[-1].split("Starting ffmpeg.exe ", 1)[1].strip(" ()\n").split(", ")
    tail = words[words.index("-i") + 2:]
    picture = []
    skip_value = {"-acodec", "-s", "-ar", "-cpu-used", "-r", "-strict", "-frames:v",
                  "-video_track_timescale"}
    index = 0
    while index < len(tail) - 1:
        if tail[index] in skip_value or (tail[index] in MOTIONLESS and not motionless):
            index += 2
        elif tail[index] in {"-y", "-an"}:
            index += 1
        elif tail[index].startswith("-"):
            picture += tail[index:index + 2]
            index += 2
        else:
            index += 1
    return picture


def floor(video, options, work):
    raw = os.path.join(work, "frames.yuv")
    subprocess.run(["ffmpeg", "-v", "error", "-y", "-i", video, "-an", "-f", "rawvideo",
                    "-pix_fmt", "yuvj420p", raw], check=True, stdin=subprocess.DEVNULL)
    command = ["ffmpeg", "-v", "error", "-y", "-f", "rawvideo", "-pix_fmt", "yuvj420p",
               "-s", "%dx%d" % SIZE, "-r", str(FPS), "-i", raw, "-an", *options,
               os.path.join(work, "floor.mp4")]
    return lambda: timed(command)


def melt_command(photos, options, output):
    """The same length as the slideshow: a dissolve overlaps the end of one photo and the start of
    the next, so photos in the middle stand for still + two transitions."""
    still, change = STILL_SECONDS * FPS, TRANSITION_SECONDS * FPS
    command = ["melt", "-silent"]
    for index, photo in enumerate(photos):
        ends = (index == 0) + (index == len(photos) - 1)
        command += [photo, "in=0", "out=%d" % (still + change * (2 - ends) - 1)]
        if index:
            command += ["-mix", str(change), "-mixer", "luma"]
    consumer = {"vcodec": "libx264", "an": "1", "width": SIZE[0], "height": SIZE[1],
                "frame_rate_num": FPS, "frame_rate_den": 1, "progressive": 1,
                "sample_aspect_num": 1, "sample_aspect_den": 1, "real_time": -2}
    pairs = dict(zip(options[::2], options[1::2]))
    for key, value in pairs.items():
        name = key.lstrip("-").split(":v")[0]
        if name in {"crf", "threads", "preset", "maxrate", "bufsize", "subq", "me_method",
                    "chromaoffset"}:
            consumer[name] = value
    if pairs.get("-crf") == "0":
        # The frames that the table's options encode have the full range of JPEG pictures; with the
        # limited range there would be less to encode.
        consumer["pix_fmt"] = "yuvj420p"
        consumer["color_range"] = "pc"
    return command + ["-consumer", "avformat:" + output,
                      *("%s=%s" % item for item in consumer.items())]


def frames_of(video):
    return int(subprocess.run(
        ["ffprobe", "-v", "error", "-select_streams", "v", "-count_packets", "-show_entries",
         "stream=nb_read_packets", "-of", "csv=p=0", video],
        check=True, capture_output=True, text=True).stdout.split(",")[0].strip())


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--tool", required=True)
    parser.add_argument("--slides", type=int, default=8)
    parser.add_argument("--rounds", type=int, default=3)
    parser.add_argument("--profiles", nargs="+", default=["original", "everywhere"])
    parser.add_argument("--motionless", action="store_true",
                        help="floor and melt spare the search for motion too")
    parser.add_argument("photos", nargs="+")
    arguments = parser.parse_args()
    photos = [os.path.abspath(photo) for photo in arguments.photos[:arguments.slides]]
    if len(photos) < 2:
        sys.exit("Two photos at least are needed.")
    for profile in arguments.profiles:
        with tempfile.TemporaryDirectory() as work:
            measure(arguments, photos, profile, work)


def measure(arguments, photos, profile, work):
    data_dir = os.path.join(work, "data")
    video = os.path.join(work, "ours.mp4")
    melted = os.path.join(work, "melt.mp4")
    make(arguments.tool, photos, video, profile, True, data_dir)
    options = OPTIONS[profile] or options_from_log(data_dir, arguments.motionless)
    encode_only = floor(video, options, work)
    runs = {
        "floor": encode_only,
        "sequential": lambda: make(arguments.tool, photos, video, profile, False, data_dir),
        "parallel": lambda: make(arguments.tool, photos, video, profile, True, data_dir),
    }
    if shutil.which("melt"):
        command = melt_command(photos, options, melted)
        runs["melt"] = lambda: timed(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                     env=dict(os.environ, QT_QPA_PLATFORM="offscreen"))
    times = {name: [] for name in runs}
    for _ in range(arguments.rounds):
        for name, run in runs.items():
            times[name].append(run())
    base = statistics.median(times["floor"])
    print("profile %s: %d slides, %d frames, options %s" %
          (profile, len(photos), frames_of(video), " ".join(options)))
    for name, values in times.items():
        value = statistics.median(values)
        print("  %-11s %7.2f s  %5.2f x floor   (runs: %s)" %
              (name, value, value / base, ", ".join("%.2f" % v for v in values)))
    if "melt" in times:
        print("  %-11s %d frames; parallel / melt = %.2f" % (
            "melt", frames_of(melted),
            statistics.median(times["parallel"]) / statistics.median(times["melt"])))
    sys.stdout.flush()


if __name__ == "__main__":
    main()
