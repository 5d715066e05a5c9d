"""An SMTP server for one test: says its port on standard output, then one JSON line for every mail it has
taken, and ends when its standard input is closed."""

import argparse
import asyncio
import base64
import json
import logging
import ssl
import sys
import warnings

from aiosmtpd.smtp import SMTP, AuthResult


def say(what):
    print(json.dumps(what), flush=True)


class Handler:
    def __init__(self, options):
        self.options = options

    async def handle_MAIL(self, server, session, envelope, address, mail_options):
        if address in self.options.refuse_sender:
            return "550 5.7.1 sender\x07 not\taccepted \x1b[31mhere"
        envelope.mail_from = address
        return "250 OK"

    async def handle_RCPT(self, server, session, envelope, address, rcpt_options):
        if address in self.options.refuse_recipient:
            return "550 5.1.1 no such mailbox"
        envelope.rcpt_tos.append(address)
        return "250 OK"

    async def handle_DATA(self, server, session, envelope):
        if self.options.refuse_message:
            return "554 5.6.0 not wanted"
        say({
            "from": envelope.mail_from,
            "to": envelope.rcpt_tos,
            "user": session.auth_data.decode() if session.auth_data else "",
            "encrypted": server.transport.get_extra_info("sslcontext") is not None,
            "message": base64.b64encode(envelope.original_content).decode(),
        })
        return "250 2.0.0 taken"


def make_stranger(options):
    """Something on the port that is no mail server: says its line, if any, and hangs up if told to."""
    class Stranger(asyncio.Protocol):
        def connection_made(self, transport):
            say({"connected": True})
            if options.line is not None:
                transport.write(options.line.encode() + b"\r\n")
            if options.hang_up:
                transport.close()

        def connection_lost(self, error):
            say({"connected": False})

    return Stranger


async def serve(options):
    context = None
    if options.certificate:
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(options.certificate, options.key)

    def authenticate(server, session, envelope, mechanism, data):
        good = [data.login.decode(), data.password.decode()] == [options.user, options.password]
        return AuthResult(success=good, handled=good, auth_data=data.login if good else None)

    def make():
        implicit = options.encryption == "tls"
        server = SMTP(
            Handler(options),
            hostname="mail.example",
            authenticator=authenticate if options.user else None,
            auth_required=bool(options.user),
            # The library knows only of encryption that it has set up itself.
            auth_require_tls=not options.user or options.encryption == "starttls",
            tls_context=context if options.encryption == "starttls" else None,
            require_starttls=options.encryption == "starttls",
        )
        if implicit:
            server.session_is_encrypted = True
        return server

    loop = asyncio.get_running_loop()
    stranger = options.mute or options.line is not None or options.hang_up
    listener = await loop.create_server(
        make_stranger(options) if stranger else make, "127.0.0.1", 0, ssl=context if options.encryption == "tls" else None)
    say({"port": listener.sockets[0].getsockname()[1]})
    await loop.run_in_executor(None, sys.stdin.read)


def main():
    # A refused certificate is what a test wants; it is no news in the test's output.
    logging.disable(logging.CRITICAL)
    warnings.filterwarnings("ignore")
    parser = argparse.ArgumentParser()
    parser.add_argument("--encryption", choices=["none", "starttls", "tls"], default="none")
    parser.add_argument("--certificate")
    parser.add_argument("--key")
    parser.add_argument("--user", default="")
    parser.add_argument("--password", default="")
    parser.add_argument("--refuse-sender", action="append", default=[])
    parser.add_argument("--refuse-recipient", action="append", default=[])
    parser.add_argument("--refuse-message", action="store_true")
    parser.add_argument("--mute", action="store_true")
    parser.add_argument("--line")
    parser.add_argument("--hang-up", action="store_true")
    asyncio.run(serve(parser.parse_args()))


if __name__ == "__main__":
    main()
