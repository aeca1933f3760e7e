# Memory, processor time and wake-ups of running processes, from /proc.
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
    """Proportional set size (PSS) in kB; also varies with other processes that map the files."""
    return _memory(pid, "Pss")


def allocated(pid):
    """Anonymous part of the PSS in kB: the process's own allocations."""
    return _memory(pid, "Pss_Anon")


def processor_time(pid):
    """Processor time of all current threads, in ms."""
    return sum(int(_read(f"{task}/schedstat").split()[0]) for task in _tasks(pid)) / 1e6


def sleeps(pid):
    """Voluntary context switches of each thread so far."""
    return {task: int(line.split()[1]) for task in _tasks(pid)
            for line in _read(f"{task}/status").splitlines()
            if line.startswith("voluntary_ctxt_switches")}


def wake_ups(before, after):
    """Wake-ups between two results of `sleeps`; ignores threads that have ended."""
    return sum(count - before.get(task, 0) for task, count in after.items())
