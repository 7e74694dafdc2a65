# SPDX-License-Identifier: GPL-3.0-or-later
"""The requests of the three services and of the update check: each is checked to the last byte and
answered as the real service would. A function returns (status, headers, body)."""

import json
import re
import urllib.parse

from bodies import read_multipart
from model import CHUNK, CLIENTS, FOLDER, Digest, challenge_of

OFFLINE = "&access_type=offline&prompt=consent"


class Wrong(Exception):
    """The request is not what it must be."""


def require(condition, text):
    if not condition:
        raise Wrong(text)


def expect(found, wanted):
    require(found == wanted, "%r stands where %r should" % (found, wanted))


def as_json(status, data):
    return status, {"Content-Type": "application/json; charset=utf-8"}, json.dumps(data).encode()


def encoded(text):
    return urllib.parse.quote(text, safe="-._~")


def single_values(query):
    pairs = urllib.parse.parse_qsl(query, keep_blank_values=True, strict_parsing=True)
    require(len(dict(pairs)) == len(pairs), "an item of the query comes twice: " + query)
    return dict(pairs)


class Services:
    def __init__(self, model, base):
        self.model = model
        self.base = base  # the server's own address

    # Sign-in

    def authorize(self, request):
        box = request.path == "/1/oauth2/authorize"
        values = single_values(request.query)
        keys = {"response_type", "client_id", "redirect_uri", "state", "code_challenge",
                "code_challenge_method", "access_type", "prompt"}
        expect(set(values), keys | (set() if box else {"scope"}))
        require(request.query.endswith(OFFLINE), "the sign-in's address does not end with " + OFFLINE)
        expect(values["response_type"], "code")
        expect(values["code_challenge_method"], "S256")
        expect(len(values["code_challenge"]), 43)
        require(len(values["state"]) >= 22, "the state can be guessed")
        pattern = r"http://localhost:\d+/cb" if box else r"http://127\.0\.0\.1:\d+/"
        require(re.fullmatch(pattern, values["redirect_uri"]), "redirect to " + values["redirect_uri"])
        values["service"] = self.service_of_sign_in(values, box)
        if box:
            written = "client_id=%s&redirect_uri=%s&response_type=code" % (
                encoded(values["client_id"]), encoded(values["redirect_uri"]))
            require(request.query.startswith(written), "the query begins otherwise than " + written)
        return values

    def service_of_sign_in(self, values, box):
        scopes = {self.base + "/auth/youtube": "youtube", self.base + "/auth/drive.file": "googledrive"}
        service = "dropbox" if box else scopes.get(values["scope"])
        require(service, "the scope is " + values.get("scope", ""))
        expect(values["client_id"], CLIENTS[service][0])
        return service

    def redirect(self, values, allowed):
        answer = {"state": values["state"]}
        answer.update({"code": self.model.new_code(values)} if allowed else {"error": "access_denied"})
        target = values["redirect_uri"] + "?" + urllib.parse.urlencode(answer)
        return 302, {"Location": target}, b""

    def token(self, request):
        expect(request.headers.get("Content-Type"), "application/x-www-form-urlencoded")
        text = request.body.all().decode()
        values = single_values(text)
        box = request.path == "/oauth2/token"
        if values.get("grant_type") == "refresh_token":
            return self.refresh(values, text, box)
        expect(set(values), {"grant_type", "code", "redirect_uri", "client_id", "client_secret",
                             "code_verifier"})
        expect(values["grant_type"], "authorization_code")
        sign_in = self.model.sign_ins.pop(values["code"], None)
        require(sign_in, "the code is unknown or was used: " + values["code"])
        service = sign_in["service"]
        require((service == "dropbox") == box, "the code went to another service")
        expect((values["client_id"], values["client_secret"]), CLIENTS[service])
        expect(values["redirect_uri"], sign_in["redirect_uri"])
        expect(challenge_of(values["code_verifier"]), sign_in["code_challenge"])
        answer = {"access_token": self.model.new_access(service), "token_type": "Bearer",
                  "expires_in": 3600}
        if self.model.give_refresh:
            answer["refresh_token"] = self.model.new_refresh(service)
        return as_json(200, answer)

    def refresh(self, values, text, box):
        service = self.model.refresh.get(values.get("refresh_token"))
        if service is None:
            return as_json(400, {"error": "invalid_grant"})
        require((service == "dropbox") == box, "the token went to another service")
        client, secret = CLIENTS[service]
        written = "client_secret=%s&grant_type=refresh_token&refresh_token=%s&client_id=%s" % (
            encoded(secret), encoded(values["refresh_token"]), encoded(client))
        expect(text, written)
        return as_json(200, {"access_token": self.model.new_access(service), "expires_in": 3600})

    # Uploads

    def check_access(self, request, service, query):
        """The access token, or None if it is not valid any more."""
        token = single_values(request.query).get("access_token", "")
        expect(request.query, query % encoded(token))
        if request.step == "upload":
            expect(request.headers.get("Authorization"), "BEARER " + token)
        return token if self.model.access.get(token) == service else None

    @staticmethod
    def denied():
        return as_json(401, {"error": {"code": 401, "message": "Invalid Credentials"}})

    def video(self, request):
        if not self.check_access(request, "youtube", "access_token=%s&part=snippet"):
            return self.denied()
        _, headers, digest = read_multipart(request.body, request.headers.get("Content-Type"), 0)
        expect(headers, [("content-type", "video/*")])
        entry = self.model.store("youtube", "", digest)
        entry["resource"] = {"kind": "video", "id": entry["id"],
                             "snippet": {"title": "unknown", "categoryId": "22"}}
        return as_json(200, entry["resource"])

    def title(self, request):
        if not self.check_access(request, "youtube", "access_token=%s&part=snippet"):
            return self.denied()
        expect(request.headers.get("Content-Type"), "application/json")
        resource = json.loads(request.body.all())
        entry = next((file for file in self.model.files if file["id"] == resource.get("id")), None)
        require(entry, "the title of an unknown video")
        entry["title"] = resource["snippet"].pop("title")
        before = json.loads(json.dumps(entry["resource"]))
        before["snippet"].pop("title")
        expect(resource, before)
        return as_json(200, resource)

    def drive(self, request):
        if not self.check_access(request, "googledrive", "access_token=%s&uploadType=multipart"):
            return self.denied()
        parts, headers, digest = read_multipart(request.body, request.headers.get("Content-Type"), 1)
        expect(parts[0][0], [("content-type", "application/json")])
        expect(headers, [("content-type", "video/*")])
        data = json.loads(parts[0][1])
        expect(set(data), {"title", "description"})
        entry = self.model.store("googledrive", data["title"], digest)
        return as_json(200, {"id": entry["id"], "title": data["title"],
                             "alternateLink": self.base + "/file/d/" + entry["id"]})

    # The file-sharing service's pieces

    def box(self, request):
        names = [name for name, _ in request.headers.items()]
        require("Dropbox-API-arg" in names and "Authorization" in names, "a header is missing")
        expect(request.headers["Content-Type"], "application/octet-stream")
        expect(request.query, "")
        kind, _, token = request.headers["Authorization"].partition(" ")
        expect(kind, "Bearer")
        if self.model.access.get(token) != "dropbox":
            return as_json(401, {"error_summary": "expired_access_token/..", "error": {}})
        require(request.body.left <= CHUNK, "a piece of %d bytes" % request.body.left)
        argument = request.headers["Dropbox-API-arg"]
        if request.step == "single":
            return self.commit(self.path_of(argument), self.read_piece(request, Digest()))
        if request.step == "start":
            expect(argument, '{ "close": false }')
            return self.start(request)
        return self.continue_session(request, argument)

    @staticmethod
    def path_of(argument):
        match = re.fullmatch(r'\{ "path": ("(?:[^"\\]|\\.)*"), "mode": "overwrite", '
                             r'"autorename": false, "mute": true \}', argument)
        require(argument.isascii(), "the argument is not ASCII")
        require(match, "the argument is " + argument)
        return json.loads(match.group(1))

    @staticmethod
    def read_piece(request, digest):
        for piece in request.body.pieces():
            digest.update(piece)
        return digest

    def start(self, request):
        expect(request.body.left, CHUNK)
        digest = self.read_piece(request, Digest())
        session = "session:%d_A" % next(self.model.numbers)
        self.model.sessions[session] = digest
        return as_json(200, {"session_id": session})

    def continue_session(self, request, argument):
        last = request.step == "finish"
        rest = r'"commit": (\{.*\})' if last else r'"close": false'
        match = re.fullmatch(r'\{ "cursor": \{ "session_id": "([^"]+)", "offset": (\d+) \}, '
                             + rest + r' \}', argument)
        require(match, "the argument is " + argument)
        digest = self.model.sessions.get(match.group(1))
        require(digest, "no such session: " + match.group(1))
        require(request.body.left > 0 or last, "an empty piece")
        if int(match.group(2)) != digest.size:
            request.body.all()
            return as_json(409, {"error_summary": "incorrect_offset/..", "error": {
                ".tag": "incorrect_offset", "correct_offset": digest.size}})
        # A piece counts only when all of it has come.
        digest = self.read_piece(request, digest.copy())
        self.model.sessions[match.group(1)] = digest
        if not last:
            return as_json(200, None)
        return self.commit(self.path_of(match.group(3)), digest)

    def commit(self, path, digest):
        require(path.startswith("/"), "the path is " + path)
        entry = self.model.store("dropbox", path, digest)
        return as_json(200, {"name": path[1:], "path_display": path, "id": "id:" + entry["id"],
                             "size": digest.size})

    # The update check

    def update(self, request):
        values = single_values(request.query)
        expect(list(values), ["ver", "pid", "mh", "h"])
        require(re.fullmatch(r"\d+\.\d+\.\d+", values["ver"]), "the version is " + values["ver"])
        require(re.fullmatch(r"[0-9a-f]{32}", values["h"]), "the digest is " + values["h"])
        return 200, {"Content-Type": "text/plain"}, self.model.version.encode()

    def configuration(self, ca_file, update_base):
        """services.ini that points the program here."""
        section = {"accounts": self.base, "api": self.base, "upload": self.base,
                   "content": self.base, "web": self.base}
        result = {}
        for service, (client, secret) in CLIENTS.items():
            result[service] = dict(section, client_id=client, client_secret=secret)
        result["dropbox"]["folder"] = FOLDER
        result["update"] = {"address": update_base + "/update", "product": "fake",
                            "download": update_base + "/", "notes": update_base + "/"}
        result["network"] = {"ca_file": ca_file} if ca_file else {}
        return result
