#!/usr/bin/env python3
"""A reference access-control server for tvpolicy agent: the peer to try the agent against and
the one its tests drive. Python 3 standard library only.

    examples/server/server.py --policy examples/compliant.xml --port 8080

It serves, from a folder (--root) or from single files given on the command line:

    GET  /agent/config                 config.xml, or one made up from --login
    GET  /agent/status                 status-N.xml for the Nth request when there is one, else
                                       status.xml, else NEEDS_SCAN for the scan "default"
    POST /agent/login                  NEEDS_SCAN when every --login field matches, else AUTH_FAILURE
    GET  /agent/scan?scan=S&uid=U      policies/S.xml, else policy.xml (or --policy)
    POST /agent/report/{init,progress,results}
    GET  /agent/report/{success,failure}
    GET  /agent/monitors               monitors.xml; 404 when there is none
    POST /agent/monitor
    GET  /agent/ping                   the configuration's connection test

With --prefix /P every path is served under /P (/P/agent/config ...) and nothing else is.
Each policy is served with its report addresses pointing back here, so that an example policy
never sends the agent anywhere else. Every request is appended to the request log (--log) as one
JSON object a line; posted results are stored in --results-dir. For tests, answers can be made
to fail (--fail PATH=CODE), to stall (--stall PATH) or to never end (--endless PATH), and
changed while running with POST /control {"fail": {...}, "stall": [...], "endless": [...]}.
"""
import argparse
import http.server
import json
import os
import pathlib
import ssl
import sys
import threading
import time
import urllib.parse
import xml.etree.ElementTree as ET

NS = "urn:torvane:agent:1"
REPORTS = ("init", "progress", "results", "success", "failure")


class State:
    def __init__(self, args):
        self.args = args
        self.lock = threading.Lock()
        self.fail = {}
        self.stall = set(args.stall)
        self.endless = set(args.endless)
        for item in args.fail:
            path, _, code = item.partition("=")
            self.fail[path] = int(code or 500)
        self.login = dict(pair.split("=", 1) for pair in args.login)
        self.results = 0
        self.statuses = 0

    def record(self, entry):
        if not self.args.log:
            return
        with self.lock, open(self.args.log, "a", encoding="utf-8") as log:
            log.write(json.dumps(entry) + "\n")

    def read(self, name):
        if self.args.root:
            path = pathlib.Path(self.args.root) / name
            if path.is_file():
                return path.read_bytes()
        return None


def reply_xml(status, scan="default", uid="agent-uid-1", message=""):
    return (f'<?xml version="1.0" encoding="UTF-8"?>\n<agentStatus xmlns="{NS}"><status>{status}</status>'
            f"<message>{message}</message><scanName>{scan}</scanName><uid>{uid}</uid></agentStatus>\n").encode()


def policy_with_own_urls(text, base):
    """The policy with its report addresses rewritten to this server's; other documents unchanged."""
    try:
        root = ET.fromstring(text, parser=ET.XMLParser(target=ET.TreeBuilder(insert_comments=True)))
    except ET.ParseError:
        return text
    if root.tag != "policy":
        return text
    root.set("base", base + "/agent/report/")
    for name in REPORTS:
        element = root.find(name)
        if element is None:
            element = ET.Element(name)
            root.insert(0, element)
        url = element.find("url")
        if url is None:
            url = ET.SubElement(element, "url")
        url.text = name
    return b'<?xml version="1.0" encoding="UTF-8"?>\n' + ET.tostring(root, encoding="utf-8")


