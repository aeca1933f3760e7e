# Waiting for conditions, with a timeout.
# SPDX-License-Identifier: MIT
import time

PATIENCE = 20
PAUSE = 0.02


class NeverHappened(AssertionError):
    """A condition did not become true in time."""


def wait_for(condition, what, seconds=PATIENCE, instead=None):
    """Waits for a true value of `condition()` and returns it; `what` describes it, and `instead()`
    what there is at the end of the time."""
    deadline = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            found = f"; {instead()}" if instead else ""
            raise NeverHappened(f"in {seconds} s this did not happen: {what}{found}")
        time.sleep(PAUSE)


def stays(condition, what, seconds=0.5):
    """Fails if `condition()` becomes false within `seconds`: for events that must not happen."""
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        if not condition():
            raise AssertionError(f"this did not stay so: {what}")
        time.sleep(PAUSE)
