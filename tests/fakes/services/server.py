# SPDX-License-Identifier: GPL-3.0-or-later
"""The HTTP side: which request is which, failures on demand, the log of requests."""

import json
import socket
import ssl
import struct
import urllib.parse
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer

import pages
from bodies import Body
from services import Services, Wrong, as_json

STEPS = {
    ("GET", "/o/oauth2/v2/auth"): "authorize",
    ("GET", "/1/oauth2/authorize"): "authorize",
    ("POST", "/oauth2/v4/token"): "token",
    ("POST", "/oauth2/token"): "token",
    ("POST", "/upload/youtube/v3/videos"): "upload",
    ("POST", "/upload/drive/v2/files"): "upload",
    ("PUT", "/youtube/v3/videos"): "title",
    ("POST", "/2/files/upload"): "single",
    ("POST", "/2/files/upload_session/start"): "start",
    ("POST", "/2/files/upload_session/append_v2"): "append",
    ("POST", "/2/files/upload_session/finish"): "finish",
    ("GET", "/update"): "update",
}


class Handler(BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"
    server_version = "FakeServices"

    def log_message(self, *_):
        pass

    def do_GET(self):
        self.serve()

    do_POST = do_PUT = do_GET

    def serve(self):
        self.path, _, self.query = self.path.partition("?")
        self.body = Body(self.rfile, int(self.headers.get("Content-Length") or 0))
        self.step = STEPS.get((self.command, self.path))
        try:
            if self.step:
                self.serve_step()
            else:
                self.reply(*self.serve_page())
        except (ConnectionError, ssl.SSLError, TimeoutError):
            self.close_connection = True

    # Requests of the services

    def serve_step(self):
        model = self.server.model
        length = self.body.left
        # The two uses of a token endpoint fail separately.
        text = b""
        if self.step == "token":
            text = self.body.all()
            if b"grant_type=refresh_token" in text:
                self.step = "refresh"
            self.body = Remembered(text)
        entry = {"step": self.step, "method": self.command, "path": self.path, "query": self.query,
                 "headers": dict(self.headers.items()), "length": length,
                 "peer": self.client_address[0]}
        with model.lock:
            model.requests.append(entry)
        action = model.next_failure(self.step)
        if action and not self.fail_first(action):
            return
        try:
            answer = self.answer_step()
        except Wrong as wrong:
            model.problem("%s: %s" % (self.step, wrong))
            answer = as_json(400, {"error": {"message": "The request is wrong: %s" % wrong},
                                   "error_summary": str(wrong)})
        # A client that still sends would lose the answer with the connection.
        if model.hasty and answer[0] == 401:
            self.close_connection = True
        else:
            for _ in self.body.pieces():
                pass
        if action and action.get("drop") == "answer":
            self.cut()
            return
        self.reply(*answer)

    def answer_step(self):
        services = self.server.services
        model = self.server.model
        if self.step == "authorize":
            values = services.authorize(self)
            if model.answer == "page":
                number = next(model.numbers)
                model.waiting[number] = values
                return pages.sign_in_page(values["service"], number)
            return services.redirect(values, model.answer == "allow")
        if self.step in ("token", "refresh"):
            return services.token(self)
        if self.step == "title":
            return services.title(self)
        if self.step == "update":
            return services.update(self)
        if self.path.startswith("/2/"):
            return services.box(self)
        return services.video(self) if "youtube" in self.path else services.drive(self)

    def fail_first(self, action):
        """Does what the action says; whether the request is served all the same."""
        if "delay" in action:
            self.server.model.stopping.wait(action["delay"])
            return True
        if action.get("drop") == "answer":
            return True
        if "drop" in action:
            left = action["drop"]
            while left > 0 and self.body.left > 0:
                left -= len(self.body.read(min(left, 65536)))
            self.cut()
        elif action.get("hang"):
            self.server.model.stopping.wait()
            self.cut()
        else:
            if not action.get("early"):
                for _ in self.body.pieces():
                    pass
            if action.get("endless"):
                self.send_endless()
            else:
                self.send_failure(action)
        return False

    def send_failure(self, action):
        headers = {"Content-Type": action.get("type", "application/json")}
        if action.get("type") == "":
            headers = {}
        headers.update(action.get("headers", {}))
        self.close_connection = bool(action.get("early"))
        body = action.get("body", "")
        text = body if isinstance(body, str) else json.dumps(body)
        self.reply(action["status"], headers, text.encode())

    def send_endless(self):
        self.send_response(200)
        self.send_header("Content-Type", "application/json")
        self.end_headers()
        self.close_connection = True
        while not self.server.model.stopping.is_set():
            self.wfile.write(b" " * 65536)

    def cut(self):
        """Resets the connection, as a lost network does."""
        self.close_connection = True
        self.connection.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
        self.connection.close()

    # Control and pages

    def serve_page(self):
        model = self.server.model
        values = dict(urllib.parse.parse_qsl(self.query))
        if (self.command, self.path) == ("POST", "/_control"):
            return self.control(json.loads(self.body.all()))
        if self.path == "/_log":
            with model.lock:
                return as_json(200, {"requests": model.requests, "problems": model.problems,
                                     "files": model.files, "secrets": model.secrets})
        if self.path == "/_decide":
            query = model.waiting.pop(int(values.get("page", 0)), None)
            if query:
                return self.server.services.redirect(query, values.get("answer") == "allow")
        if self.path == "/_arm":
            return pages.arm(model, self.query)
        if self.path == "/_expire":
            model.access.clear()
            return 302, {"Location": "/"}, b""
        if self.path == "/watch" or self.path.startswith("/home/Apps/"):
            return pages.file_page(model, values.get("v") or values.get("preview") or "")
        if self.path.startswith("/file/d/"):
            return pages.file_page(model, self.path[len("/file/d/"):])
        if self.path == "/":
            return pages.overview(model)
        return 404, {"Content-Type": "text/plain"}, b"There is nothing here."

    def control(self, orders):
        model = self.server.model
        with model.lock:
            if orders.get("reset"):
                model.reset()
            for step, actions in orders.get("fail", {}).items():
                model.failures.setdefault(step, []).extend(actions)
            if orders.get("expire"):
                model.access.clear()
            for name in ("answer", "give_refresh", "hasty", "version"):
                setattr(model, name, orders.get(name, getattr(model, name)))
            grant = orders.get("grant")
            tokens = {} if not grant else {"access_token": model.new_access(grant),
                                           "refresh_token": model.new_refresh(grant)}
        return as_json(200, tokens)

    def reply(self, status, headers, body):
        self.send_response(status)
        for name, value in headers.items():
            self.send_header(name, value)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)


class Remembered(Body):
    """A body that was read already."""

    def __init__(self, data):
        super().__init__(None, len(data))
        self.data = data

    def read(self, size):
        piece, self.data = self.data[:size], self.data[size:]
        self.left -= len(piece)
        return piece


class Server(ThreadingHTTPServer):
    daemon_threads = True
    request_queue_size = 64

    def __init__(self, port, model, tls):
        super().__init__(("127.0.0.1", port), Handler)
        self.model = model
        self.tls = tls
        self.base = "%s://127.0.0.1:%d" % ("https" if tls else "http", self.server_port)
        self.services = Services(model, self.base)

    def finish_request(self, request, client_address):
        # On the connection's own thread: a client that says nothing holds up nobody else.
        if self.tls:
            request.settimeout(30)
            request = self.tls.wrap_socket(request, server_side=True)
            request.settimeout(None)
        try:
            super().finish_request(request, client_address)
        finally:
            request.close()

    def handle_error(self, request, client_address):
        pass  # Connections that are cut are nothing unusual here.
