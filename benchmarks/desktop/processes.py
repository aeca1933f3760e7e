# What running processes cost, by the kernel's own figures.
# SPDX-License-Identifier: MIT
import os


def _tasks(pid):
    return [f"/proc/{pid}/task/{task}" for task in os.listdir(f"/proc/{pid}/task")]


def _read(path):
    with open(path, encoding="ascii") as file:
        return file.read()


def memory(pid):
    """The proportional set size, in kB."""
    for line in _read(f"/proc/{pid}/smaps_rollup").splitlines():
        if line.startswith("Pss:"):
            return int(line.split()[1])
    raise RuntimeError(f"/proc/{pid}/smaps_rollup tells no Pss")


def processor_time(pid):
    """The time on a processor of all threads there are, in ms."""
    return sum(int(_read(f"{task}/schedstat").split()[0]) for task in _tasks(pid)) / 1e6


def wake_ups(pid):
    """How often the threads have gone to sleep by themselves, and so were woken again."""
    return sum(int(line.split()[1]) for task in _tasks(pid)
               for line in _read(f"{task}/status").splitlines()
               if line.startswith("voluntary_ctxt_switches"))
