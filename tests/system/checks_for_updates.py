#!/usr/bin/env python3
"""Starts the program against an HTTPS server of the test's own and looks at what it makes of each answer.

Usage: checks_for_updates.py PROGRAM MODELS

An alert is a window titled "Lexiform"; its texts are told apart by what its buttons do: the second button of
an offer opens the download, which an `xdg-open` of the test's own writes down.
"""

import http.server
import contextlib
import os
import ssl
import subprocess
import sys
import tempfile
import threading
import time

from own_screen import (SECONDS_TO_OPEN, give_keyboard_to, run_on_own_screen, running, soon, windows_titled,
                        xdotool)

SECONDS_OF_SILENCE = 2.5
SLOW_ANSWER = 4
DOWNLOAD = "https://localhost/get/lexiform.tar"


def entry(version, address=DOWNLOAD):
    return f'{{ AppName = Lexiform; Version = "{version}"; URL = "{address}"; }}'


NEWER = f"({entry('99.0')})"


class Answer:
    """What the server says: status, headers, body, and how long it takes."""

    def __init__(self, body, mime="text/plain", status=200, location=None, delay=0.0):
        self.body, self.mime, self.status = body.encode(), mime, status
        self.location, self.delay = location, delay


# name: (answer, alerts that are shown one after the other)
CASES = {
    "a newer version": (Answer(NEWER), 1),
    "an older version": (Answer(f"({entry('0.0.1')})"), 1),
    "the running version": (lambda version: Answer(f"({entry(version)})"), 0),
    "two entries": (Answer(f"({entry('98.0')}, {entry('99.0')})"), 2),
    "a download elsewhere": (Answer(f"({entry('99.0', 'https://localhost/other/x')})"), 0),
    "an empty array": (Answer("<plist version='1.0'><array/></plist>", "text/xml"), 1),
    "a page sent as text": (Answer("<!DOCTYPE html><html><body><p>Gone</body></html>"), 1),
    "a type with a parameter": (Answer(NEWER, "text/plain; charset=utf-8"), 1),
    "the type of property lists": (Answer(NEWER, "application/x-plist"), 0),
    "no type": (Answer(NEWER, None), 0),
    "status 304": (Answer("", status=304), 0),
    "status 404": (Answer(NEWER, status=404), 0),
    "an empty body": (Answer(""), 1),
    "a redirect": (Answer("", status=302, location="/moved"), 1),
    "a slow answer": (Answer(NEWER, delay=SLOW_ANSWER), 1),
}


class Handler(http.server.BaseHTTPRequestHandler):
    def do_GET(self):  # the name that the base class looks for
        answer = Answer(NEWER) if self.path == "/moved" else self.server.answer
        self.server.asked += 1
        time.sleep(answer.delay)
        self.send_response(answer.status)
        if answer.mime:
            self.send_header("Content-Type", answer.mime)
        if answer.location:
            self.send_header("Location", answer.location)
        self.send_header("Content-Length", str(len(answer.body)))
        self.end_headers()
        if answer.status != 304:
            self.wfile.write(answer.body)

    def log_message(self, *_):
        pass


def openssl(*arguments):
    subprocess.run(["openssl", *arguments], check=True, capture_output=True)


def make_authority(folder):
    """The certificate of an authority, and one for localhost that it has signed, with its key."""
    authority, own = os.path.join(folder, "authority"), os.path.join(folder, "localhost")
    openssl("req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj", "/CN=Test authority",
            "-keyout", authority + ".key", "-out", authority + ".crt")
    openssl("req", "-newkey", "rsa:2048", "-nodes", "-subj", "/CN=localhost", "-keyout", own + ".key",
            "-out", own + ".csr")
    with open(own + ".ext", "w", encoding="utf-8") as extensions:
        extensions.write("subjectAltName=DNS:localhost\nextendedKeyUsage=serverAuth\n")
    openssl("x509", "-req", "-days", "2", "-in", own + ".csr", "-CA", authority + ".crt",
            "-CAkey", authority + ".key", "-CAcreateserial", "-extfile", own + ".ext", "-out", own + ".crt")
    return authority + ".crt", own + ".crt", own + ".key"


