#!/usr/bin/env python3
# Compares programs that run scenarios with the model: their transcripts are the same to the byte.
# SPDX-License-Identifier: MIT
import argparse
import itertools
import pathlib
import re
import subprocess
import sys

from brisel_model import transcript
from random_scenarios import scenario
from shrinking import shrunk

SCENARIOS = pathlib.Path(__file__).resolve().parent.parent / "scenarios"
SLOWEST = 60


def told_by_model(lines):
    """What the model prints, and the line it stops at, or 0."""
    printed, bad = transcript(lines)
    return "".join(line + "\n" for line in printed), bad


def told_by_program(program, lines):
    """What the program prints, and the line it stops at, or how else it ended."""
    ran = subprocess.run([program], input="\n".join(lines).encode(), capture_output=True,
                         timeout=SLOWEST, check=False)
    complaint = ran.stderr.decode(errors="replace")
    bad = re.match(r"line (\d+): ", complaint) if ran.returncode == 2 else None
    ended = int(bad[1]) if bad else ran.returncode and f"exit {ran.returncode}: {complaint}"
    return ran.stdout.decode(errors="replace"), ended


def disagree(program, lines):
    return told_by_model(lines) != told_by_program(program, lines)


def shortest(program, lines):
    """The fewest of these commands over which the two disagree; good ones stay good."""
    bad_is_fine = told_by_model(lines)[1]
    return shrunk(lines, lambda fewer: (bad_is_fine or not told_by_model(fewer)[1]) and
                  disagree(program, fewer))


def show_difference(program, lines):
    """Prints the scenario and where the transcripts part."""
    print("\n".join("    " + line for line in lines))
    (model, model_end), (real, real_end) = told_by_model(lines), told_by_program(program, lines)
    pairs = itertools.zip_longest(model.splitlines(), real.splitlines(), fillvalue="(nothing)")
    for place, (expected, printed) in enumerate(pairs, 1):
        if expected != printed:
            print(f"  line {place} of the model:   {expected}")
            print(f"  line {place} of the program: {printed}")
            break
    if model_end != real_end:
        print(f"  the model stops at line {model_end}, the program at {real_end}")


def compare_scenarios(program):
    """Compares over every scenario of the tests."""
    files = sorted(SCENARIOS.glob("*.scenario"))
    differing = 0
    for file in files:
        lines = file.read_text(encoding="utf-8").split("\n")
        if disagree(program, lines):
            differing += 1
            print(f"{file.name}: model and program disagree")
            show_difference(program, lines)
    print(f"{len(files)} scenarios compared, {differing} differ")
    return bool(differing) or not files


def compare_random(program, seeds, steps):
    """Compares over random scenarios, and stops at the first that differs."""
    commands = 0
    for seed in seeds:
        lines = scenario(seed, steps)
        commands += len(lines)
        if disagree(program, lines):
            print(f"seed {seed}: model and program disagree; the shortest scenario that shows it:")
            show_difference(program, shortest(program, lines))
            return True
    print(f"{len(seeds)} random scenarios of {commands} commands compared, none differs")
    return False


def main():
    parser = argparse.ArgumentParser(description="Compares a program with the model.")
    parser.add_argument("program", help="brisel-simulator, or a stage that takes the same input")
    parser.add_argument("--scenarios", action="store_true", help="the scenarios of the tests")
    parser.add_argument("--random", type=int, default=0, metavar="N", help="N random scenarios")
    parser.add_argument("--seed", type=int, default=1, help="the first one's seed")
    parser.add_argument("--steps", type=int, help="so many steps each, instead of a few")
    chosen = parser.parse_args()
    if not chosen.scenarios and chosen.random < 1:
        parser.error("nothing to compare: --scenarios or --random N")
    failed = chosen.scenarios and compare_scenarios(chosen.program)
    if chosen.random:
        seeds = range(chosen.seed, chosen.seed + chosen.random)
        failed = compare_random(chosen.program, seeds, chosen.steps) or failed
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
