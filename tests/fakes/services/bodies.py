# SPDX-License-Identifier: GPL-3.0-or-later
"""Bodies of requests, read in pieces: they may be larger than the memory."""

import re

from model import Digest

PIECE = 1024 * 1024


class Body:
    def __init__(self, stream, length):
        self.stream = stream
        self.left = length

    def read(self, size):
        data = self.stream.read(min(size, self.left))
        if not data and self.left > 0 and size > 0:
            raise ConnectionError("the body ended early")
        self.left -= len(data)
        return data

    def pieces(self):
        while self.left > 0:
            yield self.read(PIECE)

    def all(self):
        return b"".join(self.pieces())


def read_line(body):
    line = b""
    while not line.endswith(b"\r\n"):
        if len(line) > 4096:
            raise ValueError("a line of the body is too long")
        line += body.read(1)
    return line[:-2].decode()


def read_headers(body):
    headers = []
    while line := read_line(body):
        name, _, value = line.partition(":")
        headers.append((name.strip().lower(), value.strip()))
    return headers


def read_multipart(body, content_type, small_parts):
    """The small parts as (headers, bytes), then headers and Digest of the last part, the file."""
    match = re.fullmatch(r'multipart/mixed; boundary="([^"]+)"', content_type or "")
    if not match:
        raise ValueError("the content type is %r" % content_type)
    dash = "--" + match.group(1)
    if read_line(body) != dash:
        raise ValueError("the body does not begin with its boundary")
    parts = []
    for _ in range(small_parts):
        headers = read_headers(body)
        end = ("\r\n" + dash + "\r\n").encode()
        data = b""
        while not data.endswith(end):
            data += body.read(1)
            if len(data) > 65536:
                raise ValueError("a part is too long")
        parts.append((headers, data[: -len(end)]))
    headers = read_headers(body)
    end = ("\r\n" + dash + "--\r\n").encode()
    digest = Digest()
    kept = b""
    for piece in body.pieces():
        kept += piece
        digest.update(kept[: -len(end)])
        kept = kept[-len(end):]
    if kept != end:
        raise ValueError("the body does not end with its boundary")
    return parts, headers, digest