class Handler(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"
    server_version = "tvpolicy-reference-server"

    def log_message(self, format, *args):
        if self.server.state.args.verbose:
            super().log_message(format, *args)

    def base(self):
        scheme = "https" if self.server.state.args.cert else "http"
        return f"{scheme}://{self.headers.get('Host', 'localhost')}{self.server.state.args.prefix}"

    def send(self, code, body=b"", content_type="application/xml", headers=()):
        self.send_response(code)
        self.send_header("Content-Type", content_type)
        self.send_header("Content-Length", str(len(body)))
        for name, value in headers:
            self.send_header(name, value)
        self.end_headers()
        if self.command != "HEAD":
            self.wfile.write(body)

    def do_GET(self):
        self.handle_any()

    def do_HEAD(self):
        self.handle_any()

    def do_POST(self):
        self.handle_any()

    def handle_any(self):
        state = self.server.state
        url = urllib.parse.urlsplit(self.path)
        length = int(self.headers.get("Content-Length") or 0)
        body = self.rfile.read(length) if length else b""
        prefix = state.args.prefix
        if url.path == "/control" or not prefix:
            path = url.path
        elif url.path.startswith(prefix + "/"):
            path = url.path[len(prefix):]
        else:
            path = None
        if url.path == "/control":
            with state.lock:
                change = json.loads(body or b"{}")
                state.fail = {k: int(v) for k, v in change.get("fail", state.fail).items()}
                state.stall = set(change.get("stall", state.stall))
                state.endless = set(change.get("endless", state.endless))
            return self.send(200, b"{}", "application/json")
        state.record({"time": time.time(), "method": self.command, "path": url.path, "query": url.query,
                      "contentType": self.headers.get("Content-Type", ""),
                      "cookie": self.headers.get("Cookie", ""),
                      "userAgent": self.headers.get("User-Agent", ""),
                      "body": body.decode("utf-8", "replace")})
        if path is None:
            return self.send(404, b"not found\n", "text/plain")
        url = url._replace(path=path)
        with state.lock:
            fail = state.fail.get(url.path)
            stall = url.path in state.stall
            endless = url.path in state.endless
        if stall:
            time.sleep(3600)
            return None
        if endless:
            self.send_response(200)
            self.send_header("Content-Type", "application/xml")
            self.end_headers()
            chunk = b"<policy>" + b"<!-- ... -->" * 8000
            try:
                while True:
                    self.wfile.write(chunk)
            except OSError:
                return None
        if fail:
            return self.send(fail, b"failure asked for\n", "text/plain")
        return self.route(url, body)

    def route(self, url, body):
        state = self.server.state
        path = url.path
        if path == "/agent/config":
            return self.send(200, state.read("config.xml") or self.made_up_config())
        if path == "/agent/status":
            with state.lock:
                state.statuses += 1
                asked = state.statuses
            text = state.read(f"status-{asked}.xml") or state.read("status.xml")
            return self.send(200, text or reply_xml("NEEDS_SCAN"))
        if path == "/agent/login":
            given = dict(urllib.parse.parse_qsl(body.decode("utf-8", "replace"), keep_blank_values=True))
            if given != state.login:
                return self.send(200, reply_xml("AUTH_FAILURE", message="The user name or password is wrong."))
            return self.send(200, state.read("login-status.xml") or reply_xml("NEEDS_SCAN"),
                             headers=[("Set-Cookie", "session=s3ss10n; Path=/; HttpOnly")])
        if path == "/agent/ping":
            return self.send(200, b"", "text/plain")
        if path == "/agent/scan":
            scan = urllib.parse.parse_qs(url.query).get("scan", ["default"])[0]
            text = state.read(f"policies/{os.path.basename(scan)}.xml") or state.read("policy.xml")
            if text is None and state.args.policy:
                text = pathlib.Path(state.args.policy).read_bytes()
            if text is None:
                return self.send(404, b"no such scan\n", "text/plain")
            return self.send(200, policy_with_own_urls(text, self.base()))
        if path == "/agent/report/results" and state.args.results_dir:
            with state.lock:
                state.results += 1
                name = pathlib.Path(state.args.results_dir) / f"results-{state.results:04d}.json"
            name.write_bytes(body)
        if path.startswith("/agent/report/") and path.rsplit("/", 1)[1] in REPORTS:
            return self.send(200, b"OK\n", "text/plain")
        if path == "/agent/monitors":
            text = state.read("monitors.xml")
            return self.send(200, text) if text else self.send(404, b"no monitors\n", "text/plain")
        if path == "/agent/monitor":
            return self.send(200, b"OK\n", "text/plain")
        return self.send(404, b"not found\n", "text/plain")

    def made_up_config(self):
        state = self.server.state
        base = self.base()
        fields = "".join(f'<field name="{name}"><label>{name}</label><type>{"PASSWORD" if "pass" in name else "TEXT"}'
                         "</type></field>" for name in state.login)
        return (f'<?xml version="1.0" encoding="UTF-8"?>\n<agentConfig xmlns="{NS}">'
                f"<loginUrl>{base}/agent/login</loginUrl><scanUrl>{base}/agent/scan</scanUrl>"
                f"<uid>agent-uid-1</uid><loginRequired>{'true' if state.login else 'false'}</loginRequired>"
                f"{fields}</agentConfig>\n").encode()


class Server(http.server.ThreadingHTTPServer):
    daemon_threads = True


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("--bind", default="127.0.0.1")
    parser.add_argument("--port", type=int, default=8080, help="0 picks a free port")
    parser.add_argument("--root", help="the folder of documents")
    parser.add_argument("--prefix", default="", help="serve everything under this path (/P)")
    parser.add_argument("--policy", help="the policy served for every scan the folder does not hold")
    parser.add_argument("--login", action="append", default=[], metavar="FIELD=VALUE",
                        help="require a login with these field values")
    parser.add_argument("--log", help="append every request to this file as JSON lines")
    parser.add_argument("--results-dir", help="store posted results here")
    parser.add_argument("--cert", help="serve HTTPS with this certificate (PEM)")
    parser.add_argument("--key", help="the certificate's private key (PEM)")
    parser.add_argument("--fail", action="append", default=[], metavar="PATH=CODE")
    parser.add_argument("--stall", action="append", default=[], metavar="PATH")
    parser.add_argument("--endless", action="append", default=[], metavar="PATH")
    parser.add_argument("--verbose", action="store_true")
    args = parser.parse_args()
    args.prefix = "/" + args.prefix.strip("/") if args.prefix.strip("/") else ""

    server = Server((args.bind, args.port), Handler)
    server.state = State(args)
    scheme = "http"
    if args.cert:
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(args.cert, args.key)
        server.socket = context.wrap_socket(server.socket, server_side=True)
        scheme = "https"
    print(f"listening on {scheme}://{args.bind}:{server.server_address[1]}", flush=True)
    try:
        server.serve_forever()
    except KeyboardInterrupt:
        pass
    return 0


if __name__ == "__main__":
    sys.exit(main())
