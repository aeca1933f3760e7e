# Checks that programs print what the documents show of them.
# SPDX-License-Identifier: MIT
#
# usage: printed_test.py ROOT PROGRAMS simulator|main-job
#
# A block of the kind "console" that has commands after "> " is what the simulator prints; every other
# one is what the main job prints on a real volume. A line "..." stands for lines left out.
import pathlib
import re
import subprocess
import sys

from documents import all_documents

LEFT_OUT = "..."
START = ["start", 'press "OK, I understand."']


def blocks_for(root, program):
    for document in all_documents(root):
        for block in document.blocks:
            has_commands = any(line.startswith("> ") for line in block.lines)
            if block.kind == "console" and has_commands == (program == "simulator"):
                yield f"{document.name}:{block.line}", block.lines


def is_printed(shown, printed):
    """Whether the lines stand in what was printed, one behind the other but for what is left out."""
    pattern = "".join(r"(.*\n)*?" if line == LEFT_OUT else re.escape(line) + r"\n" for line in shown)
    return re.search(rf"^{pattern}", printed, re.MULTILINE) is not None


def printed_by_simulator(programs, shown):
    commands = START + [line.removeprefix("> ") for line in shown if line.startswith("> ")]
    return subprocess.run([programs / "brisel-simulator"], input="\n".join([*commands, ""]),
                          check=True, capture_output=True, text=True).stdout


def print_main_job(root, programs):
    """With the names of a volume and a device as the documents have them."""
    result = subprocess.run([root / "scripts/main-job", programs], check=False, text=True,
                            stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    if result.returncode:
        sys.exit(f"scripts/main-job ends with {result.returncode}:\n{result.stdout}")
    text = re.sub(r"\bBrisel\d+\b", "Data", result.stdout)
    return re.sub(r"\bloop\d+\b", "loop0", text)


def main():
    root, programs = (pathlib.Path(word).resolve() for word in sys.argv[1:3])
    by_simulator = sys.argv[3] == "simulator"
    main_job = None if by_simulator else print_main_job(root, programs)
    if main_job and "simulated Mac" in main_job:
        print("Skipped: the main job ran, but on the simulated Mac, which the documents do not show.")
        sys.exit(77)
    wrong = False
    for place, shown in blocks_for(root, sys.argv[3]):
        printed = main_job or printed_by_simulator(programs, shown)
        if not is_printed(shown, printed):
            print(f"{place}: this is not what is printed, which is:\n{printed}")
            wrong = True
    sys.exit(1 if wrong else 0)


if __name__ == "__main__":
    main()