def serve(certificate, key):
    server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
    server.asked = 0
    context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
    context.load_cert_chain(certificate, key)
    server.socket = context.wrap_socket(server.socket, server_side=True, do_handshake_on_connect=False)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    return server


def is_shown(title):
    return bool(windows_titled(title))


def press(*keys):
    give_keyboard_to(windows_titled("Lexiform")[-1])
    time.sleep(0.3)
    xdotool("key", *keys)


def alerts_of(server, first_wait):
    """How many alerts come one after the other; each is answered with its first button."""
    count = 0
    while soon(lambda: is_shown("Lexiform"), first_wait if count == 0 else SECONDS_OF_SILENCE):
        count += 1
        press("Return")
        time.sleep(0.5)
    return count


@contextlib.contextmanager
def asking(path, models, manifest, authority, tools):
    """The program with its first window or alert on screen, and the addresses that it has opened."""
    with tempfile.TemporaryDirectory() as folder:
        opened = os.path.join(folder, "opened")
        open(opened, "w", encoding="utf-8").close()
        with running([path], models, LEXIFORM_TEST_MANIFEST=manifest, LEXIFORM_TEST_AUTHORITY=authority, OPENED=opened,
                     no_proxy="localhost", PATH=tools + ":" + os.environ["PATH"]) as program:
            program.wait_for(lambda: is_shown("Untitled") or is_shown("Lexiform"), "window")
            yield lambda: open(opened, encoding="utf-8").read().split()


def expect(name, wanted, found):
    print(f"{name}: {found}", flush=True)
    if wanted != found:
        sys.exit(f"{name}: {wanted} was expected")


def check_answers(path, models, server, authority, tools):
    version = subprocess.run([path, "--version"], capture_output=True, text=True, check=True).stdout.split()[-1]
    manifest = f"https://localhost:{server.server_port}/versions.plist"
    for name, (answer, wanted) in CASES.items():
        server.answer = answer(version) if callable(answer) else answer
        server.asked = 0
        with asking(path, models, manifest, authority, tools) as opened:
            if server.answer.delay:
                expect("the window is there before a slow answer", True, is_shown("Untitled"))
            expect(name, wanted, alerts_of(server, SECONDS_OF_SILENCE + 2 * server.answer.delay))
            expect("  opened", [], opened())
        expect("  asked", True, server.asked >= 1)


def check_download(path, models, server, authority, tools):
    server.answer = Answer(NEWER)
    manifest = f"https://localhost:{server.server_port}/versions.plist"
    with asking(path, models, manifest, authority, tools) as opened:
        expect("an offer", True, soon(lambda: is_shown("Lexiform"), SECONDS_TO_OPEN))
        press("Tab", "space")
        soon(opened, SECONDS_OF_SILENCE)
        expect("the second button opens", [DOWNLOAD], opened())


def check_silence(path, models, server, authority, tools):
    server.answer = Answer(NEWER)
    good = f"https://localhost:{server.server_port}/versions.plist"
    for name, manifest, trusted in (("a refused connection", "https://localhost:9/versions.plist", authority),
                                    ("an unknown authority", good, "/nowhere.crt")):
        with asking(path, models, manifest, trusted, tools):
            expect(name, 0, alerts_of(server, SECONDS_OF_SILENCE))


def run_all(path, models):
    with tempfile.TemporaryDirectory() as folder:
        opener = os.path.join(folder, "xdg-open")
        with open(opener, "w", encoding="utf-8") as script:
            script.write('#!/bin/sh\necho "$1" >> "$OPENED"\n')
        os.chmod(opener, 0o755)
        authority, certificate, key = make_authority(folder)
        server = serve(certificate, key)
        for check in (check_answers, check_download, check_silence):
            check(path, models, server, authority, folder)


if __name__ == "__main__":
    run_on_own_screen(run_all, "openssl")
