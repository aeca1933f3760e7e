# Waiting for something to happen, without guessing how long it takes.
# SPDX-License-Identifier: MIT
import time

PATIENCE = 20
PAUSE = 0.02


class NeverHappened(AssertionError):
    """What was waited for did not happen in time."""


def wait_for(condition, what, seconds=PATIENCE):
    """The first true value of `condition()`; `what` says, in words, what is waited for."""
    deadline = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise NeverHappened(f"in {seconds} s this did not happen: {what}")
        time.sleep(PAUSE)


def stays(condition, what, seconds=0.5):
    """Holds `condition()` to be true for a while: for what must not happen."""
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        if not condition():
            raise AssertionError(f"this did not stay so: {what}")
        time.sleep(PAUSE)
