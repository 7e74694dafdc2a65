#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Feeds velmoratool what a render cannot use and checks how it refuses.

Every case must end with its exit code and a message that names the file and the reason, leave an
older video of that name untouched, and leave nothing behind: no file in the output folder, none in
the cache, no ffmpeg process. Prints one row of a table per case. Needs root, since it mounts small
disks and takes rights away; takes some minutes, so it is run by hand.

usage: bad_input.py --bin build/release/bin [--only REGEX]
"""
import argparse
import json
import os
import re
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import time
import zlib

OLD_VIDEO = b"an older video"
TINY = ["--size", "160x90", "--time", "1", "--transition-length", "1"]
LONG = ["--size", "1280x720", "--time", "20", "--transition-length", "20"]


def png(path, side, channels=3, rows=None):
    """A black square of @p side pixels, of which only @p rows rows are there."""
    def chunk(kind, data):
        return (struct.pack(">I", len(data)) + kind + data +
                struct.pack(">I", zlib.crc32(kind + data)))
    packer = zlib.compressobj(1)
    row = bytes(1 + side * channels)
    data = b"".join(packer.compress(row) for _ in range(side if rows is None else rows))
    header = struct.pack(">IIBBBBB", side, side, 8, {1: 0, 3: 2}[channels], 0, 0, 0)
    with open(path, "wb") as file:
        file.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) +
                   chunk(b"IDAT", data + packer.flush()) + chunk(b"IEND", b""))


class World:
    """A folder with input files, an output folder and a data folder of its own."""

    def __init__(self, bin_folder):
        self.tool = os.path.join(bin_folder, "velmoratool")
        self.folder = tempfile.mkdtemp(prefix="velmora-bad-input-")
        os.chmod(self.folder, 0o777)
        self.mounts = []
        self.ffmpeg = shutil.which("ffmpeg")
        for name in ("out", "data", "empty", "data-nobody"):
            os.mkdir(self.path(name), 0o777)
            os.chmod(self.path(name), 0o777)
        self.run_ffmpeg("-f", "lavfi", "-i", "testsrc2=size=1600x1200", "-frames:v", "1", "good.jpg")
        for name in ("noise1.png", "noise2.png"):
            self.write("noise.raw", os.urandom(3 * 1280 * 720))
            self.run_ffmpeg("-f", "rawvideo", "-pix_fmt", "rgb24", "-s", "1280x720", "-i",
                            "noise.raw", name)
        self.run_ffmpeg("-f", "lavfi", "-i", "sine=duration=3", "good.m4a")

    def path(self, name):
        return os.path.join(self.folder, name)

    def run_ffmpeg(self, *arguments):
        subprocess.run([self.ffmpeg, "-v", "error", "-y", *arguments], cwd=self.folder, check=True,
                       stdin=subprocess.DEVNULL)

    def write(self, name, data):
        with open(self.path(name), "wb") as file:
            file.write(data)
        return self.path(name)

    def mount(self, name, options):
        os.makedirs(self.path(name), exist_ok=True)
        subprocess.run(["mount", "-t", "tmpfs", "-o", options, "tmpfs", self.path(name)],
                       check=True)
        self.mounts.append(self.path(name))
        return self.path(name)

    def environment(self, data="data", **changes):
        changed = dict(os.environ, VELMORA_DATA_DIR=self.path(data), LC_ALL="C.UTF-8")
        changed.update(changes)
        return changed

    def encoders(self):
        """The living ffmpeg processes of this world's renders."""
        found = []
        for pid in filter(str.isdigit, os.listdir("/proc")):
            try:
                with open("/proc/%s/environ" % pid, "rb") as file:
                    ours = self.folder.encode() in file.read()
                with open("/proc/%s/stat" % pid) as file:
                    name, state = re.match(r"\d+ \((.*)\) (\S)", file.read()).groups()
            except OSError:
                continue
            if ours and name in ("ffmpeg", "transcoder") and state != "Z":
                found.append(int(pid))
        return found

    def listing(self, name):
        return sorted(os.path.relpath(os.path.join(folder, file), self.folder)
                      for folder, folders, files in os.walk(self.path(name))
                      for file in files + folders)

    def caches(self, data="data"):
        return [name for name in self.listing(data) if "/cache/data/render-" in name or
                name.endswith(".lock")]

    def remove(self):
        for mount in self.mounts:
            subprocess.run(["umount", "-l", mount], check=False)
        shutil.rmtree(self.folder, ignore_errors=True)


