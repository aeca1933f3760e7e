# Prints the name and the result of each story.
# SPDX-License-Identifier: MIT
import sys
import time
import unittest

OK, FAILED, SKIPPED = 0, 1, 77


def sentence(story):
    """A story's name as a sentence."""
    method = story.id().rpartition(".")[2]
    return f"{type(story).__name__}: {method.removeprefix('test_').replace('_', ' ')}"


def all_stories(suite):
    """The stories of nested suites."""
    for one in suite:
        if isinstance(one, unittest.TestSuite):
            yield from all_stories(one)
        else:
            yield one


def logged(story):
    """The program's log, for a failure report."""
    text = story.log() if hasattr(story, "log") else ""
    return f"The program's log:\n{text}" if text else ""


class Telling(unittest.TestResult):
    """Prints a line for each story, and the errors below it."""

    def __init__(self):
        super().__init__()
        self._start = 0.0

    def startTest(self, test):
        super().startTest(test)
        self._start = time.monotonic()

    def _print(self, word, test, detail=""):
        seconds = time.monotonic() - self._start
        print(f"{word:8}{sentence(test)} ({seconds:.1f} s){detail}", flush=True)

    def addSuccess(self, test):
        super().addSuccess(test)
        self._print("ok", test)

    def addError(self, test, err):
        super().addError(test, err)
        self._print("ERROR", test, f"\n{self.errors[-1][1]}{logged(test)}")

    def addFailure(self, test, err):
        super().addFailure(test, err)
        self._print("FAILED", test, f"\n{self.failures[-1][1]}{logged(test)}")

    def addSkip(self, test, reason):
        super().addSkip(test, reason)
        self._print("skipped", test, f": {reason}")

    def summary(self):
        """Prints the totals; returns the exit status."""
        # A story can fail twice: in its body and in its cleanup.
        wrong = len({story.id() for story, _ in self.errors + self.failures})
        print(f"{self.testsRun} stories: {self.testsRun - wrong - len(self.skipped)} ok, "
              f"{wrong} failed, {len(self.skipped)} skipped")
        sys.stdout.flush()
        if wrong:
            return FAILED
        return SKIPPED if len(self.skipped) == self.testsRun else OK
