# A copy of the tree, in which the core is broken in one place after the other, built and tested.
# SPDX-License-Identifier: MIT
import dataclasses
import os
import pathlib
import shutil
import signal
import subprocess
import time
import typing

NOT_COPIED = {"build", ".git", ".cache", "__pycache__"}
PROGRAMS = "build/mutation/bin/"
SIMULATOR = PROGRAMS + "brisel-simulator"
# A part of the tests that takes so many times as long as without a mistake hangs; so does one of
# an instant after so many seconds.
PATIENCE = 10
LEAST_PATIENCE = 10
BUILD_LIMIT = 1800
# What grows without end is stopped before the machine is.
MEMORY = "hard_rss_limit_mb=1024"


@dataclasses.dataclass(frozen=True)
class Part:
    """A part of the tests: the program to build for it, and the commands in the tree."""
    name: str
    program: str
    commands: typing.Callable


def tests_of(program):
    return lambda _: [[PROGRAMS + program, "--gtest_fail_fast", "--gtest_brief=1"]]


def scenarios(tree):
    return [["sh", "tests/scenarios/run-scenario.sh", SIMULATOR, str(file.relative_to(tree))]
            for file in sorted(tree.glob("tests/scenarios/*.scenario"))]


def model(_):
    return [["/usr/bin/python3", "-B", "tests/model/compare_test.py", SIMULATOR, "--random", "100"]]


# In the order in which they are asked; the scenarios compile less than the core's tests do.
CORE = Part("core tests", "brisel-core-tests", tests_of("brisel-core-tests"))
SCENARIOS = Part("scenarios", "brisel-simulator", scenarios)
MODEL = Part("model", "brisel-simulator", model)
FAULTS = Part("fault tests", "brisel-fault-tests", tests_of("brisel-fault-tests"))
THREADS = Part("thread tests", "brisel-thread-tests", tests_of("brisel-thread-tests"))
PARTS = (CORE, SCENARIOS, MODEL, FAULTS, THREADS)
PARTS_FOR_HEADERS = (SCENARIOS, MODEL, CORE, FAULTS, THREADS)


class BuildError(Exception):
    """Something cannot be built."""


class TestsFail(Exception):
    """A part of the tests fails without any mistake."""


class Stopped(Exception):
    """The workshop was told to stop."""


def files(tree):
    """The names of the files of a tree, but for what is made in it."""
    found = set()
    for folder, below, names in os.walk(tree):
        below[:] = [name for name in below if name not in NOT_COPIED]
        found |= {os.path.relpath(os.path.join(folder, name), tree) for name in names}
    return found


def refresh(tree, copy):
    """Makes the copy like the tree; what is the same keeps its time, so that it is not rebuilt."""
    wanted = files(tree)
    for name in files(copy) - wanted:
        (copy / name).unlink()
    for name in wanted:
        new, old = tree / name, copy / name
        if not old.exists() or new.read_bytes() != old.read_bytes():
            old.parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(new, old)


class Workshop:
    """One copy of the tree."""

    def __init__(self, tree, copy):
        self.copy = copy
        self.limits = {}
        self.process = None
        self.stopped = False
        refresh(tree, copy)
        if not self.run(["cmake", "--preset", "mutation"], BUILD_LIMIT):
            raise BuildError(self.last_words())

    def run(self, command, limit):
        """Whether the command succeeds within so many seconds."""
        environment = os.environ | {"ASAN_OPTIONS": MEMORY}
        if self.stopped:
            raise Stopped
        with open(self.copy / "build.log", "wb") as log:
            self.process = subprocess.Popen(command, cwd=self.copy, env=environment, stdout=log,
                                            stderr=log, stdin=subprocess.DEVNULL,
                                            start_new_session=True)
        try:
            return self.process.wait(limit) == 0
        except subprocess.TimeoutExpired:
            return False
        finally:
            self.end_process()

    def end_process(self):
        """Ends what runs, with all that it has started."""
        if self.process and self.process.poll() is None:
            os.killpg(self.process.pid, signal.SIGKILL)
            self.process.wait()

    def stop(self):
        self.stopped = True
        self.end_process()

    def last_words(self):
        return (self.copy / "build.log").read_text(encoding="utf-8", errors="replace")[-3000:]

    def build(self, program):
        command = ["cmake", "--build", "--preset", "mutation", "--target", program]
        if not self.run(command, BUILD_LIMIT):
            raise BuildError(self.last_words())

    def passes(self, part):
        """Builds and runs a part of the tests, up to the first failure."""
        self.build(part.program)
        limit = self.limits.get(part.name, BUILD_LIMIT)
        return all(self.run(command, limit) for command in part.commands(self.copy))

    def prepare(self):
        """Sees that all tests pass without any mistake, and how long they take."""
        for part in PARTS:
            self.build(part.program)
            begin = time.monotonic()
            if not self.passes(part):
                raise TestsFail(f"the {part.name} fail on unbroken sources:\n{self.last_words()}")
            taken = time.monotonic() - begin
            self.limits[part.name] = max(LEAST_PATIENCE, PATIENCE * taken)

    def caught_by(self, source, text):
        """The part of the tests that fails with this text in the source's place, or none."""
        file = self.copy / "src" / source
        whole = file.read_bytes()
        file.write_text(text, encoding="utf-8")
        try:
            parts = PARTS_FOR_HEADERS if source.endswith(".h") else PARTS
            return next((part.name for part in parts if not self.passes(part)), None)
        finally:
            file.write_bytes(whole)