class Result:
    def __init__(self, code, text, memory=0):
        self.code, self.text, self.memory = code, text.strip(), memory


def wait_until(what, seconds=120):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if what():
            return True
        time.sleep(0.02)
    return False


class Case:
    """One row: what is run, and what is expected of it."""

    def __init__(self, name, code, *expected, kept=True, data="data", out="out"):
        self.name, self.code, self.expected = name, code, expected
        self.kept, self.data, self.out = kept, data, out

    def faults(self, world, result, before):
        found = []
        if result.code != self.code:
            found.append("exit code %s instead of %s" % (result.code, self.code))
        found += ["does not say \"%s\"" % part for part in self.expected if part not in result.text]
        if self.kept and world.listing(self.out) != before:
            found.append("output folder: %s" % world.listing(self.out))
        old = world.path("out/old.mp4")
        with open(old, "rb") as file:
            if file.read() != OLD_VIDEO:
                found.append("the older video is gone")
        if world.caches(self.data):
            found.append("cache: %s" % world.caches(self.data)[:3])
        if not wait_until(lambda: not world.encoders(), 3):
            found.append("ffmpeg still runs")
        return found


def run(world, arguments, user=None, data="data", **changes):
    command = [world.tool] + arguments
    if user:
        data += "-" + user
        command = ["runuser", "-u", user, "--"] + command
    process = subprocess.Popen(command, cwd=world.folder, env=world.environment(data, **changes),
                               stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                               stderr=subprocess.STDOUT)
    text = process.stdout.read().decode("utf-8", "replace")
    _, status, usage = os.wait4(process.pid, 0)
    return Result(os.waitstatus_to_exitcode(status), text, usage.ru_maxrss // 1024)


def make(world, photos, *more, output="out/old.mp4", **options):
    return run(world, ["make", "--photos", *photos, "--output", output, *TINY, *more], **options)


def start_long(world, output="out/old.mp4", data="data", worker=False):
    """A render that takes long, after its first frames."""
    arguments = ["make", "--photos", *["noise1.png", "noise2.png"] * 4, "--output", output, *LONG]
    if worker:
        run(world, arguments + ["--dump-project", "request.json"])
        arguments = ["--session_id", "bad-input", "--cache", world.path(data + "/cache/data"),
                     "--request", "request.json"]
    else:
        arguments.append("--json")
    process = subprocess.Popen([world.tool] + arguments, cwd=world.folder,
                               env=world.environment(data), stdin=subprocess.DEVNULL,
                               stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    for line in process.stdout:
        if b'"progress"' in line:
            break
    wait_until(world.encoders)
    return process


def pictures(world):
    png(world.path("bomb.png"), 30000)
    png(world.path("grey-bomb.png"), 30000, channels=1)
    png(world.path("short.png"), 400, rows=100)
    with open(world.path("good.jpg"), "rb") as file:
        whole = file.read()
    world.write("cut.jpg", whole[:len(whole) // 2])
    world.write("text.jpg", b"This is no picture.\n" * 50)
    world.write("zero.png", b"")
    world.write("secret.jpg", whole)
    os.chmod(world.path("secret.jpg"), 0o600)
    bad = [("missing photo", "gone.jpg", "does not exist"),
           ("text file named .jpg", "text.jpg", "picture"),
           ("truncated JPEG", "cut.jpg", ""),
           ("PNG with missing rows", "short.png", ""),
           ("0-byte PNG", "zero.png", "empty"),
           ("30000x30000 PNG bomb", "bomb.png", "30000"),
           ("30000x30000 grey PNG bomb", "grey-bomb.png", "30000")]
    for name, file, reason in bad:
        yield Case(name, 1, file, reason), lambda file=file: make(world, ["good.jpg", file])
    yield (Case("all of them at once", 1, *[file for _, file, _ in bad[1:]]),
           lambda: make(world, ["good.jpg"] + [file for _, file, _ in bad[1:]]))
    yield (Case("photo without the right to read it", 1, "secret.jpg"),
           lambda: make(world, ["good.jpg", "secret.jpg"], user="nobody"))


def folders(world):
    os.mkdir(world.path("closed"), 0o700)
    shutil.copy(world.path("good.jpg"), world.path("closed"))
    yield (Case("unreadable folder", 1, "closed", "cannot be read"),
           lambda: make(world, ["closed"], user="nobody"))
    yield Case("empty folder", 1, "empty", "no photos"), lambda: make(world, ["empty"])
    yield (Case("output folder missing", 1, "nowhere", "does not exist"),
           lambda: make(world, ["good.jpg"], output="nowhere/a.mp4"))
    yield (Case("output folder read-only for the user", 1, "closed", "cannot be written"),
           lambda: make(world, ["good.jpg"], output="closed/a.mp4", user="nobody"))
    world.mount("readonly", "size=1m,ro")
    yield (Case("output disk read-only", 1, "readonly", "ead-only", out="readonly"),
           lambda: make(world, ["good.jpg"], output="readonly/a.mp4"))
    world.mount("full", "size=2m,mode=777")
    yield (Case("output disk too small", 1, "full", "is full", out="full"),
           lambda: run(world, ["make", "--photos", "noise1.png", "noise2.png", "--output",
                               "full/a.mp4", "--size", "1280x720", "--time", "2",
                               "--transition-length", "1"]))
    subprocess.run(["dd", "if=/dev/zero", "of=" + world.path("full/filler")], check=False,
                   stderr=subprocess.DEVNULL)
    yield (Case("output disk full from the start", 1, "full", "disk is full", out="full"),
           lambda: make(world, ["good.jpg"], output="full/a.mp4"))
    yield (Case("output name of 300 characters", 1, "too long"),
           lambda: make(world, ["good.jpg"], output="out/%s.mp4" % ("n" * 296)))
    yield (Case("output is a folder", 1, "folder.mp4", "folder"),
           lambda: (os.makedirs(world.path("folder.mp4"), exist_ok=True),
                    make(world, ["good.jpg"], output="folder.mp4"))[1])
    world.mount("small", "size=8m,mode=777")
    yield (Case("cache disk full", 1, "small", "is full", data="small"),
           lambda: run(world, ["make", "--photos", "noise1.png", "noise2.png", "--output",
                               "out/old.mp4", "--size", "1280x720", "--time", "2",
                               "--transition-length", "2"], data="small"))
    world.mount("sealed", "size=1m,ro")
    yield (Case("cache disk read-only", 1, "sealed", "ead-only", data="sealed"),
           lambda: make(world, ["good.jpg"], data="sealed"))


def sounds(world):
    with open(world.path("good.m4a"), "rb") as file:
        whole = file.read()
    world.write("cut.m4a", whole[:len(whole) // 2])
    world.write("noise.mp3", b"This is no music.\n" * 500)
    world.write("zero.wav", b"")
    for name, file in (("missing sound file", "gone.ogg"), ("cut sound file", "cut.m4a"),
                       ("text file named .mp3", "noise.mp3"), ("0-byte WAV", "zero.wav")):
        yield (Case(name, 1, file),
               lambda file=file: make(world, ["good.jpg"], "--music", "good.m4a", file))


def programs(world):
    yield (Case("ffmpeg missing", 1, "FFmpeg"),
           lambda: make(world, ["good.jpg"], PATH="/nowhere", VELMORA_FFMPEG=""))
    world.write("old-ffmpeg", b"#!/bin/sh\necho 'ffmpeg version 2.8.4 Copyright'\n")
    os.chmod(world.path("old-ffmpeg"), 0o755)
    yield (Case("ffmpeg too old", 1, "FFmpeg", "2.8"),
           lambda: make(world, ["good.jpg"], PATH="/nowhere",
                        VELMORA_FFMPEG=world.path("old-ffmpeg")))

    def encoder_killed(worker):
        process = start_long(world, worker=worker)
        for pid in world.encoders():
            os.kill(pid, signal.SIGKILL)
        text = process.stdout.read().decode()
        return Result(process.wait(), text)
    yield Case("ffmpeg killed", 1, "ended unexpectedly"), lambda: encoder_killed(False)
    yield (Case("ffmpeg of the editor's worker killed", 1, "ended unexpectedly"),
           lambda: encoder_killed(True))

    def killed(worker):
        process = start_long(world, worker=worker)
        process.kill()
        process.stdout.read()
        code = process.wait()
        gone = wait_until(lambda: not world.encoders(), 3)
        left = [name for name in world.caches() if name.count("/") == 3]
        next_start = make(world, ["good.jpg"], output="out/next.mp4")
        os.remove(world.path("out/next.mp4"))
        return Result(code, "ffmpeg ended: %s; left until the next start: %s; which ended with %d"
                      % (gone, ", ".join(left) or "nothing", next_start.code))
    for worker in (False, True):
        yield (Case("%s killed with SIGKILL" % ("worker" if worker else "command"), -9,
                    "ffmpeg ended: True", "ended with 0"), lambda worker=worker: killed(worker))

    def two_at_once():
        first = start_long(world)
        second = make(world, ["good.jpg"])
        alive = first.poll() is None
        first.terminate()
        first.stdout.read()
        return Result(second.code, second.text + " (the first went on: %s, then ended with %d)"
                      % (alive, first.wait()))
    yield (Case("two renders to one video", 1, "Another render", "went on: True", "ended with 3"),
           two_at_once)


def requests(world):
    def worker(name, content):
        file = world.write(name, content) if content is not None else name
        return run(world, ["--session_id", "bad-input", "--cache", world.path("data/cache/data"),
                           "--request", file])
    document = {"name": "x", "format": "mp4", "file_name": world.path("out/old.mp4"),
                "resolution": "160x90", "images": [{"type": "image", "file_name": 7, "time": 1e99},
                                                   ["image"], None]}
    for name, content, code in (
            ("missing", None, 2), ("empty", b"", 2), ("no JSON", b"slides", 2),
            ("cut off", b'{"name":"x","images":[{', 2), ("a list", b"[1,2]", 2),
            ("broken UTF-8", b'{"name":"\xff\xfe","images":[]}', 2),
            ("wrong types", json.dumps(document).encode(), 2),
            ("nested 100,000 deep", b'{"images":' + b"[" * 100000, 2)):
        file = "request-%s.json" % name.replace(" ", "-")
        yield (Case("request file: " + name, code, file),
               lambda file=file, content=content: worker(file, content))


def counts(world):
    def empty():
        make(world, ["good.jpg"], "--dump-project", "none.json")
        with open(world.path("none.json")) as file:
            document = json.load(file)
        document["images"] = []
        world.write("none.json", json.dumps(document).encode())
        return run(world, ["make", "--project", "none.json"])
    yield Case("0 slides", 2, "no slides"), empty

    def rendered(count, *more):
        os.makedirs(world.path("many"), exist_ok=True)
        names = ["many/photo%d.jpg" % number for number in range(count)]
        for name in names:
            if not os.path.exists(world.path(name)):
                os.link(world.path("good.jpg"), world.path(name))
        start = time.monotonic()
        video = world.path("out/many.mp4")
        result = run(world, ["make", "--photos", *names, "--output", video, "--size", "320x180",
                             "--time", "1", "--transition-length", "1", "--transition", "Random",
                             *more])
        seconds = time.monotonic() - start
        frames = subprocess.run(
            ["ffprobe", "-v", "error", "-count_packets", "-select_streams", "v:0", "-show_entries",
             "stream=nb_read_packets", "-of", "csv=p=0", video], capture_output=True, text=True)
        os.remove(video)
        return Result(result.code, "%s frames of %d, %d MB, %.0f s" % (
            frames.stdout.strip(), 25 * (2 * count - 1), result.memory, seconds))
    for count, more in ((1, []), (1000, []), (1000, ["--parallel"])):
        yield (Case("%d slide(s) %s" % (count, " ".join(more)), 0,
                    "%d frames" % (25 * (2 * count - 1))),
               lambda count=count, more=more: rendered(count, *more))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--bin", required=True)
    parser.add_argument("--only", default=".")
    arguments = parser.parse_args()
    world = World(os.path.abspath(arguments.bin))
    failed = 0
    print("| case | exit code | message | verdict |\n|---|---|---|---|")
    try:
        for group in (pictures, folders, sounds, programs, requests, counts):
            for case, action in group(world):
                if not re.search(arguments.only, case.name):
                    continue
                world.write("out/old.mp4", OLD_VIDEO)
                before = world.listing(case.out)
                result = action()
                faults = case.faults(world, result, before)
                failed += bool(faults)
                text = result.text.replace(world.folder, "").replace("\n", "<br>")
                print("| %s | %d | %s (%d MB) | %s |" % (case.name, result.code, text[-700:],
                                                 result.memory, "; ".join(faults) or "ok"))
                sys.stdout.flush()
    finally:
        world.remove()
    print("%d cases failed" % failed)
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()
