# Checks that the document of the simulator's language names the simulator's commands, all and no others.
# SPDX-License-Identifier: MIT
#
# usage: simulator_language_test.py ROOT SIMULATOR
import os
import pathlib
import pty
import re
import subprocess
import sys


def told_commands(document):
    """The first words in the first column of the tables; alternatives to a later word left out."""
    names = set()
    for row in re.findall(r"^\| (`.*?) \|", document.read_text(encoding="utf-8"), re.MULTILINE):
        names.add(re.match(r"`(\w[\w-]*)", row).group(1))
        names.update(re.findall(r", `([\w-]+)", row))
    names.update(re.findall(r"`(show|help) ?\w*`", document.read_text(encoding="utf-8")))
    return names


def known_commands(simulator):
    """What `help` tells at a terminal, as a name and what stands behind it."""
    master, inside = pty.openpty()
    with subprocess.Popen([simulator], stdin=inside, stdout=inside, stderr=inside) as program:
        os.close(inside)
        os.write(master, b"help\nquit\n")
        output = b""
        try:
            while chunk := os.read(master, 4096):
                output += chunk
        except OSError:
            pass
        program.wait(20)
    os.close(master)
    usages = re.findall(r"^  (\S.*?)\r?$", output.decode(), re.MULTILINE)
    return {usage.split()[0] for usage in usages}, " ".join(usages)


def main():
    root, simulator = (pathlib.Path(word).resolve() for word in sys.argv[1:3])
    told = told_commands(root / "docs/simulator.md")
    known, usages = known_commands(simulator)
    # Words that are alternatives stand in the usages, too.
    wrong = [f"docs/simulator.md does not name the command {name}." for name in sorted(known - told)]
    wrong += [f"docs/simulator.md names {name}, which the simulator does not know."
              for name in sorted(told) if name != "help" and name not in re.findall(r"[\w-]+", usages)]
    if len(known) < 10:
        wrong.append(f"The simulator's help is not understood; it has {sorted(known)}.")
    for complaint in wrong:
        print(complaint)
    sys.exit(1 if wrong else 0)


if __name__ == "__main__":
    main()
