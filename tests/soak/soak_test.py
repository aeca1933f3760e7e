#!/usr/bin/env python3
# Runs long random scenarios through a program that looks after each step whether all is in order.
# SPDX-License-Identifier: MIT
import argparse
import contextlib
import pathlib
import re
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "model"))

from brisel_model import Model, is_command
from commands import FORMS, OTHERS
from random_scenarios import scenario
from shrinking import shrunk
from world import Ended

SLOWEST = 120
IN_ORDER, BROKEN = 0, 3
FULL_LIST = 128
# The states of the program in which disks must have gone, and one that is rare.
MOMENTS = {"with a full automount list", "before the start", "at rest", "while busy", "with completions held back",
           "under an alert", "under the password prompt"}


def moment_of(model):
    if not model.started:
        return "before the start"
    if model.awaited:
        return "under the password prompt" if model.awaited == "password" else "under an alert"
    if model.world.holding:
        return "with completions held back"
    return "while busy" if model.program.in_progress else "at rest"


class Coverage:
    """What the scenarios have given, and when disks went."""

    def __init__(self):
        self.steps = 0
        self.commands = set()
        self.moments = set()

    def add(self, lines):
        model = Model()
        self.steps += len(lines)
        for line in lines:
            if not is_command(line):
                continue
            self.commands.update(line.split()[:1])
            if line.startswith("detach "):
                self.moments.add(moment_of(model))
            with contextlib.suppress(Ended):
                model.carry_out(line)
        if f"log: List count: {FULL_LIST}" in model.out:
            self.moments.add("with a full automount list")

    def missing(self):
        """What should have been there and was not."""
        return sorted({*FORMS, *OTHERS} - self.commands) + sorted(MOMENTS - self.moments)


def failure_of(command, lines):
    """How the run went wrong; none where all was in order."""
    ran = subprocess.run(command, input="\n".join(lines).encode(), capture_output=True,
                         timeout=SLOWEST, check=False)
    if ran.returncode == IN_ORDER:
        return None
    told = ran.stdout if ran.returncode == BROKEN else ran.stderr
    return f"exit {ran.returncode}: " + told.decode(errors="replace")


def still_breaks(command, told, lines):
    """Whether fewer lines than those that went wrong go wrong too, and are a scenario."""
    failure = failure_of(command, lines)
    return bool(failure) and failure.split(":")[0] == told.split(":")[0]


def up_to(told, lines):
    """The lines up to the one that the first sentence is about."""
    number = re.match(r"exit \d+: line (\d+): ", told)
    return lines[: int(number[1])] if number else lines


def run_one(command, lines):
    """Runs a scenario; where something broke, prints the shortest one that still breaks."""
    told = failure_of(command, lines)
    if told is None:
        return True
    fewer = up_to(told, lines)
    if not still_breaks(command, told, fewer):
        fewer = lines
    fewest = shrunk(fewer, lambda some: still_breaks(command, told, some))
    print("\n".join("    " + line for line in fewest))
    print(failure_of(command, fewest))
    return False


def main():
    parser = argparse.ArgumentParser(description="Runs long random scenarios.")
    parser.add_argument("program", help="brisel-soak")
    parser.add_argument("--scenarios", type=int, default=20, metavar="N", help="how many")
    parser.add_argument("--steps", type=int, default=2000, help="how long each of them is")
    parser.add_argument("--seed", type=int, default=1, help="the first one's seed")
    chosen = parser.parse_args()
    coverage = Coverage()
    for seed in range(chosen.seed, chosen.seed + chosen.scenarios):
        lines = scenario(seed, chosen.steps)
        coverage.add(lines)
        for faults in (0, 2 * seed - 1, 2 * seed):
            if not run_one([chosen.program, "--faults", str(faults)], lines):
                print(f"Seed {seed} with faults {faults} breaks a rule.")
                return 1
    print(f"{chosen.scenarios} scenarios of {coverage.steps} commands, each with and without "
          "faults: all in order")
    if coverage.missing():
        print("They left out: " + ", ".join(coverage.missing()))
    return 1 if coverage.missing() else 0


if __name__ == "__main__":
    sys.exit(main())
