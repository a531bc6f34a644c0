"""The stand-in for the host: what the other tests rely on."""

import socket
import sys
import unittest

from host import SERVER_NAME, TO_PROGRAM, Host
from workbench import Workbench, stop_after

STANDIN = sys.argv.pop(1)


class HostStandInTest(unittest.TestCase):
    def setUp(self):
        self.workbench = self.enterContext(Workbench())

    def connect(self):
        connection = self.enterContext(socket.socket(socket.AF_UNIX))
        connection.settimeout(20)
        connection.connect(str(self.workbench.folder / SERVER_NAME))
        return connection

    def write_file(self, contents):
        file = self.workbench.folder / "contents"
        file.write_bytes(contents)
        return file

    def receive(self, connection, length):
        received = b""
        while len(received) < length:
            received += connection.recv(length - len(received))
        return received

    def test_writes_down_each_read(self):
        host = Host(self.workbench, STANDIN)
        connection = self.connect()
        connection.sendall(b"caf\xe9\n")
        (event,) = host.wait_for("received")
        self.assertEqual((event["text"], event["length"]), ("caf\xe9\n", 5))
        connection.sendall(b"second")
        host.wait_for("received", 2)
        self.assertEqual(host.messages(), ["caf\xe9\n", "second"])

    def test_sends_what_it_is_told(self):
        host = Host(self.workbench, STANDIN)
        connection = self.connect()
        host.wait_for("connected")
        host.send_document(["one 1", "two 2"])
        self.assertEqual(self.receive(connection, 23), TO_PROGRAM.encode() + b"one 1|two 2")
        host.command("text", "tw2tonquill", "state:activate")
        self.assertEqual(self.receive(connection, 26), b"tw2tonquill state:activate")
        host.command("raw", self.write_file(b"as\0it is"))
        self.assertEqual(self.receive(connection, 8), b"as\0it is")

    def test_sends_a_document_after_the_first_message_only(self):
        file = self.write_file(b"record")
        host = Host(self.workbench, STANDIN, "--send", file)
        connection = self.connect()
        connection.sendall(b"first")
        self.assertEqual(self.receive(connection, 18), b"tw2tonquill record")
        connection.sendall(b"second")
        host.wait_for("received", 2)
        self.assertEqual(len(host.events("sent")), 1)

    def test_sends_in_pieces(self):
        host = Host(self.workbench, STANDIN)
        connection = self.connect()
        host.wait_for("connected")
        host.command("chunks", self.write_file(b"0123456789"), 8, 50)
        self.assertEqual(self.receive(connection, 22), b"tw2tonquill 0123456789")
        (sent,) = host.wait_for("sent")
        self.assertEqual(sent["length"], 22)
        # Three pieces have two pauses between them; a timer may be 5 % early.
        (connected,) = host.events("connected")
        self.assertGreaterEqual(sent["ms"] - connected["ms"], 90)

    def test_leaves_unread_what_comes_while_it_pauses(self):
        host = Host(self.workbench, STANDIN)
        connection = self.connect()
        host.wait_for("connected")
        host.command("pause")
        host.command("text", "paused")
        self.assertEqual(self.receive(connection, 6), b"paused")
        connection.setblocking(False)
        sent = 0
        with self.assertRaises(BlockingIOError):
            while sent < 100_000_000:
                sent += connection.send(b"x" * 65536)
        self.assertEqual(host.messages(), [])
        host.command("resume")
        connection.setblocking(True)
        connection.sendall(b"end")
        host.wait_for_message(lambda text: text.endswith("end"))
        self.assertEqual(sum(map(len, host.messages())), sent + 3)

    def test_closes_the_connection_and_takes_the_next(self):
        host = Host(self.workbench, STANDIN)
        connection = self.connect()
        host.wait_for("connected")
        host.command("close")
        self.assertEqual(connection.recv(10), b"")
        host.wait_for("disconnected")
        host.command("text", "anybody?")
        host.wait_for("error")
        again = self.connect()
        host.wait_for("connected", 2)
        host.command("text", "hello")
        self.assertEqual(self.receive(again, 5), b"hello")

    def test_leaves_the_name_to_a_host_that_answers(self):
        host = Host(self.workbench, STANDIN)
        connection = self.connect()
        host.wait_for("connected")
        second = self.workbench.run([STANDIN], check=False)
        self.assertEqual(second.returncode, 1)
        self.assertIn("another host", second.stderr)
        host.wait_for("disconnected")
        host.command("text", "still here")
        self.assertEqual(self.receive(connection, 10), b"still here")

    def test_replaces_a_socket_that_nobody_answers_on(self):
        with socket.socket(socket.AF_UNIX) as left_behind:
            left_behind.bind(str(self.workbench.folder / SERVER_NAME))
        Host(self.workbench, STANDIN)
        self.connect()

    def test_ends_when_told(self):
        host = Host(self.workbench, STANDIN)
        host.command("quit")
        self.assertEqual(host.process.wait(20), 0)


if __name__ == "__main__":
    stop_after(100)
    unittest.main(verbosity=2)
