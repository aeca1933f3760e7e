# What running processes cost, by the kernel's own figures.
# SPDX-License-Identifier: MIT
import os


def _tasks(pid):
    return [f"/proc/{pid}/task/{task}" for task in os.listdir(f"/proc/{pid}/task")]


def _read(path):
    with open(path, encoding="ascii") as file:
        return file.read()


def _memory(pid, part):
    for line in _read(f"/proc/{pid}/smaps_rollup").splitlines():
        if line.startswith(f"{part}:"):
            return int(line.split()[1])
    raise RuntimeError(f"/proc/{pid}/smaps_rollup tells no {part}")


def memory(pid):
    """The proportional set size, in kB. It also varies with who else maps the same files."""
    return _memory(pid, "Pss")


def allocated(pid):
    """The part of it that stands for no file, in kB: what the process has taken for itself."""
    return _memory(pid, "Pss_Anon")


def processor_time(pid):
    """The time on a processor of all threads there are, in ms."""
    return sum(int(_read(f"{task}/schedstat").split()[0]) for task in _tasks(pid)) / 1e6


def sleeps(pid):
    """How often each thread has gone to sleep by itself so far."""
    return {task: int(line.split()[1]) for task in _tasks(pid)
            for line in _read(f"{task}/status").splitlines()
            if line.startswith("voluntary_ctxt_switches")}


def wake_ups(before, after):
    """How often threads were woken between two looks at their sleeps; those that have ended since
    do not count."""
    return sum(count - before.get(task, 0) for task, count in after.items())
