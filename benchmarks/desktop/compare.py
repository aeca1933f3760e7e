#!/usr/bin/python3
# Compares Brisel's cost on a desktop with udiskie's and with bare UDisks2 calls.
# SPDX-License-Identifier: MIT
"""usage: compare.py PROGRAMS [CYCLES [IDLE_SECONDS]]

PROGRAMS is the folder of the built programs. Needs root, loop devices, FUSE and udiskie."""
import os
import shutil
import statistics
import subprocess
import sys
import time

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
sys.path.insert(0, os.path.join(ROOT, "tests", "desktop"))

# pylint: disable=wrong-import-position
from stage.sticks import mounts_of  # noqa: E402
from stage.stage import Stage, obstacle_to_desktop, obstacle_to_real_disks  # noqa: E402
from stage.waiting import wait_for  # noqa: E402

import moments  # noqa: E402
import processes  # noqa: E402

SETTLE_SECONDS = 3
# Time for the rest of the desktop to react to a change.
REST_SECONDS = 0.4
ROUNDS = 15
UDISKIE = ["udiskie", "--appindicator", "--tray", "--notify", "--no-automount"]
MOUNT_OPTIONS = "rw,noatime,x-gvfs-hide,norecover"

MOST_MEMORY = 4096
MOST_MEMORY_SHARE = 0.1
# Allows for pages that the allocator fills gradually.
MOST_GROWTH = 0.05
MOST_WAKE_UPS = 0
MOST_PROMPT_TIME = 25
MOST_REMOUNT_RATIO = 1.15


class Table:
    """Prints the figures and collects the missed targets."""

    WIDTHS = (46, 12, 12, 12)

    def __init__(self):
        self.missed = []
        self._print("", "Brisel", "udiskie", "bare calls")

    def _print(self, *cells):
        print("  ".join(f"{cell:{'<' if index == 0 else '>'}{width}}"
                        for index, (cell, width) in enumerate(zip(cells, self.WIDTHS))))

    def row(self, what, brisel, udiskie="", bare=""):
        self._print(what, brisel, udiskie, bare)

    def target(self, what, reached):
        print(f"    {'reached' if reached else 'MISSED '}  {what}")
        if not reached:
            self.missed.append(what)


class BareCaller:
    """Remounts by bare UDisks2 calls, as the same user."""

    def __init__(self, stage):
        script = os.path.join(os.path.dirname(os.path.abspath(__file__)), "bare_calls.py")
        self._process = subprocess.Popen(
            stage.account.command(["/usr/bin/python3", script]), env=stage.session.environment,
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)

    def remount(self, stick):
        self._process.stdin.write(f"{stick.node} {MOUNT_OPTIONS}\n")
        self._process.stdin.flush()
        self._process.stdout.readline()

    def close(self):
        self._process.stdin.close()
        self._process.wait()


