"""The host's end of the link, as a test sees it."""

import json
import subprocess

from workbench import wait_until

SERVER_NAME = "trackwrightqt"
TO_HOST = "tonquill2tw "
TO_PROGRAM = "tw2tonquill "


class Host:
    """The stand-in for the host, running on a workbench."""

    def __init__(self, workbench, program, *arguments):
        self._workbench = workbench
        self._log = workbench.folder / "host.log"
        self._documents = 0
        self.process = workbench.start(
            [program, "--log", self._log, *arguments],
            log="host.output.log",
            stdin=subprocess.PIPE,
        )
        self.wait_for("listening")

    def events(self, kind):
        """Every event of this kind so far, oldest first."""
        if self.process.poll() is not None:
            raise RuntimeError("the host has ended:\n" + self._workbench.log("host.output.log"))
        if not self._log.exists():
            return []
        # The last line may not be written to its end yet.
        lines = self._log.read_text(encoding="utf-8").split("\n")[:-1]
        return [event for event in map(json.loads, lines) if event["event"] == kind]

    def messages(self):
        """The text of everything received so far, one string a read."""
        return [event["text"] for event in self.events("received")]

    def wait_for(self, kind, count=1):
        """Waits until there are that many events of this kind and returns them."""

        def enough():
            events = self.events(kind)
            return len(events) >= count and events

        return wait_until(enough, f"{count} x {kind} in the host's log")

    def wait_for_message(self, matches, since=0):
        """Waits for a message, after the first `since` ones, for which matches() is true.

        Returns that message; fails with those that came in its place.
        """

        def arrived():
            return next(filter(matches, self.messages()[since:]), None)

        try:
            return wait_until(arrived, "the message")
        except TimeoutError:
            raise AssertionError(f"the host received only {self.messages()[since:]}") from None

    def command(self, *words):
        """Gives the stand-in a command."""
        self.process.stdin.write((" ".join(map(str, words)) + "\n").encode())
        self.process.stdin.flush()

    def send_document(self, records):
        """Sends these records as the document, separated as the host separates them."""
        self._documents += 1
        file = self._workbench.folder / f"document{self._documents}.txt"
        file.write_text("|".join(records), encoding="latin-1")
        sent = len(self.events("sent"))
        self.command("send", file)
        self.wait_for("sent", sent + 1)
