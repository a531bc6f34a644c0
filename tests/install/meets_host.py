"""Starts a program, as a host that only waits for its first message; fails without one.

Needs nothing but the standard library, so that it runs in a fresh system too.
"""

import os
import socket
import subprocess
import sys
import tempfile

with tempfile.TemporaryDirectory() as folder, socket.socket(socket.AF_UNIX) as server:
    server.bind(folder + "/trackwrightqt")
    server.listen()
    server.settimeout(30)
    command = subprocess.Popen(sys.argv[1:], env=os.environ | {"TMPDIR": folder})
    try:
        connection, _ = server.accept()
        connection.settimeout(30)
        message = connection.recv(1000)
    finally:
        command.terminate()
        command.wait(30)
sys.exit(message != b"tonquill2tw tonquill_pagecount 1\n")