class Comparison:
    """One session that runs both programs."""

    def __init__(self, stage, table):
        self.stage = stage
        self.table = table
        self.reports = moments.FilesystemReports()
        stage.begin_story()
        self.brisel = stage.start_brisel()
        self.brisel.wait_until_ready()
        self.udiskie = stage.session.start(UDISKIE, "udiskie")
        time.sleep(SETTLE_SECONDS)
        if not self.udiskie.runs():
            raise RuntimeError(f"udiskie has ended: {self.udiskie.text()}")

    def _both(self, figure):
        return figure(self.brisel.pid), figure(self.udiskie.pid)

    def start(self):
        ours, theirs = self._both(processes.processor_time)
        self.table.row("processor time of the start, ms", f"{ours:.1f}", f"{theirs:.1f}")
        ours, theirs = self._both(processes.memory)
        self.table.row("memory (PSS) idle, kB", ours, theirs)
        self.table.target(f"at most {MOST_MEMORY} kB", ours <= MOST_MEMORY)
        self.table.target("at most a tenth of udiskie's", ours <= theirs * MOST_MEMORY_SHARE)

    def idle(self, seconds):
        before = self._both(processes.sleeps)
        time.sleep(seconds)
        ours, theirs = map(processes.wake_ups, before, self._both(processes.sleeps))
        self.table.row(f"wake-ups in {seconds} idle seconds", ours, theirs)
        self.table.target("no wake-up", ours <= MOST_WAKE_UPS)

    def _attach_and_detach(self, stick, times):
        for _ in range(times):
            stick.attach()
            self.brisel.wait_for_log(f"disk {stick.node} appeared")
            node = stick.node
            stick.pull()
            self.brisel.wait_for_log(f"disk {node} disappeared")

    def cycles(self, times):
        stick = self.stage.new_stick("Cycles")
        # Warm-up: one-time allocations of the first attachments are not growth.
        self._attach_and_detach(stick, 10)
        time.sleep(SETTLE_SECONDS)
        before = self._both(processes.allocated)
        self._attach_and_detach(stick, times)
        time.sleep(SETTLE_SECONDS)
        after = self._both(processes.allocated)
        ours, theirs = self._both(processes.memory)
        self.table.row("allocated after 10 times attach and detach, kB", *before)
        self.table.row(f"allocated after {times} more, kB", *after)
        self.table.target("no growth", after[0] <= before[0] * (1 + MOST_GROWTH))
        self.table.row("memory (PSS) then, kB", ours, theirs)
        self.table.target(f"at most {MOST_MEMORY} kB", ours <= MOST_MEMORY)

    def prompts(self):
        stick = self.stage.new_stick("Prompt")
        times = []
        for count in range(ROUNDS):
            self.reports.forget()
            stick.attach()
            reported = self.reports.wait_for(stick.node)
            prompt = wait_for(lambda wanted=count: self._offers(stick)[wanted:],
                              "the prompt comes")[0]
            times.append((prompt.moment - reported) * 1000)
            stick.pull()
        median = statistics.median(times)
        self.table.row("from UDisks2's report to the prompt, ms (median)", f"{median:.1f}")
        self.table.target(f"at most {MOST_PROMPT_TIME} ms", median <= MOST_PROMPT_TIME)

    def remounts(self):
        stick = self.stage.new_stick("Remount")
        ours = [self._remount(stick, self._say_yes) for _ in range(ROUNDS)]
        # Brisel reacts to every change; stop it while the bare calls are measured.
        self.brisel.program.stop()
        caller = BareCaller(self.stage)
        bare = [self._remount(stick, caller.remount) for _ in range(ROUNDS)]
        caller.close()
        ours, bare = statistics.median(ours), statistics.median(bare)
        self.table.row('from "Yes, sure!" to writable, ms (median)', f"{ours:.1f}", "",
                       f"{bare:.1f}")
        ratio = ours / bare
        self.table.target(f"at most {MOST_REMOUNT_RATIO} times the bare calls: {ratio:.2f}",
                          ratio <= MOST_REMOUNT_RATIO)

    def _remount(self, stick, how):
        stick.attach()
        stick.mount_read_only(self.stage.session)
        time.sleep(REST_SECONDS)
        start = time.monotonic()
        how(stick)
        end = moments.wait_for_mounts(
            lambda: any(writable for _, writable in mounts_of(stick.device)), "no mount came")
        time.sleep(REST_SECONDS)
        stick.pull()
        return (end - start) * 1000

    def _offers(self, stick):
        return [one for one in self.stage.notifications.posted
                if one.summary == f"{stick.label} detected"]

    def _say_yes(self, stick):
        self.stage.notifications.press(self._offers(stick)[-1], "DO_MOUNT")


def main(arguments):
    obstacle = obstacle_to_desktop() or obstacle_to_real_disks()
    if not obstacle and not shutil.which("udiskie"):
        obstacle = "there is no udiskie"
    if obstacle:
        print(f"The figures cannot be taken: {obstacle}")
        return 1
    programs, cycles, seconds = (*arguments, *("200", "60")[len(arguments) - 1:])
    stage = Stage(programs, mocked=False)
    try:
        table = Table()
        comparison = Comparison(stage, table)
        comparison.start()
        comparison.idle(int(seconds))
        comparison.cycles(int(cycles))
        comparison.prompts()
        comparison.remounts()
    finally:
        stage.close()
    return 1 if table.missed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]) if len(sys.argv) > 1 else __doc__)
