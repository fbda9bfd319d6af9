# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
"""An HTTPS server on the loopback that answers 200 to everything.

tls_server.py CERTIFICATE KEY prints its port on the first line, and then a line for each request.
"""
import http.server
import ssl
import sys


class Handler(http.server.BaseHTTPRequestHandler):
    def do_POST(self):
        self.rfile.read(int(self.headers["Content-Length"]))
        print(self.requestline, flush=True)
        self.send_response(200)
        self.send_header("Content-Length", "2")
        self.end_headers()
        self.wfile.write(b"{}")

    def log_message(self, *arguments):
        pass


class Server(http.server.HTTPServer):
    def handle_error(self, request, client_address):
        """A client that does not trust us is no error of ours."""


server = Server(("127.0.0.1", 0), Handler)
context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
context.load_cert_chain(sys.argv[1], sys.argv[2])
server.socket = context.wrap_socket(server.socket, server_side=True)
print(server.server_port, flush=True)
server.serve_forever()
