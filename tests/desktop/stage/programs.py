# Child programs with collected output, ended with the stage.
# SPDX-License-Identifier: MIT
import os
import signal
import subprocess

from .waiting import PATIENCE, wait_for


class Program:
    """A running program whose output goes to a file."""

    def __init__(self, command, account, environment, log, **options):
        self.log = log
        with open(log, "ab") as output:
            options.setdefault("stdin", subprocess.DEVNULL)
            self.process = subprocess.Popen(
                account.command(command), env=environment, stdout=output,
                stderr=subprocess.STDOUT, cwd=account.home, start_new_session=True, **options)

    @property
    def pid(self):
        return self.process.pid

    def runs(self):
        return self.process.poll() is None

    def text(self):
        with open(self.log, encoding="utf-8", errors="replace") as file:
            return file.read()

    def wait_for_text(self, wanted, start=0):
        """Waits for `wanted` in the output after `start`; returns the end of the match."""
        def end():
            found = self.text().find(wanted, start)
            return found + len(wanted) if found >= 0 else None
        return wait_for(end, f'"{wanted}" is printed', instead=lambda: f"this was:\n{self.text()}")

    def wait_for_end(self, seconds=PATIENCE):
        """Waits for the program's end; returns the exit status."""
        wait_for(lambda: not self.runs(), "the program ends", seconds)
        return self.process.returncode

    def stop(self, first=signal.SIGTERM):
        """Ends the program: first with the signal `first`, then by force."""
        if self.runs():
            os.kill(self.pid, first)
            try:
                self.process.wait(5)
            except subprocess.TimeoutExpired:
                pass
        try:
            os.killpg(self.pid, signal.SIGKILL)
        except (ProcessLookupError, PermissionError):
            pass
        self.process.wait(PATIENCE)


def run(*command, **options):
    """Runs a command and returns its output; raises RuntimeError with its stderr on failure."""
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
                            errors="replace", check=False, **options)
    if result.returncode != 0:
        raise RuntimeError(f"{command} ended with {result.returncode}: {result.stderr.strip()}")
    return result.stdout.strip()


def with_environment(entry):
    """The processes with `entry` in their environment, such as those started by a bus."""
    for name in os.listdir("/proc"):
        if not name.isdigit() or int(name) == os.getpid():
            continue
        try:
            with open(f"/proc/{name}/environ", "rb") as file:
                if entry.encode() in file.read().split(b"\0"):
                    yield int(name)
        except OSError:
            continue


def kill_all_with_environment(entry):
    """Kills the processes that the stage has started, directly or not."""
    for pid in with_environment(entry):
        try:
            os.kill(pid, signal.SIGKILL)
        except (ProcessLookupError, PermissionError):
            pass
