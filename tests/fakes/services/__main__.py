# SPDX-License-Identifier: GPL-3.0-or-later
"""Fake upload, sign-in and update services on 127.0.0.1.

    python3 tests/fakes/services [--port N] [--tls] [--config FILE] [COMMAND...]

Prints one line of JSON with its address and, with --tls, the certificate to trust. With --config it
writes the services.ini that points the program there. With a command it runs that, configured by
environment variables, and ends with it; otherwise it ends when its standard input does.
docs/fake-services.md is a walk-through.
"""

import argparse
import configparser
import json
import os
import re
import ssl
import subprocess
import sys
import tempfile
import threading

from model import Model
from server import Server


def make_certificate(folder):
    key, certificate = os.path.join(folder, "key.pem"), os.path.join(folder, "certificate.pem")
    subprocess.run(
        ["openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1",
         "-nodes", "-keyout", key, "-out", certificate, "-days", "2", "-subj", "/CN=Fake services",
         "-addext", "subjectAltName=IP:127.0.0.1,DNS:localhost"],
        check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
    context.load_cert_chain(certificate, key)
    return context, certificate


def write_config(path, sections):
    file = configparser.RawConfigParser()
    for name, values in sections.items():
        # QSettings reads quotes and backslashes in its own way.
        file[name] = {key: '"%s"' % value.replace("\\", "\\\\").replace('"', '\\"')
                      for key, value in values.items()}
    with open(path, "w", encoding="utf-8") as out:
        file.write(out, space_around_delimiters=False)


def environment(sections):
    variables = dict(os.environ)
    for section, values in sections.items():
        for key, value in values.items():
            name = re.sub("[^A-Z0-9]", "_", ("VELMORA_%s_%s" % (section, key)).upper())
            variables[name] = value
    return variables


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawTextHelpFormatter)
    parser.add_argument("--port", type=int, default=0)
    parser.add_argument("--tls", action="store_true")
    parser.add_argument("--config")
    parser.add_argument("command", nargs=argparse.REMAINDER)
    options = parser.parse_args()

    with tempfile.TemporaryDirectory(prefix="fakeservices-") as folder:
        tls, ca_file = make_certificate(folder) if options.tls else (None, "")
        model = Model()
        server = Server(options.port, model, tls)
        # The update check trusts the system's certificates only.
        plain = Server(0, model, None) if tls else server
        sections = server.services.configuration(ca_file, plain.base)
        if options.config:
            write_config(options.config, sections)
        for each in {server, plain}:
            threading.Thread(target=each.serve_forever, daemon=True).start()
        print(json.dumps({"url": server.base, "ca_file": ca_file, "config": sections}), flush=True)
        result = 0
        try:
            if options.command:
                result = subprocess.run(options.command, env=environment(sections), check=False).returncode
            else:
                while sys.stdin.buffer.read(4096):
                    pass
        except KeyboardInterrupt:
            pass
        model.stopping.set()
        server.shutdown()
    return result


if __name__ == "__main__":
    sys.exit(main())
