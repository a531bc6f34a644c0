"""What every test that starts programs needs: a folder, processes that end, and deadlines.

Nothing here waits for a length of time: it waits for what has to happen, up to a deadline.
"""

import ctypes
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

DEADLINE = 20.0

# Looked up before any child is forked: a child may not load a library.
_prctl = ctypes.CDLL(None).prctl
_PR_SET_PDEATHSIG = 1


def wait_until(check, what, seconds=DEADLINE):
    """Polls until check() is true and returns its value; fails naming what did not happen."""
    deadline = time.monotonic() + seconds
    while True:
        value = check()
        if value:
            return value
        if time.monotonic() > deadline:
            raise TimeoutError(f"not within {seconds:g} s: {what}")
        time.sleep(0.02)


def stop_after(seconds):
    """Ends this process in good order, with its clean-up, on a signal or after this time."""

    def stop(number, _):
        sys.exit(f"stopped by {signal.Signals(number).name}")

    for number in (signal.SIGALRM, signal.SIGTERM, signal.SIGHUP):
        signal.signal(number, stop)
    signal.alarm(seconds)


def _die_with_parent():
    _prctl(_PR_SET_PDEATHSIG, signal.SIGTERM)


class Workbench:
    """A folder of its own and the processes started there.

    A context manager: at its end every process and the folder are gone. The folder is also
    TMPDIR, where local sockets live, so any number of workbenches stand side by side.
    """

    # The caller's desktop and settings must not shine through.
    _dropped = ("QT_", "XDG_", "WAYLAND_", "DBUS_", "LC_", "LANG", "DISPLAY")

    def __init__(self):
        self._processes = []
        self.folder = None
        self.environment = None

    def __enter__(self):
        # The path of a local socket has room for about 100 characters, so a short name.
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tonquill-", dir="/tmp"))
        runtime = self.folder / "runtime"
        runtime.mkdir(mode=0o700)
        self.environment = {
            name: value
            for name, value in os.environ.items()
            if not name.startswith(self._dropped)
        } | {
            "HOME": str(self.folder),
            "TMPDIR": str(self.folder),
            "XDG_RUNTIME_DIR": str(runtime),
            "LC_ALL": "C.UTF-8",
            "QT_QPA_PLATFORM": "offscreen",
            "DBUS_SESSION_BUS_ADDRESS": "disabled:",
        }
        try:
            self._open()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, *_):
        self.close()

    def _open(self):
        """For what a kind of workbench has beyond its folder."""

    def close(self):
        for process in reversed(self._processes):
            self.stop(process)
        shutil.rmtree(self.folder, ignore_errors=True)

    def start(self, command, log=None, environment=None, **options):
        """Starts a process that lives no longer than this one; its output goes to the log."""
        with open(self.folder / (log or os.devnull), "ab") as output:
            defaults = {"stdin": subprocess.DEVNULL, "stdout": output, "stderr": output}
            process = subprocess.Popen(
                command,
                env=self.environment | (environment or {}),
                preexec_fn=_die_with_parent,
                **(defaults | options),
            )
        self._processes.append(process)
        return process

    def stop(self, process):
        """Ends a process, by force if it does not go by itself."""
        process.terminate()
        try:
            process.wait(3)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()
        if process.stdin:
            process.stdin.close()

    def run(self, command, check=True, environment=None):
        """Runs a command to its end and returns what came of it, its output as text."""
        result = subprocess.run(
            command,
            env=self.environment | (environment or {}),
            stdin=subprocess.DEVNULL,
            capture_output=True,
            text=True,
            timeout=DEADLINE,
        )
        if check and result.returncode != 0:
            raise RuntimeError(f"{command[0]} failed ({result.returncode}):\n{result.stderr}")
        return result

    def log(self, name):
        """What the processes with this log have written so far."""
        return (self.folder / name).read_text(errors="replace")


def tool(name):
    """Where this program is installed; fails saying that it is not."""
    path = shutil.which(name)
    if not path:
        raise RuntimeError(f"{name} is not installed; scripts/packages.txt tells what is needed")
    return path
