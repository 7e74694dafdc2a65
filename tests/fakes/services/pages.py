# SPDX-License-Identifier: GPL-3.0-or-later
"""Pages for a person who tries the program by hand."""

import html
import urllib.parse

STEPS = ["token", "refresh", "upload", "title", "single", "start", "append", "finish", "update"]
FAILURES = {
    "401": {"status": 401},
    "403": {"status": 403},
    "429": {"status": 429},
    "500": {"status": 500},
    "not JSON": {"status": 200, "body": "<html>Sorry</html>", "type": "text/html"},
    "redirect": {"status": 302, "headers": {"Location": "https://127.0.0.1:1/"}},
    "connection lost while reading": {"drop": 1000},
    "answer lost": {"drop": "answer"},
    "slow (20 s)": {"delay": 20},
    "no answer": {"hang": True},
}

HEAD = """<!DOCTYPE html><html><head><meta charset="utf-8"><title>%s</title><style>
body { font: 16px/1.5 sans-serif; margin: 40px auto; padding: 0 24px; max-width: 640px; color: #1f2a33; }
button, select { font: inherit; padding: 6px 16px; } table { border-collapse: collapse; }
td, th { padding: 4px 12px 4px 0; text-align: left; } .wrong { color: #c0392b; }
</style></head><body><h1>%s</h1>"""


def page(title, content):
    text = HEAD % (html.escape(title), html.escape(title)) + content + "</body></html>"
    return 200, {"Content-Type": "text/html; charset=utf-8"}, text.encode()


def sign_in_page(service, number):
    links = "".join(
        '<form action="/_decide" style="display:inline"><input type="hidden" name="page" value="%d">'
        '<input type="hidden" name="answer" value="%s"><button>%s</button></form> ' % (number, answer, text)
        for answer, text in (("allow", "Allow"), ("deny", "Deny")))
    return page("Fake sign-in", "<p>Velmora asks for your account at the fake service \"%s\".</p>%s"
                % (html.escape(service), links))


def file_page(model, wanted):
    for file in model.files:
        if wanted in (file["id"], file["title"], file["title"][1:]):
            rows = "".join("<tr><th>%s</th><td>%s</td></tr>" % (key, html.escape(str(file[key])))
                           for key in ("service", "title", "size", "sha256"))
            return page("Here is your video", "<table>%s</table>" % rows)
    return page("There is no such video", "<p>%s</p>" % html.escape(wanted))


def overview(model):
    files = "".join("<tr><td>%s</td><td>%s</td><td>%d bytes</td></tr>" % (
        html.escape(file["service"]), html.escape(file["title"]), file["size"]) for file in model.files)
    wrong = "".join('<li class="wrong">%s</li>' % html.escape(text) for text in model.problems)
    armed = "".join("<li>%s: %s</li>" % (step, html.escape(str(queue)))
                    for step, queue in model.failures.items() if queue)
    options = lambda names: "".join("<option>%s</option>" % name for name in names)
    return page("Fake services", """<h2>Uploads so far</h2><table>%s</table>
<h2>What was wrong with requests</h2><ul>%s</ul>
<h2>Let a request fail</h2><ul>%s</ul><form action="/_arm">The next <select name="step">%s</select>
<select name="failure">%s</select> <button>Arm</button></form>
<p><a href="/_expire">Let all access tokens expire</a></p>"""
                % (files or "<tr><td>None.</td></tr>", wrong or "<li>Nothing.</li>", armed, options(STEPS), options(FAILURES)))


def arm(model, query):
    values = dict(urllib.parse.parse_qsl(query))
    if values.get("step") in STEPS and values.get("failure") in FAILURES:
        with model.lock:
            model.failures.setdefault(values["step"], []).append(dict(FAILURES[values["failure"]]))
    return 302, {"Location": "/"}, b""
