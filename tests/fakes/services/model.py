# SPDX-License-Identifier: GPL-3.0-or-later
"""What the fake services remember: sign-ins, tokens, uploads, the failures to come."""

import base64
import hashlib
import itertools
import sys
import threading

CHUNK = 4 * 1024 * 1024

CLIENTS = {
    # Characters that must be encoded in forms and addresses.
    "youtube": ("video client&1", "video+secret=&%"),
    "googledrive": ("drive client/2", "drive+secret=&%"),
    "dropbox": ("box client?3", "box+secret=&%"),
}
FOLDER = "Velmora Videos"


class Digest:
    """Length and SHA-256 of bytes that come in pieces."""

    def __init__(self):
        self.size = 0
        self.hash = hashlib.sha256()

    def update(self, data):
        self.size += len(data)
        self.hash.update(data)

    def copy(self):
        other = Digest()
        other.size, other.hash = self.size, self.hash.copy()
        return other


class Model:
    def __init__(self):
        self.lock = threading.RLock()
        self.stopping = threading.Event()
        self.reset()

    def reset(self):
        with self.lock:
            self.numbers = itertools.count(1)
            self.failures = {}  # step -> list of actions
            self.requests = []  # dicts, in order
            self.problems = []  # what was wrong with them
            self.sign_ins = {}  # code -> dict
            self.waiting = {}  # number of a page -> query of the sign-in
            self.access = {}  # access token -> service
            self.refresh = {}  # refresh token -> service
            self.secrets = []  # codes and tokens that were handed out
            self.files = []  # dicts of finished uploads
            self.sessions = {}  # identifier -> Digest
            self.answer = "page"  # to a sign-in: "page", "allow" or "deny"
            self.give_refresh = True
            self.hasty = False  # refuses expired tokens without reading the rest of the request
            self.version = "99.0.0"

    def problem(self, text):
        with self.lock:
            self.problems.append(text)
        print("Fake services: " + text, file=sys.stderr, flush=True)

    def next_failure(self, step):
        """The action for this request, or None. {"times": n} serves n requests."""
        with self.lock:
            queue = self.failures.get(step)
            if not queue:
                return None
            action = queue[0]
            action["times"] = action.get("times", 1) - 1
            if action["times"] <= 0:
                queue.pop(0)
            return action

    def new_code(self, query):
        with self.lock:
            # As real ones, it holds characters that need encoding.
            code = "4/0A+%d=&%%x" % next(self.numbers)
            self.sign_ins[code] = query
            self.secrets.append(code)
            return code

    def new_access(self, service):
        with self.lock:
            token = "access-%s-%d-plain/text+token=" % (service, next(self.numbers))
            self.access[token] = service
            self.secrets.append(token)
            return token

    def new_refresh(self, service):
        with self.lock:
            token = "1//refresh-%s-%d+secret=" % (service, next(self.numbers))
            self.refresh[token] = service
            self.secrets.append(token)
            return token

    def store(self, service, title, digest):
        with self.lock:
            entry = {
                "id": "file-%d_x" % next(self.numbers),
                "service": service,
                "title": title,
                "size": digest.size,
                "sha256": digest.hash.hexdigest(),
            }
            if service == "dropbox":
                # Storing a file under a name that exists replaces it.
                self.files = [file for file in self.files if file["title"] != title]
            self.files.append(entry)
            return entry


def challenge_of(verifier):
    digest = hashlib.sha256(verifier.encode()).digest()
    return base64.urlsafe_b64encode(digest).rstrip(b"=").decode()
