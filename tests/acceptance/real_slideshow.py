#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Renders a slideshow of real photos and music to several containers and checks each result.

For every container and both modes: the frame count is the timeline's, sound and picture end within
0.15 s of each other, decoding the whole file prints nothing, and frames from the middle of every
stage match the painter's pictures (see FrameCheck.cpp). Beside each video lies a sheet of its frames
to look at. Too long for the test suite; run by hand.

usage: real_slideshow.py --bin build/dev/bin --photos DIR_OR_FILES... --music FILES... [--out DIR]
"""
import argparse
import json
import os
import re
import subprocess
import sys
import time

FPS, TIME, TRANSITION = 25, 3, 2
# Mean differences of 255 that a transition may show. VP8 in real time blurs large motion of fine
# detail at the bit rate that the format is given.
MOVING_LIMIT = {"webm": "10"}
SHEET = [1, 3.5, 6, 10, 13, 18, 25, 0.5, -1]  # s; below 1: a share of the whole; below 0: the end


def run(command, **kwargs):
    return subprocess.run(command, stdin=subprocess.DEVNULL, text=True, **kwargs)


def probe(video, *arguments):
    result = run(["ffprobe", "-v", "error", *arguments, "-of", "json", video], capture_output=True)
    return json.loads(result.stdout or "{}")


def stream_end(video, kind):
    """The end of a stream in seconds: the last packet's time plus its duration."""
    packets = probe(video, "-select_streams", kind, "-show_entries",
                    "packet=pts_time,duration_time").get("packets", [])
    return max((float(p["pts_time"]) + float(p.get("duration_time", 0))
                for p in packets if "pts_time" in p), default=0.0)


def decode(video):
    """Decodes every frame once: how many there are, and what FFmpeg complains about."""
    decoded = run(["ffmpeg", "-v", "error", "-progress", "-", "-nostats", "-i", video,
                   "-vsync", "passthrough", "-f", "null", "-"], capture_output=True)
    counts = re.findall(r"^frame=(\d+)", decoded.stdout, re.MULTILINE)
    return int(counts[-1]) if counts else 0, decoded.stderr.strip()


def check(video, project, expected_frames, framecheck):
    faults = []
    frames, complaints = decode(video)
    if frames != expected_frames:
        faults.append("frames %d instead of %d" % (frames, expected_frames))
    if complaints:
        faults.append("decoding says: " + complaints[:200])
    picture_end, sound_end = expected_frames / FPS, stream_end(video, "a:0")
    if abs(picture_end - sound_end) > 0.15:
        faults.append("sound ends at %.3f s, picture at %.3f s" % (sound_end, picture_end))
    compared = run([framecheck, project, video, MOVING_LIMIT.get(video.rsplit(".", 1)[1], "3")], capture_output=True,
                   env=dict(os.environ, QT_QPA_PLATFORM="offscreen"))
    if compared.returncode:
        faults.append("frames differ: " + compared.stdout.strip()[-400:])
    return faults, compared.stdout.strip().splitlines()[-1], sound_end


def draw_sheet(video, seconds, file):
    """Puts frames of the title, of captions, photos and transitions on one page."""
    moments = [s if s >= 1 else seconds * s if s > 0 else seconds + s for s in SHEET]
    inputs = [part for moment in moments for part in ("-ss", "%.2f" % moment, "-i", video)]
    scaled = "".join("[%d:v]trim=end_frame=1,setpts=0,scale=640:-2[f%d];" % (i, i)
                     for i in range(len(moments)))
    cells = "".join("[f%d]" % i for i in range(len(moments)))
    layout = "|".join("%s_%s" % (x, y) for y in ("0", "h0", "h0+h1") for x in ("0", "w0", "w0+w1"))
    run(["ffmpeg", "-v", "error", "-y", *inputs, "-filter_complex",
         "%s%sxstack=inputs=%d:layout=%s" % (scaled, cells, len(moments), layout),
         "-frames:v", "1", file], check=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--bin", required=True)
    parser.add_argument("--photos", nargs="+", required=True)
    parser.add_argument("--music", nargs="+", required=True)
    parser.add_argument("--out", default="slideshows")
    parser.add_argument("--formats", nargs="+", default=["mp4", "avi", "mov", "webm"])
    parser.add_argument("--modes", nargs="+", default=["sequential", "parallel"])
    parser.add_argument("--profile", default="original")
    parser.add_argument("--discard", action="store_true", help="remove videos without faults")
    arguments = parser.parse_args()
    tool = os.path.join(arguments.bin, "velmoratool")
    framecheck = os.path.join(arguments.bin, "framecheck")
    os.makedirs(arguments.out, exist_ok=True)
    failed = 0
    for container in arguments.formats:
        for mode in arguments.modes:
            video = os.path.abspath(os.path.join(arguments.out, "%s.%s" % (mode, container)))
            project = video + ".json"
            run([tool, "make", "--photos", *arguments.photos, "--music", *arguments.music,
                 "--output", video, "--size", "1920x1080", "--time", str(TIME),
                 "--title", "Été in the hills", "--transition", "Random", "--transition-length", str(TRANSITION),
                 "--dump-project", project], check=True)
            with open(project, encoding="utf-8") as file:
                document = json.load(file)
            slides = [s for s in document["images"] if s["type"] == "image"]
            for number, slide in enumerate(slides):
                if number % 3 == 0:
                    slide["text"]["text"] = "Photo %d – Größe, 写真" % (number + 1)
            with open(project, "w", encoding="utf-8") as file:
                json.dump(document, file)
            captions = 1 + len(slides[::3])
            frames = FPS * ((1 + len(slides)) * TIME + (len(slides) + captions) * TRANSITION)
            start = time.monotonic()
            command = [tool, "make", "--project", project, "--output", video,
                       "--profile", arguments.profile]
            made = run(command + (["--parallel"] if mode == "parallel" else []),
                       stdout=subprocess.DEVNULL)
            seconds = time.monotonic() - start
            if made.returncode:
                print("%s %s: FAILED to render" % (container, mode))
                failed += 1
                continue
            faults, difference, sound_end = check(video, project, frames, framecheck)
            print("%-5s %-10s %s  %d frames, sound ends at %.3f of %.3f s, %s, rendered in %.0f s" %
                  (container, mode, "FAULTS: " + "; ".join(faults) if faults else "ok",
                   frames, sound_end, frames / FPS, difference, seconds))
            sys.stdout.flush()
            draw_sheet(video, frames / FPS, video + ".png")
            if arguments.discard and not faults:
                os.remove(video)
            failed += bool(faults)
    print("%d of the renders had faults" % failed)
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()
